'use strict';
// The Yes of a "VOCÊ QUER ...?" question: cases of tests/cases whose answers say
// Yes are played on the page, which must ask with No as the default button,
// follow the Yes, and end with the fields, messages and focus of morve-calc.
const fs = require('fs');
const os = require('os');
const path = require('path');
const h = require('./harness');
const d = require('./case_driver');

const MOST = 6;

// The first case of each file whose answers hold a Yes and that is typed on the
// main screen alone (no tables), its project file made absolute.
function yesCases() {
  const found = [];
  for (const family of fs.readdirSync(h.env.cases).sort()) {
    const dir = path.join(h.env.cases, family);
    if (!fs.statSync(dir).isDirectory()) continue;
    for (const f of fs.readdirSync(dir).filter((n) => n.endsWith('.json')).sort()) {
      const c = d.variants(JSON.parse(fs.readFileSync(path.join(dir, f), 'utf8')))
        .find((v) => (v.answers || []).includes('yes') && !v.grids);
      if (!c) continue;
      if (c.open) c.open = path.resolve(dir, c.open);
      found.push({ name: `${family}/${f}`, json: c });
    }
  }
  return found.slice(0, MOST);
}

h.main(async (browser, url) => {
  const page = await h.newPage(browser);
  const dir = fs.mkdtempSync(path.join(os.tmpdir(), 'morve-questions-'));
  const results = [];
  for (const [i, c] of yesCases().entries()) {
    let why;
    try {
      const run = await d.checkCase(page, url, c.json, h.writeCase(dir, `caso${i}.json`, c.json));
      why = run.why;
      const yes = run.s.messages.filter((m) => m.kind === 'yesno' && m.answer === 'yes');
      if (!yes.length) why.push('a página não fez a pergunta que recebe o Sim');
      for (const m of run.s.messages.filter((x) => x.kind === 'yesno' && x.focused !== 'no'))
        why.push(`"${m.text}": o botão com o foco é ${m.focused}, não o Não`);
      const steps = run.native.steps;
      const focus = steps.length ? steps[steps.length - 1].focus : null;
      const focused = await page.evaluate(() => (document.activeElement && document.activeElement.dataset.name) || null);
      if (focus && d.qualify(c.json.module, focus) !== focused) why.push(`foco em ${focused}, morve-calc em ${focus}`);
    } catch (e) { why = [e.message, ...page.errors.splice(0)]; }
    console.log(`${why.length ? 'DIFERE' : 'ok    '} ${c.name}`);
    results.push({ name: c.name, ok: !why.length, why });
  }
  fs.rmSync(dir, { recursive: true, force: true });
  if (!results.length) results.push({ name: 'perguntas', ok: false, why: ['nenhum caso responde Sim'] });
  return h.tally(results);
});
