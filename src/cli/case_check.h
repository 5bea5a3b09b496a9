#pragma once
// Checks a run case against the "expect" object of its file: how the last press
// ended, what it said last and where it left the focus, the texts of boxes and
// cells, texts that must appear somewhere on a screen, and report lines. A case
// verified once by hand can so be rerun after every change.
#include <string>
#include <vector>

#include <nlohmann/json.hpp>

#include "cli/case_runner.h"

namespace morve {

// What falls short, one text per expectation not met; empty when all are met.
// Throws CaseError when "expect" itself is malformed.
std::vector<std::string> checkCase(const nlohmann::json& caseFile, const CaseRun& run);

// Runs every file and prints a line for each that falls short, then
// "N passed, M failed"; the exit status is 0 only when none failed.
int checkCaseFiles(const std::vector<std::string>& paths);

}  // namespace morve
