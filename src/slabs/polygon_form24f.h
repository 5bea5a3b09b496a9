#pragma once
// "LAJES POLIGONAIS COM CARGA UNIFORME": a solid slab of any polygonal outline,
// each side simply supported, fixed or free, analysed as a grillage. The outline
// is typed on Form24g, the mesh drawn on Form24h, the moment diagrams on Form24j.
#include <optional>
#include <string>

#include "app/form_state.h"
#include "draw/drawing.h"
#include "slabs/grillage_analysis.h"
#include "slabs/polygon_mesh.h"

namespace morve {

// What one analysis needs, as read from the boxes and tables; kept as text after a
// good "CALCULAR" so that the diagrams show the case the results belong to.
struct PolygonCase {
    SlabPolygon polygon;
    int divisions = 0;
    double ecs = 0;    // kN/m2
    double h = 0;      // cm
    double ratio = 0;  // J/J1
    double g = 0, q = 0;
};
std::string encodeCase(const PolygonCase& c);
std::optional<PolygonCase> decodeCase(const std::string& text);

GrillageData grillageData(const PolygonCase& c);

// The moments of every bar drawn across it over the outline, with the extremes
// beside the drawing.
Drawing momentDiagrams(const PolygonCase& c, const GrillageMesh& mesh, const GrillageResults& r);

}  // namespace morve
