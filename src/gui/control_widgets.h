#pragma once
// The widgets of a screen's controls, sized by what they show: a list as wide as
// its longest item, a table as tall as its rows up to a limit past which it scrolls.
#include <QString>

#include <string>
#include <vector>

class QLineEdit;
class QListWidget;
class QTableWidget;

namespace morve {

inline QString q(const std::string& s) { return QString::fromStdString(s); }

// The items the module gives a list now; the widget is rebuilt only when they changed.
void showItems(QListWidget* list, const std::vector<std::string>& items);
// A short table shows all its rows without a scroll bar; a long one scrolls.
void fitGridHeight(QTableWidget* table);
// The columns share a table's width evenly, so the table is as wide as its
// widest heading times its columns.
void fitGridWidth(QTableWidget* table);
// A result box is as wide as its module declares, or as its text when wider.
void fitResultWidth(QLineEdit* box);

}  // namespace morve
