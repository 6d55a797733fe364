// Manifests that must not load, each made from one good manifest by a single change.

import { RECORDS, partsOf } from './manifest.mjs';

const id = (n) => `2A1F6C3E-9B4D-4E7A-8F10-3C5D7E9A1B${String(n).padStart(2, '0')}`;
const asset = { filename: 'plain.png', originalName: 'Mark.png' };

// Every record and every optional enumeration stands here once.
export const GOOD = {
  id: id(0), name: 'Acme', emblem: { kind: 'image', asset }, createdAt: '2026-03-01T09:30:00Z', updatedAt: '2026-03-01T09:41:12Z',
  schemaVersion: 1,
  sections: [{
    id: id(1), name: 'All', emblem: { kind: 'none' },
    items: [
      { id: id(2), imageBackground: 'dark', payload: { image: { asset } } },
      { id: id(3), payload: { header: { text: 'Head', level: 1 } } },
      { id: id(4), payload: { text: { body: 'Body' } } },
      { id: id(5), notes: [{ id: id(6), kind: 'do', text: 'Use it.' }], payload: { color: { value: { hex: '#123456' } } } },
      { id: id(7), payload: { gradient: { value: { angle: 90, stops: [{ id: id(8), hex: '#FFF', location: 0.5 }] } } } },
      { id: id(9), payload: { video: { asset } } },
      { id: id(10), payload: { font: { value: { family: 'Inter', asset } } } },
      { id: id(11), payload: { code: { value: { language: 'css', snippet: 'a {}' } } } },
      { id: id(12), payload: { logo: { value: {
        name: 'Logo', variants: [{ id: id(13), asset, role: 'icon', background: 'white' }] } } } },
    ],
  }],
};

// Every required key of every record in the value, as a function from the value to its holder.
function requiredPlaces(record, value, find = (root) => root) {
  return Object.entries(RECORDS[record]).flatMap(([key, shape]) => {
    const { kind, list, optional } = partsOf(shape);
    const inside = !(key in value) || !RECORDS[kind] ? []
      : list ? value[key].flatMap((element, i) => requiredPlaces(kind, element, (root) => find(root)[key][i]))
        : requiredPlaces(kind, value[key], (root) => find(root)[key]);
    const needed = key in value && !optional;
    return needed ? [{ name: `${record}.${key}`, key, kind, list, find }, ...inside] : inside;
  });
}

const changed = (change) => {
  const brand = structuredClone(GOOD);
  change(brand);
  return JSON.stringify(brand);
};

function wrongType({ kind, list }) {
  if (list) return {};
  return { text: 5, int: '1', double: '0.5' }[kind] ?? [];
}

function brokenPlaces() {
  return requiredPlaces('Brand', GOOD).flatMap((place) => {
    const { name, key, find } = place;
    return [
      [`${name} missing`, changed((brand) => { delete find(brand)[key]; })],
      [`${name} null`, changed((brand) => { find(brand)[key] = null; })],
      [`${name} of another type`, changed((brand) => { find(brand)[key] = wrongType(place); })],
    ];
  });
}

function brokenValues() {
  const items = (brand) => brand.sections[0].items;
  const payload = (value) => changed((brand) => { items(brand)[3].payload = value; });
  const color = { value: { hex: '#FFF' } };
  return [
    ['emblem kind', changed((brand) => { brand.emblem.kind = 'star'; })],
    ['image background', changed((brand) => { items(brand)[0].imageBackground = 'none'; })],
    ['note kind by its case name', changed((brand) => { items(brand)[3].notes[0].kind = 'doRule'; })],
    ['role in capitals', changed((brand) => { items(brand)[8].payload.logo.value.variants[0].role = 'Icon'; })],
    ['variant background', changed((brand) => { items(brand)[8].payload.logo.value.variants[0].background = 'blue'; })],
    ['accent of another type', changed((brand) => { brand.accentHex = 5; })],
    ...['', 'nope', `{${id(1)}}`, id(1).replaceAll('-', ''), id(1).replace('A', 'G')].map((bad) =>
      [`identity "${bad}"`, changed((brand) => { brand.id = bad; })]),
    ...['', 'yesterday', '2026-03-01T09:30:00.5Z', '2026-03-01T09:30:00.000Z', 5].map((bad) =>
      [`date "${bad}"`, changed((brand) => { brand.createdAt = bad; })]),
    ['no payload key', payload({})],
    ['only an unknown payload key', payload({ palette: color })],
    ['payload key in another case', payload({ Color: color })],
    ['two payload keys', payload({ color, text: { body: '' } })],
    ['two payload keys, one null', payload({ color, text: null })],
    ['payload as a list', payload([{ color }])],
    ['payload as a text', payload('color')],
  ];
}

// Puts text or bytes that no serialiser would make in a value's place.
function spliced(change, raw) {
  const [before, after] = changed(change).split('"@"');
  return Buffer.concat([before, raw, after].map((part) => Buffer.from(part)));
}

function brokenTexts() {
  const name = (brand) => { brand.name = '@'; };
  const level = (brand) => { brand.sections[0].items[1].payload.header.level = '@'; };
  const stop = (brand) => { brand.sections[0].items[4].payload.gradient.value.stops[0].location = '@'; };
  const extra = (brand) => { brand.extra = '@'; };
  const bytes = (...values) => Buffer.from([0x22, 0x61, ...values, 0x22]);
  const lists = '['.repeat(100000);
  const objects = '{"a":'.repeat(100000);
  return [
    ...['"\\ud800"', '"\\ud800x"', '"\\udc00\\ud800"', '"\\ud83d\\u0041"', '"\\x41"', '"\\u12G4"', '"a\nb"', '"a\tb"', "'a'", '"a', 'Acme']
      .map((raw) => [`name as ${raw}`, spliced(name, raw)]),
    ...[[0xff], [0xc0, 0xaf], [0xed, 0xa0, 0x80], [0xe2, 0x82], [0xf4, 0x90, 0x80, 0x80], [0x80]]
      .map((raw) => [`name with bytes ${raw}`, spliced(name, bytes(...raw))]),
    ...['1.5', '1e30', '9223372036854775808', '-9223372036854775809', '1e400', 'true', '01', '+1', '.5', '1.', '1e', '0x10', '-',
      'NaN', '[1]'].map((raw) => [`level as ${raw}`, spliced(level, raw)]),
    ...['1e400', '-1e400', `1${'0'.repeat(400)}`, 'Infinity', 'NaN', 'false', '"0.5"']
      .map((raw) => [`location as ${raw.slice(0, 20)}`, spliced(stop, raw)]),
    ...['undefined', '[1,]', '{"a":1,}', '{a:1}', '1 // one', '/**/1', '[1 2]', '{"a" 1}', 'tru', lists, objects,
      lists + ']'.repeat(100000), objects + '1' + '}'.repeat(100000)]
      .map((raw) => [`extra as ${raw.slice(0, 20)}, length ${raw.length}`, spliced(extra, raw)]),
  ];
}

function brokenFiles() {
  const good = JSON.stringify(GOOD);
  const lists = '['.repeat(100000);
  return [
    ...['', ' ', '\n', '\0', 'null', '[]', '{}', '5', '""', `[${good}]`, `${good}x`, `${good},`, `${good}${good}`, `${good}\0`, good.slice(1),
      lists, lists + ']'.repeat(100000)].map((file) => [`file ${JSON.stringify(file.slice(0, 20))}, length ${file.length}`, file]),
    ...[1, 2, 100, good.length >> 1, good.length - 2, good.length - 1].map((size) => [`cut to ${size} bytes`, good.slice(0, size)]),
    ['byte-order mark', `\ufeff${good}`],
  ];
}

/** Pairs of a name and the manifest's content. */
export const badManifests = () => [...brokenPlaces(), ...brokenValues(), ...brokenTexts(), ...brokenFiles()];
