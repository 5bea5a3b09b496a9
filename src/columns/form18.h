#pragma once
// Dimensionamento à flexo-tração com armaduras assimétricas: the two layers As and
// A's of a rectangular section under a tensile force and a moment, in closed form.
#include "columns/tie_module.h"

namespace morve {

class Form18 : public TieModule {
public:
    Form18();

protected:
    std::vector<std::string> resultBoxes() const override;
    TieStop design(const TieCaseData& data, FormState& state) const override;
};

}  // namespace morve
