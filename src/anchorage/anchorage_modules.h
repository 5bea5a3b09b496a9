#pragma once
// Anchorage along the span (Form36), at an end support (Form37) and lap splices
// (Form38): one screen layout, one set of checks and one length calculation, with
// what differs between the three held by AnchorageForm.
#include <string>

#include "app/module.h"

namespace morve {

enum class AnchorageCase {
    Span,     // As,cal typed, bond zone chosen
    Support,  // As,cal from the support reaction, good bond always, hook of the support
    Splice,   // a lap in tension or compression, bond zone chosen
};

struct AnchorageForm {
    std::string key;
    std::string heading;
    AnchorageCase kind = AnchorageCase::Span;
    std::string straightCaption, hookedCaption;  // result boxes
    std::string straightLine, hookedLine;        // the report's solution lines

    bool choosesBond() const { return kind != AnchorageCase::Support; }
};

class AnchorageModule : public Module {
public:
    explicit AnchorageModule(AnchorageForm form) : form_(std::move(form)) {}

    ModuleInfo info() const override;
    std::vector<ScreenDecl> screens() const override;
    void load(FormState& state, const StartDefaults& defaults) const override;
    Outcome press(const std::string& command, FormState& state, Prompter& prompter) const override;
    void report(const std::string& key, const FormState& state, ReportWriter& out) const override;

private:
    Outcome calculate(FormState& state, Prompter& prompter) const;
    AnchorageForm form_;
};

}  // namespace morve
