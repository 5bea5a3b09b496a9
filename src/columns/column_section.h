#pragma once
// The section of a column module as its boxes give it: reading, the checks of its
// geometry in the module's order, and what the section model needs of it.
#include <vector>

#include "app/form_state.h"
#include "basis/checks.h"
#include "columns/column_form.h"
#include "columns/section_model.h"

namespace morve {

struct ColumnSection {
    ColumnShape shape = ColumnShape::Rectangle;
    double b = 0, h = 0, bw = 0, hf = 0, ho = 0, dPrime = 0;
    double count = 0;                // n layers, or N bars on a circle, as typed
    std::vector<int> barsPerLayer;   // the layer table, rows 1 onwards

    double area() const;      // Ac, cm2
    double smallest() const;  // bmin: the smaller side, or the diameter
    ConcreteOutline outline() const;
    // Valid once the checks of the geometry have passed.
    LayeredSection steel() const;
};

ColumnSection readSection(const ColumnForm& form, const FormState& state);

// Which command checks: "&CALCULAR" and "Ver seção" refuse fewer than 2 layers, the
// interaction diagram only a count that is not positive.
enum class SectionCheck { Calculate, Diagram };

// The checks of the section's geometry, layers and bars, in the module's order.
void checkSection(CheckSequence& checks, const ColumnForm& form, const FormState& state,
                  const ColumnSection& section, SectionCheck mode);

// Whether the geometry passes its checks, without a word to the user: the pictures
// are drawn from the boxes as they stand and are left empty otherwise.
bool sectionDrawable(const ColumnForm& form, const FormState& state, const ColumnSection& section);

// The two checks of the number of layers that also guard the opening of the table.
void checkLayerCount(CheckSequence& checks, const ColumnForm& form, double n);

}  // namespace morve
