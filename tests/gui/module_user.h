#pragma once
// A user at the keyboard and mouse of a module's windows: boxes typed, list items
// clicked, grid cells typed digit by digit, buttons clicked, message boxes
// answered by a script. Shared by the runs of every module family.
#include <QAbstractButton>
#include <QLineEdit>
#include <QListWidget>
#include <QScrollArea>
#include <QTableWidget>
#include <QTest>

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "gui/gui_prompter.h"
#include "gui/main_window.h"
#include "gui/morve_app.h"
#include "gui/screen_window.h"
#include "gui_test_support.h"

// Scripted answers, and a look at the windows each time a box would come up.
class WatchingPrompter : public morve::ScriptedPrompter {
public:
    using ScriptedPrompter::ScriptedPrompter;
    std::function<void()> onBox = [] {};
    void warn(const std::string& text, const std::string& title) override {
        onBox();
        ScriptedPrompter::warn(text, title);
    }
    bool askYesNo(const std::string& text, const std::string& title) override {
        onBox();
        return ScriptedPrompter::askYesNo(text, title);
    }
};

class ModuleUser {
public:
    explicit ModuleUser(bool confirmStart = true) {
        morve::setBeepHandler([] {});
        app_ = std::make_unique<morve::MorveApp>(quickOptions());
        app_->start();
        settle();
        if (confirmStart) app_->startDialog()->confirm();  // the first selections: fck 20, CA-50, CEB/90
        settle();
        answer({});
    }
    ~ModuleUser() {
        morve::setGuiPrompter(nullptr);
        app_.reset();
        settle();
    }

    morve::MorveApp& app() { return *app_; }
    const morve::ScriptedPrompter& told() const { return *prompter_; }
    WatchingPrompter& prompter() { return *prompter_; }

    // The module's leaf of the menu.
    bool open(const std::string& module) {
        QAction* leaf = app_->menu()->moduleAction(module);
        if (!leaf) return false;
        leaf->trigger();
        settle();
        return screen(module) != nullptr;
    }
    morve::ScreenWindow* screen(const std::string& name) const {
        return app_->module() ? app_->module()->window(name) : nullptr;
    }
    bool shown(const std::string& name) const {
        morve::ScreenWindow* w = screen(name);
        return w && w->isVisible();
    }

    // The answers of the message boxes of the next clicks, in order.
    void answer(std::vector<std::string> answers) {
        prompter_ = std::make_unique<WatchingPrompter>(std::move(answers));
        morve::setGuiPrompter(prompter_.get());
    }

    // A window's page scrolls on a small screen: the user brings the control into
    // view before clicking it, as a click lands where the window shows it.
    static void reveal(QWidget* control) {
        for (QWidget* w = control ? control->parentWidget() : nullptr; w; w = w->parentWidget())
            if (auto* page = qobject_cast<QScrollArea*>(w)) page->ensureWidgetVisible(control, 0, 0);
    }

    using Entries = std::vector<std::pair<const char*, const char*>>;
    void fill(const std::string& screenName, const Entries& boxes) {
        for (auto [box, text] : boxes) type(screenName, box, text);
    }
    void type(const std::string& screenName, const char* box, const char* text) {
        auto* edit = qobject_cast<QLineEdit*>(screen(screenName)->control(box));
        QVERIFY2(edit, box);
        reveal(edit);
        edit->setFocus();
        edit->selectAll();
        QTest::keyClick(edit, Qt::Key_Delete);
        QTest::keyClicks(edit, text);
    }
    QString text(const std::string& screenName, const char* box) const {
        auto* edit = qobject_cast<QLineEdit*>(screen(screenName)->control(box));
        return edit ? edit->text() : QStringLiteral("<sem caixa>");
    }

    // A click on the item of a list, scrolled into view first.
    void pick(const std::string& screenName, const char* list, const char* item) {
        auto* w = qobject_cast<QListWidget*>(screen(screenName)->control(list));
        QVERIFY2(w, list);
        reveal(w);
        const auto found = w->findItems(QString::fromUtf8(item), Qt::MatchExactly);
        QVERIFY2(!found.isEmpty(), item);
        w->scrollToItem(found.front());
        QTest::mouseClick(w->viewport(), Qt::LeftButton, {}, w->visualItemRect(found.front()).center());
        QVERIFY2(found.front()->isSelected(), item);
    }

    // A number typed into a cell of a grid row (0 = first data row; the bars column
    // unless told): the first key opens the cell's editor, Enter closes it.
    void typeCell(const std::string& screenName, const char* grid, int row, const char* digits, int column = 1) {
        auto* table = qobject_cast<QTableWidget*>(screen(screenName)->control(grid));
        QVERIFY2(table, grid);
        QVERIFY(row < table->rowCount());
        table->setFocus();
        table->setCurrentCell(row, column);
        QTest::keyClick(table, digits[0]);
        auto* editor = qobject_cast<QLineEdit*>(QApplication::focusWidget());
        if (!editor) editor = table->findChild<QLineEdit*>();
        QVERIFY2(editor, "a célula não abriu o editor");
        QTest::keyClicks(editor, digits + 1);
        QTest::keyClick(editor, Qt::Key_Return);
        settle();
    }
    void typeRow(const std::string& screenName, const char* grid, int row, std::vector<const char*> cells, int from) {
        for (std::size_t c = 0; c < cells.size(); ++c) typeCell(screenName, grid, row, cells[c], from + int(c));
    }
    QString cell(const std::string& screenName, const char* grid, int row, int column) const {
        auto* table = qobject_cast<QTableWidget*>(screen(screenName)->control(grid));
        QTableWidgetItem* item = table ? table->item(row, column) : nullptr;
        return item ? item->text() : QString();
    }

    void click(const std::string& screenName, const char* command) {
        auto* button = qobject_cast<QAbstractButton*>(screen(screenName)->control(command));
        QVERIFY2(button && button->isVisible() && button->isEnabled(), command);
        reveal(button);
        // An option or a check answers a click on its mark or its words, which
        // stand at the left of a row that may run wider.
        const bool marked = button->inherits("QRadioButton") || button->inherits("QCheckBox");
        QTest::mouseClick(button, Qt::LeftButton, {}, marked ? QPoint(8, button->height() / 2) : QPoint());
        settle();
    }
    // An option chosen as a click on its caption does.
    void choose(const std::string& screenName, const char* option) {
        auto* radio = qobject_cast<QAbstractButton*>(control(screenName, option));
        QVERIFY2(radio && radio->isVisible(), option);
        radio->click();
        settle();
    }
    // No message box came up; the first one that did is named.
    void quiet() const {
        const auto& m = told().messages();
        QVERIFY2(m.empty(), m.empty() ? "" : m.front().text.c_str());
    }
    bool enabled(const std::string& screenName, const char* control) const {
        return screen(screenName)->control(control)->isEnabled();
    }
    bool printEnabled(const std::string& screenName) const {
        return screen(screenName)->toolbarAction("Imprimir")->isEnabled();
    }
    QWidget* focus(const std::string& screenName) const { return screen(screenName)->focusWidget(); }
    QWidget* control(const std::string& screenName, const char* name) const {
        return screen(screenName)->control(name);
    }

private:
    std::unique_ptr<morve::MorveApp> app_;
    std::unique_ptr<WatchingPrompter> prompter_;
};
