#pragma once
// False position on a bracket whose ends have opposite signs: the neutral-axis
// searches of the beams, the columns and the ties. The program's rules give these
// searches no limit of rounds, and on ordinary data the plain method may creep for
// tens of thousands of rounds before |f| falls within the tolerance, so the guard
// never counts rounds. It stops a search only when it cannot end:
// - a round leaves the bracket exactly as it was (the trial fell on an end, so
//   every later round would repeat it);
// - the trial or its value is not a number;
// - a second has gone by, far beyond any search that makes progress.
#include <chrono>
#include <cmath>

namespace morve {

enum class SearchEnd { Converged, Stalled };

struct Root {
    SearchEnd end = SearchEnd::Converged;
    double x = 0;  // the last trial
    double f = 0;  // and its value
    long rounds = 0;
    bool converged() const { return end == SearchEnd::Converged; }
};

struct FalsePositionRule {
    double tolerance = 0.001;      // on |f|, in the equation's own units
    bool zeroMovesUpper = false;   // a product f f1 of exactly zero replaces the upper end
    std::chrono::milliseconds timeBound{1000};
};

// Starting from the bracket (x1, f1), (x2, f2); at least one round is taken, as the
// searches start from f = 1. The last trial is the one the caller's equation saw last.
template <class Equation>
Root falsePosition(Equation&& f, double x1, double f1, double x2, double f2, const FalsePositionRule& rule) {
    using Clock = std::chrono::steady_clock;
    const Clock::time_point start = Clock::now();
    Root r;
    r.x = x1;
    r.f = 1.0;
    while (!(std::abs(r.f) <= rule.tolerance)) {
        const double x = (f2 * x1 - f1 * x2) / (f2 - f1);
        const double fx = f(x);
        ++r.rounds;
        r.x = x;
        r.f = fx;
        if (!std::isfinite(x) || !std::isfinite(fx)) break;
        const bool upper = rule.zeroMovesUpper ? fx * f1 <= 0 : fx * f1 < 0;
        double& end = upper ? x2 : x1;
        double& fend = upper ? f2 : f1;
        if (x == end && fx == fend && !(std::abs(fx) <= rule.tolerance)) break;
        end = x;
        fend = fx;
        if (r.rounds % 256 == 0 && Clock::now() - start > rule.timeBound) break;
    }
    r.end = std::abs(r.f) <= rule.tolerance ? SearchEnd::Converged : SearchEnd::Stalled;
    return r;
}

}  // namespace morve
