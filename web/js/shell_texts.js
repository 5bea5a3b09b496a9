// The few texts of the program's own windows (the toolbar's tool tips, the
// question of "Sair", the notes of a paste), asked once of the core, which
// holds them for the desktop too.
let texts = {};

// The tips of the start dialog come from the help folder's tips file, one a line.
async function loadTips(count) {
  try {
    const response = await fetch('ajuda/Tipofday.txt');
    if (!response.ok) return [];
    const lines = (await response.text()).split(/\r?\n/);
    if (lines[lines.length - 1] === '') lines.pop();
    return lines.slice(0, count);
  } catch (error) {
    return [];
  }
}

export async function loadShellTexts(call) {
  const answer = await call({ op: 'texts' });
  if (answer && !answer.error) texts = answer;
  texts.tips = await loadTips(texts.tipCount || 0);
  return texts;
}

export function shellText(key) {
  return texts[key] ?? '';
}

export function shellTexts() {
  return texts;
}
