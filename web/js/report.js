// The calculation report on A4 pages, as the desktop puts it on paper: the core
// pages it (53 lines a page, the header on page 1); each page has its number at
// 10 cm across and 1 cm down, and its lines at 2 cm from the left, the first
// baseline 2 cm from the top and half a centimetre apart, in a fixed-width face of
// 12 points, made smaller for the whole report when its widest line would pass
// the right margin. A picture takes its lines from the top of the line it starts on.
import { paintDrawing, px, svgElement } from './drawing_svg.js';
import { REPORT_FACE, cssFont, fontMetrics, textWidth } from './text_measure.js';
import { element, openDialog, openPanel } from './panels.js';
import { clearPicturePrint, showMessage } from './files.js';

const CM = 96 / 2.54; // CSS pixels in a centimetre, on screen and on paper
const POINT = 96 / 72;
const PAGE = { width: 21 * CM, height: 29.7 * CM };
const PAPER = {
  left: 2 * CM, top: 2 * CM, lineHeight: 0.5 * CM, textWidth: 17 * CM,
  fontPoints: 12, smallestPoints: 4, pageNumberAt: [10 * CM, 1 * CM], pageNumberPoints: 10,
};

const lineFont = (points, bold) => cssFont(points * POINT, REPORT_FACE, bold);

function widestLine(pages, points) {
  let widest = 0;
  for (const page of pages)
    for (const line of page.lines || [])
      if (!line.picture) widest = Math.max(widest, textWidth(String(line.text ?? ''), lineFont(points, !!line.bold)));
  return widest;
}

// One size for every page: the tables of a report run to column 55 and beyond,
// and a line cut at the margin loses its number.
export function fittedPoints(pages) {
  let points = PAPER.fontPoints;
  const widest = widestLine(pages, points);
  if (widest <= PAPER.textWidth) return points;
  points = Math.max(PAPER.smallestPoints, (points * PAPER.textWidth) / widest);
  while (points > PAPER.smallestPoints && widestLine(pages, points) > PAPER.textWidth)
    points = Math.max(PAPER.smallestPoints, points - 0.25);
  return points;
}

// A block of one line's height whose text sits on the given baseline.
function placeText(div, baseline, font) {
  const { ascent, height } = fontMetrics(font);
  const room = PAPER.lineHeight;
  div.style.top = `${px(baseline - ascent - (room - height) / 2)}px`;
  div.style.height = `${px(room)}px`;
  div.style.lineHeight = `${px(room)}px`;
  div.style.font = font;
}

function pictureBlock(drawing, baseline, lines) {
  const top = baseline - PAPER.lineHeight * 0.8;
  const width = PAPER.textWidth;
  const height = lines * PAPER.lineHeight;
  const div = element('div', { className: 'report-picture' });
  Object.assign(div.style, { left: `${px(PAPER.left)}px`, top: `${px(top)}px`, width: `${px(width)}px`, height: `${px(height)}px` });
  const svg = svgElement('svg', { xmlns: 'http://www.w3.org/2000/svg', width: px(width), height: px(height), viewBox: `0 0 ${px(width)} ${px(height)}` });
  paintDrawing(svg, drawing, { x: 0, y: 0, width, height }, 1);
  div.appendChild(svg);
  return div;
}

export function reportPageElement(page, points) {
  const div = element('div', { className: 'report-page', 'data-page': String(page.number) });
  Object.assign(div.style, { width: `${px(PAGE.width)}px`, height: `${px(PAGE.height)}px` });
  const number = element('div', { className: 'report-page-number', text: String(page.number) });
  number.style.left = `${px(PAPER.pageNumberAt[0])}px`;
  placeText(number, PAPER.pageNumberAt[1], lineFont(PAPER.pageNumberPoints, false));
  div.appendChild(number);
  let baseline = PAPER.top;
  for (const line of page.lines || []) {
    if (line.picture) {
      const lines = line.lines > 0 ? line.lines : 1;
      div.appendChild(pictureBlock(line.picture, baseline, lines));
      baseline += lines * PAPER.lineHeight;
      continue;
    }
    const text = element('div', { className: line.bold ? 'report-line bold' : 'report-line', text: String(line.text ?? '') });
    text.style.left = `${px(PAPER.left)}px`;
    placeText(text, baseline, lineFont(points, !!line.bold));
    div.appendChild(text);
    baseline += PAPER.lineHeight;
  }
  return div;
}

// The report's pages as `#report`, ready to be shown or printed.
export function reportElement(report) {
  const pages = Array.isArray(report.pages) ? report.pages : [];
  const points = fittedPoints(pages);
  const root = element('div', { id: 'report' });
  for (const page of pages) root.appendChild(reportPageElement(page, points));
  return root;
}

// The example's title, asked as the desktop's report panel asks it; null when
// the user gives up.
export function askReportTitle() {
  const input = element('input', { type: 'text', name: 'title', size: '40', autocomplete: 'off' });
  const label = element('label', { className: 'dialog-field' }, element('span', { text: 'Título do exemplo' }), input);
  return openDialog({
    id: 'report-title', title: 'MORVE', content: [label], focus: input,
    buttons: [['OK', () => input.value, { 'data-answer': 'ok' }], ['Cancelar', null, { 'data-answer': 'cancel' }]],
  });
}

// Asks the title, has the core write the report of `key` from the boxes as they
// stand, and shows its pages over the module with "Imprimir" (the browser's
// print dialog, which prints the report alone) and "Fechar" (back to the module,
// the focus where it was).
export async function showReport({ call, session, key, inputs }) {
  const title = await askReportTitle();
  if (title === null) return false;
  const answer = await call({ op: 'report', session, key, title, inputs: inputs || { fields: {}, grids: {} } });
  if (!answer || answer.error) {
    await showMessage('MORVE', answer ? answer.error : '');
    return false;
  }
  // A picture's print whose dialog never said it closed leaves the page to the report.
  clearPicturePrint();
  document.body.classList.add('report-open');
  const panel = openPanel({
    id: 'report-view',
    buttons: [
      ['Imprimir', () => window.print(), { 'data-name': 'Report.Imprimir' }],
      ['Fechar', (close) => close(), { 'data-name': 'Report.Fechar' }],
    ],
    onClose: () => document.body.classList.remove('report-open'),
  });
  panel.body.appendChild(reportElement(answer));
  return true;
}
