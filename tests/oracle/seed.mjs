// The manifest that seeding a logo must leave behind.

import { canonicalText } from './manifest.mjs';

// Stand for what only the program can know; both are as long as what takes their place.
const NEW_ID = '@'.repeat(36);
const NOW = '@'.repeat(20);

const ID = /^[0-9A-F]{8}(-[0-9A-F]{4}){3}-[0-9A-F]{12}$/;
const DATE = /^\d{4}-\d{2}-\d{2}T\d{2}:\d{2}:\d{2}Z$/;
const SPOTS = ['PMS 130 C', 'PMS 476 C', 'PMS 021 C'];
const ONE_IMAGE = [['primary'], ['mono', 'white'], ['reversed', 'dark'], ['icon', 'checkerboard']];

const note = (kind, text) => ({ id: NEW_ID, kind, text });

const variant = (asset, role, background) =>
  ({ id: NEW_ID, asset, role, ...(background && { background }) });

function logoItem(brand, assets) {
  const variants = assets.length === 1
    ? ONE_IMAGE.map(([role, background]) => variant(assets[0], role, background))
    : assets.map((asset, i) => variant(asset, i === 0 ? 'primary' : 'secondary'));
  return {
    id: NEW_ID,
    payload: { logo: { value: { name: `${brand.name} Logo`, variants } } },
    notes: [
      note('do', 'Keep clear space equal to the icon height.'),
      note('dont', "Don't recolor or stretch the mark."),
      note('note', 'Use the reversed version on dark backgrounds.'),
    ],
  };
}

/** The expected text with blanks for new identities and the time of saving; null when seeding must fail. */
export function seededText(original) {
  const brand = structuredClone(original);
  const items = () => brand.sections.flatMap((section) => section.items);
  const assets = items().filter(({ payload }) => payload.image).map(({ payload }) => payload.image.asset);
  if (assets.length === 0) return null;

  brand.sections.find((section) => section.items.length > 0).items = [logoItem(brand, assets)];
  items().filter(({ payload }) => payload.color).forEach((item, i) => {
    item.payload.color.value.spot = SPOTS[i % 3];
    item.notes = [note('do', 'Use for primary brand moments.')];
  });
  brand.updatedAt = NOW;
  return canonicalText(brand);
}

/** Fills the blanks from the actual text, each only with a fresh identity or a time since `started`. */
export function fillBlanks(expected, actual, started) {
  const taken = new Set((expected.match(/"[0-9A-F-]{36}"/g) ?? []).map((id) => id.slice(1, -1)));
  const isFresh = (id) => ID.test(id) && !taken.has(id) && taken.add(id);
  const isRecent = (date) => DATE.test(date) && Date.parse(date) >= started - 1000 && Date.parse(date) <= Date.now();
  return expected.replace(/"(@{36}|@{20})"/g, (blank, inner, offset) => {
    const found = actual.slice(offset + 1, offset + 1 + inner.length);
    const fits = inner.length === NOW.length ? isRecent(found) : isFresh(found);
    return fits ? `"${found}"` : blank;
  });
}
