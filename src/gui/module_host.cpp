#include "gui/module_host.h"

#include <QCoreApplication>
#include <QTimer>
#include <QToolBar>

#include "app/catalogue.h"
#include "gui/gui_prompter.h"
#include "gui/picture_views.h"
#include "gui/project_dialogs.h"
#include "gui/save_picture_dialog.h"
#include "gui/screen_window.h"
#include "gui/steps_window.h"
#include "gui/window_places.h"

namespace morve {

namespace {

std::string screenOf(const std::string& qualifiedName) { return qualifiedName.substr(0, qualifiedName.find('.')); }

}  // namespace

ModuleHost::ModuleHost(const Module& module, const StartDefaults& defaults, Shell& shell)
    : module_(module), shell_(shell), session_(module, defaults), screens_(module.screens()) {
    session_.recordSteps(true);
}

ModuleHost::~ModuleHost() {
    for (auto& [name, w] : windows_) {
        w->closeQuietly();
        w->deleteLater();
    }
}

const ScreenDecl* ModuleHost::declared(const std::string& screen) const {
    for (const auto& s : screens_)
        if (s.name == screen) return &s;
    return nullptr;
}

ScreenWindow* ModuleHost::window(const std::string& screen) const {
    auto it = windows_.find(screen);
    return it == windows_.end() ? nullptr : it->second;
}

ScreenWindow* ModuleHost::ensureWindow(const std::string& screen) {
    if (ScreenWindow* w = window(screen)) return w;
    const ScreenDecl* decl = declared(screen);
    if (!decl) return nullptr;
    auto* w = new ScreenWindow(*decl);
    w->setAttribute(Qt::WA_DeleteOnClose, false);
    w->onCommand = [this, screen](const std::string& command) {
        press(screen, screen == session_.info().key ? command : screen + "." + command);
    };
    w->onToolbar = [this, screen](const std::string& key) { toolbar(screen, key); };
    if (screen == session_.info().key && decl->toolbar)
        addStepsButton(w->findChild<QToolBar*>(QStringLiteral("Toolbar1")), w,
                       [this]() -> const Trace& { return session_.steps(); });
    if (screen == session_.info().key)
        w->onClose = [this] { shell_.returnToMenu(); };
    else
        w->onClose = [this, screen] { companionClosed(screen); };
    windows_[screen] = w;
    refresh(w);
    w->fitToScreen();
    centreOnScreen(w);
    return w;
}

void ModuleHost::refresh(ScreenWindow* w) {
    w->loadFrom(session_.state());
    for (const auto& picture : w->pictures())
        w->setDrawing(picture, module_.drawing(w->name() + "." + picture, session_.state()));
    for (const auto& chart : w->charts())
        w->setChart(chart, module_.chart(w->name() + "." + chart, session_.state()));
}

void ModuleHost::open() {
    shell_.showBackdrop(true);
    showScreen(session_.info().key);
}

void ModuleHost::showScreen(const std::string& screen) {
    if (ScreenWindow* w = ensureWindow(screen)) {
        w->show();
        w->raise();
        w->activateWindow();
    }
}

void ModuleHost::dropWindow(const std::string& screen) {
    auto it = windows_.find(screen);
    if (it == windows_.end()) return;
    ScreenWindow* w = it->second;
    windows_.erase(it);
    w->closeQuietly();
    w->deleteLater();
}

void ModuleHost::unloadAll() {
    for (const std::string& name : session_.info().unloads) {
        if (name == "FormAjuda") shell_.closeModuleHelp();
        dropWindow(name);
    }
    std::vector<std::string> rest;
    for (const auto& [name, w] : windows_) rest.push_back(name);
    for (const auto& name : rest) dropWindow(name);
}

Outcome ModuleHost::press(const std::string& screen, const std::string& command) {
    for (auto& [name, w] : windows_) w->storeTo(session_.state());
    if (onCalculate && session_.state().qualify(command) == session_.state().qualify(session_.info().calculate))
        onCalculate();
    // Before any box the windows show what the calculation has written so far.
    SyncingPrompter prompter(guiPrompter(), [this] {
        for (auto& [name, w] : windows_) w->loadFrom(session_.state());
    });
    const std::string status = busyStatus(command);
    if (!status.empty()) showStatus(status, true);
    Outcome outcome = session_.press(command, prompter);
    if (!status.empty()) showStatus(status, false);
    for (auto& [name, w] : windows_) refresh(w);
    // An open "Passo a passo" follows the calculation just made.
    if (ScreenWindow* main = mainWindow())
        if (StepsWindow* steps = main->findChild<StepsWindow*>(); steps && steps->isVisible()) steps->showTrace(session_.steps());
    applyScreenEffects(outcome, window(screen));
    if (!outcome.focus.empty()) {
        if (ScreenWindow* w = window(screenOf(outcome.focus)); w && w->isVisible()) {
            if (QWidget* target = w->control(outcome.focus.substr(outcome.focus.find('.') + 1))) {
                w->activateWindow();
                target->setFocus(Qt::OtherFocusReason);
            }
        }
    }
    return outcome;
}

std::string ModuleHost::busyStatus(const std::string& command) const {
    const auto& busy = session_.info().busy;
    auto it = busy.find(session_.state().qualify(command));
    // A press the session refuses runs nothing, so nothing is announced.
    if (it == busy.end() || !session_.refusal(command).empty()) return "";
    return it->second;
}

void ModuleHost::showStatus(const std::string& button, bool on) {
    session_.state().setVisible(button, on);
    if (!on) return;
    // The calculation holds the event loop, so the notice is painted now or never.
    if (ScreenWindow* w = window(screenOf(button))) {
        if (QWidget* notice = w->control(button.substr(button.find('.') + 1))) notice->setVisible(true);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
        w->repaint();
    }
}

void ModuleHost::applyScreenEffects(const Outcome& outcome, ScreenWindow* caller) {
    for (const ScreenEffect& e : outcome.effects) {
        const std::string& t = e.target;
        switch (e.kind) {
            case EffectKind::ShowScreen:
                if (t == "Form0b") shell_.showBackdrop(true);
                else if (t == "FormAjuda") shell_.showModuleHelp(helpPage());
                else if (declared(t)) showScreen(t);
                break;
            case EffectKind::HideScreen:
                if (t == "Form0b") shell_.showBackdrop(false);
                else if (t == "FormAjuda") shell_.closeModuleHelp();
                else if (ScreenWindow* w = window(t)) w->hide();
                break;
            case EffectKind::UnloadScreen:
                if (t == "FormAjuda") shell_.closeModuleHelp();
                else if (t == session_.info().key) shell_.returnToMenu();
                else dropWindow(t);
                break;
            case EffectKind::EnableScreen:
            case EffectKind::DisableScreen:
                if (ScreenWindow* w = window(t)) w->setEnabled(e.kind == EffectKind::EnableScreen);
                break;
            case EffectKind::StartReport:
                shell_.startReport(t, caller ? caller : mainWindow());
                break;
            case EffectKind::SavePicture:
            case EffectKind::PrintPicture:
                pictureOut(e, caller);
                break;
            default: break;  // controls: already in the state, shown by refresh
        }
    }
    // A screen this program does not know cannot be shown; the module's own
    // window comes back rather than leaving the user before an empty backdrop.
    bool anyShown = false;
    for (const auto& [name, w] : windows_) anyShown = anyShown || w->isVisible();
    if (!anyShown && !windows_.empty()) {
        session_.apply(Outcome::done().then(EffectKind::ShowScreen, session_.info().key));
        showScreen(session_.info().key);
    }
}

void ModuleHost::pictureOut(const ScreenEffect& e, ScreenWindow* caller) {
    const Drawing drawing = module_.drawing(e.target, session_.state());
    QWidget* parent = caller ? static_cast<QWidget*>(caller) : mainWindow();
    if (e.kind == EffectKind::PrintPicture) {
        printPicture(parent, drawing);
        return;
    }
    // The file gets the picture at the size it has on the screen.
    QSize size(640, 480);
    if (ScreenWindow* w = window(screenOf(e.target)))
        if (QWidget* view = w->control(e.target.substr(e.target.find('.') + 1))) size = view->size();
    const std::string failed = savePicture(parent, drawing, size);
    if (!failed.empty()) guiPrompter().warn(failed);
}

void ModuleHost::companionClosed(const std::string& screen) {
    // As its "&Voltar" would: the companion goes, and the window it covered (a
    // screen it had disabled, or else the module's main screen) is live again.
    Outcome back;
    back.then(EffectKind::HideScreen, screen);
    if (ScreenWindow* w = window(screen)) w->hide();
    bool anyShown = false;
    for (const auto& [name, w] : windows_) {
        if (!w->isVisible()) continue;
        anyShown = true;
        if (w == shell_.reportCaller()) continue;
        w->setEnabled(true);
        back.then(EffectKind::EnableScreen, name);
    }
    if (!anyShown) back.then(EffectKind::ShowScreen, session_.info().key);
    session_.apply(back);
    if (!anyShown) showScreen(session_.info().key);
}

std::string ModuleHost::helpPage() const {
    if (const CatalogueRow* row = ModuleCatalogue::byModule(session_.info().key); row && !row->help.empty())
        return row->help;
    return "Ajuda" + session_.info().key.substr(4);
}

void ModuleHost::toolbar(const std::string& screen, const std::string& key) {
    ScreenWindow* w = window(screen);
    if (key == "Novo") {
        shell_.returnToMenu();
    } else if (key == "Início") {
        shell_.restartDefaults();
    } else if (key == "Imprimir") {
        for (auto& [name, win] : windows_) win->storeTo(session_.state());
        if (!session_.info().printKey.empty()) shell_.startReport(session_.info().printKey, w);
    } else if (key == "Ajuda") {
        shell_.showModuleHelp(helpPage());
    } else if (key == "Sair") {
        shell_.askExit();
    } else if (key == "Abrir") {
        openProjectFromDialog(*this, w);
    } else if (key == "Salvar") {
        saveProjectFromDialog(*this, w);
    }
}

void ModuleHost::storeWindows() {
    for (auto& [name, w] : windows_) w->storeTo(session_.state());
}

void ModuleHost::storeWindowsTo(FormState& state) const {
    for (const auto& [name, w] : windows_) w->storeTo(state);
}

void ModuleHost::refreshWindows() {
    for (auto& [name, w] : windows_) refresh(w);
}

}  // namespace morve
