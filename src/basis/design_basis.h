#pragma once
// What every bending design of a section starts from, beams and slabs alike: the
// boxes of materials, coefficients, class, ductility criterion and Beta, and the
// limit depth, stress block and design values worked out from them.
#include <string>

#include "app/form_state.h"
#include "app/screen.h"
#include "basis/checks.h"
#include "basis/materials.h"

namespace morve {

// The limit moment mulim of a rectangle at the ductility limit xlim.
double rectangularLimitMoment(double xlim, const StressBlockValues& block);

// The frames of a design screen around its section: materials (fck Text1, fyk
// Text2, Es in esBox) and coefficients (Text13 to Text15) on the left, the class,
// the ductility criterion and Beta in the row under them.
void addMaterialFrames(ScreenBuilder& s, const std::string& esBox, const std::string& fyk = "500");
void addCriterionFrames(ScreenBuilder& s, const std::string& ductilityCaption = "Ductilidade");

// What a bending design works from once its boxes have passed their checks.
struct DesignBasis {
    double xlim = 0;
    StressBlockValues block{};
    double md = 0;  // kNcm
    double fyd = 0, sigmacd = 0;  // kN/cm2
};
// xlim by the criterion of List2 and the Beta of List3 (the balanced limit allows
// no redistribution: that stops the run), the block, Md = Gamaf Mk.
DesignBasis designBasis(CheckSequence& checks, const FormState& state, double fck, double fyk,
                        double es, double gamac, double gamas, double gamaf, double mk);

class TraceRecorder;
// The steps of the basis in the "Passo a passo": fyd, the block, sigmacd, Md, xlim.
void traceDesignBasis(TraceRecorder rec, const DesignBasis& b, DuctilityCriterion criterion, double beta,
                      double fck, double fyk, double es, double gamac, double gamas, double gamaf, double mk);
// The stress block of a concrete: its constants up to 50 MPa, its three formulas above.
void traceStressBlock(TraceRecorder rec, const StressBlockValues& block, double fck);
void traceDuctilityLimit(TraceRecorder rec, DuctilityCriterion criterion, double xlim, double beta, double fck,
                         double fyk, double gamas, double es);

// What the bending designs of beams and slabs read and check before the arithmetic,
// in one order: fck range, class, fyk and Es positive,
// steel class and code modulus.
struct DesignMaterialBoxes {
    std::string fck, classList, fyk, es;
};
void checkDesignMaterials(CheckSequence& checks, const FormState& state, const DesignMaterialBoxes& boxes);

}  // namespace morve
