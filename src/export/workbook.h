#pragma once
// Results to a spreadsheet: an .xlsx workbook of a module's result boxes and
// tables, for the student who checks a design by hand or draws its diagrams in a
// spreadsheet. No Qt: morve-calc writes workbooks without the desktop's libraries.
#include <string>
#include <vector>

#include "app/form_state.h"

namespace morve {

// One sheet: its name and its rows, the first row the header. A cell that reads
// whole as a finite decimal is written as a number, any other as a text.
struct Sheet {
    std::string name;
    std::vector<std::vector<std::string>> rows;
};

// The whole result of a module: "Resultados" with every result box that shows a
// value (caption, value, unit), then one sheet per table with data rows, headed as
// on the screen.
std::vector<Sheet> resultSheets(const FormState& state);
// One table alone, for the context menu of a grid.
Sheet tableSheet(const FormState& state, const std::string& grid);

// Writes the workbook through a temporary file renamed over the target: the file
// on disk is the old one or the new one, never half. "" when done, else the text
// to show.
std::string writeWorkbook(const std::vector<Sheet>& sheets, const std::string& path);

// The value of a cell when it is a number: the whole text, blanks around it aside,
// is a finite decimal with ".".
bool cellNumber(const std::string& text, double& value);

}  // namespace morve
