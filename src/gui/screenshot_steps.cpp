#include "gui/screenshot_steps.h"

#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QTableWidget>
#include <QWidget>

#include <cstdio>

#include "gui/module_host.h"
#include "gui/morve_app.h"
#include "gui/screen_window.h"

namespace morve {

namespace {

std::string qualified(ModuleHost& host, const std::string& name) {
    return name.find('.') == std::string::npos ? host.session().info().key + "." + name : name;
}


}  // namespace

void settle() {
    for (int i = 0; i < 5; ++i) QApplication::processEvents();
}

bool save(QWidget* w, const QString& folder, const char* name) {
    settle();
    const QString path = folder + "/" + name;
    const bool ok = w->grab().save(path);
    std::fprintf(stderr, "%s %s\n", ok ? "gravado" : "falhou", qPrintable(path));
    return ok;
}

void fill(ModuleHost& host, const std::vector<Entry>& entries, const std::vector<Cell>& cells) {
    FormState& state = host.session().state();
    for (const Entry& e : entries) state.setText(qualified(host, e.control), e.text);
    for (const Cell& c : cells) {
        GridRows& rows = state.grid(c.grid);
        if (rows.size() <= c.row) rows.resize(c.row + 1, std::vector<std::string>(2));
        rows[c.row] = {std::to_string(c.row), c.count};
    }
    for (const ScreenDecl& screen : host.session().module().screens())
        if (ScreenWindow* w = host.window(screen.name)) w->loadFrom(state);
}


void fillRows(ModuleHost& host, const std::string& grid, const GridRows& rows) {
    FormState& state = host.session().state();
    GridRows& g = state.grid(grid);
    g.resize(1);
    g.insert(g.end(), rows.begin(), rows.end());
    for (const ScreenDecl& screen : host.session().module().screens())
        if (ScreenWindow* w = host.window(screen.name)) w->loadFrom(state);
}

void fillDataRows(ModuleHost& host, const std::string& grid, const std::vector<std::vector<std::string>>& rows) {
    GridRows& cells = host.session().state().grid(grid);
    cells.resize(1);
    for (std::size_t i = 0; i < rows.size(); ++i) {
        cells.push_back({std::to_string(i + 1)});
        cells.back().insert(cells.back().end(), rows[i].begin(), rows[i].end());
    }
    fill(host, {});
}

void press(ModuleHost& host, const std::string& command) {
    const auto dot = command.find('.');
    host.press(dot == std::string::npos ? host.session().info().key : command.substr(0, dot), command);
    settle();
}

void typeCell(ModuleHost& host, const std::string& grid, int row, int column, const QString& keys) {
    const auto dot = grid.find('.');
    ScreenWindow* w = host.window(grid.substr(0, dot));
    auto* table = w ? qobject_cast<QTableWidget*>(w->control(grid.substr(dot + 1))) : nullptr;
    if (!table || keys.isEmpty()) return;
    table->setCurrentCell(row, column);
    auto key = [](QWidget* to, int code, const QString& text) {
        QKeyEvent press(QEvent::KeyPress, code, Qt::NoModifier, text);
        QCoreApplication::sendEvent(to, &press);
    };
    key(table, keys.at(0).unicode(), keys.left(1));
    QWidget* editor = table->findChild<QLineEdit*>();
    for (qsizetype i = 1; editor && i < keys.size(); ++i) {
        const QChar c = keys.at(i);
        key(editor, c == QLatin1Char(',') ? Qt::Key_Comma : c.unicode(), QString(c));
    }
    if (editor) key(editor, Qt::Key_Return, QStringLiteral("\r"));
    settle();
}

bool saveScreen(ModuleHost& host, const std::string& screen, const QString& folder, const char* name) {
    ScreenWindow* w = host.window(screen);
    if (!w || !w->isVisible()) {
        std::fprintf(stderr, "falhou %s/%s: a janela %s não está aberta\n", qPrintable(folder), name,
                     screen.c_str());
        return false;
    }
    return save(w, folder, name);
}

ModuleHost* open(MorveApp& app, const std::string& key) {
    app.openModule(key);
    settle();
    return app.module();
}

}  // namespace morve
