#pragma once
// The modules open in the page, each a session kept here by number between calls,
// and the inputs the page sends with a request: what the user typed since.
#include <memory>

#include <nlohmann/json.hpp>

#include "app/module.h"

namespace morve::web {

int keepSession(std::unique_ptr<ModuleSession> session);
// The session a request names by its "session"; RequestError when none is open.
ModuleSession& sessionOf(const nlohmann::json& request);
void dropSession(const nlohmann::json& request);

// The request's "inputs" into the session's boxes, lists, options and tables:
// {"fields": {"Form7.Text1": "20", ...}, "grids": {"Form34b.Grade1": [[header], [cells], ...]}}.
// Results and controls that take no input are left as the core wrote them.
void applyInputs(ModuleSession& session, const nlohmann::json& request);

}  // namespace morve::web
