#include "frames/equivalent_stiffness.h"

#include <cmath>

#include "app/numbers.h"
#include "basis/messages.h"
#include "frames/frame_texts.h"
#include "numeric/elementary.h"

namespace morve {

double equivalentStiffness(bool concentrated, double h, double d) {
    return concentrated ? kUnitForce * h * h * h / (3 * d) : kUnitLoad * h * h * h * h / (8 * d);
}

void checkStiffnessMaterials(CheckSequence& checks, const FormState& s) {
    const double fck = s.number("Text1"), ecs = s.number("Text2");
    const double eref = 18275 * portable::cbrt((fck + 8) / 10);
    checks.warnIf(fck < 20, msg::kLowFck)
        .warnIf(fck > 90, msg::kHighFck, "Text1")
        .warnIf(ecs <= 0, msg::kPositiveEcs, "Text2")
        .askIf(ecs < 0.7 * eref || ecs > 1.3 * eref, msg::kEcsRange, "Text2");
}

bool writeStiffness(FormState& s, double ei, double e) {
    const double inertia = ei / e;
    if (!std::isfinite(ei) || !std::isfinite(inertia) || !(ei > 0)) return false;
    s.setText("Text11", formatResult(ei, 2));
    // Inertias of whole frames and of single columns differ by orders: six decimals
    // of m4 keep a column's cm4 readable.
    s.setText("Text12", formatResult(inertia, 6));
    return true;
}

}  // namespace morve
