#pragma once
// Screens declared as data. A module says what its windows hold; the desktop
// front end builds every window from this, and the case runner checks names
// against it. Layout is told coarsely: frames sit in a grid of cells, controls
// stand in their frame in the order declared.
#include <string>
#include <vector>

#include "app/key_filters.h"

namespace morve {

enum class ControlKind {
    TextBox,    // typed input
    ResultBox,  // written by the calculation, locked for typing
    Label,      // a fixed text
    List,       // fixed items, the value is the selected item's text
    Option,     // one of a group
    Check,
    Grid,       // rows of cells; row 0 is the header
    Picture,    // a Drawing from the module
    Chart,      // an XY chart from the module
    Command,    // a button
};

struct GridDecl {
    std::vector<std::string> header;  // the captions of row 0
    int rows = 0;                     // data rows shown at first
    int maxRows = 0;                  // the module's own limit, 0 for none
    KeyFilter filter = KeyFilter::PositiveNumber;
    bool firstColumnLocked = true;    // column 0 numbers the rows
    bool results = false;             // filled by a calculation, not typed
    // Where columns differ (a node number beside a stiffness), each column's own
    // filter in order; columns past the list take `filter`.
    std::vector<KeyFilter> columnFilters;

    KeyFilter filterOf(int column) const;
};

struct ControlDecl {
    std::string name;     // "Text1", "List6", "Command3", "Grade1", "Picture1"
    ControlKind kind = ControlKind::TextBox;
    std::string frame;    // the frame it stands in, empty for the window itself
    std::string caption;  // label before a box, text of a button, option or label
    std::string unit;     // shown after a box
    std::string text;     // default text (a list's default selection, "" for none)
    KeyFilter filter = KeyFilter::None;
    std::vector<std::string> items;  // list items
    std::string group;               // option group
    bool checked = false;            // option or check default
    GridDecl grid;
    std::string toolTip;
    bool enabled = true;
    bool visible = true;
    int width = 0;  // characters for a box, pixels for a picture (0: the usual)
    int height = 0; // pixels for a picture, rows for a list
    bool sameRow = false;  // stands on the row of the control declared before it
};

struct FrameDecl {
    std::string name;     // "Frame1"
    std::string caption;  // "" for a frame without a title
    int row = 0, column = 0, rowSpan = 1, columnSpan = 1;
};

struct ScreenDecl {
    std::string name;             // "Form7"
    std::string title = " MORVE";  // the window title
    std::string heading;          // the text inside the window naming the module
    bool toolbar = false;         // the seven-button toolbar of module windows
    std::vector<FrameDecl> frames;
    std::vector<ControlDecl> controls;
    std::string escape;  // the command Esc presses, when it is not the screen's "&Voltar"

    const ControlDecl* find(const std::string& control) const;
};

// Reads like the screen it declares: frames first, then the controls that go
// into the current frame.
class ScreenBuilder {
public:
    ScreenBuilder(std::string name, std::string heading, bool toolbar = true);

    ScreenBuilder& frame(std::string name, std::string caption, int row, int column,
                         int rowSpan = 1, int columnSpan = 1);
    ScreenBuilder& box(std::string name, std::string caption, std::string text = "",
                       std::string unit = "", KeyFilter filter = KeyFilter::PositiveNumber);
    ScreenBuilder& result(std::string name, std::string caption, std::string unit = "");
    ScreenBuilder& label(std::string name, std::string caption);
    ScreenBuilder& list(std::string name, std::string caption, std::vector<std::string> items,
                        std::string selected = "");
    ScreenBuilder& option(std::string name, std::string caption, std::string group,
                          bool checked = false);
    ScreenBuilder& check(std::string name, std::string caption, bool checked = false);
    ScreenBuilder& grid(std::string name, GridDecl grid);
    ScreenBuilder& picture(std::string name, int width, int height);
    ScreenBuilder& chart(std::string name, int width, int height);
    ScreenBuilder& command(std::string name, std::string caption, std::string toolTip = "");
    // Adjust the control declared last.
    ScreenBuilder& tip(std::string toolTip);
    ScreenBuilder& disabled();
    ScreenBuilder& hidden();
    ScreenBuilder& width(int w);
    ScreenBuilder& rows(int n);  // the rows a list shows
    // The control declared last stands on the row of the one before it, so that a
    // phrase made of several boxes ("SOLUÇÃO: n barras de φ mm") reads as one line.
    ScreenBuilder& sameRow();
    // Esc presses the command declared last: the way back of a screen that calls it "OK".
    ScreenBuilder& escape();

    ScreenDecl build() const { return screen_; }

private:
    ControlDecl& add(ControlDecl c);
    ScreenDecl screen_;
    std::string frame_;
};

}  // namespace morve
