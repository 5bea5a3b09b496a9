#include "basis/section_report.h"

#include "app/numbers.h"
#include "basis/materials.h"

namespace morve {

std::string ductilityLine(const FormState& state, const BendingReportLayout& layout) {
    auto criterion = ductilityCriterion(state.text(layout.criterionList));
    if (!criterion) return "";
    double xlim = DuctilityLimit(*criterion, state.number(layout.betaList), state.number(layout.fck),
                                 state.number(layout.fyk), state.number(layout.gamas),
                                 state.number(layout.es));
    switch (*criterion) {
        case DuctilityCriterion::CEB90:
            return "Critério de ductilidade: CEB/90.  xlim/d = " + formatPlain(xlim);
        case DuctilityCriterion::NBR6118:
            return "Critério de ductilidade: NBR-6118.  xlim/d = " + formatPlain(xlim);
        case DuctilityCriterion::Balanced:
            return "Critério de ductilidade: Condição balanceada. xlim / d = " + formatResult(xlim, 3);
    }
    return "";
}

void writeMaterials(ReportWriter& out, const FormState& s, const std::string& fck,
                    const std::string& fyk, const std::string& es,
                    const std::vector<LabelledBox>& coefficients) {
    out.write("Propriedades dos materiais:");
    out.write("Concreto: fck= ", s.text(fck), " MPa");
    out.write("Aço: fyk= ", s.text(fyk), " MPa", blanks(5), "Es= ", s.text(es), " GPa");
    out.blank();
    out.write("Coeficientes parciais de segurança:");
    std::vector<ReportItem> line;
    for (const auto& c : coefficients) {
        if (!line.empty()) line.push_back(blanks(5));
        line.push_back(lit(c.label + s.text(c.box)));
    }
    out.line(std::move(line));
    out.blank();
}

void writeMaterialLines(ReportWriter& out, const FormState& s, const BendingReportLayout& l) {
    writeMaterials(out, s, l.fck, l.fyk, l.es,
                   {{"Gamac= ", l.gamac}, {"Gamas= ", l.gamas}, {"Gamaf= ", l.gamaf}});
}

void writeSectionDimensions(ReportWriter& out, const FormState& s, const BendingReportLayout& l) {
    out.write("Dimensões da seção transversal:");
    for (const auto& line : l.section)
        out.write(line.leftLabel, s.text(line.leftBox), " cm", tab(40), line.rightLabel,
                  s.text(line.rightBox), " cm");
}

}  // namespace morve
