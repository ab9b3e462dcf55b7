#pragma once

// What stands around the categories on the page of all fields: style, legend, the filter.

namespace qv::tools {

inline constexpr const char* kPageBegin = R"html(<!DOCTYPE html>
<html lang="en">
<head>
<meta charset="utf-8">
<meta name="viewport" content="width=device-width, initial-scale=1">
<title>Fields of qv_database</title>
<style>
:root { color-scheme: light dark; --text: #1d2430; --soft: #5c6675; --line: #dde2ea; --back: #fff; --side: #f5f7fa;
  --row: #f8fafc; --mark: #fff3c4; --link: #1d4ed8; --tuning: #1d4ed8; --simulator: #7c3aed; --calibration: #0f766e;
  --initialization: #b45309; --meta: #be185d; --version: #4d7c0f; --image: #475569; }
@media (prefers-color-scheme: dark) {
  :root { --text: #dfe5ee; --soft: #96a2b4; --line: #2c3543; --back: #12161d; --side: #181d26; --row: #161b23;
    --mark: #4a3f12; --link: #8ab4ff; --tuning: #3b6fe0; --simulator: #8b5cf6; --calibration: #0d9488;
    --initialization: #c2680c; --meta: #d0327c; --version: #5f9412; --image: #64748b; } }
* { box-sizing: border-box; }
html { scroll-padding-top: 2.5rem; }
body { margin: 0; font: 14px/1.45 system-ui, "DejaVu Sans", sans-serif; color: var(--text); background: var(--back); }
nav { position: fixed; inset: 0 auto 0 0; width: 11.5rem; overflow-y: auto; padding: 1rem; background: var(--side);
  border-right: 1px solid var(--line); }
nav input { width: 100%; padding: .35rem .5rem; font: inherit; color: inherit; background: var(--back);
  border: 1px solid var(--line); border-radius: .35rem; }
nav ol { list-style: none; margin: .75rem 0 0; padding: 0; }
nav a { display: block; padding: .05rem .3rem; border-radius: .25rem; }
nav a:hover { background: var(--line); }
main { margin-left: 11.5rem; padding: 1rem 2rem 4rem; max-width: 110rem; }
a { color: var(--link); text-decoration: none; }
h1 { margin: .5rem 0; font-size: 1.7rem; }
h2 { margin: 0 0 .4rem; font-size: 1.3rem; }
h2 small { font-size: .85rem; font-weight: normal; color: var(--soft); margin-left: .6rem; }
section { margin-top: 2.8rem; }
section > p { margin: .3rem 0; max-width: 75rem; }
code { font: .92em ui-monospace, "DejaVu Sans Mono", monospace; overflow-wrap: anywhere; }
.places > code { margin-right: .25rem; }
.places .doc:not(:first-child) { margin-left: .6rem; }
table { border-collapse: collapse; width: 100%; margin-top: .6rem; }
th { position: sticky; top: 0; text-align: left; font-weight: 600; color: var(--soft); background: var(--back);
  border-bottom: 2px solid var(--line); padding: .35rem .5rem; z-index: 1; }
td { vertical-align: top; padding: .25rem .5rem; border-bottom: 1px solid var(--line); }
tr.member:nth-child(even) td { background: var(--row); }
tr.member:target td { background: var(--mark); }
td.name { padding-left: calc(.5rem + var(--depth) * 1.3rem); font: .92em ui-monospace, "DejaVu Sans Mono", monospace; }
td.name a { color: inherit; }
td.number { text-align: right; font-variant-numeric: tabular-nums; color: var(--soft); white-space: nowrap; }
th:nth-child(1) { width: 16%; } th:nth-child(2) { width: 15%; } th:nth-child(3), th:nth-child(4) { width: 5%; }
th:nth-child(6) { width: 27%; } th { white-space: nowrap; }
tr.heap td.name::before { content: "↳ "; color: var(--soft); }
.doc { display: inline-block; padding: 0 .4em; border-radius: .3em; font-size: .8em; color: #fff; background: var(--image); }
.tuning { background: var(--tuning); } .simulator { background: var(--simulator); }
.calibration { background: var(--calibration); } .initialization { background: var(--initialization); }
.meta { background: var(--meta); } .version { background: var(--version); }
.range, .unit, .role { display: inline-block; padding: 0 .4em; border: 1px solid var(--line); border-radius: .3em;
  font-size: .85em; color: var(--soft); }
.range { font-family: ui-monospace, "DejaVu Sans Mono", monospace; }
.value { font-size: .92em; color: var(--soft); }
.stands i, .places i { color: var(--soft); font-size: .88em; }
.stands i::before { content: "· "; }
dl { display: grid; grid-template-columns: max-content 1fr; gap: .25rem 1rem; max-width: 75rem; }
dd { margin: 0; }
[hidden] { display: none; }
@media (max-width: 60rem) { nav { position: static; width: auto; } nav ol { columns: 4; } main { margin: 0; padding: 1rem; } }
@media print { nav { display: none; } main { margin: 0; padding: 0; max-width: none; } body { font-size: 8pt; }
  th { position: static; } tr { break-inside: avoid; } h2 { break-after: avoid; } section { margin-top: 1.5rem; }
  .doc { color: #000; background: none; border: 1px solid #888; } }
</style>
</head>
<body>
)html";

inline constexpr const char* kPageLegend = R"html(<h1>Fields of qv_database</h1>
<p>Every category in the order of registration, every member of its record in the order of C, and where documents hold it.</p>
<dl>
<dt>type</dt><dd>integers by their width, so that <code>size_t</code> and handles are <code>uint64_t</code> and an
enumeration, whose values follow the meaning, is <code>uint32_t</code></dd>
<dt>offset</dt><dd>bytes from the beginning of the record that the member belongs to</dd>
<dt>in image</dt><dd>bytes from the beginning of the binary image; of a list's first element</dd>
<dt><span class="range">0..20</span> <span class="unit">px</span> <span class="role">curve</span></dt>
<dd>the range that makes sense, where it is narrower than the type; the unit; what the member is there for, such as "length of
<code>tables</code>"</dd>
<dt><b>2</b> <code>Sensor</code></dt><dd>a number that has a name</dd>
<dt><span class="doc tuning">tuning</span> <code>key</code></dt><dd>the member of the document; inside a record, behind the
record's own key. A member without any is in memory, and in the image where the category is; counters without one travel as the
length of their list</dd>
<dt><span class="doc image">image</span></dt><dd>binary image: the records byte for byte</dd>
<dt><span class="doc tuning">tuning</span> <span class="doc calibration">calibration</span>
<span class="doc version">version</span></dt>
<dd>parts of a text document: member <code>tuning</code>; members <code>header</code>, <code>sensor</code> and
<code>system</code>; member <code>version</code></dd>
<dt><span class="doc simulator">simulator</span></dt>
<dd>member <code>root</code> of a text document, a list (<code>*</code> is any of its items): objects named by their member
<code>classname</code>; then the driver object, which holds members of <code>MISC</code> and <code>MD</code> itself and in its
list <code>driver</code> objects named by <code>class</code>. Frame metadata has a document to itself, where <code>root</code> is
an object</dd>
<dt><span class="doc meta">meta</span> <span class="doc initialization">.ini</span></dt>
<dd>frame metadata; initialization files, whose keys are flat</dd>
<dt>only read, only written</dt><dd>one codec alone carries the member</dd>
<dt>read, saved as null</dt><dd>the writer leaves the member empty</dd>
<dt>older key</dt><dd>read where the key before it is absent</dd>
<dt>number for bool</dt><dd>the document holds 0 or 1 instead</dd>
<dt>saved signed, saved unsigned</dt><dd>the document's number has the other sign than the C member</dd>
<dt>in rows [3][2]</dt><dd>a list of lists for a flat array</dd>
<dt>list of the record's numbers</dt><dd>a list stands for the record; its members show which item they are</dd>
<dt>always 4, counted by n, length into n, …</dt><dd>how many items a list of records has in the document; "longer fails": a load
ends there with status 6</dd>
<dt>↳</dt><dd>in an array on the heap</dd>
</dl>
)html";

inline constexpr const char* kPageEnd = R"html(<script>
const filter = document.getElementById("filter");
const rows = [...document.querySelectorAll("tr.member")].map(row => [row, row.textContent.toLowerCase()]);
filter.addEventListener("input", () => {
  const text = filter.value.trim().toLowerCase();
  for (const [row, words] of rows) row.hidden = !words.includes(text) && !row.id.toLowerCase().includes(text);
  for (const section of document.querySelectorAll("section"))
    section.hidden = text !== "" && !section.querySelector("tr.member:not([hidden])");
});
</script>
</body>
</html>
)html";

} // namespace qv::tools
