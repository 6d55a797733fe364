// Checks the program against random and broken packages.
// Usage: node run.mjs <path to tarnloft> [count=300] [seed]

import { spawn } from 'node:child_process';
import {
  copyFileSync, lstatSync, mkdirSync, mkdtempSync, readFileSync, readdirSync, readlinkSync, realpathSync, rmSync, symlinkSync, writeFileSync,
} from 'node:fs';
import { cpus, tmpdir } from 'node:os';
import { join, resolve } from 'node:path';
import { GOOD, badManifests } from './bad.mjs';
import { isOfNewerProgram, parseBrand } from './manifest.mjs';
import { randomFrom, writePackage } from './package.mjs';
import { pageText, sharedParts } from './page.mjs';
import { fillBlanks, seededText } from './seed.mjs';

const program = resolve(process.argv[2]);
const [count, firstSeed] = [process.argv[3] ?? 300, process.argv[4] ?? Date.now() % 1e9].map(Number);
const root = realpathSync(mkdtempSync(join(tmpdir(), 'tarnloft-oracle-')));
const home = join(root, 'home');
const temporary = join(root, 'tmp');
let shared = null;  // what all pages have

class Mismatch extends Error {}

function demand(truth, message) {
  if (!truth) throw new Mismatch(message);
}

// Running the program

// A home of its own: a run must neither read nor leave anything in the user's.
function environment(locale) {
  return {
    PATH: process.env.PATH, TMPDIR: temporary, LC_ALL: locale, HOME: home,
    XDG_DATA_HOME: join(home, 'data'), XDG_CONFIG_HOME: join(home, 'config'), XDG_CACHE_HOME: join(home, 'cache'),
  };
}

function run(args, { cwd = root, locale = 'C.UTF-8' } = {}) {
  return new Promise((done, fail) => {
    const limits = { stdio: ['ignore', 'pipe', 'pipe'], timeout: 20000, killSignal: 'SIGKILL' };
    const child = spawn(program, args, { cwd, env: environment(locale), ...limits });
    let output = '';
    for (const stream of [child.stdout, child.stderr]) stream.on('data', (data) => { output += data; });
    child.on('error', fail);
    child.on('close', (status, signal) => done({ status: signal ?? status, output }));
  });
}

async function runQuietly(args, status, options) {
  const result = await run(args, options);
  demand(result.output === '', `${args.join(' ')} printed ${JSON.stringify(result.output)}`);
  demand(result.status === status, `${args.join(' ')} ended with ${result.status} instead of ${status}`);
}

// Comparing

/** Everything below a folder by path: what it is and what it holds. */
function snapshot(folder, prefix = '') {
  return readdirSync(folder).sort().flatMap((name) => {
    const path = join(folder, name);
    const info = lstatSync(path);
    if (info.isSymbolicLink()) return [[prefix + name, 'link', readlinkSync(path)]];
    if (info.isDirectory()) return [[prefix + name, 'folder', ''], ...snapshot(path, `${prefix}${name}/`)];
    return [[prefix + name, 'file', readFileSync(path, 'latin1')]];
  });
}

function demandSameTree(actual, expected, message) {
  const paths = (tree) => JSON.stringify(tree.map(([path, kind]) => [path, kind]));
  demand(paths(actual) === paths(expected), `${message}: ${paths(expected)} became ${paths(actual)}`);
  const other = actual.find((entry, i) => entry[2] !== expected[i][2]);
  demand(!other, `${message}: ${other?.[0]} has other content`);
}

function demandSameBytes(actual, text, what) {
  const expected = Buffer.from(text);
  if (actual.equals(expected)) return;
  let at = 0;
  while (at < actual.length && at < expected.length && actual[at] === expected[at]) at++;
  const part = (bytes, from, to) => JSON.stringify(bytes.toString('utf8', Math.max(0, from), to));
  const around = (bytes) => `${part(bytes, at - 80, at)} then ${part(bytes, at, at + 80)}`;
  throw new Mismatch(`${what} differs at byte ${at} (${actual.length} bytes, expected ${expected.length})\n`
    + `  expected ${around(expected)}\n  actual   ${around(actual)}`);
}

// Random packages

// Three ways to name a package: as it is, from the working directory, and through a link.
function calledPaths(folder, name, rng) {
  symlinkSync(name, join(folder, 'alias'));
  return rng.pick([
    { path: join(folder, name), page: join(folder, 'out', 'page.html') },
    { path: name, page: join('out', 'page.html') },
    { path: join(folder, 'alias'), page: join('.', 'out', 'page.html') },
  ]);
}

function noteShared(page) {
  const parts = sharedParts(page);
  demand(parts, 'the style sheet, the home page or the end of the page is another one');
  shared ??= parts;
  demand(parts.homePage === shared.homePage, `the footer's address was ${shared.homePage} and is ${parts.homePage}`);
}

async function checkExport(folder, name, { path, page }, options, replaces) {
  const out = join(folder, 'out');
  const before = snapshot(join(folder, name));
  mkdirSync(out);
  if (replaces) writeFileSync(join(out, 'page.html'), 'old '.repeat(100000));
  await runQuietly(['--export-page', path, page], 0, options);
  demand(readdirSync(out).join() === 'page.html', `the page's folder holds ${JSON.stringify(readdirSync(out))}`);
  const actual = readFileSync(join(out, 'page.html'));
  noteShared(actual.toString('utf8'));
  const expected = pageText(join(folder, name), shared);
  writeFileSync(join(folder, 'expected.html'), expected);
  demandSameBytes(actual, expected, 'the page');
  demandSameTree(snapshot(join(folder, name)), before, 'exporting changed the package');
}

// Whether every number that a page shows, rounded, fits 64 bits.
function isPrintable(brand) {
  const fits = number => Number.isFinite(number) && BigInt(Math.round(number)) >= -(2n ** 63n) && BigInt(Math.round(number)) < 2n ** 63n;
  return brand.sections.every(section => section.items.every(({ payload }) => !payload.gradient
    || [payload.gradient.value.angle, ...payload.gradient.value.stops.map(stop => stop.location * 100)].every(fits)));
}

async function checkRefusedExport(folder, { path, page }, options) {
  const out = join(folder, 'out');
  mkdirSync(out);
  await runQuietly(['--export-page', path, page], 1, options);
  demand(readdirSync(out).length === 0, `a refused page left ${JSON.stringify(readdirSync(out))}`);
}

// The package without the copy of a newer program's manifest, which must be there if it is due.
function withoutKept(tree, manifest, isDue) {
  const isKept = ([path, kind, content]) =>
    /^versions\/\d+\.newer$/.test(path) && kind === 'file' && content === manifest.toString('latin1');
  const kept = tree.filter(isKept);
  if (isDue) demand(kept.length === 1, `a newer program's manifest was kept ${kept.length} times`);
  return kept.length === 0 ? tree : tree.filter((entry) => !isKept(entry) && entry[0] !== 'versions');
}

async function checkSeed(folder, name, { path }, options) {
  const manifest = join(folder, name, 'manifest.json');
  const before = snapshot(join(folder, name));
  const expected = seededText(parseBrand(readFileSync(manifest)));
  const started = Date.now();
  copyFileSync(manifest, join(folder, 'manifest.before.json'));
  await runQuietly(['--seed-logo', path], expected === null ? 1 : 0, options);
  const actual = readFileSync(manifest);
  if (expected !== null) {
    demandSameBytes(actual, fillBlanks(expected, actual.toString('utf8'), started), 'the seeded manifest');
  }
  const except = (tree) => (expected === null ? tree : tree.filter(([entry]) => entry !== 'manifest.json'));
  const original = readFileSync(join(folder, 'manifest.before.json'));
  const after = withoutKept(snapshot(join(folder, name)), original, expected !== null && isOfNewerProgram(original));
  demandSameTree(except(after), except(before), 'seeding changed the package');
}

async function checkRandom(seed) {
  const rng = randomFrom(seed);
  const folder = join(root, `package-${seed}`);
  const name = rng.pick(['Acme.tarnloft', 'Brand é 1.tarnloft', "it's & %20 #1.tarnloft", 'plain']);
  mkdirSync(folder);
  writePackage(join(folder, name), rng);
  const paths = calledPaths(folder, name, rng);
  const options = { cwd: folder, locale: rng.pick(['C.UTF-8', 'C.UTF-8', 'C']) };
  if (isPrintable(parseBrand(readFileSync(join(folder, name, 'manifest.json'))))) await checkExport(folder, name, paths, options, rng.chance(0.2));
  else await checkRefusedExport(folder, paths, options);
  await checkSeed(folder, name, paths, options);
  return folder;
}

// Broken packages and the rest

function makeGood(folder, manifest = JSON.stringify(GOOD)) {
  mkdirSync(join(folder, 'kit', 'assets'), { recursive: true });
  writeFileSync(join(folder, 'kit', 'assets', 'plain.png'), 'picture');
  if (manifest !== null) writeFileSync(join(folder, 'kit', 'manifest.json'), manifest);
}

const EXPORT = ['--export-page', 'kit', 'page.html'];
const SEED = ['--seed-logo', 'kit'];

async function demandRefused(folder, ...commands) {
  const before = snapshot(folder);
  for (const args of commands) await runQuietly(args, 1, { cwd: folder });
  demandSameTree(snapshot(folder), before, 'a failing run changed something');
}

// Each prepares a folder and gives the commands that must fail there.
const REFUSALS = [
  ['no manifest', (folder) => makeGood(folder, null), EXPORT, SEED],
  ["file in the package's place", (folder) => writeFileSync(join(folder, 'kit'), JSON.stringify(GOOD)), EXPORT, SEED],
  ['page into no folder', (folder) => makeGood(folder), ['--export-page', 'kit', 'gone/page.html']],
  ["page in a folder's place", (folder) => makeGood(folder), ['--export-page', 'kit', 'kit/assets']],
  ['only the first of two counts', (folder) => makeGood(folder), ['--export-page', 'none', 'page.html', ...EXPORT], ['--seed-logo', 'none', ...SEED]],
];

async function checkRefusal([name, prepare, ...commands], number) {
  const folder = join(root, `refused-${number}`);
  mkdirSync(folder);
  prepare(folder);
  await demandRefused(folder, ...commands);
  return folder;
}

// The unbroken manifest must work, or the broken ones would prove nothing; exporting goes before seeding.
async function checkGood() {
  const folder = join(root, 'good');
  makeGood(folder);
  const bytes = () => readFileSync(join(folder, 'kit', 'manifest.json'));
  const before = bytes();
  await runQuietly(['other', ...SEED, '--else', ...EXPORT, 'more'], 0, { cwd: folder });
  demand(bytes().equals(before), 'exporting seeded as well');
  demand(readdirSync(folder).join() === 'kit,page.html', 'no page was made');
  const expected = seededText(parseBrand(before));
  const started = Date.now();
  await runQuietly(['other', ...SEED, 'more'], 0, { cwd: folder });
  demandSameBytes(bytes(), fillBlanks(expected, bytes().toString('utf8'), started), 'the seeded manifest');
  return folder;
}

function allChecks() {
  const broken = badManifests().map(([name, content]) => [name, (folder) => makeGood(folder, content), EXPORT, SEED]);
  const refusals = [...REFUSALS, ...broken];
  return [
    ['good package', checkGood],
    ...refusals.map((refusal, i) => [refusal[0], () => checkRefusal(refusal, i)]),
    ...Array.from({ length: count }, (_, i) => [`random package, seed ${firstSeed + i}`, () => checkRandom(firstSeed + i)]),
  ];
}

// Some workers share one list; the first failure stops them all and keeps its folder.
async function runAll(checks) {
  let next = 0, passed = 0, failed = 0;
  const work = async () => {
    while (next < checks.length && failed === 0) {
      const [name, check] = checks[next++];
      try {
        rmSync(await check(), { recursive: true });
        passed++;
      } catch (error) {
        if (failed++ === 0) console.error(`FAILED ${name}\n${error instanceof Mismatch ? error.message : error.stack}`);
      }
    }
  };
  await Promise.all(Array.from({ length: Math.max(1, Math.min(8, cpus().length)) }, work));
  return { passed, failed };
}

for (const folder of [home, temporary]) mkdirSync(folder);
const { passed, failed } = await runAll(allChecks());
const strays = [home, temporary].flatMap((folder) => snapshot(folder).map(([path]) => join(folder, path)));
if (strays.length > 0) console.error(`FAILED the program left ${strays.join(', ')}`);
if (failed === 0 && strays.length === 0) rmSync(root, { recursive: true });
else console.error(`kept in ${root}; first seed of this run ${firstSeed}`);
console.log(`${passed} passed, ${failed + (strays.length > 0 ? 1 : 0)} failed`);
process.exitCode = failed > 0 || strays.length > 0 ? 1 : 0;
