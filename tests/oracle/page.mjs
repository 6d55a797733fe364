// The brand page that a package must give, byte for byte. What is the same in all pages, the style sheet
// and what stands behind the footer, is known by its hash: clients compare pages that they kept.

import { createHash } from 'node:crypto';
import { readFileSync, realpathSync } from 'node:fs';
import { join, sep } from 'node:path';
import { parseBrand } from './manifest.mjs';

const SHARED_PARTS = '71ccbeb73e72dea99b904ae4e90a1fcf78f60618eef7deb46dba577a271468e4';

/** The style sheet, the footer's address and all behind the footer, if the page has the usual ones; else null. */
export function sharedParts(page) {
  const [, style] = /\n:root \{ --accent: .*?(; \}\n\*.*?)(?:@font-face \{|\n<\/style>)/s.exec(page) ?? [];
  const [, homePage] = /<footer>Made with <a href="([^"<>]*)" target="_blank"/.exec(page) ?? [];
  const tail = page.slice(page.lastIndexOf('</footer>\n') + '</footer>\n'.length);
  const isUsual = createHash('sha256').update(style + tail).digest('hex') === SHARED_PARTS;
  return isUsual && /^https?:\/\/[^\s/]+\S*$/.test(homePage ?? '') ? { style, homePage, tail } : null;
}

/** The whole page of the package in `folder`. */
export function pageText(folder, { style, homePage, tail }) {
  const brand = parseBrand(readFileSync(join(folder, 'manifest.json')));
  const count = brand.sections.length;
  return [
    '<!DOCTYPE html>\n<html lang="en">\n<head>\n<meta charset="utf-8">\n',
    '<meta name="viewport" content="width=device-width, initial-scale=1">\n',
    `<title>${escaped(brand.name)} — Brand</title>\n<style>\n:root { --accent: ${harmlessColor(brand.accentHex ?? '#111111')}`,
    style, fontFaces(brand, folder),
    '\n</style>\n</head>\n<body>\n<div class="wrap">\n  <header class="brand">\n    <div class="mark">',
    mark(brand, folder),
    `</div>\n    <div>\n      <h1>${escaped(brand.name)}</h1>\n`,
    `      <p class="tagline">Brand reference · ${count} section${count === 1 ? '' : 's'}</p>\n    </div>\n  </header>\n`,
    brand.sections.map((section) => sectionHTML(section, folder)).join('\n'),
    `\n  <footer>Made with <a href="${homePage}" target="_blank" rel="noopener">Tarn Loft</a>`,
    ' · click any color to copy its hex</footer>\n', tail,
  ].join('');
}

function escaped(text) {
  return text.replaceAll('&', '&amp;').replaceAll('<', '&lt;').replaceAll('>', '&gt;').replaceAll('"', '&quot;');
}

// Assets

const MIME_TYPES = {
  png: 'image/png', jpg: 'image/jpeg', jpeg: 'image/jpeg', gif: 'image/gif', webp: 'image/webp',
  svg: 'image/svg+xml', heic: 'image/heic', woff2: 'font/woff2', woff: 'font/woff', ttf: 'font/ttf',
  otf: 'font/otf', mp4: 'video/mp4', m4v: 'video/mp4', mov: 'video/quicktime', webm: 'video/webm',
};

// Only a plain file name counts, and a link must not lead out of the package.
function assetBytes(folder, name) {
  if (name === '' || name === '.' || name === '..' || /[/\0]/.test(name)) return null;
  try {
    const file = realpathSync(join(folder, 'assets', name));
    return file.startsWith(realpathSync(folder) + sep) ? readFileSync(file) : null;
  } catch {
    return null;
  }
}

function dataURL(folder, asset) {
  const bytes = asset ? assetBytes(folder, asset.filename) : null;
  if (bytes === null) return null;
  const extension = /\.([^.]*)$/.exec(asset.filename)?.[1].toLowerCase() ?? '';
  const type = Object.hasOwn(MIME_TYPES, extension) ? MIME_TYPES[extension] : 'application/octet-stream';
  return `data:${type};base64,${bytes.toString('base64')}`;
}

const download = (url, asset, label) => `<a href="${url}" download="${escaped(asset.originalName)}">${label}</a>`;

// Head

function mark(brand, folder) {
  const url = brand.emblem?.kind === 'image' ? dataURL(folder, brand.emblem.asset) : null;
  if (url !== null) return `<img alt="" src="${url}">`;
  const name = brand.name.replace(/^ +| +$/g, '');
  const [first] = new Intl.Segmenter('en', { granularity: 'grapheme' }).segment(name);
  return first ? escaped(first.segment.toUpperCase()) : '';
}

const harmlessFamily = (family) => [...family].filter((c) => !'<>='.includes(c)).join('');
const cssFamily = (family) => `"${harmlessFamily(family).replaceAll('"', '')}"`;

// The first font with a file speaks for its family, even if that file turns out to be unreadable.
function fontFaces(brand, folder) {
  const seen = new Set();
  const lines = [];
  for (const { payload } of brand.sections.flatMap((section) => section.items)) {
    const font = payload.font?.value;
    if (!font?.asset || seen.has(cssFamily(font.family))) continue;
    seen.add(cssFamily(font.family));
    const url = dataURL(folder, font.asset);
    if (url === null) continue;
    lines.push(`@font-face { font-family: ${cssFamily(font.family)}; src: url(${url}); font-display: swap; }`);
  }
  return lines.join('\n');
}

// Sections and items

function sectionHTML(section, folder) {
  const items = section.items.map((item) => itemHTML(item, folder)).join('\n');
  return `  <section class="band">\n    <h2>${escaped(section.name === '' ? 'Untitled Section' : section.name)}</h2>\n`
    + `    <div class="grid">\n${items}\n    </div>\n  </section>`;
}

function itemHTML({ payload, notes = [] }, folder) {
  const [[kind, value]] = Object.entries(payload);
  switch (kind) {
    case 'header': return `      <div class="full heading">${escaped(value.text)}</div>`;
    case 'text': return `      <div class="full textblock">${escaped(value.body)}</div>`;
    case 'code': return `      <div class="full"><pre class="code">${escaped(value.value.snippet)}</pre></div>`;
    case 'color': return colorHTML(value.value, notes);
    case 'gradient': return gradientHTML(value.value);
    case 'font': return fontHTML(value.value, folder);
    case 'logo': return logoHTML(value.value, folder, notes);
    default: return mediaHTML(kind, value, folder, notes);
  }
}

const MARKERS = {
  do: '<span class="do">✓</span>', dont: '<span class="dont">✕</span>', note: '<span class="info">•</span>',
};

function notesHTML(notes) {
  if (notes.length === 0) return '';
  return `<ul class="usage">${notes.map((note) => `<li>${MARKERS[note.kind]}${escaped(note.text)}</li>`).join('')}</ul>`;
}

function mediaHTML(kind, { asset, name }, folder, notes) {
  const label = escaped(name ?? asset.originalName);
  const url = dataURL(folder, asset);
  if (url === null) return `      <div class="asset"><div class="frame">${label}</div></div>`;
  const element = kind === 'image' ? `<img alt="${label}" src="${url}">` : `<video controls src="${url}"></video>`;
  return [
    '      <div class="asset">',
    `        <div class="frame">${element}</div>`,
    `        <div class="meta"><span>${label}</span>${download(url, asset, 'Download')}</div>`,
    `        ${notesHTML(notes)}`,
    '      </div>',
  ].join('\n');
}

function fontHTML({ family, weight, sampleText, asset }, folder) {
  const url = dataURL(folder, asset);
  const suffix = weight === undefined ? '' : ` · ${escaped(weight)}`;
  const link = url === null ? '' : ` · ${download(url, asset, 'Download font')}`;
  return [
    '      <div class="type full">',
    `        <div class="spec" style="font-family: ${cssFamily(family)}, system-ui;">`
      + `${escaped(sampleText || 'The quick brown fox jumps')}</div>`,
    `        <div class="label">${escaped(harmlessFamily(family))}${suffix}${link}</div>`,
    '      </div>',
  ].join('\n');
}

const ROLE_LABELS = {
  primary: 'Primary', secondary: 'Secondary', mono: 'Monochrome', reversed: 'Reversed', horizontal: 'Horizontal',
  stacked: 'Stacked', icon: 'Icon / Favicon', wordmark: 'Wordmark', emblem: 'Emblem',
};
const BACKGROUNDS = { white: 'background:#fff;', dark: 'background:#16161a;' };
const CHECKERBOARD = 'background: repeating-conic-gradient(#f4f4f6 0% 25%, #fff 0% 50%) 50% / 16px 16px;';

function variantHTML({ asset, role, background }, folder) {
  const url = dataURL(folder, asset);
  const name = escaped(asset.originalName);
  const image = url === null ? name : `<img alt="${name}" src="${url}">`;
  const link = url === null ? '' : download(url, asset, 'Download');
  return [
    '      <div class="logo-variant">',
    `        <div class="logo-frame" style="${BACKGROUNDS[background] ?? CHECKERBOARD}">${image}</div>`,
    `        <div class="logo-meta"><span class="role">${ROLE_LABELS[role]}</span>${link}</div>`,
    '      </div>',
  ].join('\n');
}

function logoHTML({ name, variants }, folder, notes) {
  return [
    '      <div class="full logo-set">',
    `        <div class="logo-title">${escaped(name)}</div>`,
    '        <div class="logo-grid">',
    variants.map((variant) => variantHTML(variant, folder)).join('\n'),
    '        </div>',
    `        ${notesHTML(notes)}`,
    '      </div>',
  ].join('\n');
}

// Colours

/** Red, green and blue from 0 to 1, or null for a text that is no colour. */
export function parseColor(text) {
  const digits = text.replace(/^\p{White_Space}+|\p{White_Space}+$/gu, '').replace(/^#/, '');
  if (!/^[+-]?[0-9A-Fa-f]+$/.test(digits)) return null;
  const value = parseInt(digits.replace(/^[+-]/, ''), 16);
  if (digits.startsWith('-') && value !== 0) return null;
  switch (digits.length) {
    case 8: return [24, 16, 8].map((shift) => ((value >>> shift) & 255) / 255);
    case 6: return [16, 8, 0].map((shift) => ((value >>> shift) & 255) / 255);
    case 3: return [8, 4, 0].map((shift) => ((value >>> shift) & 15) / 15);
    default: return null;
  }
}

/** The nearest whole number in decimal, halves away from zero. */
export const rounded = (x) => String(BigInt(x < 0 ? -Math.round(-x) : Math.round(x)));

export function cmyk([r, g, b]) {
  const k = 1 - Math.max(r, g, b);
  if (k >= 1) return ['0', '0', '0', '100'];
  return [...[r, g, b].map((x) => rounded((1 - x - k) / (1 - k) * 100)), rounded(k * 100)];
}

const linear = (x) => (x <= 0.03928 ? x / 12.92 : ((x + 0.055) / 1.055) ** 2.4);

export function grade(color) {
  const [r, g, b] = color.map(linear);
  const luminance = 0.2126 * r + 0.7152 * g + 0.0722 * b;
  const ratio = Math.max(1.05 / (luminance + 0.05), (luminance + 0.05) / 0.05);
  return ratio >= 7 ? 'AAA' : ratio >= 4.5 ? 'AA' : ratio >= 3 ? 'AA Large' : 'Fail';
}

// Printed as it stands, within a script's quotes too: so neither quotes nor what browsers read as such.
function harmlessColor(text) {
  let rest = [...text].filter((c) => !'<>="\''.includes(c)).join('');
  for (let last; last !== rest;) {
    last = rest;
    rest = rest.replace(/&(#|quot|apos|lt|gt)/gi, '$1');
  }
  return rest;
}

function colorHTML({ hex, name, spot }, notes) {
  const H = harmlessColor(hex.toUpperCase());
  const color = parseColor(H);
  const badge = color ? `<span class="badge">${grade(color)}</span>` : '';
  return [
    `      <div class="swatch" onclick="copyHex('${H}')" title="Click to copy ${H}">`,
    `        <div class="chip" style="background: ${H}"></div>`,
    '        <div class="meta">',
    `          <div class="name">${escaped(name ?? H)}${badge}</div>`,
    `          <div class="val"><code>${H}</code></div>`,
    `          <div class="val">${color ? `rgb(${color.map((x) => rounded(x * 255)).join(', ')})` : ''}</div>`,
    `          <div class="val">${color ? `CMYK ${cmyk(color).join(' ')}` : ''}</div>`,
    `          ${spot ? `<div class="val spot">${escaped(spot)}</div>` : ''}`,
    '        </div>',
    `        ${notesHTML(notes)}`,
    '      </div>',
  ].join('\n');
}

export function gradientCSS({ stops, angle }) {
  const sorted = [...stops].sort((a, b) => a.location - b.location);
  const parts = sorted.map(({ hex, location }) => `${harmlessColor(hex.toUpperCase())} ${rounded(location * 100)}%`);
  return `linear-gradient(${rounded(angle)}deg, ${parts.join(', ')})`;
}

function gradientHTML(gradient) {
  const label = escaped(gradient.name ?? 'Gradient');
  const css = gradientCSS(gradient);
  return [
    `      <div class="swatch" title="${label}">`,
    `        <div class="chip" style="background: ${css}"></div>`,
    `        <div class="meta"><div class="name">${label}</div><div class="val">${escaped(css)}</div></div>`,
    '      </div>',
  ].join('\n');
}
