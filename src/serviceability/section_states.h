#pragma once
// The beam section in service: a rectangle or a T with tension steel As at depth d
// and compression steel As' at depth d''. All lengths in cm, depths from the top
// (compressed) face; areas in cm2.
namespace morve {

struct ServiceSection {
    double flangeWidth = 0;  // bf; the width b of a rectangle
    double flangeDepth = 0;  // hf; 0 for a rectangle
    double webWidth = 0;     // bw; b for a rectangle
    double height = 0;       // h
    double d = 0;            // depth of As
    double dCompression = 0; // d'', depth of As'
    double as = 0, asc = 0;  // As, As'

    static ServiceSection rectangle(double b, double h, double d, double dc, double as, double asc);
    static ServiceSection tee(double bf, double hf, double bw, double h, double d, double dc, double as,
                              double asc);
    // The width the stiffness factor and the steel ratios refer to: the web.
    double referenceWidth() const { return webWidth; }
};

// Centroid depth and second moment about it of a section.
struct SectionInertia {
    double centroid = 0;
    double inertia = 0;
};

// The plain concrete section, steel left out.
SectionInertia grossSection(const ServiceSection& s);
// Uncracked, steel transformed with the modular ratio n (the concrete it displaces
// taken out).
SectionInertia uncrackedSection(const ServiceSection& s, double n);
// Cracked: concrete above the neutral axis only. The centroid is the neutral axis
// depth x.
SectionInertia crackedSection(const ServiceSection& s, double n);

// The three numbers that give the curvature of a section state under a moment M,
// creep phi and shrinkage eps:
//   chi = M / (Ecs b d^3 Ik) (1 + k_phi phi) + k_eps eps / d.
struct StateCoefficients {
    double ik = 0;    // short-term stiffness factor
    double kPhi = 1;  // creep factor
    double kEps = 0;  // shrinkage factor
};

// The coefficients of state I (cracked = false) or state II, with the modular
// ratio n = Es / Ecs and the creep coefficient phi.
StateCoefficients stateCoefficients(const ServiceSection& s, double n, double phi, bool cracked);

}  // namespace morve
