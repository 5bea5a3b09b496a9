// "Ver seção": the outline of the section with its bars, in centimetres.
#include <algorithm>
#include <cmath>

#include "columns/column_form.h"
#include "columns/column_section.h"
#include "numeric/elementary.h"

namespace morve {

namespace {

constexpr double kBarRadius = 0.8;  // cm, whatever the diameter

void frameAround(Drawing& g, double width, double height) {
    const double margin = 0.15 * std::max(width, height);
    g.left = -margin;
    g.top = -margin;
    g.right = width + margin;
    g.bottom = height + margin;
}

void layeredSection(Drawing& g, const ColumnSection& s) {
    frameAround(g, s.b, s.h);
    g.rectangle({0, 0}, {s.b, s.h}, colours::lightGrey, 1, true);
    g.rectangle({0, 0}, {s.b, s.h}, colours::black, 2);
    if (s.shape == ColumnShape::Box) {
        g.rectangle({s.bw, s.hf}, {s.b - s.bw, s.h - s.hf}, {255, 255, 255}, 1, true);
        g.rectangle({s.bw, s.hf}, {s.b - s.bw, s.h - s.hf}, colours::black, 2);
    }
    const LayeredSection steel = s.steel();
    g.as(ShapeKind::Bars);
    for (int i = 0; i < steel.layers(); ++i) {
        const int bars = steel.bars[i];
        const double spacing = (s.b - 2 * s.dPrime) / (bars - 1);
        for (int j = 0; j < bars; ++j)
            g.circle({s.dPrime + j * spacing, steel.beta[i] * s.h}, kBarRadius, colours::blue, true);
    }
    g.dimension({0, s.h + 0.07 * s.h}, {s.b, s.h + 0.07 * s.h}, "b", 0, 0.05 * s.h);
    g.dimension({-0.07 * s.b, 0}, {-0.07 * s.b, s.h}, "h", -0.05 * s.b, 0);
}

void circularSection(Drawing& g, const ColumnSection& s) {
    const double r = s.h / 2;
    frameAround(g, s.h, s.h);
    g.circle({r, r}, r, colours::lightGrey, true);
    g.circle({r, r}, r, colours::black, false, 2);
    if (s.shape == ColumnShape::Ring && s.ho > 0) {
        g.circle({r, r}, s.ho / 2, {255, 255, 255}, true);
        g.circle({r, r}, s.ho / 2, colours::black, false, 2);
    }
    // One bar at the top, one at the bottom, pairs between on the ring d' inside.
    const int n = static_cast<int>(s.count);
    const double ring = r - s.dPrime;
    g.as(ShapeKind::Bars);
    for (int k = 0; k < n; ++k) {
        const double angle = 2 * kCirclePi * k / n;
        g.circle({r + ring * portable::sin(angle), r - ring * portable::cos(angle)}, kBarRadius, colours::blue, true);
    }
    g.dimension({0, s.h + 0.07 * s.h}, {s.h, s.h + 0.07 * s.h}, "h", 0, 0.05 * s.h);
}

}  // namespace

Drawing ColumnModule::drawing(const std::string& picture, const FormState& state) const {
    if (picture != kSectionScreen + ".Picture1") return {};
    const ColumnSection section = readSection(form_, state);
    if (!sectionDrawable(form_, state, section)) return {};
    Drawing g;
    g.unit = DrawingUnit::Centimetre;
    if (isLayered(section.shape))
        layeredSection(g, section);
    else
        circularSection(g, section);
    return g;
}

}  // namespace morve
