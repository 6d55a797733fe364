// Opens exported sample pages from disk in a real browser: node page.mjs <tarnloft> <samples>.
// Exits with 77, and says why, where no browser can be had.
import assert from 'node:assert/strict';
import { execFileSync } from 'node:child_process';
import { accessSync, mkdirSync, mkdtempSync, readdirSync, readFileSync, rmSync, writeFileSync } from 'node:fs';
import { tmpdir } from 'node:os';
import { join } from 'node:path';
import { pathToFileURL } from 'node:url';

const [program, samples] = process.argv.slice(2);

function skip(reason) {
  console.log(`skipped: ${reason}`);
  process.exit(77);
}

// The sandbox needs a user other than root; the rest keeps the browser off a network that isn't there.
const options = ['--no-sandbox', '--disable-gpu', '--disable-quic', '--no-first-run',
  '--disable-background-networking', '--disable-component-update', '--disable-sync'];

async function launch() {
  const executablePath = process.env.CHROMIUM ?? '/usr/bin/chromium';
  try {
    accessSync(executablePath);
  } catch {
    skip(`no browser at ${executablePath}; CHROMIUM names another place`);
  }
  const { chromium } = await import('playwright-core').catch(() => skip('playwright-core is not installed'));
  return chromium.launch({ executablePath, args: options });
}

const itemsOf = manifest => manifest.sections.flatMap(section => section.items);
const payloads = (manifest, kind) => itemsOf(manifest).map(item => item.payload[kind]).filter(Boolean);

// What the page must offer for download, in order.
const downloads = manifest => itemsOf(manifest).flatMap(({ payload }) => {
  if (payload.image || payload.video) return [(payload.image ?? payload.video).asset.originalName];
  if (payload.font?.value.asset) return [payload.font.value.asset.originalName];
  return (payload.logo?.value.variants ?? []).map(variant => variant.asset.originalName);
});

const checks = {
  async 'every picture shows'(page) {
    const widths = await page.$$eval('img', images => Promise.all(images.map(async image => {
      await image.decode();
      return image.naturalWidth;
    })));
    assert.ok(widths.length > 3, `only ${widths.length} pictures`);
    assert.ok(widths.every(width => width > 0), `widths ${widths}`);
  },
  async 'every video loads'(page, manifest) {
    const widths = await page.$$eval('video', videos => Promise.all(videos.map(video => new Promise(done => {
      if (video.videoWidth) return done(video.videoWidth);
      video.onloadedmetadata = () => done(video.videoWidth);
      video.onerror = () => done(0);
    }))));
    assert.equal(widths.length, payloads(manifest, 'video').length);
    assert.ok(widths.every(width => width > 0), `widths ${widths}`);
  },
  async 'every font with a file loads'(page, manifest) {
    const files = new Set(payloads(manifest, 'font').filter(font => font.value.asset).map(font => font.value.family));
    const loaded = await page.evaluate(async () => {
      await Promise.all([...document.fonts].map(face => face.load()));
      return [...document.fonts].map(face => face.family.replaceAll('"', ''));
    });
    assert.deepEqual(loaded, [...files]);
  },
  async 'a click on a swatch copies its hex and says so'(page, manifest) {
    const hex = payloads(manifest, 'color')[0].value.hex.toUpperCase();
    await page.click('.swatch[onclick]');
    await page.waitForSelector('#toast.show');
    assert.equal(await page.textContent('#toast'), `Copied ${hex}`);
    assert.equal(await page.evaluate(() => navigator.clipboard.readText()), hex);
    await page.waitForSelector('#toast:not(.show)', { state: 'attached' });
  },
  async 'downloads carry their file names'(page, manifest) {
    assert.deepEqual(await page.$$eval('a[download]', links => links.map(link => link.download)), downloads(manifest));
    const arrival = page.waitForEvent('download');
    await page.click('.logo-meta a');
    assert.equal((await arrival).suggestedFilename(), payloads(manifest, 'logo')[0].value.variants[0].asset.originalName);
  },
};

// As references, since the page prints colours in capitals.
const CODE = [...'ran=1'].map(c => `&#${c.charCodeAt(0)};`).join('');
const HOSTILE = [`');${CODE}//`, `&#39;);${CODE}//`, `&=#x27;);${CODE}//`, '"><img src=x onerror=ran=1>', '</style><script>ran=1</script>',
  '" onfocus="ran=1" tabindex="1" x="', '" onfocus=ran=1 tabindex=1 x="'];

// A brand whose colours, accent and font family would each run a script.
function writeHostile(path, manifest, text) {
  const [section] = manifest.sections, [item] = section.items;
  const payloads = [{ color: { value: { hex: text } } }, { font: { value: { family: text } } },
    { gradient: { value: { angle: 0, stops: [{ id: item.id, hex: text, location: 0 }] } } }];
  const items = payloads.map((payload, i) => ({ id: item.id.slice(0, -1) + i, payload }));
  mkdirSync(path);
  writeFileSync(join(path, 'manifest.json'), JSON.stringify({ ...manifest, accentHex: text, sections: [{ ...section, items }] }));
}

async function checkHostile(browser, folder, manifest) {
  for (const [i, text] of HOSTILE.entries()) {
    const path = join(folder, `${i}.tarnloft`);
    writeHostile(path, manifest, text);
    execFileSync(program, ['--export-page', path, `${path}.html`]);
    const { page } = await openPage(browser, `${path}.html`);
    const ran = await page.evaluate(() => {
      for (const element of document.querySelectorAll('*')) { element.click(); element.focus(); }
      return [window.ran, document.scripts.length];
    });
    assert.deepEqual(ran, [undefined, 1], `the page runs ${text}`);
  }
}

async function openPage(browser, file) {
  const context = await browser.newContext({ permissions: ['clipboard-read', 'clipboard-write'], colorScheme: 'light' });
  const page = await context.newPage();
  const complaints = [];
  page.on('console', message => message.type() === 'error' && complaints.push(message.text()));
  page.on('pageerror', error => complaints.push(String(error)));
  await page.goto(pathToFileURL(file).href);
  return { page, complaints };
}

const browser = await launch();
const folder = mkdtempSync(join(tmpdir(), 'tarnloft-browser-'));
let passed = 0;
try {
  for (const name of readdirSync(samples).filter(entry => entry.endsWith('.tarnloft'))) {
    const manifest = JSON.parse(readFileSync(join(samples, name, 'manifest.json'), 'utf8'));
    const file = join(folder, `${name}.html`);
    execFileSync(program, ['--export-page', join(samples, name), file]);
    const { page, complaints } = await openPage(browser, file);
    for (const [label, check] of Object.entries(checks)) {
      await check(page, manifest).catch(error => {
        throw new Error(`${name}: ${label}: ${error.message}`);
      });
      ++passed;
    }
    assert.deepEqual(complaints, [], `${name}: the page complains`);
    await checkHostile(browser, mkdtempSync(join(folder, 'hostile-')), manifest);
  }
  assert.equal(passed, 2 * Object.keys(checks).length);
  console.log(`${passed} passed, 0 failed`);
} finally {
  await browser.close();
  rmSync(folder, { recursive: true });
}
