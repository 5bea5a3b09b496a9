'use strict';
// What every browser test shares: the web build served from a free local port,
// Debian's Chromium driven headless by puppeteer-core, the page brought to its
// menu, and the native morve-calc of the same build, whose output is the reference.
const fs = require('fs');
const http = require('http');
const os = require('os');
const path = require('path');
const { spawnSync } = require('child_process');
const puppeteer = require('puppeteer-core');

const env = {
  web: process.env.MORVE_WEB,
  calc: process.env.MORVE_CALC,
  examples: process.env.MORVE_EXAMPLES,
  cases: process.env.MORVE_CASES,
  shots: process.env.MORVE_SHOTS,
};

// A test that cannot run here (no web build) reports it and lets ctest skip it.
const SKIP = 77;
const CHROMIUM = '/usr/bin/chromium';
function requireWebBuild() {
  const missing = !fs.existsSync(CHROMIUM) ? `sem ${CHROMIUM} (pacote chromium)`
    : !(env.web && fs.existsSync(path.join(env.web, 'index.html'))) ? `sem a versão web em ${env.web} ("make web")` : '';
  if (!missing) return;
  console.log(`teste pulado: ${missing}`);
  process.exit(SKIP);
}

const TYPES = { '.html': 'text/html; charset=utf-8', '.js': 'text/javascript; charset=utf-8',
  '.css': 'text/css; charset=utf-8', '.wasm': 'application/wasm', '.svg': 'image/svg+xml',
  '.json': 'application/json', '.png': 'image/png', '.gif': 'image/gif', '.jpg': 'image/jpeg',
  '.ico': 'image/x-icon', '.mor': 'text/plain; charset=utf-8' };

// A static server like any a user would put the folder on: files with their
// type and date, and "not modified" to a browser that already holds them.
function serve(root) {
  const server = http.createServer((req, res) => {
    let file = path.join(root, decodeURIComponent(new URL(req.url, 'http://x').pathname));
    if (!file.startsWith(root)) { res.writeHead(403).end(); return; }
    if (fs.existsSync(file) && fs.statSync(file).isDirectory()) file = path.join(file, 'index.html');
    fs.stat(file, (err, st) => {
      if (err) { res.writeHead(404).end(); return; }
      const modified = st.mtime.toUTCString();
      const since = req.headers['if-modified-since'];
      if (since && Math.floor(st.mtimeMs / 1000) <= Math.floor(Date.parse(since) / 1000)) {
        res.writeHead(304, { 'Last-Modified': modified }).end();
        return;
      }
      res.writeHead(200, { 'Content-Type': TYPES[path.extname(file)] || 'application/octet-stream',
        'Content-Length': st.size, 'Last-Modified': modified });
      fs.createReadStream(file).pipe(res);
    });
  });
  return new Promise((resolve) => server.listen(0, '127.0.0.1', () => resolve({
    url: `http://127.0.0.1:${server.address().port}/`,
    close: () => new Promise((done) => { server.closeAllConnections(); server.close(done); }),
  })));
}

const FLAGS = ['--headless=new', '--no-sandbox', '--disable-gpu', '--disable-quic', '--no-first-run',
  '--disable-background-networking', '--disable-component-update', '--disable-sync'];

// A student's laptop screen; MORVE_WINDOW=1280x720 tries the smallest window the page is made for.
const WINDOW = (process.env.MORVE_WINDOW || '1366x768').split('x').map(Number);

// Chromium with a profile of its own, removed with the browser; with its
// scrollbars, which take room and show in the pictures as a user sees them.
async function launch() {
  const profile = fs.mkdtempSync(path.join(os.tmpdir(), 'morve-chromium-'));
  const browser = await puppeteer.launch({ executablePath: CHROMIUM, headless: true, ignoreDefaultArgs: ['--hide-scrollbars'],
    args: FLAGS, userDataDir: profile, defaultViewport: { width: WINDOW[0], height: WINDOW[1] } });
  const close = browser.close.bind(browser);
  browser.close = async () => { await close(); fs.rmSync(profile, { recursive: true, force: true }); };
  return browser;
}

// A page whose console errors, uncaught exceptions and failed loads are kept for the test to check.
// Each load is a first visit, the data a case left typed not offered back,
// unless the test is about what a load finds (keepStorage).
async function newPage(browser, { keepStorage = false } = {}) {
  const page = await browser.newPage();
  if (!keepStorage) await page.evaluateOnNewDocument(() => { try { localStorage.clear(); } catch (e) { /* no storage here */ } });
  page.errors = [];
  // The browser asks for /favicon.ico by itself; the rest the page asked for.
  const own = (text) => /favicon\.ico/.test(text);
  page.on('console', (m) => {
    if (m.type() === 'error' && !own(m.location().url || '')) page.errors.push(`console: ${m.text()}`);
  });
  page.on('pageerror', (e) => page.errors.push(`exceção: ${(e.stack || e.message).split('\n').slice(0, 2).join(' ')}`));
  page.on('requestfailed', (r) => page.errors.push(`falha ao carregar ${r.url()}`));
  page.on('response', (r) => { if (r.status() >= 400 && !own(r.url())) page.errors.push(`${r.status()} ${r.url()}`); });
  // Counts the page's returns to idle (data-busy "1" -> "0"), so that a step can
  // wait for every request it caused, however many questions it took.
  await page.evaluateOnNewDocument(() => {
    window.morveIdle = 0;
    new MutationObserver((records) => {
      const changes = records.filter((r) => r.target === document.body);
      changes.forEach((r, i) => {
        const next = i + 1 < changes.length ? changes[i + 1].oldValue : document.body.dataset.busy;
        if (r.oldValue === '1' && next !== '1') window.morveIdle++;
      });
    }).observe(document, { subtree: true, attributes: true, attributeFilter: ['data-busy'], attributeOldValue: true });
  });
  // Printing is the browser's own dialog, which a headless page cannot close:
  // the tests count the calls and print to PDF themselves.
  await page.evaluateOnNewDocument(() => { window.print = () => { window.morvePrinted = (window.morvePrinted || 0) + 1; }; });
  return page;
}

// The page loaded up to its menu (or its start dialog), in milliseconds.
async function load(page, url) {
  const t0 = Date.now();
  await page.goto(url, { waitUntil: 'domcontentloaded' });
  await page.waitForFunction(() => document.body && document.body.dataset.ready === '1', { timeout: 20000 });
  return Date.now() - t0;
}

// The native program on a case: its parsed output, or a thrown error with its stderr.
function calc(args) {
  const r = spawnSync(env.calc, args, { encoding: 'utf8', maxBuffer: 64 << 20 });
  if (r.status !== 0) throw new Error(`morve-calc ${args.join(' ')}: ${r.stderr || r.error}`);
  return r.stdout;
}
const calcCase = (file) => JSON.parse(calc([file]));

// A case that exists only in memory written where its project files resolve.
function writeCase(dir, name, caseJson) {
  const file = path.join(dir, name);
  fs.writeFileSync(file, JSON.stringify(caseJson, null, 1));
  return file;
}

function examples() {
  return fs.readdirSync(env.examples).filter((f) => f.endsWith('.json')).sort()
    .map((f) => ({ name: path.basename(f, '.json'), file: path.join(env.examples, f),
      json: JSON.parse(fs.readFileSync(path.join(env.examples, f), 'utf8')) }));
}

// Named steps of a test on one page, each a list of differences, into results;
// a step that throws fails with its message; the page's errors count against it.
function stepper(page, results) {
  return async (name, body) => {
    let why;
    try { why = [...(await body()), ...page.errors.splice(0)]; } catch (e) { why = [e.message, ...page.errors.splice(0)]; }
    console.log(`${why.length ? 'DIFERE' : 'ok    '} ${name}`);
    results.push({ name, ok: !why.length, why });
  };
}

// Ends with the line ctest and CI read; failures make the exit status.
function tally(results) {
  const failed = results.filter((r) => !r.ok);
  for (const r of failed) console.log(`FALHOU ${r.name}:\n  ${r.why.join('\n  ')}`);
  console.log(`${results.length - failed.length} passed, ${failed.length} failed`);
  return failed.length ? 1 : 0;
}

// Runs body with a server and a browser, always stopping both.
async function withBrowser(body) {
  requireWebBuild();
  const server = await serve(path.resolve(env.web));
  const browser = await launch();
  try {
    return await body(browser, server.url);
  } finally {
    await browser.close();
    await server.close();
  }
}

function main(body) {
  const t0 = Date.now();
  withBrowser(body).then((status) => {
    console.log(`(${((Date.now() - t0) / 1000).toFixed(1)} s)`);
    process.exit(status);
  }, (e) => { console.error(e); process.exit(1); });
}

module.exports = { env, serve, launch, newPage, load, calc, calcCase, writeCase, examples, stepper, tally, main };
