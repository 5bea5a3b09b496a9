#include "basis/design_basis.h"

namespace morve {

double rectangularLimitMoment(double xlim, const StressBlockValues& block) {
    return xlim * block.lambda * (1 - 0.5 * block.lambda * xlim);
}

void addMaterialFrames(ScreenBuilder& s, const std::string& esBox, const std::string& fyk) {
    s.frame("Frame1", "Materiais", 0, 0)
        .box("Text1", "fck(MPa)=", "20")
        .box("Text2", "fyk(MPa)=", fyk)
        .box(esBox, "Es(GPa)=", "200");
    s.frame("Frame2", "Coeficientes parciais", 1, 0)
        .box("Text13", "Gamac=", "1.4")
        .box("Text14", "Gamas=", "1.15")
        .box("Text15", "Gamaf=", "1.4");
}

void addCriterionFrames(ScreenBuilder& s, const std::string& ductilityCaption) {
    s.frame("Frame5", "Classe de agressividade ambiental", 2, 0)
        .list("List6", "Classe de agressividade ambiental", aggressivenessItems());
    s.frame("Frame6", ductilityCaption, 2, 1)
        .list("List2", "xlim/d = ", ductilityItems(), ductilityItems().front())
        .tip("Critério de ductilidade. Consulte a Ajuda.");
    s.frame("Frame7", "Coeficiente de redistribuição", 2, 2)
        .list("List3", "Beta=", redistributionItems(), redistributionItems().front());
}

DesignBasis designBasis(CheckSequence& checks, const FormState& state, double fck, double fyk,
                        double es, double gamac, double gamas, double gamaf, double mk) {
    DesignBasis b;
    const double beta = state.number("List3");
    const auto criterion = ductilityCriterion(state.text("List2")).value_or(DuctilityCriterion::CEB90);
    b.xlim = DuctilityLimit(criterion, beta, fck, fyk, gamas, es);
    checkBalancedBeta(checks, criterion, beta, "List2");
    b.block = StressBlock(fck);
    b.md = gamaf * mk * 100;
    b.fyd = fyk / 10 / gamas;
    b.sigmacd = b.block.alphac * (fck / 10 / gamac);
    return b;
}

void checkDesignMaterials(CheckSequence& checks, const FormState& state, const DesignMaterialBoxes& boxes) {
    double fck = state.number(boxes.fck);
    checkConcreteRange(checks, fck, boxes.fck);
    checkAggressiveness(checks, state.text(boxes.classList), fck, boxes.classList, boxes.fck);
    checkPositiveFyk(checks, state.number(boxes.fyk), boxes.fyk);
    checkPositiveEs(checks, state.number(boxes.es), boxes.es);
    checkSteelClass(checks, state.number(boxes.fyk), boxes.fyk);
    checkCodeModulus(checks, state.number(boxes.es), boxes.es);
}

}  // namespace morve
