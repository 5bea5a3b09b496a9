// "save", "load" and "tag": project files (.mor) as text, the same format as the
// desktop's, so that a file moves between the two. The page reads and writes the
// user's disk; the core only turns the text into inputs and back.
#include "reports/project_file.h"
#include "web/sessions.h"
#include "web/state_json.h"
#include "web/web_ops.h"

namespace morve::web {

namespace {

json save(const json& request) {
    ModuleSession& session = sessionOf(request);
    applyInputs(session, request);
    return {{"text", writeProjectText(session.module(), session.state())}};
}

json load(const json& request) {
    ModuleSession& session = sessionOf(request);
    const ProjectResult r = readProjectText(session.module(), stringMember(request, "text"), session.state());
    return {{"message", r.message}, {"state", stateJson(session)}};
}

json tag(const json& request) { return {{"module", projectTextTag(stringMember(request, "text"))}}; }

const RegisterOp registeredSave("save", save);
const RegisterOp registeredLoad("load", load);
const RegisterOp registeredTag("tag", tag);

}  // namespace

}  // namespace morve::web
