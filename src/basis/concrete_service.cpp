#include "basis/concrete_service.h"

#include <cmath>

#include "app/numbers.h"
#include "basis/checks.h"
#include "basis/messages.h"
#include "app/report_document.h"
#include "numeric/elementary.h"

namespace morve {

void addConcreteFrame(ScreenBuilder& s, const std::string& frame, int row, int column) {
    s.frame(frame, "Concreto", row, column)
        .box("Text1", "fck(MPa)=", "20")
        .box("Text2", "Ecs (MPa)=", "25757")
        .box("Text3", "coeficiente de fluência: φ=", "2.5");
}

void loadConcreteDefaults(FormState& state, const StartDefaults& defaults) {
    if (readNumber(defaults.list(1)) > 0) state.setText("Text1", defaults.list(1));
    if (defaults.ecs > 0) state.setText("Text2", defaults.ecsText());
}

void checkConcreteService(CheckSequence& checks, const FormState& s) {
    const double fck = s.number("Text1"), ecs = s.number("Text2") * 1000, creep = s.number("Text3");
    checkConcreteRange(checks, fck, "Text1");
    checks.warnIf(ecs <= 0, msg::kPositiveEcs, "Text2");
    // The code's secant modulus of this concrete, in MPa; a typed value far from it
    // is more likely a slip of units than a measured concrete.
    const double eref = 18275 * portable::cbrt((fck + 8) / 10);
    checks.askIf(ecs < 700 * eref || ecs > 1300 * eref, msg::kEcsRange, "Text2")
        .askIf(creep > 5, msg::kHighCreep, "Text3");
}

void reportConcrete(ReportWriter& out, const FormState& s, const std::string& creepCaption) {
    out.write("Propriedades do concreto:");
    out.write("Resistência característica fck= ", s.text("Text1"), " MPa");
    out.write("Módulo secante Ecs= ", s.text("Text2"), " MPa");
    out.write(creepCaption, s.text("Text3"));
    out.blank();
}

}  // namespace morve
