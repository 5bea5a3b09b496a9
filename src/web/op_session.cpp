// "open", "press", "apply" and "close": a module's session from the menu to its
// close, each press answered with its outcome and the screens as they then stand.
#include <optional>

#include "app/catalogue.h"
#include "cli/outcome_json.h"
#include "web/replay_prompter.h"
#include "web/screen_json.h"
#include "web/sessions.h"
#include "web/state_json.h"
#include "web/web_ops.h"

namespace morve::web {

namespace {

// The start dialog's five selections, as the dialog's OK takes them.
StartDefaults startDefaults(const json& request) {
    StartDefaults d;
    if (!request.contains("startup")) return d;
    const json& s = request.at("startup");
    if (!s.is_array() || s.size() != 5) throw RequestError("\"startup\" deve ter cinco índices");
    int* fields[] = {&d.fck, &d.stirrupSteel, &d.barSteel, &d.ecsCode, &d.esCode};
    for (int n = 0; n < 5; ++n) {
        if (!s[n].is_number_integer()) throw RequestError("\"startup\" deve ter cinco índices");
        const int index = s[n].get<int>();
        *fields[n] = index;
        if (d.list(n + 1).empty()) throw RequestError("índice de início fora da lista " + std::to_string(n + 1));
    }
    d.confirm();
    return d;
}

json infoJson(const ModuleInfo& info) {
    return {{"key", info.key},
            {"calculate", info.calculate},
            {"printKey", info.printKey},
            {"unloads", info.unloads},
            {"busy", info.busy}};
}

json open(const json& request) {
    const std::string key = stringMember(request, "module");
    const Module* module = ModuleRegistry::find(key);
    if (!module) throw RequestError("módulo desconhecido: " + key);
    auto session = std::make_unique<ModuleSession>(*module, startDefaults(request));
    session->recordSteps(true);
    json screens = json::array();
    for (const ScreenDecl& s : session->state().screens()) screens.push_back(screenJson(s));
    const CatalogueRow* row = ModuleCatalogue::byModule(key);
    json out = {{"info", infoJson(session->info())},
                {"help", row ? row->help : ""},
                {"screens", screens},
                {"state", stateJson(*session)}};
    out["session"] = keepSession(std::move(session));
    return out;
}

std::vector<std::string> answersOf(const json& request) {
    std::vector<std::string> answers;
    if (!request.contains("answers")) return answers;
    const json& a = request.at("answers");
    if (!a.is_array()) throw RequestError("\"answers\" deve ser uma lista");
    for (const json& v : a) answers.push_back(v.is_string() ? v.get<std::string>() : "");
    return answers;
}

json press(const json& request) {
    ModuleSession& session = sessionOf(request);
    const std::string command = stringMember(request, "command");
    applyInputs(session, request);
    if (!session.state().has(command)) throw RequestError("botão desconhecido: " + command);
    // Put back whole when a question stops the press or the press fails.
    const ModuleSession before = session;
    ReplayPrompter prompter(answersOf(request));
    try {
        const Outcome o = session.press(command, prompter);
        json outcome = {{"completed", o.completed},
                        {"focus", o.focus},
                        {"refused", o.refused},
                        {"effects", effectsJson(o.effects)}};
        return {{"outcome", outcome}, {"messages", messagesJson(prompter.messages())}, {"state", stateJson(session)}};
    } catch (const QuestionAsked& q) {
        json asked = {{"kind", messageKindName(q.question.kind)}, {"title", q.question.title}, {"text", q.question.text}};
        json out = {{"question", asked}, {"messages", messagesJson(prompter.messages())}, {"state", stateJson(session)}};
        session = before;
        return out;
    } catch (...) {
        session = before;
        throw;
    }
}

std::optional<EffectKind> effectKindNamed(const std::string& name) {
    for (int k = 0; k <= static_cast<int>(EffectKind::PrintPicture); ++k)
        if (name == effectKindName(static_cast<EffectKind>(k))) return static_cast<EffectKind>(k);
    return std::nullopt;
}

json apply(const json& request) {
    ModuleSession& session = sessionOf(request);
    applyInputs(session, request);
    Outcome outcome;
    const json& effects = member(request, "effects");
    if (!effects.is_array()) throw RequestError("\"effects\" deve ser uma lista");
    for (const json& e : effects) {
        const std::optional<EffectKind> kind = effectKindNamed(stringMember(e, "kind"));
        if (!kind) throw RequestError("efeito desconhecido: " + stringMember(e, "kind"));
        outcome.then(*kind, stringMember(e, "target"));
    }
    session.apply(outcome);
    return {{"state", stateJson(session)}};
}

json close(const json& request) {
    dropSession(request);
    return json::object();
}

const RegisterOp registeredOpen("open", open);
const RegisterOp registeredPress("press", press);
const RegisterOp registeredApply("apply", apply);
const RegisterOp registeredClose("close", close);

}  // namespace

}  // namespace morve::web
