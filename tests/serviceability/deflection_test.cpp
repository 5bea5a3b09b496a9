// Deflection and crack width of a beam in service: the curvature integration and
// the four methods against closed forms and hand calculations, the section states
// by the transformed section worked by hand, and the two crack formulations.
#include <gtest/gtest.h>

#include <cmath>

#include "serviceability/deflection.h"

namespace morve {
namespace {

// Materials of the hand cases: fck 20 (fctm = 0.3 x 20^(2/3) = 2.2104 MPa),
// Ecs 25757 MPa, Es 200 GPa, so n = 7.7649; no creep or shrinkage unless said.
ServiceMaterials materials(double phi = 0, double eps = 0) { return {20, 2575.7, phi, eps, 20000}; }
const double kN = 20000 / 2575.7;
const double kFctm = 0.3 * std::cbrt(400.0) / 10;

// 20 x 50, As 6 at d = 45, no As'.
ServiceSection beam(double asc = 0) { return ServiceSection::rectangle(20, 50, 45, 4, 6, asc); }
const double kIc = 20 * 50 * 50 * 50 / 12.0;

// The cracked rectangle by hand: b x^2 / 2 = n As (d - x), I = b x^3 / 3 + n As (d - x)^2.
double crackedDepth(double b, double n) { return (-n * 6 + std::sqrt(n * 6 * n * 6 + 2 * b * n * 6 * 45)) / b; }
double crackedInertia(double b, double n) {
    const double x = crackedDepth(b, n);
    return b * x * x * x / 3 + n * 6 * (45 - x) * (45 - x);
}

SpanLoads uniformSpan(double l, double p) { return {.span = l, .uniform = {{0, l, p}}}; }

TEST(CurvatureIntegration, ClosedFormsOfTheElasticBeam) {
    const double ei = 1e6;  // kN cm2 stands for any EI
    auto deflection = [&](const SpanLoads& loads) {
        std::vector<double> chi = stationMoments(loads);
        for (double& c : chi) c *= 100 / ei;
        return midspanDeflection(chi, loads.span * 100);
    };
    const double l = 500, p = 0.2;  // cm, kN/cm
    // Uniform load: the chords of the parabola lose p h^2 l^2 / (96 EI), a fraction
    // 0.8 (h/l)^2 = 8E-5 of 5 p l^4 / (384 EI).
    EXPECT_NEAR(deflection(uniformSpan(5, 20)) / (5 * p * l * l * l * l / (384 * ei)), 1 - 8e-5, 1e-10);
    // Point load at mid-span: piecewise linear moment, exact.
    EXPECT_NEAR(deflection({.span = 5, .points = {{2.5, 30, 0}}}) / (30 * l * l * l / (48 * ei)), 1, 1e-12);
    // Fixed ends: Xa = Xb = -p l^2/12 give p l^4/(384 EI); the same loss is 4E-4 of it.
    SpanLoads fixed = uniformSpan(5, 20);
    fixed.xa = fixed.xb = -20 * 25 / 12.0;
    EXPECT_NEAR(deflection(fixed) / (p * l * l * l * l / (384 * ei)), 1 - 4e-4, 1e-10);
    // A clockwise couple C at mid-span bends the halves opposite ways: no deflection there.
    const SpanLoads couple{.span = 5, .points = {{2.5, 0, 40}}};
    EXPECT_NEAR(deflection(couple), 0, 1e-12);
    EXPECT_NEAR(bendingMoment(couple, 2.5 + 1e-9) - bendingMoment(couple, 2.5 - 1e-9), 40, 1e-6);
    EXPECT_NEAR(bendingMoment(couple, 1.25), -10, 1e-12);  // reaction -C/l at the left
}

TEST(SectionStates, TransformedSectionsByHand) {
    const SectionInertia cracked = crackedSection(beam(), kN);
    EXPECT_NEAR(cracked.centroid, crackedDepth(20, kN), 1e-9);  // 12.336
    EXPECT_NEAR(cracked.inertia, crackedInertia(20, kN), 1e-6);  // 62223 cm4
    // Uncracked: 1000 cm2 of concrete at 25 and (n - 1) 6 cm2 at 45.
    const double a = 1000 + (kN - 1) * 6, y = (25000 + (kN - 1) * 6 * 45) / a;
    const SectionInertia whole = uncrackedSection(beam(), kN);
    EXPECT_NEAR(whole.centroid, y, 1e-9);
    EXPECT_NEAR(whole.inertia, kIc + 1000 * (25 - y) * (25 - y) + (kN - 1) * 6 * (45 - y) * (45 - y), 1e-6);
    // A T whose neutral axis stays in the flange is a rectangle of the flange's width.
    const ServiceSection tee = ServiceSection::tee(60, 10, 20, 50, 45, 4, 6, 0);
    ASSERT_LT(crackedDepth(60, kN), 10);
    EXPECT_NEAR(crackedSection(tee, kN).inertia, crackedInertia(60, kN), 1e-6);
}

TEST(SectionStates, CreepByTheEffectiveModulusAndShrinkageByTheSteel) {
    const double phi = 2, d3 = 20 * 45.0 * 45 * 45;
    // State I: the plain section, so creep is the whole (1 + phi).
    const StateCoefficients one = stateCoefficients(beam(), kN, phi, false);
    EXPECT_NEAR(one.ik * d3, kIc, 1e-6);
    EXPECT_NEAR(one.kPhi, 1, 1e-12);
    // State II: the long-term curvature is M (1 + phi) / (Ecs I(n (1 + phi))).
    const StateCoefficients two = stateCoefficients(beam(), kN, phi, true);
    EXPECT_NEAR((1 + two.kPhi * phi) / (two.ik * d3), 3 / crackedInertia(20, 3 * kN), 1e-12);
    EXPECT_GT(two.kPhi, 0);  // the steel takes part of the creep: below the whole 1
    EXPECT_LT(two.kPhi, 1);
    // Shrinkage: As below the centroid bends the section the way sagging does; equal
    // steel at equal covers restrains it evenly and bends it not at all.
    EXPECT_GT(one.kEps, 0);
    const ServiceSection symmetric = ServiceSection::rectangle(20, 50, 45, 5, 6, 6);
    EXPECT_NEAR(stateCoefficients(symmetric, kN, phi, false).kEps, 0, 1e-12);
    // Cracked by hand at na = n (1 + 0.8 phi): k_eps = d na As (d - x) / I.
    const double na = kN * 2.6, x = crackedDepth(20, na);
    EXPECT_NEAR(two.kEps, 45 * na * 6 * (45 - x) / crackedInertia(20, na), 1e-9);
}

TEST(DeflectionMethods, UncrackedBeamAgreesByEveryMethod) {
    // l 4 m, p 5 kN/m: Ma = 1000 kN cm below Mr = 20 x 50^2 x 0.22104 / 4 = 2763.
    const double wo = 5 * 0.05 * std::pow(400.0, 4) / (384 * 2575.7 * kIc) * (1 - 8e-5);
    const ServiceResults r = serviceAnalysis(beam(), false, materials(), 12.5, uniformSpan(4, 5));
    EXPECT_NEAR(r.mr, 20 * 2500 * kFctm / 4, 1e-9);
    EXPECT_NEAR(r.wo, wo, 1e-12);
    EXPECT_NEAR(r.bilinear, wo, 1e-12);
    EXPECT_NEAR(r.ec2, wo, 1e-12);
    EXPECT_NEAR(r.nbr, 2.32 * wo, 1e-12);  // alpha_f 1.32 with As' = 0
    EXPECT_NEAR(r.allowable, 1.6, 1e-12);
    // Creep 2 triples the curvature of the uncracked beam; As' 3 cm2 brings
    // alpha_f to 1.32 / (1 + 50 x 3/900).
    const ServiceResults creep = serviceAnalysis(beam(3), false, materials(2), 12.5, uniformSpan(4, 5));
    EXPECT_NEAR(creep.ec2, 3 * wo, 1e-12);
    EXPECT_NEAR(creep.bilinear, 3 * wo, 1e-12);
    EXPECT_NEAR(creep.nbr, (1 + 1.32 / (1 + 50 * 3 / 900.0)) * wo, 1e-12);
}

TEST(DeflectionMethods, CrackedBeamByHand) {
    const double mr = 20 * 2500 * kFctm / 4, i2 = crackedInertia(20, kN);
    // Branson above cracking: p 20 kN/m on 6 m, Ma = 90 kNm.
    const ServiceResults r = serviceAnalysis(beam(), false, materials(), 12.5, uniformSpan(6, 20));
    const double k = std::pow(mr / 9000, 3), ieq = k * kIc + (1 - k) * i2;
    EXPECT_NEAR(r.ma, 9000, 1e-9);
    EXPECT_NEAR(r.wo, 5 * 0.2 * std::pow(600.0, 4) / (384 * 2575.7 * ieq) * (1 - 8e-5), 1e-12);
    // A constant moment M0 = 50 kNm (the end moments alone): every station alike, so
    // the integral is chi l^2/8 and each method's interpolation shows by hand.
    const ServiceResults c = serviceAnalysis(beam(), false, materials(), 12.5, {.span = 6, .xa = 50, .xb = 50});
    const double scale = 5000 * 600.0 * 600 / (8 * 2575.7);
    const double zetaEc2 = 1 - 0.5 * std::pow(mr / 5000, 2), zetaCeb = 1 - 0.5 * mr / 5000;
    EXPECT_NEAR(c.ec2, scale * ((1 - zetaEc2) / kIc + zetaEc2 / i2), 1e-12);
    EXPECT_NEAR(c.bilinear, scale * ((1 - zetaCeb) / kIc + zetaCeb / i2), 1e-12);
    // Practical formula: eta = 0.09547 (6/900)^-0.71186 = 3.380, times (50/45)^3 on the
    // gross-section deflection.
    EXPECT_NEAR(c.practical, 0.09547 * std::pow(6 / 900.0, -0.71186) * std::pow(50 / 45.0, 3) * scale / kIc, 1e-12);
}

TEST(DeflectionMethods, UnloadedSpanAndHoggingGiveNumbers) {
    const std::pair<ServiceSection, bool> sections[] = {
        {beam(), false}, {beam(2), false}, {ServiceSection::tee(60, 10, 20, 50, 45, 4, 6, 0), true}};
    for (const auto& [section, tee] : sections) {
        const ServiceResults r = serviceAnalysis(section, tee, materials(2.5, 0.0005), 12.5, {.span = 4});
        for (double v : {r.ec2, r.bilinear, r.practical, r.wo, r.nbr, r.crackCeb, r.crackNbr}) EXPECT_TRUE(std::isfinite(v));
        EXPECT_EQ(r.wo, 0);
        EXPECT_EQ(r.crackNbr, 0);
    }
    // Hogging everywhere counts as uncracked: the short-term methods fall back to Ic.
    const ServiceResults r = serviceAnalysis(beam(), false, materials(), 12.5, {.span = 4, .xa = -80, .xb = -80});
    EXPECT_NEAR(r.ec2, -8000 * 400.0 * 400 / (8 * 2575.7 * kIc), 1e-12);
}

struct CrackCase {
    const char* what;
    double sigmaS;  // kN/cm2
    double ceb, nbr;  // mm
};

// x = 12 cm, bar 12.5 mm, eps 0.0005. CEB: hef = min(12.5, 38/3) = 12.5,
// rho_r = 6/250 = 0.024, 1 + n rho_r = 1.18636, sigma_sr = 10.926.
// NBR: zone 5 + 9.375 = 14.375 cm high, rho = 0.020870; wk1 = 3 x 12.5 sigma^2 / (28.125
// x 20000 x 0.22104), wk2 = (4/0.020870 + 45) 12.5 sigma / 562500.
const CrackCase kCracks[] = {
    // sigma 8 < 10.93, single cracks: tau = 0.29840; e = 0.0004 - 0.6 x 0.26224/480
    // = 7.220E-5; wk = 3.222E-4 x 8 x 12.5 / (2 x 0.29840 x 1.18636) = 0.04551.
    // wk1 = 0.019303, wk2 = 0.042074.
    {"single cracks", 8, 0.04551, 0.019303},
    // sigma 25, stabilised: e = 0.00125 - 0.38 x 0.26224/480 = 1.04240E-3;
    // wk = 1.29240E-3 x 12.5/(3.6 x 0.024) = 0.18698. wk1 = 0.18850, wk2 = 0.13148.
    {"stabilised cracking", 25, 0.18698, 0.13148},
};

TEST(CrackWidths, BothFormulationsByHand) {
    for (const auto& c : kCracks) {
        SCOPED_TRACE(c.what);
        const CrackWidths w = crackWidths(beam(), materials(0, 0.0005), 12.5, c.sigmaS, 12);
        EXPECT_NEAR(w.ceb, c.ceb, 5e-5);
        EXPECT_NEAR(w.nbr, c.nbr, 5e-5);
    }
}

}  // namespace
}  // namespace morve
