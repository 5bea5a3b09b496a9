'use strict';
// A case file played on the page as a user would: the start dialog's lists, the
// module from the menu, a project file through "Abrir", texts typed key by key
// into the boxes and table cells (so the key filters run), lists moved with the
// arrows, options clicked, buttons pressed and questions answered from the case's
// "answers" (No or Cancel once they run out, as morve-calc does). The page's
// fields, tables and messages are then set against morve-calc's output.
const path = require('path');
const { load, calcCase, writeCase } = require('./harness');

const START_LISTS = ['fck', 'stirrups', 'bars', 'ecs', 'es'];
const q = (name) => `[data-name="${name}"]`;
const qualify = (key, name) => (/^Form[^.]*\./.test(name) ? name : `${key}.${name}`);
const sleep = (ms) => new Promise((r) => setTimeout(r, ms));

const pageMark = (page) => page.evaluate(() => window.morveIdle);

// Waits for the page to finish what the last action started, answering each
// message box on the way; resolves when it has been idle with no box for a
// moment. An action that sent nothing to the core is done after a short while.
async function settle(s, mark, limit = 15000) {
  const t0 = Date.now();
  let calm = 0, started = false;
  while (Date.now() - t0 < limit) {
    const now = await s.page.evaluate(() => {
      const box = document.querySelector('dialog#message');
      return { idle: window.morveIdle, busy: document.body.dataset.busy === '1', box: !!(box && box.open) };
    });
    if (now.box) { await answerBox(s); calm = 0; continue; }
    started = started || now.busy || now.idle > mark;
    const finished = now.idle > mark || (!started && Date.now() - t0 > 100);
    calm = finished && !now.busy ? calm + 1 : 0;
    if (calm >= 4) return;
    await sleep(15);
  }
  throw new Error(`a página ficou ocupada por mais de ${limit / 1000} s`);
}

async function answerBox(s) {
  const box = await s.page.evaluate(() => {
    const d = document.querySelector('dialog#message');
    const text = (sel) => (d.querySelector(sel) || { textContent: '' }).textContent;
    return { title: text('.message-title'), text: text('.message-text'),
      buttons: [...d.querySelectorAll('[data-answer]')].filter((b) => b.checkVisibility()).map((b) => b.dataset.answer),
      focused: document.activeElement && document.activeElement.dataset ? document.activeElement.dataset.answer || null : null };
  });
  const kind = box.buttons.includes('yes') ? 'yesno' : box.buttons.includes('cancel') ? 'okcancel' : 'warning';
  let answer = 'ok';
  if (kind === 'yesno') answer = s.answers.shift() === 'yes' ? 'yes' : 'no';
  if (kind === 'okcancel') answer = ['ok', 'yes'].includes(s.answers.shift()) ? 'ok' : 'cancel';
  s.messages.push({ kind, title: box.title, text: box.text, answer, focused: box.focused });
  await s.page.click(`dialog#message [data-answer="${answer}"]`);
  await s.page.waitForFunction((t) => {
    const d = document.querySelector('dialog#message');
    return !d.open || (d.querySelector('.message-text') || {}).textContent !== t;
  }, { timeout: 1000 }, box.text).catch(() => {});
}

async function element(page, name) {
  const el = await page.$(q(name));
  if (!el) throw new Error(`a página não tem ${name}`);
  return el;
}

// A list moved to the item with the arrow keys, as a keyboard user does; each
// move is a pick the page may send to the module, waited for as a user would.
async function chooseItem(s, name, text) {
  const el = await element(s.page, name);
  const at = await el.evaluate((e, t) => ({ from: e.selectedIndex, to: [...e.options].findIndex((o) => o.text === t) }), text);
  if (at.to < 0) throw new Error(`a lista ${name} não tem o item "${text}"`);
  await el.focus();
  for (let i = at.from; i !== at.to; i += Math.sign(at.to - at.from)) {
    const mark = await pageMark(s.page);
    await s.page.keyboard.press(at.to > at.from ? 'ArrowDown' : 'ArrowUp');
    await settle(s, mark);
  }
}

// Selects what the box holds and types over it (Delete empties it, as the
// program's boxes take no Backspace); the key filter has its say on every key.
async function typeText(page, el, text) {
  await el.click();
  await el.evaluate((e) => e.select());
  if (text === '') await page.keyboard.press('Delete');
  else await page.keyboard.type(text);
  return el.evaluate((e) => e.value);
}

function textOf(v) { return v === null || v === undefined ? '' : typeof v === 'string' ? v : JSON.stringify(v); }

// One value of the case into its control: a list picked, an option clicked, a box typed.
async function setControl(s, name, value) {
  const el = await element(s.page, name);
  const kind = await el.evaluate((e) => (e.tagName === 'SELECT' ? 'list' : e.type));
  if (kind === 'list' && textOf(value) === '') return forceControl(s, { name, value: '' });
  if (kind === 'list') return chooseItem(s, name, textOf(value));
  if (kind === 'radio' || kind === 'checkbox') {
    const on = value === true || value === 'true';
    const mark = await pageMark(s.page);
    if ((await el.evaluate((e) => e.checked)) !== on) await el.click();
    return settle(s, mark);
  }
  const shown = await typeText(s.page, el, textOf(value));
  if (shown !== textOf(value)) s.why.push(`${name}: digitado "${textOf(value)}", a caixa ficou com "${shown}"`);
}

// A table filled cell by cell; rows the table does not have yet come as a
// block pasted on the last row it has, as from a spreadsheet. Rows the case
// leaves out are emptied, as the case runner keeps only the rows it is given.
async function fillGrid(s, name, rows) {
  const cell = (r, c) => s.page.$(`${q(name)} input[data-row="${r}"][data-col="${c}"]`);
  for (let r = 1; r <= rows.length; r++) {
    if (!(await cell(r, 0)) && r > 1) await pasteRows(await cell(r - 1, 0), rows.slice(r - 2));
    for (let c = 0; c < rows[r - 1].length; c++) {
      const want = textOf(rows[r - 1][c]);
      const el = await cell(r, c);
      if (!el) throw new Error(`a tabela ${name} não tem a célula (${r}, ${c})`);
      const fixed = await el.evaluate((e, w) => (e.readOnly ? (e.value === w ? 'same' : 'locked') : e.value === w && e.dataset.pasted ? 'same' : ''), want);
      if (fixed === 'locked') {
        s.notes.push(`${name}[${r}][${c}]: célula travada, o caso dá "${want}"`);
        s.locked.add(`${name}[${r}][${c}]`);
      }
      if (fixed) continue;
      const shown = await typeText(s.page, el, want);
      if (shown !== want) s.why.push(`${name}[${r}][${c}]: digitado "${want}", a célula ficou com "${shown}"`);
    }
  }
  const extra = await s.page.$$eval(`${q(name)} input[data-row]`, (cells, n) =>
    cells.filter((e) => Number(e.dataset.row) > n && !e.readOnly && e.value !== '').map((e) => [e.dataset.row, e.dataset.col]), rows.length);
  for (const [r, c] of extra) await typeText(s.page, await cell(r, c), '');
}

// Whether a user could work the control now: on a screen in view, not disabled,
// and, for a table, with a first row to type in.
function workable(page, name) {
  return page.evaluate((n) => {
    const e = document.querySelector(`[data-name="${n}"]`);
    if (!e || !e.checkVisibility() || e.disabled || e.closest('[inert], fieldset[disabled]')) return false;
    return e.tagName !== 'TABLE' || !!e.querySelector('input[data-row="1"]');
  }, name);
}

// The case's values wait until their control can be worked: a companion's
// boxes are typed once a press has brought it into view, as a user would.
function queue(s, set = {}, grids = {}) {
  for (const [name, value] of Object.entries(set)) s.pending.push({ name: qualify(s.key, name), value });
  for (const [name, rows] of Object.entries(grids)) s.pending.push({ name: qualify(s.key, name), rows });
}

// A case may give values to a companion that none of its presses brings into
// view (the button that opens it left out): its boxes are put straight into the
// page's controls before the first press, as the case runner sets them, and
// noted; its tables wait for the module to point at the button (see press).
async function flush(s, unseen = new Set()) {
  for (const item of [...s.pending]) {
    const forced = unseen.has(item.name.split('.')[0]) && !item.rows;
    if (!forced && !(await workable(s.page, item.name))) continue;
    s.pending.splice(s.pending.indexOf(item), 1);
    try {
      if (forced) await forceControl(s, item);
      else if (item.rows) await fillGrid(s, item.name, item.rows);
      else await setControl(s, item.name, item.value);
    } catch (e) { throw new Error(`${item.name}: ${e.message}`); }
  }
}

async function forceControl(s, { name, value, rows }) {
  s.notes.push(`${name}: posto direto, sem teclado ("${rows ? 'tabela' : textOf(value)}")`);
  const missing = await s.page.evaluate((n, v, cells) => {
    const e = document.querySelector(`[data-name="${n}"]`);
    if (!e) return 'a página não tem o controle';
    if (cells) {
      for (const [r, row] of cells.entries())
        for (const [c, text] of row.entries()) {
          const cell = e.querySelector(`input[data-row="${r + 1}"][data-col="${c}"]`);
          if (!cell) return `a tabela não tem a célula (${r + 1}, ${c})`;
          cell.value = text;
        }
    } else if (e.tagName === 'SELECT') e.selectedIndex = [...e.options].findIndex((o) => o.text === v);
    else if (e.type === 'radio' || e.type === 'checkbox') e.checked = v === 'true';
    else e.value = v;
    return '';
  }, name, rows ? null : textOf(value), rows ? rows.map((r) => r.map(textOf)) : null);
  if (missing) throw new Error(missing);
}

async function pasteRows(at, rows) {
  if (!at) return;
  await at.evaluate((e, text) => {
    const data = new DataTransfer();
    data.setData('text/plain', text);
    e.focus();
    e.dispatchEvent(new ClipboardEvent('paste', { clipboardData: data, bubbles: true, cancelable: true }));
    for (const c of e.closest('table').querySelectorAll('input[data-row]')) if (Number(c.dataset.row) >= Number(e.dataset.row)) c.dataset.pasted = '1';
  }, rows.map((r) => r.map(textOf).join('\t')).join('\n'));
}

async function press(s, name) {
  const el = await element(s.page, name);
  const state = await el.evaluate((e) => ({ disabled: e.disabled, visible: e.checkVisibility() }));
  if (state.disabled || !state.visible)
    throw new Error(`o botão ${name} está ${state.disabled ? 'desabilitado' : 'escondido'} na página`);
  // A button under another screen cannot be clicked by a user either.
  const over = await el.evaluate((e) => {
    e.scrollIntoView({ block: 'center' });
    const r = e.getBoundingClientRect();
    const top = document.elementFromPoint(r.left + r.width / 2, r.top + r.height / 2);
    return !top || e.contains(top) ? '' : (top.closest('[data-screen]') || top).dataset.screen || top.tagName;
  });
  if (over) throw new Error(`o botão ${name} está coberto por ${over}`);
  const mark = await pageMark(s.page);
  await el.click().catch((e) => { throw new Error(`${name}: ${e.message}`); });
  await settle(s, mark);
}

// A .mor file opened with "Abrir" and the browser's file picker.
async function openProject(s, file) {
  const mark = await pageMark(s.page);
  const [chooser] = await Promise.all([s.page.waitForFileChooser({ timeout: 5000 }),
    s.page.click(q(`${s.key}.Toolbar1.Abrir`))]);
  await chooser.accept([file]);
  await settle(s, mark);
}

// Back to where a control can be reached (the main screen's toolbar, say), as a
// user would: Esc on the companion on top, or its one button (a results window's "OK").
async function backTo(page, name) {
  const s = { page, answers: [], messages: [], why: [] };
  for (let i = 0; i < 6; i++) {
    if (await page.$eval(q(name), (e) => e.checkVisibility())) return;
    const mark = await pageMark(page);
    if (i % 2 === 0) await page.keyboard.press('Escape');
    else {
      const only = await page.$$('section.screen:not([hidden]) [data-kind="Command"]:not([disabled])');
      if (only.length === 1) await only[0].click();
    }
    await settle(s, mark);
  }
  throw new Error(`não foi possível voltar a ${name}`);
}

const backToMain = (page, key) => backTo(page, `${key}.Toolbar1.Salvar`);

// One button clicked outside a case, its messages answered with their defaults.
const pressButton = (page, name) => press({ page, answers: [], messages: [], why: [] }, name);

// A small dialog of the page (the report's title, a file's name) answered with OK.
async function confirmDialog(page, id) {
  await page.waitForSelector(`dialog#${id}[open]`, { timeout: 5000 });
  await page.click(`dialog#${id} [data-answer="ok"]`);
}

// "Imprimir" of the toolbar: the title asked and left empty, the report's pages shown.
async function openReport(page, key) {
  await page.click(q(`${key}.Toolbar1.Imprimir`));
  await confirmDialog(page, 'report-title');
  await page.waitForSelector('#report .report-page', { timeout: 5000 });
}

// The start dialog, when the page shows it, with the case's choices.
async function confirmStart(page, startup = {}) {
  const shown = await page.$eval('#start', (d) => d.checkVisibility()).catch(() => false);
  if (!shown) {
    if (Object.keys(startup).length) throw new Error('a página não mostrou a caixa de início');
    return;
  }
  const s = { page, answers: [], messages: [], why: [] };
  for (const [key, text] of Object.entries(startup))
    await chooseItem(s, `Form0.List${START_LISTS.indexOf(key) + 1}`, textOf(text));
  await page.click(q('Form0.Command1'));
  await page.waitForFunction(() => !document.querySelector('#start').checkVisibility(), { timeout: 5000 });
}

// The module's leaf in the menu, reached as with a mouse: each menu above it,
// outermost first, pointed at, and clicked when pointing does not open it.
async function openModule(page, key) {
  const leaf = await page.$(`[data-module="${key}"]`);
  if (!leaf) throw new Error(`o menu não tem ${key}`);
  const menus = await leaf.evaluateHandle((e) => {
    const chain = [];
    for (let m = e.parentElement.closest('[data-menu]'); m; m = m.parentElement.closest('[data-menu]')) chain.unshift(m);
    return chain;
  });
  for (let i = 0, n = await menus.evaluate((a) => a.length); i < n; i++) {
    const menu = await menus.evaluateHandle((a, at) => a[at], i);
    const title = await menu.$(':scope > button');
    const opened = () => menu.evaluate((m) => [...m.children].some((c) => c.tagName !== 'BUTTON' && c.checkVisibility()));
    await title.hover();
    if (!(await opened())) await title.click();
  }
  await leaf.click();
  await page.waitForFunction((k) => {
    const screen = document.querySelector(`section.screen[data-screen="${k}"]`);
    return screen && !screen.hidden && document.body.dataset.busy !== '1';
  }, { timeout: 10000 }, key);
}

// What the page shows: every box, list and option by name, every table by cell.
function readPage(page) {
  return page.evaluate(() => {
    const fields = {}, grids = {};
    for (const e of document.querySelectorAll('section.screen [data-name]')) {
      const n = e.dataset.name;
      if (e.tagName === 'TABLE') {
        const rows = (grids[n] = []);
        for (const c of e.querySelectorAll('input[data-row][data-col]')) {
          const r = Number(c.dataset.row);
          while (rows.length <= r) rows.push([]);
          rows[r][Number(c.dataset.col)] = c.value;
        }
      } else if (e.tagName === 'SELECT') fields[n] = e.selectedIndex < 0 ? '' : e.options[e.selectedIndex].text;
      else if (e.tagName === 'INPUT' && (e.type === 'radio' || e.type === 'checkbox')) fields[n] = e.checked ? 'True' : '';
      else if (e.tagName === 'INPUT' && !e.dataset.row) fields[n] = e.value;
    }
    const values = [...document.querySelectorAll('input, select')].map((e) => e.value).join('\n');
    return { fields, grids, text: `${document.body.innerText}\n${values}` };
  });
}

// Words a broken number or a missing value leaves on a page.
function badWords(text) {
  return [...new Set((text.match(/\b(nan|-?inf(inity)?|undefined|null)\b/gi) || []).map((w) => w.toLowerCase()))];
}

// Differences between the page and morve-calc: fields, table cells and, unless
// messages is null, the message boxes.
function compare(shown, native, messages, locked = new Set()) {
  const why = [];
  for (const [n, want] of Object.entries(native.fields)) {
    if (!(n in shown.fields)) { if (want !== '') why.push(`${n}: a página não mostra "${want}"`); continue; }
    if (shown.fields[n] !== want) why.push(`${n}: página "${shown.fields[n]}", morve-calc "${want}"`);
  }
  for (const [n, rows] of Object.entries(native.grids)) {
    const got = shown.grids[n] || [];
    if (!shown.grids[n] && rows.length > 1) { why.push(`${n}: a página não mostra a tabela`); continue; }
    for (let r = 1; r < Math.max(rows.length, got.length); r++)
      for (let c = 0; c < Math.max((rows[r] || []).length, (got[r] || []).length); c++) {
        const want = (rows[r] || [])[c] || '', have = (got[r] || [])[c] || '';
        if (want !== have && !locked.has(`${n}[${r}][${c}]`)) why.push(`${n}[${r}][${c}]: página "${have}", morve-calc "${want}"`);
      }
  }
  const expected = messages ? native.steps.flatMap((st) => st.messages) : [];
  messages = messages || [];
  const said = (m) => `${m.kind} "${m.title}": ${m.text} -> ${m.answer}`;
  for (let i = 0; i < Math.max(expected.length, messages.length); i++) {
    const a = messages[i], b = expected[i];
    if (!a || !b || a.kind !== b.kind || a.title !== b.title || a.text !== b.text || a.answer !== b.answer)
      why.push(`mensagem ${i + 1}: página ${a ? said(a) : '(nenhuma)'}; morve-calc ${b ? said(b) : '(nenhuma)'}`);
  }
  const bad = badWords(shown.text);
  if (bad.length) why.push(`a página mostra ${bad.join(', ')}`);
  return why;
}

// A press the module refuses for want of a table the case fills on a companion
// it never opens: as a user, follow the focus the module gives (the button of
// that companion), fill the table there, come back and press again.
async function pressFollowing(s, name) {
  const before = s.messages.length;
  await press(s, name);
  const refused = s.messages.slice(before).some((m) => m.kind === 'warning');
  if (!refused || !s.pending.some((i) => i.rows && s.unopened.has(i.name.split('.')[0]))) return;
  const hint = await s.page.evaluate(() => {
    const e = document.activeElement;
    return e && e.dataset.kind === 'Command' && !e.disabled ? e.dataset.name : null;
  });
  if (!hint || hint === name) return;
  s.notes.push(`${name}: a tabela do caso foi digitada pela tela que ${hint} abre, e ${name} apertado de novo`);
  s.messages.length = before;
  await press(s, hint);
  await flush(s);
  await backTo(s.page, name);
  await press(s, name);
}

// Plays a case on a freshly loaded page; the state it leaves is for the caller.
async function playCase(page, url, c, dir, nativePresses) {
  await load(page, url);
  await confirmStart(page, c.startup);
  await openModule(page, c.module);
  const s = { page, key: c.module, answers: (c.answers || []).map(textOf), messages: [], why: [], notes: [],
    pending: [], locked: new Set() };
  if (c.open) await openProject(s, path.resolve(dir, c.open));
  queue(s, c.set, c.grids);
  const presses = c.press || nativePresses;
  const named = new Set([c.module, ...presses.filter((p) => typeof p === 'string').map((p) => qualify(c.module, p).split('.')[0])]);
  s.unopened = new Set(s.pending.map((i) => i.name.split('.')[0]).filter((screen) => !named.has(screen)));
  let unseen = s.unopened;
  for (const p of presses) {
    if (typeof p === 'object') queue(s, p.set, p.grids);
    await flush(s, unseen);
    unseen = new Set();
    if (typeof p !== 'object') await pressFollowing(s, qualify(c.module, p));
  }
  await flush(s);
  for (const item of s.pending) s.why.push(`${item.name}: a página nunca deixou o controle ao alcance do usuário`);
  return s;
}

// A case played on the page and checked against morve-calc on the same file;
// returns the list of differences (empty when the page agrees).
async function checkCase(page, url, c, file) {
  const native = calcCase(file);
  const s = await playCase(page, url, c, path.dirname(file), native.steps.map((st) => st.press));
  const why = [...s.why, ...compare(await readPage(page), native, s.messages, s.locked), ...page.errors];
  page.errors.length = 0;
  return { why, s, native };
}

// Walks variant cases: a case file's own keys with each of its "cases" over them.
function variants(fileJson) {
  return (fileJson.cases || []).map((v) => {
    const merged = { ...fileJson };
    delete merged.cases;
    for (const [k, value] of Object.entries(v)) {
      const mergeable = ['set', 'grids'].includes(k) && merged[k] && typeof merged[k] === 'object';
      merged[k] = mergeable ? { ...merged[k], ...value } : value;
    }
    delete merged.expect;
    delete merged.why;
    return merged;
  });
}

module.exports = { pressButton, backToMain, confirmDialog, openReport, confirmStart, openModule, playCase, checkCase, readPage, compare, badWords,
  pageMark, settle, press, variants, writeCase, q, qualify };
