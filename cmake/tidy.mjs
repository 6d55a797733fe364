// Runs clang-tidy in two passes: its checks spend nearly all of their time in the toolkit's headers,
// which all sources include, but for its analyzer of paths, which spends it in a source itself.
//   tidy.mjs rest FOLDER NAME SOURCE...    all checks but the analyzer, over many sources in one
//                                          compilation
//   tidy.mjs paths FOLDER RECORD SOURCE... the analyzer over each source that isn't in RECORD as it
//                                          is now; the clean ones are written there
// FOLDER is the build's, for the sources' flags and for what is written.
import { spawn } from 'node:child_process';
import { createHash } from 'node:crypto';
import { existsSync, mkdirSync, readFileSync, writeFileSync } from 'node:fs';
import { cpus } from 'node:os';
import { dirname, join, relative } from 'node:path';

const [pass, folder, name, ...sources] = process.argv.slice(2);

// Behind those of .clang-tidy. A group of checks that isn't named here is run in both passes.
const checks = {
  paths: '-bugprone-*,-misc-*,-modernize-*,-performance-*,-readability-*',
  rest: '-clang-analyzer-*',
}[pass];

// A unit includes sources, so that these aren't its main file, the only one that some checks look
// at: unused aliases and using declarations, and conditions of the preprocessor.
const needsMainFile = /^\s*(#\s*(if|elif)|using\s+[\w:]+::\w+\s*;|namespace\s+\w+\s*=)/m;

const database = JSON.parse(readFileSync(join(folder, 'compile_commands.json')));
const commands = new Map(database.map((entry) => [entry.file, entry.command]));

// The flags of a source's compilation, without what it reads and writes.
function flagsOf(source) {
  const words = commands.get(source)
    .match(/(?:[^\s"\\]|\\.|"(?:[^"\\]|\\.)*")+/g)
    .map((word) => word.replace(/\\(.)/g, '$1'));
  const isCompiler = (word) => /(\+\+|cc)(-\d+)?$/.test(word) && !word.includes('ccache');
  const compiler = words.findIndex(isCompiler);
  return words.slice(compiler + 1, words.indexOf('-o', compiler));
}

// Those that say where headers and which libraries are there may be more than a source needs.
function unitedFlags(together) {
  const all = new Set();
  for (const source of together) {
    const flags = flagsOf(source);
    while (flags.length) {
      const flag = flags.shift();
      all.add(flag === '-isystem' || flag === '-include' ? `${flag}\0${flags.shift()}` : flag);
    }
  }
  return [...all].flatMap((flag) => flag.split('\0'));
}

// Sources that differ in others stay apart.
const otherFlags = (source) =>
  flagsOf(source)
    .filter((flag, i, all) => !/^-(D.*_LIB$|I|isystem)/.test(flag) && all[i - 1] !== '-isystem')
    .join(' ');

let units = 0;
function write(together) {
  const unit = join(folder, 'tidy', `${name}-${units++}.cpp`);
  mkdirSync(dirname(unit), { recursive: true });
  const include = (source) => `#include "${source}"  // NOLINT(bugprone-suspicious-include)\n`;
  const lines = together.map(include);
  writeFileSync(unit, lines.join(''));
  return unit;
}

function tidy(together) {
  const isUnit = together.length > 1;
  const file = isUnit ? write(together) : together[0];
  // The compiler's own warnings are told of each source alone: here they'd know others' names.
  const flags = [...unitedFlags(together), ...(isUnit ? ['-Wno-error'] : [])];
  return new Promise((done) => {
    const run = spawn('clang-tidy', ['--quiet', `--checks=${checks}`, file, '--', ...flags]);
    let output = '';
    run.stdout.on('data', (text) => (output += text));
    run.stderr.on('data', (text) => (output += text));
    run.on('close', (code) => done({ failed: code !== 0, output }));
  });
}

// Sources that can't stand together, such as two with helpers of one name, are taken apart.
async function check(together) {
  const { failed, output } = await tidy(together);
  if (!failed) return true;
  if (together.length > 1 && output.includes('clang-diagnostic-error')) {
    const errors = output.split('\n').filter((line) => line.includes(': error: '));
    const hasError = (source) => errors.some((line) => line.startsWith(`${source}:`));
    const named = together.filter(hasError);
    const isPart = named.length > 0 && named.length < together.length;
    const apart = isPart ? named : together.slice(together.length / 2);
    console.log(`${name}: ${apart.length} of ${together.length} sources stand apart`);
    const rest = await check(together.filter((source) => !apart.includes(source)));
    return (await check(apart)) && rest;
  }
  process.stderr.write(output.replace(/^.* warnings? generated\.\n/gm, ''));
  return false;
}

async function checkTogether() {
  const groups = new Map();
  for (const source of sources) {
    const alone = needsMainFile.test(readFileSync(source, 'utf8'));
    const key = alone ? source : otherFlags(source);
    groups.set(key, [...(groups.get(key) ?? []), source]);
  }
  let clean = true;
  for (const together of groups.values()) clean = (await check(together)) && clean;
  return clean;
}

// What a source's paths lead through, roughly: itself, its header and the checks.
function stateOf(source) {
  const texts = [source, source.replace(/\.cpp$/, '.h'), '.clang-tidy'];
  const hash = createHash('sha256');
  for (const text of texts.filter(existsSync)) hash.update(readFileSync(text)).update('\0');
  return hash.digest('hex').slice(0, 16);
}

// The project's headers that a file includes, however deep.
const included = new Map();
function headersOf(file) {
  if (included.has(file)) return included.get(file);
  const all = new Set();
  included.set(file, all);
  for (const [, name] of readFileSync(file, 'utf8').matchAll(/^#include "(.*\.h)"/gm)) {
    const header = join('src', name);
    if (existsSync(header)) [header, ...headersOf(header)].forEach((each) => all.add(each));
  }
  return all;
}

// Those that have no source of their own, which would stand for them.
const bareHeadersOf = (source) =>
  [...headersOf(source)].filter((header) => !existsSync(header.replace(/\.h$/, '.cpp')));

// Enough to go through what a header does; all that include one may be all sources.
function someThatInclude(header) {
  const some = 6;
  const all = sources.filter((source) => headersOf(source).has(header));
  return all.filter((_, place) => place % Math.ceil(all.length / some) === 0);
}

async function analysePaths(record) {
  const lineOf = (source) => `${stateOf(source)} ${relative('src', source)}`;
  const known = new Set(existsSync(record) ? readFileSync(record, 'utf8').split('\n') : []);
  const isKnown = (file) => known.has(lineOf(file));
  const bareHeaders = [...new Set(sources.flatMap(bareHeadersOf))];
  const stale = new Set([
    ...sources.filter((source) => !isKnown(source)),
    ...bareHeaders.filter((header) => !isKnown(header)).flatMap(someThatInclude),
  ]);
  const lines = new Set(sources.filter((source) => !stale.has(source)).map(lineOf));
  const waiting = [...stale];
  if (waiting.length) console.log(`Analysing ${waiting.length} changed sources`);
  const bySource = (a, b) => (a.slice(17) < b.slice(17) ? -1 : 1);
  const write = () => writeFileSync(record, `${[...lines].sort(bySource).join('\n')}\n`);
  let clean = true;
  const worker = async () => {
    for (let source; (source = waiting.pop()); ) {
      const line = lineOf(source);
      if (await check([source])) {
        lines.add(line);
        write();
      } else {
        clean = false;
      }
    }
  };
  await Promise.all(cpus().map(worker));
  if (clean) bareHeaders.forEach((header) => lines.add(lineOf(header)));
  write();
  return clean;
}

const clean = pass === 'rest' ? await checkTogether() : await analysePaths(name);
process.exit(clean ? 0 : 1);
