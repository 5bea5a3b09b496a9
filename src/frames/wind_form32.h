#pragma once
// "DISTRIBUIÇÃO DAS FORÇAS DO VENTO PARA OS PAINÉIS DE CONTRAVENTAMENTO": the drag
// of the wind at one floor of a rectangular building, shared among up to 50
// bracing panels by the floor acting as a rigid diaphragm.
#include "app/module.h"

namespace morve {

class Form32 : public Module {
public:
    ModuleInfo info() const override;
    std::vector<ScreenDecl> screens() const override;
    Outcome press(const std::string& command, FormState& state, Prompter& prompter) const override;
    void report(const std::string& key, const FormState& state, ReportWriter& out) const override;
};

void writeForm32Report(const FormState& state, ReportWriter& out);

}  // namespace morve
