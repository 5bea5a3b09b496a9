// The helix of bars against a flexibility solution of the helicoidal girder worked
// out here by the virtual-work integrals along the true helix (the cut at
// mid-span, its six internal forces the redundants), against the straight fixed
// beam it tends to, and against the statics of the whole stair.
#include <gtest/gtest.h>

#include <chrono>
#include <cmath>

#include "stairs/helix.h"

namespace morve {
namespace {

constexpr double kPi = 3.14159265358979323846;

Helix stair(double openingDeg, double radius, double rise, bool fixed = true) {
    Helix h;
    h.opening = openingDeg * kPi / 180;
    h.radius = radius;
    h.rise = rise;
    h.thickness = 0.15;
    h.width = 1.2;
    h.modulus = 2.5e7;
    h.creep = 2;
    h.g = 1.5;
    h.q = 3;
    h.fixedEnds = fixed;
    return h;
}

// ---- the flexibility solution, anticlockwise helix, fixed ends ----------------

struct Flexibility {
    double r, a, c, w;             // radius, half opening, rise per radian, load per radian
    double ea, gj, eiy, eiz;       // the section
    Vec3 point(double t) const { return {r * std::cos(t), r * std::sin(t), c * (t + a)}; }
    Axes axes(double t) const {
        const Vec3 x = unit({-r * std::sin(t), r * std::cos(t), c});
        const Vec3 z = unit(Vec3{0, 0, -1} + x[2] * x);
        return {x, cross(z, x), z};
    }
    Vec3 arcIntegral(double from, double to) const {  // of the point, d(angle)
        return {r * (std::sin(to) - std::sin(from)), r * (std::cos(from) - std::cos(to)),
                c * ((to + a) * (to + a) - (from + a) * (from + a)) / 2};
    }
    // What the upper part exerts on the lower part at angle t: the redundants at
    // the cut carried to the section (unit[j] selects one of them, or none for the
    // load alone), with the load between the cut and the section.
    std::array<Vec3, 2> resultant(double t, int unitIndex, bool withLoad) const {
        Vec3 f{}, m{};
        if (unitIndex >= 0) (unitIndex < 3 ? f : m)[static_cast<std::size_t>(unitIndex % 3)] = 1;
        const Vec3 arm = point(0) - point(t);
        m = m + cross(arm, f);
        if (withLoad) {
            // Below the cut the load between section and cut adds; above it subtracts.
            const double from = std::min(t, 0.0), to = std::max(t, 0.0), sign = t < 0 ? 1 : -1;
            const Vec3 load{0, 0, -w * (to - from)};
            const Vec3 lever = arcIntegral(from, to) - (to - from) * point(t);
            f = f + sign * load;
            m = m + sign * cross(lever, {0, 0, -w});
        }
        return {f, m};
    }
    // N, T, My, Mz over their stiffnesses (shear strain left out, as in the program).
    std::array<double, 4> strains(double t, const std::array<Vec3, 2>& s) const {
        const Axes ax = axes(t);
        return {dot(ax[0], s[0]), dot(ax[0], s[1]), dot(ax[1], s[1]), dot(ax[2], s[1])};
    }
    std::array<double, 6> solve() const {
        const double flex[4] = {1 / ea, 1 / gj, 1 / eiy, 1 / eiz};
        double f[6][7] = {};
        const int n = 4000;
        const double ds = std::sqrt(r * r + c * c);
        for (int i = 0; i <= n; ++i) {
            const double t = -a + 2 * a * i / n;
            const double weight = (i == 0 || i == n ? 1 : i % 2 ? 4 : 2) * (2 * a / n) / 3 * ds;
            std::array<std::array<double, 4>, 7> e;
            for (int j = 0; j < 6; ++j) e[j] = strains(t, resultant(t, j, false));
            e[6] = strains(t, resultant(t, -1, true));
            for (int j = 0; j < 6; ++j)
                for (int k = 0; k < 7; ++k)
                    for (int p = 0; p < 4; ++p) f[j][k] += weight * e[j][p] * e[k][p] * flex[p];
        }
        // Gauss-Jordan on [F | d]: F X = -d.
        for (int p = 0; p < 6; ++p)
            for (int j = 0; j < 6; ++j)
                if (j != p) {
                    const double m = f[j][p] / f[p][p];
                    for (int k = p; k < 7; ++k) f[j][k] -= m * f[p][k];
                }
        std::array<double, 6> x;
        for (int j = 0; j < 6; ++j) x[j] = -f[j][6] / f[j][j];
        return x;
    }
    EndForces section(double t, const std::array<double, 6>& x) const {
        std::array<Vec3, 2> s = resultant(t, -1, true);
        for (int j = 0; j < 6; ++j) {
            const std::array<Vec3, 2> u = resultant(t, j, false);
            s[0] = s[0] + x[j] * u[0];
            s[1] = s[1] + x[j] * u[1];
        }
        const Axes ax = axes(t);
        return {dot(ax[0], s[0]), dot(ax[1], s[0]), dot(ax[2], s[0]),
                dot(ax[0], s[1]), dot(ax[1], s[1]), dot(ax[2], s[1])};
    }
};

Flexibility flexibilityOf(const Helix& h) {
    const BarSection s = rectangleSection(h.modulus, kConcretePoisson, h.width, h.thickness);
    return {h.radius, h.opening / 2, h.rise / h.opening, helixLoadPerRadian(h, h.g, h.q), s.ea, s.gj, s.eiy, s.eiz};
}

// Forces and moments each within 0.5% of the largest of their kind at the section.
void expectClose(const EndForces& got, const EndForces& want, const char* where) {
    SCOPED_TRACE(where);
    const double forces = std::max({std::abs(want[0]), std::abs(want[1]), std::abs(want[2])});
    const double moments = std::max({std::abs(want[3]), std::abs(want[4]), std::abs(want[5])});
    for (int i = 0; i < 6; ++i) EXPECT_NEAR(got[i], want[i], 0.005 * (i < 3 ? forces : moments) + 1e-6) << i;
}

TEST(Helix, FixedEndsAgreeWithTheFlexibilitySolution) {
    const Helix cases[] = {stair(90, 3, 0), stair(180, 2.5, 0), stair(180, 2, 3), stair(270, 1.5, 3.5),
                           stair(360, 1.8, 3.2)};
    for (const Helix& h : cases) {
        SCOPED_TRACE(h.opening * 180 / kPi);
        const HelixResults r = analyseHelix(h);
        ASSERT_TRUE(r.solved);
        const Flexibility f = flexibilityOf(h);
        const std::array<double, 6> x = f.solve();
        expectClose(r.base, f.section(-f.a, x), "base");
        expectClose(r.top, f.section(f.a, x), "top");
        expectClose(r.centre, f.section(0, x), "centre");
    }
}

// A sliver of a wide circle, flat: a straight fixed beam, p L^2 / 12 at the ends
// and p L^2 / 24 at mid-span, p L / 2 at each support.
TEST(Helix, TinyFlatOpeningIsAFixedBeam) {
    const Helix h = stair(1, 300, 0);
    const HelixResults r = analyseHelix(h);
    ASSERT_TRUE(r.solved);
    const double l = h.radius * h.opening, p = helixLoadPerRadian(h, h.g, h.q) / h.radius;
    EXPECT_NEAR(std::abs(r.base[4]), p * l * l / 12, 0.005 * p * l * l / 12);
    EXPECT_NEAR(std::abs(r.centre[4]), p * l * l / 24, 0.005 * p * l * l / 24);
    EXPECT_LT(r.base[4] * r.centre[4], 0);
    EXPECT_NEAR(r.baseForce[2], p * l / 2, 1e-6 * p * l);
    EXPECT_NEAR(std::abs(r.base[3]), 0, 0.001 * p * l * l);
}

// The reactions carry the whole load, and their moments about the origin balance
// the moment of the load, worked out from the helix's own arc integral.
TEST(Helix, SupportsBalanceTheLoad) {
    for (const Helix& h : {stair(180, 2, 3), stair(300, 2.5, 3, false), stair(120, 2.5, 2, false)}) {
        const HelixResults r = analyseHelix(h);
        ASSERT_TRUE(r.solved);
        const Flexibility f = flexibilityOf(h);
        const double w = f.w;
        EXPECT_NEAR(r.totalLoad, w * h.opening, 1e-9 * r.totalLoad);
        const Vec3 force = r.baseForce + r.topForce;
        EXPECT_NEAR(force[0], 0, 1e-6 * r.totalLoad);
        EXPECT_NEAR(force[1], 0, 1e-6 * r.totalLoad);
        EXPECT_NEAR(force[2], r.totalLoad, 1e-6 * r.totalLoad);
        const Vec3 loadMoment = cross(f.arcIntegral(-f.a, f.a), {0, 0, -w});
        const Vec3 moment = r.baseMoment + r.topMoment + cross(f.point(-f.a), r.baseForce) +
                            cross(f.point(f.a), r.topForce) + loadMoment;
        for (double m : moment) EXPECT_NEAR(m, 0, 1e-4 * r.totalLoad * h.radius);
    }
}

// Pinned ends hold no bending moment; the rise's direction mirrors the stair, so
// the in-plane resultants keep their sign and the others change it, none its size.
TEST(Helix, EndConditionsAndDirectionOfRise) {
    const HelixResults pinned = analyseHelix(stair(180, 2, 3, false));
    ASSERT_TRUE(pinned.solved);
    EXPECT_NEAR(pinned.base[4], 0, 1e-6);
    EXPECT_NEAR(pinned.base[5], 0, 1e-6);
    EXPECT_NEAR(pinned.top[4], 0, 1e-6);
    Helix mirrored = stair(180, 2, 3);
    mirrored.clockwise = true;
    const HelixResults a = analyseHelix(stair(180, 2, 3)), b = analyseHelix(mirrored);
    const double sign[6] = {1, -1, 1, -1, 1, -1};
    for (int i = 0; i < 6; ++i) {
        EXPECT_NEAR(b.base[i], sign[i] * a.base[i], 1e-6) << i;
        EXPECT_NEAR(b.centre[i], sign[i] * a.centre[i], 1e-6) << i;
    }
    EXPECT_NEAR(a.deflection, b.deflection, 1e-12);
}

// Twice the bars moves no result in its second decimal, and the run is quick.
TEST(Helix, DiscretisationHasConverged) {
    for (const Helix& h : {stair(360, 1.5, 3.5), stair(90, 4, 1)}) {
        Helix fine = h;
        fine.bars = 2 * kHelixBars;
        const auto start = std::chrono::steady_clock::now();
        const HelixResults r = analyseHelix(h);
        const double ms = std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start).count();
        EXPECT_LT(ms, 20);
        const HelixResults s = analyseHelix(fine);
        for (int i = 0; i < 6; ++i) {
            EXPECT_NEAR(r.base[i], s.base[i], 0.005) << i;
            EXPECT_NEAR(r.centre[i], s.centre[i], 0.005) << i;
        }
        EXPECT_NEAR(r.deflection * 100, s.deflection * 100, 0.005);
    }
}

}  // namespace
}  // namespace morve
