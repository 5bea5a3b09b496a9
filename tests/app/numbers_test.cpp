#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "app/numbers.h"

using morve::readNumber;
using morve::formatResult;
using morve::formatPlain;

TEST(ReadNumber, TakesTheLongestDecimalPrefix) {
    EXPECT_DOUBLE_EQ(readNumber("12.5"), 12.5);
    EXPECT_DOUBLE_EQ(readNumber("1.2.3"), 1.2);
    EXPECT_DOUBLE_EQ(readNumber("25kN"), 25);
    EXPECT_DOUBLE_EQ(readNumber("-100"), -100);
    EXPECT_DOUBLE_EQ(readNumber(".5"), 0.5);
    EXPECT_DOUBLE_EQ(readNumber("-.5"), -0.5);
    EXPECT_DOUBLE_EQ(readNumber("  7"), 7);
    EXPECT_DOUBLE_EQ(readNumber("3."), 3);
}

TEST(ReadNumber, EmptyOrUnreadableIsZero) {
    EXPECT_EQ(readNumber(""), 0);
    EXPECT_EQ(readNumber("abc"), 0);
    EXPECT_EQ(readNumber("."), 0);
    EXPECT_EQ(readNumber("-"), 0);
    EXPECT_EQ(readNumber("1,5"), 1);  // a comma is not the mark
    EXPECT_FALSE(std::signbit(readNumber("-0")));
}

TEST(FormatResult, RoundsHalfToEvenOnTheScaledValue) {
    // 1.005 * 100 is 100.49999... in binary, so it rounds down.
    EXPECT_EQ(formatResult(1.005), "1");
    EXPECT_EQ(formatResult(0.125), "0.12");  // 12.5 exactly: tie to the even 12
    EXPECT_EQ(formatResult(0.375), "0.38");  // 37.5: tie to the even 38
    EXPECT_EQ(formatResult(2.5), "2.5");
    EXPECT_EQ(formatResult(9.3149), "9.31");
    EXPECT_EQ(formatResult(-3.254), "-3.25");
    EXPECT_EQ(formatResult(0), "0");
    EXPECT_EQ(formatResult(-0.001), "0");
    EXPECT_EQ(formatResult(12.50), "12.5");
    EXPECT_EQ(formatResult(7), "7");
}

TEST(FormatResult, FloorsFromThe16BitLimitOn) {
    EXPECT_EQ(formatResult(327.654), "327.65");  // 32765.4 rounds
    EXPECT_EQ(formatResult(327.659), "327.66");  // 32765.9 still rounds, up to 32766
    EXPECT_EQ(formatResult(500.006), "500");     // 50000.6 floors
    EXPECT_EQ(formatResult(327.66), "327.66");
    EXPECT_EQ(formatResult(327.669), "327.66");  // floored, the rounding up is lost
    EXPECT_EQ(formatResult(1000.999), "1000.99");
    EXPECT_EQ(formatResult(-400.001), "-400.01");  // floor goes down for negatives
}

TEST(FormatResult, ThreeDecimalsScaleByAThousand) {
    EXPECT_EQ(formatResult(0.6281, 3), "0.628");
    EXPECT_EQ(formatResult(0.0005, 3), "0");    // 0.5 ties to 0
    EXPECT_EQ(formatResult(0.0015, 3), "0.002");
    EXPECT_EQ(formatResult(40.5, 3), "40.5");  // 40500 is above the limit: floored, exact
}

TEST(FormatResult, NeverShowsNanOrInf) {
    EXPECT_EQ(formatResult(std::numeric_limits<double>::quiet_NaN()), "");
    EXPECT_EQ(formatResult(std::numeric_limits<double>::infinity()), "");
    EXPECT_EQ(formatPlain(std::numeric_limits<double>::infinity()), "");
}

TEST(FormatPlain, PrintsWhatTheArithmeticGives) {
    EXPECT_EQ(formatPlain(0.45), "0.45");
    EXPECT_EQ(formatPlain(0.8 * 0.95 - 0.35), "0.41");
    EXPECT_EQ(formatPlain(1), "1");
    EXPECT_EQ(formatPlain(0), "0");
    EXPECT_EQ(formatPlain(1.0 / 3.0), "0.333333333333333");
    EXPECT_EQ(formatPlain(1e20), "100000000000000000000");
}
