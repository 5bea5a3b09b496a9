#pragma once
// The ultimate-state model of a column section under normal flexo-compression,
// shared by the design and verification modules of the rectangle, the box and the
// circle (solid and hollow). Steel lies in horizontal layers; the concrete is the
// rectangular stress block on the section's own outline; the strain diagram turns
// about the steel pivot (10 per mille), the concrete pivot (eps_cu) or the point at
// kappa h (eps_c2). Everything is reduced to the relative neutral axis xi = x / h,
// measured from the most compressed face, and found by false position.
//
// Units: kN and cm; stresses in kN/cm2; strains of the block in per mille.
#include "app/trace.h"
#include <cmath>
#include <string>
#include <vector>

#include "basis/false_position.h"
#include "basis/materials.h"

namespace morve {

// The steel: layer 1 next to the tensioned edge, layer n next to the compressed one.
// beta[i] is the depth of layer i from the compressed face, in units of h.
struct LayeredSection {
    std::vector<int> bars;
    std::vector<double> beta;
    int total = 0;  // N, the number of bars of the section

    int layers() const { return static_cast<int>(bars.size()); }
};

// Layers evenly spaced between the planes d' from the two faces (delta = d'/h).
LayeredSection rectangularLayers(const std::vector<int>& barsPerLayer, double delta);
// N bars on the ring d' inside the face of a circle: one at the top, one at the
// bottom and pairs between, so N/2 + 1 layers.
LayeredSection ringLayers(int barCount, double delta);

// The outline that the stress block cuts. Only this differs between the shapes.
struct ConcreteOutline {
    enum class Kind { Rectangle, Box, Circle };
    Kind kind = Kind::Rectangle;
    double a = 2;    // box: b / bw
    double e = 0.5;  // box: hf / h
    double eta = 0;  // circle: ho / h (0 for the solid circle)

    static ConcreteOutline rectangle() { return {}; }
    static ConcreteOutline box(double b, double bw, double h, double hf) {
        return {Kind::Box, b / bw, hf / h, 0};
    }
    static ConcreteOutline circle(double h, double ho = 0) { return {Kind::Circle, 2, 0.5, ho / h}; }
};

// The block reduced to the section: rc = resultant / (Ac sigma_cd), bc = depth of
// its line of action / h.
struct BlockForce {
    double rc = 0, bc = 0;
};
BlockForce concreteBlock(const ConcreteOutline& outline, double xi, double lambda);

// The half angle of the chord at cosine c, exact at the two ends.
double ArcCos(double c);
// The pi of the concrete of circular sections.
inline constexpr double kCirclePi = 3.141592654;
// The pi of the bar areas.
inline constexpr double kBarPi = 3.14159;

// What a trial xi gives: the block and the steel sums S1 = sum bars s and
// S2 = sum bars beta s (stresses in kN/cm2, compression positive).
struct SectionForces {
    double xi = 0, rc = 0, bc = 0, s1 = 0, s2 = 0;
};

struct SectionModel {
    LayeredSection steel;
    ConcreteOutline outline;
    StressBlockParametersValues block{};
    double es = 0;   // kN/cm2
    double fyd = 0;  // kN/cm2

    SectionForces at(double xi) const;
    // The uniform strain of the squashed section, as a reduced force with the steel
    // at `strain` (per unit): 1 + omega s / fyd.
    double squashForce(double omega, double strain) const;
};

// f = 0 of the design: omega eliminated between the two equilibrium equations.
double SectionEquation(const SectionForces& f, double nu, double mu);
// f = 0 of the verification: the force equation with omega known.
double VerificationEquation(const SectionForces& f, double nu, double omega, int totalBars, double fyd);

enum class SearchStop { Converged, NoBracket, Stalled };

struct NeutralAxis {
    SearchStop stop = SearchStop::Converged;
    SectionForces forces;  // of the last evaluation
    long rounds = 0;
    // The bracket the false position started from, and the residual it ended on.
    double xi1 = 0, xi2 = 0, f1 = 0, f2 = 0, residual = 0;
    bool converged() const { return stop == SearchStop::Converged; }
};

// Far out the equation no longer changes (the section is squashed whole), so a
// bracket not found by xi = 1000 x 10^25 is never found.
inline constexpr int kMaxBracketWidenings = 25;

// The message of a search stopped by its guard.
std::string searchStopMessage(SearchStop stop);

// Bracket from [0, 1000], widening the upper end tenfold, then plain false position
// until |f| <= 0.001 in the equation's own units.
template <class Equation>
NeutralAxis SolveNeutralAxis(const SectionModel& model, Equation&& equation) {
    NeutralAxis out;
    double xi1 = 0, xi2 = 1000;
    SectionForces a = model.at(xi1), b = model.at(xi2);
    double f1 = equation(a), f2 = equation(b);
    out.forces = b;
    for (int widened = 0; !(f1 * f2 <= 0); ++widened) {
        if (widened == kMaxBracketWidenings || std::isnan(f1 * f2)) {
            out.stop = SearchStop::NoBracket;
            return out;
        }
        xi1 = xi2;
        f1 = f2;
        xi2 = 10 * xi2;
        out.forces = model.at(xi2);
        f2 = equation(out.forces);
    }
    out.xi1 = xi1;
    out.xi2 = xi2;
    out.f1 = f1;
    out.f2 = f2;
    const Root root = falsePosition(
        [&](double xi) {
            out.forces = model.at(xi);
            return equation(out.forces);
        },
        xi1, f1, xi2, f2, FalsePositionRule{});
    out.rounds = root.rounds;
    out.residual = root.f;
    if (!root.converged()) out.stop = SearchStop::Stalled;
    return out;
}

// Design: the mechanical ratio omega = As fyd / (Ac sigma_cd) for nu and mu;
// negative when the concrete alone carries the forces.
struct DesignRatio {
    SearchStop stop = SearchStop::Converged;
    double omega = 0;
};
DesignRatio designRatio(const SectionModel& model, double nu, double mu,
                        TraceRecorder rec = TraceRecorder(nullptr));

// Verification: the reduced resisting moment under nu for omega, once the caller
// has made sure nu does not exceed the squash force. The squash force itself gives
// 0 without a search.
struct ResistingMoment {
    SearchStop stop = SearchStop::Converged;
    double mu = 0;
};
ResistingMoment resistingMoment(const SectionModel& model, double nu, double nuMax, double omega);

// The interaction diagram: 99 searches from nu = 0 up, and the squash point.
// Points in kN (x) and kNm (y). The design stress and the strain of the squash
// point are passed in: the diagram keeps its own fixed values.
struct InteractionCurve {
    SearchStop stop = SearchStop::Converged;
    std::vector<double> nd, md;
};
InteractionCurve interactionCurve(const SectionModel& model, double area, double h,
                                  double sigmacd, double omega, double squashStrain);

}  // namespace morve
