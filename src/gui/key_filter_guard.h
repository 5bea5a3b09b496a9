#pragma once
// The keyboard filter of a numeric box or grid cell on a real widget. Every key
// that carries a character passes the declared filter first: a "," arrives as
// ".", a refused key is swallowed with a beep. Backspace, Enter and Escape carry
// control characters and are refused like any other; Delete, Tab and the keys
// that move the cursor carry none and are left alone.
#include <QObject>

#include <functional>

#include "app/key_filters.h"

class QKeyEvent;

namespace morve {

class KeyFilterGuard : public QObject {
public:
    KeyFilterGuard(std::function<KeyFilter()> filter, QObject* parent);
    // Installs a guard on the widget, owned by it.
    static void install(QObject* target, KeyFilter filter);
    // The filter may change while the widget lives: a table's follows the column
    // of its current cell.
    static void install(QObject* target, std::function<KeyFilter()> filter);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    std::function<KeyFilter()> filter_;
};

// The character code a key event carries, as the filters see it; 0 when none.
int characterCode(const QKeyEvent& event);

}  // namespace morve
