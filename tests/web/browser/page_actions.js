'use strict';
// What a user does on the page, step by step, through the names the page gives
// its elements (data-name, data-module, dialog#message ...): the start dialog,
// the menus, keys typed into boxes, lists moved with the arrows, buttons pressed
// with every message box answered, the way back to a screen, the report opened;
// and what the page shows, read back.

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

async function press(s, name) {
  const el = await element(s.page, name);
  const state = await el.evaluate((e) => ({ disabled: e.disabled, visible: e.checkVisibility() }));
  if (state.disabled || !state.visible)
    throw new Error(`o botão ${name} está ${state.disabled ? 'desabilitado' : 'escondido'} na página`);
  // A button under another screen, or out of the window, is out of a user's reach too.
  const over = await el.evaluate((e) => {
    e.scrollIntoView({ block: 'center' });
    const r = e.getBoundingClientRect();
    const top = document.elementFromPoint(r.left + r.width / 2, r.top + r.height / 2);
    if (!top) return 'fora da janela, sem rolagem que o traga';
    return e.contains(top) ? '' : `coberto por ${(top.closest('[data-screen]') || top).dataset.screen || top.tagName}`;
  });
  if (over) throw new Error(`o botão ${name} está ${over}`);
  const mark = await pageMark(s.page);
  await el.click().catch((e) => { throw new Error(`${name}: ${e.message}`); });
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
// outermost first, pointed at and clicked (a menu of the bar only when pointing
// does not open it, as a second click there closes it); each must stay open.
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
    if (i > 0 || !(await opened())) await title.click();
    if (!(await opened())) throw new Error(`o menu ${await title.evaluate((b) => b.textContent)} não abriu`);
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

module.exports = { START_LISTS, q, qualify, sleep, pageMark, settle, element, chooseItem, typeText, textOf, press, backTo, backToMain,
  pressButton, confirmDialog, openReport, confirmStart, openModule, readPage, badWords, forceControl };
