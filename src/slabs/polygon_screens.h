#pragma once
// The screens of the polygonal slab and its report, apart from its commands: the
// boxes of the slab, the tables of the outline, the mesh and the results.
#include <string>
#include <vector>

#include "app/form_state.h"
#include "app/report_document.h"
#include "app/screen.h"

namespace morve {

inline const std::string kPolygonVertices = "Form24g.Grade1", kPolygonSides = "Form24g.Grade2";
inline const std::string kPolygonMoments = "Form24f.Grade1", kPolygonReactions = "Form24f.Grade2";
inline const std::vector<std::string> kPolygonFineness = {"Grossa", "Média", "Fina", "Refinar mais!"};

std::vector<ScreenDecl> polygonScreens();
// The data, the outline and, after a calculation, the results.
void writePolygonReport(const FormState& s, ReportWriter& out);

}  // namespace morve
