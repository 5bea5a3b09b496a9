#include "columns/form19.h"

#include "app/numbers.h"

namespace morve {

namespace {
RegisterModule<Form19> registration;
}  // namespace

// The labels of this window put Nk first, so Text8 holds Nk and Text9 Mk.
Form19::Form19()
    : TieModule({"Form19", "DIMENSIONAMENTO À FLEXO-TRAÇÃO COM ARMADURAS SIMÉTRICAS", true,
                 "Text9", "Text8"}) {}

std::vector<std::string> Form19::resultBoxes() const { return {"Text10"}; }

TieStop Form19::design(const TieCaseData& data, FormState& s) const {
    const SymmetricTie steel = designSymmetricTie(data.section);
    if (steel.stop != TieStop::None) return steel.stop;
    s.setText("Text10", formatResult(steel.omega * data.unit));
    return TieStop::None;
}

}  // namespace morve
