#pragma once
// Painting text needs a font database, and that needs a Qt application object.
// Programs without windows (morve-calc) get one on the offscreen platform, so they
// run without a display.

namespace morve {

// Creates the application object when none exists; harmless when one does.
void ensurePaintingApplication();

}  // namespace morve
