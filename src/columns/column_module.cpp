// What the buttons of a column module do, apart from the calculations.
#include <algorithm>
#include <cmath>

#include "app/texts.h"
#include "basis/start_values.h"
#include "columns/column_form.h"
#include "columns/column_section.h"

namespace morve {

ModuleInfo ColumnModule::info() const {
    ModuleInfo i;
    i.key = form_.key;
    i.unloads = form_.unloads;
    i.printKey = form_.key;
    i.calculate = form_.calculate;
    return i;
}

void ColumnModule::load(FormState& state, const StartDefaults& defaults) const {
    loadMaterialDefaults(state, defaults, {"Text1", "Text2", "Text3", 3});
}

Outcome ColumnModule::press(const std::string& command, FormState& state, Prompter& prompter) const {
    const std::string c = state.qualify(command);
    if (c == form_.q(form_.calculate)) return form_.design ? design(state, prompter) : verify(state, prompter);
    if (c == form_.q(form_.drawCommand)) return showSection(state, prompter);
    if (isLayered(form_.shape)) {
        if (c == form_.q(form_.layersCommand)) return openLayers(state, prompter);
        if (c == form_.layerScreen + ".Command2") return closeLayers(state);
    }
    if (!form_.design && c == form_.q(form_.diagramCommand)) return diagram(state, prompter);
    for (const std::string& companion : {kSectionScreen, kDiagramScreen})
        if (c == companion + ".Command1")
            return Outcome::done()
                .then(EffectKind::HideScreen, companion)
                .then(EffectKind::ShowScreen, form_.key);
    return Outcome::stop();
}

Outcome ColumnModule::openLayers(FormState& state, Prompter& prompter) const {
    const double n = state.number(form_.count);
    CheckSequence checks(prompter);
    checkLayerCount(checks, form_, n);
    if (checks.stopped()) return checks.outcome();
    state.resizeGrid(form_.grid(), static_cast<std::size_t>(n));
    return Outcome::done()
        .then(EffectKind::HideScreen, form_.key)
        .then(EffectKind::ShowScreen, form_.layerScreen);
}

Outcome ColumnModule::closeLayers(FormState& state) const {
    // A count of bars takes at most three digits.
    GridRows& rows = state.grid(form_.grid());
    for (std::size_t r = 1; r < rows.size(); ++r)
        for (auto& cell : rows[r]) cell = cutText(cell, 3);
    return Outcome::done()
        .then(EffectKind::HideScreen, form_.layerScreen)
        .then(EffectKind::ShowScreen, form_.key);
}

Outcome ColumnModule::showSection(FormState& state, Prompter& prompter) const {
    CheckSequence checks(prompter);
    checkSection(checks, form_, state, readSection(form_, state), SectionCheck::Calculate);
    if (checks.stopped()) return checks.outcome();
    return Outcome::done()
        .then(EffectKind::HideScreen, form_.key)
        .then(EffectKind::ShowScreen, kSectionScreen);
}

}  // namespace morve
