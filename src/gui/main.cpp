// MORVE: design of reinforced-concrete elements, step by step.
#include <QApplication>
#include <QIcon>

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>

#include "app/about.h"
#include "gui/data_paths.h"
#include "gui/morve_app.h"
#include "gui/project_dialogs.h"
#include "gui/qt_texts.h"
#include "gui/recovery_keeper.h"
#include "gui/screenshots.h"
#include "gui/startup_timing.h"

namespace {

const char* kUsage =
    "uso: morve [--no-splash] [--screenshots PASTA] [--timing] [ARQUIVO.mor]\n"
    "     morve --version\n";

}  // namespace

int main(int argc, char** argv) {
    morve::AppOptions options;
    QString screenshots, project;
    bool timing = false;
    for (int i = 1; i < argc; ++i) {
        if (!std::strcmp(argv[i], "--no-splash")) options.splash = false;
        else if (!std::strcmp(argv[i], "--timing")) timing = true;
        else if (!std::strcmp(argv[i], "--screenshots") && i + 1 < argc) screenshots = QString::fromLocal8Bit(argv[++i]);
        else if (!std::strcmp(argv[i], "--help") || !std::strcmp(argv[i], "-h")) {
            std::fputs(kUsage, stdout);
            return 0;
        } else if (!std::strcmp(argv[i], "--version")) {
            std::fputs(morve::versionText("morve").c_str(), stdout);
            return 0;
        } else if (argv[i][0] != '-') project = QString::fromLocal8Bit(argv[i]);
    }
    // Without a display Qt aborts with a message about plugins; say plainly what is
    // missing instead, and where the calculations can still be run. The package
    // ships no README, so the pointer is to the manual page.
    if (!std::getenv("DISPLAY") && !std::getenv("WAYLAND_DISPLAY") && !std::getenv("QT_QPA_PLATFORM")) {
        std::fputs("morve: nenhuma tela gráfica disponível (DISPLAY não definido).\n"
                   "Os módulos também podem ser calculados sem tela com morve-calc (veja man morve-calc).\n",
                   stderr);
        return 1;
    }
    QApplication qapp(argc, argv);
    QApplication::setApplicationName(QStringLiteral("MORVE"));
    QApplication::setApplicationVersion(QStringLiteral(MORVE_VERSION));
    QApplication::setDesktopFileName(QStringLiteral("morve"));
    QApplication::setQuitOnLastWindowClosed(false);
    morve::installQtTranslations(qapp);
    QApplication::setWindowIcon(QIcon::fromTheme(QStringLiteral("morve"), QIcon(morve::helpFolder() + "/../morve.svg")));
    if (!screenshots.isEmpty()) return morve::takeScreenshots(screenshots);

    if (timing) morve::reportStartupTiming(qapp);
    morve::MorveApp app(options);
    // Data a crash left behind come first: a new session would write over them. A
    // timed start asks nothing.
    const bool recovered = !timing && morve::offerRecovery(app);
    if (!recovered && (project.isEmpty() || !morve::startWithProject(app, project))) app.start();
    return QApplication::exec();
}
