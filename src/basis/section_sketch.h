#pragma once
// The fixed sketch of a rectangular section with its steel, labelled b, h, d, d',
// As and A's: the picture of the beam design and of the tie designs.
#include "draw/drawing.h"

namespace morve {

Drawing rectangularSectionSketch();

}  // namespace morve
