// The tables of the screens, as the desktop's spreadsheet: row 0 is the header,
// column 0 numbers the rows where it is locked, results tables are read-only.
// Arrows move between cells, Tab walks the cells that can be typed in and
// leaves the table past the last, Enter goes down to the column where the Tabs
// began, and a block copied from a spreadsheet (tabs and line breaks) is pasted
// from the current cell on, through the key filter of each column.
import { beep, filteredText, guardInput } from './key_filters.js';
import { warn } from './dialogs.js';
import { shellText } from './shell_texts.js';

// A grid without a limit of its own takes no more rows than this from one paste.
const UNLIMITED_PASTE_ROWS = 5000;

const grids = new WeakMap();

function filterOf(grid, column) {
  const own = grid.columnFilters || [];
  return column < own.length ? own[column] : grid.filter;
}

function locked(grid, column) {
  return grid.results || (column === 0 && grid.firstColumnLocked);
}

function cellAt(table, row, column) {
  return table.querySelector(`input[data-row="${row}"][data-col="${column}"]`);
}

function makeCell(table, grid, row, column) {
  const input = document.createElement('input');
  input.type = 'text';
  input.autocomplete = 'off';
  input.spellcheck = false;
  // A cell asks for the width of a few figures; the table's header may widen it.
  input.size = 7;
  input.dataset.row = String(row);
  input.dataset.col = String(column);
  if (locked(grid, column)) {
    input.readOnly = true;
    input.tabIndex = -1;
    input.classList.add(grid.results ? 'result' : 'locked');
  } else {
    guardInput(input, () => filterOf(grid, column));
  }
  const td = document.createElement('td');
  td.append(input);
  return td;
}

function columnCount(table) {
  return table.tHead.rows[0] ? table.tHead.rows[0].cells.length : 0;
}

function rowCount(table) {
  return table.tBodies[0].rows.length;
}

function addRows(table, grid, rows) {
  const body = table.tBodies[0];
  const columns = columnCount(table);
  for (let r = rowCount(table) + 1; r <= rows; r++) {
    const tr = document.createElement('tr');
    for (let c = 0; c < columns; c++) tr.append(makeCell(table, grid, r, c));
    if (grid.firstColumnLocked && columns > 0) tr.cells[0].firstChild.value = String(r);
    body.append(tr);
  }
  // An empty table still takes the focus, so that a block can be pasted on it.
  table.tabIndex = rowCount(table) === 0 && !grid.results ? 0 : -1;
}

// The rows of a table as the state gives them, header first.
export function setGridRows(table, rows) {
  const { decl } = grids.get(table);
  const header = rows && rows.length ? rows[0] : decl.header || [];
  const head = table.tHead.rows[0];
  const sameHeader = head.cells.length === header.length && [...head.cells].every((th, i) => th.textContent === header[i]);
  if (!sameHeader) {
    head.textContent = '';
    for (const text of header) {
      const th = document.createElement('th');
      th.textContent = text;
      head.append(th);
    }
    table.tBodies[0].textContent = '';
  }
  const wanted = rows && rows.length ? rows.length - 1 : 0;
  const body = table.tBodies[0];
  while (rowCount(table) > wanted) body.lastChild.remove();
  addRows(table, decl, wanted);
  for (let r = 1; r <= wanted; r++) {
    for (let c = 0; c < header.length; c++) {
      const input = cellAt(table, r, c);
      const text = rows[r][c] ?? '';
      if (input.value !== text) input.value = text;
    }
  }
}

// The rows typed, header first, as the core reads a grid.
export function gridRows(table) {
  const head = [...table.tHead.rows[0].cells].map((th) => th.textContent);
  const rows = [head];
  for (const tr of table.tBodies[0].rows) rows.push([...tr.cells].map((td) => td.firstChild.value));
  return rows;
}

function moveTo(table, row, column) {
  const input = cellAt(table, row, column);
  if (!input) return false;
  const state = grids.get(table);
  state.moving = true;
  input.focus();
  input.select();
  state.moving = false;
  return true;
}

function step(table, from, forward) {
  const { decl } = grids.get(table);
  const columns = columnCount(table);
  const last = rowCount(table) * columns - 1;
  let at = (from.row - 1) * columns + from.col;
  for (at += forward ? 1 : -1; at >= 0 && at <= last; at += forward ? 1 : -1) {
    const column = at % columns;
    if (!locked(decl, column)) return moveTo(table, Math.floor(at / columns) + 1, column);
  }
  return false;
}

function onKey(table, event) {
  const input = event.target;
  if (!(input instanceof HTMLInputElement) || !input.dataset.row) return;
  const state = grids.get(table);
  const at = { row: Number(input.dataset.row), col: Number(input.dataset.col) };
  const plain = !event.ctrlKey && !event.altKey && !event.metaKey;
  let handled = false;
  if (event.key === 'Tab' && !event.ctrlKey && !event.altKey) {
    if (state.tabStart < 0) state.tabStart = at.col;
    handled = step(table, at, !event.shiftKey);
    if (!handled) state.tabStart = -1;
  } else if (event.key === 'Enter' && plain) {
    const column = state.tabStart >= 0 ? state.tabStart : at.col;
    state.tabStart = -1;
    moveTo(table, Math.min(at.row + 1, rowCount(table)), column);
    handled = true;
  } else if (plain && (event.key === 'ArrowUp' || event.key === 'ArrowDown')) {
    handled = moveTo(table, at.row + (event.key === 'ArrowUp' ? -1 : 1), at.col) || true;
  } else if (plain && event.key === 'ArrowLeft' && input.selectionStart === 0 && input.selectionEnd === 0) {
    handled = moveTo(table, at.row, at.col - 1) || true;
  } else if (plain && event.key === 'ArrowRight' && input.selectionStart === input.value.length) {
    handled = moveTo(table, at.row, at.col + 1) || true;
  }
  if (handled) {
    event.preventDefault();
    event.stopPropagation();
  }
}

function paste(table, event) {
  const input = event.target;
  // A table without rows takes a block pasted on it from its first cell on, as
  // the desktop's does.
  if (input === table && rowCount(table) === 0) {
    const text = (event.clipboardData || window.clipboardData).getData('text').replace(/\r/g, '');
    event.preventDefault();
    const { decl } = grids.get(table);
    if (!decl.results && text) pasteBlock(table, decl, text, 1, 0);
    return;
  }
  if (!(input instanceof HTMLInputElement) || !input.dataset.row || input.readOnly && !input.classList.contains('locked')) return;
  const text = (event.clipboardData || window.clipboardData).getData('text').replace(/\r/g, '');
  const { decl } = grids.get(table);
  if (!text.includes('\t') && !text.includes('\n')) {
    if (input.readOnly) return;
    event.preventDefault();
    const cell = filteredText(text.trim(), filterOf(decl, Number(input.dataset.col)));
    input.setRangeText(cell.text, input.selectionStart, input.selectionEnd, 'end');
    if (cell.refused) beep();
    return;
  }
  event.preventDefault();
  pasteBlock(table, decl, text, Number(input.dataset.row), Number(input.dataset.col));
}

function pasteBlock(table, decl, text, row, column) {
  const lines = text.split('\n');
  if (lines.length > 1 && lines[lines.length - 1].trim() === '') lines.pop();
  const width = Math.max(1, ...lines.map((line) => line.split('\t').length));
  const columns = columnCount(table);
  // A block without the numbering column, pasted on it, starts beside it.
  if (column === 0 && decl.firstColumnLocked && width < columns) column = 1;
  const limit = decl.maxRows > 0 ? decl.maxRows : Math.max(rowCount(table), UNLIMITED_PASTE_ROWS);
  const wanted = row - 1 + lines.length;
  if (wanted > rowCount(table)) addRows(table, decl, Math.min(wanted, limit));
  let refused = false;
  for (let i = 0; i < lines.length && row + i <= rowCount(table); i++) {
    const cells = lines[i].split('\t');
    for (let j = 0; j < cells.length && column + j < columns; j++) {
      if (locked(decl, column + j)) continue;
      const cell = filteredText(cells[j].trim(), filterOf(decl, column + j));
      refused = refused || cell.refused;
      cellAt(table, row + i, column + j).value = cell.text;
    }
  }
  if (refused) beep();
  if (wanted > limit) warn(shellText('pasteTooManyRows').replace('%1', String(limit)));
  else if (column + width > columns) warn(shellText('pasteTooWide'));
}

// The table of a Grid control; the table carries the control's name, the
// cells their row (1 for the first data row) and column.
export function makeGrid(decl, qualified) {
  const grid = decl.grid || {};
  const holder = document.createElement('div');
  holder.className = 'grid-scroll';
  const table = document.createElement('table');
  table.className = grid.results ? 'grid results' : 'grid';
  table.createTHead().insertRow();
  table.createTBody();
  holder.append(table);
  grids.set(table, { decl: grid, tabStart: -1, moving: false });
  const rows = [grid.header || []];
  for (let r = 1; r <= (grid.rows || 0); r++) rows.push((grid.header || []).map((h, c) => (c === 0 && grid.firstColumnLocked ? String(r) : '')));
  setGridRows(table, rows);
  table.addEventListener('keydown', (event) => onKey(table, event), true);
  table.addEventListener('paste', (event) => paste(table, event));
  table.addEventListener('focusin', () => {
    const state = grids.get(table);
    if (!state.moving) state.tabStart = -1;
  });
  return table;
}
