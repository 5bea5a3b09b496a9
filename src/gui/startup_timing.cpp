#include "gui/startup_timing.h"

#include <QApplication>
#include <QEvent>
#include <QTimer>
#include <QWidget>

#include <unistd.h>

#include <cstdio>
#include <ctime>
#include <fstream>
#include <iterator>
#include <set>
#include <sstream>
#include <string>

namespace morve {

namespace {

// Milliseconds since the kernel started this process, or -1 when /proc says nothing.
double sinceProcessStart() {
    std::ifstream in("/proc/self/stat");
    const std::string stat((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>());
    // The command name, in parentheses, may hold spaces: the fields are counted
    // from its closing parenthesis, where the third field (the state) begins.
    const std::size_t close = stat.rfind(')');
    if (close == std::string::npos) return -1;
    std::istringstream fields(stat.substr(close + 1));
    std::string field;
    for (int n = 3; n <= 22 && fields >> field; ++n)
        if (n == 22) {
            timespec now{};
            clock_gettime(CLOCK_BOOTTIME, &now);
            const double started = std::stod(field) / static_cast<double>(sysconf(_SC_CLK_TCK));
            return (static_cast<double>(now.tv_sec) + now.tv_nsec * 1e-9 - started) * 1000;
        }
    return -1;
}

class PaintWatch : public QObject {
public:
    using QObject::QObject;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() != QEvent::Paint || !watched->isWidgetType()) return false;
        const QString window = static_cast<QWidget*>(watched)->window()->objectName();
        if ((window != QLatin1String("Form0entra") && window != QLatin1String("FormAviso")) || seen_.count(window))
            return false;
        seen_.insert(window);
        // Once this paint is done: the next turn of the event loop.
        QTimer::singleShot(0, this, [window] {
            std::printf("%s pintada em %.0f ms desde o início do processo\n", qPrintable(window), sinceProcessStart());
            std::fflush(stdout);
            if (window == QLatin1String("FormAviso")) QCoreApplication::exit(0);
        });
        return false;
    }

private:
    std::set<QString> seen_;
};

}  // namespace

void reportStartupTiming(QApplication& app) { app.installEventFilter(new PaintWatch(&app)); }

}  // namespace morve
