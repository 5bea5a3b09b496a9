'use strict';
// Nothing typed is lost with the tab. The beam example is typed and calculated,
// and the page loaded again in the same browser offers its values back: Yes
// opens the module with them. A value changed and left to the check every 10 s
// comes back too. A copy cut short is refused with a warning and forgotten, and
// after "Novo" a load offers nothing.
const h = require('./harness');
const d = require('./case_driver');

const EXAMPLE = 'form7-armadura-simples';
const KEEP_PERIOD_MS = 10000;

// The page loaded anew: the boxes it showed, each answered Yes (or OK).
async function reload(page, url) {
  await h.load(page, url);
  const s = { page, answers: ['yes'], messages: [] };
  await d.settle(s, await d.pageMark(page));
  return s.messages;
}

h.main(async (browser, url) => {
  const ex = h.examples().find((e) => e.name === EXAMPLE);
  const key = ex.json.module;
  const names = Object.keys(ex.json.set).map((n) => d.qualify(key, n));
  const page = await h.newPage(browser, { keepStorage: true });
  const typed = async () => {
    const shown = (await d.readPage(page)).fields;
    return names.map((n) => `${n}="${shown[n]}"`).join(' ');
  };
  const results = [];
  const attempt = h.stepper(page, results);
  // Yes to the one question the load asks brings back what was typed.
  const recovered = async (want) => {
    const boxes = await reload(page, url);
    if (boxes.map((b) => b.kind).join() !== 'yesno') return [`a página recarregada mostrou [${boxes.map((b) => b.text)}], não a pergunta`];
    const got = await typed();
    return got === want ? [] : [`depois do Sim: ${got}; digitado: ${want}`];
  };

  await attempt('digitado e calculado', async () => {
    await d.playCase(page, url, ex.json, h.env.examples, []);
    return recovered(await typed());
  });
  await attempt('digitado e deixado 10 s', async () => {
    const [name, value] = Object.entries(ex.json.set)[0];
    await d.typeText(page, await d.element(page, d.qualify(key, name)), String(Number(value) + 1));
    await d.sleep(KEEP_PERIOD_MS + 1500);
    return recovered(await typed());
  });
  await attempt('cópia danificada', async () => {
    await page.evaluate(() => {
      for (const k of Object.keys(localStorage)) localStorage.setItem(k, localStorage.getItem(k).slice(0, localStorage.getItem(k).length / 2));
    });
    const boxes = await reload(page, url);
    const why = boxes.map((b) => b.kind).join() === 'yesno,warning' && boxes[1].text ? []
      : [`a cópia danificada mostrou [${boxes.map((b) => `${b.kind}: ${b.text}`)}], não a pergunta e o aviso`];
    if ((await reload(page, url)).length) why.push('a cópia danificada foi oferecida de novo');
    return why;
  });
  await attempt('"Novo" depois de calcular', async () => {
    await d.playCase(page, url, ex.json, h.env.examples, []);
    await d.backToMain(page, key);
    await d.pressButton(page, `${key}.Toolbar1.Novo`);
    const boxes = await reload(page, url);
    const why = boxes.length ? [`depois de "Novo" a página ofereceu [${boxes.map((b) => b.text)}]`] : [];
    if (!(await page.$eval('#start', (e) => e.checkVisibility()).catch(() => false))) why.push('a caixa de início não apareceu');
    return why;
  });
  return h.tally(results);
});
