#pragma once
// Message boxes of the desktop, titled "MORVE": a warning with OK, a question with
// Yes and No (No the default), or OK and Cancel. Every window asks through
// guiPrompter(), so a test can put a scripted prompter in its place.
#include "app/prompter.h"

#include <functional>

class QWidget;

namespace morve {

class QtPrompter : public Prompter {
public:
    void warn(const std::string& text, const std::string& title = kBoxTitle) override;
    bool askYesNo(const std::string& text, const std::string& title = kBoxTitle) override;
    bool askOkCancel(const std::string& text, const std::string& title = kBoxTitle) override;
};

Prompter& guiPrompter();
// nullptr puts the message boxes back.
void setGuiPrompter(Prompter* prompter);

// The beep of a refused key; tests count them.
void beep();
void setBeepHandler(std::function<void()> handler);

}  // namespace morve
