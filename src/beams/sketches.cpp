#include "beams/sketches.h"

namespace morve {

namespace {

// The outline of a 40 cm high section in its own centimetres: a 20 cm rectangle,
// or a T with a 40 cm flange 8 cm thick over a 14 cm web. Returns the web's edges.
std::pair<double, double> outline(Drawing& g, bool tee) {
    if (!tee) {
        g.rectangle({0, 0}, {20, 40}, colours::lightGrey, 1, true);
        g.rectangle({0, 0}, {20, 40}, colours::black, 2);
        return {0, 20};
    }
    const std::vector<Point> t{{0, 0}, {40, 0}, {40, 8}, {27, 8}, {27, 40}, {13, 40}, {13, 8}, {0, 8}};
    g.polyline(t, true, colours::lightGrey, 1, true);
    g.polyline(t, true, colours::black, 2);
    return {13, 27};
}

void frameTo(Drawing& g, double width) {
    g.unit = DrawingUnit::Centimetre;
    g.left = -9;
    g.top = -6;
    g.right = width + 13;
    g.bottom = 47;
}

}  // namespace

Drawing teeSectionSketch() {
    Drawing g;
    frameTo(g, 40);
    auto [left, right] = outline(g, true);
    g.as(ShapeKind::Bars);
    for (double x : {left + 3, (left + right) / 2, right - 3}) {
        g.circle({x, 4}, 1.0, colours::blue, true);
        g.circle({x, 36}, 1.4, colours::red, true);
    }
    g.text({20, 11.5}, "A's", 9, TextAlign::Centre, colours::blue);
    g.text({20, 32}, "As", 9, TextAlign::Centre, colours::red);
    g.dimension({0, -3}, {40, -3}, "bf", 0, -2);
    g.dimension({-3, 0}, {-3, 8}, "hf", -3, 0);
    g.dimension({left, 43}, {right, 43}, "bw", 0, 2.5);
    g.dimension({-6, 0}, {-6, 40}, "h", -2, 0);
    g.dimension({44, 0}, {44, 36}, "d", 2.5, 0);
    g.dimension({49, 0}, {49, 4}, "d'", 2.8, 0);
    return g;
}

Drawing layeredSectionSketch(bool tee) {
    Drawing g;
    const double width = tee ? 40 : 20;
    frameTo(g, width);
    auto [left, right] = outline(g, tee);
    const double depths[] = {36, 31};
    g.as(ShapeKind::Bars);
    for (double y : depths)
        for (double x : {left + 3, (left + right) / 2, right - 3}) g.circle({x, y}, 1.3, colours::red, true);
    g.text({(left + right) / 2, 27}, "As2", 9, TextAlign::Centre, colours::red);
    g.text({right + 1, 38}, "As1", 9, TextAlign::Left, colours::red);
    if (tee) {
        g.dimension({0, -3}, {40, -3}, "bf", 0, -2);
        g.dimension({-3, 0}, {-3, 8}, "hf", -3, 0);
        g.dimension({left, 43}, {right, 43}, "bw", 0, 2.5);
    } else {
        g.dimension({0, 43}, {20, 43}, "b", 0, 2.5);
    }
    g.dimension({width + 4, 0}, {width + 4, 36}, "d1", 3, 0);
    g.dimension({width + 9, 0}, {width + 9, 31}, "d2", 3, 0);
    return g;
}

}  // namespace morve
