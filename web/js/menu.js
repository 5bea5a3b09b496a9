// The main menu as the desktop's menu bar has it: the menus in the order their
// first leaf comes in the catalogue, nested as the rows' paths say, every leaf
// a button of its module (disabled where the module is not registered), and the
// "Ajuda" menu last. A menu opens on a click, or on hover once one is open.
import { setCaption } from './captions.js';

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
  setCaption(button, caption);
  const items = document.createElement('ul');
  items.className = 'menu-items';
  menu.append(button, items);
  button.addEventListener('click', (event) => {
    event.stopPropagation();
    const wasOpen = menu.classList.contains('open');
    if (topLevel) closeAll(bar);
    else for (const sibling of menu.parentElement.children) sibling.classList.remove('open');
    menu.classList.toggle('open', !wasOpen);
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
  setCaption(button, caption);
  button.disabled = !enabled;
  button.addEventListener('click', onClick);
  item.append(button);
  return { item, button };
}

export function buildMenu(catalogue, { onModule, onHelp }) {
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
  document.addEventListener('click', () => closeAll(bar));
  document.addEventListener('keydown', (event) => {
    if (event.key === 'Escape') closeAll(bar);
  });
  return nav;
}

// The picture of the menu window: the program's name, its version and what it is for.
export function buildMenuPicture(texts) {
  const picture = document.createElement('div');
  picture.className = 'menu-picture';
  const name = document.createElement('div');
  name.className = 'menu-name';
  name.textContent = 'MORVE';
  const version = document.createElement('div');
  version.className = 'menu-version';
  version.textContent = texts.version || '';
  const purpose = document.createElement('div');
  purpose.className = 'menu-purpose';
  purpose.textContent = texts.purpose || '';
  picture.append(name, version, purpose);
  return picture;
}
