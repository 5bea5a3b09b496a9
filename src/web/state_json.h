#pragma once
// A session's screens as they stand: what every box and table holds, which lists
// offer what, what is disabled or hidden, the screens shown, and the drawings and
// charts of the pictures on the screens shown. The page redraws from this alone.
#include <nlohmann/json.hpp>

#include "app/module.h"

namespace morve::web {

nlohmann::json stateJson(const ModuleSession& session);

}  // namespace morve::web
