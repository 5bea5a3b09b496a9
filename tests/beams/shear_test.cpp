// The stirrup proposal of Esforço cortante (Form5) at the steps of its legs. Its
// results, checks and report are cases in tests/cases/beams.
#include <gtest/gtest.h>

#include "beams/shear_common.h"

namespace morve {

TEST(Form5Design, ProposalOfStirrupsStepsAtWholeSetsOfTwoLegs) {
    // Two legs of 5 mm hold 0.3927 cm2; at 7 cm that is 5.61 cm2/m per set.
    const double twoLegs = 0.5 * 0.5 * 3.14159265 / 2;
    const double perSet = twoLegs * 100 / 7;
    EXPECT_EQ(proposeStirrups(perSet * 0.999, 5.0, 30).legs, 2);
    EXPECT_EQ(proposeStirrups(perSet * 1.001, 5.0, 30).legs, 4);
    EXPECT_EQ(proposeStirrups(perSet * 2.001, 5.0, 30).legs, 6);
    // Just past a step the spacing falls back to about 14 cm, never below 7.
    EXPECT_EQ(proposeStirrups(perSet * 1.001, 5.0, 30).spacing, 13);
    EXPECT_EQ(proposeStirrups(perSet * 0.999, 5.0, 30).spacing, 7);
    EXPECT_EQ(maximumStirrupSpacing(false, 60), 30);
    EXPECT_EQ(maximumStirrupSpacing(true, 80), 20);
}

}  // namespace morve
