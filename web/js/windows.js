// A module's screens behave as the desktop's windows: a click anywhere on a
// live window brings it to the front, its title bar moves it, and a window
// that leaves the one under it live opens beside that one rather than over its
// buttons. The main window stays in the page's flow and moves by offsets; the
// other windows stand over the page and move to where they are put.

const MARGIN = 8;  // between a window and the page's edge
const GAP = 8;     // between two windows side by side
const GRIP = 80;   // of a window's title bar kept in the page while it is dragged
const LEAST = 0.7; // of its height a picture keeps when its window is made to fit

let front = 10;

export function bringToFront(section) {
  section.style.zIndex = String(++front);
}

const inFlow = (section) => getComputedStyle(section).position !== 'fixed';

// Moves a window by (dx, dy) pixels: the main window by its margin and offset,
// another window by its place, first taken from where it stands.
export function moveBy(section, dx, dy) {
  if (inFlow(section)) {
    // Its left edge stays where it is put when the window grows with its results.
    section.style.marginLeft = `${parseFloat(getComputedStyle(section).marginLeft) + dx}px`;
    section.style.top = `${(parseFloat(section.style.top) || 0) + dy}px`;
    return;
  }
  const r = section.getBoundingClientRect();
  Object.assign(section.style, { inset: 'auto', margin: '0', left: `${r.left + dx}px`, top: `${r.top + dy}px` });
}

// A window back where the page puts it by itself: centred over the page.
export function unplace(section) {
  for (const p of ['inset', 'margin', 'left', 'top']) section.style.removeProperty(p);
}

// Keeps a grip of the title bar inside the page, so that the window can always be taken back.
function clampMove(section, dx, dy) {
  const r = section.getBoundingClientRect();
  const x = Math.min(Math.max(r.left + dx, GRIP - r.width), innerWidth - GRIP);
  const y = Math.min(Math.max(r.top + dy, 0), innerHeight - GRIP / 2);
  return [x - r.left, y - r.top];
}

// The title bar drags its window; its close button stays a button.
export function makeMovable(section, titlebar) {
  titlebar.addEventListener('pointerdown', (event) => {
    if (event.button !== 0 || event.target.closest('button')) return;
    event.preventDefault();
    titlebar.setPointerCapture(event.pointerId);
    let last = [event.clientX, event.clientY];
    const move = (e) => {
      const [dx, dy] = clampMove(section, e.clientX - last[0], e.clientY - last[1]);
      moveBy(section, dx, dy);
      last = [last[0] + dx, last[1] + dy];
    };
    const stop = () => {
      titlebar.removeEventListener('pointermove', move);
      titlebar.removeEventListener('pointerup', stop);
      titlebar.removeEventListener('pointercancel', stop);
    };
    titlebar.addEventListener('pointermove', move);
    titlebar.addEventListener('pointerup', stop);
    titlebar.addEventListener('pointercancel', stop);
  });
}

// A click on a live window brings it to the front; a click on no control of it
// gives the focus back to the control that last had it there, as a window
// activated on the desktop does.
export function raiseOnClick(section, onRaise) {
  let last = null;
  section.addEventListener('focusin', (event) => { last = event.target; });
  section.addEventListener('pointerdown', (event) => {
    if (section.inert) return;
    onRaise();
    if (event.target.closest('input, select, button, textarea, a, [tabindex]')) return;
    setTimeout(() => {
      if (section.contains(document.activeElement)) return;
      if (last && last.isConnected && !last.disabled && last.checkVisibility()) last.focus();
    });
  }, true);
}

// A window a little taller than the page's room has its pictures and charts
// drawn smaller, so that it shows whole; one much taller keeps them and scrolls.
export function fitPictures(section) {
  const page = section.querySelector('.page');
  const holders = [...section.querySelectorAll('div.picture, div.chart')];
  for (const holder of holders) for (const p of ['max-height', 'max-width']) holder.style.removeProperty(p);
  const shown = holders.filter((holder) => holder.checkVisibility());
  const excess = page ? page.scrollHeight - page.clientHeight : 0;
  const boxes = shown.map((holder) => holder.getBoundingClientRect());
  const total = boxes.reduce((sum, box) => sum + box.height, 0);
  if (excess <= 0 || excess > total * (1 - LEAST)) return;
  const scale = 1 - excess / total;
  shown.forEach((holder, i) => Object.assign(holder.style,
    { maxHeight: `${boxes[i].height * scale}px`, maxWidth: `${boxes[i].width * scale}px` }));
}

// A window put over the page comes back into it when the page shrinks.
addEventListener('resize', () => {
  for (const section of document.querySelectorAll('section.screen:not([hidden])')) {
    fitPictures(section);
    if (inFlow(section) || !section.style.left) continue;
    const r = section.getBoundingClientRect();
    const x = Math.max(MARGIN, Math.min(r.left, innerWidth - MARGIN - r.width));
    const y = Math.max(MARGIN, Math.min(r.top, innerHeight - MARGIN - r.height));
    moveBy(section, x - r.left, y - r.top);
  }
});

function union(rects) {
  return rects.reduce((u, r) => ({ left: Math.min(u.left, r.left), top: Math.min(u.top, r.top),
    right: Math.max(u.right, r.right), bottom: Math.max(u.bottom, r.bottom) }));
}

// A window that leaves the windows under it live opens beside them: at their
// right or left where the page has room, else with them moved aside to make
// the room, else at the page's right edge with them at its left, so that it
// covers as little of them as it can.
export function placeBeside(section, others) {
  unplace(section);
  if (!others.length) return;
  const u = union(others.map((o) => o.getBoundingClientRect()));
  const { width: w, height: h } = section.getBoundingClientRect();
  const width = u.right - u.left;
  let x;
  if (u.right + GAP + w <= innerWidth - MARGIN) x = u.right + GAP;
  else if (u.left - GAP - w >= MARGIN) x = u.left - GAP - w;
  else {
    const pair = width + GAP + w;
    const left = pair <= innerWidth - 2 * MARGIN ? (innerWidth - pair) / 2 : MARGIN;
    for (const other of others) moveBy(other, left - u.left, 0);
    x = Math.max(MARGIN, Math.min(left + width + GAP, innerWidth - MARGIN - w));
  }
  const y = Math.max(MARGIN, Math.min(u.top, innerHeight - MARGIN - h));
  Object.assign(section.style, { inset: 'auto', margin: '0', left: `${x}px`, top: `${y}px` });
}
