#include "cli/case_runner.h"

#include <algorithm>

#include "app/catalogue.h"
#include "app/texts.h"
#include "cli/outcome_json.h"
#include "cli/project_case.h"

namespace morve {

using nlohmann::json;

namespace {

// Deeper than any case needs, and shallow enough that nothing built from a case
// (its values, our messages quoting them) can run out of stack.
constexpr int kMaxNesting = 32;

// A name or value of the case quoted in a message, cut to a readable length.
std::string excerpt(const std::string& text) { return quoteText(text); }
std::string excerpt(const json& value) {
    return quoteText(value.dump(-1, ' ', false, json::error_handler_t::replace));
}

// The JSON parser's own words, without its "[json.exception...]" tag.
std::string parserWords(const json::exception& e) {
    std::string what = e.what();
    if (auto tag = what.find("] "); what.rfind("[json.exception.", 0) == 0 && tag != std::string::npos)
        what.erase(0, tag + 2);
    return quoteText(what, 120);
}

StartDefaults readStartup(const json& c) {
    StartDefaults d;
    if (!c.contains("startup")) return d;
    const json& s = c.at("startup");
    if (!s.is_object()) throw CaseError("\"startup\" deve ser um objeto");
    const std::pair<const char*, int> fields[] = {
        {"fck", 1}, {"stirrups", 2}, {"bars", 3}, {"ecs", 4}, {"es", 5}};
    for (const auto& [key, value] : s.items()) {
        const std::string& name = key;  // a lambda may not capture a structured binding in every compiler
        auto it = std::find_if(std::begin(fields), std::end(fields),
                               [&](const auto& f) { return name == f.first; });
        if (it == std::end(fields)) throw CaseError("opção de início desconhecida: " + excerpt(key));
        std::string text = value.is_string() ? value.get<std::string>() : value.dump();
        if (!d.select(it->second, text))
            throw CaseError("valor de início inexistente para " + key + ": " + excerpt(text));
    }
    return d;
}

std::string textOf(const json& v) {
    if (v.is_string()) return v.get<std::string>();
    if (v.is_number() || v.is_boolean()) return v.dump();
    if (v.is_null()) return "";
    throw CaseError("valor inválido: " + excerpt(v));
}

void applySet(ModuleSession& session, const json& set) {
    if (!set.is_object()) throw CaseError("\"set\" deve ser um objeto");
    FormState& state = session.state();
    for (const auto& [name, value] : set.items()) {
        const ControlDecl* decl = state.declaration(name);
        if (!decl) throw CaseError("controle desconhecido: " + excerpt(name));
        switch (decl->kind) {
            case ControlKind::List: {
                std::string item = textOf(value);
                const std::vector<std::string>& items = state.items(name);
                if (!item.empty() && std::find(items.begin(), items.end(), item) == items.end())
                    throw CaseError("item inexistente na lista " + name + ": " + excerpt(item));
                state.setText(name, item);
                break;
            }
            case ControlKind::Option:
            case ControlKind::Check: {
                bool on = value.is_boolean() ? value.get<bool>() : textOf(value) == "true";
                state.setOption(name, on);
                break;
            }
            case ControlKind::TextBox: state.setText(name, textOf(value)); break;
            case ControlKind::ResultBox:
                throw CaseError("o controle " + name + " mostra um resultado e não recebe texto");
            default: throw CaseError("o controle não recebe texto: " + name);
        }
    }
}

void applyGrids(ModuleSession& session, const json& grids) {
    if (!grids.is_object()) throw CaseError("\"grids\" deve ser um objeto");
    FormState& state = session.state();
    for (const auto& [name, rows] : grids.items()) {
        const ControlDecl* decl = state.declaration(name);
        if (!decl || decl->kind != ControlKind::Grid) throw CaseError("grade desconhecida: " + excerpt(name));
        if (!rows.is_array()) throw CaseError("as linhas da grade " + name + " devem ser uma lista");
        GridRows& grid = state.grid(name);
        grid.resize(1);
        for (const auto& row : rows) {
            if (!row.is_array()) throw CaseError("linha inválida na grade " + name);
            std::vector<std::string> cells;
            for (const auto& cell : row) cells.push_back(textOf(cell));
            cells.resize(std::max(cells.size(), decl->grid.header.size()));
            grid.push_back(std::move(cells));
        }
    }
}

bool isCommand(const FormState& state, const std::string& name) {
    const ControlDecl* decl = state.declaration(name);
    return decl && decl->kind == ControlKind::Command;
}

}  // namespace

json parseCase(const std::string& text) {
    const json::parser_callback_t nesting = [](int depth, json::parse_event_t event, json&) {
        if ((event == json::parse_event_t::object_start || event == json::parse_event_t::array_start) &&
            depth >= kMaxNesting)
            throw CaseError("o arquivo do caso tem listas ou objetos aninhados demais (mais de " +
                            std::to_string(kMaxNesting) + " níveis)");
        return true;
    };
    try {
        return json::parse(text, nesting);
    } catch (const json::out_of_range& e) {
        // A number beyond the range of a double, such as 1e999.
        throw CaseError("o arquivo do caso tem um número fora do alcance: " + parserWords(e));
    } catch (const json::exception& e) {
        throw CaseError("o arquivo do caso não é JSON válido: " + parserWords(e));
    }
}

std::string outcomeText(const json& outcome) {
    return outcome.dump(2, ' ', false, json::error_handler_t::replace) + "\n";
}

CaseRun runCase(const json& c, bool recordSteps) {
    if (!c.is_object() || !c.contains("module") || !c.at("module").is_string())
        throw CaseError("o caso deve indicar o módulo: {\"module\": \"Form7\", ...}");
    const std::string key = c.at("module").get<std::string>();
    const Module* module = ModuleRegistry::find(key);
    if (!module) {
        if (ModuleCatalogue::byModule(key))
            throw CaseError("o módulo " + key + " ainda não está disponível nesta versão");
        throw CaseError("módulo desconhecido: " + key);
    }

    CaseRun run;
    run.session = std::make_unique<ModuleSession>(*module, readStartup(c));
    ModuleSession& session = *run.session;
    session.recordSteps(recordSteps);
    if (c.contains("open")) openCaseProject(session, c.at("open"));
    if (c.contains("set")) applySet(session, c.at("set"));
    if (c.contains("grids")) applyGrids(session, c.at("grids"));

    // A press is a button's name, or {"set": ..., "grids": ...}: texts typed between
    // two presses, as on a screen that only opens a button after a calculation.
    std::vector<json> presses{json(session.info().calculate)};
    if (c.contains("press")) {
        const json& p = c.at("press");
        if (!p.is_array()) throw CaseError("\"press\" deve ser uma lista de botões");
        presses.assign(p.begin(), p.end());
    }
    for (const auto& press : presses) {
        if (press.is_object()) {
            for (const auto& [key, value] : press.items())
                if (key != "set" && key != "grids") throw CaseError("entre botões só cabem \"set\" e \"grids\"");
        } else if (!isCommand(session.state(), textOf(press))) {
            throw CaseError("botão desconhecido: " + excerpt(textOf(press)));
        }
    }

    std::vector<std::string> answers;
    if (c.contains("answers")) {
        const json& a = c.at("answers");
        if (!a.is_array()) throw CaseError("\"answers\" deve ser uma lista");
        for (const auto& v : a) answers.push_back(textOf(v));
    }
    ScriptedPrompter prompter(answers);

    json steps = json::array();
    for (const auto& press : presses) {
        if (press.is_object()) {
            if (press.contains("set")) applySet(session, press.at("set"));
            if (press.contains("grids")) applyGrids(session, press.at("grids"));
            continue;
        }
        const std::string name = textOf(press);
        Outcome o = session.press(name, prompter);
        json step = {{"press", name},
                     {"completed", o.completed},
                     {"focus", o.focus.empty() ? json(nullptr) : json(o.focus)},
                     {"messages", messagesJson(prompter.takeMessages())},
                     {"effects", effectsJson(o.effects)}};
        if (!o.refused.empty()) step["refused"] = o.refused;
        steps.push_back(std::move(step));
    }
    run.outcome = {{"module", key},
                   {"steps", steps},
                   {"fields", fieldsJson(session.state())},
                   {"grids", gridsJson(session.state())}};
    return run;
}

}  // namespace morve
