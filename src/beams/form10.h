#pragma once
// Dimensionamento à flexão simples normal de seções T: the longitudinal steel of a
// T beam under a positive service moment, with the flange in compression. It works
// as Form7 in all but the section; its detailing (Form10b, Form10c) is the one of
// the rectangle with the web as the width.
#include "app/module.h"

namespace morve {

class Form10 : public Module {
public:
    ModuleInfo info() const override;
    std::vector<ScreenDecl> screens() const override;
    void load(FormState& state, const StartDefaults& defaults) const override;
    Outcome press(const std::string& command, FormState& state, Prompter& prompter) const override;
    void report(const std::string& key, const FormState& state, ReportWriter& out) const override;
    Drawing drawing(const std::string& picture, const FormState& state) const override;

    static ScreenDecl mainScreen();
    Outcome calculate(FormState& state, Prompter& prompter) const;
    static Outcome detail(FormState& state);
};

}  // namespace morve
