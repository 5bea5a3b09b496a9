#include "gui/morve_app.h"

#include <QApplication>
#include <QTimer>

#include "app/catalogue.h"
#include "app/shell_texts.h"
#include "gui/gui_prompter.h"
#include "gui/help_windows.h"
#include "gui/main_window.h"
#include "gui/recent_files.h"
#include "gui/recovery_keeper.h"
#include "gui/report_panel.h"
#include "gui/screen_window.h"
#include "gui/start_windows.h"
#include "gui/window_places.h"
#include "reports/recovery_file.h"

namespace morve {

namespace {

// A module's windows may be on the call stack when it closes (its own "Novo"),
// so the host goes at the next turn of the event loop.
void deleteHostLater(ModuleHost* host) { host->deleteLater(); }

}  // namespace

MorveApp::MorveApp(AppOptions options) : options_(options) {
    menu_ = new MainWindow();
    menu_->onModule = [this](const std::string& key) { openModule(key); };
    menu_->onHelp = [this](const HelpMenuEntry& entry) { helpMenu(entry); };
    menu_->onClose = [this] { shutdown(); };
    menu_->onRecentFile = [this](const QString& path) { openRecentFile(*this, path); };
    backdrop_ = new Backdrop();
    tip_ = new TipWindow();
    ajuda_ = new HelpPageWindow("FormAjuda");
    metodo_ = new HelpPageWindow("Form0Metodo");
    exit_ = new ExitWindow();
}

MorveApp::~MorveApp() {
    releaseTip();
    host_.reset();
    if (report_) delete report_.data();
    if (helpList_) delete helpList_.data();
    if (about_) delete about_.data();
    if (aviso_) {
        aviso_->onConfirm = nullptr;
        delete aviso_.data();
    }
    if (splash_) delete splash_.data();
    menu_->onClose = nullptr;
    for (QWidget* w : std::initializer_list<QWidget*>{menu_, backdrop_, tip_, ajuda_, metodo_, exit_}) delete w;
    locale_.restore();
}

void MorveApp::start() {
    locale_.force();
    if (!options_.splash) {
        showMenuAndDefaults();
        return;
    }
    splash_ = new SplashWindow();
    splash_->show();
    QTimer::singleShot(options_.splashMs, this, [this] {
        showMenuAndDefaults();
        if (splash_) splash_->deleteLater();
    });
}

void MorveApp::showMenuAndDefaults() {
    menu_->show();
    centreOnScreen(menu_);
    restartDefaults();
}

void MorveApp::restartDefaults() {
    closeModule();
    menu_->show();
    showBackdrop(true);
    releaseTip();
    if (aviso_) aviso_->close();
    aviso_ = new StartDialog();
    aviso_->onConfirm = [this](const StartDefaults& d) { confirmDefaults(d); };
    aviso_->onNextTip = [this] { showTip(); };
    aviso_->show();
    aviso_->raise();
    showTip();
}

void MorveApp::showTip() {
    // A tip is drawn only when the window opens anew.
    if (!tip_->isVisible()) tip_->drawTip();
    if (aviso_ && tip_->parentWidget() != aviso_) {
        // A window of the start dialog, so that its modality leaves the tip's "OK" live.
        tip_->setParent(aviso_, tip_->windowFlags() | Qt::Window);
    }
    tip_->adjustSize();
    if (aviso_)
        placeBeside(tip_, aviso_);
    else
        centreOnScreen(tip_);
    tip_->show();
    tip_->raise();
}

void MorveApp::releaseTip() {
    tip_->hide();
    // The tip outlives each start dialog, which deletes its children when it closes.
    if (tip_->parentWidget()) tip_->setParent(nullptr, tip_->windowFlags() | Qt::Window);
}

void MorveApp::confirmDefaults(const StartDefaults& defaults) {
    defaults_ = defaults;
    releaseTip();
    showBackdrop(false);
    menu_->show();
    menu_->raise();
    menu_->activateWindow();
}

void MorveApp::openModule(const std::string& key) {
    const Module* module = ModuleRegistry::find(key);
    if (!module) return;
    closeModule();
    if (metodo_->isVisible()) metodo_->hide();
    if (about_) about_->close();
    host_ = std::unique_ptr<ModuleHost, void (*)(ModuleHost*)>(new ModuleHost(*module, defaults_, *this),
                                                               deleteHostLater);
    host_->open();
    new RecoveryKeeper(*host_);
    menu_->hide();
}

void MorveApp::startInModule(const std::string& key) {
    locale_.force();
    openModule(key);
}

void MorveApp::closeModule() {
    if (report_) {
        report_->onClosed = nullptr;
        report_->close();
    }
    closeModuleHelp();
    // A module closed as the user closes it leaves nothing to recover.
    if (host_) {
        RecoveryKeeper::finish();
        removeRecoveryFile();
    }
    if (host_) host_->unloadAll();
    host_.reset();
}

void MorveApp::returnToMenu() {
    closeModule();
    showBackdrop(false);
    // The help windows of the menu do not survive the return to it.
    metodo_->hide();
    if (about_) about_->close();
    menu_->show();
    menu_->raise();
    menu_->activateWindow();
}

void MorveApp::showBackdrop(bool on) {
    if (on) {
        backdrop_->setGeometry(screenArea(backdrop_));
        backdrop_->show();
        backdrop_->lower();
    } else {
        backdrop_->hide();
    }
}

void MorveApp::askExit() {
    if (guiPrompter().askYesNo(kExitQuestion)) shutdown();
}

void MorveApp::showModuleHelp(const std::string& page) {
    ajuda_->showPage(page);
    // Placed before it shows, so that it opens where it stays.
    if (!ajuda_->isVisible()) placeTopRight(ajuda_);
    ajuda_->show();
    placeTopRight(ajuda_);
    ajuda_->raise();
}

void MorveApp::closeModuleHelp() { ajuda_->hide(); }

void MorveApp::startReport(const std::string& key, QWidget* caller) {
    if (!host_) return;
    if (report_) report_->close();
    report_ = new ReportPanel(key, host_->session().module(), host_->session().state(), caller);
    report_->show();
    report_->raise();
    report_->activateWindow();
}

QWidget* MorveApp::reportCaller() const { return report_ ? report_->caller() : nullptr; }

void MorveApp::helpMenu(const HelpMenuEntry& entry) {
    switch (entry.action) {
        case HelpAction::GeneralPage:
            metodo_->showPage(entry.page);
            if (!metodo_->isVisible()) centreOnScreen(metodo_);
            metodo_->show();
            centreOnScreen(metodo_);
            metodo_->raise();
            break;
        case HelpAction::HelpList:
            if (helpList_) helpList_->close();
            helpList_ = new HelpListWindow();
            helpList_->onShow = [this](const std::string& page) { showModuleHelp(page); };
            helpList_->onCancel = [this] {
                menu_->setEnabled(true);
                closeModuleHelp();
            };
            menu_->setEnabled(false);
            helpList_->show();
            centreOnScreen(helpList_);
            break;
        case HelpAction::About:
            if (!about_) about_ = new AboutWindow();
            about_->show();
            centreOnScreen(about_);
            about_->raise();
            break;
    }
}

void MorveApp::shutdown() {
    if (exiting_) return;
    exiting_ = true;
    showBackdrop(true);
    exit_->show();
    centreOnScreen(exit_);
    exit_->raise();
    locale_.restore();
    QTimer::singleShot(options_.exitMs, this, [this] {
        closeModule();
        if (aviso_) {
            releaseTip();
            aviso_->onConfirm = nullptr;
            aviso_->close();
        }
        if (helpList_) {
            helpList_->onCancel = nullptr;
            helpList_->close();
        }
        menu_->onClose = nullptr;
        for (QWidget* w : QApplication::topLevelWidgets()) w->hide();
        if (options_.quitAtExit) QApplication::quit();
    });
}

}  // namespace morve
