#include "gui/key_filter_guard.h"

#include <QCoreApplication>
#include <QKeyEvent>

#include "gui/gui_prompter.h"

namespace morve {

KeyFilterGuard::KeyFilterGuard(std::function<KeyFilter()> filter, QObject* parent)
    : QObject(parent), filter_(std::move(filter)) {}

void KeyFilterGuard::install(QObject* target, KeyFilter filter) {
    if (filter == KeyFilter::None) return;
    install(target, [filter] { return filter; });
}

void KeyFilterGuard::install(QObject* target, std::function<KeyFilter()> filter) {
    target->installEventFilter(new KeyFilterGuard(std::move(filter), target));
}

int characterCode(const QKeyEvent& event) {
    switch (event.key()) {
        case Qt::Key_Delete:
        case Qt::Key_Tab:
        case Qt::Key_Backtab:
        case Qt::Key_Left:
        case Qt::Key_Right:
        case Qt::Key_Up:
        case Qt::Key_Down:
        case Qt::Key_Home:
        case Qt::Key_End:
        case Qt::Key_PageUp:
        case Qt::Key_PageDown:
            return 0;
        case Qt::Key_Backspace: return 8;
        case Qt::Key_Return:
        case Qt::Key_Enter: return 13;
        case Qt::Key_Escape: return 27;
        default: break;
    }
    const QString text = event.text();
    if (text.isEmpty()) return 0;
    return text.at(0).unicode();
}

bool KeyFilterGuard::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::KeyPress) return false;
    auto* key = static_cast<QKeyEvent*>(event);
    const int code = characterCode(*key);
    if (code == 0) return false;
    const FilteredKey out = applyKeyFilter(filter_(), code);
    if (out.code == 0) {
        if (out.beep) beep();
        return true;
    }
    if (out.code != code) {
        // The comma comes through as the point it stands for.
        QKeyEvent changed(QEvent::KeyPress, Qt::Key_Period, key->modifiers(),
                          QString(QChar(out.code)));
        QCoreApplication::sendEvent(watched, &changed);
        return true;
    }
    return false;
}

}  // namespace morve
