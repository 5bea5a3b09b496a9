#pragma once
// How the program turns box text into numbers and results back into text.
#include <string>
#include <string_view>

namespace morve {

// The value of a box: the longest prefix that reads as a decimal number with
// "." as the mark (leading blanks and one sign allowed); empty or unreadable is 0.
double readNumber(std::string_view text);

// A rounded result: y = x * 10^decimals; below 32766 in size y is rounded half to
// even, at or above it y is floored (the old integer conversion could not hold it);
// y / 10^decimals is then written exactly in its shortest form ("12.5", "0", "-3.25").
// A value that is not finite has no text: the calculations guard against it before.
std::string formatResult(double x, int decimals = 2);

// A number as the report prints an unrounded value: up to 15 significant digits,
// shortest form, "." as the mark.
std::string formatPlain(double x);

}  // namespace morve
