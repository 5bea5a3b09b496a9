// A module's screen built from its declaration: the title bar, the toolbar of
// module windows, the heading, the frames on their grid of cells with their
// captions, and in each frame its controls in the order declared; controls
// declared on one row read as one phrase. Controls outside every frame stand
// below the frames.
import { makeControl } from './controls.js';
import { setCaption, plainCaption } from './captions.js';
import { shellTexts } from './shell_texts.js';

export const TOOLBAR_KEYS = ['Novo', 'Início', 'Abrir', 'Salvar', 'Imprimir', 'Ajuda', 'Sair'];

function toolbar(decl, onToolbar, withSteps) {
  const screen = decl.name;
  // Alt+P for "Passo a passo", unless a button of the window already answers to P.
  const pTaken = (decl.controls || []).some((c) => c.kind === 'Command' && /&p/i.test(c.caption || ''));
  const stepsCaption = (pTaken ? shellTexts().stepsCaptionP : shellTexts().stepsCaption) || '';
  const bar = document.createElement('div');
  bar.className = 'toolbar';
  bar.setAttribute('role', 'toolbar');
  const buttons = new Map();
  const tips = shellTexts().toolbar || {};
  const keys = withSteps ? [...TOOLBAR_KEYS, 'PassoAPasso'] : TOOLBAR_KEYS;
  for (const key of keys) {
    const button = document.createElement('button');
    button.type = 'button';
    button.dataset.name = `${screen}.Toolbar1.${key}`;
    button.dataset.key = key;
    const caption = key === 'PassoAPasso' ? stepsCaption : key;
    setCaption(button, caption);
    button.title = key === 'PassoAPasso' ? shellTexts().stepsToolTip || '' : tips[key] || '';
    button.addEventListener('click', () => onToolbar(key));
    buttons.set(key, button);
    bar.append(button);
  }
  return { bar, buttons };
}

function spanAll(element) {
  element.classList.add('whole');
  return element;
}

// Places a control (or a phrase of several) on the next row of its frame.
function place(grid, entries) {
  if (entries.length > 1) {
    const phrase = document.createElement('div');
    phrase.className = 'phrase whole';
    for (const { parts } of entries) {
      for (const part of [parts.caption, parts.outer, parts.unit]) if (part) phrase.append(part);
    }
    grid.append(phrase);
    return;
  }
  const { decl, parts } = entries[0];
  switch (decl.kind) {
    case 'TextBox':
    case 'ResultBox': {
      const caption = parts.caption || document.createElement('span');
      if (!parts.caption) parts.spacer = caption;
      const pair = document.createElement('div');
      pair.className = 'pair';
      pair.append(parts.outer);
      if (parts.unit) pair.append(parts.unit);
      parts.pair = pair;
      caption.classList.add('first');
      pair.classList.add('rest');
      grid.append(caption, pair);
      break;
    }
    case 'List':
      if (parts.caption) {
        parts.caption.classList.add('first');
        parts.outer.classList.add('rest');
        grid.append(parts.caption, parts.outer);
      }
      else grid.append(spanAll(parts.outer));
      break;
    case 'Grid':
      if (parts.caption) grid.append(spanAll(parts.caption));
      grid.append(spanAll(parts.outer));
      break;
    default: grid.append(spanAll(parts.outer));
  }
}

function frameGrid() {
  const grid = document.createElement('div');
  grid.className = 'frame-grid';
  return grid;
}

export function buildScreen(decl, { onCommand, onToolbar, onClose, withSteps }) {
  const section = document.createElement('section');
  section.className = 'screen';
  section.dataset.screen = decl.name;
  section.hidden = true;
  const title = document.createElement('div');
  title.className = 'titlebar';
  const titleText = document.createElement('span');
  titleText.textContent = decl.title || '';
  const close = document.createElement('button');
  close.type = 'button';
  close.className = 'close';
  close.textContent = '×';
  close.addEventListener('click', onClose);
  title.append(titleText, close);
  section.append(title);
  const screen = { name: decl.name, decl, section, controls: new Map(), frames: new Map(), toolbar: new Map() };
  if (decl.toolbar) {
    const { bar, buttons } = toolbar(decl, onToolbar, withSteps);
    section.append(bar);
    screen.toolbar = buttons;
  }
  const page = document.createElement('div');
  page.className = 'page';
  section.append(page);
  if (decl.heading) {
    const heading = document.createElement('h2');
    heading.className = 'heading';
    heading.textContent = decl.heading;
    page.append(heading);
  }
  const frames = document.createElement('div');
  frames.className = 'frames';
  const grids = new Map();
  const captions = new Map();
  for (const f of decl.frames || []) {
    const fieldset = document.createElement('fieldset');
    fieldset.className = f.caption ? 'frame' : 'frame plain';
    fieldset.dataset.name = `${decl.name}.${f.name}`;
    if (f.caption) {
      const legend = document.createElement('legend');
      legend.textContent = plainCaption(f.caption);
      fieldset.append(legend);
    }
    fieldset.style.gridRow = `${(f.row || 0) + 1} / span ${f.rowSpan || 1}`;
    fieldset.style.gridColumn = `${(f.column || 0) + 1} / span ${f.columnSpan || 1}`;
    const grid = frameGrid();
    fieldset.append(grid);
    frames.append(fieldset);
    screen.frames.set(f.name, fieldset);
    grids.set(f.name, grid);
    captions.set(f.name, f.caption);
  }
  page.append(frames);
  const loose = frameGrid();
  loose.classList.add('loose');
  page.append(loose);
  const controls = decl.controls || [];
  for (let i = 0; i < controls.length;) {
    let end = i + 1;
    while (end < controls.length && controls[end].sameRow) end++;
    const entries = [];
    for (let k = i; k < end; k++) {
      const c = controls[k];
      const parts = makeControl(c, decl.name, captions.get(c.frame) ?? '', onCommand);
      const entry = { decl: c, parts, element: parts.element };
      screen.controls.set(c.name, entry);
      entries.push(entry);
    }
    place(grids.get(controls[i].frame) || loose, entries);
    i = end;
  }
  return screen;
}

// What the user sees of a control goes with it: its caption and unit.
export function setControlVisible(entry, visible) {
  const { parts } = entry;
  for (const part of [parts.caption, parts.outer, parts.unit, parts.pair, parts.spacer]) if (part) part.hidden = !visible;
}

export function setControlEnabled(entry, enabled) {
  const { element, decl } = entry;
  if (decl.kind === 'Grid') {
    for (const input of element.querySelectorAll('input')) input.disabled = !enabled;
  } else if ('disabled' in element) {
    element.disabled = !enabled;
  }
  element.classList.toggle('disabled', !enabled);
  if (entry.parts.caption) entry.parts.caption.classList.toggle('disabled', !enabled);
}
