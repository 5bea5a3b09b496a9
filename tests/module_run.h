#pragma once
// A module opened as from the menu, its boxes set by name (an option by "True"),
// one button pressed with the answers scripted, and what the user was told.
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "app/module.h"
#include "app/prompter.h"

namespace morve::testing {

struct Run {
    std::unique_ptr<ModuleSession> session;
    ScriptedPrompter prompter;
    Outcome outcome;
    const std::string& text(const std::string& name) const { return session->state().text(name); }
};

inline std::unique_ptr<Run> pressWith(const std::string& key, const std::string& command,
                                      const std::map<std::string, std::string>& set,
                                      std::vector<std::string> answers = {}, StartDefaults defaults = {}) {
    auto run = std::make_unique<Run>();
    run->session = std::make_unique<ModuleSession>(*ModuleRegistry::find(key), defaults);
    FormState& s = run->session->state();
    for (const auto& [name, value] : set) {
        const ControlDecl* decl = s.declaration(name);
        if (decl && decl->kind == ControlKind::Option) s.setOption(name, value == "True");
        else s.setText(name, value);
    }
    run->prompter = ScriptedPrompter(std::move(answers));
    run->outcome = run->session->press(command, run->prompter);
    return run;
}

// The base boxes of a case with some changed.
inline std::map<std::string, std::string> with(std::map<std::string, std::string> base,
                                               const std::map<std::string, std::string>& changes) {
    for (const auto& [k, v] : changes) base[k] = v;
    return base;
}

}  // namespace morve::testing
