#pragma once
// Project files from the command line: a case may start from a saved project
// ("open": "FILE.mor", read after Load and before "set" and "grids"), and
// --save writes the project of the case after its presses. Only modules that keep
// project files on the desktop keep them here.
#include <string>

#include <nlohmann/json.hpp>

#include "app/module.h"

namespace morve {

// A relative "open" names a file beside the case file, so a case and its project
// travel together.
void resolveCaseProject(nlohmann::json& caseFile, const std::string& casePath);
// Throw CaseError with the program's message when the file is refused.
void openCaseProject(ModuleSession& session, const nlohmann::json& file);
void saveCaseProject(const ModuleSession& session, const std::string& path);

}  // namespace morve
