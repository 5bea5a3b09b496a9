#include "gui/window_places.h"

#include <QGuiApplication>
#include <QScreen>
#include <QWidget>

#include <algorithm>

namespace morve {

namespace {

QMargins frameMargins(const QWidget* window) {
    const QRect frame = window->frameGeometry(), inner = window->geometry();
    const QMargins m(inner.left() - frame.left(), inner.top() - frame.top(), frame.right() - inner.right(),
                     frame.bottom() - inner.bottom());
    if (!m.isNull() || window->windowFlags().testFlag(Qt::FramelessWindowHint)) return m;
    // Not framed yet (or on a surface without frames): a title bar and thin borders.
    return QMargins(4, 32, 4, 4);
}

// The frame's top-left so that a frame of this size lies on the area, as near
// to the wanted place as can be.
QPoint clampInto(const QRect& area, QPoint wanted, QSize frame) {
    const int x = std::clamp(wanted.x(), area.left(), std::max(area.left(), area.left() + area.width() - frame.width()));
    const int y = std::clamp(wanted.y(), area.top(), std::max(area.top(), area.top() + area.height() - frame.height()));
    return {x, y};
}

QSize framedSize(const QWidget* window) {
    const QMargins m = frameMargins(window);
    const QSize client = window->isVisible() ? window->size() : window->size().expandedTo(window->sizeHint());
    return client.grownBy(m);
}

void moveFrameTo(QWidget* window, QPoint frameTopLeft) {
    // move() places the frame of a framed window; an unframed one by its client
    // area, which then starts below the title bar still to come.
    const QMargins m = frameMargins(window);
    const bool framed = window->frameGeometry() != window->geometry();
    window->move(framed ? frameTopLeft : frameTopLeft + QPoint(m.left(), m.top()));
}

}  // namespace

QRect screenArea(const QWidget* window) {
    QScreen* screen = window && window->screen() ? window->screen() : QGuiApplication::primaryScreen();
    return screen ? screen->availableGeometry() : QRect(0, 0, 800, 600);
}

QSize roomOnScreen(const QWidget* window) { return screenArea(window).size().shrunkBy(frameMargins(window)); }

QRect framedGeometry(const QWidget* window) {
    const QMargins m = frameMargins(window);
    const bool framed = window->frameGeometry() != window->geometry();
    const QPoint topLeft = framed ? window->frameGeometry().topLeft() : window->pos() - QPoint(m.left(), m.top());
    return QRect(topLeft, window->size().grownBy(m));
}

void keepOnScreen(QWidget* window) {
    const QRect area = screenArea(window);
    const QSize room = roomOnScreen(window);
    if (window->width() > room.width() || window->height() > room.height())
        window->resize(window->size().boundedTo(room));
    const QRect now = framedGeometry(window);
    const QPoint at = clampInto(area, now.topLeft(), now.size());
    if (at != now.topLeft()) moveFrameTo(window, at);
}

void centreOnScreen(QWidget* window) {
    const QRect area = screenArea(window);
    const QSize size = framedSize(window);
    moveFrameTo(window, {area.left() + (area.width() - size.width()) / 2,
                         area.top() + std::max(0, (area.height() - size.height()) / 2)});
    keepOnScreen(window);
}

void placeTopRight(QWidget* window) {
    const QRect area = screenArea(window);
    const int width = framedSize(window).width();
    moveFrameTo(window, {area.left() + static_cast<int>(area.width() - 1.01 * width),
                         area.top() + static_cast<int>(0.01 * area.height())});
    keepOnScreen(window);
}

void placeBeside(QWidget* window, const QWidget* other) {
    const QRect area = screenArea(window), taken = framedGeometry(other);
    const QSize size = framedSize(window);
    constexpr int gap = 8;
    const QPoint candidates[] = {
        {taken.right() + 1 + gap, taken.top()},
        {taken.left() - gap - size.width(), taken.top()},
        {taken.left(), taken.bottom() + 1 + gap},
        {taken.left(), taken.top() - gap - size.height()},
    };
    for (const QPoint& at : candidates) {
        if (area.contains(QRect(at, size))) {
            moveFrameTo(window, at);
            keepOnScreen(window);
            return;
        }
    }
    // No side has room: the corner of the area farthest from the other window.
    const QPoint centre = taken.center();
    const int x = centre.x() < area.center().x() ? area.right() + 1 - size.width() : area.left();
    const int y = centre.y() < area.center().y() ? area.bottom() + 1 - size.height() : area.top();
    moveFrameTo(window, {x, y});
    keepOnScreen(window);
}

void fillScreen(QWidget* window) {
    const QRect area = screenArea(window);
    window->resize(area.size().shrunkBy(frameMargins(window)));
    moveFrameTo(window, area.topLeft());
}

}  // namespace morve
