#pragma once
// Dimensionamento à torção com flexão: a rectangular beam section under the service
// moment Mk, shear Vk and torque Tk together. The results go to the companion
// screen Form6b, which takes the place of the input screen and starts the report.
#include "app/module.h"

namespace morve {

class Form6 : public Module {
public:
    ModuleInfo info() const override;
    std::vector<ScreenDecl> screens() const override;
    void load(FormState& state, const StartDefaults& defaults) const override;
    Outcome press(const std::string& command, FormState& state, Prompter& prompter) const override;
    void report(const std::string& key, const FormState& state, ReportWriter& out) const override;
    Drawing drawing(const std::string& picture, const FormState& state) const override;

    static ScreenDecl mainScreen();
    static ScreenDecl resultScreen();
    Outcome calculate(FormState& state, Prompter& prompter) const;
};

}  // namespace morve
