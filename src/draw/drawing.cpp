#include "draw/drawing.h"

#include <cmath>

#include "numeric/elementary.h"

namespace morve {

Drawing& Drawing::line(Point a, Point b, Colour c, double width) {
    shapes.push_back({Line{a, b}, c, width, kind});
    return *this;
}

Drawing& Drawing::polyline(std::vector<Point> points, bool closed, Colour c, double width,
                           bool filled) {
    shapes.push_back({Polyline{std::move(points), closed, filled}, c, width, kind});
    return *this;
}

Drawing& Drawing::rectangle(Point a, Point b, Colour c, double width, bool filled) {
    return polyline({a, {b.x, a.y}, b, {a.x, b.y}}, true, c, width, filled);
}

Drawing& Drawing::circle(Point centre, double radius, Colour c, bool filled, double width) {
    shapes.push_back({Circle{centre, radius, filled}, c, width, kind});
    return *this;
}

Drawing& Drawing::text(Point at, std::string t, double size, TextAlign align, Colour c) {
    shapes.push_back({Label{at, std::move(t), size, align}, c, 1,
                      kind == ShapeKind::Dimensions ? ShapeKind::Dimensions : ShapeKind::Texts});
    return *this;
}

Drawing& Drawing::dimension(Point a, Point b, std::string label, double offsetX, double offsetY,
                            Colour c) {
    const ShapeKind before = kind;
    kind = ShapeKind::Dimensions;
    line(a, b, c);
    // Ticks across the dimension line, a fixed share of its length.
    double dx = b.x - a.x, dy = b.y - a.y;
    double len = portable::hypot(dx, dy);
    if (len > 0) {
        double tx = -dy / len * len * 0.04, ty = dx / len * len * 0.04;
        line({a.x - tx, a.y - ty}, {a.x + tx, a.y + ty}, c);
        line({b.x - tx, b.y - ty}, {b.x + tx, b.y + ty}, c);
    }
    text({(a.x + b.x) / 2 + offsetX, (a.y + b.y) / 2 + offsetY}, std::move(label), 9,
         TextAlign::Centre, c);
    kind = before;
    return *this;
}

}  // namespace morve
