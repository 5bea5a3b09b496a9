#pragma once
// The contract of a calculation module: its screens as data, the defaults it puts
// in them, what each of its commands does, its reports and its pictures. A module
// is written once here and runs unchanged under the desktop and the case runner.
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "app/form_state.h"
#include "app/outcome.h"
#include "app/prompter.h"
#include "app/screen.h"
#include "app/start_defaults.h"
#include "app/trace.h"
#include "draw/chart.h"
#include "draw/drawing.h"

namespace morve {

class ReportWriter;

struct ModuleInfo {
    std::string key;                   // "Form7": main screen, report and help
    std::vector<std::string> unloads;  // companions unloaded, in order, by "Novo",
                                       // "Início" and the close, before the module
    std::string printKey;              // report of the toolbar's "Imprimir"; "" for none
    std::string calculate = "Command1";  // the "&CALCULAR" button
    // Commands whose run can be long, each with the status button ("Calculando...
    // Aguarde.") that the desktop shows while it runs and hides after; qualified
    // names, as "Form16.Command4" -> "Form16.Command11".
    std::map<std::string, std::string> busy;
};

class Module {
public:
    virtual ~Module() = default;
    virtual ModuleInfo info() const = 0;
    // The main screen first, then its companions.
    virtual std::vector<ScreenDecl> screens() const = 0;
    // Defaults from the start dialog into the boxes (the declared defaults are
    // already there).
    virtual void load(FormState& state, const StartDefaults& defaults) const;
    virtual Outcome press(const std::string& command, FormState& state, Prompter& prompter) const = 0;
    // The lines of the report of a key this module owns; the title is written by
    // the caller.
    virtual void report(const std::string& key, const FormState& state, ReportWriter& out) const;
    // The picture shown in a picture box ("Form8b.Picture1"); empty when none.
    virtual Drawing drawing(const std::string& picture, const FormState& state) const;
    // The chart of a chart control ("Form13c.Chart1"); empty when none.
    virtual Chart chart(const std::string& control, const FormState& state) const;
    // The inputs a project file keeps after the module tag, qualified and in file
    // order: boxes, list selections, options and grids (a grid as its row count,
    // then its cells). Every module keeps files. By default every input control of
    // every screen, in the order declared, leaving out the tables a calculation
    // fills; a module overrides it only to choose or order them.
    virtual std::vector<std::string> projectFields() const;
};

// Modules register themselves by key; the menu enables what is registered.
class ModuleRegistry {
public:
    static void add(std::unique_ptr<Module> module);
    static const Module* find(const std::string& key);
    static std::vector<std::string> keys();
};

template <class M>
struct RegisterModule {
    RegisterModule() { ModuleRegistry::add(std::make_unique<M>()); }
};

// A module opened from the menu: its boxes and the screens it shows. Every press
// goes through here so that the enabling and showing that a command asks for is
// kept in one place for all front ends.
class ModuleSession {
public:
    ModuleSession(const Module& module, const StartDefaults& defaults);

    const Module& module() const { return *module_; }
    const ModuleInfo& info() const { return info_; }
    FormState& state() { return state_; }
    const FormState& state() const { return state_; }

    // A command runs only where the desktop lets the user reach it: a button that
    // is disabled, or hidden, or on a screen not shown or disabled, is refused and
    // nothing changes.
    Outcome press(const std::string& command, Prompter& prompter);
    // "disabled", "hidden", or empty when the command can be pressed.
    std::string refusal(const std::string& command) const;
    // The effects of a command done outside a module (a screen closed by its
    // window's own close, say) are kept the same way.
    void apply(const Outcome& outcome);
    bool screenShown(const std::string& screen) const;
    // The screens shown now, in the order they were shown, and those disabled.
    const std::vector<std::string>& shownScreens() const { return shown_; }
    const std::vector<std::string>& disabledScreens() const { return disabledScreens_; }

    // With recording on, each "CALCULAR" writes its "Passo a passo"; the session
    // keeps the one of the latest run, stopped or not. Off, nothing is recorded.
    void recordSteps(bool on) { recordSteps_ = on; }
    const Trace& steps() const { return steps_; }

private:
    const Module* module_;
    ModuleInfo info_;
    FormState state_;
    std::vector<std::string> shown_;
    std::vector<std::string> disabledScreens_;
    bool recordSteps_ = false;
    Trace steps_;
};

}  // namespace morve
