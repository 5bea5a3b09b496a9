#include "gui/window_places.h"

#include <QGuiApplication>
#include <QScreen>
#include <QWidget>

namespace morve {

QRect screenArea(const QWidget* window) {
    QScreen* screen = window && window->screen() ? window->screen() : QGuiApplication::primaryScreen();
    return screen ? screen->availableGeometry() : QRect(0, 0, 800, 600);
}

void centreOnScreen(QWidget* window) {
    const QRect area = screenArea(window);
    const QSize size = window->frameGeometry().size().expandedTo(window->sizeHint());
    window->move(area.left() + (area.width() - size.width()) / 2,
                 area.top() + std::max(0, (area.height() - size.height()) / 2));
}

void placeTopRight(QWidget* window) {
    const QRect area = screenArea(window);
    const int width = window->frameGeometry().width();
    window->move(area.left() + static_cast<int>(area.width() - 1.01 * width),
                 area.top() + static_cast<int>(0.01 * area.height()));
}

}  // namespace morve
