#include "serviceability/deflection.h"

#include <algorithm>
#include <cmath>

#include "basis/materials.h"
#include "numeric/elementary.h"

namespace morve {

double midspanDeflection(const std::vector<double>& chi, double span) {
    const int steps = static_cast<int>(chi.size()) - 1;
    const double h = span / steps;
    auto unit = [&](int i) { return (span / 2 - std::fabs(i * h - span / 2)) / 2; };
    double w = 0;
    for (int i = 0; i < steps; ++i) {
        const double a1 = chi[i], a2 = chi[i + 1], b1 = unit(i), b2 = unit(i + 1);
        w += h / 6 * (2 * a1 * b1 + a1 * b2 + a2 * b1 + 2 * a2 * b2);
    }
    return w;
}

double ServiceMaterials::fctm() const { return meanTensileStrength(fck) / 10; }

namespace {

std::vector<double> curvatures(const std::vector<double>& moments, double stiffness, double creep,
                               double shrinkage) {
    std::vector<double> chi(moments.size());
    for (std::size_t i = 0; i < moments.size(); ++i) chi[i] = moments[i] / stiffness * creep + shrinkage;
    return chi;
}

}  // namespace

CrackWidths crackWidths(const ServiceSection& s, const ServiceMaterials& mat, double phiS, double sigmaS,
                        double x) {
    const double fctm = mat.fctm(), es = mat.es, eps = mat.epsCs;
    const double n = es / mat.ecs;
    const double h = s.height, b = s.referenceWidth();
    CrackWidths w;

    const double hef = std::min(2.5 * (h - s.d), (h - x) / 3);
    const double rho = s.as / (b * hef);
    const double tension = 1 + n * rho;
    const double sigmaSr = tension * fctm / rho;
    if (sigmaS < sigmaSr) {
        const double tau = 1.35 * fctm;
        const double e = std::max(0.0, sigmaS / es - 0.6 * fctm * tension / (rho * es));
        w.ceb = (0.5 * eps + e) * sigmaS * phiS / (2 * tau * tension);
    } else {
        const double e = std::max(0.0, sigmaS / es - 0.38 * fctm * tension / (rho * es));
        w.ceb = (0.5 * eps + e) * phiS / (3.6 * rho);
    }

    // The zone of concrete that holds one bar in the other formulation reaches 7.5
    // bar diameters from the bar's centre (0.75 phi_s with phi_s in mm gives cm),
    // and never beyond the tension zone.
    const double hcr = std::min(h - s.d + 0.75 * phiS, h - x);
    const double rhoCr = s.as / (b * hcr);
    const double wk1 = 3 * phiS * sigmaS * sigmaS / (28.125 * es * fctm);
    const double wk2 = (4 / rhoCr + 45) * sigmaS * phiS / (28.125 * es);
    w.nbr = std::min(wk1, wk2);
    return w;
}

ServiceResults serviceAnalysis(const ServiceSection& s, bool tee, const ServiceMaterials& mat, double phiS,
                               const SpanLoads& loads) {
    ServiceResults r;
    const double l = loads.span * 100;
    const double n = mat.es / mat.ecs, fctm = mat.fctm();
    const double b = s.referenceWidth(), d = s.d, h = s.height;
    std::vector<double> m = stationMoments(loads);
    for (double& v : m) v *= 100;  // kN cm
    r.ma = *std::max_element(m.begin(), m.end());

    const SectionInertia gross = grossSection(s);
    r.mr = tee ? 1.2 * gross.inertia * fctm / (h - gross.centroid) : b * h * h * fctm / 4;
    const bool cracks = r.ma > r.mr;

    const StateCoefficients one = stateCoefficients(s, n, mat.phi, false);
    const StateCoefficients two = stateCoefficients(s, n, mat.phi, true);
    const double reference = mat.ecs * b * d * d * d;
    auto stateCurvature = [&](const StateCoefficients& k) {
        return curvatures(m, reference * k.ik, 1 + k.kPhi * mat.phi, k.kEps * mat.epsCs / d);
    };
    const std::vector<double> chiOne = stateCurvature(one), chiTwo = stateCurvature(two);

    // Branson's equivalent inertia over the span, short term, then the long-term factor.
    const double i2 = b * d * d * d * two.ik;
    double ieq = gross.inertia;
    if (cracks) {
        const double r3 = portable::pow(r.mr / r.ma, 3);
        ieq = std::min(gross.inertia, r3 * gross.inertia + (1 - r3) * i2);
    }
    const double rhoc = s.asc / (b * d);
    r.wo = midspanDeflection(curvatures(m, mat.ecs * ieq, 1, 0), l);
    r.nbr = (1 + 1.32 / (1 + 50 * rhoc)) * r.wo;

    if (!tee) {
        const double zeta = cracks ? 1 - 0.5 * r.mr / r.ma : 0;
        r.bilinear = (1 - zeta) * midspanDeflection(chiOne, l) + zeta * midspanDeflection(chiTwo, l);

        const double wc = midspanDeflection(curvatures(m, mat.ecs * b * h * h * h / 12, 1, 0), l);
        const double eta = 0.09547 * portable::pow(s.as / (b * d), -0.71186);
        const int unrestrained = (loads.xa == 0) + (loads.xb == 0);
        const double ks = unrestrained == 2 ? 1.0 : unrestrained == 1 ? 0.7 : 0.5;
        r.practical = (1 - 20 * rhoc) * eta * portable::pow(h / d, 3) * wc +
                      ks * two.kEps * mat.epsCs * l * l / (8 * d);
    }

    // Station by station, a hogging or uncracked station keeping its state I curvature.
    std::vector<double> chi(m.size());
    for (std::size_t i = 0; i < m.size(); ++i) {
        const double zeta = m[i] <= r.mr ? 0 : 1 - 0.5 * portable::pow(r.mr / m[i], 2);
        chi[i] = (1 - zeta) * chiOne[i] + zeta * chiTwo[i];
    }
    r.ec2 = midspanDeflection(chi, l);
    r.allowable = l / 250;

    const SectionInertia cracked = crackedSection(s, n);
    const double sigmaS = r.ma > 0 ? n * r.ma * (d - cracked.centroid) / cracked.inertia : 0;
    const CrackWidths w = crackWidths(s, mat, phiS, sigmaS, cracked.centroid);
    r.crackCeb = w.ceb;
    r.crackNbr = w.nbr;
    return r;
}

}  // namespace morve
