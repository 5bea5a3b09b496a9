// The help of the program: a module's page from the help folder (ajuda/, the
// desktop's data/ajuda copied beside the page), the list of module pages of the
// "Ajuda" menu, and the About box.
import { element, openDialog, openPanel } from './panels.js';

function notFound(page) {
  const name = `${page}.html`.replace(/[&<>"]/g, (c) => `&#${c.charCodeAt(0)};`);
  return '<!DOCTYPE html><html lang="pt-BR"><head><meta charset="utf-8"></head><body>' +
    '<h3>Página de ajuda não encontrada</h3>' +
    `<p>O arquivo <b>${name}</b> não está na pasta de ajuda do MORVE.</p></body></html>`;
}

// Shows ajuda/<pageName>.html in a panel over the module; an empty name shows
// nothing. Resolves once the page is in place.
export async function showHelp(pageName) {
  const page = String(pageName || '');
  if (!page) return;
  const url = `ajuda/${encodeURIComponent(page)}.html`;
  const frame = element('iframe', { className: 'help-page', title: page });
  const panel = openPanel({ id: 'help-view', buttons: [['Fechar', (close) => close(), { 'data-name': 'Help.Fechar' }]] });
  panel.body.appendChild(frame);
  let found = false;
  try {
    found = (await fetch(url, { method: 'HEAD', cache: 'no-cache' })).ok;
  } catch {
    found = false;
  }
  if (found) frame.src = url;
  else frame.srcdoc = notFound(page);
}

// The list of module pages ("Form0Help"): "Exibir" shows the chosen row's page.
// `rows` are the catalogue's [{text, page}].
export async function showHelpList(rows) {
  const list = element('select', { size: '16', className: 'help-list', 'data-name': 'Form0Help.List1' });
  for (const [i, row] of (rows || []).entries()) list.append(element('option', { value: String(i) }, String(row.text)));
  const label = element('div', { text: 'Selecione um módulo e clique em "Exibir"' });
  const chosen = () => (list.selectedIndex >= 0 ? rows[list.selectedIndex] : null);
  list.addEventListener('dblclick', () => list.closest('dialog').querySelector('[data-answer="ok"]').click());
  const row = await openDialog({
    id: 'help-list', title: 'MORVE', content: [label, list], focus: list,
    buttons: [['Exibir', chosen, { 'data-answer': 'ok' }], ['Cancelar', null, { 'data-answer': 'cancel' }]],
  });
  if (row && row.page) await showHelp(row.page);
}

// The About box: the catalogue's text, and OK.
export function showAbout(text) {
  const body = element('div', { className: 'about-text', text: String(text || '') });
  return openDialog({ id: 'about', title: 'MORVE', content: [body], buttons: [['OK', true, { 'data-answer': 'ok' }]] });
}
