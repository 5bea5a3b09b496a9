// The pictures of the flat slab: a surface over the floor seen at an angle, and
// the floor in plan with its columns.
#include <algorithm>
#include <cmath>

#include "app/numbers.h"
#include "numeric/elementary.h"
#include "slabs/flat_slab.h"

namespace morve {

namespace {

constexpr double kPi = 3.14159265358979323846;
constexpr int kS = kFlatSamples;

struct SurfaceStyle {
    const char* title;
    const char* legend;
    double upwards;  // +1: drawn up; -1: drawn down, as a slab sags
};

SurfaceStyle styleOf(FlatQuantity q) {
    switch (q) {
        case FlatQuantity::Mx: return {"MOMENTOS FLETORES SEGUNDO A DIREÇÃO X", "Momentos Mx em kNm/m", 1};
        case FlatQuantity::My: return {"MOMENTOS FLETORES SEGUNDO A DIREÇÃO Y", "Momentos My em kNm/m", 1};
        case FlatQuantity::Mxy: return {"MOMENTOS TORÇORES", "Momentos Mxy em kNm/m", 1};
        case FlatQuantity::Deflection: return {"FLECHAS DA LAJE", "Flechas em mm", -1};
    }
    return {"", "", 1};
}

const FlatSurface& surfaceOf(const FlatResults& r, FlatQuantity q) {
    switch (q) {
        case FlatQuantity::Mx: return r.mx;
        case FlatQuantity::My: return r.my;
        case FlatQuantity::Mxy: return r.mxy;
        case FlatQuantity::Deflection: return r.w;
    }
    return r.mx;
}

}  // namespace

Drawing flatSurfaceDrawing(const FlatResults& r, FlatQuantity quantity, double lx, double ly) {
    const SurfaceStyle style = styleOf(quantity);
    const FlatSurface& f = surfaceOf(r, quantity);
    Drawing g;
    g.left = 0;
    g.top = 0;
    g.right = 1000;
    g.bottom = 760;
    g.text({500, 24}, style.title, 11, TextAlign::Centre);
    g.text({500, 52}, style.legend, 9, TextAlign::Centre);

    // The floor keeps its proportions; the x axis runs down to the right at 30
    // degrees, the y axis up to the right at 45, heights go up the page.
    const double span = std::max(lx, ly);
    const double ux = span > 0 ? lx / span : 1, vy = span > 0 ? ly / span : 1;
    const double largest = std::max(std::abs(f.max), std::abs(f.min));
    const double rise = largest > 0 ? 0.35 * style.upwards / largest : 0;
    const double c30 = portable::cos(kPi / 6), s30 = portable::sin(kPi / 6), c45 = portable::cos(kPi / 4);
    auto raw = [&](double u, double v, double value) {
        return Point{u * c30 + v * c45, u * s30 - v * c45 - value * rise};
    };
    std::vector<Point> pts;
    pts.reserve(kS * kS);
    for (int i = 0; i < kS; ++i)
        for (int j = 0; j < kS; ++j)
            pts.push_back(raw(ux * i / (kS - 1), vy * j / (kS - 1), f.at[i][j]));
    for (double u : {0.0, ux})
        for (double v : {0.0, vy}) pts.push_back(raw(u, v, 0));
    double x0 = pts[0].x, x1 = x0, y0 = pts[0].y, y1 = y0;
    for (const Point& p : pts) {
        x0 = std::min(x0, p.x), x1 = std::max(x1, p.x);
        y0 = std::min(y0, p.y), y1 = std::max(y1, p.y);
    }
    // Nine tenths of the picture's width, less where the height would not fit.
    const double boxLeft = 50, boxTop = 90, boxWidth = 900, boxHeight = 600;
    const double scale = std::min(boxWidth / std::max(x1 - x0, 1e-9), boxHeight / std::max(y1 - y0, 1e-9));
    const double dx = boxLeft + (boxWidth - (x1 - x0) * scale) / 2, dy = boxTop + (boxHeight - (y1 - y0) * scale) / 2;
    auto place = [&](Point p) { return Point{dx + (p.x - x0) * scale, dy + (p.y - y0) * scale}; };
    auto at = [&](int i, int j) { return place(pts[static_cast<std::size_t>(i * kS + j)]); };

    // The floor's outline under the surface.
    const Point o = place(raw(0, 0, 0)), ex = place(raw(ux, 0, 0)), ey = place(raw(0, vy, 0)),
                exy = place(raw(ux, vy, 0));
    g.polyline({o, ex, exy, ey}, true, colours::grey);

    // The cells from the back of the picture to its front: each covers what it
    // hides of the cells behind.
    struct Cell {
        int i, j;
        double depth;
    };
    std::vector<Cell> cells;
    for (int i = 0; i + 1 < kS; ++i)
        for (int j = 0; j + 1 < kS; ++j) cells.push_back({i, j, (i + 0.5) * ux * s30 - (j + 0.5) * vy * c45});
    std::stable_sort(cells.begin(), cells.end(), [](const Cell& a, const Cell& b) { return a.depth < b.depth; });
    const Colour white{255, 255, 255}, ink{0, 0, 150};
    // Heights are values, not lengths: the picture has no unit.
    g.as(ShapeKind::Diagrams);
    for (const Cell& c : cells) {
        std::vector<Point> quad{at(c.i, c.j), at(c.i + 1, c.j), at(c.i + 1, c.j + 1), at(c.i, c.j + 1)};
        g.polyline(quad, true, white, 1, true);
        g.polyline(quad, true, ink, 1);
    }
    // The axes' names after the surface, which would cover the one in front.
    g.text({ex.x + 12, ex.y + 12}, "X", 10);
    g.text({ey.x - 16, ey.y - 6}, "Y", 10);

    g.text({60, 720}, "Máximo = " + formatResult(f.max, 2), 9);
    g.text({60, 744}, "Mínimo = " + formatResult(f.min, 2), 9);
    return g;
}

Drawing flatFloorDrawing(const FlatSlab& slab, const std::vector<double>& loads) {
    // Metres, y up the page as the floor is drawn on a plan.
    const double lx = slab.a / 100, ly = slab.b / 100;
    const double margin = 0.2 * std::max(lx, ly);
    Drawing g;
    g.unit = DrawingUnit::Metre;
    g.left = -margin;
    g.top = -margin;
    g.right = lx + margin;
    g.bottom = ly + margin;
    auto plan = [&](double x, double y) { return Point{x, ly - y}; };
    g.rectangle(plan(0, ly), plan(lx, 0), colours::black, 3);
    const double off = 0.3 * margin;
    g.dimension({0, ly + off}, {lx, ly + off}, "lx = " + formatPlain(lx) + " m", 0, 0.2 * margin);
    g.dimension({-off, 0}, {-off, ly}, "ly = " + formatPlain(ly) + " m", -0.4 * margin, 0);
    for (std::size_t k = 0; k < slab.columns.size(); ++k) {
        const FlatColumn& c = slab.columns[k];
        const double x = c.x / 100, y = c.y / 100, hx = c.hx / 200, hy = c.hy / 200;
        g.rectangle(plan(x - hx, y + hy), plan(x + hx, y - hy), colours::grey, 1, true);
        // Built by appending: GCC 12 warns falsely (-Wrestrict) of "P" + to_string(...).
        std::string label = "P";
        label += std::to_string(k + 1);
        if (k < loads.size()) label += " (" + formatResult(loads[k], 2) + " kN)";
        g.text({x + hx + 0.02 * margin, ly - y - hy - 0.1 * margin}, label, 8);
    }
    return g;
}

}  // namespace morve
