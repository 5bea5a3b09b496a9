#pragma once
// One module opened from the menu: its session (the FormState and the screens it
// shows) and the windows built for its screens. Every command goes through press():
// the windows hand their texts to the state, the module runs, the texts come back,
// the screen effects are applied in order, pictures are drawn anew and the focus
// goes where the module says.
#include <QObject>

#include <functional>
#include <map>
#include <memory>
#include <string>

#include "app/module.h"

class QWidget;

namespace morve {

class ScreenWindow;

// What a module window asks of the program around it.
class Shell {
public:
    virtual ~Shell() = default;
    virtual void showBackdrop(bool on) = 0;
    virtual void returnToMenu() = 0;      // "Novo" and the close of the module
    virtual void restartDefaults() = 0;   // "Início"
    virtual void askExit() = 0;           // "Sair"
    virtual void showModuleHelp(const std::string& page) = 0;
    virtual void closeModuleHelp() = 0;
    virtual void startReport(const std::string& key, QWidget* caller) = 0;
    // The window the open report panel has disabled; nullptr when none is open.
    virtual QWidget* reportCaller() const = 0;
};

class ModuleHost : public QObject {
public:
    ModuleHost(const Module& module, const StartDefaults& defaults, Shell& shell);
    ~ModuleHost() override;

    // Shows the main screen, centred.
    void open();
    // Closes the companions named by the module and the module itself, without a word.
    void unloadAll();

    ModuleSession& session() { return session_; }
    ScreenWindow* window(const std::string& screen) const;
    ScreenWindow* mainWindow() const { return window(session_.info().key); }

    // A command of a screen: "Command1" on the main screen, "Form8.Command3" on a
    // companion. Returns what the module said.
    Outcome press(const std::string& screen, const std::string& command);
    void toolbar(const std::string& screen, const std::string& key);

    // The texts typed in the windows go to the state; after the state changed
    // outside a command (a project file opened), the windows show it again.
    void storeWindows();
    // The same into another state, leaving the module's as it is.
    void storeWindowsTo(FormState& state) const;
    // Called before "CALCULAR" runs, with the typed texts stored.
    std::function<void()> onCalculate;
    void refreshWindows();

private:
    ScreenWindow* ensureWindow(const std::string& screen);
    const ScreenDecl* declared(const std::string& screen) const;
    void applyScreenEffects(const Outcome& outcome, ScreenWindow* caller);
    // The status button a command shows while it runs; "" for none.
    std::string busyStatus(const std::string& command) const;
    void showStatus(const std::string& button, bool on);
    // A picture to a file through the save dialog, or to the printer.
    void pictureOut(const ScreenEffect& e, ScreenWindow* caller);
    void refresh(ScreenWindow* w);
    void showScreen(const std::string& screen);
    void dropWindow(const std::string& screen);
    void companionClosed(const std::string& screen);
    std::string helpPage() const;

    const Module& module_;
    Shell& shell_;
    ModuleSession session_;
    std::vector<ScreenDecl> screens_;
    std::map<std::string, ScreenWindow*> windows_;
};

}  // namespace morve
