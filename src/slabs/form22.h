#pragma once
// Lajes retangulares apoiadas nos quatro lados, carga uniforme: the deflection,
// moments and reactions of a slab in one of six patterns of fixed sides, by plate
// theory, by crossing strips, or by crossing strips with redistribution.
#include <array>

#include "app/module.h"
#include "slabs/rectangular_tables.h"

namespace morve {

enum class SlabMethod { Plate, Grillage, RedistributedGrillage };

// The calculated results of a case (moments in kNm/m with the support moments
// negative, reactions in kN/m), w and wadm in mm. Results the case lacks are 0.
struct RectangularSlabResults {
    std::array<double, kSlabResults> v{};  // Cw holds w
    double wadm = 0;
};
// caseNo 1 to 6; spans in m, loads in kN/m2, d in kNm.
RectangularSlabResults rectangularSlab(SlabMethod method, int caseNo, double lx, double ly,
                                       const SlabLoading& loading);

class Form22 : public Module {
public:
    ModuleInfo info() const override;
    std::vector<ScreenDecl> screens() const override;
    void load(FormState& state, const StartDefaults& defaults) const override;
    Outcome press(const std::string& command, FormState& state, Prompter& prompter) const override;
    void report(const std::string& key, const FormState& state, ReportWriter& out) const override;
    Drawing drawing(const std::string& picture, const FormState& state) const override;
};

}  // namespace morve
