#pragma once
// Torsion of a rectangular beam section by the hollow section of NBR-6118: the
// equivalent wall, the steel that the torque needs and how the longitudinal steel
// is spread over the faces. Lengths in cm.
namespace morve {

struct HollowSection {
    double te = 0;  // wall thickness
    double ae = 0;  // area inside the centre line of the wall, cm2
    double ue = 0;  // perimeter of the bar centres, cm
};

// he = A / u of the full section. The wall runs through the corner bars when they
// sit deeper than he / 2; then the wall is also no thicker than b - 2 d'.
HollowSection torsionHollowSection(double b, double h, double dPrime);

struct Arrangement {
    double bottom = 0;  // As1
    double top = 0;     // As2
    double side = 0;    // As3, on each side face
};

// Bending and torsion steel by face. Up to 40 cm on both sides the torsion steel
// is split between bottom and top; a larger section spreads it along the
// perimeter, so that the side faces get their share.
Arrangement arrangeLongitudinal(double b, double h, const HollowSection& wall, double as,
                                double asPrime, double asl);

// rhomin of the bending steel in this module: always the formula of concretes up to
// 50 MPa, never below 0.0015 (fck and fyd in MPa).
double torsionBendingMinimumRatio(double fck, double fyd);

}  // namespace morve
