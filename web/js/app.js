// The page: the core started in its worker, the main menu built from the
// catalogue with the start-up defaults dialog over it, and one module at a
// time opened from the menu in the module area.
import { startCore, call } from './core.js';
import { loadShellTexts, shellTexts } from './shell_texts.js';
import { loadPictureModules, pictureModule } from './pictures.js';
import { buildMenu, buildMenuPicture } from './menu.js';
import { showStartDialog } from './start.js';
import { showHelpList, showAbout } from './help_dialogs.js';
import { answerAccelerators } from './captions.js';
import { warn } from './dialogs.js';
import { ModuleHost } from './module_host.js';
import { RecoveryKeeper, offerRecovery, recoveryKept } from './recovery.js';

let catalogue = {};
let startup = [];
let host = null;
let keeper = null;
const menuArea = document.getElementById('menu-area');
const moduleArea = document.getElementById('module');

function showHelpPage(page) {
  const help = pictureModule('help');
  if (help && help.showHelp) help.showHelp(page);
}

function onHelp(entry) {
  if (entry.action === 'page') showHelpPage(entry.page);
  else if (entry.action === 'list') showHelpList(catalogue.helpList || [], showHelpPage);
  else if (entry.action === 'about') showAbout(catalogue.about);
}

async function closeModule() {
  if (!host) return;
  const closing = host;
  host = null;
  keeper.stop();
  // The module's help, report and steps go with it: each panel closes on Esc.
  if (document.querySelector('.panel')) document.dispatchEvent(new KeyboardEvent('keydown', { key: 'Escape' }));
  await closing.close();
}

async function toMenu() {
  await closeModule();
  moduleArea.hidden = true;
  menuArea.hidden = false;
}

function askStartup() {
  showStartDialog(catalogue.startup || {}, (chosen) => { startup = chosen; });
}

async function toStart() {
  await toMenu();
  askStartup();
}

// The module from the menu, or with the data the last session left (kept): a
// copy the module refuses opens nothing, and the answer says so.
async function openModule(key, kept = null) {
  await closeModule();
  const opened = await call({ op: 'open', module: key, startup });
  if (opened.error && kept === null) await warn(opened.error);
  if (opened.error) return false;
  if (kept !== null) {
    const loaded = await call({ op: 'load', session: opened.session, text: kept });
    if (loaded.error || loaded.message) {
      await call({ op: 'close', session: opened.session });
      return false;
    }
    opened.state = loaded.state;
  }
  menuArea.hidden = true;
  moduleArea.hidden = false;
  host = new ModuleHost({ call, opened, key, container: moduleArea, shell: { toMenu, toStart } });
  keeper = new RecoveryKeeper(host, call);
  host.focusFirst();
  return true;
}

function answerKeys() {
  answerAccelerators(() => {
    if (document.querySelector('dialog[open]')) return null;
    return host ? host.activeScreen()?.section : null;
  });
  document.addEventListener('keydown', (event) => {
    if (event.key !== 'Escape' || !host || document.querySelector('dialog[open]')) return;
    event.preventDefault();
    host.escape();
  });
}

async function boot() {
  window.morveTimings = window.morveTimings || [];
  startCore();
  const [answer] = await Promise.all([call({ op: 'catalogue' }), loadShellTexts(call), loadPictureModules()]);
  if (answer.error) {
    await warn(answer.error);
    return;
  }
  catalogue = answer;
  startup = [...((catalogue.startup || {}).selected || [])];
  menuArea.append(buildMenu(catalogue, { onModule: openModule, onHelp, active: () => !menuArea.hidden }),
    buildMenuPicture({ version: shellTexts().version, purpose: shellTexts().purpose }));
  answerKeys();
  // Data the last session left come first, as on the desktop: the module opens
  // with them in place of the start dialog.
  const offering = recoveryKept();
  if (!offering) askStartup();
  document.body.dataset.ready = '1';
  if (offering && !(await offerRecovery(call, openModule))) askStartup();
}

boot();
