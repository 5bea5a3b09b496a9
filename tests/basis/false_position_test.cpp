// The neutral-axis searches' false position: a slow search is never cut, one
// that cannot end always is.
#include <gtest/gtest.h>

#include <cmath>

#include "../columns/column_case.h"
#include "basis/false_position.h"

using namespace morve;

TEST(FalsePosition, SlowSearchesRunToTheirRoot) {
    // A convex curve keeps one end of the bracket fixed: the plain method closes
    // in by a thousandth a round, for some 10^4 rounds, and must still end on the
    // root 0.0005.
    auto curve = [](double x) { return x * x - 2.5e-7; };
    const Root r = falsePosition(curve, 0, curve(0), 1, curve(1), {.tolerance = 1e-12});
    ASSERT_TRUE(r.converged());
    EXPECT_GT(r.rounds, 10000);
    EXPECT_NEAR(r.x, 5e-4, 1e-8);
    // Under a limit of rounds it stops there, on every machine at the same trial.
    const Root cut = falsePosition(curve, 0, curve(0), 1, curve(1), {.tolerance = 1e-12, .maxRounds = 500});
    EXPECT_FALSE(cut.converged());
    EXPECT_EQ(cut.rounds, 500);
    // Halving the end kept twice closes the same bracket from both sides in a few
    // tens of rounds, on the same root.
    const Root illinois = falsePosition(curve, 0, curve(0), 1, curve(1), {.tolerance = 1e-12, .illinois = true});
    ASSERT_TRUE(illinois.converged());
    EXPECT_LT(illinois.rounds, 40);
    EXPECT_NEAR(illinois.x, 5e-4, 1e-8);
}

TEST(FalsePosition, SearchesThatCannotEndStop) {
    struct Case {
        const char* what;
        double (*f)(double);
    } cases[] = {
        {"a jump across zero", [](double x) { return x < 0.3 ? -1.0 : 1.0; }},
        {"not a number past the root", [](double x) { return x < 0.3 ? -1.0 : std::nan(""); }},
    };
    for (const auto& c : cases) {
        const Root r = falsePosition(c.f, 0, c.f(0), 1, c.f(1), {});
        EXPECT_FALSE(r.converged()) << c.what;
        EXPECT_LT(r.rounds, 5000) << c.what;
    }
}

TEST(FalsePosition, SmallMomentUnderLargeForceConvergesOnTheCentredDesign) {
    // Mk 0.05 beside Nk 2000 needs some 10^4 rounds; as Mk goes to nothing the
    // steel goes to that of the centred load: (2800 - 0.85 x 2/1.4 x 1000) / 42.
    morve::testing::ColumnCase c{"Form12",
                          {{"Text3", "210"}, {"Text4", "20"}, {"Text5", "50"}, {"Text6", "4"},
                           {"Text7", "2"}, {"Text8", "2000"}, {"Text9", "0.05"}},
                          {6, 6}, {}};
    auto r = c.press();
    ASSERT_TRUE(r.outcome.completed) << (r.messages.empty() ? "" : r.messages.back().text);
    EXPECT_NEAR(r.number("Text10"), (2800 - 0.85 * 2 / 1.4 * 1000) / 42, 0.05);
}
