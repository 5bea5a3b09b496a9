#include "basis/start_values.h"

#include "app/numbers.h"

namespace morve {

void loadMaterialDefaults(FormState& state, const StartDefaults& defaults, const MaterialBoxes& boxes) {
    if (!boxes.fck.empty() && readNumber(defaults.list(1)) > 0) state.setText(boxes.fck, defaults.list(1));
    if (!boxes.fyk.empty()) {
        const std::string steel = defaults.list(boxes.steelList);
        if (steel == "CA-50") state.setText(boxes.fyk, "500");
        if (steel == "CA-60") state.setText(boxes.fyk, "600");
    }
    if (!boxes.es.empty()) {
        const std::string code = defaults.list(5);
        if (code == "NBR-6118") state.setText(boxes.es, "210");
        if (code == "CEB/90") state.setText(boxes.es, "200");
    }
}

}  // namespace morve
