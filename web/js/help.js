// The help of a module: its page from the help folder (ajuda/, the desktop's
// data/ajuda copied beside the page), shown beside the module.
import { element, openPanel } from './panels.js';

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
    found = (await fetch(url)).ok;
  } catch {
    found = false;
  }
  if (found) frame.src = url;
  else frame.srcdoc = notFound(page);
}
