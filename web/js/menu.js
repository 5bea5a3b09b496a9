// The main menu as the desktop's menu bar has it: the menus in the order their
// first leaf comes in the catalogue, nested as the rows' paths say, every leaf
// a button of its module (disabled where the module is not registered), and the
// "Ajuda" menu last. A menu opens on a click, or on hover once one is open.
import { setCaption } from './captions.js';
import { element } from './panels.js';

function closeAll(bar) {
  for (const open of bar.querySelectorAll('.menu.open')) open.classList.remove('open');
}

function makeMenu(caption, name, bar, topLevel) {
  const menu = document.createElement('li');
  menu.className = topLevel ? 'menu top' : 'menu sub';
  menu.dataset.menu = name;
  const button = document.createElement('button');
  button.type = 'button';
  button.className = 'menu-title';
  button.dataset.caption = caption;
  const items = document.createElement('ul');
  items.className = 'menu-items';
  menu.append(button, items);
  // A menu of the bar opens and closes on its title; a submenu's title only
  // opens it, though pointing at it opened it already.
  button.addEventListener('click', (event) => {
    event.stopPropagation();
    const wasOpen = menu.classList.contains('open');
    if (topLevel) closeAll(bar);
    else for (const sibling of menu.parentElement.children) if (sibling !== menu) sibling.classList.remove('open');
    if (!wasOpen || !topLevel) openMenu(menu);
  });
  menu.addEventListener('mouseenter', () => {
    if (!bar.querySelector('.menu.open')) return;
    for (const sibling of menu.parentElement.children) if (sibling !== menu) sibling.classList.remove('open');
    menu.classList.add('open');
  });
  return menu;
}

function leaf(caption, onClick, enabled) {
  const item = document.createElement('li');
  item.className = 'leaf';
  const button = document.createElement('button');
  button.type = 'button';
  button.dataset.caption = caption;
  button.textContent = caption;
  button.disabled = !enabled;
  button.addEventListener('click', onClick);
  item.append(button);
  return { item, button };
}

function isLetter(ch) {
  return /\p{L}/u.test(ch);
}

// The access keys the desktop gives the items of one menu: the program's own
// marks first, then for each item the first free letter that starts a word,
// else any free letter.
function withAccessKeys(captions) {
  const taken = new Set();
  for (const caption of captions) {
    const at = caption.indexOf('&');
    if (at >= 0 && at + 1 < caption.length) taken.add(caption[at + 1].toLowerCase());
  }
  const mark = (caption, at) => {
    taken.add(caption[at].toLowerCase());
    return `${caption.slice(0, at)}&${caption.slice(at)}`;
  };
  return captions.map((caption) => {
    if (caption.includes('&')) return caption;
    for (let i = 0; i < caption.length; i++) {
      const wordStart = i === 0 || !isLetter(caption[i - 1]);
      if (wordStart && isLetter(caption[i]) && !taken.has(caption[i].toLowerCase())) return mark(caption, i);
    }
    for (let i = 0; i < caption.length; i++) {
      if (isLetter(caption[i]) && !taken.has(caption[i].toLowerCase())) return mark(caption, i);
    }
    return caption;
  });
}

function giveAccessKeys(list) {
  const buttons = [...list.children].map((item) => item.querySelector(':scope > button'));
  const captions = withAccessKeys(buttons.map((b) => b.dataset.caption));
  buttons.forEach((b, i) => setCaption(b, captions[i]));
  for (const item of list.children) {
    const sub = item.querySelector(':scope > .menu-items');
    if (sub) giveAccessKeys(sub);
  }
}

function openMenu(menu) {
  menu.classList.add('open');
  const first = menu.querySelector(':scope > .menu-items > li > button:enabled');
  if (first) first.focus();
}

// Alt and a letter opens a menu of the bar, F10 the first; in an open menu a
// letter picks its item and the arrows walk it.
function answerKeys(bar, active) {
  document.addEventListener('keydown', (event) => {
    if (!active() || document.querySelector('dialog[open]')) return;
    const open = [...bar.querySelectorAll('.menu.open')].pop();
    if (event.key === 'F10' || (event.altKey && event.key.length === 1)) {
      const letter = event.key.toLowerCase();
      const menu = [...bar.children].find((m) => (event.key === 'F10' ? true : m.firstChild.dataset.accel === letter));
      if (!menu) return;
      event.preventDefault();
      closeAll(bar);
      openMenu(menu);
      return;
    }
    if (!open) return;
    const items = [...open.querySelectorAll(':scope > .menu-items > li > button:enabled')];
    if (event.key === 'ArrowDown' || event.key === 'ArrowUp') {
      event.preventDefault();
      const at = items.indexOf(document.activeElement);
      const next = event.key === 'ArrowDown' ? at + 1 : at - 1;
      items[(next + items.length) % items.length]?.focus();
    } else if (event.key.length === 1 && !event.ctrlKey && !event.altKey) {
      const marked = items.find((b) => b.dataset.accel === event.key.toLowerCase());
      if (!marked) return;
      event.preventDefault();
      if (marked.classList.contains('menu-title')) openMenu(marked.parentElement);
      else marked.click();
    }
  });
}

export function buildMenu(catalogue, { onModule, onHelp, active }) {
  const nav = document.createElement('nav');
  nav.id = 'menu';
  const bar = document.createElement('ul');
  bar.className = 'menubar';
  nav.append(bar);
  const captions = new Map((catalogue.menus || []).map((m) => [m.name, m.caption]));
  const registered = new Set(catalogue.registered || []);
  const menus = new Map();
  const menuFor = (path) => {
    let parent = bar;
    let key = '';
    for (const name of path) {
      key += `/${name}`;
      let menu = menus.get(key);
      if (!menu) {
        menu = makeMenu(captions.get(name) || name, name, bar, parent === bar);
        parent.append(menu);
        menus.set(key, menu);
      }
      parent = menu.querySelector(':scope > .menu-items');
    }
    return parent;
  };
  for (const row of catalogue.rows || []) {
    const { item, button } = leaf(row.caption, () => {
      closeAll(bar);
      onModule(row.module);
    }, registered.has(row.module));
    button.dataset.module = row.module;
    menuFor(row.path).append(item);
  }
  const help = makeMenu(captions.get('ajuda') || 'Ajuda', 'ajuda', bar, true);
  bar.append(help);
  for (const entry of catalogue.helpMenu || []) {
    const { item, button } = leaf(entry.caption, () => {
      closeAll(bar);
      onHelp(entry);
    }, true);
    button.dataset.help = entry.command;
    help.querySelector('.menu-items').append(item);
  }
  giveAccessKeys(bar);
  answerKeys(bar, active);
  document.addEventListener('click', () => closeAll(bar));
  document.addEventListener('keydown', (event) => {
    if (event.key === 'Escape') closeAll(bar);
  });
  return nav;
}

// The picture of the menu window: the program's name, its version and what it is for.
export function buildMenuPicture(texts) {
  // A beam section with its bars, the program's emblem, in the lower right corner.
  const emblem = element('div', { className: 'menu-emblem' });
  for (const row of ['top', 'bottom']) for (let i = 0; i < 3; i++) emblem.append(element('span', { className: `bar ${row}` }));
  return element('div', { className: 'menu-picture' },
    element('div', { className: 'menu-name', text: 'MORVE' }),
    element('div', { className: 'menu-version', text: texts.version || '' }),
    element('div', { className: 'menu-purpose', text: texts.purpose || '' }), emblem);
}
