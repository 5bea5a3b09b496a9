// The few texts of the program's own windows (the toolbar's tool tips, the
// question of "Sair", the notes of a paste), asked once of the core, which
// holds them for the desktop too.
let texts = {};

export async function loadShellTexts(call) {
  const answer = await call({ op: 'texts' });
  if (answer && !answer.error) texts = answer;
  return texts;
}

export function shellText(key) {
  return texts[key] ?? '';
}

export function shellTexts() {
  return texts;
}
