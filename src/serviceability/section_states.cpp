#include "serviceability/section_states.h"

#include <algorithm>

namespace morve {

namespace {

// Area, first and second moment about the top face of the concrete above depth y.
struct ConcreteMoments {
    double area = 0, first = 0, second = 0;
};

ConcreteMoments concreteAbove(const ServiceSection& s, double y) {
    const double flange = std::min(y, s.flangeDepth);
    ConcreteMoments c;
    c.area = s.flangeWidth * flange;
    c.first = s.flangeWidth * flange * flange / 2;
    c.second = s.flangeWidth * flange * flange * flange / 3;
    if (y > s.flangeDepth) {
        const double f = s.flangeDepth;
        c.area += s.webWidth * (y - f);
        c.first += s.webWidth * (y * y - f * f) / 2;
        c.second += s.webWidth * (y * y * y - f * f * f) / 3;
    }
    return c;
}

SectionInertia aboutCentroid(double area, double first, double second) {
    const double c = first / area;
    return {c, second - area * c * c};
}

// Factor of As' in the cracked section: n in tension, n - 1 where it sits in the
// compressed concrete it displaces.
double compressionSteelFactor(const ServiceSection& s, double n, double x) {
    return s.dCompression < x ? n - 1 : n;
}

// First moment about the axis at x of the transformed cracked section; zero at the
// neutral axis, rising with x.
double crackedFirstMoment(const ServiceSection& s, double n, double x) {
    const ConcreteMoments c = concreteAbove(s, x);
    return x * c.area - c.first + n * s.as * (x - s.d) +
           compressionSteelFactor(s, n, x) * s.asc * (x - s.dCompression);
}

}  // namespace

ServiceSection ServiceSection::rectangle(double b, double h, double d, double dc, double as, double asc) {
    return {b, 0, b, h, d, dc, as, asc};
}

ServiceSection ServiceSection::tee(double bf, double hf, double bw, double h, double d, double dc, double as,
                                   double asc) {
    return {bf, hf, bw, h, d, dc, as, asc};
}

SectionInertia grossSection(const ServiceSection& s) {
    const ConcreteMoments c = concreteAbove(s, s.height);
    return aboutCentroid(c.area, c.first, c.second);
}

SectionInertia uncrackedSection(const ServiceSection& s, double n) {
    const ConcreteMoments c = concreteAbove(s, s.height);
    const double m = n - 1;
    const double dc = s.dCompression;
    return aboutCentroid(c.area + m * (s.as + s.asc), c.first + m * (s.as * s.d + s.asc * dc),
                         c.second + m * (s.as * s.d * s.d + s.asc * dc * dc));
}

SectionInertia crackedSection(const ServiceSection& s, double n) {
    // Bisection: the first moment is monotonic in x and changes sign between the
    // top face and the steel, so a fixed number of halvings reaches the last bit.
    double lo = 0, hi = s.d;
    for (int i = 0; i < 200 && hi - lo > 0; ++i) {
        const double mid = (lo + hi) / 2;
        if (mid == lo || mid == hi) break;
        (crackedFirstMoment(s, n, mid) < 0 ? lo : hi) = mid;
    }
    const double x = (lo + hi) / 2;
    const ConcreteMoments c = concreteAbove(s, x);
    const double concrete = c.second - 2 * x * c.first + x * x * c.area;
    const double inertia = concrete + n * s.as * (s.d - x) * (s.d - x) +
                           compressionSteelFactor(s, n, x) * s.asc * (x - s.dCompression) * (x - s.dCompression);
    return {x, inertia};
}

// How the coefficients are formed. Creep is taken by the effective modulus: under a
// lasting moment the concrete acts with Ecs / (1 + phi), so the steel counts n (1 + phi)
// times in the transformed section and
//   chi = M (1 + phi) / (Ecs I(n (1 + phi))).
// Against the short-term chi = M / (Ecs I(n)) that gives Ik = I(n) / (b d^3) and
//   1 + k_phi phi = (1 + phi) I(n) / I(n (1 + phi)),
// exact for the creep coefficient of the case. In state I the stiffness is that of
// the plain concrete section, the Ic that Branson's rule starts from, so that an
// uncracked beam comes out alike by every method; without steel in it the effective
// modulus gives k_phi = 1, the plain (1 + phi).
// Shrinkage grows together with creep, so it sees the age-adjusted modulus
// Ecs / (1 + 0.8 phi): with na = n (1 + 0.8 phi), the steel restraining the free
// shortening eps bends the section by
//   chi = eps na S / I(na),
// S the first moment of the steel areas about the centroid of the transformed
// section, the compression steel counting against; so k_eps = d na S / I(na). State I
// takes the uncracked transformed section here (the steel is what restrains), state
// II the cracked one, whose centroid is the neutral axis.
StateCoefficients stateCoefficients(const ServiceSection& s, double n, double phi, bool cracked) {
    const double b = s.referenceWidth(), d3 = s.d * s.d * s.d;
    StateCoefficients k;
    if (cracked) {
        const SectionInertia shortTerm = crackedSection(s, n);
        k.ik = shortTerm.inertia / (b * d3);
        if (phi != 0) k.kPhi = ((1 + phi) * shortTerm.inertia / crackedSection(s, n * (1 + phi)).inertia - 1) / phi;
    } else {
        k.ik = grossSection(s).inertia / (b * d3);
    }
    const double na = n * (1 + 0.8 * phi);
    const SectionInertia aged = cracked ? crackedSection(s, na) : uncrackedSection(s, na);
    const double steelMoment = s.as * (s.d - aged.centroid) - s.asc * (aged.centroid - s.dCompression);
    k.kEps = s.d * na * steelMoment / aged.inertia;
    return k;
}

}  // namespace morve
