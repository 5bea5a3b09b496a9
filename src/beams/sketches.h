#pragma once
// Fixed sketches of the input screens: the shape of the section and the names of
// its dimensions, not the user's numbers.
#include "draw/drawing.h"

namespace morve {

// A T section with its tension and compression steel, labelled bf, hf, bw, h, d, d'.
Drawing teeSectionSketch();

// A section with layers of steel at their depths d1, d2 from the compressed edge,
// rectangular (b) or T (bf, hf, bw).
Drawing layeredSectionSketch(bool tee);

}  // namespace morve
