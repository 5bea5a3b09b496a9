#pragma once
// The keyboard filters of numeric boxes and grid cells. They see a character code
// before the box does and may change it; code 0 means the key is swallowed.
// Backspace (8) and every control code are swallowed too: deletion in a box is by
// the Delete key or by selection, as the program has always done.

namespace morve {

enum class KeyFilter { None, PositiveNumber, SignedNumber, Digit };

struct FilteredKey {
    int code;   // the code to pass on, 0 when swallowed
    bool beep;  // the key was refused
};

FilteredKey PositiveNumberKey(int code);
FilteredKey SignedNumberKey(int code);
FilteredKey DigitKey(int code);
FilteredKey applyKeyFilter(KeyFilter filter, int code);

}  // namespace morve
