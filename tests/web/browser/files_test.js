'use strict';
// Files that leave or enter the page: a project saved with "Salvar" is the file
// morve-calc saves on the same case, and morve-calc opening it gets the page's
// fields; a project of examples/ opened with "Abrir" shows what morve-calc shows;
// "Imprimir" lays out the report's lines as morve-calc writes them, and the
// browser's PDF of it (print styles) holds the same lines, one report page a sheet.
const fs = require('fs');
const os = require('os');
const path = require('path');
const { execFileSync } = require('child_process');
const h = require('./harness');
const d = require('./case_driver');

// A beam with its answer, and a continuous beam with tables and diagrams.
const PLAYED = ['form7-armadura-simples', 'form34-tres-vaos'];

const sleep = (ms) => new Promise((r) => setTimeout(r, ms));
const squeeze = (t) => t.replace(/\s+/g, ' ').trim();

async function download(page, dir, key) {
  const before = new Set(fs.readdirSync(dir));
  await d.backToMain(page, key);
  await page.click(d.q(`${key}.Toolbar1.Salvar`));
  await d.confirmDialog(page, 'file-name');
  for (let t = 0; t < 100; t++) {
    const got = fs.readdirSync(dir).filter((f) => !before.has(f) && !f.endsWith('.crdownload'));
    if (got.length) return path.join(dir, got[0]);
    await sleep(50);
  }
  throw new Error('"Salvar" não baixou nenhum arquivo');
}

async function checkSave(page, ex, dir) {
  const why = [];
  const web = await download(page, dir, ex.json.module);
  const native = path.join(dir, `${ex.name}.native.mor`);
  h.calc(['--save', native, ex.file]);
  if (!fs.readFileSync(web).equals(fs.readFileSync(native))) why.push(`o arquivo salvo difere do de morve-calc --save (${path.basename(web)})`);
  const reopened = h.calcCase(h.writeCase(dir, `${ex.name}.open.json`,
    { module: ex.json.module, startup: ex.json.startup, open: web }));
  why.push(...d.compare(await d.readPage(page), reopened, null).map((w) => `aberto por morve-calc: ${w}`));
  return why;
}

// Report pages as lines, pictures as "[figura]", blank lines left out.
function textPages(text) {
  return text.split('\f').map((p) => p.split('\n').slice(1).map((l) => l.trimEnd()).filter((l) => l));
}

async function checkReport(page, ex, dir) {
  const why = [];
  const key = ex.json.module;
  await d.backToMain(page, key);
  await d.openReport(page, key);
  const shown = await page.$$eval('#report .report-page', (pages) => pages.map((p) =>
    [...p.querySelectorAll('.report-line, .report-picture')].map((e) => (e.classList.contains('report-picture')
      ? (e.querySelector('svg') ? '[figura]' : '[figura sem svg]') : e.textContent.trimEnd())).filter((l) => l)));
  const txt = path.join(dir, `${ex.name}.txt`);
  h.calc(['--report', txt, ex.file]);
  const want = textPages(fs.readFileSync(txt, 'utf8'));
  if (shown.length !== want.length) why.push(`o relatório tem ${shown.length} páginas, morve-calc ${want.length}`);
  want.forEach((lines, p) => {
    const got = (shown[p] || []).filter((l, i) => i || l.trim() !== String(p + 1));
    lines.forEach((l, i) => { if (got[i] !== l) why.push(`página ${p + 1}, linha ${i + 1}: "${got[i]}", morve-calc "${l}"`); });
    if (got.length > lines.length) why.push(`página ${p + 1}: linhas a mais: "${got[lines.length]}"`);
  });
  await page.click(d.q('Report.Imprimir'));
  if (!(await page.evaluate(() => window.morvePrinted))) why.push('"Imprimir" do relatório não chamou a impressão do navegador');
  const pdf = path.join(dir, `${ex.name}.pdf`);
  await page.pdf({ path: pdf, preferCSSPageSize: true, printBackground: true });
  const sheets = execFileSync('pdftotext', ['-layout', pdf, '-'], { encoding: 'utf8' }).split('\f').filter((s) => s.trim());
  if (sheets.length !== want.length) why.push(`o PDF tem ${sheets.length} folhas, o relatório ${want.length} páginas`);
  const printed = squeeze(sheets.join(' '));
  let from = 0;
  for (const l of want.flat().filter((x) => x !== '[figura]')) {
    const at = printed.indexOf(squeeze(l), from);
    if (at < 0) { why.push(`o PDF não tem, na ordem, a linha "${squeeze(l)}"`); break; }
    from = at + squeeze(l).length;
  }
  return why;
}

h.main(async (browser, url) => {
  const page = await h.newPage(browser);
  const dir = fs.mkdtempSync(path.join(os.tmpdir(), 'morve-files-'));
  const cdp = await page.createCDPSession();
  await cdp.send('Browser.setDownloadBehavior', { behavior: 'allow', downloadPath: dir });
  const results = [];
  const attempt = h.stepper(page, results);
  const all = h.examples();
  for (const ex of all.filter((e) => PLAYED.includes(e.name))) {
    let played = false;
    await attempt(`${ex.name}: salvar`, async () => {
      const why = (await d.checkCase(page, url, ex.json, ex.file)).why.map((w) => `antes de salvar: ${w}`);
      played = true;
      return [...why, ...(await checkSave(page, ex, dir))];
    });
    if (played) await attempt(`${ex.name}: relatório`, () => checkReport(page, ex, dir));
  }
  for (const ex of all.filter((e) => e.json.open)) {
    await attempt(`${ex.name}: abrir ${ex.json.open}`, async () => {
      const c = { module: ex.json.module, startup: ex.json.startup, open: path.resolve(h.env.examples, ex.json.open), press: [] };
      return (await d.checkCase(page, url, c, h.writeCase(dir, `${ex.name}.abrir.json`, c))).why;
    });
  }
  fs.rmSync(dir, { recursive: true, force: true });
  return h.tally(results);
});
