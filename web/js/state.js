// The module's state written into every control of its screens, and what the
// user typed read back from them as the inputs of the next request.
import { setGridRows, gridRows } from './grid.js';
import { setControlVisible, setControlEnabled } from './screens.js';
import { renderDrawing, renderChart } from './pictures.js';

function sameItems(select, items) {
  return select.options.length === items.length && items.every((item, i) => select.options[i].text === item);
}

function showList(select, items, selected) {
  if (!sameItems(select, items)) {
    select.textContent = '';
    for (const item of items) select.append(new Option(item, item));
  }
  const at = items.indexOf(selected);
  if (select.selectedIndex !== at) select.selectedIndex = at;
  // The selected item is scrolled into the list's view, as the desktop's list shows it.
  if (at < 0 || !items.length || !select.clientHeight) return;
  const row = select.scrollHeight / items.length;
  if (at * row < select.scrollTop) select.scrollTop = at * row;
  else if ((at + 1) * row > select.scrollTop + select.clientHeight) select.scrollTop = (at + 1) * row - select.clientHeight;
}

// A result longer than its box widens the box, so that no figure is cut.
function fitResult(input) {
  input.style.minWidth = `calc(${input.value.length}ch + 14px)`;
}

function isOn(text) {
  return typeof text === 'string' && text.toLowerCase() === 'true';
}

function showControl(entry, qualified, state) {
  const { decl, element } = entry;
  const fields = state.fields || {};
  switch (decl.kind) {
    case 'TextBox':
    case 'ResultBox':
      if (qualified in fields && element.value !== fields[qualified]) element.value = fields[qualified];
      if (decl.kind === 'ResultBox') fitResult(element);
      break;
    case 'List':
      showList(element, (state.items || {})[qualified] || decl.items || [], fields[qualified] ?? '');
      break;
    case 'Option':
    case 'Check':
      if (qualified in fields) element.checked = isOn(fields[qualified]);
      break;
    case 'Grid':
      if (state.grids && state.grids[qualified]) setGridRows(element, state.grids[qualified]);
      break;
    case 'Picture':
      renderDrawing(element, (state.drawings || {})[qualified]);
      break;
    case 'Chart':
      renderChart(element, (state.charts || {})[qualified]);
      break;
    default: break;
  }
}

export function applyState(screens, state) {
  if (!state) return;
  const disabled = new Set(state.disabled || []);
  const hidden = new Set(state.hidden || []);
  const shown = new Set(state.shown || []);
  const disabledScreens = new Set(state.disabledScreens || []);
  for (const screen of screens.values()) {
    const name = screen.name;
    screen.section.hidden = !shown.has(name);
    screen.section.inert = disabledScreens.has(name);
    screen.section.classList.toggle('disabled-screen', disabledScreens.has(name));
    for (const [control, entry] of screen.controls) {
      const qualified = `${name}.${control}`;
      showControl(entry, qualified, state);
      setControlEnabled(entry, !disabled.has(qualified));
      setControlVisible(entry, !hidden.has(qualified));
    }
    for (const [frame, fieldset] of screen.frames) {
      const qualified = `${name}.${frame}`;
      fieldset.hidden = hidden.has(qualified);
      fieldset.disabled = disabled.has(qualified);
    }
    for (const [key, button] of screen.toolbar) {
      button.disabled = disabled.has(`${name}.Toolbar1.${key}`);
    }
  }
}

// Every box, list, option, check and typed table of the screens, as the core
// reads them: a list by its selected item's text, an option or check as "True" or "".
export function gatherInputs(screens) {
  const fields = {};
  const grids = {};
  for (const screen of screens.values()) {
    for (const [control, { decl, element }] of screen.controls) {
      const qualified = `${screen.name}.${control}`;
      switch (decl.kind) {
        case 'TextBox': fields[qualified] = element.value; break;
        case 'List': fields[qualified] = element.selectedIndex >= 0 ? element.options[element.selectedIndex].text : ''; break;
        case 'Option':
        case 'Check': fields[qualified] = element.checked ? 'True' : ''; break;
        case 'Grid':
          if (!(decl.grid && decl.grid.results)) grids[qualified] = gridRows(element);
          break;
        default: break;
      }
    }
  }
  return { fields, grids };
}
