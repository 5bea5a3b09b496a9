#pragma once
// Estados limites de utilização: the mid-span deflection of one span of a
// rectangular or T beam by four methods and its largest crack width by two
// formulations, with the load tables (Form39b), their drawing (Form39b2) and the
// results with their limits (Form39c).
#include "app/module.h"
#include "serviceability/span_loads.h"

namespace morve {

class Form39 : public Module {
public:
    ModuleInfo info() const override;
    std::vector<ScreenDecl> screens() const override;
    void load(FormState& state, const StartDefaults& defaults) const override;
    Outcome press(const std::string& command, FormState& state, Prompter& prompter) const override;
    void report(const std::string& key, const FormState& state, ReportWriter& out) const override;
    Drawing drawing(const std::string& picture, const FormState& state) const override;

    Outcome calculate(FormState& state, Prompter& prompter) const;
};

// The load tables as typed: uniform segments of Form39b.Grade2, point loads of
// Form39b.Grade1, end moments of Form39b.Text1 and Text2; the span of Form39.Text6.
SpanLoads readSpanLoads(const FormState& state);

// The loaded span as Form39b2 shows it.
Drawing loadedSpanDrawing(const SpanLoads& loads);

}  // namespace morve
