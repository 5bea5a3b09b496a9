#include "columns/oblique_section.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace morve {

namespace {

constexpr double kPi = std::numbers::pi;
constexpr double kForceTolerance = 0.001;  // kN, of the depth search
constexpr double kSteelTolerance = 0.001;  // of the excess of moment, as a fraction
// The widenings of a bracket that never closes: the depth from 1000 h up to
// 10^25 times that, the steel doubled up to 2^60 times its start.
constexpr int kMaxWidenings = 25;
constexpr int kMaxDoublings = 60;
// The largest correction of the angle in one pass while the bracket is sought.
constexpr double kLargestTurn = kPi / 4;

double wrapped(double angle) {
    while (angle > kPi) angle -= 2 * kPi;
    while (angle <= -kPi) angle += 2 * kPi;
    return angle;
}

enum class Refine { Plain, Illinois };

// False position between a and b, whose values differ in sign, until `close`
// accepts a value; false when the rounds run out or a value is not a number. The
// depth and steel searches keep the plain rule; the angle and the safety factor
// halve the value of an end kept twice (Illinois), since their functions bend
// sharply near one end and the plain rule would creep towards the root.
template <class F, class Close>
bool falsePosition(double a, double fa, double b, double fb, F&& f, Close&& close, int rounds, Refine rule) {
    int kept = 0;  // 1: a was kept by the last round, -1: b
    for (int round = 0; round < rounds; ++round) {
        const double c = (fb * a - fa * b) / (fb - fa);
        const double fc = f(c);
        if (close(fc)) return true;
        if (!std::isfinite(fc)) return false;
        if (fc * fa < 0) {
            b = c;
            fb = fc;
            if (rule == Refine::Illinois && kept == 1) fa /= 2;
            kept = 1;
        } else {
            a = c;
            fa = fc;
            if (rule == Refine::Illinois && kept == -1) fb /= 2;
            kept = -1;
        }
    }
    return false;
}

}  // namespace

ObliqueSection centredSection(std::vector<Point> outline, std::vector<Point> bars, std::vector<double> shares) {
    ObliqueSection s{std::move(outline), std::move(bars), std::move(shares), 0};
    const PolygonMoments m = polygonMoments(s.outline);
    s.area = m.area;
    if (!(m.area > 0)) return s;
    const Point g{m.sy / m.area, m.sx / m.area};
    for (Point& p : s.outline) p = {p.x - g.x, p.y - g.y};
    for (Point& p : s.bars) p = {p.x - g.x, p.y - g.y};
    return s;
}

ObliqueModel::ObliqueModel(ObliqueSection section, ObliqueMaterial material)
    : section_(std::move(section)), material_(material) {}

TurnedSection ObliqueModel::turn(double angle) const {
    TurnedSection t;
    t.angle = angle;
    t.cosine = std::cos(angle);
    t.sine = std::sin(angle);
    t.outline.reserve(section_.outline.size());
    for (const Point& p : section_.outline) t.outline.push_back(rotated(p, t.cosine, t.sine));
    double ymin = t.outline.empty() ? 0 : t.outline.front().y;
    t.ymax = ymin;
    for (const Point& p : t.outline) {
        t.ymax = std::max(t.ymax, p.y);
        ymin = std::min(ymin, p.y);
    }
    t.h = t.ymax - ymin;
    for (const Point& p : section_.bars) {
        t.bars.push_back(rotated(p, t.cosine, t.sine));
        t.depth.push_back(t.ymax - t.bars.back().y);
        t.dmax = std::max(t.dmax, t.depth.back());
    }
    // Bars that all lie on the top edge leave no depth for the steel pivot: it is
    // taken at the bottom of the section instead.
    if (!(t.dmax > 0)) t.dmax = t.h;
    return t;
}

Resultant ObliqueModel::at(const TurnedSection& t, double x, double as) const {
    const StressBlockParametersValues& b = material_.block;
    const double x23 = b.epsCu * t.dmax / (b.epsCu + 10);
    Resultant local;  // about the turned axes
    const std::vector<Point> block = clipAbove(t.outline, t.ymax - b.lambda * x);
    if (block.size() >= 3) {
        const PolygonMoments m = polygonMoments(block);
        local = {material_.sigmacd * m.area, material_.sigmacd * m.sx, material_.sigmacd * m.sy};
    }
    for (std::size_t i = 0; i < t.bars.size(); ++i) {
        const double d = t.depth[i];
        double strain;
        if (x <= x23)
            strain = 0.01 * (x - d) / (t.dmax - x);  // the deepest bar at 10 per mille
        else if (x <= t.h)
            strain = b.epsCu / 1000 * (x - d) / x;  // the top at eps_cu
        else
            strain = b.epsC2 / 1000 * (x - d) / (x - b.kappa * t.h);  // kappa h at eps_c2
        const double force = BilinearStress(material_.es, strain, material_.fyd) * section_.shares[i] * as;
        local.n += force;
        local.mx += force * t.bars[i].y;
        local.my += force * t.bars[i].x;
    }
    // Back to the section's own axes.
    return {local.n, t.sine * local.my + t.cosine * local.mx, t.cosine * local.my - t.sine * local.mx};
}

double ObliqueModel::squashForce(double as) const {
    const double s = BilinearStress(material_.es, material_.block.epsC2 / 1000, material_.fyd);
    return material_.sigmacd * section_.area + s * as;
}

NeutralAxisSolution balanceDepth(const ObliqueModel& model, const TurnedSection& t, double as, double nd,
                                 int maxRounds) {
    NeutralAxisSolution out;
    out.angle = t.angle;
    auto evaluate = [&](double x) {
        ++out.rounds;
        out.depth = x;
        out.r = model.at(t, x, as);
        return out.r.n - nd;
    };
    double x1 = 0, x2 = 1000 * t.h;
    double g1 = evaluate(x1);
    if (std::abs(g1) < kForceTolerance) return out;
    double g2 = evaluate(x2);
    if (std::abs(g2) < kForceTolerance) return out;
    for (int widened = 0; !(g1 * g2 <= 0); ++widened) {
        if (widened == kMaxWidenings || !std::isfinite(g2)) {
            out.converged = false;
            return out;
        }
        x1 = x2;
        g1 = g2;
        x2 *= 10;
        g2 = evaluate(x2);
    }
    out.converged = falsePosition(x1, g1, x2, g2, evaluate,
                                  [](double g) { return std::abs(g) <= kForceTolerance; }, maxRounds, Refine::Plain);
    return out;
}

NeutralAxisSolution alignMoment(const ObliqueModel& model, double as, double nd, double mxd, double myd,
                                const SearchLimits& limits) {
    auto atAngle = [&](double angle) { return balanceDepth(model, model.turn(angle), as, nd, limits.depthRounds); };
    // One moment alone: the neutral axis lies square to it.
    if (myd == 0) return atAngle(mxd >= 0 ? 0 : kPi);
    if (mxd == 0) return atAngle(myd > 0 ? -kPi / 2 : kPi / 2);

    const double target = std::atan2(myd, mxd);
    int passes = 0;
    NeutralAxisSolution best;
    // The error of direction; it falls as the angle grows.
    auto error = [&](double angle) {
        ++passes;
        best = atAngle(angle);
        const bool none = best.r.mx == 0 && best.r.my == 0;
        return wrapped((none ? 0 : std::atan2(best.r.my, best.r.mx)) - target);
    };
    auto done = [&](double e) { return std::abs(e) / kPi <= limits.angleTolerance; };
    auto finish = [&](bool converged) {
        best.converged = best.converged && converged;
        best.rounds = passes;
        return best;
    };

    double a = -target, ea = error(a);
    // A section that takes no moment at all under this force (plain concrete
    // without a force) has no direction to turn to.
    if (done(ea) || (best.r.mx == 0 && best.r.my == 0)) return finish(true);
    if (!std::isfinite(ea)) return finish(false);
    // Seek the bracket: step by the error (the turn of a section equally stiff about
    // every axis), then by the secant of the last two passes.
    double b = a, eb = ea;
    double slope = -1;
    while (!(ea * eb < 0)) {
        if (passes >= limits.anglePasses) return finish(false);
        const double step = std::clamp(-eb / slope, -kLargestTurn, kLargestTurn);
        a = b;
        ea = eb;
        b = a + step;
        eb = error(b);
        if (done(eb)) return finish(true);
        if (!std::isfinite(eb)) return finish(false);
        const double secant = (eb - ea) / (b - a);
        slope = secant < 0 ? secant : -1;
    }
    const int left = limits.anglePasses - passes;
    return finish(falsePosition(a, ea, b, eb, error, done, left, Refine::Illinois));
}

SteelDesign designSteel(const ObliqueModel& model, double nd, double mxd, double myd, const SearchLimits& limits) {
    const ObliqueMaterial& m = model.material();
    const double ac = model.section().area;
    const double md = std::hypot(mxd, myd);
    const double squash = BilinearStress(m.es, m.block.epsC2 / 1000, m.fyd);
    SteelDesign out;
    // The steel that uniform compression needs.
    double as0 = std::max((nd - m.sigmacd * ac) / squash, 0.0);
    if (md == 0) {
        out.as = as0;
        return out;
    }
    double last = 0;  // the excess of the last evaluation
    auto excess = [&](double as) {
        out.axis = alignMoment(model, as, nd, mxd, myd, limits);
        out.converged = out.converged && out.axis.converged;
        out.as = as;
        return last = (std::hypot(out.axis.r.mx, out.axis.r.my) - md) / md;
    };
    if (nd == 0) as0 = 0.01 * ac * m.sigmacd / m.fyd;
    double f0 = excess(as0);
    if (f0 >= 0) return out;
    if (!std::isfinite(f0)) {
        out.as = std::nan("");
        return out;
    }
    double as1 = std::max(ac * m.sigmacd / m.fyd, 2 * as0);
    double f1 = excess(as1);
    for (int doubled = 0; f0 * f1 > 0; ++doubled) {
        if (doubled == kMaxDoublings || !std::isfinite(f1)) {
            out.converged = false;
            out.as = std::nan("");
            return out;
        }
        as0 = as1;
        f0 = f1;
        as1 *= 2;
        f1 = excess(as1);
    }
    const bool found = falsePosition(as0, f0, as1, f1, excess,
                                     [](double f) { return std::abs(f) <= kSteelTolerance; }, limits.steelRounds,
                                     Refine::Plain);
    out.converged = out.converged && found;
    if (!std::isfinite(last)) out.as = std::nan("");
    return out;
}

SafetyFactor safetyFactor(const ObliqueModel& model, double as, double nd, double mxd, double myd,
                          const SearchLimits& limits) {
    SafetyFactor out;
    const double md = std::hypot(mxd, myd);
    const double squash = model.squashForce(as);
    if (md == 0) {
        out.s = nd == 0 ? std::nan("") : squash / nd;
        return out;
    }
    // The moment the section resists along the acting one, under the factored force.
    double last = 0;  // the gap of the last evaluation
    auto gap = [&](double s) {
        out.axis = alignMoment(model, as, s * nd, mxd, myd, limits);
        out.converged = out.converged && out.axis.converged;
        out.s = s;
        return last = std::hypot(out.axis.r.mx, out.axis.r.my) - s * md;
    };
    const double g0 = gap(0);
    if (nd == 0) {
        out.s = g0 / md;
        return out;
    }
    // The path leaves the surface at the latest where the force alone squashes the
    // section; there the moment it resists is taken as nil, so no search is made.
    double a = 0, ga = g0, b = squash / nd, gb = -b * md;
    // Without steel the section takes no moment without a force: the path starts on
    // the surface, and the inside is sought by halving the factor from the squash.
    for (int halved = 0; ga <= 0; ++halved) {
        if (halved == kMaxDoublings) {
            out.s = 0;
            return out;
        }
        const double s = b / 2, g = gap(s);
        if (!std::isfinite(g)) break;
        (g > 0 ? a : b) = s;
        (g > 0 ? ga : gb) = g;
    }
    const double tolerance = 1e-4 * md;
    const bool found = falsePosition(a, ga, b, gb, gap, [&](double g) { return std::abs(g) <= tolerance; },
                                     limits.steelRounds, Refine::Illinois);
    out.converged = out.converged && found;
    if (!std::isfinite(last)) out.s = std::nan("");
    return out;
}

std::vector<Point> momentContour(const ObliqueModel& model, double as, double nd, int directions) {
    std::vector<Point> points;
    if (!(nd < model.squashForce(as))) return points;
    for (int k = 0; k < directions; ++k) {
        const NeutralAxisSolution s = balanceDepth(model, model.turn(2 * kPi * k / directions), as, nd, 200);
        if (!s.converged) return {};
        points.push_back({s.r.mx, s.r.my});
    }
    return points;
}

}  // namespace morve
