#pragma once
// Grids the user types into work like a small spreadsheet, so that a table of
// twenty spans is typed once or pasted from a spreadsheet:
// - every key of a cell passes the grid's key filter, as in a box;
// - Tab and Shift+Tab move to the next and previous typed cell, row after row,
//   stepping over the locked numbering column, and leave the grid at its ends;
// - Enter moves one row down, back to the column where a run of Tabs began;
// - Ctrl+V pastes a block of cells (tab and line separated) from the current cell,
//   adding rows up to the grid's limit; each pasted text passes the key filter as
//   if it were typed, so a "1,5" from a Brazilian spreadsheet arrives as "1.5";
// - Ctrl+C copies the selected cells the same way, Delete empties them.
#include <QString>

#include "app/screen.h"

class QTableWidget;

namespace morve {

// Installs the cell editing and the keys above on a grid built from its declaration.
void makeSpreadsheet(QTableWidget* table, const ControlDecl& grid);

// A text as it would arrive typed key by key through a filter; refused is set when
// a character was left out.
QString filteredText(const QString& text, KeyFilter filter, bool* refused = nullptr);

}  // namespace morve
