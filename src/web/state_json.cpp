#include "web/state_json.h"

#include "cli/outcome_json.h"
#include "web/drawing_json.h"

namespace morve::web {

using nlohmann::json;

json stateJson(const ModuleSession& session) {
    const FormState& state = session.state();
    json items = json::object(), drawings = json::object(), charts = json::object();
    for (const ScreenDecl& screen : state.screens()) {
        const bool shown = session.screenShown(screen.name);
        for (const ControlDecl& c : screen.controls) {
            const std::string name = screen.name + "." + c.name;
            if (c.kind == ControlKind::List) items[name] = state.items(name);
            if (!shown) continue;
            if (c.kind == ControlKind::Picture) {
                const Drawing d = session.module().drawing(name, state);
                if (!d.empty()) drawings[name] = drawingJson(d);
            } else if (c.kind == ControlKind::Chart) {
                const Chart ch = session.module().chart(name, state);
                if (!ch.empty()) charts[name] = chartJson(ch);
            }
        }
    }
    return {{"fields", fieldsJson(state)},
            {"grids", gridsJson(state)},
            {"items", items},
            {"disabled", state.disabledNames()},
            {"hidden", state.hiddenNames()},
            {"shown", session.shownScreens()},
            {"disabledScreens", session.disabledScreens()},
            {"drawings", drawings},
            {"charts", charts}};
}

}  // namespace morve::web
