#pragma once
// Message boxes of the desktop, titled "MORVE": a warning with OK, a question with
// Yes and No (No the default), or OK and Cancel. Every window asks through
// guiPrompter(), so a test can put a scripted prompter in its place.
#include "app/prompter.h"

#include <functional>

class QMessageBox;
class QWidget;

namespace morve {

class QtPrompter : public Prompter {
public:
    void warn(const std::string& text, const std::string& title = kBoxTitle) override;
    bool askYesNo(const std::string& text, const std::string& title = kBoxTitle) override;
    bool askOkCancel(const std::string& text, const std::string& title = kBoxTitle) override;
};

// Asks through another prompter, but first brings the windows up to date with
// what the calculation has written so far: a box must not stand over results
// that the calculation has already blanked.
class SyncingPrompter : public Prompter {
public:
    SyncingPrompter(Prompter& inner, std::function<void()> sync) : inner_(inner), sync_(std::move(sync)) {}
    void warn(const std::string& text, const std::string& title = kBoxTitle) override;
    bool askYesNo(const std::string& text, const std::string& title = kBoxTitle) override;
    bool askOkCancel(const std::string& text, const std::string& title = kBoxTitle) override;

private:
    Prompter& inner_;
    std::function<void()> sync_;
};

Prompter& guiPrompter();
// nullptr puts the message boxes back.
void setGuiPrompter(Prompter* prompter);

// The buttons of a message box in Portuguese, whatever translations are loaded.
void portugueseButtons(QMessageBox& box);

// The beep of a refused key; tests count them.
void beep();
void setBeepHandler(std::function<void()> handler);

}  // namespace morve
