'use strict';
// A case file played on the page as a user would: the start dialog's lists, the
// module from the menu, a project file through "Abrir", texts typed key by key
// into the boxes and table cells (so the key filters run), lists moved with the
// arrows, options clicked, buttons pressed and questions answered from the case's
// "answers" (No or Cancel once they run out, as morve-calc does). The page's
// fields, tables and messages are then set against morve-calc's output.
const path = require('path');
const { load, calcCase, writeCase } = require('./harness');
const { q, qualify, pageMark, settle, chooseItem, typeText, textOf, press, backTo, confirmStart, openModule,
  readPage, badWords, forceControl, element } = require('./page_actions');

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

// A .mor file opened with "Abrir" and the browser's file picker.
async function openProject(s, file) {
  const mark = await pageMark(s.page);
  const [chooser] = await Promise.all([s.page.waitForFileChooser({ timeout: 5000 }),
    s.page.click(q(`${s.key}.Toolbar1.Abrir`))]);
  await chooser.accept([file]);
  await settle(s, mark);
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

module.exports = { ...require('./page_actions'), playCase, checkCase, compare, variants, writeCase };
