#pragma once
// "CÁLCULO DE LAJES LISAS APOIADAS EM VIGAS DE BORDA RÍGIDAS": the flat slab on
// four edge beams and inner columns. The columns are typed on Form40b; "CALCULAR"
// gives the column loads and edge reactions on Form40c with the floor in plan;
// Form40d draws the surfaces of Mx, My, Mxy and deflection.
#include <optional>

#include "app/module.h"
#include "slabs/flat_series.h"

namespace morve {

class Form40 : public Module {
public:
    ModuleInfo info() const override;
    std::vector<ScreenDecl> screens() const override;
    void load(FormState& state, const StartDefaults& defaults) const override;
    Outcome press(const std::string& command, FormState& state, Prompter& prompter) const override;
    void report(const std::string& key, const FormState& state, ReportWriter& out) const override;
    Drawing drawing(const std::string& picture, const FormState& state) const override;
    std::vector<std::string> projectFields() const override;
};

// The slab of the last good "CALCULAR", kept with the module so that the pictures
// show what was calculated even when the boxes have changed since.
std::optional<FlatSlab> analysedSlab(const FormState& state);

// What Form40d shows.
enum class FlatQuantity { Mx, My, Mxy, Deflection };

// The surface of one quantity seen from above at an angle, with its title, legend,
// maximum and minimum.
Drawing flatSurfaceDrawing(const FlatResults& results, FlatQuantity quantity, double lx, double ly);
// The floor in plan: the edges, each column to scale with its number and load.
Drawing flatFloorDrawing(const FlatSlab& slab, const std::vector<double>& loads);

void writeForm40Report(const FormState& state, ReportWriter& out);

}  // namespace morve
