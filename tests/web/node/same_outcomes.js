// The core compiled to WebAssembly against the native morve-calc of the same build:
// every example and every case file under tests/ (each variant of a checked file
// as its own case) run through the "case" operation of morve.js must print what
// morve-calc prints, byte for byte. Then the page's key filters against the core's,
// key by key.
// node same_outcomes.js MORVE_JS MORVE_CALC SOURCE_DIR
'use strict';
const fs = require('fs');
const os = require('os');
const path = require('path');
const { spawnSync } = require('child_process');

const [morveJs, morveCalc, sourceDir] = process.argv.slice(2);
if (!fs.existsSync(morveJs)) {
  console.error(`${morveJs} is missing: run \`make web\` first`);
  process.exit(1);
}

function* caseFiles(dir) {
  for (const entry of fs.readdirSync(dir, { withFileTypes: true }).sort((a, b) => a.name.localeCompare(b.name))) {
    const full = path.join(dir, entry.name);
    if (entry.isDirectory()) yield* caseFiles(full);
    else if (entry.name.endsWith('.json')) yield full;
  }
}

// A checked file's variant as morve-calc --check runs it: the file's keys with the
// variant's over them, "set", "grids" and "expect" merged key by key.
function variantOf(file, variant) {
  const merged = { ...file };
  delete merged.cases;
  for (const [key, value] of Object.entries(variant)) {
    const mergeable = ['set', 'grids', 'expect'].includes(key) && typeof merged[key] === 'object';
    merged[key] = mergeable ? { ...merged[key], ...value } : value;
  }
  return merged;
}

// Each case as {name, text, dir}: the text both programs read, the folder its
// project file is named from.
function* cases() {
  const scratch = fs.mkdtempSync(path.join(os.tmpdir(), 'morve-node-'));
  for (const root of ['examples', 'tests']) {
    for (const file of caseFiles(path.join(sourceDir, root))) {
      const text = fs.readFileSync(file, 'utf8');
      let parsed;
      try { parsed = JSON.parse(text); } catch { parsed = null; }
      if (!parsed || typeof parsed !== 'object' || !('module' in parsed)) continue;
      const name = path.relative(sourceDir, file);
      if (!Array.isArray(parsed.cases)) {
        yield { name, text, file, dir: path.dirname(file) };
        continue;
      }
      for (const [i, variant] of parsed.cases.entries()) {
        const variantText = JSON.stringify(variantOf(parsed, variant), null, 1);
        const variantFile = path.join(scratch, path.basename(file));
        fs.writeFileSync(variantFile, variantText);
        yield { name: `${name} #${i + 1}`, text: variantText, file: variantFile, dir: path.dirname(file) };
      }
    }
  }
  fs.rmSync(scratch, { recursive: true, force: true });
}

function projectFiles(text, dir) {
  const files = {};
  try {
    const open = JSON.parse(text).open;
    if (typeof open === 'string' && !path.isAbsolute(open)) files[open] = fs.readFileSync(path.join(dir, open), 'utf8');
  } catch { /* a case that is not JSON opens nothing */ }
  return files;
}

function firstDifference(a, b) {
  const x = a.split('\n'), y = b.split('\n');
  for (let i = 0; i < Math.max(x.length, y.length); ++i)
    if (x[i] !== y[i]) return `line ${i + 1}: native ${JSON.stringify(x[i])}, web ${JSON.stringify(y[i])}`;
  return 'same lines';
}

async function filterSweep(call) {
  const page = path.join(sourceDir, 'web/js/key_filters.js');
  if (!fs.existsSync(page)) {
    console.log('key filters: web/js/key_filters.js is not there yet, sweep skipped');
    return 0;
  }
  const filters = await import('data:text/javascript,' + encodeURIComponent(fs.readFileSync(page, 'utf8')));
  let faults = 0, first = '';
  for (const kind of ['None', 'PositiveNumber', 'SignedNumber', 'Digit'])
    for (let code = 0; code <= 0x2ff; ++code) {
      const core = call({ op: 'filter', kind, code });
      const own = filters.applyKeyFilter(kind, code);
      if (core.code !== own.code || core.beep !== own.beep) {
        if (!faults++) first = `${kind} ${code}: core ${JSON.stringify(core)}, page ${JSON.stringify(own)}`;
      }
    }
  console.log(`key filters: ${4 * 0x300 - faults} of ${4 * 0x300} keys agree${faults ? `; first difference ${first}` : ''}`);
  return faults;
}

require(path.resolve(morveJs))().then(async (core) => {
  const call = (request) => JSON.parse(core.UTF8ToString(core.ccall('morve_call', 'number', ['string'], [JSON.stringify(request)])));
  let total = 0, agree = 0, first = '', webMs = 0, nativeMs = 0;
  for (const c of cases()) {
    ++total;
    let t = performance.now();
    const native = spawnSync(morveCalc, [c.file], { encoding: 'utf8' });
    nativeMs += performance.now() - t;
    t = performance.now();
    const web = call({ op: 'case', text: c.text, files: projectFiles(c.text, c.dir) });
    webMs += performance.now() - t;
    const same = web.error === undefined && web.status === native.status &&
      (native.status !== 0 || web.stdout === native.stdout);
    if (same) ++agree;
    else if (!first)
      first = `${c.name}: ${web.error ?? (web.status !== native.status
        ? `status native ${native.status}, web ${web.status} ${web.stderr ?? ''}` : firstDifference(native.stdout, web.stdout))}`;
  }
  console.log(`cases: ${agree} of ${total} print the same as morve-calc` +
    ` (web ${(webMs / total).toFixed(2)} ms a case, native run ${(nativeMs / total).toFixed(2)} ms)`);
  if (first) console.log(`first difference: ${first}`);
  const filterFaults = await filterSweep(call);
  process.exit(agree === total && total > 0 && filterFaults === 0 ? 0 : 1);
});
