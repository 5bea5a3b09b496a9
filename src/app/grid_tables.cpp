#include "app/grid_tables.h"

#include <algorithm>
#include <cmath>

namespace morve {

int dataRows(const FormState& s, const std::string& grid) {
    return std::max(0, static_cast<int>(s.grid(grid).size()) - 1);
}

int countIn(const FormState& s, const std::string& box) {
    const double value = s.number(box);
    if (!(std::abs(value) < 1e6)) return value < 0 ? -1000000 : 1000000;
    return static_cast<int>(std::trunc(value));
}

void sizeTable(FormState& s, const std::string& grid, int rows, bool numbered) {
    GridRows& g = s.grid(grid);
    const std::size_t columns = s.declaration(grid)->grid.header.size();
    if (g.empty()) g.push_back(s.declaration(grid)->grid.header);
    g.resize(static_cast<std::size_t>(std::max(0, rows)) + 1, std::vector<std::string>(columns, " "));
    for (std::size_t r = 1; r < g.size(); ++r) {
        g[r].resize(columns, " ");
        if (numbered) g[r][0] = std::to_string(r);
    }
}

}  // namespace morve
