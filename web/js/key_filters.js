// The keyboard filters of numeric boxes and grid cells, the same rules as the
// core's: a character code in, the code to pass on out (0 when swallowed) and
// whether the key was refused. The comma of a Brazilian keyboard stands for the
// decimal point. Backspace and every control code are swallowed too: deletion in
// a box is by the Delete key or by selection, as the program has always done.
const COMMA = 44, MINUS = 45, POINT = 46, SLASH = 47, ZERO = 48, NINE = 57;

function numberKey(code, lowestAccepted) {
  if (code === COMMA) code = POINT;
  if (code < lowestAccepted || code > NINE || code === SLASH) return { code: 0, beep: true };
  return { code, beep: false };
}

export function applyKeyFilter(kind, code) {
  switch (kind) {
    case 'PositiveNumber': return numberKey(code, POINT);
    case 'SignedNumber': return numberKey(code, MINUS);
    case 'Digit':
      if (code < ZERO || code > NINE) return { code: 0, beep: true };
      return { code, beep: false };
    default: return { code, beep: false };
  }
}

// A text as the filter lets it through, character by character (a pasted cell).
export function filteredText(text, kind) {
  if (!kind || kind === 'None') return { text, refused: false };
  let out = '';
  let refused = false;
  for (const ch of text) {
    const k = applyKeyFilter(kind, ch.codePointAt(0));
    if (k.code) out += String.fromCodePoint(k.code);
    else refused = true;
  }
  return { text: out, refused };
}

let audio = null;

// The short tone of a refused key.
export function beep() {
  try {
    audio = audio || new AudioContext();
    const tone = audio.createOscillator();
    const gain = audio.createGain();
    gain.gain.value = 0.05;
    tone.frequency.value = 880;
    tone.connect(gain).connect(audio.destination);
    tone.start();
    tone.stop(audio.currentTime + 0.08);
  } catch (e) { /* a page without sound stays silent */ }
}

// The key of a keydown as the filter sees it: the character typed, Backspace as
// 8 and Enter as 13; 0 for the keys that only move the cursor or change nothing.
export function characterCode(event) {
  if (event.ctrlKey || event.metaKey || event.altKey) return 0;
  if (event.key === 'Backspace') return 8;
  if (event.key === 'Enter') return 13;
  if ([...event.key].length !== 1) return 0;
  return event.key.codePointAt(0);
}

// Runs the filter on every key typed into an input; the comma goes in as a point.
export function guardInput(input, kindOf) {
  input.addEventListener('keydown', (event) => {
    if (input.readOnly) return;
    const kind = kindOf();
    if (!kind || kind === 'None') return;
    const code = characterCode(event);
    if (code === 0) return;
    const out = applyKeyFilter(kind, code);
    if (out.code === code) return;
    event.preventDefault();
    if (out.code === 0) {
      if (out.beep) beep();
      return;
    }
    input.setRangeText(String.fromCodePoint(out.code), input.selectionStart, input.selectionEnd, 'end');
    input.dispatchEvent(new Event('input', { bubbles: true }));
  });
}
