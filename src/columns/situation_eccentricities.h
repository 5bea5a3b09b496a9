#pragma once
// The eccentricities of a column in the simplified method of NBR-6118 (lambda up to
// 90): accidental, minimum first-order, second-order by the approximate curvature
// and creep, and from them the pairs (ex, ey) of the design situations. Lengths in
// cm, forces in kN, moments in kNm as typed.
#include <vector>

namespace morve {

// Secant modulus (MPa) by the CEB/90 formula, the reference of the modulus check.
double cebSecantModulus(double fck);
// The Load value of the window's Ecs box by the code of the start dialog: the
// CEB/90 formula, or 4760 sqrt(fck) under NBR-6118 up to 50 MPa.
double columnSecantModulus(double fck, bool nbr6118);

// 1 to 4 by which end moments are zero (a = one end, b = the other).
int columnType(double max, double mbx, double may, double mby);
const char* columnTypeCaption(int type);

struct ColumnDirection {
    double le = 0;       // buckling length, cm
    double h = 0;        // width along the direction, cm
    double inertia = 0;  // cm4
    double ma = 0, mb = 0;  // first-order end moments, kNm
};

struct ColumnCase {
    double ecs = 0;   // MPa
    double phi = 0;   // creep coefficient
    double fcd = 0;   // kN/cm2
    double gamaf = 0;
    double area = 0;  // cm2
    double fk = 0;    // kN
    ColumnDirection x, y;
};

double slenderness(const ColumnDirection& d, double area);

struct DirectionEccentricities {
    double lambda = 0;
    double accidental = 0;   // e_a
    double minimum = 0;      // e1,min
    double secondOrder = 0;  // e2
    double creep = 0;        // ec on the base of the direction's case
    double endA = 0, endB = 0;  // 100 M / Fk, signed
    double big = 0;          // the larger end eccentricity in size
    double intermediate = 0; // e1c
    bool moments = false;
    double middle = 0;       // e2 + (e1c + e_a, at least e1,min) + ec: the mid-height section
    double totalWithoutMoments = 0;
    double totalWithMoments = 0;
};

struct Situation {
    double ex = 0, ey = 0;
};

struct ColumnSituations {
    int type = 1;
    DirectionEccentricities x, y;
    std::vector<Situation> rows;
    bool finite = true;  // false when creep blew up near the Euler load
};

// Reduced force Nd / (A fcd), never below 0.5 (it only enters the curvature).
double reducedForce(const ColumnCase& c);
DirectionEccentricities directionEccentricities(const ColumnDirection& d, const ColumnCase& c, double nu);
ColumnSituations columnSituations(const ColumnCase& c);

}  // namespace morve
