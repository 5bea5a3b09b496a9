#pragma once
// The recovery file: what was typed in the open module, kept in the user's state
// folder while the module is open, so that a crash or a power cut loses nothing.
// It is a project file like any other, written the same atomic way; a clean close
// deletes it, and its presence at the next start means the last session ended
// without one.
#include <string>

#include "reports/project_file.h"

namespace morve {

// $XDG_STATE_HOME/morve/recuperacao.mor, else ~/.local/state/morve/recuperacao.mor.
std::string recoveryFilePath();
bool recoveryFileExists();
// Creates the folder when it is missing. The text is a project file's.
ProjectResult writeRecoveryFile(const std::string& text);
void removeRecoveryFile();

}  // namespace morve
