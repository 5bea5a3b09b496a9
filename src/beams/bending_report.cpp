#include "beams/bending_report.h"

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

void writeMaterialLines(ReportWriter& out, const FormState& s, const BendingReportLayout& l) {
    out.write("Propriedades dos materiais:");
    out.write("Concreto: fck= ", s.text(l.fck), " MPa");
    out.write("Aço: fyk= ", s.text(l.fyk), " MPa", blanks(5), "Es= ", s.text(l.es), " GPa");
    out.blank();
    out.write("Coeficientes parciais de segurança:");
    out.write("Gamac= ", s.text(l.gamac), blanks(5), "Gamas= ", s.text(l.gamas), blanks(5), "Gamaf= ",
              s.text(l.gamaf));
}

void writeSectionDimensions(ReportWriter& out, const FormState& s, const BendingReportLayout& l) {
    out.write("Dimensões da seção transversal:");
    for (const auto& line : l.section)
        out.write(line.leftLabel, s.text(line.leftBox), " cm", tab(40), line.rightLabel,
                  s.text(line.rightBox), " cm");
}

void writeBendingHead(ReportWriter& out, const FormState& s, const BendingReportLayout& l) {
    writeMaterialLines(out, s, l);
    out.blank();
    writeSectionDimensions(out, s, l);
    out.blank();
    out.write("Momento fletor de serviço Mk= ", s.text(l.moment), " kNm");
    out.blank();
    out.write("Coeficiente de redistribuição de momentos: Beta = ", num(s.number(l.betaList)));
    out.write(ductilityLine(s, l));
}

void writeBendingSolution(ReportWriter& out, const FormState& s, const BendingReportLayout& l) {
    out.blank();
    out.write("SOLUÇÃO:");
    out.blank();
    out.write("Armadura tracionada As= ", s.text(l.as), " cm2");
    out.write("Armadura comprimida As'= ", s.text(l.asPrime), " cm2");
}

}  // namespace morve
