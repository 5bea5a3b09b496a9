#pragma once
// Mid-span deflection of a beam in service by four methods and the largest crack
// width by two formulations, from the section, the materials and the loads.
#include <vector>

#include "serviceability/section_states.h"
#include "serviceability/span_loads.h"

namespace morve {

// Mid-span deflection (cm, downward positive) of a span of l cm from its curvature
// (1/cm, sagging positive) at the kStations stations.
//
// By virtual work the deflection is the integral of chi times the moment of a unit
// load at mid-span, l/2 - |x - l/2| over 2, which is linear between stations and has
// its kink at the middle station. Taking chi linear between stations, each step is
// the integral of a product of two straight lines, h/6 (2 a1 b1 + a1 b2 + a2 b1 +
// 2 a2 b2), so the routine is exact for piecewise-linear curvature. A parabolic
// moment (uniform load) read at 101 stations loses p h^2/12 per step: the simple
// span under uniform load comes out 0.8 (h/l)^2 = 8E-5 of 5 p l^4/(384 E I) short.
double midspanDeflection(const std::vector<double>& curvature, double span);

struct ServiceMaterials {
    double fck = 0;     // MPa
    double ecs = 0;     // kN/cm2
    double phi = 0;     // creep coefficient
    double epsCs = 0;   // imposed (shrinkage) strain
    double es = 0;      // kN/cm2
    double fctm() const;  // mean tensile strength, kN/cm2
};

struct ServiceResults {
    double mr = 0, ma = 0;  // cracking and largest moment, kN cm
    double ec2 = 0;         // deflections, cm
    double bilinear = 0;    // rectangles only
    double practical = 0;   // rectangles only
    double wo = 0, nbr = 0;
    double allowable = 0;
    double crackCeb = 0, crackNbr = 0;  // mm
};

// barDiameter in mm; loads in m, kN; the T section has no bilinear and practical
// values (left 0).
ServiceResults serviceAnalysis(const ServiceSection& section, bool tee, const ServiceMaterials& mat,
                               double barDiameter, const SpanLoads& loads);

struct CrackWidths {
    double ceb = 0, nbr = 0;  // mm
};
// Crack widths under the steel stress sigma_s (kN/cm2) of the cracked section with
// neutral axis x (cm).
CrackWidths crackWidths(const ServiceSection& s, const ServiceMaterials& mat, double barDiameter,
                        double sigmaS, double x);

}  // namespace morve
