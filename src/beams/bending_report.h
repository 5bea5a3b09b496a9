#pragma once
// The report of a bending design, shared by the rectangle and the T section: they
// differ only in the boxes they read and in the lines of the section.
#include <string>
#include <vector>

#include "app/form_state.h"
#include "basis/section_report.h"
#include "draw/drawing.h"

namespace morve {

// From "Propriedades dos materiais:" to the line of the ductility criterion.
void writeBendingHead(ReportWriter& out, const FormState& state, const BendingReportLayout& layout);
// Blank, "SOLUÇÃO:", blank and the two areas.
void writeBendingSolution(ReportWriter& out, const FormState& state, const BendingReportLayout& layout);

struct DetailingSetup;

// The height of the section's drawing on the second page, in lines.
inline constexpr int kSectionPictureLines = 16;

// The two fixed pages of a finished detailing: the design down to the ductility
// criterion with the restrictions of the detailing, then the final solution and
// the drawing of the section.
void writeDetailingReport(ReportWriter& out, const FormState& state, const BendingReportLayout& layout,
                          const DetailingSetup& setup, Drawing section);

// The report of a layered verification, rectangle or T.
struct VerificationReportLayout {
    std::string sectionHeading;         // "" when the section is one line
    std::vector<LabelledBox> section;   // values in cm
    std::string count;                  // the box of n
    std::string grid;                   // the layer grid
    std::string result;                 // the ultimate moment
};
void writeVerificationReport(ReportWriter& out, const FormState& state,
                             const VerificationReportLayout& layout);

}  // namespace morve
