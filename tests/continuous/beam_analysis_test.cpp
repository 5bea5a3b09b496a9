// The continuous beam analysis against closed forms of beam theory, with the
// equilibrium of reactions and loads in every case.
#include <gtest/gtest.h>

#include <cmath>

#include "continuous/beam_analysis.h"

using namespace morve;

namespace {

constexpr double w = 10, L = 5, EI = 30000;  // kN/m, m, kNm2

BeamModel beam(int spans, std::vector<BeamSupport> supports) {
    BeamModel m;
    m.e = EI / 1e-3;
    m.length.assign(spans, L);
    m.inertia.assign(spans, 1e-3);
    m.supports = std::move(supports);
    m.initialMa.assign(spans, 0);
    m.initialMb.assign(spans, 0);
    return m;
}

constexpr BeamSupport simple(int node) { return {node, SupportType::Simple, 0}; }
constexpr BeamSupport fixed(int node) { return {node, SupportType::Fixed, 0}; }

// The beam with w over every span.
BeamModel uniformBeam(int spans, std::vector<BeamSupport> supports) {
    BeamModel m = beam(spans, std::move(supports));
    for (int i = 1; i <= spans; ++i) m.segments.push_back({i, 0, L, w});
    return m;
}

// A cantilever fixed at node 1 with the force p at its tip.
BeamModel cantilever(double p) {
    BeamModel m = beam(1, {fixed(1)});
    m.nodalLoads.push_back({2, p, 0});
    return m;
}

double totalLoad(const BeamModel& m) {
    double t = 0;
    for (const auto& s : m.segments) t += s.q * s.length;
    for (const auto& p : m.barLoads) t += p.force;
    for (const auto& p : m.nodalLoads) t += p.force;
    return t;
}

struct Expected {
    const char* name;
    BeamModel model;
    std::vector<double> forces;         // reactions, table order
    std::vector<double> supportMoments; // ends of the spans: Ma of span 1, Mb of each span
    std::vector<double> reactionMoments;
};

TEST(ContinuousBeam, ClosedFormsAndEquilibrium) {
    BeamModel centralLoad = beam(1, {fixed(1), fixed(2)});
    centralLoad.barLoads.push_back({1, L / 2, 40, 0});
    // A column restraint as stiff as the far-pinned span (E Ig = 3 EI / L) takes
    // half the fixed-end moment wL^2/8.
    const double ma = -w * L * L / 16;
    const Expected cases[] = {
        {"two equal spans", uniformBeam(2, {simple(1), simple(2), simple(3)}),
         {3 * w * L / 8, 10 * w * L / 8, 3 * w * L / 8}, {0, -w * L * L / 8, 0}, {0, 0, 0}},
        {"three equal spans", uniformBeam(3, {simple(1), simple(2), simple(3), simple(4)}),
         {0.4 * w * L, 1.1 * w * L, 1.1 * w * L, 0.4 * w * L}, {0, -0.1 * w * L * L, -0.1 * w * L * L, 0}, {0, 0, 0, 0}},
        {"propped cantilever", uniformBeam(1, {fixed(1), simple(2)}), {5 * w * L / 8, 3 * w * L / 8}, {-w * L * L / 8, 0},
         {w * L * L / 8, 0}},
        {"fixed-fixed, uniform", uniformBeam(1, {fixed(1), fixed(2)}), {w * L / 2, w * L / 2},
         {-w * L * L / 12, -w * L * L / 12}, {w * L * L / 12, -w * L * L / 12}},
        {"fixed-fixed, central load", centralLoad, {20, 20}, {-40 * L / 8, -40 * L / 8}, {40 * L / 8, -40 * L / 8}},
        {"cantilever", cantilever(10), {10}, {-10 * L, 0}, {10 * L}},
        {"elastic end", uniformBeam(1, {{1, SupportType::Fixed, 3 * 1e-3 / L}, simple(2)}),
         {w * L / 2 - ma / L, w * L / 2 + ma / L}, {ma, 0}, {0, 0}},
    };
    for (const Expected& c : cases) {
        SCOPED_TRACE(c.name);
        const BeamResults r = analyseBeam(c.model);
        ASSERT_EQ(r.status, BeamStatus::Done);
        ASSERT_EQ(r.reactions.size(), c.forces.size());
        double sum = 0;
        for (std::size_t k = 0; k < c.forces.size(); ++k) {
            EXPECT_NEAR(r.reactions[k].force, c.forces[k], 1e-9);
            EXPECT_NEAR(r.reactions[k].moment, c.reactionMoments[k], 1e-9);
            sum += r.reactions[k].force;
        }
        EXPECT_NEAR(sum, totalLoad(c.model), 1e-9);
        EXPECT_NEAR(r.spans.front().ma, c.supportMoments.front(), 1e-9);
        for (std::size_t i = 0; i < r.spans.size(); ++i) EXPECT_NEAR(r.spans[i].mb, c.supportMoments[i + 1], 1e-9);
    }
}

TEST(ContinuousBeam, SpanPointsZeroMomentsAndDeflections) {
    // Propped cantilever: zero moment at L/4, largest 9wL^2/128 near 5L/8.
    BeamResults r = analyseBeam(uniformBeam(1, {fixed(1), simple(2)}));
    ASSERT_EQ(r.status, BeamStatus::Done);
    ASSERT_EQ(r.spans[0].zeroMoments.size(), 1u);
    EXPECT_NEAR(r.spans[0].zeroMoments[0], L / 4, 1e-12);
    EXPECT_NEAR(r.spans[0].maxMoment, 9 * w * L * L / 128, 0.01);
    EXPECT_NEAR(r.spans[0].maxMomentX, 5 * L / 8, L / 100);
    EXPECT_NEAR(r.spans[0].maxShear, 5 * w * L / 8, 1e-9);

    // Simple span: midspan deflection 5wL^4/(384EI); cantilever tip PL^3/(3EI).
    r = analyseBeam(uniformBeam(1, {simple(1), simple(2)}));
    const double mid = 1000 * 5 * w * std::pow(L, 4) / (384 * EI);
    EXPECT_NEAR(r.spans[0].deflection[50], mid, 1e-3 * mid);
    // Integrated from the left support, the shape closes on the right one to a
    // thousandth of the midspan deflection.
    EXPECT_NEAR(r.spans[0].deflection[100], 0, 1e-3 * mid);
    r = analyseBeam(cantilever(10));
    EXPECT_NEAR(r.spans[0].deflection[100], 1000 * 10 * std::pow(L, 3) / (3 * EI), 1e-2);

    // Two equal spans: the zero of the moment at 3L/4 of each span from the outer end.
    r = analyseBeam(uniformBeam(2, {simple(1), simple(2), simple(3)}));
    ASSERT_EQ(r.spans[0].zeroMoments.size(), 1u);
    EXPECT_NEAR(r.spans[0].zeroMoments[0], 0.75 * L, 1e-12);
    EXPECT_NEAR(r.spans[1].zeroMoments[0], 0.25 * L, 1e-12);
}

TEST(ContinuousBeam, DesignTableTakesTheFixedSpanWhereItGovernsAndTheLargerSupportMoment) {
    const BeamResults r = analyseBeam(uniformBeam(3, {simple(1), simple(2), simple(3), simple(4)}));
    ASSERT_EQ(r.design.size(), 4u);
    // Outer spans: 0.08 wL^2 continuous beats 9/128 wL^2 propped; middle span:
    // wL^2/24 fixed-fixed beats 0.025 wL^2 continuous.
    EXPECT_NEAR(*r.design[0].positiveMoment, 0.08 * w * L * L, 1e-9);
    EXPECT_NEAR(*r.design[1].positiveMoment, w * L * L / 24, 1e-9);
    EXPECT_NEAR(r.spans[1].maxMoment, 0.025 * w * L * L, 1e-9);
    EXPECT_NEAR(*r.design[1].supportMoment, -0.1 * w * L * L, 1e-9);
    EXPECT_FALSE(r.design[3].maxShear.has_value());
    EXPECT_EQ(*r.design[3].support, 4);

    // A moment applied at an interior support: the side of larger magnitude governs.
    BeamModel kicked = beam(2, {simple(1), simple(2), simple(3)});
    kicked.nodalLoads.push_back({2, 0, 12});
    const BeamResults k = analyseBeam(kicked);
    // Equal spans share the couple: -6 on one side, +6 on the other; magnitudes tie.
    EXPECT_NEAR(std::abs(*k.design[1].supportMoment), 6, 1e-9);
}

TEST(ContinuousBeam, StopsForMechanismsTooManyReactionsAndOverflow) {
    // No stiffness at all (a zero modulus) leaves a zero pivot; a mechanism in
    // general leaves one of rounding size, which passes as the program's test has it.
    BeamModel mechanism = beam(1, {simple(1), simple(2)});
    mechanism.e = 0;
    mechanism.nodalLoads.push_back({2, 10, 0});
    EXPECT_EQ(analyseBeam(mechanism).status, BeamStatus::Singular);

    std::vector<BeamSupport> eleven;
    for (int j = 1; j <= 11; ++j) eleven.push_back(simple(j));
    BeamModel many = uniformBeam(10, eleven);
    EXPECT_EQ(analyseBeam(many).status, BeamStatus::TooManyReactions);
    many.supports.pop_back();
    EXPECT_EQ(analyseBeam(many).status, BeamStatus::Done);

    EXPECT_EQ(analyseBeam(cantilever(1e308)).status, BeamStatus::NotFinite);
}

}  // namespace
