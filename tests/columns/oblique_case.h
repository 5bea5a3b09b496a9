#pragma once
// A polygonal column module opened as from the menu, its counts and coordinate
// tables filled, a button pressed, and what the user was told.
#include <cmath>
#include <vector>

#include "column_case.h"

namespace morve::testing {

using Rows = std::vector<std::vector<double>>;

struct ObliqueCase {
    std::string module;
    std::map<std::string, std::string> set;
    Rows vertices, bars;  // x, y (and the area of a bar)
    std::vector<std::string> answers = {};

    ColumnCase::Run press(const std::string& command = "") const {
        ColumnCase c{module, set, {}, answers};
        c.set.emplace("Text4", std::to_string(vertices.size()));
        c.set.emplace("Text5", std::to_string(bars.size()));
        ColumnCase::Run r;
        const Module* m = ModuleRegistry::find(module);
        EXPECT_NE(m, nullptr) << module;
        r.session = std::make_unique<ModuleSession>(*m, StartDefaults{});
        FormState& s = r.session->state();
        for (const auto& [box, text] : c.set) s.setText(box, text);
        fill(s.grid(module + "b.Grade1"), vertices);
        fill(s.grid(module + "b.Grade2"), bars);
        ScriptedPrompter prompter(answers);
        r.outcome = r.session->press(command.empty() ? r.session->info().calculate : command, prompter);
        r.messages = prompter.messages();
        return r;
    }

    static void fill(GridRows& grid, const Rows& rows) {
        grid.resize(1);
        for (std::size_t i = 0; i < rows.size(); ++i) {
            std::vector<std::string> row{std::to_string(i + 1)};
            for (double v : rows[i]) row.push_back(formatPlain(v));
            grid.push_back(row);
        }
    }
};

// A b x h rectangle about its centre, counter-clockwise, and four bars d' in from
// its corners.
inline Rows rectangle(double b, double h) {
    return {{-b / 2, -h / 2}, {b / 2, -h / 2}, {b / 2, h / 2}, {-b / 2, h / 2}};
}
inline Rows cornerBars(double b, double h, double d) {
    const double x = b / 2 - d, y = h / 2 - d;
    return {{-x, -y}, {x, -y}, {x, y}, {-x, y}};
}

}  // namespace morve::testing
