// What is typed in the open module is kept in the browser's storage, as the
// desktop keeps its recovery file: every 10 s when it changed, and right before
// every "CALCULAR", which is what might crash; the next load offers it back. A
// module the user closes (back to the menu, "Início", "Sair") leaves nothing.
import { showMessage, warn } from './dialogs.js';
import { shellText } from './shell_texts.js';

const KEY = 'morve.recuperacao';
const PERIOD_MS = 10000;

function kept() {
  try {
    return localStorage.getItem(KEY);
  } catch (error) {
    return null;  // storage turned off: nothing was kept either
  }
}

function discard() {
  try {
    localStorage.removeItem(KEY);
  } catch (error) { /* nothing to remove */ }
}

export class RecoveryKeeper {
  constructor(host, call) {
    this.host = host;
    this.call = call;
    this.written = null;
    this.stopped = false;
    // A press under way is left alone: between its questions the page shows
    // what the calculation wrote so far, not what the user typed.
    this.timer = setInterval(() => { if (!host.running) this.keep(); }, PERIOD_MS);
    host.onCalculate = () => this.keep();
  }

  async keep() {
    const answer = await this.call({ op: 'save', session: this.host.session, inputs: this.host.inputs() });
    if (this.stopped || answer.error || answer.text === this.written) return;
    // A full storage is not shown: the user did not ask for this copy, and the
    // next change tries again.
    try {
      localStorage.setItem(KEY, answer.text);
      this.written = answer.text;
    } catch (error) { /* the next change tries again */ }
  }

  // The module closed as the user closes it: nothing left to recover.
  stop() {
    this.stopped = true;
    clearInterval(this.timer);
    discard();
  }
}

export function recoveryKept() {
  return kept() !== null;
}

// "Recuperar os dados digitados na última sessão?": Yes hands the module the
// copy names and the copy to open(module, text), which answers whether the
// module took it (true: the module is open with the data). A copy no module
// takes gets its warning; refused or damaged, it is discarded.
export async function offerRecovery(call, open) {
  const text = kept();
  if (text === null) return false;
  const title = shellText('boxTitle');
  if (await showMessage({ kind: 'yesno', title, text: shellText('recoveryQuestion') }) !== 'yes') {
    discard();
    return false;
  }
  const tag = await call({ op: 'tag', text });
  if (tag.module && await open(tag.module, text)) return true;
  await warn(shellText('recoveryDamaged'), title);
  discard();
  return false;
}
