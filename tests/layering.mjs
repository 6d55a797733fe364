// Rejects an include or import that points upwards, and a use of the desktop's implementations
// outside of the entry: what the linker can't see in headers and QML.
import { readdirSync, readFileSync, statSync } from 'node:fs';
import { dirname, join, relative } from 'node:path';
import { fileURLToPath } from 'node:url';

const source = process.argv[2] ?? join(dirname(fileURLToPath(import.meta.url)), '..', 'src');

// For each folder, the folders that it may use beside itself.
const below = { model: [], platform: ['model'] };
below.document = ['platform', ...below.platform];
below.publish = ['document', ...below.document];
below.library = ['publish', ...below.publish];
below.assets = ['library', ...below.library];
below.updates = ['platform', ...below.platform];
below.controls = ['platform', ...below.platform];
below.pictures = ['assets', 'controls', ...below.assets];
below.sheets = ['pictures', ...below.pictures];
below.workspace = ['sheets', ...below.sheets];
below.shell = ['workspace', 'updates', ...below.workspace];
below.quickgrab = ['pictures', ...below.pictures];
below.settings = ['quickgrab', 'updates', ...below.quickgrab];
below.entry = ['shell', 'settings', 'quickgrab', ...below.shell];

function* files(folder) {
  for (const name of readdirSync(folder)) {
    const path = join(folder, name);
    if (statSync(path).isDirectory()) yield* files(path);
    else if (/\.(h|cpp|qml)$/.test(name)) yield path;
  }
}

function problemOf(path, used) {
  const [folder] = relative(source, path).split('/');
  const inDesktop = relative(source, path).startsWith('platform/desktop/');
  const [usedFolder, room] = used.split('/');
  if (!below[folder]) return `stands in a folder that has no layer: ${folder}`;
  if (!below[usedFolder]) return `uses ${used}, which has no layer`;
  if (usedFolder !== folder && !below[folder].includes(usedFolder)) return `points upwards: ${used}`;
  if (usedFolder === 'platform' && room === 'desktop' && folder !== 'entry' && !inDesktop)
    return `uses an implementation instead of its interface: ${used}`;
  return null;
}

// The layers' folders that a file names, as "folder/file".
function usesOf(path) {
  const text = readFileSync(path, 'utf8');
  const includes = [...text.matchAll(/^\s*#\s*include\s+"([^"]+)"/gm)].map(match => match[1]);
  const imports = [...text.matchAll(/^\s*import\s+TarnLoft\.(\w+)/gm)].map(match => match[1].toLowerCase());
  return [...includes, ...imports].filter(used => !used.endsWith('.moc'));
}

let checked = 0;
let failed = 0;
for (const path of files(source)) {
  ++checked;
  for (const used of usesOf(path)) {
    const problem = problemOf(path, used);
    if (!problem) continue;
    ++failed;
    console.error(`${relative(source, path)}: ${problem}`);
  }
}
console.log(`${checked} sources, ${failed} problems`);
process.exit(failed || !checked ? 1 : 0);
