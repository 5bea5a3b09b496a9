#pragma once
// The steps of `morve --screenshots`: a module opened from the menu, a case typed
// into its boxes and tables as a user would leave it, its buttons pressed, and a
// window saved as a picture. What the pictures show is chosen per family in
// screenshot_modules.cpp.
#include <QString>

#include <string>
#include <vector>

#include "app/form_state.h"

class QWidget;

namespace morve {

class ModuleHost;
class MorveApp;

void settle();
bool save(QWidget* w, const QString& folder, const char* name);

// A case typed into a module as the user would leave it: boxes and lists by
// their text ("Text5", or "Form13b.Text1" on a companion), grid cells by row.
struct Entry {
    std::string control;
    std::string text;
};
struct Cell {
    std::string grid;
    std::size_t row;
    std::string count;
};

// Puts the entries in the module's boxes and shows them in its open windows.
void fill(ModuleHost& host, const std::vector<Entry>& entries, const std::vector<Cell>& cells = {});
// Whole rows of a module's tables, then the windows show them.
void fillRows(ModuleHost& host, const std::string& grid, const GridRows& rows);
// Rows typed without their number: the number column is filled in order.
void fillDataRows(ModuleHost& host, const std::string& grid, const std::vector<std::vector<std::string>>& rows);
// A command as its button gives it: "Command1" on the main screen, "Form8.Command3"
// on a companion.
void press(ModuleHost& host, const std::string& command);
// Keys typed into a cell of a table, as a user types them: the first opens the
// cell's editor, Enter closes it.
void typeCell(ModuleHost& host, const std::string& grid, int row, int column, const QString& keys);
bool saveScreen(ModuleHost& host, const std::string& screen, const QString& folder, const char* name);
ModuleHost* open(MorveApp& app, const std::string& key);

// The pictures of each family of modules; false when one could not be taken.
bool beamShots(MorveApp& app, const QString& folder);
bool continuousShots(MorveApp& app, const QString& folder);
bool columnShots(MorveApp& app, const QString& folder);
bool slabShots(MorveApp& app, const QString& folder);
bool flatSlabShots(MorveApp& app, const QString& folder);
bool obliqueShots(MorveApp& app, const QString& folder);
bool stairShots(MorveApp& app, const QString& folder);
bool frameShots(MorveApp& app, const QString& folder);

}  // namespace morve
