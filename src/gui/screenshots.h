#pragma once
// `morve --screenshots DIR`: pictures of the menu, the start dialog, Form7 after a
// calculation with its detailing, report preview and help, the torsion results,
// the detailing of a T, a column design with its section, an interaction diagram
// and the design situations with their plot, the four-sided slab with its six
// patterns and its results, the free-edge slab's results, the polygonal sections
// under oblique bending with their neutral axis and moment contour, for a look at
// the program without a display.
#include <QString>

namespace morve {

// Returns the process exit status.
int takeScreenshots(const QString& folder);

}  // namespace morve
