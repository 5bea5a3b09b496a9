// A module's XY chart (the interaction diagram of a column section) as SVG, laid
// out as the desktop's chart widget shows it: the title on top, the legend under
// it when there is more than one series, the axes with ticks at round values and
// their titles, the series as points or joined lines, y upwards.
import { DRAWING_FACE, cssFont, fontMetrics, textWidth } from './text_measure.js';
import { px, rgb, svgElement } from './drawing_svg.js';

const TITLE_FONT = cssFont(13, DRAWING_FACE);
const AXIS_TITLE_FONT = cssFont(12, DRAWING_FACE, true);
const TICK_FONT = cssFont(12, DRAWING_FACE);
const LEGEND_FONT = cssFont(13, DRAWING_FACE);
const MARGIN = 10;
const GRID_COLOUR = 'rgb(224,224,224)';
const AXIS_COLOUR = 'rgb(208,208,208)';
const LABEL_COLOUR = 'rgb(64,64,64)';
let clipCount = 0;

// A number as C's "%g" writes it: six significant digits, no trailing zeros,
// the exponent form for very large or very small values.
export function formatG(value) {
  if (!Number.isFinite(value)) return '';
  if (value === 0) return '0';
  const [mantissa, exponentText] = value.toExponential(5).split('e');
  const exponent = Number(exponentText);
  const trim = (s) => (s.includes('.') ? s.replace(/0+$/, '').replace(/\.$/, '') : s);
  if (exponent < -4 || exponent >= 6) {
    const sign = exponent < 0 ? '-' : '+';
    return `${trim(mantissa)}e${sign}${String(Math.abs(exponent)).padStart(2, '0')}`;
  }
  return trim(value.toFixed(Math.max(0, 5 - exponent)));
}

// Ticks at round values (1, 2 or 5 times a power of ten, about five of them,
// counted from zero), so the labels read as numbers a user would write.
export function roundTicks(low, high) {
  const span = high - low;
  if (!(span > 0) || !Number.isFinite(span)) return [];
  const rough = span / 5;
  const power = Math.pow(10, Math.floor(Math.log10(rough)));
  let step = power;
  for (const m of [2, 5, 10]) if (rough > step * 1.5) step = power * m;
  const ticks = [];
  const tolerance = step * 1e-9;
  for (let k = Math.ceil((low - tolerance) / step); k * step <= high + tolerance && ticks.length < 100; ++k)
    ticks.push(Number((k * step).toPrecision(12)));
  return ticks;
}

function range(low, high) {
  if (!Number.isFinite(low) || !Number.isFinite(high)) return [0, 1];
  if (high > low) return [low, high];
  return [low - 1, low + 1];
}

function text(parent, content, x, y, font, attributes = {}) {
  const element = svgElement('text', { x: px(x), y: px(y), fill: LABEL_COLOUR, style: `font:${font}`, ...attributes });
  element.textContent = content;
  parent.appendChild(element);
  return element;
}

function legend(svg, series, top, width) {
  const { ascent, height } = fontMetrics(LEGEND_FONT);
  const items = series.map((s) => ({ s, w: 18 + textWidth(String(s.name ?? ''), LEGEND_FONT) + 16 }));
  let x = (width - items.reduce((sum, i) => sum + i.w, 0)) / 2;
  for (const { s, w } of items) {
    const colour = rgb(s.colour);
    svg.appendChild(svgElement('rect', { x: px(x + 2), y: px(top + height / 2 - 4), width: 8, height: 8, fill: colour, stroke: 'rgb(64,64,64)', 'stroke-width': 1 }));
    text(svg, String(s.name ?? ''), x + 18, top + ascent, LEGEND_FONT);
    x += w;
  }
  return height + 6;
}

function seriesElements(group, s, at) {
  const points = (s.points || []).filter((p) => Array.isArray(p) && Number.isFinite(p[0]) && Number.isFinite(p[1])).map(at);
  const colour = rgb(s.colour);
  if (s.scatter === false) {
    if (points.length > 0)
      group.appendChild(svgElement('polyline', { points: points.map(([x, y]) => `${px(x)},${px(y)}`).join(' '), fill: 'none', stroke: colour, 'stroke-width': 1.2 }));
    return;
  }
  // The marker's size takes in its white rim: the coloured dot is a pixel less all round.
  const r = Math.max(1, (Number.isFinite(s.markerSize) && s.markerSize > 0 ? s.markerSize : 6) / 2 - 1);
  for (const [x, y] of points) group.appendChild(svgElement('circle', { cx: px(x), cy: px(y), r: px(r), fill: colour }));
}

export function chartToSvg(chart, widthPx, heightPx) {
  const width = Number.isFinite(widthPx) && widthPx > 0 ? widthPx : 560;
  const height = Number.isFinite(heightPx) && heightPx > 0 ? heightPx : 420;
  const svg = svgElement('svg', { xmlns: 'http://www.w3.org/2000/svg', width: px(width), height: px(height), viewBox: `0 0 ${px(width)} ${px(height)}` });
  svg.classList.add('chart');
  svg.appendChild(svgElement('rect', { x: 0, y: 0, width: px(width), height: px(height), fill: 'white' }));
  const data = chart || {};
  const series = Array.isArray(data.series) ? data.series : [];

  let top = MARGIN;
  if (data.title) {
    const m = fontMetrics(TITLE_FONT);
    text(svg, String(data.title), width / 2, top + m.ascent, TITLE_FONT, { 'text-anchor': 'middle' });
    top += m.height + 6;
  }
  if (series.length > 1) top += legend(svg, series, top, width);

  const [xMin, xMax] = range(data.xMin, data.xMax);
  const [yMin, yMax] = range(data.yMin, data.yMax);
  const xTicks = roundTicks(xMin, xMax);
  const yTicks = roundTicks(yMin, yMax);
  const tick = fontMetrics(TICK_FONT);
  const axisTitle = fontMetrics(AXIS_TITLE_FONT);
  const yLabelWidth = Math.max(0, ...yTicks.map((v) => textWidth(formatG(v), TICK_FONT)));
  const plot = {
    left: MARGIN + (data.yTitle ? axisTitle.height + 6 : 0) + yLabelWidth + 8,
    top: top + tick.height / 2,
    right: width - MARGIN - Math.max(8, textWidth(formatG(xTicks[xTicks.length - 1] ?? 0), TICK_FONT) / 2),
    bottom: height - MARGIN - (data.xTitle ? axisTitle.height + 4 : 0) - tick.height - 6,
  };
  if (!(plot.right > plot.left) || !(plot.bottom > plot.top)) return svg;
  const sx = (x) => plot.left + ((x - xMin) / (xMax - xMin)) * (plot.right - plot.left);
  const sy = (y) => plot.bottom - ((y - yMin) / (yMax - yMin)) * (plot.bottom - plot.top);

  for (const v of xTicks) {
    const x = sx(v);
    svg.appendChild(svgElement('line', { x1: px(x), y1: px(plot.top), x2: px(x), y2: px(plot.bottom), stroke: GRID_COLOUR, 'stroke-width': 1 }));
    svg.appendChild(svgElement('line', { x1: px(x), y1: px(plot.bottom), x2: px(x), y2: px(plot.bottom + 5), stroke: GRID_COLOUR, 'stroke-width': 1 }));
    text(svg, formatG(v), x, plot.bottom + 6 + tick.ascent, TICK_FONT, { 'text-anchor': 'middle' });
  }
  for (const v of yTicks) {
    const y = sy(v);
    svg.appendChild(svgElement('line', { x1: px(plot.left), y1: px(y), x2: px(plot.right), y2: px(y), stroke: GRID_COLOUR, 'stroke-width': 1 }));
    svg.appendChild(svgElement('line', { x1: px(plot.left - 5), y1: px(y), x2: px(plot.left), y2: px(y), stroke: GRID_COLOUR, 'stroke-width': 1 }));
    text(svg, formatG(v), plot.left - 7, y + (tick.ascent - tick.descent) / 2, TICK_FONT, { 'text-anchor': 'end' });
  }
  // The axes' own lines, at the bottom and the left of the plot, as light as the grid.
  svg.appendChild(svgElement('polyline', { points: `${px(plot.left)},${px(plot.top)} ${px(plot.left)},${px(plot.bottom)} ${px(plot.right)},${px(plot.bottom)}`, fill: 'none', stroke: AXIS_COLOUR, 'stroke-width': 1 }));
  if (data.xTitle)
    text(svg, String(data.xTitle), (plot.left + plot.right) / 2, height - MARGIN - axisTitle.descent, AXIS_TITLE_FONT, { 'text-anchor': 'middle' });
  if (data.yTitle) {
    const x = MARGIN + axisTitle.ascent;
    const y = (plot.top + plot.bottom) / 2;
    text(svg, String(data.yTitle), x, y, AXIS_TITLE_FONT, { 'text-anchor': 'middle', transform: `rotate(-90 ${px(x)} ${px(y)})` });
  }

  const id = `morve-chart-clip-${++clipCount}`;
  const clip = svgElement('clipPath', { id });
  clip.appendChild(svgElement('rect', { x: px(plot.left - 6), y: px(plot.top - 6), width: px(plot.right - plot.left + 12), height: px(plot.bottom - plot.top + 12) }));
  svg.appendChild(clip);
  const group = svgElement('g', { 'clip-path': `url(#${id})` });
  for (const s of series) seriesElements(group, s, (p) => [sx(p[0]), sy(p[1])]);
  svg.appendChild(group);
  return svg;
}
