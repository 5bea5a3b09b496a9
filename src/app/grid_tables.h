#pragma once
// Counts typed in boxes and the data tables they size, as every module with
// tables of rows reads and shapes them.
#include <string>

#include "app/form_state.h"

namespace morve {

// The number of data rows of a grid (the header not counted).
int dataRows(const FormState& s, const std::string& grid);
// A count typed in a box, truncated; far values stay far, without overflow.
int countIn(const FormState& s, const std::string& box);
// A table takes `rows` data rows; the cells already typed in the rows that stay are
// kept, new cells are blank, and a numbered table numbers its rows.
void sizeTable(FormState& s, const std::string& grid, int rows, bool numbered);

}  // namespace morve
