// The start-up defaults dialog, shown first as the desktop does: the five lists
// of the run's defaults with their captions, " Próxima dica " and "OK", and the
// tip of the day beside them. Esc does not skip the choice: every module reads
// the defaults chosen here. Enter is "OK" wherever the focus is.
import { setCaption } from './captions.js';
import { shellTexts } from './shell_texts.js';
import { element } from './panels.js';

function randomTip(tips, tip) {
  tip.textContent = tips.length ? tips[Math.floor(Math.random() * tips.length)] : shellTexts().tipsMissing || '';
}

function buildDialog(startup, onConfirm) {
  const texts = shellTexts();
  const dialog = element('dialog', { id: 'start' });
  const title = element('div', { className: 'message-title', text: texts.windowTitle || '' });
  const body = element('div', { className: 'start-body' });
  const lists = element('div', { className: 'start-lists' });
  const selects = [];
  (startup.lists || []).forEach((items, n) => {
    const caption = document.createElement('label');
    caption.className = 'caption';
    caption.htmlFor = `start-list-${n + 1}`;
    caption.textContent = (startup.captions || [])[n] || '';
    const select = document.createElement('select');
    select.id = `start-list-${n + 1}`;
    select.dataset.name = `Form0.List${n + 1}`;
    select.size = Math.max(2, Math.min(items.length, 4));
    for (const item of items) select.append(new Option(item, item));
    select.selectedIndex = (startup.selected || [])[n] ?? 0;
    lists.append(caption, select);
    selects.push(select);
  });
  const tip = element('p');
  body.append(lists, element('div', { className: 'tip', id: 'tip' }, tip));
  const buttons = element('div', { className: 'message-buttons' });
  const next = document.createElement('button');
  next.type = 'button';
  next.dataset.name = 'Form0.Command2';
  setCaption(next, texts.nextTip || '');
  const ok = document.createElement('button');
  ok.type = 'button';
  ok.dataset.name = 'Form0.Command1';
  setCaption(ok, texts.ok || 'OK');
  buttons.append(next, ok);
  dialog.append(title, body, buttons);
  const confirm = () => {
    dialog.close();
    onConfirm(selects.map((s) => Math.max(0, s.selectedIndex)));
  };
  ok.addEventListener('click', confirm);
  next.addEventListener('click', () => randomTip(texts.tips || [], tip));
  dialog.addEventListener('cancel', (event) => event.preventDefault());
  dialog.addEventListener('keydown', (event) => {
    if (event.key === 'Enter' && !event.altKey && document.activeElement !== next) {
      event.preventDefault();
      confirm();
    } else if (event.altKey && event.key.length === 1) {
      const marked = dialog.querySelector(`button[data-accel="${CSS.escape(event.key.toLowerCase())}"]`);
      if (marked) {
        event.preventDefault();
        marked.click();
      }
    }
  });
  randomTip(texts.tips || [], tip);
  return { dialog, ok };
}

// Shows the dialog anew, with the selections of a new run; onConfirm gets the
// five selected indices.
export function showStartDialog(startup, onConfirm) {
  document.getElementById('start')?.remove();
  const { dialog, ok } = buildDialog(startup, onConfirm);
  document.body.append(dialog);
  dialog.showModal();
  ok.focus();
}
