#include "page.h"

namespace qv::tools::page {

const char* const kStyle = R"css(
:root { color-scheme: light dark; --text: #1d2430; --soft: #566171; --line: #dfe3ea; --back: #fff; --side: #f5f7fa;
  --a: #0063b2; --b: #c25100; --mark: #fff2c2; --bad: #b3261e; --warn: #8a5a00; }
@media (prefers-color-scheme: dark) { :root { --text: #dfe5ee; --soft: #9aa6b6; --line: #2d3644; --back: #12161d;
  --side: #181d26; --a: #6cb2ff; --b: #ffa04d; --mark: #453b12; --bad: #ff8a80; --warn: #ffcc66; } }
* { box-sizing: border-box; }
html { scroll-padding-top: 7rem; }
body { margin: 0; font: 14px/1.45 system-ui, "DejaVu Sans", sans-serif; color: var(--text); background: var(--back); }
header, main { padding: 0 clamp(.6rem, 2vw, 2rem); max-width: 150rem; margin: auto; }
h1 { font-size: 1.5rem; margin: 1rem 0 .3rem; overflow-wrap: anywhere; }
h2 { font-size: 1.25rem; margin: 2.2rem 0 .4rem; padding-bottom: .2rem; border-bottom: 2px solid var(--line); }
h3 { font-size: 1.02rem; margin: 1.2rem 0 .3rem; } h3 small, small { color: var(--soft); font-weight: normal; }
h5 { font-size: .8rem; margin: 0; font-weight: normal; color: var(--soft); width: 100%; }
code { font: .94em ui-monospace, "DejaVu Sans Mono", monospace; overflow-wrap: anywhere; }
a { color: var(--a); text-decoration: none; } a:hover { text-decoration: underline; }
:focus-visible { outline: 2px solid var(--a); outline-offset: 2px; }
table { border-collapse: collapse; } th { text-align: left; font-weight: 600; color: var(--soft); }
td, th { padding: .15rem .6rem .15rem 0; vertical-align: top; }
.wide { overflow-x: auto; } header td code { white-space: nowrap; }
#bar { position: sticky; top: 0; z-index: 2; background: var(--side); border-bottom: 1px solid var(--line); display: flex;
  flex-wrap: wrap; gap: .3rem 1.2rem; align-items: center; padding: .4rem clamp(.6rem, 2vw, 2rem); }
#bar label { display: flex; gap: .4rem; align-items: center; } #bar nav { display: flex; gap: .8rem; flex-wrap: wrap; }
#search { width: 15rem; max-width: 60vw; } #gain { width: clamp(8rem, 20vw, 20rem); accent-color: var(--a); }
input[type=search], input[type=number] { font: inherit; color: inherit; background: var(--back); padding: .15rem .4rem;
  border: 1px solid var(--soft); border-radius: .3rem; } #gain-value { width: 6.5rem; }
.key { display: inline-block; width: 1.6rem; border-top: 3px solid var(--a); vertical-align: middle; }
.key.b { border-top: 3px dashed var(--b); }
.chips { display: flex; flex-wrap: wrap; gap: .25rem; margin: .4rem 0; padding: 0; list-style: none; }
.chips li { padding: .05rem .5rem; border: 1px solid var(--line); border-radius: .8rem; background: var(--side); }
.chips .set { border-color: var(--a); } .chips .absent { opacity: .75; border-style: dashed; background: none; }
.findings { max-height: 18rem; overflow: auto; }
.findings li { margin: .1rem 0; } .error { color: var(--bad); } .warning { color: var(--warn); }
.flow, .category > .schedules, .category { display: grid; gap: .5rem .9rem;
  grid-template-columns: repeat(auto-fill, minmax(min(100%, 18.5rem), 1fr)); align-items: start; }
.category > h3, .category > .schedules, figure.maps, .row { grid-column: 1 / -1; }
.flow { margin-top: .8rem; }
figure { margin: 0; overflow-x: auto; padding: .35rem .45rem; border: 1px solid var(--line); border-radius: .35rem; min-width: 0; }
figure:target, tr:target { background: var(--mark); }
figcaption { line-height: 1.25; min-height: 2.3em; } figcaption span { color: var(--soft); font-size: .86em; }
svg { width: 100%; height: auto; display: block; font: 115px system-ui, "DejaVu Sans", sans-serif; }
svg text { fill: var(--soft); } svg .y { text-anchor: end; } svg .x { text-anchor: middle; }
svg path { fill: none; stroke-width: 20; stroke-linejoin: round; stroke-linecap: round; }
svg .axis { stroke: var(--line); stroke-width: 8; } svg .a { stroke: var(--a); }
svg .b { stroke: var(--b); stroke-dasharray: 60 45; } svg .far { opacity: .12; } svg .near { opacity: 1; stroke-width: 32; }
svg .cursor { stroke: var(--text); stroke-width: 10; }
svg rect { fill: none; stroke-width: 16; } svg .frame { stroke: var(--line); } svg rect.a { fill: var(--a); fill-opacity: .12; }
.windows { max-height: 15rem; }
output { display: block; font-size: .82em; color: var(--soft); font-variant-numeric: tabular-nums; max-height: 9em; overflow: auto; }
.matrix td { padding: 1px; } .matrix td span { display: block; padding: .2rem .45rem; text-align: right; min-width: 4.2em;
  font-variant-numeric: tabular-nums; } .matrix th { padding: .2rem .3rem; font-weight: normal; white-space: nowrap; }
.matrix .b, td .b { border-left: 3px dashed var(--b); padding-left: .3rem; } .matrix .a, td .a { border-left: 3px solid var(--a); padding-left: .3rem; }
.matrix { margin-bottom: .3rem; font-size: .88em; }
.row { display: flex; flex-wrap: wrap; gap: .4rem 1rem; margin: .3rem 0 .7rem; }
.row > div:not(.bar) { width: min(11rem, 46%); } .row img { width: 100%; image-rendering: pixelated; display: block; }
figure.maps { display: flex; flex-wrap: wrap; gap: 0 2rem; } figure.maps figcaption { width: 100%; min-height: 0; }
figure.maps .row { flex: 1 1 36rem; align-content: start; }
.bar { display: flex; gap: .5rem; align-items: center; width: 100%; font-size: .85em; } .bar i { height: .7rem; width: min(20rem, 50%); }
.same, .words { margin: .2rem 0; font-size: .86em; color: var(--soft); overflow-wrap: anywhere; }
.values summary { cursor: pointer; padding: .2rem 0; } .values table { width: 100%; margin-bottom: .6rem; }
.values td:nth-child(1) { width: 26%; } .values td:nth-child(2) { width: 30%; } .values td:nth-child(3) { width: 12%; }
.values td { border-top: 1px solid var(--line); overflow-wrap: anywhere; } .values td:nth-child(4), .values td:nth-child(3) { color: var(--soft); }
tr.set td:nth-child(2) { font-weight: 600; }
#differences td { border-top: 1px solid var(--line); overflow-wrap: anywhere; }
[hidden] { display: none !important; }
@media (max-width: 45rem) { .values td:nth-child(4), .values th:nth-child(4), .values td:nth-child(3), .values th:nth-child(3) { display: none; }
  .values td:nth-child(1) { width: 50%; } #bar { position: static; } html { scroll-padding-top: 1rem; } }
@media print { #bar { display: none; } body { font-size: 8.5pt; } figure, tr { break-inside: avoid; } h2, h3, h4 { break-after: avoid; }
  .flow, .category > .schedules, .category { grid-template-columns: repeat(3, 1fr); } output { display: none; } }
)css";

const char* const kBar = R"html(<div id="bar" role="toolbar" aria-label="search, gain and parts of the page">
<label>Search <input type="search" id="search" placeholder="path, value, meaning"></label>
<label id="gain-label">Gain <input type="range" id="gain" min="0" max="1000" value="0" aria-describedby="gain-help">
<input type="number" id="gain-value" min="0" step="any" aria-label="gain as a number"></label>
<label><input type="checkbox" id="interpolate"> between the points</label>
<span id="gain-help" hidden>shows the neighbouring points of every schedule; what lies between them is decided by the layers above
the library, and is shown as a reader's aid</span>
)html";

const char* const kScript = R"js(
const all = (query, from = document) => [...from.querySelectorAll(query)];
const short = number => String(Number(number.toPrecision(6)));

// The schedules: gains stand at the block, values at each figure in the same order.
const blocks = all(".schedules").map(block => ({
  gains: JSON.parse(block.dataset.gains),
  figures: all("figure", block).map(figure => ({
    svg: figure.querySelector("svg"), output: figure.querySelector("output"), cursor: figure.querySelector(".cursor"),
    values: figure.dataset.values ? JSON.parse(figure.dataset.values) : null, lines: all("path[data-gain]", figure) }))
}));
const points = blocks.flatMap(block => block.gains.flatMap(each => each[2])).filter(gain => gain > 0);
const low = Math.log2(Math.min(...points)), high = Math.log2(Math.max(...points));
const slider = document.getElementById("gain"), number = document.getElementById("gain-value");
const between = document.getElementById("interpolate"), isPair = document.body.dataset.sides === "2";

// The points on either side of a gain; the same one twice beyond the ends and on a point.
function neighbours(gains, gain) {
  let below = -1, above = -1;
  gains.forEach((each, i) => {
    if (each > 0 && each <= gain && (below < 0 || each >= gains[below])) below = i;
    if (each > 0 && each >= gain && (above < 0 || each < gains[above])) above = i;
  });
  return [below < 0 ? above : below, above < 0 ? below : above];
}

function showGain(gain) {
  for (const block of blocks) for (const figure of block.figures) {
    if (figure.cursor) {
      const from = Number(figure.svg.dataset.low), to = Number(figure.svg.dataset.high);
      const part = Math.min(Math.max((Math.log2(gain) - from) / (to - from), 0), 1);
      figure.cursor.setAttribute("transform", `translate(${part * 2720} 0)`);
    }
    const words = [], near = new Set();
    block.gains.forEach(([side, index, gains], i) => {
      const [below, above] = neighbours(gains, gain);
      if (below < 0) return;
      near.add(short(gains[below])).add(short(gains[above]));
      const values = figure.values && figure.values[i];
      if (!values || values.length === 0) return;
      let text = `${isPair ? "AB"[side] + " " : ""}[${index}] ${short(gains[below])}: ${values[below]}`;
      if (above !== below) {
        text += `, ${short(gains[above])}: ${values[above]}`;
        const part = (gain - gains[below]) / (gains[above] - gains[below]);
        if (between.checked) text += `; at ${short(gain)}: ${short(values[below] + part * (values[above] - values[below]))}`;
      }
      words.push(text);
    });
    if (figure.output) figure.output.textContent = words.join("\n");
    for (const line of figure.lines) {
      const isNear = near.has(short(Number(line.dataset.gain)));
      line.classList.toggle("near", isNear);
      line.classList.toggle("far", !isNear);
    }
  }
}

if (points.length) {
  const choose = gain => { number.value = short(gain); showGain(gain); };
  slider.addEventListener("input", () => choose(2 ** (low + (high - low) * slider.value / 1000)));
  number.addEventListener("input", () => {
    if (!(number.value > 0)) return;
    slider.value = (Math.log2(number.value) - low) / (high - low) * 1000;
    showGain(Number(number.value));
  });
  between.addEventListener("input", () => { if (number.value > 0) showGain(Number(number.value)); });
} else {
  for (const id of ["gain-label", "interpolate"]) document.getElementById(id).closest("label").hidden = true;
}

// The search: words that all stand in a path, a value or a meaning.
const search = document.getElementById("search");
let texts = null;
const nothing = document.getElementById("nothing");
search.addEventListener("input", () => {
  texts ??= all("main figure, main .values tbody tr, #differences tbody tr").map(each =>
    [each, (each.id + " " + each.textContent).toLowerCase()]);
  const words = search.value.toLowerCase().split(/\s+/).filter(Boolean);
  let found = 0;
  for (const [each, text] of texts) {
    each.hidden = !words.every(word => text.includes(word));
    found += each.hidden ? 0 : 1;
  }
  for (const box of all(".schedules, .category, details.values"))
    box.hidden = words.length > 0 && !box.querySelector("figure:not([hidden]), tbody tr:not([hidden])");
  for (const details of all("details.values")) details.open = words.length > 0 && !details.hidden;
  nothing.hidden = found > 0;
});

// A link to a row opens what it stands in.
function follow() {
  const target = document.getElementById(decodeURIComponent(location.hash.slice(1)));
  if (!target) return;
  target.closest("details")?.setAttribute("open", "");
  target.scrollIntoView({ block: "center" });
}
addEventListener("hashchange", follow);
addEventListener("beforeprint", () => all("details").forEach(details => details.open = true));
follow();
)js";

} // namespace qv::tools::page
