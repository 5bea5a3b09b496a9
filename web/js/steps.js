// "Passo a passo": the steps of the module's latest CALCULAR as the core writes
// them (one HTML page), with printing, the page saved as a file, and closing.
import { download, element, openPanel } from './panels.js';
import { showMessage } from './files.js';

export async function showSteps({ call, session }) {
  const answer = await call({ op: 'steps', session });
  if (!answer || answer.error || typeof answer.html !== 'string') {
    await showMessage('MORVE', answer && answer.error ? answer.error : '');
    return false;
  }
  const frame = element('iframe', { className: 'steps-page', title: 'MORVE — Passo a passo' });
  const panel = openPanel({
    id: 'steps-view',
    title: 'MORVE — Passo a passo',
    buttons: [
      ['Imprimir', () => frame.contentWindow && frame.contentWindow.print(), { 'data-name': 'Steps.Imprimir' }],
      ['Salvar HTML', () => download('passo-a-passo.html', answer.html, 'text/html'), { 'data-name': 'Steps.SalvarHtml' }],
      ['Fechar', (close) => close(), { 'data-name': 'Steps.Fechar' }],
    ],
  });
  frame.srcdoc = answer.html;
  panel.body.appendChild(frame);
  return true;
}
