// Reading the boxes and writing the results: the longest decimal prefix, half to
// even on the scaled value, the floor from the 16-bit limit on, never nan or inf.
#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "app/numbers.h"

using morve::formatPlain;
using morve::formatResult;
using morve::readNumber;

TEST(ReadNumber, TakesTheLongestDecimalPrefixAndZeroForNone) {
    const std::pair<const char*, double> cases[] = {
        {"12.5", 12.5}, {"1.2.3", 1.2}, {"25kN", 25}, {"-100", -100}, {".5", 0.5}, {"-.5", -0.5}, {"  7", 7},
        {"3.", 3},      {"", 0},        {"abc", 0},   {".", 0},       {"-", 0},
        {"1,5", 1},  // a comma is not the mark
    };
    for (const auto& [text, value] : cases) EXPECT_DOUBLE_EQ(readNumber(text), value) << text;
    EXPECT_FALSE(std::signbit(readNumber("-0")));
}

TEST(FormatResult, HalfToEvenBelowTheLimitAndFloorFromIt) {
    const std::pair<double, const char*> cases[] = {
        {1.005, "1"},  // 100.49999... in binary rounds down
        {0.125, "0.12"}, {0.375, "0.38"},  // ties on 12.5 and 37.5 go to the even
        {2.5, "2.5"}, {9.3149, "9.31"}, {-3.254, "-3.25"}, {0, "0"}, {-0.001, "0"}, {12.50, "12.5"}, {7, "7"},
        // 32765.4 and 32765.9 still round; from 32766 on the scaled value is floored.
        {327.654, "327.65"}, {327.659, "327.66"}, {500.006, "500"}, {327.66, "327.66"}, {327.669, "327.66"},
        {1000.999, "1000.99"}, {-400.001, "-400.01"},  // floor goes down for negatives
    };
    for (const auto& [value, text] : cases) EXPECT_EQ(formatResult(value), text) << value;
    // Three decimals scale by a thousand: 0.5 ties to 0; 40500 is floored, exact.
    EXPECT_EQ(formatResult(0.6281, 3), "0.628");
    EXPECT_EQ(formatResult(0.0005, 3), "0");
    EXPECT_EQ(formatResult(0.0015, 3), "0.002");
    EXPECT_EQ(formatResult(40.5, 3), "40.5");
}

TEST(FormatResult, NeverShowsNanOrInf) {
    EXPECT_EQ(formatResult(std::numeric_limits<double>::quiet_NaN()), "");
    EXPECT_EQ(formatResult(std::numeric_limits<double>::infinity()), "");
    EXPECT_EQ(formatPlain(std::numeric_limits<double>::infinity()), "");
}

TEST(FormatPlain, PrintsWhatTheArithmeticGives) {
    const std::pair<double, const char*> cases[] = {{0.45, "0.45"}, {0.8 * 0.95 - 0.35, "0.41"}, {1, "1"}, {0, "0"},
                                                    {1.0 / 3.0, "0.333333333333333"}, {1e20, "100000000000000000000"}};
    for (const auto& [value, text] : cases) EXPECT_EQ(formatPlain(value), text) << value;
}
