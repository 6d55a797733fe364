#include "publish/BrandPageText.h"

// Clients keep published pages and compare them: every character here counts.
namespace tarnloft::BrandPageText {

const QByteArrayView head = R"page(<!DOCTYPE html>
<html lang="en">
<head>
<meta charset="utf-8">
<meta name="viewport" content="width=device-width, initial-scale=1">
<title>)page";

const QByteArrayView styleSheet = R"page(; }
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
)page";

const QByteArrayView bodyStart = R"page(
</style>
</head>
<body>
<div class="wrap">
  <header class="brand">
    <div class="mark">)page";

const QByteArrayView tail = R"page(
</div>
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
</html>)page";

}  // namespace tarnloft::BrandPageText
