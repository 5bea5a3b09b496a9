#include "beams/shear_common.h"

#include <algorithm>
#include <cmath>

#include "app/numbers.h"
#include "basis/materials.h"
#include "numeric/elementary.h"

namespace morve {

double strutReduction(double fck) { return 1 - fck / 250; }

double concreteShearStress(double fck, double gamac) {
    return fck <= 50 ? 0.126 * portable::pow(fck, 2.0 / 3.0) / gamac
                     : 0.8904 * portable::log(1 + 0.11 * fck) / gamac;
}

double minimumStirrupRatio(double fck, double fyk) {
    return 0.2 * meanTensileStrength(fck) / std::min(fyk, 500.0);
}

double stirrupDesignStrength(double fyk, double gamas) { return std::min(fyk / gamas, 435.0); }

double shearStirrupArea(double bw, double tauwd, double tauc, double fyd) {
    const double taud = std::max(1.11 * (tauwd - tauc), 0.0);
    return 100 * bw * taud / fyd;
}

double maximumStirrupSpacing(bool strutHighlyStressed, double d) {
    return strutHighlyStressed ? std::min(0.3 * d, 20.0) : std::min(0.6 * d, 30.0);
}

StirrupProposal proposeStirrups(double asw, double diameterMm, double smax) {
    const double phi = diameterMm / 10;
    const double twoLegs = phi * 6.283185308 * phi / 4;
    const double sets = std::floor(asw * 7 / (100 * twoLegs)) + 1;
    const double s = std::min(100 * sets * twoLegs / asw, smax);
    StirrupProposal p;
    p.diameter = diameterMm;
    p.legs = 2 * static_cast<long long>(sets);
    p.spacing = static_cast<long long>(std::floor(s));
    return p;
}

void writeStirrupProposal(FormState& state, const StirrupBoxes& boxes, const StirrupProposal& p) {
    // The diameter goes as the number it is read as: "5.0" in the list shows as 5.
    state.setText(boxes.diameter, formatPlain(p.diameter));
    state.setText(boxes.spacing, std::to_string(p.spacing));
    state.setText(boxes.legs, std::to_string(p.legs));
}

void writeStirrupReportLine(ReportWriter& out, const FormState& s, const StirrupBoxes& boxes) {
    out.write("Estribos de ", s.text(boxes.diameter), " mm", blanks(5), "Espaçamento = ",
              s.text(boxes.spacing), " cm", "(", s.text(boxes.legs), " ramos)");
}

void declareStirrupList(ScreenBuilder& screen, const std::string& name) {
    screen.list(name, "Diâmetro dos estribos", BarCatalogue::stirrups())
        .tip(BarCatalogue::kBarListTip);
}

void checkStirrupChosen(CheckSequence& checks, const FormState& state, const std::string& list) {
    checks.warnIf(state.number(list) == 0, msg::kChooseStirrup, list);
}

}  // namespace morve
