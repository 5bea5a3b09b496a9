// The bar in space against the closed forms of a cantilever, in global axes and
// turned every which way, and the torsion constant against Roark's table.
#include <gtest/gtest.h>

#include <cmath>

#include "stairs/space_frame.h"

namespace morve {
namespace {

const BarSection kSection{2.0e6, 3.0e4, 5.0e3, 8.0e3};  // EA, GJ, EIy, EIz
constexpr double kLength = 3;

// A cantilever from `base` along `along`, fixed at the base, with an end load of
// local components (force, moment); returns the tip's displacement and rotation in
// the bar's local axes.
std::pair<Vec3, Vec3> cantileverTip(const Vec3& base, const Vec3& along, const Vec3& zHint, const Vec3& force,
                                    const Vec3& moment) {
    SpaceModel m;
    const Vec3 tip = base + kLength * unit(along);
    const Axes a = barAxes(base, tip, zHint);
    m.nodes.push_back({base, {}, {}, {}});
    m.nodes[0].fixed.fill(true);
    SpaceNode end{tip, {}, {}, {}};
    const Vec3 f = fromAxes(a, force), c = fromAxes(a, moment);
    end.load = {f[0], f[1], f[2], c[0], c[1], c[2]};
    m.nodes.push_back(end);
    m.bars.push_back({0, 1, kSection, zHint, {}});
    const SpaceResults r = analyseSpaceFrame(m);
    EXPECT_TRUE(r.solved);
    if (!r.solved) return {};
    return {toAxes(a, r.displacement[1]), toAxes(a, r.rotation[1])};
}

TEST(SpaceBar, CantileverEndLoadsInEveryOrientation) {
    const double l = kLength, l2 = l * l, l3 = l2 * l;
    struct Case {
        const char* name;
        Vec3 force, moment, displacement, rotation;
    } cases[] = {
        {"axial", {10, 0, 0}, {}, {10 * l / kSection.ea, 0, 0}, {}},
        {"shear y", {0, 10, 0}, {}, {0, 10 * l3 / (3 * kSection.eiz), 0}, {0, 0, 10 * l2 / (2 * kSection.eiz)}},
        {"shear z", {0, 0, 10}, {}, {0, 0, 10 * l3 / (3 * kSection.eiy)}, {0, -10 * l2 / (2 * kSection.eiy), 0}},
        {"torque", {}, {7, 0, 0}, {}, {7 * l / kSection.gj, 0, 0}},
        {"moment y", {}, {0, 7, 0}, {0, 0, -7 * l2 / (2 * kSection.eiy)}, {0, 7 * l / kSection.eiy, 0}},
        {"moment z", {}, {0, 0, 7}, {0, 7 * l2 / (2 * kSection.eiz), 0}, {0, 0, 7 * l / kSection.eiz}},
    };
    struct Orientation {
        Vec3 base, along, zHint;
    } orientations[] = {
        {{0, 0, 0}, {1, 0, 0}, {0, 0, 1}},
        {{1, 2, 3}, {0, 0, 1}, {1, 0, 0}},         // vertical
        {{-2, 1, 0.5}, {1, -2, 0.7}, {0.3, 0.4, 1}},  // skew, with a skew hint
        {{0, 0, 0}, {0, 1, 0}, {0, 0, 1}},          // the hint along the bar is replaced
    };
    orientations[3].zHint = {0, 1, 0};
    for (const Orientation& o : orientations)
        for (const Case& c : cases) {
            SCOPED_TRACE(c.name);
            const auto [d, r] = cantileverTip(o.base, o.along, o.zHint, c.force, c.moment);
            for (int i = 0; i < 3; ++i) {
                EXPECT_NEAR(d[i], c.displacement[i], 1e-9 + 1e-9 * std::abs(c.displacement[i]));
                EXPECT_NEAR(r[i], c.rotation[i], 1e-9 + 1e-9 * std::abs(c.rotation[i]));
            }
        }
}

// A fixed-fixed beam under uniform load in a skew direction, in two bars: the end
// moments p L^2 / 12, the reactions p L / 2 and the mid-span deflection
// p L^4 / 384 EI, all in the bar's own plane.
TEST(SpaceBar, FixedBeamUnderUniformLoad) {
    const Vec3 a{0, 0, 0}, b{3, 4, 0}, zHint{0, 0, 1};
    const double l = 5, p = 6;
    SpaceModel m;
    m.nodes = {{a, {}, {}, {}}, {0.5 * b, {}, {}, {}}, {b, {}, {}, {}}};
    m.nodes[0].fixed.fill(true);
    m.nodes[2].fixed.fill(true);
    for (int k = 0; k < 2; ++k) m.bars.push_back({k, k + 1, kSection, zHint, {0, 0, -p}});
    const SpaceResults r = analyseSpaceFrame(m);
    ASSERT_TRUE(r.solved);
    EXPECT_NEAR(r.displacement[1][2], -p * l * l * l * l / (384 * kSection.eiy), 1e-12);
    EXPECT_NEAR(r.reactionForce[0][2], p * l / 2, 1e-9);
    EXPECT_NEAR(r.reactionForce[2][2], p * l / 2, 1e-9);
    // Hogging at the ends, sagging at the middle, about the bar's y axis.
    EXPECT_NEAR(std::abs(r.atFrom[0][4]), p * l * l / 12, 1e-9);
    EXPECT_NEAR(std::abs(r.atTo[0][4]), p * l * l / 24, 1e-9);
    EXPECT_LT(r.atFrom[0][4] * r.atTo[0][4], 0);
    EXPECT_NEAR(std::hypot(r.reactionMoment[0][0], r.reactionMoment[0][1]), p * l * l / 12, 1e-9);
}

TEST(SpaceBar, MechanismIsReported) {
    SpaceModel m;
    m.nodes = {{{0, 0, 0}, {}, {}, {}}, {{1, 0, 0}, {}, {}, {}}};
    m.nodes[0].fixed = {true, true, true, false, false, false};  // a ball joint alone
    m.bars.push_back({0, 1, kSection, {0, 0, 1}, {0, 0, -1}});
    EXPECT_FALSE(analyseSpaceFrame(m).solved);
}

// Roark's table of J = beta b h^3 for b/h.
TEST(SpaceBar, RectangleTorsionConstant) {
    const double table[][2] = {{1, 0.141}, {1.5, 0.196}, {2, 0.229}, {3, 0.263}, {4, 0.281}, {6, 0.299}, {10, 0.312}};
    for (const auto& row : table) {
        const double h = 0.2, b = row[0] * h, expected = row[1] * b * h * h * h;
        EXPECT_NEAR(rectangleTorsionConstant(b, h), expected, 0.003 * expected) << row[0];
        EXPECT_DOUBLE_EQ(rectangleTorsionConstant(h, b), rectangleTorsionConstant(b, h));
    }
    EXPECT_EQ(rectangleTorsionConstant(0, 1), 0);
}

}  // namespace
}  // namespace morve
