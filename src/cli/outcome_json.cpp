#include "cli/outcome_json.h"

namespace morve {

using nlohmann::json;

json messagesJson(const std::vector<Message>& messages) {
    json out = json::array();
    for (const Message& m : messages)
        out.push_back({{"kind", messageKindName(m.kind)}, {"title", m.title}, {"text", m.text}, {"answer", m.answer}});
    return out;
}

json effectsJson(const std::vector<ScreenEffect>& effects) {
    json out = json::array();
    for (const ScreenEffect& e : effects) out.push_back({{"kind", effectKindName(e.kind)}, {"target", e.target}});
    return out;
}

json fieldsJson(const FormState& state) {
    json fields = json::object();
    for (const auto& [name, text] : state.texts()) fields[name] = text;
    return fields;
}

json gridsJson(const FormState& state) {
    json grids = json::object();
    for (const auto& [name, rows] : state.grids()) grids[name] = rows;
    return grids;
}

}  // namespace morve
