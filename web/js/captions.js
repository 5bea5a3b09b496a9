// Captions as the program writes them: "&CALCULAR" marks C as the key that,
// with Alt, presses the button; "&&" is a plain "&". The page underlines the
// letter and answers Alt with it.

// Fills an element with the caption, the marked letter underlined; returns the
// marked letter in lower case, or "" when none.
export function setCaption(element, caption) {
  element.textContent = '';
  let accel = '';
  let plain = '';
  const text = caption || '';
  for (let i = 0; i < text.length; i++) {
    const ch = text[i];
    if (ch !== '&') {
      plain += ch;
      continue;
    }
    if (text[i + 1] === '&') {
      plain += '&';
      i++;
      continue;
    }
    if (i + 1 >= text.length || accel) continue;
    if (plain) element.append(plain);
    plain = '';
    const u = document.createElement('u');
    u.textContent = text[i + 1];
    element.append(u);
    accel = text[i + 1].toLowerCase();
    i++;
  }
  if (plain) element.append(plain);
  if (accel) element.dataset.accel = accel;
  return accel;
}

// The caption without its marks, for titles and tool tips.
export function plainCaption(caption) {
  return (caption || '').replace(/&(&?)/g, '$1');
}

function reachable(element) {
  return element.getClientRects().length > 0 && !element.disabled && !element.closest('[inert]') &&
    !element.closest('fieldset[disabled]');
}

// Alt+letter inside a root: the element marked with that letter is pressed (a
// button, an option, a check) or given the focus (the box a caption names).
export function answerAccelerators(rootOf) {
  document.addEventListener('keydown', (event) => {
    if (!event.altKey || event.ctrlKey || event.metaKey || event.key.length !== 1) return;
    const root = rootOf();
    if (!root) return;
    const letter = event.key.toLowerCase();
    for (const marked of root.querySelectorAll(`[data-accel="${CSS.escape(letter)}"]`)) {
      const target = marked.htmlFor ? document.getElementById(marked.htmlFor) : marked;
      if (!target || !reachable(target)) continue;
      event.preventDefault();
      if (target.matches('input[type=text], input:not([type]), select, table')) target.focus();
      else {
        target.focus();
        target.click();
      }
      return;
    }
  });
}
