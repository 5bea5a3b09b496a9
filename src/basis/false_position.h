#pragma once
// False position on a bracket whose ends have opposite signs: the neutral-axis
// searches of the beams, the columns, the ties and the polygonal sections.
//
// The plain rule moves one end at a time; on a curve that bends one way it keeps
// the other end for good and creeps towards the root, on ordinary data for tens of
// thousands of rounds before |f| falls within the tolerance. The layered sections
// keep it, since their rules give those searches no limit of rounds. The polygonal
// sections run three such searches inside one another under a limit of rounds, so
// they take the Illinois rule instead: the value of an end kept twice in a row is
// halved, which pulls the next trial across the root and closes the bracket from
// both sides within a few tens of rounds.
//
// The guard depends on nothing but the rounds, so that a converged result is the
// same on every machine. It stops a search only when it cannot end:
// - a round leaves the bracket exactly as it was (the trial fell on an end, so
//   every later round would repeat it);
// - the trial or its value is not a number;
// - the rounds reach the rule's limit, far beyond the rounds of any search that
//   makes progress (a million for the searches with no limit of their own).
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
    bool illinois = false;         // halve the value of an end kept twice in a row
    long maxRounds = 1000000;
};

// Starting from the bracket (x1, f1), (x2, f2); at least one round is taken, whatever
// the tolerance, as the callers have looked at both ends already. The last trial is
// the one the caller's equation saw last.
template <class Equation>
Root falsePosition(Equation&& f, double x1, double f1, double x2, double f2, const FalsePositionRule& rule) {
    Root r;
    r.x = x1;
    r.f = std::nan("");
    int kept = 0;  // 1: the lower end stayed in the last round, -1: the upper end
    while ((r.rounds == 0 || !(std::abs(r.f) <= rule.tolerance)) && r.rounds < rule.maxRounds) {
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
        if (rule.illinois) {
            if (kept == (upper ? 1 : -1)) (upper ? f1 : f2) /= 2;
            kept = upper ? 1 : -1;
        }
    }
    r.end = std::abs(r.f) <= rule.tolerance ? SearchEnd::Converged : SearchEnd::Stalled;
    return r;
}

}  // namespace morve
