#pragma once
// Situações de cálculo dos pilares: from a column's section, buckling lengths,
// service force and first-order end moments, its type, its eccentricities in the
// two directions and the pairs (ex, ey) of the design situations, shown on Form35c
// and plotted on Form35d. The section itself is designed in the flexo-compression
// modules.
#include "app/module.h"

namespace morve {

class Form35 : public Module {
public:
    ModuleInfo info() const override;
    std::vector<ScreenDecl> screens() const override;
    void load(FormState& state, const StartDefaults& defaults) const override;
    Outcome press(const std::string& command, FormState& state, Prompter& prompter) const override;
    void report(const std::string& key, const FormState& state, ReportWriter& out) const override;
    Drawing drawing(const std::string& picture, const FormState& state) const override;

    Outcome calculate(FormState& state, Prompter& prompter) const;
};

}  // namespace morve
