#pragma once
// Keyboard access a desktop user expects: Esc to leave a window that can be left,
// and access keys on menus whose captions the program does not mark itself.
#include <QString>

#include <functional>
#include <set>

class QMenu;
class QMenuBar;
class QWidget;

namespace morve {

// Esc anywhere in the window runs the action.
void onEscape(QWidget* window, std::function<void()> action);

// The caption with an access key: the one it marks itself ("Aj&uda do MORVE"), or
// else the first letter of a word, then any letter, not yet taken among its
// siblings. The leading blanks of a caption stay as they are.
QString withAccessKey(const QString& caption, std::set<QChar>& taken);

// Access keys on every menu of the bar and every item under them, and F10 to
// open the first menu.
void giveAccessKeys(QMenuBar* bar);

}  // namespace morve
