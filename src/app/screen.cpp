#include "app/screen.h"

namespace morve {

const ControlDecl* ScreenDecl::find(const std::string& control) const {
    for (const auto& c : controls)
        if (c.name == control) return &c;
    return nullptr;
}

KeyFilter GridDecl::filterOf(int column) const {
    if (column >= 0 && static_cast<std::size_t>(column) < columnFilters.size())
        return columnFilters[static_cast<std::size_t>(column)];
    return filter;
}

ScreenBuilder::ScreenBuilder(std::string name, std::string heading, bool toolbar) {
    screen_.name = std::move(name);
    screen_.heading = std::move(heading);
    screen_.toolbar = toolbar;
}

ScreenBuilder& ScreenBuilder::frame(std::string name, std::string caption, int row, int column,
                                    int rowSpan, int columnSpan) {
    frame_ = name;
    screen_.frames.push_back({std::move(name), std::move(caption), row, column, rowSpan, columnSpan});
    return *this;
}

ControlDecl& ScreenBuilder::add(ControlDecl c) {
    c.frame = frame_;
    screen_.controls.push_back(std::move(c));
    return screen_.controls.back();
}

ScreenBuilder& ScreenBuilder::box(std::string name, std::string caption, std::string text,
                                  std::string unit, KeyFilter filter) {
    ControlDecl c;
    c.name = std::move(name);
    c.caption = std::move(caption);
    c.text = std::move(text);
    c.unit = std::move(unit);
    c.filter = filter;
    add(std::move(c));
    return *this;
}

ScreenBuilder& ScreenBuilder::result(std::string name, std::string caption, std::string unit) {
    ControlDecl c;
    c.kind = ControlKind::ResultBox;
    c.name = std::move(name);
    c.caption = std::move(caption);
    c.unit = std::move(unit);
    add(std::move(c));
    return *this;
}

ScreenBuilder& ScreenBuilder::label(std::string name, std::string caption) {
    ControlDecl c;
    c.kind = ControlKind::Label;
    c.name = std::move(name);
    c.caption = std::move(caption);
    add(std::move(c));
    return *this;
}

ScreenBuilder& ScreenBuilder::list(std::string name, std::string caption,
                                   std::vector<std::string> items, std::string selected) {
    ControlDecl c;
    c.kind = ControlKind::List;
    c.name = std::move(name);
    c.caption = std::move(caption);
    c.items = std::move(items);
    c.text = std::move(selected);
    add(std::move(c));
    return *this;
}

ScreenBuilder& ScreenBuilder::option(std::string name, std::string caption, std::string group,
                                     bool checked) {
    ControlDecl c;
    c.kind = ControlKind::Option;
    c.name = std::move(name);
    c.caption = std::move(caption);
    c.group = std::move(group);
    c.checked = checked;
    add(std::move(c));
    return *this;
}

ScreenBuilder& ScreenBuilder::check(std::string name, std::string caption, bool checked) {
    ControlDecl c;
    c.kind = ControlKind::Check;
    c.name = std::move(name);
    c.caption = std::move(caption);
    c.checked = checked;
    add(std::move(c));
    return *this;
}

ScreenBuilder& ScreenBuilder::grid(std::string name, GridDecl grid) {
    ControlDecl c;
    c.kind = ControlKind::Grid;
    c.name = std::move(name);
    c.grid = std::move(grid);
    c.filter = c.grid.filter;
    add(std::move(c));
    return *this;
}

ScreenBuilder& ScreenBuilder::picture(std::string name, int width, int height) {
    ControlDecl c;
    c.kind = ControlKind::Picture;
    c.name = std::move(name);
    c.width = width;
    c.height = height;
    add(std::move(c));
    return *this;
}

ScreenBuilder& ScreenBuilder::chart(std::string name, int width, int height) {
    picture(std::move(name), width, height);
    screen_.controls.back().kind = ControlKind::Chart;
    return *this;
}

ScreenBuilder& ScreenBuilder::command(std::string name, std::string caption, std::string toolTip) {
    ControlDecl c;
    c.kind = ControlKind::Command;
    c.name = std::move(name);
    c.caption = std::move(caption);
    c.toolTip = std::move(toolTip);
    add(std::move(c));
    return *this;
}

ScreenBuilder& ScreenBuilder::tip(std::string toolTip) {
    screen_.controls.back().toolTip = std::move(toolTip);
    return *this;
}

ScreenBuilder& ScreenBuilder::disabled() {
    screen_.controls.back().enabled = false;
    return *this;
}

ScreenBuilder& ScreenBuilder::hidden() {
    screen_.controls.back().visible = false;
    return *this;
}

ScreenBuilder& ScreenBuilder::rows(int n) {
    screen_.controls.back().height = n;
    return *this;
}

ScreenBuilder& ScreenBuilder::width(int w) {
    screen_.controls.back().width = w;
    return *this;
}

ScreenBuilder& ScreenBuilder::escape() {
    if (!screen_.controls.empty()) screen_.escape = screen_.controls.back().name;
    return *this;
}

ScreenBuilder& ScreenBuilder::sameRow() {
    // The first control of a frame has no row before it to join.
    const auto& controls = screen_.controls;
    if (controls.size() > 1 && controls[controls.size() - 2].frame == controls.back().frame)
        screen_.controls.back().sameRow = true;
    return *this;
}

}  // namespace morve
