#pragma once
// Writes a module's report to a file, by its extension: plain text with form
// feeds between pages, or PDF through the same painter the desktop prints with.
#include <string>

#include "app/module.h"

namespace morve {

// "" on success, otherwise what went wrong.
std::string writeReportFile(const ModuleSession& session, const std::string& path,
                            std::string key, const std::string& denomination);

}  // namespace morve
