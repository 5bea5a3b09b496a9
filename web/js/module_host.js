// One module opened from the menu: its session in the core and the screens
// built for it. Every command goes through press(): the inputs typed go with
// it, the messages show one after another, a question is asked and the press
// sent again with the answers so far, then the state is written into every
// control, the effects are applied in order and the focus goes where the
// module says.
import { buildScreen } from './screens.js';
import { applyState, gatherInputs } from './state.js';
import { showMessage, warn } from './dialogs.js';
import { pictureModule } from './pictures.js';
import { shellText } from './shell_texts.js';
import { bringToFront, makeMovable, raiseOnClick, placeBeside, unplace, fitPictures } from './windows.js';

export class ModuleHost {
  constructor({ call, opened, key, container, shell }) {
    this.call = call;
    this.key = key;
    this.session = opened.session;
    this.info = opened.info || {};
    this.help = opened.help || '';
    this.shell = shell;
    this.container = container;
    this.screens = new Map();
    this.state = {};
    this.running = false;
    // Called right before every "CALCULAR": the recovery copy is made then.
    this.onCalculate = null;
    for (const decl of opened.screens || []) {
      const main = decl.name === this.info.key;
      const screen = buildScreen(decl, {
        onCommand: (command) => this.press(main ? command : `${decl.name}.${command}`),
        onToolbar: (toolKey) => this.toolbar(toolKey),
        onClose: () => (main ? this.shell.toMenu() : this.companionClosed(decl.name)),
        withSteps: main && decl.toolbar,
      });
      screen.section.classList.add(main ? 'main-screen' : 'companion');
      makeMovable(screen.section, screen.section.querySelector('.titlebar'));
      raiseOnClick(screen.section, () => this.raise(decl.name));
      this.screens.set(decl.name, screen);
      container.append(screen.section);
    }
    this.show(opened.state);
  }

  inputs() {
    return gatherInputs(this.screens);
  }

  // The state into the controls. A window that comes into view comes on top:
  // centred when it holds the others back, as a dialog, else beside them.
  show(state) {
    if (!state) return;
    const before = new Set(this.state.shown || []);
    this.state = state;
    applyState(this.screens, state);
    const shown = (state.shown || []).filter((name) => this.screens.has(name));
    for (const name of shown) {
      if (before.has(name)) continue;
      const { section } = this.screens.get(name);
      bringToFront(section);
      fitPictures(section);
      if (name === this.info.key) continue;
      const others = shown.filter((other) => other !== name);
      if (others.some((other) => (state.disabledScreens || []).includes(other))) unplace(section);
      else placeBeside(section, others.map((other) => this.screens.get(other).section));
    }
  }

  raise(name) {
    const screen = this.screens.get(name);
    if (screen) bringToFront(screen.section);
  }

  qualify(command) {
    return command.includes('.') ? command : `${this.info.key}.${command}`;
  }

  showStatus(command, on) {
    const status = (this.info.busy || {})[this.qualify(command)];
    if (!status) return;
    const element = document.querySelector(`[data-name="${CSS.escape(status)}"]`);
    if (!element) return;
    const screen = this.screens.get(status.split('.')[0]);
    const entry = screen && screen.controls.get(status.split('.').slice(1).join('.'));
    if (entry) for (const part of [entry.parts.outer, entry.parts.caption]) if (part) part.hidden = !on;
  }

  async press(command) {
    if (this.running) return;
    this.running = true;
    const started = performance.now();
    let waited = 0;
    try {
      const inputs = this.inputs();
      const answers = [];
      let shown = 0;
      // Sent ahead of the press, not awaited: the core answers in order, and the
      // page stays busy until both are done.
      if (this.onCalculate && this.qualify(command) === this.qualify(this.info.calculate || '')) this.onCalculate();
      this.showStatus(command, true);
      for (;;) {
        const answer = await this.call({ op: 'press', session: this.session, command, inputs, answers });
        if (answer.error) {
          this.showStatus(command, false);
          await warn(answer.error);
          return;
        }
        this.show(answer.state);
        const messages = answer.messages || [];
        const waitFrom = performance.now();
        for (const message of messages.slice(shown)) await showMessage(message);
        shown = messages.length;
        if (!answer.question) {
          waited += performance.now() - waitFrom;
          const ms = performance.now() - started - waited;
          (window.morveTimings = window.morveTimings || []).push({ command, ms });
          await this.outcome(answer.outcome || {});
          return;
        }
        this.showStatus(command, false);
        answers.push(await showMessage(answer.question));
        waited += performance.now() - waitFrom;
        shown++;
        this.showStatus(command, true);
      }
    } finally {
      this.running = false;
    }
  }

  async outcome(outcome) {
    for (const effect of outcome.effects || []) await this.effect(effect);
    const anyShown = [...this.screens.values()].some((s) => !s.section.hidden);
    if (!anyShown && this.screens.size && !this.closed) {
      const answer = await this.call({ op: 'apply', session: this.session,
        effects: [{ kind: 'show', target: this.info.key }], inputs: this.inputs() });
      this.show(answer.state);
    }
    if (outcome.focus) this.focus(outcome.focus);
  }

  // The module's window opens with the focus on its first box, as the desktop's.
  focusFirst() {
    const main = this.screens.get(this.info.key);
    if (!main) return;
    const boxes = main.section.querySelectorAll('.page input:not([readonly]):not(:disabled), .page select:not(:disabled)');
    const first = [...boxes].find((box) => !box.closest('[hidden]') && !box.closest('fieldset[disabled]'));
    if (first) first.focus();
  }

  focus(name) {
    const element = document.querySelector(`[data-name="${CSS.escape(name)}"]`);
    if (!element || element.closest('[hidden]')) return;
    const target = element.matches('table') ? element.querySelector('input:not([readonly])') : element;
    if (target) target.focus();
  }

  async effect({ kind, target }) {
    const pictures = { report: pictureModule('report'), help: pictureModule('help'), files: pictureModule('files') };
    switch (kind) {
      case 'show':
        if (target === 'FormAjuda') this.showHelp();
        else this.raise(target);
        break;
      case 'hide':
      case 'unload':
        if (target === 'FormAjuda' && pictures.help && pictures.help.hideHelp) pictures.help.hideHelp();
        else if (kind === 'unload' && target === this.info.key) this.shell.toMenu();
        break;
      case 'report':
        if (pictures.report) pictures.report.showReport({ call: this.call, session: this.session, key: target,
          inputs: this.inputs(), caller: document.activeElement });
        break;
      case 'savePicture':
      case 'printPicture': {
        const drawing = (this.state.drawings || {})[target];
        if (!pictures.files || !drawing) break;
        if (kind === 'savePicture') await pictures.files.savePicture(drawing);
        else await pictures.files.printPicture(drawing);
        break;
      }
      default: break;  // screens and controls: the state shows them already
    }
  }

  showHelp() {
    const help = pictureModule('help');
    if (help && help.showHelp) help.showHelp(this.help);
  }

  // A companion closed by its own close button, as its "&Voltar" would: it goes,
  // and the screens it covered are live again.
  async companionClosed(name) {
    const effects = [{ kind: 'hide', target: name }];
    let anyShown = false;
    for (const [other, screen] of this.screens) {
      if (other === name || screen.section.hidden) continue;
      anyShown = true;
      effects.push({ kind: 'enableScreen', target: other });
    }
    if (!anyShown) effects.push({ kind: 'show', target: this.info.key });
    const answer = await this.call({ op: 'apply', session: this.session, effects, inputs: this.inputs() });
    this.show(answer.state);
  }

  // Esc on a screen presses its way back: the command it names, or its "&Voltar".
  escape() {
    const screen = this.activeScreen();
    if (!screen || screen.section.inert) return;
    for (const [name, entry] of screen.controls) {
      const back = screen.decl.escape ? name === screen.decl.escape : entry.decl.caption === '&Voltar';
      if (entry.decl.kind !== 'Command' || !back) continue;
      const button = entry.element;
      if (!button.disabled && !button.closest('[hidden]') && !button.closest('fieldset[disabled]')) button.click();
      return;
    }
  }

  // The screen the user works in: the one with the focus, else the topmost shown.
  activeScreen() {
    const focused = document.activeElement && document.activeElement.closest('section.screen');
    if (focused && !focused.hidden && !focused.inert) return this.screens.get(focused.dataset.screen);
    let best = null;
    for (const screen of this.screens.values()) {
      if (screen.section.hidden || screen.section.inert) continue;
      if (!best || Number(screen.section.style.zIndex || 0) > Number(best.section.style.zIndex || 0)) best = screen;
    }
    return best;
  }

  async toolbar(key) {
    const pictures = { report: pictureModule('report'), files: pictureModule('files'), steps: pictureModule('steps') };
    switch (key) {
      case 'Novo': this.shell.toMenu(); break;
      case 'Início': this.shell.toStart(); break;
      case 'Imprimir':
        if (this.info.printKey && pictures.report) pictures.report.showReport({ call: this.call, session: this.session,
          key: this.info.printKey, inputs: this.inputs(), caller: document.activeElement });
        break;
      case 'Ajuda': this.showHelp(); break;
      case 'Sair':
        if (await showMessage({ kind: 'yesno', title: shellText('boxTitle'), text: shellText('exitQuestion') }) === 'yes')
          this.shell.toStart();
        break;
      case 'Abrir': {
        if (!pictures.files) break;
        const state = await pictures.files.openProjectFile({ call: this.call, session: this.session });
        if (state) this.show(state);
        break;
      }
      case 'Salvar':
        if (pictures.files) await pictures.files.saveProjectFile({ call: this.call, session: this.session,
          inputs: this.inputs(), suggestedName: this.key });
        break;
      case 'PassoAPasso':
        if (pictures.steps) pictures.steps.showSteps({ call: this.call, session: this.session });
        break;
      default: break;
    }
  }

  async close() {
    this.closed = true;
    this.container.textContent = '';
    await this.call({ op: 'close', session: this.session });
  }
}
