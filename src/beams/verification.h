#pragma once
// Verificação de seções sob flexão simples normal: the ultimate design moment of a
// rectangular (Form9) or T (Form11) section with its steel given in layers on a
// companion grid. The two modules differ only in the boxes of the section.
#include "app/module.h"
#include "beams/bending_report.h"

namespace morve {

struct VerificationSetup {
    std::string key;        // "Form9"
    std::string companion;  // "Form9b": the layer grid
    std::string heading;
    bool tee = false;
    std::string count;      // box of n
    std::string result;     // box of the ultimate moment
    std::string openGrid;   // "Entrar com dados das camadas"
    std::string calculate;  // "&CALCULAR"
    VerificationReportLayout report;
};

class LayeredVerification : public Module {
public:
    explicit LayeredVerification(const VerificationSetup& setup) : setup_(setup) {}
    ModuleInfo info() const override;
    std::vector<ScreenDecl> screens() const override;
    void load(FormState& state, const StartDefaults& defaults) const override;
    Outcome press(const std::string& command, FormState& state, Prompter& prompter) const override;
    void report(const std::string& key, const FormState& state, ReportWriter& out) const override;
    Drawing drawing(const std::string& picture, const FormState& state) const override;

    Outcome openGrid(FormState& state, Prompter& prompter) const;
    Outcome closeGrid(FormState& state) const;
    Outcome calculate(FormState& state, Prompter& prompter) const;

private:
    std::string grid() const { return setup_.companion + ".Grade1"; }
    const VerificationSetup& setup_;
};

class Form9 : public LayeredVerification {
public:
    Form9();
};

class Form11 : public LayeredVerification {
public:
    Form11();
};

}  // namespace morve
