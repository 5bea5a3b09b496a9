#include "gui/gui_prompter.h"

#include <QApplication>
#include <QAbstractButton>
#include <QMessageBox>

namespace morve {

namespace {

QString q(const std::string& s) { return QString::fromStdString(s); }

Prompter* replacement = nullptr;

std::function<void()>& beepHandler() {
    static std::function<void()> handler;
    return handler;
}

// A modal box over the active window; the button pressed.
QMessageBox::StandardButton ask(QMessageBox::Icon icon, const std::string& title, const std::string& text,
                                QMessageBox::StandardButtons buttons, QMessageBox::StandardButton preset) {
    QMessageBox box(icon, q(title), q(text), buttons, QApplication::activeWindow());
    box.setDefaultButton(preset);
    portugueseButtons(box);
    box.exec();
    return box.standardButton(box.clickedButton());
}

}  // namespace

void portugueseButtons(QMessageBox& box) {
    const std::pair<QMessageBox::StandardButton, const char*> texts[] = {
        {QMessageBox::Yes, "&Sim"}, {QMessageBox::No, "&Não"}, {QMessageBox::Ok, "OK"},
        {QMessageBox::Cancel, "Cancelar"}};
    for (const auto& [which, text] : texts)
        if (QAbstractButton* button = box.button(which)) button->setText(QString::fromUtf8(text));
}

void QtPrompter::warn(const std::string& text, const std::string& title) {
    ask(QMessageBox::Warning, title, text, QMessageBox::Ok, QMessageBox::Ok);
}

bool QtPrompter::askYesNo(const std::string& text, const std::string& title) {
    return ask(QMessageBox::Question, title, text, QMessageBox::Yes | QMessageBox::No, QMessageBox::No) ==
           QMessageBox::Yes;
}

bool QtPrompter::askOkCancel(const std::string& text, const std::string& title) {
    return ask(QMessageBox::Question, title, text, QMessageBox::Ok | QMessageBox::Cancel, QMessageBox::Ok) ==
           QMessageBox::Ok;
}

void SyncingPrompter::warn(const std::string& text, const std::string& title) {
    sync_();
    inner_.warn(text, title);
}

bool SyncingPrompter::askYesNo(const std::string& text, const std::string& title) {
    sync_();
    return inner_.askYesNo(text, title);
}

bool SyncingPrompter::askOkCancel(const std::string& text, const std::string& title) {
    sync_();
    return inner_.askOkCancel(text, title);
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
