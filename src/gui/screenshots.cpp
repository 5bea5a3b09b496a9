#include "gui/screenshots.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDir>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QTimer>
#include <QPainter>
#include <QTextStream>

#include <cstdio>
#include <string>
#include <vector>

#include "gui/gui_prompter.h"
#include "gui/help_windows.h"
#include "gui/main_window.h"
#include "gui/morve_app.h"
#include "gui/report_panel.h"
#include "gui/screen_window.h"
#include "gui/start_windows.h"
#include "gui/window_places.h"

namespace morve {

namespace {

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

// Windows as they stand on the screen, each at its place with a frame drawn
// round it, so that one covering another shows.
QImage desktopPicture(const std::vector<QWidget*>& windows) {
    QImage desk(screenArea(windows.front()).size(), QImage::Format_RGB32);
    desk.fill(QColor(0x2c, 0x4f, 0x7c));
    QPainter painter(&desk);
    const QPoint origin = screenArea(windows.front()).topLeft();
    for (QWidget* w : windows) {
        const QRect frame = framedGeometry(w).translated(-origin);
        painter.fillRect(frame, QColor(0xdd, 0xdd, 0xdd));
        painter.drawRect(frame.adjusted(0, 0, -1, -1));
        painter.drawText(frame.adjusted(8, 0, 0, 0), Qt::AlignLeft | Qt::AlignTop, w->windowTitle());
        painter.drawPixmap(w->geometry().topLeft() - origin, w->grab());
    }
    return desk;
}

// The "Sair" question as the desktop shows it, answered No.
bool exitQuestion(MorveApp& app, const QString& folder) {
    bool ok = false;
    QTimer::singleShot(50, [&] {
        if (auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) {
            ok = save(box, folder, "sair.png");
            box->button(QMessageBox::No)->click();
        }
    });
    app.askExit();
    return ok && !app.exiting();
}

// The menu bar with the "Vigas" menu and its submenus open below it.
QImage menuPicture(MainWindow* menu) {
    QImage window = menu->grab().toImage();
    QMenu* vigas = menu->findChild<QMenu*>(QStringLiteral("viga"));
    QMenu* limit = menu->findChild<QMenu*>(QStringLiteral("viga2"));
    QMenu* bending = menu->findChild<QMenu*>(QStringLiteral("viga3"));
    if (!vigas || !limit || !bending) return window;
    QPainter painter(&window);
    const int x0 = menu->menuBar()->actionGeometry(vigas->menuAction()).left();
    const int y0 = menu->menuBar()->height();
    QPoint at(x0, y0);
    for (QMenu* m : {vigas, limit, bending}) {
        m->adjustSize();
        const QPixmap shot = m->grab();
        painter.drawPixmap(at, shot);
        at = QPoint(at.x() + shot.width() - 4, at.y() + 4);
    }
    return window;
}

// A case typed into a module as the user would leave it: boxes and lists by
// their text ("Text5", or "Form13b.Text1" on a companion), grid cells by row.
struct Entry {
    std::string control;
    std::string text;
};
struct Cell {
    std::string grid;
    std::size_t row;
    std::string count;
};

std::string qualified(ModuleHost& host, const std::string& name) {
    return name.find('.') == std::string::npos ? host.session().info().key + "." + name : name;
}

// Puts the entries in the module's boxes and shows them in its open windows.
void fill(ModuleHost& host, const std::vector<Entry>& entries, const std::vector<Cell>& cells = {}) {
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

// A command as its button gives it: "Command1" on the main screen, "Form8.Command3"
// on a companion.
void press(ModuleHost& host, const std::string& command) {
    const auto dot = command.find('.');
    host.press(dot == std::string::npos ? host.session().info().key : command.substr(0, dot), command);
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

// The torsion results and the detailing of a T, from the worked examples.
bool beamShots(MorveApp& app, const QString& folder) {
    ScriptedPrompter answers;
    setGuiPrompter(&answers);
    bool ok = true;
    if (ModuleHost* host = open(app, "Form6")) {
        fill(*host, {{"Text1", "25"}, {"Text3", "210"}, {"Text7", "25"}, {"Text8", "50"}, {"Text9", "4"},
                     {"Text10", "100"}, {"Text11", "80"}, {"Text12", "15"}, {"List1", "8.0"}});
        press(*host, "Command1");
        ok &= saveScreen(*host, "Form6b", folder, "form6b.png");
    }
    if (ModuleHost* host = open(app, "Form10")) {
        fill(*host, {{"Text5", "10"}, {"Text6", "20"}, {"Text9", "4"}, {"Text10", "100"}, {"List6", "1"}});
        press(*host, "Command3");
        press(*host, "Command4");
        fill(*host, {{"Form10b.List1", "16"}, {"Form10b.List2", "10"}, {"Form10b.List3", "6.3"},
                     {"Form10b.List4", "3"}, {"Form10b.List5", "19"}, {"Form10b.List6", "5"}});
        press(*host, "Form10b.Command2");
        press(*host, "Form10b.Command3");
        ok &= saveScreen(*host, "Form10c", folder, "form10c.png");
    }
    if (ModuleHost* host = open(app, "Form39")) {  // the example of its help page, with a point load added
        fill(*host, {{"Text6", "6"}, {"Text7", "1"}, {"Text8", "1"}, {"Text9", "20"}, {"Text10", "50"},
                     {"Text11", "5"}, {"Text12", "4"}, {"Text13", "6"}, {"Text14", "0"}, {"List1", "12.5"}});
        ok &= saveScreen(*host, "Form39", folder, "form39.png");
        press(*host, "Command8");
        host->session().state().grid("Form39b.Grade2")[1] = {"1", "0", "6", "20"};
        host->session().state().grid("Form39b.Grade1")[1] = {"1", "2", "15", "0"};
        fill(*host, {{"Form39b.Text1", "-20"}});
        ok &= saveScreen(*host, "Form39b", folder, "form39b.png");
        press(*host, "Form39b.Command1");
        ok &= saveScreen(*host, "Form39b2", folder, "form39b2.png");
        press(*host, "Form39b2.Command1");
        press(*host, "Form39b.Command2");
        press(*host, "Command3");
        ok &= saveScreen(*host, "Form39c", folder, "form39c.png");
    }
    setGuiPrompter(nullptr);
    return ok;
}

// Whole rows of a module's tables, then the windows show them.
void fillRows(ModuleHost& host, const std::string& grid, const GridRows& rows) {
    FormState& state = host.session().state();
    GridRows& g = state.grid(grid);
    g.resize(1);
    g.insert(g.end(), rows.begin(), rows.end());
    for (const ScreenDecl& screen : host.session().module().screens())
        if (ScreenWindow* w = host.window(screen.name)) w->loadFrom(state);
}

// The three-span beam of the examples: its results, diagrams and deformed shape.
bool continuousShots(MorveApp& app, const QString& folder) {
    ScriptedPrompter answers;
    setGuiPrompter(&answers);
    bool ok = true;
    if (ModuleHost* host = open(app, "Form34")) {
        fill(*host, {{"Text1", "25"}, {"Text2", "28000"}, {"Text3", "3"}, {"Text4", "4"}, {"Text6", "1"}, {"Text7", "3"}});
        ok &= saveScreen(*host, "Form34", folder, "form34.png");
        press(*host, "Command8");
        fillRows(*host, "Form34b.Grade1", {{"1", "4", "208333"}, {"2", "5", "208333"}, {"3", "4", "208333"}});
        fillRows(*host, "Form34b.Grade2", {{"1", "2", "0"}, {"2", "1", "0"}, {"3", "1", "0"}, {"4", "1", "0"}});
        ok &= saveScreen(*host, "Form34b", folder, "form34b.png");
        press(*host, "Form34b.Command2");
        press(*host, "Command4");
        fillRows(*host, "Form34c.Grade2", {{"2", "2.5", "30", "0"}});
        fillRows(*host, "Form34c.Grade3", {{"1", "0", "4", "15"}, {"2", "0", "5", "15"}, {"3", "0", "4", "15"}});
        press(*host, "Form34c.Command1");
        ok &= saveScreen(*host, "Form34c2", folder, "form34c2.png");
        press(*host, "Form34c2.Command1");
        press(*host, "Form34c.Command2");
        press(*host, "Command3");
        ok &= saveScreen(*host, "Form34d", folder, "form34d.png");
        press(*host, "Form34d.Command2");
        press(*host, "Command10");
        ok &= saveScreen(*host, "Form34e", folder, "form34e.png");
        press(*host, "Form34e.Command1");
        press(*host, "Command1");
        ok &= saveScreen(*host, "Form34g", folder, "form34g.png");
    }
    setGuiPrompter(nullptr);
    return ok;
}

// The flat slab of the examples: its columns, the floor with the loads, the four surfaces.
bool flatSlabShots(MorveApp& app, const QString& folder) {
    ScriptedPrompter answers;
    setGuiPrompter(&answers);
    bool ok = true;
    if (ModuleHost* host = open(app, "Form40")) {
        fill(*host, {{"Text1", "25"}, {"Text2", "28517"}, {"Text4", "20"}, {"Text5", "7.5"}, {"Text6", "9"},
                     {"Text7", "4"}, {"Text8", "6.5"}, {"Text9", "3"}});
        ok &= saveScreen(*host, "Form40", folder, "form40.png");
        press(*host, "Command1");
        fillRows(*host, "Form40b.Grade1", {{"1", "2.5", "3"}, {"2", "5", "3"}, {"3", "2.5", "6"}, {"4", "5", "6"}});
        fillRows(*host, "Form40b.Grade2", {{"1", "30", "40"}, {"2", "30", "40"}, {"3", "30", "40"}, {"4", "30", "40"}});
        ok &= saveScreen(*host, "Form40b", folder, "form40b.png");
        press(*host, "Form40b.Command1");
        press(*host, "Command3");
        ok &= saveScreen(*host, "Form40c", folder, "form40c.png");
        press(*host, "Form40c.Command1");
        press(*host, "Command2");
        const char* surfaces[][2] = {{"Form40d.Command3", "form40d-mx.png"}, {"Form40d.Command4", "form40d-my.png"},
                                     {"Form40d.Command5", "form40d-mxy.png"}, {"Form40d.Command6", "form40d-flechas.png"}};
        for (const auto& [command, name] : surfaces) {
            press(*host, command);
            ok &= saveScreen(*host, "Form40d", folder, name);
        }
    }
    setGuiPrompter(nullptr);
    return ok;
}

// A design and a verification of a rectangular column, with the section, the
// interaction diagram, and the design situations of a corner column.
bool columnShots(MorveApp& app, const QString& folder) {
    ScriptedPrompter answers;
    setGuiPrompter(&answers);
    bool ok = true;
    const std::vector<Entry> column{{"Text1", "25"}, {"Text2", "500"}, {"Text3", "210"}, {"Text4", "20"},
                                    {"Text5", "50"},  {"Text6", "4"},   {"Text7", "2"}};
    if (ModuleHost* host = open(app, "Form12")) {
        fill(*host, column);
        fill(*host, {{"Text8", "1000"}, {"Text9", "120"}}, {{"Form12b.Grade1", 1, "3"}, {"Form12b.Grade1", 2, "3"}});
        press(*host, "Command4");
        ok &= saveScreen(*host, "Form12", folder, "form12.png");
        press(*host, "Command5");
        ok &= saveScreen(*host, "Form12c", folder, "form12c.png");
    }
    if (ModuleHost* host = open(app, "Form13")) {
        fill(*host, column);
        fill(*host, {{"Text8", "1400"}, {"Form13b.Text1", "17.51"}},
             {{"Form13b.Grade1", 1, "3"}, {"Form13b.Grade1", 2, "3"}});
        press(*host, "Command4");
        press(*host, "Command6");
        ok &= saveScreen(*host, "Form13c", folder, "form13c.png");
    }
    if (ModuleHost* host = open(app, "Form35")) {
        fill(*host, {{"Text5", "25"}, {"Text6", "25"}, {"Text8", "4"}, {"Text9", "4"}, {"Text14", "1000"},
                     {"Text10", "30"}, {"Text11", "-10"}, {"Text12", "20"}, {"Text13", "0"}});
        ok &= saveScreen(*host, "Form35", folder, "form35.png");
        press(*host, "Command3");
        ok &= saveScreen(*host, "Form35c", folder, "form35c.png");
        press(*host, "Form35c.Command1");
        ok &= saveScreen(*host, "Form35d", folder, "form35d.png");
    }
    setGuiPrompter(nullptr);
    app.returnToMenu();
    settle();
    return ok;
}

// The four-sided slab with its six patterns and its result screen, and the
// free-edge slab's results.
bool slabShots(MorveApp& app, const QString& folder) {
    ScriptedPrompter answers;
    setGuiPrompter(&answers);
    bool ok = true;
    if (ModuleHost* host = open(app, "Form22")) {
        fill(*host, {{"Text4", "5"}, {"Text5", "2"}, {"Text6", "4"}, {"Text7", "5"}, {"Text8", "10"}});
        host->session().state().setOption("Form22.Option4", true);
        fill(*host, {});
        ok &= saveScreen(*host, "Form22", folder, "form22.png");
        press(*host, "Command1");
        ok &= saveScreen(*host, "Form22c", folder, "form22c.png");
    }
    if (ModuleHost* host = open(app, "Form24")) {
        fill(*host, {{"Text4", "5"}, {"Text5", "2"}, {"Text6", "4"}, {"Text7", "3.2"}, {"Text8", "12"}});
        host->session().state().setOption("Form24.Option3", true);
        fill(*host, {});
        press(*host, "Command1");
        ok &= saveScreen(*host, "Form24b", folder, "form24b.png");
    }
    if (ModuleHost* host = open(app, "Form24f")) {
        fill(*host, {{"Text4", "5"}, {"Text5", "2"}, {"Text7", "12"}, {"Text8", "1"}, {"Text6", "6"}, {"List1", "Fina"}});
        press(*host, "Command4");
        fillRows(*host, "Form24g.Grade1", {{"1", "0", "0"}, {"2", "6", "0"}, {"3", "6", "3"}, {"4", "3", "3"}, {"5", "3", "5"}, {"6", "0", "5"}});
        fillRows(*host, "Form24g.Grade2", {{"1", "0"}, {"2", "0"}, {"3", "1"}, {"4", "1"}, {"5", "0"}, {"6", "2"}});
        ok &= saveScreen(*host, "Form24g", folder, "form24g.png");
        press(*host, "Form24g.Command2");
        press(*host, "Command7");
        ok &= saveScreen(*host, "Form24h", folder, "form24h.png");
        press(*host, "Form24h.Command1");
        press(*host, "Command1");
        ok &= saveScreen(*host, "Form24f", folder, "form24f.png");
        press(*host, "Command10");
        ok &= saveScreen(*host, "Form24j", folder, "form24j.png");
    }
    setGuiPrompter(nullptr);
    app.returnToMenu();
    settle();
    return ok;
}

// The polygonal sections under oblique bending: a chamfered doubly symmetric
// column and an L, each with its section, neutral axis and, for the L, its moment
// contour.
// Rows typed without their number: the number column is filled in order.
void fillDataRows(ModuleHost& host, const std::string& grid, const std::vector<std::vector<std::string>>& rows) {
    GridRows& cells = host.session().state().grid(grid);
    cells.resize(1);
    for (std::size_t i = 0; i < rows.size(); ++i) {
        cells.push_back({std::to_string(i + 1)});
        cells.back().insert(cells.back().end(), rows[i].begin(), rows[i].end());
    }
    fill(host, {});
}

// The two stairs, each calculated and drawn in perspective with its deformed shape.
bool stairShots(MorveApp& app, const QString& folder) {
    ScriptedPrompter answers;
    setGuiPrompter(&answers);
    bool ok = true;
    if (ModuleHost* host = open(app, "Form41")) {
        fill(*host, {{"Text1", "25"}, {"Text2", "28517"}, {"Text4", "180"}, {"Text5", "2"}, {"Text6", "3"},
                     {"Text9", "15"}, {"Text10", "1.2"}, {"Text7", "1.5"}, {"Text8", "3"}});
        press(*host, "Command1");
        ok &= saveScreen(*host, "Form41", folder, "form41.png");
        press(*host, "Command2");
        ok &= saveScreen(*host, "Form41b", folder, "form41b.png");
    }
    if (ModuleHost* host = open(app, "Form42")) {
        fill(*host, {{"Text1", "25"}, {"Text2", "28517"}, {"Text4", "2.7"}, {"Text5", "1.2"}, {"Text6", "1.3"},
                     {"Text7", "2.6"}, {"Text8", "2.88"}, {"Text9", "15"}, {"Text10", "14"}, {"Text11", "2"},
                     {"Text12", "1"}, {"Text13", "3"}, {"Text14", "3"}});
        press(*host, "Command1");
        ok &= saveScreen(*host, "Form42", folder, "form42.png");
        press(*host, "Command2");
        ok &= saveScreen(*host, "Form42b", folder, "form42b.png");
    }
    setGuiPrompter(nullptr);
    return ok;
}

bool obliqueShots(MorveApp& app, const QString& folder) {
    ScriptedPrompter answers;
    setGuiPrompter(&answers);
    bool ok = true;
    if (ModuleHost* host = open(app, "Form16")) {
        fill(*host, {{"Text1", "25"}, {"Text3", "210"}, {"Text4", "8"}, {"Text5", "6"}, {"Text6", "800"},
                     {"Text7", "150"}, {"Text8", "50"}});
        fillDataRows(*host, "Form16b.Grade1", {{"-10", "-30"}, {"10", "-30"}, {"15", "-25"}, {"15", "25"}, {"10", "30"},
                                          {"-10", "30"}, {"-15", "25"}, {"-15", "-25"}});
        fillDataRows(*host, "Form16b.Grade2",
                 {{"-11", "-26"}, {"11", "-26"}, {"11", "0"}, {"11", "26"}, {"-11", "26"}, {"-11", "0"}});
        press(*host, "Command4");
        ok &= saveScreen(*host, "Form16", folder, "form16.png");
        press(*host, "Command5");
        ok &= saveScreen(*host, "Form12c", folder, "form16-secao.png");
    }
    if (ModuleHost* host = open(app, "Form17")) {
        fill(*host, {{"Text1", "25"}, {"Text3", "210"}, {"Text4", "6"}, {"Text5", "10"}, {"Text7", "2000"},
                     {"Text8", "300"}, {"Text9", "-200"}});
        fillDataRows(*host, "Form17b.Grade1",
                 {{"0", "0"}, {"60", "0"}, {"60", "20"}, {"20", "20"}, {"20", "60"}, {"0", "60"}});
        fillDataRows(*host, "Form17b.Grade2",
                 {{"4", "4", "2"}, {"30", "4", "2"}, {"56", "4", "2"}, {"56", "16", "2"}, {"30", "16", "2"},
                  {"16", "16", "2"}, {"16", "56", "2"}, {"4", "56", "2"}, {"4", "30", "2"}, {"16", "30", "2"}});
        press(*host, "Command3");
        ok &= saveScreen(*host, "Form17b", folder, "form17b.png");
        press(*host, "Form17b.Command2");
        press(*host, "Command4");
        ok &= saveScreen(*host, "Form17", folder, "form17.png");
        press(*host, "Command5");
        ok &= saveScreen(*host, "Form12c", folder, "form17-secao.png");
        press(*host, "Form12c.Command1");
        press(*host, "Command6");
        ok &= saveScreen(*host, "Form17c", folder, "form17c.png");
    }
    setGuiPrompter(nullptr);
    app.returnToMenu();
    settle();
    return ok;
}

}  // namespace

int takeScreenshots(const QString& folder) {
    QDir().mkpath(folder);
    AppOptions options;
    options.splash = false;
    options.quitAtExit = false;
    MorveApp app(options);
    app.start();
    settle();
    bool ok = true;

    ok &= save(app.startDialog(), folder, "aviso.png");
    ok &= save(app.tipWindow(), folder, "dica.png");
    ok &= desktopPicture({app.startDialog(), app.tipWindow()}).save(folder + "/aviso-e-dica.png");
    app.startDialog()->confirm();
    settle();
    const QImage menu = menuPicture(app.menu());
    ok &= menu.save(folder + "/menu.png");

    // Form7 with the worked example of its help page.
    app.openModule("Form7");
    settle();
    ScreenWindow* form7 = app.module() ? app.module()->mainWindow() : nullptr;
    if (!form7) return 1;
    static_cast<QLineEdit*>(form7->control("Text10"))->setText("4");
    static_cast<QLineEdit*>(form7->control("Text6"))->setText("50");
    static_cast<QListWidget*>(form7->control("List6"))->setCurrentRow(0);
    ScriptedPrompter answers;
    setGuiPrompter(&answers);
    app.module()->press("Form7", "Command1");
    setGuiPrompter(nullptr);
    ok &= save(form7, folder, "form7.png");
    const QSize usual = form7->size();
    // As maximised on a usual full-HD desktop, whatever the screen of this run.
    form7->resize(QSize(1900, 1000));
    ok &= save(form7, folder, "form7-maximizada.png");
    form7->showNormal();
    form7->resize(usual);
    ok &= exitQuestion(app, folder);

    app.module()->toolbar("Form7", "Ajuda");
    ok &= save(app.moduleHelp(), folder, "ajuda7.png");
    app.closeModuleHelp();

    app.module()->toolbar("Form7", "Imprimir");
    settle();
    ReportPanel* panel = app.reportPanel();
    if (!panel) return 1;
    ok &= save(panel, folder, "imprimir.png");
    static_cast<QLineEdit*>(panel->control("Text2"))->setText("Viga V1 - exemplo da ajuda");
    panel->preview();
    ok &= save(panel, folder, "visualizar.png");
    panel->cancel();
    settle();

    // The detailing that follows, when the module declares it: its screens and
    // its report, which carries the drawing of the section.
    setGuiPrompter(&answers);
    app.module()->press("Form7", "Command3");
    if (ScreenWindow* form8 = app.module()->window("Form8")) {
        settle();
        // The bars and restrictions of the detailing example.
        FormState& state = app.module()->session().state();
        const char* choices[][2] = {{"List1", "16"}, {"List2", "10"}, {"List3", "6.3"},
                                    {"List4", "3"},  {"List5", "19"}, {"List6", "5"}};
        for (const auto& [list, item] : choices) state.setText(std::string("Form8.") + list, item);
        form8->loadFrom(state);
        ok &= save(form8, folder, "form8.png");
        app.module()->press("Form8", "Form8.Command2");
        app.module()->press("Form8", "Form8.Command3");
        if (ScreenWindow* form8b = app.module()->window("Form8b")) {
            ok &= save(form8b, folder, "form8b.png");
            app.module()->press("Form8b", "Form8b.Command2");
            if (ReportPanel* report = app.reportPanel()) {
                report->preview();
                report->nextPage();
                ok &= save(report, folder, "visualizar-form8b.png");
                report->cancel();
            }
        }
    }
    setGuiPrompter(nullptr);
    settle();
    ok &= beamShots(app, folder);
    ok &= continuousShots(app, folder);
    ok &= columnShots(app, folder);
    ok &= slabShots(app, folder);
    ok &= flatSlabShots(app, folder);
    ok &= obliqueShots(app, folder);
    ok &= stairShots(app, folder);
    return ok ? 0 : 1;
}

}  // namespace morve
