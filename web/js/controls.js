// One control of a screen built from its declaration: the element the user
// works (carrying data-name, the control's qualified name), the caption before
// it and the unit after it. Lists and options answer a click at once, as the
// desktop does: the click reaches the module as a command of the control's name.
import { setCaption } from './captions.js';
import { guardInput } from './key_filters.js';
import { makeGrid } from './grid.js';

const CAPTIONED = new Set(['TextBox', 'ResultBox', 'List', 'Grid']);

function idOf(qualified) {
  return 'c-' + qualified.replace(/[^A-Za-z0-9_-]/g, '-');
}

function box(decl, qualified) {
  const input = document.createElement('input');
  input.type = 'text';
  input.autocomplete = 'off';
  input.spellcheck = false;
  const chars = decl.width > 0 ? decl.width : 9;
  input.style.width = `calc(${chars}ch + 12px)`;
  input.value = decl.text || '';
  if (decl.kind === 'ResultBox') {
    input.readOnly = true;
    input.classList.add('result');
    input.tabIndex = -1;
  } else {
    guardInput(input, () => decl.filter);
  }
  return input;
}

function list(decl, onCommand) {
  const select = document.createElement('select');
  const rows = decl.height > 0 ? decl.height : Math.min((decl.items || []).length, 4);
  select.size = Math.max(2, rows);
  // A click on an item reaches the module, as the desktop's list answers a click;
  // the arrow keys only move the selection, which goes with the next press.
  select.addEventListener('click', (event) => {
    if (event.target instanceof HTMLOptionElement && !select.disabled) onCommand(decl.name);
  });
  return select;
}

function choice(decl, qualified, screen, onCommand) {
  const label = document.createElement('label');
  label.className = decl.kind === 'Option' ? 'option' : 'check';
  const input = document.createElement('input');
  input.type = decl.kind === 'Option' ? 'radio' : 'checkbox';
  if (decl.kind === 'Option') {
    input.name = `${screen}.${decl.group || 'options'}`;
    input.addEventListener('click', () => onCommand(decl.name));
  }
  input.checked = !!decl.checked;
  input.id = idOf(qualified);
  const text = document.createElement('span');
  const accel = setCaption(text, decl.caption);
  if (accel) input.dataset.accel = accel;
  label.append(input, text);
  return { element: input, outer: label };
}

// The usual size of a picture or chart that declares none, as the desktop's.
const USUAL_SIZE = { Picture: [200, 200], Chart: [320, 260] };

function picture(decl) {
  const holder = document.createElement('div');
  holder.className = decl.kind === 'Chart' ? 'chart' : 'picture';
  const [width, height] = USUAL_SIZE[decl.kind];
  holder.style.width = `${decl.width > 0 ? decl.width : width}px`;
  holder.style.height = `${decl.height > 0 ? decl.height : height}px`;
  return holder;
}

function command(decl, onCommand) {
  const button = document.createElement('button');
  button.type = 'button';
  setCaption(button, decl.caption);
  button.addEventListener('click', () => onCommand(decl.name));
  return button;
}

// {element, outer, caption, unit}: `element` carries data-name, `outer` is what
// stands in the layout (the element itself, or the label around an option).
export function makeControl(decl, screen, frameCaption, onCommand) {
  const qualified = `${screen}.${decl.name}`;
  let element;
  let outer;
  switch (decl.kind) {
    case 'TextBox':
    case 'ResultBox': element = box(decl, qualified); break;
    case 'Label':
      element = document.createElement('div');
      element.className = decl.sameRow ? 'label inline' : 'label';
      setCaption(element, decl.caption);
      delete element.dataset.accel;
      break;
    case 'List': element = list(decl, onCommand); break;
    case 'Option':
    case 'Check': ({ element, outer } = choice(decl, qualified, screen, onCommand)); break;
    case 'Grid': element = makeGrid(decl, qualified); break;
    case 'Picture':
    case 'Chart': element = picture(decl); break;
    default: element = command(decl, onCommand); break;
  }
  element.dataset.name = qualified;
  element.dataset.kind = decl.kind;
  if (!element.id) element.id = idOf(qualified);
  if (decl.toolTip) (outer || element).title = decl.toolTip;
  const parts = { element, outer: outer || element, caption: null, unit: null };
  if (CAPTIONED.has(decl.kind) && decl.caption && decl.caption !== frameCaption) {
    const label = document.createElement('label');
    label.className = 'caption';
    label.htmlFor = element.id;
    setCaption(label, decl.caption);
    parts.caption = label;
  }
  if (decl.unit && (decl.kind === 'TextBox' || decl.kind === 'ResultBox')) {
    const unit = document.createElement('span');
    unit.className = 'unit';
    unit.textContent = decl.unit;
    parts.unit = unit;
  }
  return parts;
}
