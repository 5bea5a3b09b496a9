#include "web/sessions.h"

#include <algorithm>
#include <map>

#include "web/web_ops.h"

namespace morve::web {

namespace {

std::map<int, std::unique_ptr<ModuleSession>>& sessions() {
    static std::map<int, std::unique_ptr<ModuleSession>> open;
    return open;
}

int sessionNumber(const json& request) { return intMember(request, "session"); }

std::string textOf(const json& value) {
    if (value.is_string()) return value.get<std::string>();
    if (value.is_boolean()) return value.get<bool>() ? "True" : "";
    if (value.is_null()) return "";
    return value.dump();
}

void applyField(FormState& state, const std::string& name, const json& value) {
    const ControlDecl* decl = state.has(name) ? state.declaration(name) : nullptr;
    if (!decl) throw RequestError("controle desconhecido: " + name);
    const std::string text = textOf(value);
    switch (decl->kind) {
        case ControlKind::TextBox: state.setText(name, text); break;
        case ControlKind::List: {
            // A list holds one of its items or nothing, whatever the page sends.
            const std::vector<std::string>& items = state.items(name);
            if (text.empty() || std::find(items.begin(), items.end(), text) != items.end()) state.setText(name, text);
            break;
        }
        case ControlKind::Option:
        case ControlKind::Check: state.setOption(name, text == "True" || text == "true"); break;
        default: break;
    }
}

void applyGrid(FormState& state, const std::string& name, const json& rows) {
    const ControlDecl* decl = state.has(name) ? state.declaration(name) : nullptr;
    if (!decl || decl->kind != ControlKind::Grid) throw RequestError("grade desconhecida: " + name);
    if (decl->grid.results) return;
    if (!rows.is_array()) throw RequestError("as linhas da grade " + name + " devem ser uma lista");
    GridRows& grid = state.grid(name);
    grid.resize(1);  // the header stays the core's
    for (std::size_t r = 1; r < rows.size(); ++r) {
        if (!rows[r].is_array()) throw RequestError("linha inválida na grade " + name);
        std::vector<std::string> cells;
        for (const json& cell : rows[r]) cells.push_back(textOf(cell));
        cells.resize(std::max(cells.size(), decl->grid.header.size()));
        grid.push_back(std::move(cells));
    }
}

}  // namespace

int keepSession(std::unique_ptr<ModuleSession> session) {
    static int last = 0;
    sessions()[++last] = std::move(session);
    return last;
}

ModuleSession& sessionOf(const json& request) {
    const auto it = sessions().find(sessionNumber(request));
    if (it == sessions().end()) throw RequestError("sessão inexistente");
    return *it->second;
}

void dropSession(const json& request) { sessions().erase(sessionNumber(request)); }

void applyInputs(ModuleSession& session, const json& request) {
    if (!request.contains("inputs")) return;
    const json& inputs = request.at("inputs");
    if (!inputs.is_object()) throw RequestError("\"inputs\" deve ser um objeto");
    FormState& state = session.state();
    if (const auto f = inputs.find("fields"); f != inputs.end() && f->is_object())
        for (const auto& [name, value] : f->items()) applyField(state, name, value);
    if (const auto g = inputs.find("grids"); g != inputs.end() && g->is_object())
        for (const auto& [name, rows] : g->items()) applyGrid(state, name, rows);
}

}  // namespace morve::web
