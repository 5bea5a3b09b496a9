'use strict';
// A module's windows as a user handles them: a drawing that opens without
// holding its module back comes beside it, every control of the module still
// in reach; a window's title bar moves it; a click on a window brings it to the
// front over the one it overlaps.
const path = require('path');
const h = require('./harness');
const d = require('./case_driver');

// The slab whose grid drawing opens with its last press, beside the slab's window.
const EXAMPLE = 'form24f-laje-em-l';
const OPENS_DRAWING = 'Command7';
const DRAG = [-300, 40];

// The shown windows: name, box, and the controls of each that another window covers.
function windows(page) {
  return page.$$eval('section.screen:not([hidden])', (sections) => sections.map((s) => {
    const r = s.getBoundingClientRect();
    const covered = [...s.querySelectorAll('[data-name]')].filter((e) => e.checkVisibility()).filter((e) => {
      const b = e.getBoundingClientRect();
      const top = document.elementFromPoint(b.left + b.width / 2, b.top + b.height / 2);
      return top && top.closest('section.screen') !== s && top.closest('section.screen');
    }).map((e) => e.dataset.name);
    return { name: s.dataset.screen, left: r.left, top: r.top, right: r.right, bottom: r.bottom, covered };
  }));
}

const titleOf = (name) => `section.screen[data-screen="${name}"] > .titlebar > span`;

async function drag(page, name, [dx, dy]) {
  const bar = await (await page.$(titleOf(name))).boundingBox();
  const [x, y] = [bar.x + 20, bar.y + bar.height / 2];
  await page.mouse.move(x, y);
  await page.mouse.down();
  await page.mouse.move(x + dx, y + dy, { steps: 6 });
  await page.mouse.up();
}

h.main(async (browser, url) => {
  const page = await h.newPage(browser);
  const ex = h.examples().find((e) => e.name === EXAMPLE);
  const c = { ...ex.json, press: ex.json.press.slice(0, ex.json.press.indexOf(OPENS_DRAWING) + 1) };
  const why = [];
  await d.playCase(page, url, c, path.dirname(ex.file), c.press);
  const mainOf = async () => (await windows(page)).find((w) => w.name === c.module);
  const [main, drawing] = [await mainOf(), (await windows(page)).find((w) => w.name !== c.module)];
  if (!drawing) return h.tally([{ name: EXAMPLE, ok: false, why: [`${OPENS_DRAWING} não abriu o desenho`] }]);
  if (main.covered.length) why.push(`o desenho cobre ${main.covered.join(', ')}`);

  await drag(page, drawing.name, DRAG);
  const moved = (await windows(page)).find((w) => w.name === drawing.name);
  if (Math.round(moved.left - drawing.left) !== DRAG[0] || Math.round(moved.top - drawing.top) !== DRAG[1])
    why.push(`arrastado por ${DRAG}, o desenho andou ${Math.round(moved.left - drawing.left)},${Math.round(moved.top - drawing.top)}`);
  if (!(await mainOf()).covered.length) why.push('o desenho arrastado não ficou sobre a janela da laje');

  await page.click(titleOf(main.name));
  const raised = await mainOf();
  if (raised.covered.length) why.push(`a janela clicada ficou sob o desenho: ${raised.covered.join(', ')}`);
  const picture = await (await page.$(`section.screen[data-screen="${drawing.name}"] .picture`)).boundingBox();
  await page.mouse.click(picture.x + picture.width - 10, picture.y + picture.height - 10);
  if (!(await mainOf()).covered.length) why.push('o desenho clicado não veio para a frente');
  why.push(...page.errors.splice(0));
  return h.tally([{ name: EXAMPLE, ok: !why.length, why }]);
});
