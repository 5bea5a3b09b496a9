#include "columns/situation_diagram.h"

#include <algorithm>
#include <cmath>

#include "app/numbers.h"
#include "numeric/elementary.h"

namespace morve {

namespace {

// The plot is drawn in a square of 100 units, y upwards (negative on the surface).
constexpr double kSide = 100;

void arrow(Drawing& g, Point from, Point to, Colour c = colours::black) {
    g.line(from, to, c, 1.5);
    const double dx = to.x - from.x, dy = to.y - from.y, n = portable::hypot(dx, dy);
    if (n == 0) return;
    const double ux = dx / n, uy = dy / n, s = 3;
    g.polyline({{to.x - s * ux - s * 0.5 * uy, to.y - s * uy + s * 0.5 * ux},
                to,
                {to.x - s * ux + s * 0.5 * uy, to.y - s * uy - s * 0.5 * ux}},
               false, c, 1.5);
}

}  // namespace

std::vector<SituationPoint> situationPoints(const FormState& s) {
    const double hx = s.number("Form35.Text5"), hy = s.number("Form35.Text6");
    std::vector<SituationPoint> points;
    if (hx == 0 || hy == 0) return points;
    const GridRows& grid = s.grid("Form35c.Grade1");
    for (int row = 1; row < static_cast<int>(grid.size()); ++row) {
        SituationPoint p;
        p.x = s.cellNumber("Form35c.Grade1", row, 1) / hx;
        p.y = s.cellNumber("Form35c.Grade1", row, 2) / hy;
        p.radius = formatResult(std::sqrt(p.x * p.x + p.y * p.y));
        points.push_back(p);
    }
    return points;
}

Drawing situationDiagram(const FormState& state) {
    const std::vector<SituationPoint> points = situationPoints(state);
    Drawing g;
    g.left = -24;
    g.right = 135;
    g.top = -122;
    g.bottom = 24;
    if (points.empty()) return g;
    double range = 0;
    for (const auto& p : points) range = std::max({range, std::fabs(p.x), std::fabs(p.y)});
    if (range == 0) range = 1;

    // A chart of eccentricities relative to the sides: no length, all of it diagram.
    g.as(ShapeKind::Diagrams);
    arrow(g, {0, 0}, {1.12 * kSide, 0});
    arrow(g, {0, 0}, {0, -1.12 * kSide});
    g.text({1.14 * kSide, 4}, "ex/hx", 9);
    g.text({3, -1.15 * kSide}, "ey/hy", 9);
    g.text({-3, 8}, "0", 8, TextAlign::Right);
    for (int k = 1; k <= 5; ++k) {
        const double at = kSide * k / 5;
        const std::string value = formatResult(range * k / 5);
        g.line({at, -1.5}, {at, 1.5});
        g.text({at, 8}, value, 8, TextAlign::Centre);
        g.line({-1.5, -at}, {1.5, -at});
        g.text({-3, -at}, value, 8, TextAlign::Right);
    }
    for (const auto& p : points) {
        const Point at{kSide * p.x / range, -kSide * p.y / range};
        g.circle(at, 1.6, colours::red, true);
        g.text({at.x + 3, at.y - 4.5}, "(R=" + p.radius + ")", 8, TextAlign::Left, colours::blue);
    }
    return g;
}

Drawing sectionTypesDrawing() {
    Drawing g;
    g.unit = DrawingUnit::Centimetre;
    g.left = -5;
    g.right = 125;
    g.top = -8;
    g.bottom = 52;
    auto axes = [&](Point centre) {
        g.as(ShapeKind::Dimensions);
        arrow(g, centre, {centre.x + 16, centre.y}, colours::blue);
        arrow(g, centre, {centre.x, centre.y - 16}, colours::blue);
        g.text({centre.x + 17, centre.y + 1}, "x", 9, TextAlign::Left, colours::blue);
        g.text({centre.x + 1, centre.y - 17}, "y", 9, TextAlign::Left, colours::blue);
        g.as(ShapeKind::Outline);
    };
    // Rectangle hx by hy.
    g.rectangle({0, 5}, {30, 40}, colours::black, 2);
    g.dimension({0, 45}, {30, 45}, "hx", 0, 4);
    g.dimension({-2, 5}, {-2, 40}, "hy", -3, 0);
    axes({15, 22.5});
    // An L section.
    g.polyline({{45, 5}, {55, 5}, {55, 30}, {75, 30}, {75, 40}, {45, 40}}, true, colours::black, 2);
    g.dimension({45, 45}, {75, 45}, "hx", 0, 4);
    axes({55, 30});
    // A circle.
    g.circle({105, 22.5}, 16, colours::black, false, 2);
    g.dimension({89, 45}, {121, 45}, "hx = hy", 0, 4);
    axes({105, 22.5});
    return g;
}

}  // namespace morve
