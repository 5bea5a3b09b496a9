#include "app/key_filters.h"

namespace morve {

namespace {

constexpr int kComma = 44, kMinus = 45, kPoint = 46, kSlash = 47, kZero = 48, kNine = 57;

FilteredKey numberKey(int code, int lowestAccepted) {
    if (code == kComma) code = kPoint;
    if (code < lowestAccepted || code > kNine || code == kSlash) return {0, true};
    return {code, false};
}

}  // namespace

FilteredKey PositiveNumberKey(int code) { return numberKey(code, kPoint); }

FilteredKey SignedNumberKey(int code) { return numberKey(code, kMinus); }

FilteredKey DigitKey(int code) {
    if (code < kZero || code > kNine) return {0, true};
    return {code, false};
}

FilteredKey applyKeyFilter(KeyFilter filter, int code) {
    switch (filter) {
        case KeyFilter::PositiveNumber: return PositiveNumberKey(code);
        case KeyFilter::SignedNumber: return SignedNumberKey(code);
        case KeyFilter::Digit: return DigitKey(code);
        case KeyFilter::None: break;
    }
    return {code, false};
}

}  // namespace morve
