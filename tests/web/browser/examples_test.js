'use strict';
// Every example case typed into the page gives what morve-calc gives on it:
// every field, every table cell and every message box. "node examples_test.js 2/3"
// plays the second of three shares, so that ctest can run the shares side by side.
const h = require('./harness');
const d = require('./case_driver');

const [share, shares] = (process.argv[2] || '1/1').split('/').map(Number);

h.main(async (browser, url) => {
  const page = await h.newPage(browser);
  const results = [];
  for (const ex of h.examples().filter((_, i) => i % shares === share - 1)) {
    const t0 = Date.now();
    let why, notes = [];
    try {
      const run = await d.checkCase(page, url, ex.json, ex.file);
      ({ why } = run);
      notes = run.s.notes;
    } catch (e) { why = [e.message, ...page.errors.splice(0)]; }
    console.log(`${why.length ? 'DIFERE' : 'ok    '} ${ex.name} (${Date.now() - t0} ms)`);
    for (const n of notes) console.log(`       nota: ${n}`);
    results.push({ name: ex.name, ok: !why.length, why });
  }
  return h.tally(results);
});
