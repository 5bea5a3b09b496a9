// The windows the pictures, reports, help and steps open over the module: a panel
// that covers the page with its buttons on top, a small modal dialog, and a file
// handed to the browser's downloads. Esc closes a panel as the desktop's windows
// close on Esc.

const loadedSheets = new Set();

// The panels' looks and the print rules, linked once whatever page loads them.
export function ensureStylesheets() {
  for (const href of ['panels.css', 'print.css']) {
    if (loadedSheets.has(href)) continue;
    loadedSheets.add(href);
    if (document.querySelector(`link[rel="stylesheet"][href$="${href}"]`)) continue;
    const link = document.createElement('link');
    link.rel = 'stylesheet';
    link.href = href;
    document.head.appendChild(link);
  }
}

export function element(tag, attributes = {}, ...children) {
  const e = document.createElement(tag);
  for (const [name, value] of Object.entries(attributes)) {
    if (name === 'className') e.className = value;
    else if (name === 'text') e.textContent = value;
    else e.setAttribute(name, value);
  }
  for (const child of children) if (child != null) e.append(child);
  return e;
}

export function button(caption, onClick, attributes = {}) {
  const b = element('button', { type: 'button', ...attributes }, caption);
  b.addEventListener('click', onClick);
  return b;
}

// A panel over the whole page, appended to the body (so that printing can show
// it alone). `buttons` are [caption, onClick, attributes]; close() removes it and
// gives the focus back to what had it.
export function openPanel({ id, title, buttons = [], onClose }) {
  ensureStylesheets();
  document.getElementById(id)?.remove();
  const before = document.activeElement;
  const bar = element('div', { className: 'panel-bar' });
  if (title) bar.append(element('span', { className: 'panel-title', text: title }));
  const body = element('div', { className: 'panel-body' });
  const root = element('div', { id, className: 'panel', role: 'dialog', 'aria-modal': 'true' }, bar, body);
  let closed = false;
  const close = () => {
    if (closed) return;
    closed = true;
    root.remove();
    document.removeEventListener('keydown', onKey, true);
    if (onClose) onClose();
    if (before && before.isConnected && typeof before.focus === 'function') before.focus();
  };
  const onKey = (event) => {
    if (event.key === 'Escape' && !document.querySelector('dialog[open]')) {
      event.preventDefault();
      close();
    }
  };
  for (const [caption, onClick, attributes] of buttons)
    bar.append(button(caption, () => onClick(close), attributes));
  document.addEventListener('keydown', onKey, true);
  document.body.appendChild(root);
  const first = bar.querySelector('button');
  if (first) first.focus();
  return { root, body, bar, close };
}

// A small modal dialog built anew each time (`dialog#<id>`): resolves with what
// `settle` makes of the button pressed, or null on Esc.
export function openDialog({ id, title, content = [], buttons, focus }) {
  ensureStylesheets();
  document.getElementById(id)?.remove();
  return new Promise((resolve) => {
    const dialog = element('dialog', { id, className: 'small-dialog' });
    if (title) dialog.append(element('div', { className: 'message-title', text: title }));
    dialog.append(element('div', { className: 'dialog-body' }, ...content));
    const row = element('div', { className: 'message-buttons' });
    let result = null;
    for (const [caption, value, attributes] of buttons)
      row.append(button(caption, () => { result = typeof value === 'function' ? value() : value; dialog.close(); }, attributes));
    dialog.append(row);
    // Enter in a box presses the first button, as a dialog's default button.
    dialog.addEventListener('keydown', (event) => {
      if (event.key !== 'Enter' || event.target.tagName !== 'INPUT') return;
      event.preventDefault();
      row.querySelector('button').click();
    });
    dialog.addEventListener('close', () => { dialog.remove(); resolve(result); });
    document.body.appendChild(dialog);
    dialog.showModal();
    (focus || row.querySelector('button'))?.focus();
  });
}

// Hands bytes (or a text, written as UTF-8) to the browser's downloads.
export function download(name, content, type) {
  const blob = content instanceof Blob ? content : new Blob([content], { type });
  const url = URL.createObjectURL(blob);
  const a = element('a', { href: url, download: name });
  a.style.display = 'none';
  document.body.appendChild(a);
  a.click();
  a.remove();
  setTimeout(() => URL.revokeObjectURL(url), 60000);
}
