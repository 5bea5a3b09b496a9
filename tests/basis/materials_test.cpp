// Material numbers and code limits, against values worked out by hand.
#include <gtest/gtest.h>

#include <cmath>

#include "basis/checks.h"
#include "basis/materials.h"
#include "basis/messages.h"

using namespace morve;

TEST(StressBlock, ChangesFormulaJustAbove50MPa) {
    auto at50 = StressBlock(50);
    EXPECT_DOUBLE_EQ(at50.lambda, 0.8);
    EXPECT_DOUBLE_EQ(at50.alphac, 0.85);
    EXPECT_DOUBLE_EQ(at50.ecu, 3.5);
    // 50.1: lambda 0.8 - 0.1/400, alphac 0.85 (1 - 0.1/200), ecu 2.6 + 35 (0.399)^4 = 3.4869
    auto above = StressBlock(50.1);
    EXPECT_NEAR(above.lambda, 0.79975, 1e-12);
    EXPECT_NEAR(above.alphac, 0.849575, 1e-12);
    EXPECT_NEAR(above.ecu, 2.6 + 35 * 0.025344958401, 1e-9);
    auto at90 = StressBlock(90);
    EXPECT_NEAR(at90.lambda, 0.7, 1e-12);
    EXPECT_NEAR(at90.alphac, 0.68, 1e-12);
    EXPECT_NEAR(at90.ecu, 2.6, 1e-12);
}

TEST(StressBlock, ColumnParametersAddThePivotStrains) {
    auto p = StressBlockParameters(30);
    EXPECT_DOUBLE_EQ(p.epsC2, 2.0);
    EXPECT_DOUBLE_EQ(p.epsCu, 3.5);
    EXPECT_NEAR(p.kappa, 3.0 / 7.0, 1e-12);
    // fck 90: eps_c2 = 2 + 0.085 x 40^0.53 = 2 + 0.085 x 7.0646 = 2.6005, eps_cu = 2.6
    auto q = StressBlockParameters(90);
    EXPECT_NEAR(q.epsC2, 2 + 0.085 * std::pow(40.0, 0.53), 1e-12);
    EXPECT_NEAR(q.epsC2, 2.6005, 1e-4);
    EXPECT_NEAR(q.kappa, 1 - q.epsC2 / 2.6, 1e-12);
}

TEST(DuctilityLimit, ClassBoundariesOfEachCriterion) {
    using C = DuctilityCriterion;
    EXPECT_NEAR(DuctilityLimit(C::CEB90, 1, 35, 500, 1.15, 210), 0.45, 1e-12);
    EXPECT_NEAR(DuctilityLimit(C::CEB90, 1, 36, 500, 1.15, 210), 0.35, 1e-12);
    EXPECT_NEAR(DuctilityLimit(C::NBR6118, 1, 36, 500, 1.15, 210), 0.45, 1e-12);
    EXPECT_NEAR(DuctilityLimit(C::NBR6118, 1, 50, 500, 1.15, 210), 0.45, 1e-12);
    EXPECT_NEAR(DuctilityLimit(C::NBR6118, 1, 50.1, 500, 1.15, 210), 0.35, 1e-12);
    EXPECT_NEAR(DuctilityLimit(C::CEB90, 0.75, 20, 500, 1.15, 210), 0.25, 1e-12);
    EXPECT_NEAR(DuctilityLimit(C::NBR6118, 0.75, 90, 500, 1.15, 210), 0.15, 1e-12);
    // Balanced, CA-50: eyd = 43.478 / 21000 = 0.0020704; 0.0035 / 0.0055704 = 0.62833
    EXPECT_NEAR(DuctilityLimit(C::Balanced, 1, 20, 500, 1.15, 210), 0.62833, 1e-5);
    // and it ignores Beta and the concrete
    EXPECT_DOUBLE_EQ(DuctilityLimit(C::Balanced, 0.8, 90, 500, 1.15, 210),
                     DuctilityLimit(C::Balanced, 1, 20, 500, 1.15, 210));
    EXPECT_EQ(ductilityCriterion("Balanceada"), C::Balanced);
    EXPECT_FALSE(ductilityCriterion("").has_value());
}

TEST(MinimumSteelRatio, BothBranchesAndTheFloor) {
    // fck 30, fyd 434.78: 0.078 x 9.6549 / 434.78 = 0.0017321
    EXPECT_NEAR(MinimumSteelRatio(30, 500 / 1.15), 0.0017321, 1e-6);
    // fck 20 gives 0.0013218, raised to 0.0015
    EXPECT_DOUBLE_EQ(MinimumSteelRatio(20, 500 / 1.15), 0.0015);
    // fck 60: 0.5512 ln(7.6) / 434.78 = 0.0025712
    EXPECT_NEAR(MinimumSteelRatio(60, 500 / 1.15), 0.0025712, 1e-6);
}

TEST(BilinearStress, ElasticBelowYieldPlasticFromItWithTheSign) {
    const double es = 21000, fyd = 43.478;
    EXPECT_NEAR(BilinearStress(es, 0.001, fyd), 21.0, 1e-12);
    EXPECT_NEAR(BilinearStress(es, -0.001, fyd), -21.0, 1e-12);
    EXPECT_DOUBLE_EQ(BilinearStress(es, fyd / es, fyd), fyd);  // the yield strain itself
    EXPECT_DOUBLE_EQ(BilinearStress(es, 0.01, fyd), fyd);
    EXPECT_DOUBLE_EQ(BilinearStress(es, -0.01, fyd), -fyd);
    EXPECT_DOUBLE_EQ(BilinearStress(es, 0, fyd), 0);
}

TEST(AggressivenessClass, LimitsByClass) {
    EXPECT_FALSE(AggressivenessClass("").has_value());
    auto c4 = AggressivenessClass("4");
    ASSERT_TRUE(c4);
    EXPECT_EQ(c4->minFck, 40);
    EXPECT_EQ(c4->beamCover, 5.0);
    EXPECT_EQ(AggressivenessClass("2")->slabCover, 2.5);
    EXPECT_EQ(AggressivenessClass("1")->minFck, 20);
}

TEST(BarCatalogue, Area) {
    EXPECT_NEAR(BarCatalogue::barArea(10), 0.7853981635, 1e-12);
    EXPECT_NEAR(BarCatalogue::barArea(20), 3.141592654, 1e-12);
}

TEST(CheckSequence, TheFirstFailureStopsEveryLaterCheck) {
    ScriptedPrompter p({"no", "yes"});
    CheckSequence c(p);
    c.askIf(true, "first?", "Text1");    // No: goes on
    c.warnIf(false, "never", "Text2");
    c.askIf(true, "second?", "Text3");   // Yes: stops here
    c.warnIf(true, "after the stop", "Text4");
    EXPECT_TRUE(c.stopped());
    EXPECT_EQ(c.outcome().focus, "Text3");
    EXPECT_FALSE(c.outcome().completed);
    ASSERT_EQ(p.messages().size(), 2u);
    EXPECT_EQ(p.messages()[1].text, "second?");
}

TEST(CheckSequence, OkGoesBackAndNoGoesOn) {
    ScriptedPrompter r({"ok"});
    CheckSequence e(r);
    e.confirmIf(true, msg::kBeamWidthOkCancel, "Text3");
    EXPECT_TRUE(e.stopped());
    EXPECT_EQ(r.messages().at(0).kind, MessageKind::OkCancel);

    ScriptedPrompter s;  // Es of 205 asks; the default answer No goes on
    CheckSequence f(s);
    checkCodeModulus(f, 205, "Text9");
    checkCodeModulus(f, 210, "Text9");
    checkCodeModulus(f, 200, "Text9");
    EXPECT_FALSE(f.stopped());
    ASSERT_EQ(s.messages().size(), 1u);
    EXPECT_EQ(s.messages()[0].text, msg::kCodeEs);
}
