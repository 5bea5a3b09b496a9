#pragma once
// Form0: the main menu, complete and in order, built from the module catalogue.
// A leaf whose module is not registered stays in the menu, disabled.
#include <QMainWindow>

#include <functional>
#include <string>

#include "app/catalogue.h"

namespace morve {

class MainWindow : public QMainWindow {
public:
    MainWindow();

    // The leaf of a module, for tests and screenshots.
    QAction* moduleAction(const std::string& module) const;
    QAction* helpAction(const std::string& command) const;

    std::function<void(const std::string& module)> onModule;
    std::function<void(const HelpMenuEntry& entry)> onHelp;
    std::function<void()> onClose;
    std::function<void(const QString& path)> onRecentFile;

protected:
    void closeEvent(QCloseEvent* event) override;
};

}  // namespace morve
