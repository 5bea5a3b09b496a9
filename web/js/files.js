// Project files and pictures between the page and the user's disk. A project
// file is the desktop's own: the same text, byte for byte, so that a file moves
// between the desktop and the browser either way. Pictures are saved as SVG and
// printed on a page of their own.
import { drawingToSvg, shownSize } from './drawing_svg.js';
import { download, element, ensureStylesheets, openDialog } from './panels.js';

// Far above the largest case a module holds: a bigger file is no project file,
// and the core refuses it as it refuses a file of another module.
const LARGEST_FILE = 16 << 20;

// A warning in the program's message box: the shell's own when the page has it,
// else a box of the same make (dialog#message with its title, text and OK).
export async function showMessage(title, text) {
  let shell = null;
  try {
    shell = await import('./dialogs.js');
  } catch {
    shell = null;
  }
  if (shell && typeof shell.showMessage === 'function') return shell.showMessage({ kind: 'warning', title, text });
  ensureStylesheets();
  document.getElementById('message')?.remove();
  const ok = element('button', { type: 'button', 'data-answer': 'ok' }, 'OK');
  const dialog = element('dialog', { id: 'message', className: 'small-dialog' },
    element('div', { className: 'message-title', text: title }),
    element('div', { className: 'dialog-body message-text', text }),
    element('div', { className: 'message-buttons' }, ok));
  ok.addEventListener('click', () => dialog.close());
  document.body.appendChild(dialog);
  return new Promise((resolve) => {
    dialog.addEventListener('close', () => { dialog.remove(); resolve('ok'); });
    dialog.showModal();
    ok.focus();
  });
}

// The name typed for a project, as the desktop's save dialog filters it: control
// characters and " * + , . / \ ` | and DEL become "_", so that a name carries
// no extension or folder of its own.
export function filterProjectName(typed) {
  return String(typed).replace(/[\u0000-\u001f\u007f"*+,./\\`|]/g, '_');
}

// The file a typed name is saved under; a ".mor" typed at its end is the
// extension, not part of the name.
export function projectFileName(typed) {
  const base = String(typed).endsWith('.mor') ? String(typed).slice(0, -4) : String(typed);
  return `${filterProjectName(base)}.mor`;
}

// Asks the name a file is saved under, as the desktop's save dialogs do; null
// when the user gives up or leaves it empty.
function askFileName(title, suggested) {
  const input = element('input', { type: 'text', name: 'file-name', size: '36', autocomplete: 'off' });
  input.value = suggested || '';
  const label = element('label', { className: 'dialog-field' }, element('span', { text: 'Nome do arquivo:' }), input);
  return openDialog({
    id: 'file-name', title, content: [label], focus: input,
    buttons: [['Salvar', () => input.value.trim() || null, { 'data-answer': 'ok' }], ['Cancelar', null, { 'data-answer': 'cancel' }]],
  });
}

// The file chosen in the browser's "open" box, or null when none is.
function chooseFile(accept) {
  return new Promise((resolve) => {
    const input = element('input', { type: 'file', accept });
    input.style.display = 'none';
    let settled = false;
    const settle = (file) => {
      if (settled) return;
      settled = true;
      input.remove();
      resolve(file);
    };
    input.addEventListener('change', () => settle(input.files && input.files[0] ? input.files[0] : null));
    input.addEventListener('cancel', () => settle(null));
    document.body.appendChild(input);
    input.click();
  });
}

// The file's bytes as the text the core reads: project files are UTF-8, and a
// byte-order mark stays in the text, where the core sees it as the desktop does.
async function projectText(file) {
  if (file.size > LARGEST_FILE) return '';
  return new TextDecoder('utf-8', { ignoreBOM: true }).decode(await file.arrayBuffer());
}

// "Abrir": a .mor from the user's disk into the module. The new state, or null
// when nothing was read (no file chosen, or the core refused it and said why).
export async function openProjectFile({ call, session }) {
  const file = await chooseFile('.mor');
  if (!file) return null;
  let text;
  try {
    text = await projectText(file);
  } catch {
    text = '';
  }
  const answer = await call({ op: 'load', session, text });
  if (!answer || answer.error) {
    await showMessage('MORVE', answer ? answer.error : '');
    return null;
  }
  if (answer.message) {
    await showMessage('MORVE', answer.message);
    return null;
  }
  return answer.state;
}

// "Salvar": the module's inputs as a .mor in the browser's downloads. True when
// the file was handed over.
export async function saveProjectFile({ call, session, inputs, suggestedName }) {
  const typed = await askFileName(' Salvar arquivo', suggestedName || '');
  if (!typed) return false;
  const answer = await call({ op: 'save', session, inputs: inputs || { fields: {}, grids: {} } });
  if (!answer || answer.error || typeof answer.text !== 'string') {
    await showMessage('MORVE', answer && answer.error ? answer.error : '');
    return false;
  }
  download(projectFileName(typed), answer.text, 'application/octet-stream');
  return true;
}

// The drawing as an SVG file of its picture box's size (as last shown; else the
// size given), as the desktop's "Salvar desenho..." writes it: a name's dots
// become "_" before the extension.
export async function savePicture(drawing, widthPx = 640, heightPx = 480) {
  const [width, height] = shownSize(drawing) || [widthPx, heightPx];
  if (!drawing || !Array.isArray(drawing.shapes) || drawing.shapes.length === 0) return false;
  const typed = await askFileName(' Salvar desenho', 'desenho');
  if (!typed) return false;
  const base = typed.toLowerCase().endsWith('.svg') ? typed.slice(0, -4) : typed;
  const svg = drawingToSvg(drawing, width, height, { frame: false });
  const text = `<?xml version="1.0" encoding="UTF-8" standalone="no"?>\n${new XMLSerializer().serializeToString(svg)}\n`;
  download(`${base.replace(/\./g, '_')}.svg`, text, 'image/svg+xml');
  return true;
}

// The page as it was before a picture was put alone on paper.
export function clearPicturePrint() {
  document.body.classList.remove('picture-printing');
  document.getElementById('picture-print')?.remove();
}

// The drawing on paper: across the page's width at the top, in its own
// proportions, texts and lines at their screen size, alone on the page.
export function printPicture(drawing) {
  if (!drawing || !Array.isArray(drawing.shapes) || drawing.shapes.length === 0) return;
  ensureStylesheets();
  const cm = 96 / 2.54;
  const page = { width: 19 * cm, height: 27.7 * cm }; // A4 inside margins of one centimetre
  const w = drawing.right - drawing.left, h = drawing.bottom - drawing.top;
  const height = w > 0 && h > 0 ? Math.min(page.width * (h / w), page.height) : page.height;
  clearPicturePrint();
  const holder = element('div', { id: 'picture-print' });
  holder.appendChild(drawingToSvg(drawing, page.width, height, { frame: false }));
  document.body.appendChild(holder);
  document.body.classList.add('picture-printing');
  window.addEventListener('afterprint', clearPicturePrint, { once: true });
  window.print();
}
