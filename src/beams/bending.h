#pragma once
// The design of a section in simple bending with the rectangular stress block,
// in reduced terms: moments over b d^2 sigmacd, steel over b d sigmacd / fyd.
// One scheme of double reinforcement serves the rectangular and the T section.
#include <string>

#include "app/form_state.h"
#include "basis/checks.h"
#include "basis/materials.h"

namespace morve {

enum class BendingStop {
    None,
    Domain2,          // xlim below the start of domain 3: compression steel would sit in domain 2
    SectionTooSmall,  // xlim below d'/d
};

struct ReducedSteel {
    BendingStop stop = BendingStop::None;
    double omega = 0;       // tension steel
    double omegaPrime = 0;  // compression steel
};

// The limit moment mulim of a rectangle at the ductility limit xlim.
double rectangularLimitMoment(double xlim, const StressBlockValues& block);

// Compression steel for the moment mu - mulim beyond the limit, with the two limits
// that stop the run first. omegaLimit is the tension steel at the limit.
ReducedSteel doubleReinforcement(double mu, double mulim, double omegaLimit, double xlim,
                                 double delta, const StressBlockValues& block, double es,
                                 double fyd);

// A rectangle: single reinforcement up to mulim, double beyond it. es and fyd in kN/cm2.
ReducedSteel designRectangle(double mu, double xlim, double delta, const StressBlockValues& block,
                             double es, double fyd);

// The message of a stop, "" for none.
const std::string& bendingStopMessage(BendingStop stop);

// What the design modules of beams read and check before the arithmetic, in the
// same order for the rectangle and the T: fck range, class, fyk and Es positive,
// steel class and code modulus.
struct BeamMaterialBoxes {
    std::string fck, classList, fyk, es;
};
void checkBeamMaterials(CheckSequence& checks, const FormState& state, const BeamMaterialBoxes& boxes);

// The minimum on the tension steel (over the concrete area ac) and the 4% limit
// of the total rate. Returns false when the rate stops the run (message given).
bool applyMinimumAndRate(CheckSequence& checks, double& as, double asPrime, double ac, double fck,
                         double fyd);

}  // namespace morve
