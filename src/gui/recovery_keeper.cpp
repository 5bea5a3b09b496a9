#include "gui/recovery_keeper.h"

#include "gui/gui_prompter.h"
#include "gui/module_host.h"
#include "gui/morve_app.h"
#include "gui/screen_window.h"
#include "reports/recovery_file.h"

namespace morve {

namespace {

int& interval() {
    static int ms = 10000;
    return ms;
}

}  // namespace

void RecoveryKeeper::setInterval(int ms) { interval() = ms; }

RecoveryKeeper::RecoveryKeeper(ModuleHost& host) : QObject(&host), host_(host) {
    timer_.setInterval(interval());
    connect(&timer_, &QTimer::timeout, this, &RecoveryKeeper::keep);
    timer_.start();
    host_.onCalculate = [this] { keep(); };
}

void RecoveryKeeper::keep() {
    // The windows are read into a copy: a check for changes must not touch the
    // state the module works on, nor close a cell being typed.
    FormState typed = host_.session().state();
    host_.storeWindowsTo(typed);
    std::string text = writeProjectText(host_.session().module(), typed);
    if (text == written_) return;
    // A failed write (a full disk) is tried again at the next check; the user is
    // not interrupted for a file they did not ask for.
    if (writeRecoveryFile(host_.session().module(), typed).ok()) written_ = std::move(text);
}

bool offerRecovery(MorveApp& app) {
    if (!recoveryFileExists()) return false;
    const std::string path = recoveryFilePath();
    if (!guiPrompter().askYesNo("Recuperar os dados digitados na última sessão?")) {
        removeRecoveryFile();
        return false;
    }
    const Module* module = ModuleRegistry::find(projectFileTag(path));
    // Read into a state of its own first: a damaged file opens no module at all.
    FormState probe = module ? ModuleSession(*module, app.defaults()).state() : FormState();
    const ProjectResult r = module ? openProjectFile(*module, path, probe) : ProjectResult{"?"};
    if (!r.ok()) {
        guiPrompter().warn("Não foi possível recuperar os dados da última sessão: o arquivo de recuperação " + path +
                           " está danificado.");
        removeRecoveryFile();
        return false;
    }
    app.startInModule(module->info().key);
    if (ModuleHost* host = app.module()) {
        openProjectFile(*module, path, host->session().state());
        host->refreshWindows();
    }
    return true;
}

}  // namespace morve
