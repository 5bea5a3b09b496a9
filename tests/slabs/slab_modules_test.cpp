// The slab modules held against plate theory (series, Ritz, Navier) and the grillage
// against its own strips. Results worked by hand are cases in tests/cases/slabs.
#include <gtest/gtest.h>

#include "plate_solutions.h"
#include "slabs/form22.h"
#include "slabs/navier.h"

namespace morve::testing {
namespace {

const SlabLoading kUnit{1, 1, 1, 0};  // p, pqp, D, no creep: w in mm of a unit plate

// Navier with nu = 0.3 gives the published alpha of w = alpha q a^4 / D; a Ritz
// solution agrees, which checks both the series and the solver of the tables' test.
TEST(SlabPlates, SeriesAndRitzGiveThePublishedDeflections) {
    for (auto [b, alpha] : {std::pair{1.0, 0.00406}, {1.5, 0.00772}, {2.0, 0.01013}}) {
        EXPECT_NEAR(navierUniform(1, b, 0.5, b / 2, 0.3).w, alpha, 5e-6);
        EXPECT_NEAR(RitzPlate(1, b, {Side::Supported, Side::Supported, Side::Supported, Side::Supported}, 0.3)
                        .at(0.5, b / 2).w, alpha, 5e-6);
    }
}

// Case 1 by plate theory is a quadratic fit of the Navier solution with nu = 0.2;
// over 0.5 <= r <= 1 it can follow the series to about 2%. Branch B is branch A
// with x and y exchanged, whatever the method.
TEST(SlabPlates, SimplySupportedSlabFollowsNavierBothWays) {
    for (double r : {0.5, 0.6, 0.75, 0.9, 1.0}) {
        const PlatePoint n = navierUniform(r, 1, r / 2, 0.5, 0.2);
        const auto a = rectangularSlab(SlabMethod::Plate, 1, r, 1, kUnit).v;
        EXPECT_NEAR(a[Cw], n.w * 1000, 0.02 * n.w * 1000) << r;
        EXPECT_NEAR(a[Mx], n.mx, 0.02 * n.mx) << r;
        EXPECT_NEAR(a[My], n.my, 0.02 * n.mx) << r;
        for (SlabMethod m : {SlabMethod::Plate, SlabMethod::Grillage, SlabMethod::RedistributedGrillage}) {
            const auto x = rectangularSlab(m, 1, r, 1, kUnit).v, y = rectangularSlab(m, 1, 1, r, kUnit).v;
            for (auto [i, j] : {std::pair{Cw, Cw}, {Mx, My}, {Rx, Ry}}) EXPECT_NEAR(x[i], y[j], 1e-12);
        }
    }
    for (int c : {1, 6})
        for (SlabMethod m : {SlabMethod::Plate, SlabMethod::Grillage, SlabMethod::RedistributedGrillage}) {
            const auto v = rectangularSlab(m, c, 3, 3, kUnit).v;
            EXPECT_DOUBLE_EQ(v[Mx], v[My]);
        }
}

// The edges of the tables: the plateau of case 5 and the short fixed sides of a
// strip. The thin slab let through with Cancel is a case in tests/cases/slabs.
TEST(SlabPlates, EdgesOfTheTables) {
    EXPECT_DOUBLE_EQ(rectangularSlab(SlabMethod::Plate, 5, 3, 4, kUnit).v[Rx], 0.1 * 3);
    EXPECT_EQ(rectangularSlab(SlabMethod::Plate, 2, 10, 4, kUnit).v[Mxe], 0);
}

// The grillage shares the load so that the two strips deflect alike at the centre,
// each with its own ends: x strips 5, 2, 1, 2, 1, 1 and y strips 5, 5, 5, 2, 2, 1
// (per 384). Its reactions carry the whole load; with redistribution span and
// support moments are equal and stand with the statics of each strip.
TEST(SlabGrillage, StripsDeflectAlikeAndCarryTheLoad) {
    const double kx384[] = {5, 2, 1, 2, 1, 1}, ky384[] = {5, 5, 5, 2, 2, 1};
    const double lx = 4, ly = 5;
    for (int c = 1; c <= 6; ++c) {
        const auto v = rectangularSlab(SlabMethod::Grillage, c, lx, ly, kUnit).v;
        const double kx = v[Cw] / 1000 * 384 / (kx384[c - 1] * std::pow(lx, 4));
        EXPECT_NEAR(v[Cw] / 1000, ky384[c - 1] / 384 * (1 - kx) * std::pow(ly, 4), 1e-9) << c;
        for (SlabMethod m : {SlabMethod::Grillage, SlabMethod::RedistributedGrillage}) {
            const auto g = rectangularSlab(m, c, lx, ly, kUnit).v;
            const double sidesX = g[Rxe] > 0 ? g[Rx] + g[Rxe] : 2 * g[Rx];
            const double sidesY = g[Rye] > 0 ? g[Ry] + g[Rye] : 2 * g[Ry];
            EXPECT_NEAR(sidesX * lx + sidesY * ly, lx * ly, 1e-9) << c;
        }
        // Redistributed: the x strip's share from its deflection (3 per 384 propped,
        // 2 fixed), then mid-span statics kx p lx^2 / 8 = Mspan + Msupport (two fixed
        // ends) or Mspan + Msupport / 2 (one).
        const double kw3[] = {5, 3, 2, 3, 2, 2}, fixedEnds[] = {0, 1, 2, 1, 2, 2};
        const auto r = rectangularSlab(SlabMethod::RedistributedGrillage, c, lx, ly, kUnit).v;
        const double kxr = r[Cw] / 1000 * 384 / (kw3[c - 1] * std::pow(lx, 4));
        EXPECT_NEAR(r[Mx] - r[Mxe] * fixedEnds[c - 1] / 2, kxr * lx * lx / 8, 1e-9) << c;
        if (fixedEnds[c - 1] > 0) {
            EXPECT_NEAR(r[Mx], -r[Mxe], 1e-12) << c;
        }
    }
    EXPECT_EQ(rectangularSlab(SlabMethod::Grillage, 1, lx, ly, kUnit).v,
              rectangularSlab(SlabMethod::RedistributedGrillage, 1, lx, ly, kUnit).v);
}

// Form23's series against Navier worked out here: a point load at the centre of a
// square (0.0116 P a^2 / D), a patch covering the whole slab as the uniform load,
// the single series of a line load as the double series of the same line.
TEST(SlabSeries, PointPatchAndLineLoadsMatchNavier) {
    const CentreValues point = pointLoadAtCentre(4, 4, 1, 2, 2, 0.2);
    EXPECT_NEAR(point.dw, navierPointDeflection(4, 4, 2, 2, 2, 2, 301), 2e-4 * point.dw);
    EXPECT_NEAR(point.dw, 0.0116 * 16, 2e-4);
    const PlatePoint uniform = navierUniform(4, 6, 2, 3, 0.2);
    const CentreValues patch = patchLoadAtCentre(4, 6, 1, 2, 3, 4, 6, 0.2);
    EXPECT_NEAR(patch.dw, uniform.w, 1e-4 * uniform.w);
    EXPECT_NEAR(patch.mx, uniform.mx, 2e-3 * uniform.mx);
    EXPECT_NEAR(patch.my, uniform.my, 2e-3 * uniform.my);
    for (double ax : {1.0, 2.0, 3.2}) {
        double w = 0;  // line along y: load terms 8 p sin(m pi ax / a) / (a pi n), n odd
        for (int m = 1; m <= 301; ++m)
            for (int n = 1; n <= 301; n += 2) {
                const double s = std::pow(m * kPi / 4, 2) + std::pow(n * kPi / 6, 2);
                w += 8 / (4 * kPi * n) * std::sin(m * kPi * ax / 4) * std::sin(m * kPi / 2) * std::sin(n * kPi / 2) / (s * s);
            }
        EXPECT_NEAR(lineLoadAtCentre(4, 6, 1, ax, 0.2).dw, w, 1e-4 * w) << ax;
    }
    EXPECT_NEAR(pointLoadAtCentre(4, 4, 1, 4, 2, 0.2).dw, 0, 1e-15);  // on the edge itself
}

}  // namespace
}  // namespace morve::testing
