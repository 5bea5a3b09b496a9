// A module's Drawing as SVG, placed exactly as the desktop paints it on its
// windows, report pages and picture files: the drawing's region (or, for a
// sketch that fits its content, what is drawn, labels included) is fitted into
// the target keeping its proportions and centred; text sizes and line widths are
// pixels of a screen at 96 dots per inch, carried to the surface by pixelScale.
// y grows downwards in the drawing as in SVG, so nothing is flipped.
import { DRAWING_FACE, cssFont, fontMetrics, textWidth } from './text_measure.js';

const SVG_NS = 'http://www.w3.org/2000/svg';
const SMALLEST_DOT = 2.5; // radius of a filled bar, in screen pixels, however small its scale
const CONTENT_MARGIN = 6; // screen pixels kept clear round a drawing fitted to its content
const FRAME_GAP = 4; // the picture box's border and gap, as the desktop's picture box has them
let clipCount = 0;
// The size each drawing was last shown at on a screen, so that a picture saved
// from its box has the box's size, as the desktop saves it.
const shownSizes = new WeakMap();

export function shownSize(drawing) {
  return (drawing && typeof drawing === 'object' && shownSizes.get(drawing)) || null;
}

export function svgElement(tag, attributes = {}) {
  const element = document.createElementNS(SVG_NS, tag);
  for (const [name, value] of Object.entries(attributes)) element.setAttribute(name, String(value));
  return element;
}

// Coordinates rounded to a hundredth of a pixel: finer than any screen or printer.
export function px(value) {
  return String(Math.round(value * 100) / 100);
}

export function rgb(colour) {
  const [r, g, b] = Array.isArray(colour) ? colour : [0, 0, 0];
  return `rgb(${r | 0},${g | 0},${b | 0})`;
}

const finite = (...values) => values.every(Number.isFinite);
const pointOk = (p) => Array.isArray(p) && finite(p[0], p[1]);

function fitRegion(left, top, right, bottom, target) {
  const w = right - left;
  const h = bottom - top;
  const fit = { scale: 1, dx: 0, dy: 0 };
  if (!(w > 0) || !(h > 0) || !finite(w, h)) return fit;
  fit.scale = Math.min(target.width / w, target.height / h);
  fit.dx = target.x + (target.width - w * fit.scale) / 2 - left * fit.scale;
  fit.dy = target.y + (target.height - h * fit.scale) / 2 - top * fit.scale;
  return fit;
}

function labelFont(label, pixelScale) {
  const size = Number.isFinite(label.size) ? label.size : 9;
  return cssFont(Math.max(1, Math.round((size * 96) / 72 * pixelScale)), DRAWING_FACE);
}

// The extent of a label about its point, in surface pixels.
function labelBox(label, pixelScale) {
  const font = labelFont(label, pixelScale);
  const width = textWidth(String(label.text ?? ''), font);
  const { height } = fontMetrics(font);
  const left = label.align === 'centre' ? -width / 2 : label.align === 'right' ? -width : 0;
  return { left, right: left + width, top: -height / 2, bottom: height / 2 };
}

// The region to show: the drawing's own, or the bounds of its shapes. Labels keep
// their size in pixels whatever the scale, so their room in drawing units is found
// with the scale the shapes give, twice over to settle.
function fitDrawing(drawing, target, pixelScale) {
  const region = () => fitRegion(drawing.left, drawing.top, drawing.right, drawing.bottom, target);
  if (!drawing.fitContent) return region();
  let l = Infinity, t = Infinity, r = -Infinity, b = -Infinity;
  const take = (p, reach = 0) => {
    if (!pointOk(p) || !Number.isFinite(reach)) return;
    l = Math.min(l, p[0] - reach);
    r = Math.max(r, p[0] + reach);
    t = Math.min(t, p[1] - reach);
    b = Math.max(b, p[1] + reach);
  };
  for (const s of drawing.shapes) {
    if (s.type === 'line') { take(s.from); take(s.to); }
    else if (s.type === 'polyline') (s.points || []).forEach((p) => take(p));
    else if (s.type === 'circle') take(s.centre, s.radius);
  }
  if (!(l < r) || !(t < b)) return region();
  const margin = CONTENT_MARGIN * pixelScale;
  const inner = { x: target.x + margin, y: target.y + margin,
    width: target.width - 2 * margin, height: target.height - 2 * margin };
  let fit = fitRegion(l, t, r, b, inner);
  for (let round = 0; round < 2; ++round) {
    let L = l, T = t, R = r, B = b;
    for (const s of drawing.shapes) {
      if (s.type !== 'label' || !pointOk(s.at)) continue;
      const box = labelBox(s, pixelScale);
      L = Math.min(L, s.at[0] + box.left / fit.scale);
      R = Math.max(R, s.at[0] + box.right / fit.scale);
      T = Math.min(T, s.at[1] + box.top / fit.scale);
      B = Math.max(B, s.at[1] + box.bottom / fit.scale);
    }
    fit = fitRegion(L, T, R, B, inner);
  }
  return fit;
}

function clamp(value, low, high) {
  return Math.min(Math.max(value, low), high);
}

function shapeElement(shape, fit, target, pixelScale) {
  const at = (p) => [fit.dx + p[0] * fit.scale, fit.dy + p[1] * fit.scale];
  const colour = rgb(shape.colour);
  const stroke = { stroke: colour, 'stroke-width': px(Math.max(0.5, Number(shape.width) || 0) * pixelScale), fill: 'none' };
  if (shape.type === 'line') {
    if (!pointOk(shape.from) || !pointOk(shape.to)) return null;
    const [x1, y1] = at(shape.from);
    const [x2, y2] = at(shape.to);
    return svgElement('line', { x1: px(x1), y1: px(y1), x2: px(x2), y2: px(y2), ...stroke });
  }
  if (shape.type === 'polyline') {
    const points = (shape.points || []).filter(pointOk).map(at);
    if (points.length === 0) return null;
    const list = points.map(([x, y]) => `${px(x)},${px(y)}`).join(' ');
    if (shape.filled) return svgElement('polygon', { points: list, fill: colour, stroke: 'none' });
    return svgElement(shape.closed ? 'polygon' : 'polyline', { points: list, ...stroke });
  }
  if (shape.type === 'circle') {
    if (!pointOk(shape.centre) || !Number.isFinite(shape.radius)) return null;
    const [cx, cy] = at(shape.centre);
    let r = Math.abs(shape.radius * fit.scale);
    if (!shape.filled) return svgElement('circle', { cx: px(cx), cy: px(cy), r: px(r), ...stroke });
    // A bar drawn to scale, but never smaller than a visible dot.
    r = Math.max(r, SMALLEST_DOT * pixelScale);
    return svgElement('circle', { cx: px(cx), cy: px(cy), r: px(r), fill: colour, stroke: 'none' });
  }
  if (shape.type === 'label') {
    if (!pointOk(shape.at)) return null;
    const text = String(shape.text ?? '');
    const font = labelFont(shape, pixelScale);
    const width = textWidth(text, font);
    const { ascent, descent } = fontMetrics(font);
    let [x, y] = at(shape.at);
    if (shape.align === 'centre') x -= width / 2;
    if (shape.align === 'right') x -= width;
    // The point is the middle of the text's height, as a sketch's labels sit
    // beside what they name.
    y += (ascent - descent) / 2;
    // A label near the edge (a dimension on the left of a floor) moves in rather
    // than losing its first letters to the edge.
    x = clamp(x, target.x, Math.max(target.x, target.x + target.width - width));
    y = clamp(y, target.y + ascent, Math.max(target.y + ascent, target.y + target.height - descent));
    const element = svgElement('text', { x: px(x), y: px(y), fill: colour, style: `font:${font};white-space:pre` });
    element.textContent = text;
    return element;
  }
  return null;
}

// Paints the drawing into `parent` (an svg or g), fitted into target
// {x, y, width, height} in the parent's pixels, clipped to it.
export function paintDrawing(parent, drawing, target, pixelScale = 1) {
  if (!drawing || !Array.isArray(drawing.shapes) || drawing.shapes.length === 0) return;
  if (!finite(target.x, target.y, target.width, target.height) || !(target.width > 0) || !(target.height > 0)) return;
  const fit = fitDrawing(drawing, target, pixelScale);
  const id = `morve-clip-${++clipCount}`;
  const clip = svgElement('clipPath', { id });
  clip.appendChild(svgElement('rect', { x: px(target.x), y: px(target.y), width: px(target.width), height: px(target.height) }));
  parent.appendChild(clip);
  const group = svgElement('g', { 'clip-path': `url(#${id})`, 'stroke-linecap': 'butt', 'stroke-linejoin': 'bevel', 'fill-rule': 'evenodd' });
  for (const shape of drawing.shapes) {
    const element = shapeElement(shape, fit, target, pixelScale);
    if (element) group.appendChild(element);
  }
  parent.appendChild(group);
}

// A picture box's drawing: white, with the picture box's grey border and the
// drawing inside it, as the module windows show it. With {frame: false} the
// drawing fills the whole area, as a saved picture file has it.
export function drawingToSvg(drawing, widthPx, heightPx, { frame = true } = {}) {
  const width = Number.isFinite(widthPx) && widthPx > 0 ? widthPx : 640;
  const height = Number.isFinite(heightPx) && heightPx > 0 ? heightPx : 480;
  const svg = svgElement('svg', { xmlns: SVG_NS, width: px(width), height: px(height), viewBox: `0 0 ${px(width)} ${px(height)}` });
  svg.classList.add('drawing');
  svg.appendChild(svgElement('rect', { x: 0, y: 0, width: px(width), height: px(height), fill: 'white' }));
  if (frame) {
    if (drawing && typeof drawing === 'object') shownSizes.set(drawing, [width, height]);
    svg.appendChild(svgElement('rect', { x: 0.5, y: 0.5, width: px(width - 1), height: px(height - 1), fill: 'none', stroke: 'rgb(160,160,160)', 'stroke-width': 1 }));
    paintDrawing(svg, drawing, { x: FRAME_GAP, y: FRAME_GAP, width: width - 2 * FRAME_GAP, height: height - 2 * FRAME_GAP });
  } else {
    paintDrawing(svg, drawing, { x: 0, y: 0, width, height });
  }
  return svg;
}
