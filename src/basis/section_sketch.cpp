#include "basis/section_sketch.h"

namespace morve {

Drawing rectangularSectionSketch() {
    // A 20 x 40 section drawn in its own centimetres, with room for the labels.
    Drawing g;
    g.unit = DrawingUnit::Centimetre;
    g.left = -9;
    g.top = -5;
    g.right = 33;
    g.bottom = 47;
    g.rectangle({0, 0}, {20, 40}, colours::black, 2);
    g.rectangle({0, 0}, {20, 40}, colours::lightGrey, 1, true);
    g.rectangle({0, 0}, {20, 40}, colours::black, 2);
    g.as(ShapeKind::Bars);
    for (double x : {4.0, 10.0, 16.0}) {
        g.circle({x, 4}, 1.2, colours::blue, true);
        g.circle({x, 36}, 1.6, colours::red, true);
    }
    g.text({10, 8.5}, "A's", 9, TextAlign::Centre, colours::blue);
    g.text({10, 32}, "As", 9, TextAlign::Centre, colours::red);
    g.dimension({0, 43}, {20, 43}, "b", 0, 2.5);
    g.dimension({-4, 0}, {-4, 40}, "h", -2.5, 0);
    g.dimension({24, 0}, {24, 36}, "d", 2.5, 0);
    g.dimension({29, 0}, {29, 4}, "d'", 2.8, 0);
    return g;
}

}  // namespace morve
