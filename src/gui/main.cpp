// MORVE: design of reinforced-concrete elements, step by step.
#include <QApplication>
#include <QElapsedTimer>
#include <QIcon>
#include <QTimer>

#include <cstdio>
#include <cstdlib>
#include <cstring>

#include "gui/data_paths.h"
#include "gui/main_window.h"
#include "gui/morve_app.h"
#include "gui/project_dialogs.h"
#include "gui/qt_texts.h"
#include "gui/recovery_keeper.h"
#include "gui/screenshots.h"

namespace {

const char* kUsage =
    "uso: morve [--no-splash] [--screenshots PASTA] [--startup-time] [ARQUIVO.mor]\n";

}  // namespace

int main(int argc, char** argv) {
    QElapsedTimer clock;
    clock.start();
    morve::AppOptions options;
    QString screenshots, project;
    bool startupTime = false;
    for (int i = 1; i < argc; ++i) {
        if (!std::strcmp(argv[i], "--no-splash")) options.splash = false;
        else if (!std::strcmp(argv[i], "--startup-time")) startupTime = true;
        else if (!std::strcmp(argv[i], "--screenshots") && i + 1 < argc) screenshots = QString::fromLocal8Bit(argv[++i]);
        else if (!std::strcmp(argv[i], "--help") || !std::strcmp(argv[i], "-h")) {
            std::fputs(kUsage, stdout);
            return 0;
        } else if (argv[i][0] != '-') project = QString::fromLocal8Bit(argv[i]);
    }
    // Without a display Qt aborts with a message about plugins; say plainly what is
    // missing instead, and where the calculations can still be run.
    if (!std::getenv("DISPLAY") && !std::getenv("WAYLAND_DISPLAY") && !std::getenv("QT_QPA_PLATFORM")) {
        std::fputs("morve: nenhuma tela gráfica disponível (DISPLAY não definido).\n"
                   "Os módulos também podem ser calculados sem tela com morve-calc (veja o README).\n",
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

    if (startupTime) options.splash = false;
    morve::MorveApp app(options);
    // Data a crash left behind come first: a new session would write over them.
    if (!morve::offerRecovery(app) && (project.isEmpty() || !morve::startWithProject(app, project))) app.start();
    if (startupTime) {
        // Time from the start of the process to the menu painted.
        QTimer::singleShot(0, [&] {
            app.menu()->repaint();
            std::printf("menu pintado em %lld ms\n", static_cast<long long>(clock.elapsed()));
            QApplication::quit();
        });
    }
    return QApplication::exec();
}
