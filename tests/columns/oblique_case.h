#pragma once
// A polygonal column module with its counts and coordinate tables filled.
#include <cmath>
#include <vector>

#include "column_case.h"

namespace morve::testing {

using Rows = std::vector<std::vector<double>>;

struct ObliqueCase {
    std::string module;
    std::map<std::string, std::string> set;
    Rows vertices, bars;  // x, y (and the area of a bar)

    ColumnCase::Run press(const std::string& command = "") const {
        ColumnCase c{module, set, {}, {}};
        c.set.emplace("Text4", std::to_string(vertices.size()));
        c.set.emplace("Text5", std::to_string(bars.size()));
        c.grids = {{module + "b.Grade1", numbered(vertices)}, {module + "b.Grade2", numbered(bars)}};
        return c.press(command);
    }

    static GridRows numbered(const Rows& rows) {
        GridRows out;
        for (std::size_t i = 0; i < rows.size(); ++i) {
            out.push_back({std::to_string(i + 1)});
            for (double v : rows[i]) out.back().push_back(formatPlain(v));
        }
        return out;
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
