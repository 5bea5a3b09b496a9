#pragma once
// Dimensionamento à flexão simples de seções retangulares: the longitudinal steel
// of a rectangular beam section under the service moment Mk, with compression
// steel where the ductility limit calls for it.
#include "app/module.h"
#include "basis/section_sketch.h"

namespace morve {

class Form7 : public Module {
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
