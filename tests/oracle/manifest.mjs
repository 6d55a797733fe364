// What a manifest holds and the exact text it is saved as.

// The keys of every record. A shape names a plain value or a record; "[]" marks a list and "?" an
// optional key. A payload has exactly one of its keys, which is why none of them is marked.
export const RECORDS = {
  Brand: { id: 'text', name: 'text', emblem: 'Emblem?', accentHex: 'text?', accentHexDark: 'text?',
    createdAt: 'text', updatedAt: 'text', schemaVersion: 'int', sections: 'Section[]' },
  Section: { id: 'text', name: 'text', emblem: 'Emblem?', items: 'Item[]' },
  Emblem: { kind: 'text', symbolName: 'text?', emoji: 'text?', colorHex: 'text?', asset: 'AssetRef?' },
  AssetRef: { filename: 'text', originalName: 'text' },
  Item: { id: 'text', payload: 'Payload', imageBackground: 'text?', notes: 'UsageNote[]?' },
  UsageNote: { id: 'text', kind: 'text', text: 'text' },
  Payload: { header: 'Header', text: 'Text', color: 'Color', gradient: 'Gradient', image: 'File', video: 'File',
    font: 'Font', code: 'Code', logo: 'Logo' },
  Header: { text: 'text', level: 'int' },
  Text: { body: 'text' },
  File: { asset: 'AssetRef', name: 'text?' },
  Color: { value: 'ColorValue' },
  Gradient: { value: 'GradientValue' },
  Font: { value: 'FontValue' },
  Code: { value: 'CodeValue' },
  Logo: { value: 'LogoValue' },
  ColorValue: { hex: 'text', name: 'text?', spot: 'text?' },
  GradientValue: { stops: 'GradientStop[]', angle: 'double', name: 'text?' },
  GradientStop: { id: 'text', hex: 'text', location: 'double' },
  FontValue: { family: 'text', weight: 'text?', sampleText: 'text?', asset: 'AssetRef?', name: 'text?' },
  CodeValue: { language: 'text', snippet: 'text', name: 'text?' },
  LogoValue: { name: 'text', variants: 'LogoVariant[]' },
  LogoVariant: { id: 'text', asset: 'AssetRef', role: 'text', background: 'text?' },
};

/** "UsageNote[]?" as its parts. */
export function partsOf(shape) {
  return { kind: shape.replace(/[[\]?]/g, ''), list: shape.includes('['), optional: shape.endsWith('?') };
}

/** The record with only the keys it knows, and no nulls. */
export function known(record, value) {
  const result = {};
  for (const [key, shape] of Object.entries(RECORDS[record])) {
    if (!Object.hasOwn(value, key) || value[key] === null) continue;
    const { kind, list } = partsOf(shape);
    const clean = (field) => (RECORDS[kind] ? known(kind, field) : field);
    result[key] = list ? value[key].map(clean) : clean(value[key]);
  }
  return result;
}

/** True if the record holds keys that it doesn't know, at any depth. */
export function holdsUnknown(record, value) {
  return Object.entries(value).some(([key, field]) => {
    if (!Object.hasOwn(RECORDS[record], key)) return true;
    const { kind, list } = partsOf(RECORDS[record][key]);
    if (!RECORDS[kind] || field === null) return false;
    return (list ? field : [field]).some((one) => holdsUnknown(kind, one));
  });
}

/** True if a save by this program would lose what another one has written. */
export function isOfNewerProgram(bytes) {
  const brand = JSON.parse(bytes.toString('utf8'));
  return brand.schemaVersion !== 1 || holdsUnknown('Brand', brand);
}

export function parseBrand(bytes) {
  return known('Brand', JSON.parse(bytes.toString('utf8')));
}

/** Shortest digits that read back as the same number: plain from 1e-4 up to 1e16, else scientific. */
export function numberText(x) {
  const size = Math.abs(x);
  if (size === 0) return '0';
  if (size >= 1e-4 && size < 1e16) return String(x);
  return x.toExponential().replace(/e([+-])(\d)$/, 'e$10$2');
}

const SHORT_ESCAPES = { '"': '\\"', '\\': '\\\\', '/': '\\/', '\b': '\\b', '\f': '\\f', '\n': '\\n', '\r': '\\r', '\t': '\\t' };

function quoted(text) {
  const escape = (c) => SHORT_ESCAPES[c] ?? '\\u' + c.charCodeAt(0).toString(16).padStart(4, '0');
  return '"' + text.replace(/[\u0000-\u001f"\\/]/g, escape) + '"';
}

export function canonicalText(value, indent = '') {
  if (typeof value === 'string') return quoted(value);
  if (typeof value === 'number') return numberText(value);
  const inner = indent + '  ';
  const list = Array.isArray(value);
  const lines = list
    ? value.map((element) => inner + canonicalText(element, inner))
    : Object.keys(value).sort().map((key) => `${inner}${quoted(key)} : ${canonicalText(value[key], inner)}`);
  const [open, close] = list ? '[]' : '{}';
  return `${open}\n${lines.join(',\n')}\n${indent}${close}`;
}
