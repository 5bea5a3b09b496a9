#include "gui/recovery_keeper.h"

#include <QThreadPool>

#include "app/shell_texts.h"
#include "gui/gui_prompter.h"
#include "gui/module_host.h"
#include "gui/morve_app.h"
#include "gui/screen_window.h"
#include "reports/recovery_file.h"

namespace morve {

namespace {

QThreadPool& writer() {
    static QThreadPool* pool = [] {
        auto* p = new QThreadPool();
        p->setMaxThreadCount(1);
        return p;
    }();
    return *pool;
}

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
    // A calculation is what might crash: its data are on disk before it starts.
    host_.onCalculate = [this] {
        keep();
        finish();
    };
}

void RecoveryKeeper::keep() {
    // The windows are read into a copy: a check for changes must not touch the
    // state the module works on, nor close a cell being typed.
    FormState typed = host_.session().state();
    host_.storeWindowsTo(typed);
    std::string text = writeProjectText(host_.session().module(), typed);
    if (text == written_) return;
    written_ = text;
    // The write waits for the disk (the file is synced, or a power cut could lose
    // it), so it goes to a thread of its own, one write after another in order;
    // typing never waits for it. A failed write (a full disk) is not shown: the
    // user did not ask for this file, and the next change tries again.
    writer().start([text = std::move(text), this] {
        if (!writeRecoveryFile(text).ok()) QMetaObject::invokeMethod(this, [this] { written_.clear(); });
    });
}

void RecoveryKeeper::finish() { writer().waitForDone(); }

bool offerRecovery(MorveApp& app) {
    if (!recoveryFileExists()) return false;
    const std::string path = recoveryFilePath();
    if (!guiPrompter().askYesNo(kRecoveryQuestion)) {
        removeRecoveryFile();
        return false;
    }
    const Module* module = ModuleRegistry::find(projectFileTag(path));
    // Read into a state of its own first: a damaged file opens no module at all.
    FormState probe = module ? ModuleSession(*module, app.defaults()).state() : FormState();
    const ProjectResult r = module ? openProjectFile(*module, path, probe) : ProjectResult{"?"};
    if (!r.ok()) {
        guiPrompter().warn(recoveryDamaged(path));
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
