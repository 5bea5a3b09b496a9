#pragma once
// Runs one case file through a module as the desktop would: Load, the typed
// texts, the presses with their answers. The outcome is JSON for the caller.
#include <memory>
#include <stdexcept>
#include <string>

#include <nlohmann/json.hpp>

#include "app/module.h"

namespace morve {

// A case that cannot be run as written (bad JSON, unknown module or control).
class CaseError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

struct CaseRun {
    std::unique_ptr<ModuleSession> session;
    nlohmann::json outcome;
};

// With recordSteps each "CALCULAR" writes its "Passo a passo" (session.steps()).
CaseRun runCase(const nlohmann::json& caseFile, bool recordSteps = false);
nlohmann::json parseCase(const std::string& text);
// The outcome as morve-calc prints it: indented by two, a line end after it.
std::string outcomeText(const nlohmann::json& outcome);

}  // namespace morve
