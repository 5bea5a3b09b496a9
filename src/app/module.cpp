#include "app/module.h"

#include <algorithm>
#include <map>

#include "app/report_document.h"

namespace morve {

void Module::load(FormState&, const StartDefaults&) const {}

void Module::report(const std::string&, const FormState&, ReportWriter&) const {}

Drawing Module::drawing(const std::string&, const FormState&) const { return {}; }

Chart Module::chart(const std::string&, const FormState&) const { return {}; }

std::vector<std::string> Module::projectFields() const {
    std::vector<std::string> fields;
    for (const auto& screen : screens())
        for (const auto& c : screen.controls)
            if (c.kind == ControlKind::TextBox || c.kind == ControlKind::List ||
                c.kind == ControlKind::Option || c.kind == ControlKind::Check ||
                (c.kind == ControlKind::Grid && !c.grid.results))
                fields.push_back(screen.name + "." + c.name);
    return fields;
}

namespace {

std::map<std::string, std::unique_ptr<Module>>& registry() {
    static std::map<std::string, std::unique_ptr<Module>> modules;
    return modules;
}

bool contains(const std::vector<std::string>& names, const std::string& name) {
    return std::find(names.begin(), names.end(), name) != names.end();
}

void erase(std::vector<std::string>& names, const std::string& name) {
    names.erase(std::remove(names.begin(), names.end(), name), names.end());
}

}  // namespace

void ModuleRegistry::add(std::unique_ptr<Module> module) {
    std::string key = module->info().key;
    registry()[key] = std::move(module);
}

const Module* ModuleRegistry::find(const std::string& key) {
    auto it = registry().find(key);
    return it == registry().end() ? nullptr : it->second.get();
}

std::vector<std::string> ModuleRegistry::keys() {
    std::vector<std::string> out;
    for (const auto& [key, module] : registry()) out.push_back(key);
    return out;
}

ModuleSession::ModuleSession(const Module& module, const StartDefaults& defaults)
    : module_(&module), info_(module.info()), state_(info_.key, module.screens()) {
    steps_.module = info_.key;
    if (!state_.screens().empty()) {
        const ScreenDecl& main = state_.screens().front();
        steps_.title = main.heading.empty() ? main.title : main.heading;
    }
    // Every module opens with the toolbar's "Imprimir" disabled until a calculation succeeds.
    state_.setEnabled(printButton(info_.key), false);
    module.load(state_, defaults);
    shown_.push_back(info_.key);
}

Outcome ModuleSession::press(const std::string& command, Prompter& prompter) {
    if (std::string why = refusal(command); !why.empty()) {
        Outcome refused = Outcome::stop();
        refused.refused = std::move(why);
        return refused;
    }
    const bool calculation = recordSteps_ && state_.qualify(command) == state_.qualify(info_.calculate);
    Trace trace;
    Trace* previous = prompter.trace();
    if (calculation) prompter.setTrace(&trace);
    Outcome outcome = module_->press(command, state_, prompter);
    if (calculation) {
        prompter.setTrace(previous);
        trace.module = info_.key;
        trace.title = steps_.title;
        trace.ran = true;
        trace.stopped = trace.stopped || !outcome.completed;
        steps_ = std::move(trace);
    }
    if (!outcome.focus.empty()) outcome.focus = state_.qualify(outcome.focus);
    apply(outcome);
    return outcome;
}

std::string ModuleSession::refusal(const std::string& command) const {
    const std::string name = state_.qualify(command);
    const std::string screen = name.substr(0, name.find('.'));
    if (!screenShown(screen) || !state_.visible(name)) return "hidden";
    if (contains(disabledScreens_, screen) || !state_.enabled(name)) return "disabled";
    return "";
}

void ModuleSession::apply(const Outcome& outcome) {
    // A screen disabled behind a report is given back by the report window when
    // it closes, outside any command, so it is not kept as disabled here.
    const bool report = std::any_of(outcome.effects.begin(), outcome.effects.end(),
                                    [](const ScreenEffect& e) { return e.kind == EffectKind::StartReport; });
    for (const auto& e : outcome.effects) {
        switch (e.kind) {
            case EffectKind::ShowScreen:
                if (!screenShown(e.target)) shown_.push_back(e.target);
                break;
            case EffectKind::HideScreen: erase(shown_, e.target); break;
            case EffectKind::UnloadScreen:
                erase(shown_, e.target);
                erase(disabledScreens_, e.target);
                break;
            case EffectKind::EnableControl: state_.setEnabled(e.target, true); break;
            case EffectKind::DisableControl: state_.setEnabled(e.target, false); break;
            case EffectKind::ShowControl: state_.setVisible(e.target, true); break;
            case EffectKind::HideControl: state_.setVisible(e.target, false); break;
            case EffectKind::EnableScreen: erase(disabledScreens_, e.target); break;
            case EffectKind::DisableScreen:
                if (!report && !contains(disabledScreens_, e.target)) disabledScreens_.push_back(e.target);
                break;
            case EffectKind::StartReport:
            case EffectKind::SavePicture:
            case EffectKind::PrintPicture: break;  // the front end's windows
        }
    }
}

bool ModuleSession::screenShown(const std::string& screen) const { return contains(shown_, screen); }

const char* effectKindName(EffectKind kind) {
    switch (kind) {
        case EffectKind::ShowScreen: return "show";
        case EffectKind::HideScreen: return "hide";
        case EffectKind::UnloadScreen: return "unload";
        case EffectKind::EnableScreen: return "enableScreen";
        case EffectKind::DisableScreen: return "disableScreen";
        case EffectKind::EnableControl: return "enable";
        case EffectKind::DisableControl: return "disable";
        case EffectKind::ShowControl: return "showControl";
        case EffectKind::HideControl: return "hideControl";
        case EffectKind::StartReport: return "report";
        case EffectKind::SavePicture: return "savePicture";
        case EffectKind::PrintPicture: return "printPicture";
    }
    return "";
}

}  // namespace morve
