#include "gui/keyboard.h"

#include <QAction>
#include <QMenu>
#include <QMenuBar>
#include <QShortcut>

namespace morve {

namespace {

QChar keyOf(QChar c) { return c.toLower(); }

void keysOfMenu(const QList<QAction*>& actions) {
    std::set<QChar> taken;
    // The program's own marks first, so that no other item takes their letter.
    for (QAction* a : actions) {
        const QString text = a->text();
        const qsizetype amp = text.indexOf(QLatin1Char('&'));
        if (amp >= 0 && amp + 1 < text.size()) taken.insert(keyOf(text.at(amp + 1)));
    }
    for (QAction* a : actions) {
        if (a->isSeparator()) continue;
        if (!a->text().contains(QLatin1Char('&'))) a->setText(withAccessKey(a->text(), taken));
        if (QMenu* sub = a->menu()) keysOfMenu(sub->actions());
    }
}

}  // namespace

void onEscape(QWidget* window, std::function<void()> action) {
    auto* escape = new QShortcut(QKeySequence(Qt::Key_Escape), window);
    escape->setContext(Qt::WindowShortcut);
    QObject::connect(escape, &QShortcut::activated, window, [action = std::move(action)] { action(); });
}

QString withAccessKey(const QString& caption, std::set<QChar>& taken) {
    const qsizetype amp = caption.indexOf(QLatin1Char('&'));
    if (amp >= 0) {
        if (amp + 1 < caption.size()) taken.insert(keyOf(caption.at(amp + 1)));
        return caption;
    }
    auto mark = [&](qsizetype at) {
        taken.insert(keyOf(caption.at(at)));
        QString out = caption;
        out.insert(at, QLatin1Char('&'));
        return out;
    };
    for (qsizetype i = 0; i < caption.size(); ++i) {
        const bool wordStart = i == 0 || !caption.at(i - 1).isLetter();
        if (wordStart && caption.at(i).isLetter() && !taken.count(keyOf(caption.at(i)))) return mark(i);
    }
    for (qsizetype i = 0; i < caption.size(); ++i)
        if (caption.at(i).isLetter() && !taken.count(keyOf(caption.at(i)))) return mark(i);
    return caption;
}

void giveAccessKeys(QMenuBar* bar) {
    keysOfMenu(bar->actions());
    auto* f10 = new QShortcut(QKeySequence(Qt::Key_F10), bar->window());
    f10->setContext(Qt::WindowShortcut);
    QObject::connect(f10, &QShortcut::activated, bar, [bar] {
        for (QAction* a : bar->actions()) {
            if (!a->isEnabled() || !a->isVisible()) continue;
            bar->setActiveAction(a);
            return;
        }
    });
}

}  // namespace morve
