#pragma once
// The program's windows and their order: splash, menu and start-up defaults, the
// module opened from the menu, the report panel, the help windows, and the end.
// The numeric locale is "C" from the start to the end of the run.
#include <QObject>
#include <QPointer>

#include <memory>
#include <string>

#include "app/start_defaults.h"
#include "gui/locale_state.h"
#include "gui/help_windows.h"
#include "gui/module_host.h"
#include "gui/report_panel.h"
#include "gui/start_windows.h"

namespace morve {

class MainWindow;
struct HelpMenuEntry;

struct AppOptions {
    bool splash = true;
    int splashMs = 1800;  // the splash stays this long
    int exitMs = 500;     // the closing notice stays this long
    bool quitAtExit = true;  // tests keep the event loop
};

class MorveApp : public QObject, public Shell {
public:
    explicit MorveApp(AppOptions options = {});
    ~MorveApp() override;

    // Forces the point and shows the splash, or the menu and the start dialog.
    void start();
    void showMenuAndDefaults();
    void openModule(const std::string& key);
    // Straight into a module, as a project file opened from the file manager asks:
    // the point is forced as at any start, and the defaults are the start dialog's
    // first choices.
    void startInModule(const std::string& key);
    void confirmDefaults(const StartDefaults& defaults);
    void helpMenu(const HelpMenuEntry& entry);
    void shutdown();

    // Shell
    void showBackdrop(bool on) override;
    void returnToMenu() override;
    void restartDefaults() override;
    void askExit() override;
    void showModuleHelp(const std::string& page) override;
    void closeModuleHelp() override;
    void startReport(const std::string& key, QWidget* caller) override;
    QWidget* reportCaller() const override;

    const StartDefaults& defaults() const { return defaults_; }
    MainWindow* menu() const { return menu_; }
    Backdrop* backdrop() const { return backdrop_; }
    StartDialog* startDialog() const { return aviso_; }
    TipWindow* tipWindow() const { return tip_; }
    ModuleHost* module() const { return host_.get(); }
    ReportPanel* reportPanel() const { return report_; }
    HelpPageWindow* moduleHelp() const { return ajuda_; }
    HelpPageWindow* generalHelp() const { return metodo_; }
    HelpListWindow* helpList() const { return helpList_; }
    ExitWindow* exitWindow() const { return exit_; }
    const ProcessLocaleState& locale() const { return locale_; }
    bool exiting() const { return exiting_; }

private:
    void closeModule();
    void showTip();
    void releaseTip();

    AppOptions options_;
    ProcessLocaleState locale_;
    StartDefaults defaults_;
    MainWindow* menu_ = nullptr;
    Backdrop* backdrop_ = nullptr;
    QPointer<SplashWindow> splash_;
    QPointer<StartDialog> aviso_;
    TipWindow* tip_ = nullptr;
    HelpPageWindow* ajuda_ = nullptr;
    HelpPageWindow* metodo_ = nullptr;
    QPointer<HelpListWindow> helpList_;
    QPointer<AboutWindow> about_;
    QPointer<ReportPanel> report_;
    ExitWindow* exit_ = nullptr;
    std::unique_ptr<ModuleHost, void (*)(ModuleHost*)> host_{nullptr, nullptr};
    bool exiting_ = false;
};

}  // namespace morve
