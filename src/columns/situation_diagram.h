#pragma once
// The pictures of the column situations: the plot of the design situations in the
// plane (ex/hx, ey/hy) of Form35d, and the section types of Form35b.
#include "app/form_state.h"
#include "draw/drawing.h"

namespace morve {

struct SituationPoint {
    double x = 0, y = 0;  // ex / hx, ey / hy
    std::string radius;   // sqrt(x^2 + y^2), rounded to two decimals
};

// The situations of Form35c's grid, relative to the widths typed on Form35; none
// when a width is zero.
std::vector<SituationPoint> situationPoints(const FormState& state);

// Both axes share one scale, the largest relative eccentricity of all rows, so
// that the plot shows which direction governs; ticks at fifths of it.
Drawing situationDiagram(const FormState& state);

// Three sections (rectangle, L, circle) with the directions x and y of the widths
// and of the inertias Ix and Iy.
Drawing sectionTypesDrawing();

}  // namespace morve
