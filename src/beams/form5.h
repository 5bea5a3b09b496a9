#pragma once
// Dimensionamento ao esforço cortante: the vertical stirrups of a beam under the
// service shear Vk, with a proposal of diameter, legs and spacing.
#include "app/module.h"

namespace morve {

class Form5 : public Module {
public:
    ModuleInfo info() const override;
    std::vector<ScreenDecl> screens() const override;
    void load(FormState& state, const StartDefaults& defaults) const override;
    Outcome press(const std::string& command, FormState& state, Prompter& prompter) const override;
    void report(const std::string& key, const FormState& state, ReportWriter& out) const override;
    Drawing drawing(const std::string& picture, const FormState& state) const override;

    static ScreenDecl mainScreen();
    Outcome calculate(FormState& state, Prompter& prompter) const;
};

}  // namespace morve
