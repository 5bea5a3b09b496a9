#pragma once
// A module's drawing as a DXF file for the CAD program the user details in: real
// units where the drawing has them ($INSUNITS), one layer per kind of shape, texts
// as TEXT entities. No Qt: morve-calc writes it without the desktop's libraries.
#include <string>

#include "draw/drawing.h"

namespace morve {

// The layer of each kind of shape, in the program's words.
const char* dxfLayer(ShapeKind kind);

// Writes through a temporary file renamed over the target. "" when done, else the
// text to show.
std::string writeDxf(const Drawing& drawing, const std::string& path);

}  // namespace morve
