#pragma once
// `morve --screenshots DIR`: pictures of the menu, the start dialog, Form7 after a
// calculation, its report preview and its help, for a look at the program
// without a display.
#include <QString>

namespace morve {

// Returns the process exit status.
int takeScreenshots(const QString& folder);

}  // namespace morve
