// Polygonal sections with two axes of symmetry (Form16): the polygon routines
// against a second way of integrating, the layered rectangle as oracle, the
// symmetries of the square and of the turned section. The checks, the report and
// the centred force are golden cases in tests/cases/columns/form16-*.json.
#include <numbers>

#include "columns/oblique_section.h"
#include "draw/polygon.h"
#include "oblique_case.h"

using morve::Point;
using morve::testing::ColumnCase;
using morve::testing::ObliqueCase;
using morve::testing::Rows;

namespace {

constexpr double kPi = std::numbers::pi;

// An L of legs 60 x 20 and 20 x 60 (non-convex), and a hexagon.
const std::vector<Point> kL{{0, 0}, {60, 0}, {60, 20}, {20, 20}, {20, 60}, {0, 60}};
const std::vector<Point> kHexagon{{10, 0}, {30, 0}, {40, 17}, {30, 34}, {10, 34}, {0, 17}};

// The area and first moment about y = 0 of the part above y = c, by horizontal
// strips: the width at a height is the sum of the chords there, linear between the
// heights of two vertices, so Simpson's rule is exact on each strip.
std::pair<double, double> stripsAbove(const std::vector<Point>& p, double c) {
    auto width = [&](double y) {
        std::vector<double> xs;
        for (std::size_t i = 0; i < p.size(); ++i) {
            const Point a = p[i], b = p[(i + 1) % p.size()];
            if ((a.y <= y) != (b.y <= y)) xs.push_back(a.x + (y - a.y) * (b.x - a.x) / (b.y - a.y));
        }
        std::sort(xs.begin(), xs.end());
        double w = 0;
        for (std::size_t i = 0; i + 1 < xs.size(); i += 2) w += xs[i + 1] - xs[i];
        return w;
    };
    std::vector<double> levels{c};
    for (const Point& v : p)
        if (v.y > c) levels.push_back(v.y);
    std::sort(levels.begin(), levels.end());
    double area = 0, moment = 0;
    for (std::size_t i = 0; i + 1 < levels.size(); ++i) {
        const double y0 = levels[i], y1 = levels[i + 1], ym = (y0 + y1) / 2, e = 1e-12 * (y1 - y0);
        if (y1 - y0 <= 0) continue;
        const double w0 = width(y0 + e), wm = width(ym), w1 = width(y1 - e);
        area += (y1 - y0) / 6 * (w0 + 4 * wm + w1);
        moment += (y1 - y0) / 6 * (w0 * y0 + 4 * wm * ym + w1 * y1);
    }
    return {area, moment};
}

}  // namespace

TEST(Polygon, ClippedAreaAndMomentMatchHorizontalStrips) {
    for (const auto* polygon : {&kL, &kHexagon})
        for (double turn : {0.0, 0.3, -1.1, 2.5})
            for (double share : {0.0, 0.17, 0.5, 0.83, 1.0}) {
                const std::vector<Point> p = morve::rotated(*polygon, turn);
                double lo = p[0].y, hi = p[0].y;
                for (const Point& v : p) lo = std::min(lo, v.y), hi = std::max(hi, v.y);
                const double cut = hi - share * (hi - lo);
                const auto m = morve::polygonMoments(morve::clipAbove(p, cut));
                const auto [area, moment] = stripsAbove(p, cut);
                EXPECT_NEAR(m.area, area, 1e-6 * (1 + area)) << turn << " " << share;
                EXPECT_NEAR(m.sx, moment, 1e-6 * (1 + std::abs(moment))) << turn << " " << share;
            }
    // The whole L: 2000 cm2 with its centroid at (22, 22).
    const auto whole = morve::polygonMoments(kL);
    EXPECT_DOUBLE_EQ(whole.area, 2000);
    EXPECT_DOUBLE_EQ(whole.sy / whole.area, 22);
    EXPECT_DOUBLE_EQ(whole.sx / whole.area, 22);
}

TEST(Polygon, CrossedOutlinesAndPointsInside) {
    EXPECT_FALSE(morve::crossesItself(kL));
    EXPECT_TRUE(morve::crossesItself({{0, 0}, {10, 10}, {10, 0}, {0, 10}}));          // a bow tie
    EXPECT_TRUE(morve::crossesItself({{0, 0}, {10, 0}, {10, 10}, {5, 0}, {0, 10}}));  // touches an edge
    EXPECT_TRUE(morve::containsPoint(kL, {10, 50}));
    EXPECT_TRUE(morve::containsPoint(kL, {60, 10}));  // on the outline
    EXPECT_FALSE(morve::containsPoint(kL, {40, 40}));  // in the notch
}

namespace {

ObliqueCase form16(Rows vertices, Rows bars, std::string nk, std::string mxk, std::string myk) {
    return {"Form16",
            {{"Text1", "25"}, {"Text3", "210"}, {"Text6", nk}, {"Text7", mxk}, {"Text8", myk}},
            std::move(vertices), std::move(bars)};
}

}  // namespace

TEST(SymmetricPolygon, RectangleWithCornerBarsIsTheLayeredSection) {
    // The same 20 x 50 section by the layered design, bent about either axis.
    for (auto [nk, mk] : {std::pair{"1000", "60"}, {"700", "150"}, {"60", "90"}}) {
        ColumnCase layered{"Form12",
                           {{"Text1", "25"}, {"Text3", "210"}, {"Text4", "20"}, {"Text5", "50"}, {"Text6", "4"},
                            {"Text7", "2"}, {"Text8", nk}, {"Text9", mk}},
                           {2, 2}, {}};
        auto expected = layered.press();
        ASSERT_TRUE(expected.outcome.completed);
        const double as = expected.number("Text10");
        auto about = form16(morve::testing::rectangle(20, 50), morve::testing::cornerBars(20, 50, 4), nk, mk, "0")
                         .press();
        auto turned = form16(morve::testing::rectangle(50, 20), morve::testing::cornerBars(50, 20, 4), nk, "0", mk)
                          .press();
        for (const auto* r : {&about, &turned}) {
            ASSERT_TRUE(r->outcome.completed) << nk;
            EXPECT_NEAR(r->number("Text9"), as, 0.003 * as + 0.01) << nk << " " << mk;
            EXPECT_EQ(r->text("Text10"), expected.text("Text11"));
            EXPECT_EQ(r->text("Text11"), "4");
            EXPECT_EQ(r->text("Text12"), expected.text("Text13"));
        }
    }
}

TEST(SymmetricPolygon, TurningTheSectionSwapsTheMoments) {
    // A chamfered 30 x 60 octagon with six bars, and the same turned a quarter.
    const Rows octagon{{-10, -30}, {10, -30}, {15, -25}, {15, 25}, {10, 30}, {-10, 30}, {-15, 25}, {-15, -25}};
    const Rows bars{{-11, -26}, {11, -26}, {11, 0}, {11, 26}, {-11, 26}, {-11, 0}};
    auto quarter = [](const Rows& rows) {
        Rows out;
        for (const auto& p : rows) out.push_back({-p[1], p[0]});
        return out;
    };
    auto a = form16(octagon, bars, "800", "120", "45").press();
    auto b = form16(quarter(octagon), quarter(bars), "800", "45", "120").press();
    ASSERT_TRUE(a.outcome.completed);
    ASSERT_TRUE(b.outcome.completed);
    EXPECT_GT(a.number("Text9"), 0);
    EXPECT_NEAR(a.number("Text9"), b.number("Text9"), 0.003 * a.number("Text9"));
}

TEST(SymmetricPolygon, EqualMomentsOnASquareTurnTheAxisByAnEighth) {
    const auto square = morve::centredSection({{0, 0}, {40, 0}, {40, 40}, {0, 40}},
                                       {{4, 4}, {36, 4}, {36, 36}, {4, 36}}, {0.25, 0.25, 0.25, 0.25});
    const morve::ObliqueModel model(square, {morve::StressBlockParameters(25), 0.85 * 2.5 / 1.4, 50 / 1.15, 21000});
    for (double nd : {0.0, 800.0, 2400.0}) {
        const auto axis = morve::alignMoment(model, 12, nd, 5000, 5000, {});
        EXPECT_TRUE(axis.converged);
        EXPECT_NEAR(axis.angle, -kPi / 4, 0.002 * kPi) << nd;
        EXPECT_NEAR(axis.r.n, nd, 0.001);
        EXPECT_NEAR(axis.r.mx, axis.r.my, 0.01 * axis.r.mx) << nd;
    }
}
