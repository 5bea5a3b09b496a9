#include "gui/gui_prompter.h"

#include <QApplication>
#include <QMessageBox>

namespace morve {

namespace {

QString q(const std::string& s) { return QString::fromStdString(s); }

Prompter* replacement = nullptr;

std::function<void()>& beepHandler() {
    static std::function<void()> handler;
    return handler;
}

}  // namespace

void QtPrompter::warn(const std::string& text, const std::string& title) {
    QMessageBox::warning(QApplication::activeWindow(), q(title), q(text), QMessageBox::Ok);
}

bool QtPrompter::askYesNo(const std::string& text, const std::string& title) {
    return QMessageBox::question(QApplication::activeWindow(), q(title), q(text),
                                 QMessageBox::Yes | QMessageBox::No, QMessageBox::No) == QMessageBox::Yes;
}

bool QtPrompter::askOkCancel(const std::string& text, const std::string& title) {
    return QMessageBox::question(QApplication::activeWindow(), q(title), q(text),
                                 QMessageBox::Ok | QMessageBox::Cancel, QMessageBox::Ok) == QMessageBox::Ok;
}

Prompter& guiPrompter() {
    static QtPrompter boxes;
    return replacement ? *replacement : boxes;
}

void setGuiPrompter(Prompter* prompter) { replacement = prompter; }

void beep() {
    if (beepHandler())
        beepHandler()();
    else
        QApplication::beep();
}

void setBeepHandler(std::function<void()> handler) { beepHandler() = std::move(handler); }

}  // namespace morve
