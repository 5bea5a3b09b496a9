#pragma once
// What a module's Load takes from the start dialog: fck when positive, fyk by the
// steel class, Es by the code.
#include <string>

#include "app/form_state.h"
#include "app/start_defaults.h"

namespace morve {

struct MaterialBoxes {
    std::string fck;        // "" when the module has no such box
    std::string fyk;
    std::string es;
    int steelList = 3;      // 3 for longitudinal bars, 2 for stirrups and slab bars
};

void loadMaterialDefaults(FormState& state, const StartDefaults& defaults, const MaterialBoxes& boxes);

}  // namespace morve
