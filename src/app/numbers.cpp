#include "app/numbers.h"

#include <cctype>
#include <cmath>
#include <cstdio>
#include <cstdlib>

#include "numeric/elementary.h"

namespace morve {

double readNumber(std::string_view text) {
    std::size_t i = 0;
    while (i < text.size() && (text[i] == ' ' || text[i] == '\t')) ++i;
    std::string prefix;
    if (i < text.size() && (text[i] == '-' || text[i] == '+')) prefix += text[i++];
    bool digits = false, point = false;
    for (; i < text.size(); ++i) {
        char c = text[i];
        if (std::isdigit(static_cast<unsigned char>(c))) {
            digits = true;
            prefix += c;
        } else if (c == '.' && !point) {
            point = true;
            prefix += c;
        } else {
            break;
        }
    }
    if (!digits) return 0.0;
    double v = std::strtod(prefix.c_str(), nullptr);
    if (!std::isfinite(v)) return 0.0;
    return v == 0.0 ? 0.0 : v;  // no "-0" leaks into the arithmetic
}

namespace {

// An integral double written as digits with a decimal mark placed `decimals` from
// the right, trailing zeros dropped.
std::string scaledIntegerText(double y, int decimals) {
    char buf[400];
    std::snprintf(buf, sizeof buf, "%.0f", std::fabs(y));
    std::string digits = buf;
    if (digits == "0") return "0";
    if (static_cast<int>(digits.size()) <= decimals)
        digits.insert(0, static_cast<std::size_t>(decimals) + 1 - digits.size(), '0');
    std::string whole = digits.substr(0, digits.size() - static_cast<std::size_t>(decimals));
    std::string frac = digits.substr(digits.size() - static_cast<std::size_t>(decimals));
    while (!frac.empty() && frac.back() == '0') frac.pop_back();
    std::string out = y < 0 ? "-" : "";
    out += whole;
    if (!frac.empty()) out += "." + frac;
    return out;
}

}  // namespace

std::string formatResult(double x, int decimals) {
    if (!std::isfinite(x)) return "";
    double n = portable::pow(10.0, decimals);
    double y = x * n;
    // nearbyint follows the default rounding mode, ties to even.
    y = std::fabs(y) < 32766.0 ? std::nearbyint(y) : std::floor(y);
    if (y == 0.0) return "0";
    return scaledIntegerText(y, decimals);
}

std::string formatPlain(double x) {
    if (!std::isfinite(x)) return "";
    if (x == 0.0) return "0";
    char buf[64];
    std::snprintf(buf, sizeof buf, "%.15g", x);
    std::string s = buf;
    // %.15g may choose exponent notation for very large or small values; a report
    // line reads better with plain digits.
    if (s.find('e') != std::string::npos) {
        std::snprintf(buf, sizeof buf, "%.15f", x);
        s = buf;
        if (s.find('.') != std::string::npos) {
            while (s.back() == '0') s.pop_back();
            if (s.back() == '.') s.pop_back();
        }
    }
    return s;
}

}  // namespace morve
