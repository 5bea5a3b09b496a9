#pragma once
// Every matrix analysis refuses a mechanism whatever the last bits of its data: the
// mechanism as drawn, and its inputs nudged by one part in 1e12 either way, give the
// same refusal. A pivot lost to rounding changes sign with such a nudge, so a rule
// that only asks for a positive pivot would let some of them through.
#include <gtest/gtest.h>

#include <functional>

namespace mechanisms {

// `refused(f)` builds the mechanism with its inputs scaled by f and tells whether
// the analysis refused it.
inline void refusedWhateverTheLastBits(const char* what, const std::function<bool(double)>& refused) {
    for (double f : {1.0, 1 + 1e-12, 1 - 1e-12, 1 + 3e-12, 1 - 7e-12}) EXPECT_TRUE(refused(f)) << what << " x " << f;
}

}  // namespace mechanisms
