// Random packages: the same seed gives the same package, so that a failure can be made again.

import { mkdirSync, symlinkSync, writeFileSync } from 'node:fs';
import { basename, dirname, join } from 'node:path';
import { RECORDS, canonicalText, numberText, partsOf } from './manifest.mjs';

export function randomFrom(seed) {
  let state = Math.imul(seed + 1, 0x9e3779b1) || 1;
  const float = () => {
    state ^= state << 13;
    state ^= state >>> 17;
    state ^= state << 5;
    return (state >>> 0) / 2 ** 32;
  };
  for (let i = 0; i < 16; i++) float();
  const int = (n) => Math.floor(float() * n);
  return {
    float, int,
    chance: (p) => float() < p,
    pick: (list) => list[int(list.length)],
    times: (n, make) => Array.from({ length: n }, (_, i) => make(i)),
    shuffle: (list) => list.map((x) => [float(), x]).sort(([a], [b]) => a - b).map(([, x]) => x),
  };
}

const uuid = (rng) => [8, 4, 4, 4, 12].map((n) => rng.times(n, () => rng.pick([...'0123456789ABCDEF'])).join('')).join('-');

// Texts

const PIECES = [
  'Acme', 'Brand Blue', 'x', ' ', '"', "'", '&', '&amp;', '<b>', '>', '</style>', '\\', '\\n', '/', '\n', '\r\n', '\t',
  '\0', '\x01', '\b\f', '\x1f', '\u00a0', '\u200b', '\u2028', '\u2029', '\ufeff', '\uffff', 'é', 'e\u0301', '\u0301', 'ß', 'ﬁ',
  'ŉ', 'ǆ', 'Straße', 'İı', 'Ω', 'Жук', 'שלום', 'مرحبا', '\u202eabc', '漢字', '한', '👍🏽', '👩‍👩‍👧‍👦', '🏳️‍🌈', '🇩🇪🇫🇷',
  '1️⃣', '❤️', '🏴\u{e0067}\u{e0062}\u{e0065}\u{e006e}\u{e0067}\u{e007f}', '\u{10ffff}', '𝒳', '$&', '%1', '%s', '{{', '-->',
];

function text(rng) {
  const start = rng.chance(0.1) ? '\ufeff' : '';
  return start + rng.times(rng.int(4), () => rng.pick(PIECES)).join('');
}

// Which blanks besides the space are trimmed from a name is not settled, so none stands first.
function brandName(rng) {
  const names = ['', '   ', '\nAcme', '  \r\nAcme', 'Acme\n', '  acme ', ' \n ', '\0', '👩‍👩‍👧‍👦 x', '🇩🇪🇫🇷', '"q"'];
  if (rng.chance(0.15)) return rng.pick(names);
  const name = text(rng);
  return /^ *[\t\u00a0\u200b\u2028\u2029]/.test(name) ? `n${name}` : name;
}

const HEXES = [
  '#4C6FFF', '#abc', 'fff', '#123456', '#00000080', '4c6fff80', '#000', '#777777', '#767676', '+FF', '#+FF', '-00', '-01', '-00000',
  '+0A0B0', '-0000000', '+FFFFFFF', '+', '#', '', '##FFF', 'nope', ' #abc\n', '\u3000#ABC\u2028', '\u00a0fff', '\ufeff#fff', '# FF', '#\nFFF',
  '#1234', '0xF', '0x1234', '#12345G', '１２３', '#FFFFFFFFFFFFFFFFFF', '#fff\0', 'red', '"><b>', "');x('", 'straße', '&amp;', '1e5', '1_0',
  '#fff\');run()//', '#FFF&#39;);x(', '&=#x27;', '&&##34;', '&quo"t', '&&l>t&gẗ', '</style><script>run()</script>', 'red" onclick="run()',
];

const hex = (rng) => (rng.chance(0.5) ? rng.pick(HEXES)
  : '#' + rng.times(rng.pick([3, 6, 6, 8]), () => rng.pick([...'0123456789abcdefABCDEF'])).join(''));

// Numbers that the page can print; the extreme ones only ever pass through a manifest.
const LOCATIONS = [0, 1, 0.5, 0.5, -0, 0.285, 0.005, -0.005, 0.125, 1 / 3, 0.1 + 0.2, 2.5, -0.25, 1e-4, 9.9e-5, 1e-7, 5e-324, 1e15,
  9999999999999998 / 100, 4503599627370497.5 / 1024];
const ANGLES = [0, 90, 45.5, 44.5, -0.5, -0.49, -90, -1.5, 0.49999999999999994, 359.6, 720.25, 1e6 + 0.5, -123456789.5, 9007199254740991, 2 ** 57, 1e-5];
const EXTREMES = [1e16, -1e17, 1e20, 1e21, 1.7976931348623157e308, -1e300, 2.2250738585072014e-308, 1e-300, 123456789012345680000];

function double(rng, usual, wild) {
  if (wild && rng.chance(0.4)) return rng.pick(EXTREMES);
  return rng.chance(0.6) ? rng.pick(usual) : (rng.float() - 0.5) * 10 ** (rng.int(34) - 19);
}

// Files

const EXTENSIONS = ['.png', '.PNG', '.jpg', '.JPEG', '.gif', '.webp', '.Svg', '.heic', '.woff2', '.woff', '.ttf', '.OTF', '.mp4', '.m4v',
  '.MOV', '.webm', '.tar.gz', '.xyz', '.png ', '.', '', ' é\\\'"&.png', ' e\u0301.png'];
const HOSTILE_NAMES = ['', '.', '..', '../decoy.png', '../manifest.json', 'nested/inner.png', './plain.png', 'plain.png/', 'nested',
  'plain.png\0', '\0', '../../outside.png', 'x'.repeat(300) + '.png', '~', '%2e%2e', 'plain.png?x', 'missing.png'];

/** Returns a maker of asset references, most of them with a file behind them, some with a trap. */
function assetMaker(folder, rng) {
  const assets = join(folder, 'assets');
  const besides = `${folder}-copy`;
  const good = ['plain.png'];
  const bytes = () => Buffer.from(rng.times(rng.pick([0, 1, 2, 3, 4, 100, 1000, 5000]) + rng.int(3), () => rng.int(256)));
  const fresh = () => uuid(rng) + rng.pick(EXTENSIONS);
  const link = (target) => {
    const name = fresh();
    symlinkSync(target, join(assets, name));
    return name;
  };

  for (const made of [join(assets, 'nested'), besides]) mkdirSync(made, { recursive: true });
  for (const file of ['decoy.png', '../outside.png', 'assets/plain.png', 'assets/nested/inner.png', `../${basename(besides)}/near.png`]) {
    writeFileSync(join(folder, file), bytes());
  }

  const file = () => {
    const name = fresh();
    writeFileSync(join(assets, name), bytes());
    good.push(name);
    return name;
  };
  const folderInPlace = () => {
    const name = fresh();
    mkdirSync(join(assets, name));
    return name;
  };
  const traps = [
    fresh,
    () => rng.pick(HOSTILE_NAMES),
    folderInPlace,
    () => link(rng.pick(['../../outside.png', join(dirname(folder), 'outside.png'), `../../${basename(besides)}/near.png`])),
    () => link(link('../../outside.png')),
    () => link(rng.pick(['gone.png', 'nested', '..', '.'])),
    () => link(rng.pick(['nested/inner.png', '../decoy.png', '../manifest.json', join(folder, 'decoy.png'), ...good])),
    () => link(link(rng.pick(good))),
  ];
  return () => ({
    filename: rng.chance(0.6) ? file() : rng.chance(0.3) ? rng.pick(good) : rng.pick(traps)(),
    originalName: rng.chance(0.5) ? text(rng) : 'Mark.png',
  });
}

// Records

const ROLES = ['primary', 'secondary', 'mono', 'reversed', 'horizontal', 'stacked', 'icon', 'wordmark', 'emblem'];
const FAMILIES = ['Inter', 'Inter', 'inter', 'In"ter', '"Inter"', '', 'Noto Sans', '<Serif>', "O'Font", 'Sans" onfocus=run() autofocus x="', '</style><script>',
  'Noto >Sans=', 'AT&T', '&lt;b&gt;'];

function makeBrand(folder, rng, { wild, images }) {
  const asset = assetMaker(folder, rng);
  const id = () => uuid(rng);
  const some = (key, make, p = 0.5) => (rng.chance(p) ? { [key]: make() } : {});
  const words = () => text(rng);
  const background = () => rng.pick(['white', 'dark', 'checkerboard']);
  const level = () => rng.pick([1, 2, 3, 0, -1, 1000000]);
  const date = () => new Date(rng.int(4e9) * 1000).toISOString().replace('.000', '');

  const emblem = () => ({
    kind: rng.pick(['symbol', 'emoji', 'color', 'image', 'image', 'none']),
    ...some('symbolName', () => 'star.fill'), ...some('emoji', () => '👩‍👩‍👧‍👦'), ...some('colorHex', () => hex(rng)),
    ...some('asset', asset, 0.7),
  });
  const note = () => ({ id: id(), kind: rng.pick(['do', 'dont', 'note']), text: words() });
  const stop = () => ({ id: id(), hex: hex(rng), location: rng.chance(0.3) ? 0.5 : double(rng, LOCATIONS, wild) });
  const stops = () => rng.times(rng.pick([0, 1, 2, 3, 4, 40]), stop);  // many, as short lists sort stably by luck
  const variant = () => ({ id: id(), asset: asset(), role: rng.pick(ROLES), ...some('background', background) });
  const font = () => ({
    family: rng.chance(0.8) ? rng.pick(FAMILIES) : words(),
    ...some('weight', words), ...some('sampleText', words), ...some('asset', asset, 0.8), ...some('name', words),
  });
  const payloads = {
    header: () => ({ text: words(), level: level() }),
    text: () => ({ body: words() }),
    color: () => ({ value: { hex: hex(rng), ...some('name', words), ...some('spot', words) } }),
    gradient: () => ({ value: { stops: stops(), angle: double(rng, ANGLES, wild), ...some('name', words) } }),
    image: () => ({ asset: asset(), ...some('name', words) }),
    video: () => ({ asset: asset(), ...some('name', words) }),
    font: () => ({ value: font() }),
    code: () => ({ value: { language: words(), snippet: words(), ...some('name', words) } }),
    logo: () => ({ value: { name: words(), variants: rng.times(rng.int(4), variant) } }),
  };
  const item = (kind) => ({
    id: id(), payload: { [kind]: payloads[kind]() },
    ...some('imageBackground', background, 0.2), ...some('notes', () => rng.times(1 + rng.int(3), note), 0.3),
  });

  const kinds = [...Object.keys(payloads), 'color', 'color', 'color'].filter((kind) => kind !== 'image');
  const items = () => rng.times(rng.int(7), () => item(rng.pick(kinds)));
  const section = () => ({ id: id(), name: words(), ...some('emblem', emblem, 0.3), items: items() });
  const sections = rng.times(rng.pick([0, 1, 1, 2, 3, 4, 5]), section);
  const add = (made) => sections.length > 0 && rng.pick(sections).items.push(made);
  rng.times(images, () => add(item('image')));
  return {
    id: id(), name: brandName(rng), ...some('emblem', emblem, 0.6),
    ...some('accentHex', () => hex(rng)), ...some('accentHexDark', () => hex(rng)),
    createdAt: date(), updatedAt: date(), schemaVersion: rng.pick([1, 1, 0, 2, -7]), sections,
  };
}

// Loose text: another order, other spacing, other spellings and keys nobody knows

const STRANGE_KEYS = ['x-vendor', 'Name', 'ID', '', 'é', 'version 2', 'Color', 'null', 'a/b', '\u0000'];
const STRANGE_VALUES = [
  'null', 'true', '[]', '{}', '-1.5e-3', '"\\ud83d\\ude00 \\/"', '[1, {"a": [null, ""]}]', '123456789012345678901234567890',
];

function looseString(value, rng) {
  const share = rng.pick([0, 0, 0.3]);
  const unicode = (unit) => '\\u' + rng.pick([(s) => s, (s) => s.toUpperCase()])(unit.charCodeAt(0).toString(16).padStart(4, '0'));
  const spelled = Array.from(value, (c) => {
    if (rng.chance(share)) return c.split('').map(unicode).join('');
    return c === '/' && rng.chance(0.5) ? '\\/' : JSON.stringify(c).slice(1, -1);
  });
  return `"${spelled.join('')}"`;
}

function looseNumber(x, kind, rng) {
  if (Object.is(x, -0)) return rng.pick(['-0', '-0.0', '-0e5', '0']);
  const whole = Number.isInteger(x) && Math.abs(x) < 1e40;
  const digits = whole ? String(BigInt(x)) : numberText(x);
  if (kind === 'int') return rng.pick([digits, `${digits}.0`]);
  const scientific = x.toExponential();
  const padded = scientific.replace('e', '0E').replace(/^(-?\d)0E/, '$1.0E');
  return rng.pick([digits, numberText(x), scientific, padded, whole ? `${digits}.00` : digits]);
}

function looseText(kind, value, rng, gap) {
  if (kind === 'text') return looseString(value, rng);
  if (kind === 'int' || kind === 'double') return looseNumber(value, kind, rng);
  const entries = Object.entries(RECORDS[kind]).flatMap(([key, shape]) => {
    const field = partsOf(shape);
    if (!(key in value)) return field.optional && rng.chance(0.3) ? [[key, 'null']] : [];
    const spell = (element) => looseText(field.kind, element, rng, gap);
    if (!field.list) return [[key, spell(value[key])]];
    return [[key, `[${gap()}${value[key].map(spell).join(`${gap()},${gap()}`)}${gap()}]`]];
  });
  if (rng.chance(0.2)) entries.push([rng.pick(STRANGE_KEYS), rng.pick(STRANGE_VALUES)]);
  const lines = rng.shuffle(entries).map(([key, spelled]) => `${gap()}${looseString(key, rng)}${gap()}:${gap()}${spelled}${gap()}`);
  return `{${lines.join(',') || gap()}}`;
}

/** Makes a package at `folder`. A few hold numbers that a page can't print. */
export function writePackage(folder, rng) {
  const wild = rng.chance(0.08);
  const images = rng.pick([0, 1, 1, 2, 3, 6]);
  const brand = makeBrand(folder, rng, { wild, images });
  const gaps = rng.pick([[''], [' ', '', '\n', '\t', '\r\n  '], ['\n    ']]);
  const gap = () => rng.pick(gaps);
  const manifest = rng.chance(0.4) ? canonicalText(brand) : gap() + looseText('Brand', brand, rng, gap) + gap();
  writeFileSync(join(folder, 'manifest.json'), manifest);
}
