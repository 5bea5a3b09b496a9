'use strict';
// Every module the core registers opens from the page's menu: its leaf is there
// with the catalogue's caption, its main screen shows, every control the core
// declares has its element (the visible ones visible and within reach of the
// mouse in the window, a companion's as it shows), with no console error and
// no "nan", "inf" or "undefined" on the page.
const h = require('./harness');
const d = require('./case_driver');

// What the core declares, asked through the page's own worker.
function askCore(page, requests) {
  return page.evaluate(async (list) => {
    const worker = new Worker('js/worker.js');
    const answers = [];
    for (const [i, request] of list.entries())
      answers.push(await new Promise((resolve) => {
        worker.onmessage = (e) => { if (e.data.id === i + 1) resolve(e.data.answer); };
        worker.postMessage({ id: i + 1, request });
      }));
    worker.terminate();
    return answers;
  }, requests);
}

// The controls of the list a user could not click: none is under the point
// where it shows once scrolled into view. A companion named is shown on top
// for the while, and its controls the state hides are left out.
function unreachable(page, companion, names) {
  return page.evaluate((screen, list) => {
    const section = screen && document.querySelector(`section.screen[data-screen="${screen}"]`);
    if (section) {
      section.hidden = false;
      section.style.zIndex = '99999';
    }
    const out = list.filter((n) => {
      const e = document.querySelector(`[data-name="${n}"]`);
      if (!e || (section && !e.checkVisibility())) return false;
      e.scrollIntoView({ block: 'center', inline: 'center' });
      const r = e.getBoundingClientRect();
      const top = document.elementFromPoint(r.left + r.width / 2, r.top + r.height / 2);
      return !top || !(e.contains(top) || top.contains(e) || (e.labels && [...e.labels].some((l) => l.contains(top))));
    });
    if (section) section.hidden = true;
    return out;
  }, companion, names);
}

async function checkModule(page, url, key, declared, caption) {
  const why = [];
  await h.load(page, url);
  await d.confirmStart(page);
  const leaf = await page.$$eval(`[data-module="${key}"]`, (els) => els.map((e) => e.textContent.trim()));
  if (leaf.length !== 1) return [`o menu tem ${leaf.length} itens para ${key}`];
  if (caption && leaf[0] !== caption.trim()) why.push(`o item do menu diz "${leaf[0]}", o catálogo "${caption.trim()}"`);
  await d.openModule(page, key);
  const hidden = new Set(declared.state.hidden);
  const expected = declared.screens.flatMap((s) => s.controls.map((c) => ({
    name: `${s.name}.${c.name}`, kind: c.kind,
    visible: s.name === key && c.visible !== false && !hidden.has(`${s.name}.${c.name}`) && !hidden.has(`${s.name}.${c.frame}`),
  })));
  const found = await page.evaluate((list) => list.map((c) => {
    const e = document.querySelector(`[data-name="${c.name}"]`);
    return e ? (e.checkVisibility() ? 'visible' : 'hidden') : 'missing';
  }), expected);
  expected.forEach((c, i) => {
    if (found[i] === 'missing') why.push(`falta ${c.name} (${c.kind})`);
    else if (c.visible && found[i] !== 'visible') why.push(`${c.name} (${c.kind}) não aparece`);
  });
  // Within reach: brought into the window by scrolling, and not under anything;
  // each companion too, shown over the module as it comes up there.
  const shown = expected.filter((c, i) => c.visible && found[i] === 'visible').map((c) => c.name);
  const out = await unreachable(page, null, shown);
  for (const s of declared.screens.filter((screen) => screen.name !== key))
    out.push(...await unreachable(page, s.name, s.controls.map((c) => `${s.name}.${c.name}`)));
  if (out.length) why.push(`fora do alcance na janela: ${out.join(', ')}`);
  const bad = d.badWords((await d.readPage(page)).text);
  if (bad.length) why.push(`a página mostra ${bad.join(', ')}`);
  why.push(...page.errors.splice(0));
  return why;
}

h.main(async (browser, url) => {
  const page = await h.newPage(browser);
  await h.load(page, url);
  const [catalogue] = await askCore(page, [{ op: 'catalogue' }]);
  const startup = catalogue.startup.selected;
  const keys = catalogue.registered;
  const declared = await askCore(page, keys.map((module) => ({ op: 'open', module, startup })));
  const results = [];
  const leaves = await page.$$eval('[data-module]', (els) => els.map((e) => e.dataset.module));
  const strays = leaves.filter((k) => !keys.includes(k));
  results.push({ name: 'menu', ok: !strays.length, why: [`o menu abre módulos que o núcleo não registra: ${strays}`] });
  for (const [i, key] of keys.entries()) {
    const t0 = Date.now();
    const row = catalogue.rows.find((r) => r.module === key);
    let why;
    try {
      why = declared[i].error ? [declared[i].error] : await checkModule(page, url, key, declared[i], row && row.caption);
    } catch (e) { why = [e.message]; }
    console.log(`${why.length ? 'FALHA' : 'ok   '} ${key} (${Date.now() - t0} ms)`);
    results.push({ name: key, ok: !why.length, why });
  }
  return h.tally(results);
});
