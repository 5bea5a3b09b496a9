#pragma once
// What every column design shares, whatever the section: the questions on its
// smallest dimension, the limits of the steel ratio, the minimum steel, the bar of
// the commercial series for the number of bars and the area that bar gives, and the
// head of the report with the materials and coefficients.
#include <string>

#include "app/form_state.h"
#include "basis/checks.h"

namespace morve {

class ReportWriter;

extern const std::string kSlenderGamaf;
// Ours: forces that no section of these data can take lead to no finite number.
extern const std::string kUndefinedResult;
extern const std::string kRateAbove8;
extern const std::string kRateAbove4;

// The questions on the smallest dimension (Yes to the first moves the focus to
// `sizeFocus`), then the warning on the area, which lets the run go on.
void checkColumnSize(CheckSequence& checks, double bmin, double area, const std::string& sizeFocus,
                     const std::string& slenderQuestion, const std::string& slenderFocus);

// The warning on a section under 360 cm2, which lets the run go on.
void warnSmallColumnArea(CheckSequence& checks, double area);

// The minimum takes fcd without alphac: 0.15 Nd / fyd, never below 0.4% of Ac.
double minimumColumnSteel(double ac, double nd, double fcd, double fyd);

struct DesignBoxes {
    std::string key, asResult, asMinimum, barCount, diameter, existing;
};

struct DesignedSteel {
    double as = 0, ac = 0, nd = 0, fcd = 0, fyd = 0;  // cm2, kN, kN/cm2
    int bars = 0;
    double bmin = 0;           // cm
    std::string tooThick;      // the message of a bar above its largest diameter
};

// Writes the results of a designed area: stops on a ratio above 8% and on a bar
// that the series or the section cannot take, warns above 4%, and enables
// "Imprimir" at the end.
Outcome writeColumnSteel(CheckSequence& checks, FormState& state, const DesignBoxes& boxes, const DesignedSteel& d);

// "Propriedades dos materiais:" down to the coefficients and a blank line; a
// verification has no Gamaf ("" for its box).
void writeColumnMaterials(ReportWriter& out, const FormState& state, const std::string& gamac,
                          const std::string& gamas, const std::string& gamaf);
// "RESULTADOS:" down to "SOLUÇÃO:" with the number and diameter of the bars.
void writeDesignResults(ReportWriter& out, const FormState& state, const DesignBoxes& boxes);

}  // namespace morve
