// The program's message boxes: one modal dialog#message at a time, its title,
// its text and the buttons of its kind, the default button with the focus
// (No for a Yes/No question, as the desktop asks it).
import { setCaption } from './captions.js';
import { shellText } from './shell_texts.js';

const BUTTONS = {
  warning: [['ok', 'OK']],
  yesno: [['yes', '&Sim'], ['no', '&Não']],
  okcancel: [['ok', 'OK'], ['cancel', 'Cancelar']],
};
const DEFAULT = { warning: 'ok', yesno: 'no', okcancel: 'ok' };
const ESCAPE = { warning: 'ok', yesno: 'no', okcancel: 'cancel' };

let chain = Promise.resolve();

function dialog() {
  let box = document.getElementById('message');
  if (box) return box;
  box = document.createElement('dialog');
  box.id = 'message';
  box.innerHTML = '<div class="message-title"></div><div class="message-body">' +
    '<div class="message-icon"></div><div class="message-text"></div></div><div class="message-buttons"></div>';
  document.body.append(box);
  return box;
}

function ask(kind, title, text) {
  return new Promise((resolve) => {
    const box = dialog();
    const buttonsKind = BUTTONS[kind] ? kind : 'warning';
    box.dataset.kind = buttonsKind;
    box.querySelector('.message-title').textContent = title || '';
    box.querySelector('.message-text').textContent = text || '';
    box.querySelector('.message-icon').textContent = buttonsKind === 'warning' ? '!' : '?';
    const row = box.querySelector('.message-buttons');
    row.textContent = '';
    const finish = (answer) => {
      box.onkeydown = null;
      box.oncancel = null;
      box.close();
      resolve(answer);
    };
    let preset = null;
    for (const [answer, caption] of BUTTONS[buttonsKind]) {
      const button = document.createElement('button');
      button.type = 'button';
      button.dataset.answer = answer;
      setCaption(button, caption);
      button.onclick = () => finish(answer);
      row.append(button);
      if (answer === DEFAULT[buttonsKind]) preset = button;
    }
    box.oncancel = (event) => {
      event.preventDefault();
      finish(ESCAPE[buttonsKind]);
    };
    box.onkeydown = (event) => {
      if (!event.altKey || event.key.length !== 1) return;
      const marked = row.querySelector(`[data-accel="${CSS.escape(event.key.toLowerCase())}"]`);
      if (marked) {
        event.preventDefault();
        marked.click();
      }
    };
    box.showModal();
    preset.focus();
  });
}

// One box after another: a box asked while another is open waits its turn.
export function showMessage({ kind, title, text }) {
  const turn = chain.then(() => ask(kind, title, text));
  chain = turn.catch(() => {});
  return turn;
}

// A warning with the title of the program's boxes.
export function warn(text, title = shellText('boxTitle')) {
  return showMessage({ kind: 'warning', title, text });
}
