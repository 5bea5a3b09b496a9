#pragma once
// Dimensionamento à flexo-tração com armaduras simétricas: the equal area on each
// face of a rectangular section under a tensile force and a moment, by a search on
// the neutral axis.
#include "columns/tie_module.h"

namespace morve {

class Form19 : public TieModule {
public:
    Form19();

protected:
    std::vector<std::string> resultBoxes() const override;
    TieStop design(const TieCaseData& data, FormState& state) const override;
};

}  // namespace morve
