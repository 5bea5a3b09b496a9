'use strict';
// How fast the page is, and what it looks like at 1366x768: the first load to the
// menu, a later load from the browser's cache, each press of every module's first
// example as the page times it (window.morveTimings); then screenshots for a
// person to look at in $(BUILD)/web-shots. Only a generous guard fails the test:
// the aims (menu in 2 s, 0.5 s cached, CALCULAR in 50 ms) are printed beside.
const fs = require('fs');
const path = require('path');
const h = require('./harness');
const d = require('./case_driver');

const GUARD = { load: 10000, press: 2000 };
const AIM = { first: 2000, cached: 500, press: 50 };

const row = (cells, widths) => cells.map((c, i) => String(c).padEnd(widths[i])).join(' ');

async function shoot(page, name) {
  const file = path.join(h.env.shots, `${name}.png`);
  await page.screenshot({ path: file });
  console.log(`imagem: ${file}`);
}

h.main(async (browser, url) => {
  fs.mkdirSync(h.env.shots, { recursive: true });
  const page = await h.newPage(browser);
  const results = [];
  const guard = (name, ms, limit) => results.push({ name, ok: ms <= limit, why: [`${ms} ms, acima de ${limit} ms`] });

  const first = await h.load(page, url);
  await shoot(page, 'menu');
  const cached = await h.load(page, url);
  console.log(`\ncarga        ms     meta`);
  console.log(`primeira     ${String(first).padEnd(6)} ${AIM.first}`);
  console.log(`em cache     ${String(cached).padEnd(6)} ${AIM.cached}\n`);
  guard('primeira carga', first, GUARD.load);
  guard('carga em cache', cached, GUARD.load);

  // The first example of each module, and those the pictures are taken from.
  const shots = { 'form7-armadura-simples': 'form7', 'form34-tres-vaos': 'form34', 'form24f-laje-em-l': 'form24f' };
  const seen = new Set();
  const chosen = h.examples().filter((ex) => shots[ex.name] || (!seen.has(ex.json.module) && seen.add(ex.json.module)));
  const widths = [8, 34, 22, 8, 8];
  console.log(row(['módulo', 'exemplo', 'botão', 'ms', 'meta'], widths));
  for (const ex of chosen) {
    try {
      await d.checkCase(page, url, ex.json, ex.file);
    } catch (e) {
      console.log(row([ex.json.module, ex.name, `não medido: ${e.message}`], widths));
      continue;
    }
    // Picks in lists are timed too, but only the buttons are listed.
    for (const t of await page.evaluate(() => window.morveTimings || [])) {
      if (/Command/.test(t.command))
        console.log(row([ex.json.module, ex.name, t.command, Math.round(t.ms), t.ms <= AIM.press ? 'ok' : 'acima'], widths));
      guard(`${ex.name} ${t.command}`, Math.round(t.ms), GUARD.press);
    }
    if (!shots[ex.name]) continue;
    try {
      if (ex.json.module === 'Form34') {
        await shoot(page, 'form34-resultados');
        await d.backToMain(page, 'Form34');
        await d.pressButton(page, 'Form34.Command10');
        await shoot(page, 'form34');
      } else {
        await shoot(page, shots[ex.name]);
        if (ex.json.module !== 'Form7') continue;
        await d.backToMain(page, 'Form7');
        await d.openReport(page, 'Form7');
        await shoot(page, 'report');
      }
    } catch (e) { results.push({ name: `imagens de ${ex.name}`, ok: false, why: [e.message] }); }
  }
  console.log();
  return h.tally(results);
});
