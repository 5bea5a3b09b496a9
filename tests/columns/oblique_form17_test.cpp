// Arbitrary polygonal sections (Form17): the doubly symmetric section of Form16,
// the rectangle of Form13, an L checked by a fibre integration of its own, design
// and verification against each other, the moment contour. The checks and the
// report are golden cases in tests/cases/columns/form17-*.json.
#include <numbers>

#include "columns/oblique_section.h"
#include "oblique_case.h"

using morve::testing::ColumnCase;
using morve::testing::ObliqueCase;
using morve::testing::Rows;

namespace {

const Rows kL{{0, 0}, {60, 0}, {60, 20}, {20, 20}, {20, 60}, {0, 60}};
const Rows kLBars{{4, 4}, {30, 4}, {56, 4}, {56, 16}, {30, 16}, {16, 16}, {16, 56}, {4, 56}, {4, 30}, {16, 30}};

ObliqueCase form17(Rows vertices, Rows bars, std::string nd, std::string mxd, std::string myd) {
    return {"Form17",
            {{"Text1", "25"}, {"Text3", "210"}, {"Text7", nd}, {"Text8", mxd}, {"Text9", myd}},
            std::move(vertices), std::move(bars)};
}

Rows withArea(Rows bars, double area) {
    for (auto& b : bars) b.push_back(area);
    return bars;
}

}  // namespace

TEST(ArbitraryPolygon, DoublySymmetricSectionIsDesignedAsBySymmetry) {
    const Rows octagon{{-10, -30}, {10, -30}, {15, -25}, {15, 25}, {10, 30}, {-10, 30}, {-15, 25}, {-15, -25}};
    const Rows bars{{-11, -26}, {11, -26}, {11, 0}, {11, 26}, {-11, 26}, {-11, 0}};
    for (auto [nk, mxk, myk] : {std::tuple{"800", "120", "45"}, {"300", "40", "90"}, {"1500", "30", "30"}}) {
        ObliqueCase symmetric{"Form16", {{"Text1", "25"}, {"Text3", "210"}, {"Text6", nk}, {"Text7", mxk}, {"Text8", myk}},
                              octagon, bars};
        auto expected = symmetric.press();
        ASSERT_TRUE(expected.outcome.completed);
        auto d = [](const char* k) { return morve::formatResult(1.4 * std::stod(k)); };
        auto r = form17(octagon, bars, d(nk), d(mxk), d(myk)).press();
        ASSERT_TRUE(r.outcome.completed) << r.messages.back().text;
        EXPECT_NEAR(r.number("Text12"), expected.number("Text9"), 0.005 * expected.number("Text9") + 0.01) << nk;
        EXPECT_EQ(r.text("Text13"), expected.text("Text10"));
    }
}

TEST(ArbitraryPolygon, RectangleResistsTheUltimateMomentOfTheLayeredSection) {
    // Form13's ruin moment of 20 x 50 with 10 cm2 in two layers of two: the same
    // forces are just reached, S = 1, and 10 cm2 is what the design asks.
    ColumnCase layered{"Form13",
                       {{"Text1", "25"}, {"Text3", "210"}, {"Text4", "20"}, {"Text5", "50"}, {"Text6", "4"},
                        {"Text7", "2"}, {"Text8", "900"}, {"Form13b.Text1", "10"}},
                       {2, 2}, {}};
    auto ruin = layered.press();
    ASSERT_TRUE(ruin.outcome.completed);
    auto r = form17(morve::testing::rectangle(20, 50), withArea(morve::testing::cornerBars(20, 50, 4), 2.5), "900",
                    ruin.text("Text10"), "0")
                 .press();
    ASSERT_TRUE(r.outcome.completed);
    EXPECT_EQ(r.text("Text6"), "10");
    EXPECT_NEAR(r.number("Text11"), 1, 0.01);
    EXPECT_NEAR(r.number("Text12"), 10, 0.05);
}

namespace {

// The forces of the L by fibres of 0.05 cm and the bars, for a neutral axis at
// `angle` and `depth`, with the same block, pivots and bilinear steel written out
// here; moments about the centroid (22, 22).
morve::Resultant fibreForces(double angle, double depth, double as, const morve::StressBlockParametersValues& b,
                             double sigmacd, double fyd, double es) {
    const double c = std::cos(angle), s = std::sin(angle);
    auto up = [&](double x, double y) { return -s * (x - 22) + c * (y - 22); };
    double top = -1e9, bottom = 1e9;
    for (const auto& v : kL) top = std::max(top, up(v[0], v[1])), bottom = std::min(bottom, up(v[0], v[1]));
    const double h = top - bottom, edge = top - b.lambda * depth, step = 0.05;
    morve::Resultant r;
    for (double x = step / 2; x < 60; x += step)
        for (double y = step / 2; y < 60; y += step) {
            if (x > 20 && y > 20) continue;
            if (up(x, y) < edge) continue;
            const double dA = step * step * sigmacd;
            r.n += dA;
            r.mx += dA * (y - 22);
            r.my += dA * (x - 22);
        }
    double dmax = 0;
    for (const auto& bar : kLBars) dmax = std::max(dmax, top - up(bar[0], bar[1]));
    for (const auto& bar : kLBars) {
        const double d = top - up(bar[0], bar[1]);
        double strain;
        if (depth <= b.epsCu * dmax / (b.epsCu + 10))
            strain = 0.01 * (depth - d) / (dmax - depth);
        else if (depth <= h)
            strain = b.epsCu / 1000 * (depth - d) / depth;
        else
            strain = b.epsC2 / 1000 * (depth - d) / (depth - b.kappa * h);
        const double stress = std::clamp(es * strain, -fyd, fyd);
        const double f = stress * as / kLBars.size();
        r.n += f;
        r.mx += f * (bar[1] - 22);
        r.my += f * (bar[0] - 22);
    }
    return r;
}

}  // namespace

TEST(ArbitraryPolygon, LSectionSolutionIsInEquilibriumByFibres) {
    std::vector<morve::Point> outline, bars;
    for (const auto& v : kL) outline.push_back({v[0], v[1]});
    for (const auto& v : kLBars) bars.push_back({v[0], v[1]});
    const auto block = morve::StressBlockParameters(25);
    const double sigmacd = 0.85 * 2.5 / 1.4, fyd = 50 / 1.15, es = 21000;
    const morve::ObliqueModel model(morve::centredSection(outline, bars, std::vector<double>(10, 0.1)),
                                    {block, sigmacd, fyd, es});
    const morve::SearchLimits limits{100, 60, 1e-4, 100, false};
    // Compression with moments of both signs, so the axis lies across the notch,
    // and small moments under forces near the squash load (3036 kN and the bars).
    for (auto [nd, mxd, myd] : {std::tuple{2400.0, 20000.0, -15000.0}, {800.0, -9000.0, -14000.0},
                                {1500.0, 25000.0, 6000.0}, {3200.0, 1000.0, 0.0}, {3200.0, 2000.0, -1000.0}}) {
        const auto design = morve::designSteel(model, nd, mxd, myd, limits);
        ASSERT_TRUE(design.converged) << nd << " " << mxd;
        ASSERT_GT(design.as, 1);
        const auto f = fibreForces(design.axis.angle, design.axis.depth, design.as, block, sigmacd, fyd, es);
        const double md = std::hypot(mxd, myd);
        EXPECT_NEAR(f.n, nd, 0.001 * nd) << mxd;
        EXPECT_NEAR(f.mx, mxd, 0.001 * md) << mxd;
        EXPECT_NEAR(f.my, myd, 0.001 * md) << mxd;
    }
}

TEST(ArbitraryPolygon, DesignedSteelVerifiedGivesTheFactorOne) {
    for (auto [nd, mxd, myd] : {std::tuple{"2400", "200", "-150"}, {"600", "-120", "-80"}, {"0", "90", "60"}}) {
        auto design = form17(kL, kLBars, nd, mxd, myd).press();
        ASSERT_TRUE(design.outcome.completed);
        const double as = design.number("Text12");
        ASSERT_GT(as, 1) << nd;
        auto check = form17(kL, withArea(kLBars, as / 10), nd, mxd, myd).press();
        ASSERT_TRUE(check.outcome.completed);
        EXPECT_NEAR(check.number("Text11"), 1, 0.005) << nd;
        // Half the steel cannot carry the same forces.
        auto half = form17(kL, withArea(kLBars, as / 20), nd, mxd, myd).press();
        EXPECT_LT(half.number("Text11"), 1);
        EXPECT_EQ(half.text("Text15"), "A seção não resiste aos esforços de cálculo dados.");
    }
}

TEST(ArbitraryPolygon, MomentContourPassesThroughTheDesignedCase) {
    auto design = form17(kL, kLBars, "2000", "300", "-200").press();
    ASSERT_TRUE(design.outcome.completed);
    const morve::Module& module = design.session->module();
    const morve::Chart chart = module.chart("Form17c.MSChart1", design.session->state());
    ASSERT_EQ(chart.series.size(), 2u);
    const auto& contour = chart.series[0].points;
    ASSERT_EQ(contour.size(), 73u);  // 72 directions, closed
    // Where the ray of the case meets the contour it has the case's length.
    const double angle = std::atan2(-200.0, 300.0), md = std::hypot(300.0, 200.0);
    ASSERT_GT(design.number("Text12"), 1);
    for (std::size_t i = 0; i + 1 < contour.size(); ++i) {
        const double a0 = std::atan2(contour[i].y, contour[i].x), a1 = std::atan2(contour[i + 1].y, contour[i + 1].x);
        const double span = std::remainder(a1 - a0, 2 * std::numbers::pi), part = std::remainder(angle - a0, 2 * std::numbers::pi);
        if (!(part * span >= 0 && std::abs(part) <= std::abs(span))) continue;
        const double t = part / span;
        const double r = std::hypot(contour[i].x + t * (contour[i + 1].x - contour[i].x),
                                    contour[i].y + t * (contour[i + 1].y - contour[i].y));
        EXPECT_NEAR(r, md, 0.01 * md);
    }
}

TEST(ArbitraryPolygon, AngleSearchTurnsTheMomentOntoEveryDirection) {
    // Doubly symmetric shapes within the passes of Form16 (a quarter turn of
    // directions suffices), and shapes without symmetry with the tighter tolerance
    // of Form17 over the whole turn; plain concrete and heavy steel, light and heavy
    // compression.
    using Shape = std::pair<std::vector<morve::Point>, std::vector<morve::Point>>;
    const std::vector<Shape> symmetric{
        {{{-10, -40}, {10, -40}, {10, -10}, {40, -10}, {40, 10}, {10, 10}, {10, 40}, {-10, 40}, {-10, 10}, {-40, 10},
          {-40, -10}, {-10, -10}},
         {{-6, -36}, {6, -36}, {6, 36}, {-6, 36}, {-36, -6}, {-36, 6}, {36, -6}, {36, 6}}}};
    const std::vector<Shape> general{
        {{{0, 0}, {80, 0}, {80, 60}, {65, 60}, {65, 15}, {15, 15}, {15, 60}, {0, 60}},
         {{4, 4}, {76, 4}, {76, 56}, {69, 56}, {4, 56}, {11, 56}, {40, 4}, {40, 11}}},
        {{{0, 0}, {60, 0}, {0, 40}}, {{5, 5}, {45, 5}, {5, 30}}}};
    for (bool symmetry : {true, false})
        for (const auto& [outline, bars] : symmetry ? symmetric : general) {
            const morve::ObliqueModel model(
                morve::centredSection(outline, bars, std::vector<double>(bars.size(), 1.0 / bars.size())),
                {morve::StressBlockParameters(25), 0.85 * 2.5 / 1.4, 50 / 1.15, 21000});
            const morve::SearchLimits limits = symmetry ? morve::SearchLimits{} : morve::SearchLimits{100, 60, 1e-4, 100};
            const double ac = model.section().area, tolerance = limits.angleTolerance * std::numbers::pi;
            for (double as : {0.0, 0.03 * ac})
                for (double nu : {0.1, 0.5, 0.8})
                    for (int degrees = 3; degrees < (symmetry ? 90 : 360); degrees += 10) {
                        const double t = degrees * std::numbers::pi / 180;
                        const auto s = morve::alignMoment(model, as, nu * ac * 1.5179, std::cos(t), std::sin(t), limits);
                        ASSERT_TRUE(s.converged) << degrees << " " << nu << " " << as;
                        EXPECT_NEAR(std::remainder(std::atan2(s.r.my, s.r.mx) - t, 2 * std::numbers::pi), 0,
                                    tolerance + 1e-12);
                    }
        }
}
