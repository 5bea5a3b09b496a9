#pragma once
// The design of a section in simple bending with the rectangular stress block,
// in reduced terms: moments over b d^2 sigmacd, steel over b d sigmacd / fyd.
// One scheme of double reinforcement serves the rectangular and the T section.
#include <string>

#include "app/form_state.h"
#include "app/screen.h"
#include "basis/checks.h"
#include "basis/design_basis.h"
#include "basis/materials.h"
#include "app/trace.h"

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

// Compression steel for the moment mu - mulim beyond the limit, with the two limits
// that stop the run first. omegaLimit is the tension steel at the limit.
ReducedSteel doubleReinforcement(double mu, double mulim, double omegaLimit, double xlim,
                                 double delta, const StressBlockValues& block, double es,
                                 double fyd, TraceRecorder rec = TraceRecorder(nullptr));

// A rectangle: single reinforcement up to mulim, double beyond it. es and fyd in kN/cm2.
ReducedSteel designRectangle(double mu, double xlim, double delta, const StressBlockValues& block,
                             double es, double fyd, TraceRecorder rec = TraceRecorder(nullptr));

// Where the compression block of a T section lies at the ductility limit.
enum class TeeBranch {
    Web,        // the block at the limit reaches below the flange
    Rectangle,  // it stays in the flange: a rectangle of width bf
};

// A T section, in the same reduced terms with bf as the reference width:
// eta = hf / d, r = bw / bf. Below the limit the block may still sit in the
// flange (omega = 1 - sqrt(1 - 2 mu)) or enter the web, where the overhangs of
// the flange carry their share and the web takes the rest.
struct TeeSteel {
    TeeBranch branch = TeeBranch::Web;
    ReducedSteel steel;
};
TeeSteel designTee(double mu, double xlim, double eta, double r, double delta,
                   const StressBlockValues& block, double es, double fyd,
                   TraceRecorder rec = TraceRecorder(nullptr));

// Said by the T modules when the flange is not wider than the web.
inline const std::string kFlangeWiderThanWeb = "A largura da mesa deve ser maior que a largura da nervura.";

// The message of a stop, "" for none.
const std::string& bendingStopMessage(BendingStop stop);

// The boxes where a design writes its areas and the screens of its detailing.
struct DesignOutput {
    std::string module;            // "Form7"
    std::string as, asPrime;       // result boxes
    std::string stopFocus;         // the height box, where the two limits send the focus
    std::string detailButton;      // "Form7.Command3"
    std::string detailScreen;      // "Form8"
};
// From the reduced steel to the result boxes: the stops of double reinforcement,
// the areas over unit = width d sigmacd / fyd, the minimum on ac and the 4% rate.
Outcome finishDesign(CheckSequence& checks, FormState& state, const ReducedSteel& steel, double unit,
                     double ac, double fck, double fyd, const DesignOutput& out);
// "Detalhamento": the two areas go over as they stand, and the detailing screen
// takes the place of the design.
Outcome openDetailing(FormState& state, const DesignOutput& out);

// The minimum on the tension steel (over the concrete area ac) and the 4% limit
// of the total rate. Returns false when the rate stops the run (message given).
bool applyMinimumAndRate(CheckSequence& checks, double& as, double asPrime, double ac, double fck,
                         double fyd);

}  // namespace morve
