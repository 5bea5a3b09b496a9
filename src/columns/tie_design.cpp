#include "columns/tie_design.h"

#include <cmath>

#include "basis/false_position.h"

namespace morve {

double compressedSteelStrain(double xiLim, double delta, double ecu) {
    // From the start of domain 3 on, the concrete is at its ultimate strain ecu.
    if (xiLim >= ecu / (ecu + 10)) return (xiLim - delta) * ecu / xiLim;
    // Below it the limit falls in domain 2, where the diagram turns about the
    // tensioned layer at 10 per mille: the strain at d' is read off that line, not
    // off ecu, which the concrete does not reach there.
    return 10 * (xiLim - delta) / (1 - xiLim);
}

AsymmetricTie designAsymmetricTie(const TieSection& t, double xiLim) {
    AsymmetricTie r;
    const double lambda = t.block.lambda;
    const double mu0 = 0.5 * (1 - t.delta) * t.nu;
    if (t.mu <= mu0) {
        // The resultant falls between the layers: the two share the tie by the lever
        // rule, and at mu = mu0 the layer at d' is just idle.
        r.kind = TieCase::SmallEccentricity;
        r.omegaPrime = (mu0 - t.mu) / (1 - t.delta);
        r.omega = (mu0 + t.mu) / (1 - t.delta);
        return r;
    }
    const double mu1 = t.mu - mu0;  // what the concrete must take about the layer at d
    const double muLim = lambda * xiLim * (1 - 0.5 * lambda * xiLim);
    if (mu1 <= muLim) {
        r.kind = TieCase::SingleSteel;
        const double xi = (1 - std::sqrt(1 - 2 * mu1)) / lambda;
        r.omega = lambda * xi + t.nu;
        return r;
    }
    r.kind = TieCase::DoubleSteel;
    // With the limit at or above the layer at d', that layer is not compressed and
    // cannot take the excess moment: the section has to grow, as for beams.
    if (xiLim <= t.delta) {
        r.stop = TieStop::SectionTooSmall;
        return r;
    }
    const double strain = compressedSteelStrain(xiLim, t.delta, t.block.epsCu);
    const double s = BilinearStress(t.es, strain / 1000, t.fyd);
    r.omegaPrime = (mu1 - muLim) * t.fyd / ((1 - t.delta) * s);
    r.omega = lambda * xiLim + (mu1 - muLim) / (1 - t.delta) + t.nu;
    return r;
}

LayerStresses tieLayerStresses(const TieSection& t, double xi) {
    const double ecu = t.block.epsCu / 1000;
    const double xi23 = t.block.epsCu / (t.block.epsCu + 10);
    // Tensile strain of a fibre at depth beta d: domain 2 turns about the layer at d
    // at 10 per mille, domains 3 and 4 about the compressed face at ecu.
    auto strain = [&](double beta) {
        return xi <= xi23 ? 0.010 * (beta - xi) / (1 - xi) : ecu * (beta - xi) / xi;
    };
    return {BilinearStress(t.es, strain(1), t.fyd) / t.fyd,
            BilinearStress(t.es, strain(t.delta), t.fyd) / t.fyd};
}

namespace {

// The equation of the symmetric design. With equal layers omega, a concrete block
// lambda xi and the stress ratios s1 (at d) and s2 (at d'), tension positive:
//   forces:                    omega (s1 + s2) - lambda xi = nu
//   moments about the layer d: lambda xi (1 - lambda xi / 2) - omega s2 (1 - delta) = mu - mu0
// omega is eliminated by cross-multiplying, so the residual stays finite where
// s1 + s2 vanishes (both layers yielded, opposite ways).
double symmetricResidual(const TieSection& t, double xi, double& omega) {
    const LayerStresses s = tieLayerStresses(t, xi);
    const double rc = t.block.lambda * xi;
    const double mu1 = t.mu - 0.5 * t.nu * (1 - t.delta);
    const double sum = s.atD + s.atDPrime;
    omega = sum > 0 ? (t.nu + rc) / sum : -1;
    return (rc * (1 - 0.5 * rc) - mu1) * sum - (t.nu + rc) * s.atDPrime * (1 - t.delta);
}

}  // namespace

SymmetricTie designSymmetricTie(const TieSection& t) {
    SymmetricTie r;
    double omega = 0;
    const double f0 = symmetricResidual(t, 0, omega);
    if (f0 >= 0) {
        // No plane with a compressed zone balances the forces: the neutral axis lies
        // above the section (domain 1). The layer at d yields at 10 per mille and the
        // layer at d' takes the rest of the tie by the lever rule, so each face needs
        // what the more tensioned one carries. This joins the search continuously at
        // f(0) = 0, and at Mk = 0 it gives each face half the tie.
        r.tieCase = true;
        r.omega = (0.5 * t.nu * (1 - t.delta) + t.mu) / (1 - t.delta);
        return r;
    }
    // The first sign change from xi = 0 upwards is the plane sought: past it the two
    // layers would end yielded opposite ways, where f is positive, and any later root
    // would ask for a negative area. A net tension keeps the neutral axis above d.
    constexpr int kSteps = 200;
    double xi1 = 0, f1 = f0, xi2 = 0, f2 = 0;
    bool bracketed = false;
    for (int i = 1; i <= kSteps && !bracketed; ++i) {
        xi2 = static_cast<double>(i) / kSteps;
        f2 = symmetricResidual(t, xi2, omega);
        if (f2 > 0)
            bracketed = true;
        else
            xi1 = xi2, f1 = f2;
    }
    if (!bracketed) {
        r.stop = TieStop::NoNeutralAxis;
        return r;
    }
    // False position as the section solvers do it: tolerance on |f| in its own units,
    // at least one step, the last evaluation giving the result.
    const Root root = falsePosition([&](double xi) { return symmetricResidual(t, xi, omega); },
                                    xi1, f1, xi2, f2, FalsePositionRule{});
    if (!root.converged()) {
        r.stop = TieStop::NotConverged;
        return r;
    }
    const double xi = root.x;
    if (!(omega > 0) || !std::isfinite(omega)) {
        r.stop = TieStop::NoNeutralAxis;
        return r;
    }
    r.xi = xi;
    r.omega = omega;
    return r;
}

}  // namespace morve
