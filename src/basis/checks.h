#pragma once
// A calculation's checks run in a fixed order and the first failure ends the run.
// CheckSequence keeps that rule in one place: once a check has stopped the run,
// the checks after it neither ask nor warn.
#include <string>
#include <vector>

#include "app/outcome.h"
#include "app/prompter.h"
#include "basis/materials.h"

namespace morve {

class CheckSequence {
public:
    explicit CheckSequence(Prompter& prompter) : prompter_(prompter) {}

    // A warning with OK; the run stops with the focus on `focus` ("" leaves it). A few
    // boxes carry a title other than the program's name.
    CheckSequence& warnIf(bool failed, const std::string& message, const std::string& focus = {},
                          const std::string& title = kBoxTitle);
    // A Yes/No question: Yes stops with the focus on `focus`, No goes on.
    CheckSequence& askIf(bool doubtful, const std::string& question, const std::string& focus);
    // An OK/Cancel box: OK stops with the focus on `focus`, Cancel goes on.
    CheckSequence& confirmIf(bool doubtful, const std::string& question, const std::string& focus);

    bool stopped() const { return stopped_; }
    // The outcome of a stopped run.
    Outcome outcome() const { return Outcome::stop(focus_); }
    Prompter& prompter() { return prompter_; }

private:
    Prompter& prompter_;
    bool stopped_ = false;
    std::string focus_;
};

struct Coefficient {
    double value;
    std::string box;
};

// fck below 20 (focus stays) and above 90 (focus on the box).
void checkConcreteRange(CheckSequence& checks, double fck, const std::string& fckBox);
// The class chosen, and fck at least its minimum.
void checkAggressiveness(CheckSequence& checks, const std::string& classText, double fck,
                         const std::string& classList, const std::string& fckBox);
void checkPositiveFyk(CheckSequence& checks, double fyk, const std::string& fykBox,
                      bool fullStop = true);
void checkPositiveEs(CheckSequence& checks, double es, const std::string& esBox);
// fyk neither 500 nor 600 asks whether to change it.
void checkSteelClass(CheckSequence& checks, double fyk, const std::string& fykBox);
// Es neither 200 nor 210 GPa asks whether to change it.
void checkCodeModulus(CheckSequence& checks, double es, const std::string& esBox);
// Width below 12 cm asks whether to correct it.
void checkBeamWidth(CheckSequence& checks, double b, const std::string& widthBox);
// The material checks of the section solvers, in their order: fck range, fyk and
// Es positive, steel class, code modulus.
void checkSectionMaterials(CheckSequence& checks, double fck, const std::string& fckBox, double fyk,
                           const std::string& fykBox, double es, const std::string& esBox);
// Each of the coefficients in turn must be 1 or more.
void checkPartialCoefficients(CheckSequence& checks, const std::vector<Coefficient>& coefficients);
// "Balanceada" allows no redistribution.
void checkBalancedBeta(CheckSequence& checks, DuctilityCriterion criterion, double beta,
                       const std::string& criterionList);

}  // namespace morve
