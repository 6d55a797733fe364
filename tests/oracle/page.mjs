// The brand page that a package must give, byte for byte.

import { readFileSync, realpathSync } from 'node:fs';
import { join, sep } from 'node:path';
import { parseBrand } from './manifest.mjs';

/** The whole page of the package in `folder`; `homePage` is the address behind the footer's link. */
export function pageText(folder, homePage) {
  const brand = parseBrand(readFileSync(join(folder, 'manifest.json')));
  const count = brand.sections.length;
  return [
    '<!DOCTYPE html>\n<html lang="en">\n<head>\n<meta charset="utf-8">\n',
    '<meta name="viewport" content="width=device-width, initial-scale=1">\n',
    `<title>${escaped(brand.name)} — Brand</title>\n<style>\n:root { --accent: ${brand.accentHex ?? '#111111'}`,
    STYLE, fontFaces(brand, folder),
    '\n</style>\n</head>\n<body>\n<div class="wrap">\n  <header class="brand">\n    <div class="mark">',
    mark(brand, folder),
    `</div>\n    <div>\n      <h1>${escaped(brand.name)}</h1>\n`,
    `      <p class="tagline">Brand reference · ${count} section${count === 1 ? '' : 's'}</p>\n    </div>\n  </header>\n`,
    brand.sections.map((section) => sectionHTML(section, folder)).join('\n'),
    `\n  <footer>Made with <a href="${homePage}" target="_blank" rel="noopener">Tarn Loft</a>`,
    ' · click any color to copy its hex</footer>\n', TAIL,
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

const cssFamily = (family) => `"${family.replaceAll('"', '')}"`;

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
    `        <div class="label">${escaped(family)}${suffix}${link}</div>`,
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

function colorHTML({ hex, name, spot }, notes) {
  const H = hex.toUpperCase();
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
  const parts = sorted.map(({ hex, location }) => `${hex.toUpperCase()} ${rounded(location * 100)}%`);
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

// Fixed text

const STYLE = `; }
* { box-sizing: border-box; }
body {
  margin: 0; background: #fbfbfd; color: #16161a;
  font-family: -apple-system, BlinkMacSystemFont, "Segoe UI", Roboto, Helvetica, Arial, sans-serif;
  -webkit-font-smoothing: antialiased;
}
.wrap { max-width: 980px; margin: 0 auto; padding: 64px 28px 96px; }
header.brand { display: flex; align-items: center; gap: 18px; margin-bottom: 8px; }
header.brand .mark { width: 56px; height: 56px; border-radius: 14px; background: var(--accent);
  display: flex; align-items: center; justify-content: center; color: #fff; font-weight: 700; font-size: 26px; overflow: hidden; }
header.brand .mark img { width: 100%; height: 100%; object-fit: cover; }
h1 { font-size: 40px; letter-spacing: -0.02em; margin: 0; }
.tagline { color: #6b6b76; margin: 4px 0 0; }
section.band { margin-top: 56px; }
section.band > h2 { font-size: 13px; text-transform: uppercase; letter-spacing: 0.08em; color: #8a8a93;
  border-bottom: 1px solid #ececf0; padding-bottom: 10px; margin: 0 0 22px; }
.grid { display: grid; grid-template-columns: repeat(auto-fill, minmax(180px, 1fr)); gap: 20px; }
.swatch { border: 1px solid #ececf0; border-radius: 14px; overflow: hidden; background: #fff; cursor: pointer;
  transition: transform .08s ease, box-shadow .12s ease; }
.swatch:hover { transform: translateY(-2px); box-shadow: 0 8px 24px rgba(0,0,0,.08); }
.swatch .chip { height: 92px; }
.swatch .meta { padding: 11px 13px 13px; }
.swatch .name { font-weight: 600; font-size: 14px; }
.swatch .val { font-size: 12px; color: #6b6b76; font-variant-numeric: tabular-nums; margin-top: 2px; }
.swatch .val code { font: inherit; }
.swatch .val.spot { color: var(--accent); font-weight: 600; }
ul.usage { list-style: none; margin: 0; padding: 10px 13px 12px; border-top: 1px solid #ececf0; font-size: 12px; }
ul.usage li { display: flex; gap: 7px; align-items: flex-start; line-height: 1.4; margin-top: 4px; color: #4a4a52; }
ul.usage li:first-child { margin-top: 0; }
ul.usage .do { color: #1a8f3c; font-weight: 800; }
ul.usage .dont { color: #d13438; font-weight: 800; }
ul.usage .info { color: #8a8a93; font-weight: 800; }
.badge { display: inline-block; font-size: 10px; font-weight: 700; padding: 1px 6px; border-radius: 20px;
  background: #eef0f3; color: #4a4a52; margin-left: 6px; }
.asset { border: 1px solid #ececf0; border-radius: 14px; background:
  repeating-conic-gradient(#f4f4f6 0% 25%, #fff 0% 50%) 50% / 18px 18px; overflow: hidden; }
.asset .frame { height: 150px; display: flex; align-items: center; justify-content: center; padding: 14px; }
.asset img, .asset video { max-width: 100%; max-height: 100%; object-fit: contain; }
.asset .meta { padding: 10px 13px; background: #fff; border-top: 1px solid #ececf0; display: flex; justify-content: space-between; align-items: center; }
.asset .meta a { font-size: 12px; color: var(--accent); text-decoration: none; font-weight: 600; }
.type { border: 1px solid #ececf0; border-radius: 14px; background: #fff; padding: 20px 22px; }
.type .spec { font-size: 40px; line-height: 1.1; margin-bottom: 8px; }
.type .label { font-size: 13px; color: #6b6b76; }
.type .label a { color: var(--accent); text-decoration: none; font-weight: 600; }
pre.code { background: #14141a; color: #e6e6ea; border-radius: 14px; padding: 16px 18px; overflow: auto;
  font: 13px/1.5 ui-monospace, SFMono-Regular, Menlo, monospace; }
.textblock { font-size: 16px; line-height: 1.6; color: #33333a; max-width: 68ch; }
.heading { font-size: 22px; font-weight: 700; letter-spacing: -0.01em; }
.full { grid-column: 1 / -1; }
.logo-set { border: 1px solid #ececf0; border-radius: 14px; background: #fff; padding: 20px 22px; }
.logo-title { font-weight: 700; font-size: 16px; margin-bottom: 14px; }
.logo-grid { display: grid; grid-template-columns: repeat(auto-fill, minmax(150px, 1fr)); gap: 14px; }
.logo-variant { border: 1px solid #ececf0; border-radius: 10px; overflow: hidden; }
.logo-frame { height: 96px; display: flex; align-items: center; justify-content: center; padding: 12px; }
.logo-frame img { max-width: 100%; max-height: 100%; object-fit: contain; }
.logo-meta { display: flex; justify-content: space-between; align-items: center; padding: 8px 10px;
  background: #fff; border-top: 1px solid #ececf0; font-size: 11px; }
.logo-meta .role { font-weight: 600; color: #4a4a52; }
.logo-meta a { color: var(--accent); text-decoration: none; font-weight: 600; }
footer { margin-top: 72px; padding-top: 20px; border-top: 1px solid #ececf0; color: #a0a0a8; font-size: 12px; }
footer a { color: var(--accent); text-decoration: none; font-weight: 600; }
footer a:hover { text-decoration: underline; }
.toast { position: fixed; left: 50%; bottom: 28px; transform: translateX(-50%) translateY(20px);
  background: #16161a; color: #fff; padding: 9px 16px; border-radius: 10px; font-size: 13px; opacity: 0;
  transition: opacity .18s ease, transform .18s ease; pointer-events: none; }
.toast.show { opacity: 1; transform: translateX(-50%) translateY(0); }
@media (prefers-color-scheme: dark) {
  body { background: #0d0d10; color: #ececf0; }
  .swatch, .type, .asset .meta { background: #17171c; border-color: #26262e; }
  .asset { border-color: #26262e; }
  section.band > h2 { color: #7a7a85; border-color: #26262e; }
  .swatch .val, .tagline, .type .label { color: #9a9aa4; }
  .badge { background: #26262e; color: #c4c4cc; }
  .textblock { color: #c7c7cf; }
  .logo-set, .logo-meta { background: #17171c; border-color: #26262e; }
  .logo-variant { border-color: #26262e; }
  .logo-meta .role { color: #c4c4cc; }
}
`;

const TAIL = `</div>
<div class="toast" id="toast"></div>
<script>
function copyHex(hex){
  navigator.clipboard && navigator.clipboard.writeText(hex);
  var t = document.getElementById('toast');
  t.textContent = 'Copied ' + hex; t.classList.add('show');
  clearTimeout(window.__tt); window.__tt = setTimeout(function(){ t.classList.remove('show'); }, 1200);
}
</script>
</body>
</html>`;
