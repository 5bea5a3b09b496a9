#include "basis/design_basis.h"

#include "app/trace.h"

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
    if (!checks.stopped()) traceDesignBasis(TraceRecorder(checks.prompter().trace()), b, criterion, beta, fck, fyk, es, gamac, gamas, gamaf, mk);
    return b;
}

void traceStressBlock(TraceRecorder rec, const StressBlockValues& block, double fck) {
    if (!rec.on()) return;
    if (fck <= 50) {
        rec.note("fck ≤ 50 MPa: λ = 0.8, αc = 0.85, εcu = 3.5 ‰ (NBR-6118:2014, 17.2.2).");
        return;
    }
    rec.step("Profundidade do bloco", "λ = 0.8 − (fck − 50) / 400", "0.8 − ({} − 50) / 400", {{fck, "MPa"}},
             block.lambda, "", -1, "NBR-6118:2014, 17.2.2");
    rec.step("Fator de tensão do bloco", "αc = 0.85 · (1 − (fck − 50) / 200)", "0.85 · (1 − ({} − 50) / 200)",
             {{fck, "MPa"}}, block.alphac, "", -1, "NBR-6118:2014, 17.2.2");
    rec.step("Deformação última do concreto", "εcu = 2.6 + 35 · ((90 − fck) / 100)^4",
             "2.6 + 35 · ((90 − {}) / 100)^4", {{fck, "MPa"}}, block.ecu, "‰", -1, "NBR-6118:2014, 8.2.10.1");
}

void traceDuctilityLimit(TraceRecorder rec, DuctilityCriterion criterion, double xlim, double beta, double fck,
                         double fyk, double gamas, double es) {
    if (!rec.on()) return;
    if (criterion == DuctilityCriterion::Balanced) {
        rec.step("Deformação de escoamento do aço", "εyd = fyk / (10 · γs) / (100 · Es)", "{} / (10 · {}) / (100 · {})",
                 {{fyk, "MPa"}, {gamas, ""}, {es, "GPa"}}, (0.1 * fyk / gamas) / (es * 100), "", -1,
                 "NBR-6118:2014, 8.3.6");
        rec.step("Profundidade limite (condição balanceada)", "xlim/d = 0.0035 / (εyd + 0.0035)",
                 "0.0035 / ({} + 0.0035)", {{(0.1 * fyk / gamas) / (es * 100), ""}}, xlim, "", 3,
                 "NBR-6118:2014, 17.2.2");
        return;
    }
    const double limit = criterion == DuctilityCriterion::CEB90 ? 35 : 50;
    const bool low = fck <= limit;
    const char* title = criterion == DuctilityCriterion::CEB90 ? "Profundidade limite (CEB/90)"
                                                              : "Profundidade limite (NBR-6118)";
    rec.step(title, low ? "xlim/d = 0.8 · β − 0.35" : "xlim/d = 0.8 · β − 0.45",
             low ? "0.8 · {} − 0.35" : "0.8 · {} − 0.45", {{beta, ""}}, xlim, "", -1,
             "NBR-6118:2014, 14.6.4.3");
}

void traceDesignBasis(TraceRecorder rec, const DesignBasis& b, DuctilityCriterion criterion, double beta,
                      double fck, double fyk, double es, double gamac, double gamas, double gamaf, double mk) {
    if (!rec.on()) return;
    rec.stage("Materiais e esforço de cálculo");
    rec.step("Resistência de cálculo do aço", "fyd = fyk / (10 · γs)", "{} / (10 · {})", {{fyk, "MPa"}, {gamas, ""}},
             b.fyd, "kN/cm²", -1, "NBR-6118:2014, 12.3.1");
    traceStressBlock(rec, b.block, fck);
    rec.step("Tensão de cálculo no concreto", "σcd = αc · fck / (10 · γc)", "{} · {} / (10 · {})",
             {{b.block.alphac, ""}, {fck, "MPa"}, {gamac, ""}}, b.sigmacd, "kN/cm²", -1, "NBR-6118:2014, 12.3.3 e 17.2.2");
    rec.step("Momento de cálculo", "Md = γf · Mk · 100", "{} · {} · 100", {{gamaf, ""}, {mk, "kN·m"}}, b.md, "kN·cm", -1,
             "NBR-6118:2014, 11.7.1");
    traceDuctilityLimit(rec, criterion, b.xlim, beta, fck, fyk, gamas, es);
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
