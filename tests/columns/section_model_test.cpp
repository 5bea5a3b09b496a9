// The concrete blocks against numeric integration of the outline, the layer
// geometry, and the guard of the search.
#include <gtest/gtest.h>

#include <cmath>

#include "columns/section_model.h"

using namespace morve;

namespace {

// Area and first moment (about the compressed face) of the part of an outline of
// height 1 above depth y, by the midpoint rule on thin strips; width(t) is the
// width at depth t.
template <class Width>
BlockForce integrate(Width width, double y, double total) {
    const int strips = 200000;
    double area = 0, moment = 0;
    const double dt = y / strips;
    for (int i = 0; i < strips; ++i) {
        const double t = (i + 0.5) * dt;
        area += width(t) * dt;
        moment += width(t) * t * dt;
    }
    return {area / total, area > 0 ? moment / area : 0};
}

}  // namespace

TEST(ConcreteBlock, CircleMatchesTheIntegratedSegment) {
    const double lambda = 0.8;
    for (double eta : {0.0, 0.3, 0.6}) {
        // Width of a ring of outer diameter 1 and inner eta at depth t.
        auto width = [eta](double t) {
            auto chord = [](double r, double u) { return u * u < r * r ? 2 * std::sqrt(r * r - u * u) : 0.0; };
            return chord(0.5, t - 0.5) - chord(eta / 2, t - 0.5);
        };
        const double total = 3.14159265358979 * (1 - eta * eta) / 4;
        for (double xi : {0.1, 0.4, 0.55, 0.7, 0.95, 1.1}) {
            const double y = std::min(lambda * xi, 1.0);
            const BlockForce exact = integrate(width, y, total);
            const BlockForce b = concreteBlock(ConcreteOutline::circle(1, eta), xi, lambda);
            EXPECT_NEAR(b.rc, exact.rc, 1e-6) << "eta " << eta << " xi " << xi;
            EXPECT_NEAR(b.bc, exact.bc, 1e-6) << "eta " << eta << " xi " << xi;
        }
    }
}

TEST(ConcreteBlock, BoxMatchesStripSummation) {
    // b 60, h 80, webs 15, flanges 12: a = 4, e = 0.15.
    const double b = 60, h = 80, bw = 15, hf = 12;
    auto width = [&](double t) {
        const double depth = t * h;
        return (depth < hf || depth > h - hf) ? b / bw : 2.0;  // in units of bw
    };
    const double total = (b * h - (b - 2 * bw) * (h - 2 * hf)) / (bw * h);
    for (double xi : {0.1, 0.15, 0.3, 0.9, 1.05, 1.2, 1.3}) {
        const double y = std::min(0.8 * xi, 1.0);
        const BlockForce exact = integrate(width, y, total);
        const BlockForce got = concreteBlock(ConcreteOutline::box(b, bw, h, hf), xi, 0.8);
        EXPECT_NEAR(got.rc, exact.rc, 1e-5) << "xi " << xi;
        EXPECT_NEAR(got.bc, exact.bc, 1e-5) << "xi " << xi;
    }
}

TEST(ConcreteBlock, ZeroDepthAndFullSection) {
    const BlockForce none = concreteBlock(ConcreteOutline::circle(60), 0, 0.8);
    EXPECT_EQ(none.rc, 0);
    EXPECT_EQ(none.bc, 0);
    for (auto outline : {ConcreteOutline::rectangle(), ConcreteOutline::box(60, 20, 60, 20),
                         ConcreteOutline::circle(60), ConcreteOutline::circle(60, 30)}) {
        const BlockForce full = concreteBlock(outline, 1.25, 0.8);
        EXPECT_NEAR(full.rc, 1, 1e-9);
        EXPECT_NEAR(full.bc, 0.5, 1e-9);
    }
}

// Layer 1 at the tensioned edge, the last at the compressed cover; the ring's six
// bars at 0, 60, 120 and 180 degrees on a radius of 0.4 h make four layers.
TEST(Layers, RectangleAndRingSpanTheTwoCoverPlanes) {
    const LayeredSection rect = rectangularLayers({3, 2, 4}, 0.1), ring = ringLayers(6, 0.1);
    EXPECT_EQ(rect.total, 9);
    EXPECT_EQ(ring.bars, (std::vector<int>{1, 2, 2, 1}));
    for (const auto& [s, beta] : {std::pair{&rect, std::vector{0.9, 0.5, 0.1}}, {&ring, {0.9, 0.7, 0.3, 0.1}}}) {
        ASSERT_EQ(s->layers(), static_cast<int>(beta.size()));
        for (std::size_t i = 0; i < beta.size(); ++i) EXPECT_NEAR(s->beta[i], beta[i], 1e-9) << i;
    }
}

TEST(SolveNeutralAxis, StopsWithAMessageWhenThereIsNoRoot) {
    SectionModel model{rectangularLayers({2, 2}, 0.1), ConcreteOutline::rectangle(),
                       StressBlockParameters(20), 21000, 43.48};
    NeutralAxis axis = SolveNeutralAxis(model, [](const SectionForces&) { return 1.0; });
    EXPECT_EQ(axis.stop, SearchStop::NoBracket);
    EXPECT_NE(searchStopMessage(axis.stop).find("linha neutra"), std::string::npos);
    // A jump across zero: the bracket closes on it and |f| never falls to 0.001.
    axis = SolveNeutralAxis(model, [](const SectionForces& f) { return f.xi < 0.5 ? 1.0 : -1.0; });
    EXPECT_EQ(axis.stop, SearchStop::Stalled);
    EXPECT_NEAR(axis.forces.xi, 0.5, 1e-12);
}

TEST(SolveNeutralAxis, FindsTheRootOfALinearEquation) {
    SectionModel model{rectangularLayers({2, 2}, 0.1), ConcreteOutline::rectangle(),
                       StressBlockParameters(20), 21000, 43.48};
    NeutralAxis axis = SolveNeutralAxis(model, [](const SectionForces& f) { return 0.3 - f.rc; });
    ASSERT_TRUE(axis.converged());
    EXPECT_NEAR(axis.forces.xi, 0.3 / 0.8, 0.002);
}
