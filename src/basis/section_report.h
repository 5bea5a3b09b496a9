#pragma once
// The opening lines that the section designs of beams, columns and ties all print
// in their reports: the materials, the partial coefficients, the dimensions of the
// section and the ductility criterion, read from the boxes each screen names.
#include <string>
#include <vector>

#include "app/form_state.h"
#include "app/report_document.h"

namespace morve {

struct SectionReportLine {
    std::string leftLabel, leftBox, rightLabel, rightBox;  // values in cm
};

struct BendingReportLayout {
    std::string fck, fyk, es, gamac, gamas, gamaf;
    std::vector<SectionReportLine> section;
    std::string moment;
    std::string betaList = "List3";
    std::string criterionList = "List2";
    std::string as, asPrime;
};

struct LabelledBox {
    std::string label, box;
};

// "Propriedades dos materiais:" to the line of the partial coefficients given, and a blank.
void writeMaterials(ReportWriter& out, const FormState& state, const std::string& fck, const std::string& fyk,
                    const std::string& es, const std::vector<LabelledBox>& coefficients);
// The same with Gamac, Gamas and Gamaf of the layout.
void writeMaterialLines(ReportWriter& out, const FormState& state, const BendingReportLayout& layout);
// "Dimensões da seção transversal:" and the lines of the section, two values a line.
void writeSectionDimensions(ReportWriter& out, const FormState& state, const BendingReportLayout& layout);

// xlim/d as the report prints it: the balanced limit with three decimals, the
// others as the arithmetic gives them.
std::string ductilityLine(const FormState& state, const BendingReportLayout& layout);

}  // namespace morve
