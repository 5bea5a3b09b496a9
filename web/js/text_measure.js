// Text measured as the browser will draw it, so that labels of drawings and the
// lines of a report are placed by the widths and heights of the font in use.
// The faces are the desktop's (DejaVu), with look-alikes where they are missing.

export const DRAWING_FACE = '"DejaVu Sans", Verdana, "Bitstream Vera Sans", sans-serif';
export const REPORT_FACE = '"DejaVu Sans Mono", "Bitstream Vera Sans Mono", Menlo, Consolas, monospace';

let context = null;
const metricsCache = new Map();

function canvasContext() {
  if (!context) context = document.createElement('canvas').getContext('2d');
  return context;
}

// A CSS font shorthand: size in CSS pixels.
export function cssFont(sizePx, face, bold = false) {
  return `${bold ? 'bold ' : ''}${sizePx}px ${face}`;
}

export function textWidth(text, font) {
  const ctx = canvasContext();
  ctx.font = font;
  return ctx.measureText(text).width;
}

// Ascent and descent of the font (not of a given text): the line's room above
// and below the baseline.
export function fontMetrics(font) {
  const known = metricsCache.get(font);
  if (known) return known;
  const ctx = canvasContext();
  ctx.font = font;
  const m = ctx.measureText('Hg');
  const size = parseFloat(font.replace(/^bold /, '')) || 12;
  let ascent = m.fontBoundingBoxAscent;
  let descent = m.fontBoundingBoxDescent;
  // Older engines know only the text's own box; DejaVu's proportions stand in.
  if (!(ascent > 0)) ascent = 0.928 * size;
  if (!(descent >= 0)) descent = 0.236 * size;
  const metrics = { ascent, descent, height: ascent + descent };
  metricsCache.set(font, metrics);
  return metrics;
}

// The first measure readies the canvas and loads the faces, some milliseconds
// better spent while the page waits for the user than on the first CALCULAR.
if (typeof document !== 'undefined') {
  const warm = () => {
    textWidth('Mx', cssFont(12, DRAWING_FACE));
    fontMetrics(cssFont(16, REPORT_FACE));
  };
  if (typeof requestIdleCallback === 'function') requestIdleCallback(warm);
  else setTimeout(warm, 0);
}
