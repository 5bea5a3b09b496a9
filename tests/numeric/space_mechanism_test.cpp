// The space frame on its mechanism; see nudged_mechanism.h.
#include <gtest/gtest.h>

#include <cmath>

#include "nudged_mechanism.h"
#include "stairs/helix.h"

using namespace morve;
using mechanisms::refusedWhateverTheLastBits;

namespace {

TEST(Mechanisms, SpaceFrameRefusesThemWhateverTheLastBits) {
    // A flat helix of a full turn, hinged at both ends: the two ends meet, and the
    // stair turns about them.
    refusedWhateverTheLastBits("flat full-turn helix on hinges", [](double f) {
        Helix h;
        h.opening = 2 * std::acos(-1.0) * f;
        h.radius = 1.5 / f;
        h.thickness = 0.15 * f;
        h.width = 1.2;
        h.modulus = 2.85e7 / f;
        h.g = 1 * f, h.q = 3;
        h.fixedEnds = false;
        h.bars = 48;
        return !analyseSpaceFrame(helixModel(h)).solved;
    });
}

}  // namespace
