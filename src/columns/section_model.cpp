#include "columns/section_model.h"

#include <algorithm>
#include <cmath>

#include "numeric/elementary.h"

namespace morve {

LayeredSection rectangularLayers(const std::vector<int>& barsPerLayer, double delta) {
    LayeredSection s;
    const int n = static_cast<int>(barsPerLayer.size());
    s.bars = barsPerLayer;
    for (int i = 1; i <= n; ++i) {
        s.beta.push_back(delta + (1 - 2 * delta) * (n - i) / (n - 1));
        s.total += barsPerLayer[i - 1];
    }
    return s;
}

LayeredSection ringLayers(int barCount, double delta) {
    LayeredSection s;
    const int n = barCount / 2 + 1;
    for (int i = 1; i <= n; ++i) {
        const double c = portable::cos(2.0 * (n - i) * kCirclePi / barCount);
        s.bars.push_back(i == 1 || i == n ? 1 : 2);
        s.beta.push_back((1 - c) / 2 + c * delta);
    }
    s.total = barCount;
    return s;
}

double ArcCos(double c) {
    if (c == 1) return 0;
    if (c == -1) return kCirclePi;
    return portable::atan(-c / std::sqrt(1 - c * c)) + 2 * portable::atan(1.0);
}

namespace {

BlockForce rectangleBlock(double y) {
    if (y >= 1) return {1, 0.5};
    return {y, 0.5 * y};
}

// Two flanges of hf and two webs of bw, in units of bw h: D = Ac / (bw h).
BlockForce boxBlock(double y, double a, double e) {
    if (y >= 1) return {1, 0.5};
    const double d = 2 * (a - 2) * e + 2;
    if (y <= e) return {a * y / d, y / 2};
    if (y <= 1 - e)
        return {(2 * y + (a - 2) * e) / d,
                ((a - 2) * e * e + 2 * y * y) / (4 * y + 2 * (a - 2) * e)};
    const double hole = (a - 2) * (2 * e - 1);
    return {(a * y + hole) / d, (hole + a * y * y) / (2 * hole + 2 * a * y)};
}

// The segment of depth y h cut from the outer circle less the one cut from the
// hole, both in closed form through their half angles.
BlockForce circleBlock(double xi, double lambda, double eta) {
    const double c1 = xi >= 1 / lambda ? -1 : 1 - 2 * lambda * xi;
    const double theta1 = ArcCos(c1);
    if (theta1 == 0) return {0, 0};
    double c2 = 1;
    if (xi > (1 - eta) / (2 * lambda)) c2 = xi >= (1 + eta) / (2 * lambda) ? -1 : (1 - 2 * lambda * xi) / eta;
    const double theta2 = ArcCos(c2);
    const double a = theta1 - portable::sin(theta1) * portable::cos(theta1);
    const double b = eta * eta * (theta2 - portable::sin(theta2) * portable::cos(theta2));
    const double s1 = portable::sin(theta1), s2 = portable::sin(theta2);
    return {(a - b) / ((1 - eta * eta) * kCirclePi),
            0.5 - (s1 * s1 * s1 - eta * eta * eta * s2 * s2 * s2) / (3 * (a - b))};
}

}  // namespace

BlockForce concreteBlock(const ConcreteOutline& outline, double xi, double lambda) {
    switch (outline.kind) {
        case ConcreteOutline::Kind::Rectangle:
            if (xi >= 1 / lambda) return {1, 0.5};
            return rectangleBlock(lambda * xi);
        case ConcreteOutline::Kind::Box: return boxBlock(lambda * xi, outline.a, outline.e);
        case ConcreteOutline::Kind::Circle: return circleBlock(xi, lambda, outline.eta);
    }
    return {};
}

SectionForces SectionModel::at(double xi) const {
    const double beta1 = steel.beta.front();
    const double xi23 = block.epsCu * beta1 / (block.epsCu + 10);
    double k;
    if (xi <= xi23)
        k = 0.01 / (beta1 - xi);  // steel pivot: layer 1 at 10 per mille
    else if (xi <= 1)
        k = block.epsCu / (1000 * xi);  // concrete pivot at the compressed face
    else
        k = (block.epsC2 / 1000) / (xi - block.kappa);  // the point at kappa h
    SectionForces f;
    f.xi = xi;
    const BlockForce c = concreteBlock(outline, xi, block.lambda);
    f.rc = c.rc;
    f.bc = c.bc;
    for (std::size_t i = 0; i < steel.bars.size(); ++i) {
        const double s = BilinearStress(es, (xi - steel.beta[i]) * k, fyd);
        f.s1 += steel.bars[i] * s;
        f.s2 += steel.bars[i] * steel.beta[i] * s;
    }
    return f;
}

double SectionModel::squashForce(double omega, double strain) const {
    return 1 + omega * BilinearStress(es, strain, fyd) / fyd;
}

double SectionEquation(const SectionForces& f, double nu, double mu) {
    return (mu - 0.5 * nu + f.rc * f.bc) * f.s1 + (nu - f.rc) * f.s2;
}

double VerificationEquation(const SectionForces& f, double nu, double omega, int totalBars, double fyd) {
    return nu - f.rc - omega * f.s1 / (totalBars * fyd);
}

std::string searchStopMessage(SearchStop stop) {
    switch (stop) {
        case SearchStop::Converged: return "";
        case SearchStop::NoBracket:
            return "A busca da linha neutra não encontrou solução para estes dados. Revise os dados "
                   "da seção e dos esforços.";
        case SearchStop::Stalled:
            return "A busca da linha neutra não convergiu. Revise os dados da seção e dos esforços.";
    }
    return "";
}

DesignRatio designRatio(const SectionModel& model, double nu, double mu, TraceRecorder rec) {
    const double n = model.steel.total;
    const double nfyd = n * model.fyd;
    if (mu == 0) {
        // No moment: the section is squashed whole, the steel at eps_c2.
        const double s = BilinearStress(model.es, model.block.epsC2 / 1000, model.fyd);
        rec.note("μ = 0: compressão uniforme, aço na deformação εc2.");
        rec.step("Tensão no aço", "σs = min(Es · εc2 / 1000, fyd)", "min({} · {} / 1000, {})",
                 {{model.es, "kN/cm²"}, {model.block.epsC2, "‰"}, {model.fyd, "kN/cm²"}}, s, "kN/cm²", -1,
                 "NBR-6118:2014, 17.2.2");
        rec.step("Taxa mecânica", "ω = (ν − 1) · fyd / σs", "({} − 1) · {} / {}",
                 {{nu, ""}, {model.fyd, "kN/cm²"}, {s, "kN/cm²"}}, (nu - 1) * model.fyd / s, "");
        return {SearchStop::Converged, (nu - 1) * model.fyd / s};
    }
    NeutralAxis axis = SolveNeutralAxis(model, [&](const SectionForces& f) { return SectionEquation(f, nu, mu); });
    if (rec.on()) {
        rec.stage("Linha neutra");
        if (axis.stop == SearchStop::NoBracket) {
            rec.note("Nenhum intervalo com troca de sinal foi encontrado até ξ = 1000 · 10^25.");
        } else {
            rec.note("Equilíbrio de forças e de momentos com ω eliminado: f(ξ) = 0, ξ = x/h. Intervalo inicial: ξ1 = " +
                     traceNumber(axis.xi1) + " (f = " + traceNumber(axis.f1) + "), ξ2 = " + traceNumber(axis.xi2) +
                     " (f = " + traceNumber(axis.f2) + "); falsa posição até |f| ≤ 0.001 (" +
                     std::to_string(axis.rounds) + " iterações).");
            rec.check("Raiz", "|f(ξ)| ≤ 0.001", "", {}, std::abs(axis.residual), "",
                      axis.converged());
            rec.step("Profundidade relativa da linha neutra", "ξ = x/h", "", {}, axis.forces.xi, "");
            rec.step("Resultante do concreto", "Rc = Fc / (Ac · σcd)", "", {}, axis.forces.rc, "");
            rec.step("Soma das tensões nas barras", "S1 = Σ σsi", "", {}, axis.forces.s1, "kN/cm²");
            rec.step("Soma ponderada pela posição", "S2 = Σ βi · σsi", "", {}, axis.forces.s2, "kN/cm²");
        }
    }
    if (!axis.converged()) return {axis.stop, 0};
    const SectionForces& f = axis.forces;
    // Of the two equilibrium equations, the one with the larger steel sum is the
    // better conditioned for omega.
    if (std::abs(f.s1) < std::abs(f.s2)) {
        const double omega = nfyd * (0.5 * nu - mu - f.rc * f.bc) / f.s2;
        rec.step("Taxa mecânica (equilíbrio de momentos)", "ω = n · fyd · (0.5 · ν − μ − Rc · βc) / S2",
                 "{} · {} · (0.5 · {} − {} − {} · {}) / {}",
                 {{n, ""}, {model.fyd, "kN/cm²"}, {nu, ""}, {mu, ""}, {f.rc, ""}, {f.bc, ""}, {f.s2, "kN/cm²"}}, omega, "");
        return {SearchStop::Converged, omega};
    }
    const double omega = nfyd * (nu - f.rc) / f.s1;
    rec.step("Taxa mecânica (equilíbrio de forças)", "ω = n · fyd · (ν − Rc) / S1", "{} · {} · ({} − {}) / {}",
             {{n, ""}, {model.fyd, "kN/cm²"}, {nu, ""}, {f.rc, ""}, {f.s1, "kN/cm²"}}, omega, "");
    return {SearchStop::Converged, omega};
}

ResistingMoment resistingMoment(const SectionModel& model, double nu, double nuMax, double omega) {
    if (nu == nuMax) return {SearchStop::Converged, 0};
    const int n = model.steel.total;
    NeutralAxis axis = SolveNeutralAxis(
        model, [&](const SectionForces& f) { return VerificationEquation(f, nu, omega, n, model.fyd); });
    if (!axis.converged()) return {axis.stop, 0};
    const SectionForces& f = axis.forces;
    return {SearchStop::Converged, 0.5 * nu - f.rc * f.bc - f.s2 * omega / (n * model.fyd)};
}

InteractionCurve interactionCurve(const SectionModel& model, double area, double h, double sigmacd,
                                  double omega, double squashStrain) {
    InteractionCurve curve;
    const double nuMax = model.squashForce(omega, squashStrain);
    const double step = nuMax / 99;
    for (int i = 1; i <= 99; ++i) {
        const double nu = (i - 1) * step;
        ResistingMoment r = resistingMoment(model, nu, nuMax, omega);
        if (r.stop != SearchStop::Converged) {
            curve.stop = r.stop;
            return curve;
        }
        curve.nd.push_back(area * nu * sigmacd);
        curve.md.push_back(std::max(0.0, r.mu * area * h * sigmacd / 100));
    }
    curve.nd.push_back(area * nuMax * sigmacd);
    curve.md.push_back(0);
    return curve;
}

}  // namespace morve
