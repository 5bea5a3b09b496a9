#include "render/offscreen.h"

#include <QGuiApplication>

#include <clocale>
#include <cstdio>
#include <memory>
#include <string>

namespace morve {

namespace {

// A program without windows has no use for Qt's notices about its environment
// (no runtime folder, no display); only real failures reach stderr.
void quietMessages(QtMsgType type, const QMessageLogContext&, const QString& text) {
    if (type == QtCriticalMsg || type == QtFatalMsg) fprintf(stderr, "%s\n", qPrintable(text));
}

}  // namespace

void ensurePaintingApplication() {
    if (QCoreApplication::instance()) return;
    qInstallMessageHandler(quietMessages);
    // Only the fonts are wanted, never a display.
    qputenv("QT_QPA_PLATFORM", "offscreen");
    // The application object takes the user's locale; numbers keep the point.
    const std::string numeric = std::setlocale(LC_NUMERIC, nullptr);
    static int argc = 1;
    static char name[] = "morve-calc";
    static char* argv[] = {name, nullptr};
    static std::unique_ptr<QGuiApplication> app = std::make_unique<QGuiApplication>(argc, argv);
    std::setlocale(LC_NUMERIC, numeric.c_str());
}

}  // namespace morve
