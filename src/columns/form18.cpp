#include "columns/form18.h"

#include "app/numbers.h"

namespace morve {

namespace {
RegisterModule<Form18> registration;
}  // namespace

Form18::Form18()
    : TieModule({"Form18", "DIMENSIONAMENTO À FLEXO-TRAÇÃO COM ARMADURAS ASSIMÉTRICAS", false,
                 "Text8", "Text9"}) {}

std::vector<std::string> Form18::resultBoxes() const { return {"Text10", "Text11"}; }

TieStop Form18::design(const TieCaseData& data, FormState& s) const {
    const AsymmetricTie steel = designAsymmetricTie(data.section, data.xiLim);
    if (steel.stop != TieStop::None) return steel.stop;
    s.setText("Text10", formatResult(steel.omega * data.unit));
    s.setText("Text11", formatResult(steel.omegaPrime * data.unit));
    if (steel.kind == TieCase::SmallEccentricity) s.setVar(kTieCaseVar, "True");
    return TieStop::None;
}

}  // namespace morve
