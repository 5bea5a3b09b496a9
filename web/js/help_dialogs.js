// The windows of the "Ajuda" menu that are the page's own: the list of the help
// pages of the modules, and the About box.
import { setCaption } from './captions.js';
import { shellTexts } from './shell_texts.js';

function modal(id, title) {
  document.getElementById(id)?.remove();
  const dialog = document.createElement('dialog');
  dialog.id = id;
  const bar = document.createElement('div');
  bar.className = 'message-title';
  bar.textContent = title;
  dialog.append(bar);
  dialog.addEventListener('close', () => dialog.remove());
  return dialog;
}

function button(caption, onClick, name) {
  const b = document.createElement('button');
  b.type = 'button';
  setCaption(b, caption);
  if (name) b.dataset.name = name;
  b.addEventListener('click', onClick);
  return b;
}

// Form0Help: a module picked and "Exibir" shows its page.
export function showHelpList(helpList, showPage) {
  const texts = shellTexts();
  const dialog = modal('help-list', texts.windowTitle || '');
  const label = document.createElement('p');
  label.textContent = texts.helpListLabel || '';
  const list = document.createElement('select');
  list.size = 16;
  list.dataset.name = 'Form0Help.List1';
  for (const row of helpList) list.append(new Option(row.text, row.page));
  // The list stays open beside the page it shows, the menu asleep until it closes.
  const show = () => {
    if (list.selectedIndex >= 0) showPage(list.value);
  };
  const menu = document.getElementById('menu');
  if (menu) menu.inert = true;
  dialog.addEventListener('close', () => {
    if (menu) menu.inert = false;
    document.getElementById('help-view')?.querySelector('.panel-bar button')?.click();
  });
  dialog.addEventListener('keydown', (event) => {
    if (event.key === 'Escape') dialog.close();
  });
  list.addEventListener('dblclick', show);
  const row = document.createElement('div');
  row.className = 'message-buttons';
  row.append(button(texts.helpListShow || '', show, 'Form0Help.Command2'),
    button(texts.helpListCancel || '', () => dialog.close(), 'Form0Help.Command3'));
  dialog.append(label, list, row);
  document.body.append(dialog);
  dialog.show();
  list.focus();
}

export function showAbout(about) {
  const texts = shellTexts();
  const dialog = modal('about', texts.windowTitle || '');
  const text = document.createElement('div');
  text.className = 'about-text';
  const lines = String(about || '').split('\n');
  lines.forEach((line, i) => {
    const p = document.createElement(i === 0 ? 'h3' : 'p');
    p.textContent = line;
    text.append(p);
  });
  const row = document.createElement('div');
  row.className = 'message-buttons';
  const ok = button('OK', () => dialog.close(), 'FormAbout.cmdOK');
  row.append(ok);
  dialog.append(text, row);
  document.body.append(dialog);
  dialog.showModal();
  ok.focus();
}
