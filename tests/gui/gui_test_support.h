#pragma once
// What the gui tests of the whole program share: a program without the splash
// and without the wait at the end, and a few turns of the event loop.
#include <QApplication>

#include <functional>

#include "app/module.h"
#include "gui/gui_prompter.h"
#include "gui/morve_app.h"
#include "reports/report_writer.h"

inline morve::AppOptions quickOptions() {
    morve::AppOptions o;
    o.splash = false;
    o.exitMs = 0;
    o.quitAtExit = false;
    return o;
}

inline void settle() {
    for (int i = 0; i < 3; ++i) QApplication::processEvents();
}

// A program started straight into a module, its message boxes answered by a
// script (an empty one answers No and Cancel), which is taken back when the test
// ends, however it ends.
struct ProgramInModule {
    explicit ProgramInModule(const std::string& module) {
        morve::setGuiPrompter(&prompter);
        app.start();
        app.openModule(module);
        settle();
    }
    ~ProgramInModule() { morve::setGuiPrompter(nullptr); }

    morve::ScriptedPrompter prompter;
    morve::MorveApp app{quickOptions()};
};

// A module that has only a report, its lines written by the test. The helical
// stairs' key serves: its title comes from the catalogue.
class ReportOnly : public morve::Module {
public:
    explicit ReportOnly(std::function<void(morve::ReportWriter&)> write) : write_(std::move(write)) {}
    morve::ModuleInfo info() const override {
        morve::ModuleInfo i;
        i.key = "Form41";
        i.printKey = "Form41";
        return i;
    }
    std::vector<morve::ScreenDecl> screens() const override { return {morve::ScreenBuilder("Form41", "").build()}; }
    morve::Outcome press(const std::string&, morve::FormState&, morve::Prompter&) const override {
        return morve::Outcome::done();
    }
    void report(const std::string&, const morve::FormState&, morve::ReportWriter& out) const override { write_(out); }

private:
    std::function<void(morve::ReportWriter&)> write_;
};
