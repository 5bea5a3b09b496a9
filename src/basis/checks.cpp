#include "basis/checks.h"

#include "app/trace.h"
#include "basis/messages.h"

namespace morve {

std::string msg::positiveValue(const std::string& name) {
    return "Forneça um valor positivo para " + name + ".";
}

CheckSequence& CheckSequence::warnIf(bool failed, const std::string& message,
                                     const std::string& focus, const std::string& title) {
    if (stopped_) return *this;
    TraceRecorder(prompter_.trace()).dataCheck(message, !failed);
    if (!failed) return *this;
    prompter_.warn(message, title);
    stopped_ = true;
    focus_ = focus;
    return *this;
}

CheckSequence& CheckSequence::askIf(bool doubtful, const std::string& question,
                                    const std::string& focus) {
    if (stopped_) return *this;
    if (!doubtful) {
        TraceRecorder(prompter_.trace()).dataCheck(question, true);
        return *this;
    }
    if (prompter_.askYesNo(question)) {
        TraceRecorder(prompter_.trace()).dataCheck(question, false);
        stopped_ = true;
        focus_ = focus;
    }
    return *this;
}

CheckSequence& CheckSequence::confirmIf(bool doubtful, const std::string& question,
                                        const std::string& focus) {
    if (stopped_) return *this;
    if (!doubtful) {
        TraceRecorder(prompter_.trace()).dataCheck(question, true);
        return *this;
    }
    if (prompter_.askOkCancel(question)) {
        TraceRecorder(prompter_.trace()).dataCheck(question, false);
        stopped_ = true;
        focus_ = focus;
    }
    return *this;
}

void checkConcreteRange(CheckSequence& checks, double fck, const std::string& fckBox) {
    checks.warnIf(fck < 20, msg::kLowFck).warnIf(fck > 90, msg::kHighFck, fckBox);
}

void checkAggressiveness(CheckSequence& checks, const std::string& classText, double fck,
                         const std::string& classList, const std::string& fckBox) {
    auto limits = AggressivenessClass(classText);
    checks.warnIf(!limits, msg::kChooseClass, classList);
    if (limits) checks.warnIf(fck < limits->minFck, msg::kClassFck, fckBox);
}

void checkPositiveFyk(CheckSequence& checks, double fyk, const std::string& fykBox, bool fullStop) {
    checks.warnIf(fyk <= 0, fullStop ? msg::kPositiveFyk : msg::kPositiveFykNoStop, fykBox);
}

void checkPositiveEs(CheckSequence& checks, double es, const std::string& esBox) {
    checks.warnIf(es <= 0, msg::kPositiveEs, esBox);
}

void checkSteelClass(CheckSequence& checks, double fyk, const std::string& fykBox) {
    checks.askIf(fyk != 500 && fyk != 600, msg::kSteelClass, fykBox);
}

void checkCodeModulus(CheckSequence& checks, double es, const std::string& esBox) {
    // Compared in kN/cm2, as the arithmetic holds it.
    double e = es * 100;
    checks.askIf(e != 20000 && e != 21000, msg::kCodeEs, esBox);
}

void checkBeamWidth(CheckSequence& checks, double b, const std::string& widthBox) {
    checks.askIf(b < 12, msg::kBeamWidth, widthBox);
}

void checkSectionMaterials(CheckSequence& checks, double fck, const std::string& fckBox, double fyk,
                           const std::string& fykBox, double es, const std::string& esBox) {
    checkConcreteRange(checks, fck, fckBox);
    checkPositiveFyk(checks, fyk, fykBox);
    checkPositiveEs(checks, es, esBox);
    checkSteelClass(checks, fyk, fykBox);
    checkCodeModulus(checks, es, esBox);
}

void checkPartialCoefficients(CheckSequence& checks, const std::vector<Coefficient>& coefficients) {
    for (const auto& c : coefficients) checks.warnIf(c.value < 1, msg::kPartialCoefficient, c.box);
}

void checkBalancedBeta(CheckSequence& checks, DuctilityCriterion criterion, double beta,
                       const std::string& criterionList) {
    checks.warnIf(criterion == DuctilityCriterion::Balanced && beta < 1, msg::kBalancedBeta,
                  criterionList);
}

}  // namespace morve
