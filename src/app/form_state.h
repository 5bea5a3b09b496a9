#pragma once
// The live content of a module's screens: the only case data there is. Controls
// are addressed as "Form8.List1"; a name without a screen means the module's main
// screen. A list's text is its selected item, an option's text is "True" or "".
// A list starts with its declared items; a module may give it others at run time
// (the bars of a calculated frame).
#include <map>
#include <set>
#include <string>
#include <vector>

#include "app/screen.h"

namespace morve {

using GridRows = std::vector<std::vector<std::string>>;

class FormState {
public:
    FormState() = default;
    // Every control of the screens with its declared default, enabling and visibility.
    FormState(std::string mainScreen, const std::vector<ScreenDecl>& screens);

    const std::string& mainScreen() const { return main_; }
    std::string qualify(const std::string& name) const;

    bool has(const std::string& name) const;
    const ControlDecl* declaration(const std::string& name) const;

    const std::string& text(const std::string& name) const;
    void setText(const std::string& name, std::string value);
    double number(const std::string& name) const;

    // Options: checking one clears the others of its group.
    bool option(const std::string& name) const;
    void setOption(const std::string& name, bool on);

    // Lists: the items shown now, and the place of the selected one (-1 for none).
    const std::vector<std::string>& items(const std::string& name) const;
    // New items keep the selection when it is still one of them, and clear it otherwise.
    void setItems(const std::string& name, std::vector<std::string> items);
    int selectedIndex(const std::string& name) const;

    // Grids: row 0 is the header.
    const GridRows& grid(const std::string& name) const;
    GridRows& grid(const std::string& name);
    // The grid takes this many data rows, as when its count box grows or shrinks:
    // the cells typed in the rows that stay are kept, new rows come empty (numbered
    // when column 0 numbers the rows), and every row has a cell per column.
    void resizeGrid(const std::string& name, std::size_t rows);
    const std::string& cell(const std::string& name, int row, int column) const;
    double cellNumber(const std::string& name, int row, int column) const;

    bool enabled(const std::string& name) const;
    void setEnabled(const std::string& name, bool on);
    bool visible(const std::string& name) const;
    void setVisible(const std::string& name, bool on);

    // Module-level values that no box shows (the class of aggressiveness kept for
    // the detailing, a grid's stale mark, ...).
    const std::string& var(const std::string& name) const;
    void setVar(const std::string& name, std::string value);

    const std::map<std::string, std::string>& texts() const { return texts_; }
    const std::map<std::string, GridRows>& grids() const { return grids_; }
    const std::vector<ScreenDecl>& screens() const { return screens_; }
    // The qualified controls and frames disabled or hidden now.
    const std::set<std::string>& disabledNames() const { return disabled_; }
    const std::set<std::string>& hiddenNames() const { return hidden_; }

private:
    std::string main_;
    std::vector<ScreenDecl> screens_;
    std::map<std::string, std::string> texts_;
    std::map<std::string, GridRows> grids_;
    std::map<std::string, std::vector<std::string>> items_;
    std::set<std::string> disabled_, hidden_;
    std::map<std::string, std::string> vars_;
};

}  // namespace morve
