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
#include "gui/screenshot_steps.h"
#include "gui/start_windows.h"
#include "gui/window_places.h"

namespace morve {

namespace {

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
    ok &= frameShots(app, folder);
    return ok ? 0 : 1;
}

}  // namespace morve
