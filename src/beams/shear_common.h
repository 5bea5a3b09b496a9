#pragma once
// The shear model of NBR-6118 shared by the stirrup modules (Esforço cortante and
// Torção): the truss at 45 degrees with the concrete share tauc, the minimum
// stirrup ratio, and the proposal of stirrups (legs 2, 4, 6 ... and spacing) for
// an area per metre. Stresses in MPa, lengths in cm, areas in cm2 and cm2/m.
#include <string>

#include "app/form_state.h"
#include "app/screen.h"
#include "basis/checks.h"
#include "reports/report_writer.h"

namespace morve {

namespace msg {
inline const std::string kCrushedStrut =
    "Esmagamento da biela de compressão. Aumente as dimensões da seção transversal.";
inline const std::string kChooseStirrup = "Escolha um diâmetro para os estribos.";
}  // namespace msg

// alphav = 1 - fck / 250, the reduction of the strut strength.
double strutReduction(double fck);
// tauc, the shear stress the concrete carries.
double concreteShearStress(double fck, double gamac);
// rhow,min = 0.2 fctm / fyk, with fyk taken at most as 500 MPa (the characteristic
// strength, not the design one).
double minimumStirrupRatio(double fck, double fyk);
// fyd of stirrups, never above 435 MPa.
double stirrupDesignStrength(double fyk, double gamas);
// Asw in cm2/m for the design stress tauwd on the width bw: 1.11 (tauwd - tauc),
// none when the concrete alone carries the shear.
double shearStirrupArea(double bw, double tauwd, double tauc, double fyd);
// The largest spacing: 0.6 d up to 30 cm, or 0.3 d up to 20 cm when the strut is
// working hard (above 0.67 of its strength).
double maximumStirrupSpacing(bool strutHighlyStressed, double d);

struct StirrupProposal {
    double diameter = 0;  // mm
    long long legs = 0;
    long long spacing = 0;  // whole cm, cut down
};
// The sets of two legs that a spacing of 7 cm needs, and the spacing they give,
// held to the maximum. asw in cm2/m, above 0.
StirrupProposal proposeStirrups(double asw, double diameterMm, double smax);

struct StirrupBoxes {
    std::string diameter, spacing, legs;
};
void writeStirrupProposal(FormState& state, const StirrupBoxes& boxes, const StirrupProposal& p);
// "Estribos de 6.3 mm     Espaçamento = 12 cm(4 ramos)"
void writeStirrupReportLine(ReportWriter& out, const FormState& state, const StirrupBoxes& boxes);

// The stirrup diameter list of the input screens, nothing selected at first.
void declareStirrupList(ScreenBuilder& screen, const std::string& name);
// No diameter chosen stops the run with the focus on the list.
void checkStirrupChosen(CheckSequence& checks, const FormState& state, const std::string& list);

}  // namespace morve
