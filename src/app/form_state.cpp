#include "app/form_state.h"

#include <algorithm>

#include "app/numbers.h"

namespace morve {

namespace {
const std::string kEmpty;
const GridRows kNoRows;
constexpr const char* kTrue = "True";
}  // namespace

FormState::FormState(std::string mainScreen, const std::vector<ScreenDecl>& screens)
    : main_(std::move(mainScreen)), screens_(screens) {
    for (const auto& screen : screens_) {
        for (const auto& c : screen.controls) {
            std::string q = screen.name + "." + c.name;
            if (c.kind == ControlKind::Grid) {
                GridRows rows{c.grid.header};
                for (int r = 1; r <= c.grid.rows; ++r) {
                    std::vector<std::string> row(c.grid.header.size());
                    if (!row.empty() && c.grid.firstColumnLocked) row[0] = std::to_string(r);
                    rows.push_back(std::move(row));
                }
                grids_[q] = std::move(rows);
            } else if (c.kind == ControlKind::Option || c.kind == ControlKind::Check) {
                texts_[q] = c.checked ? kTrue : "";
            } else if (c.kind == ControlKind::Command || c.kind == ControlKind::Picture ||
                       c.kind == ControlKind::Chart ||
                       c.kind == ControlKind::Label) {
                // no text of their own
            } else {
                if (c.kind == ControlKind::List) items_[q] = c.items;
                texts_[q] = c.text;
            }
            if (!c.enabled) disabled_.insert(q);
            if (!c.visible) hidden_.insert(q);
        }
    }
}

std::string FormState::qualify(const std::string& name) const {
    if (name.rfind("Form", 0) == 0) {
        auto dot = name.find('.');
        if (dot != std::string::npos) return name;
    }
    return main_ + "." + name;
}

const ControlDecl* FormState::declaration(const std::string& name) const {
    std::string q = qualify(name);
    auto dot = q.find('.');
    std::string screen = q.substr(0, dot), control = q.substr(dot + 1);
    for (const auto& s : screens_)
        if (s.name == screen) return s.find(control);
    return nullptr;
}

bool FormState::has(const std::string& name) const { return declaration(name) != nullptr; }

const std::string& FormState::text(const std::string& name) const {
    auto it = texts_.find(qualify(name));
    return it == texts_.end() ? kEmpty : it->second;
}

void FormState::setText(const std::string& name, std::string value) {
    texts_[qualify(name)] = std::move(value);
}

double FormState::number(const std::string& name) const { return readNumber(text(name)); }

bool FormState::option(const std::string& name) const { return text(name) == kTrue; }

void FormState::setOption(const std::string& name, bool on) {
    std::string q = qualify(name);
    if (on) {
        if (const ControlDecl* d = declaration(q); d && !d->group.empty()) {
            std::string screen = q.substr(0, q.find('.'));
            for (const auto& s : screens_)
                if (s.name == screen)
                    for (const auto& c : s.controls)
                        if (c.kind == ControlKind::Option && c.group == d->group)
                            texts_[screen + "." + c.name] = "";
        }
    }
    texts_[q] = on ? kTrue : "";
}

const std::vector<std::string>& FormState::items(const std::string& name) const {
    static const std::vector<std::string> kNone;
    auto it = items_.find(qualify(name));
    return it == items_.end() ? kNone : it->second;
}

void FormState::setItems(const std::string& name, std::vector<std::string> items) {
    const std::string q = qualify(name);
    if (std::find(items.begin(), items.end(), text(q)) == items.end()) texts_[q] = "";
    items_[q] = std::move(items);
}

int FormState::selectedIndex(const std::string& name) const {
    const std::vector<std::string>& all = items(name);
    auto it = std::find(all.begin(), all.end(), text(name));
    return it == all.end() ? -1 : static_cast<int>(it - all.begin());
}

const GridRows& FormState::grid(const std::string& name) const {
    auto it = grids_.find(qualify(name));
    return it == grids_.end() ? kNoRows : it->second;
}

GridRows& FormState::grid(const std::string& name) { return grids_[qualify(name)]; }

void FormState::resizeGrid(const std::string& name, std::size_t rows) {
    const ControlDecl* decl = declaration(name);
    GridRows& grid = grids_[qualify(name)];
    if (grid.empty()) grid.push_back(decl ? decl->grid.header : std::vector<std::string>{});
    const std::size_t columns = grid.front().size();
    grid.resize(rows + 1);
    for (std::size_t r = 1; r < grid.size(); ++r) {
        grid[r].resize(columns);
        if (decl && decl->grid.firstColumnLocked && columns > 0) grid[r][0] = std::to_string(r);
    }
}

const std::string& FormState::cell(const std::string& name, int row, int column) const {
    const GridRows& rows = grid(name);
    if (row < 0 || column < 0 || row >= static_cast<int>(rows.size())) return kEmpty;
    const auto& r = rows[static_cast<std::size_t>(row)];
    if (column >= static_cast<int>(r.size())) return kEmpty;
    return r[static_cast<std::size_t>(column)];
}

double FormState::cellNumber(const std::string& name, int row, int column) const {
    return readNumber(cell(name, row, column));
}

bool FormState::enabled(const std::string& name) const { return !disabled_.count(qualify(name)); }

void FormState::setEnabled(const std::string& name, bool on) {
    if (on)
        disabled_.erase(qualify(name));
    else
        disabled_.insert(qualify(name));
}

bool FormState::visible(const std::string& name) const { return !hidden_.count(qualify(name)); }

void FormState::setVisible(const std::string& name, bool on) {
    if (on)
        hidden_.erase(qualify(name));
    else
        hidden_.insert(qualify(name));
}

const std::string& FormState::var(const std::string& name) const {
    auto it = vars_.find(name);
    return it == vars_.end() ? kEmpty : it->second;
}

void FormState::setVar(const std::string& name, std::string value) { vars_[name] = std::move(value); }

}  // namespace morve
