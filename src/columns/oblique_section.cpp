#include "columns/oblique_section.h"

#include <algorithm>
#include <cmath>
#include <numbers>

#include "basis/false_position.h"
#include "numeric/elementary.h"

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

// Every search of these sections closes its bracket from both sides (Illinois):
// under a limit of rounds the plain rule would stop short of the root as the force
// nears the squash load, where the equation of the depth bends sharply.
FalsePositionRule searchRule(double tolerance, int rounds) {
    return {.tolerance = tolerance, .illinois = true, .maxRounds = rounds};
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
    t.cosine = portable::cos(angle);
    t.sine = portable::sin(angle);
    t.outline.reserve(section_.outline.size());
    for (const Point& p : section_.outline) t.outline.push_back(rotated(p, t.cosine, t.sine));
    double ymin = t.outline.empty() ? 0 : t.outline.front().y;
    t.ymax = ymin;
    for (const Point& p : t.outline) {
        t.ymax = std::max(t.ymax, p.y);
        ymin = std::min(ymin, p.y);
    }
    t.h = t.ymax - ymin;
    for (std::size_t i = 0; i < section_.bars.size(); ++i) {
        t.bars.push_back(rotated(section_.bars[i], t.cosine, t.sine));
        t.depth.push_back(t.ymax - t.bars.back().y);
        // A bar of no area is no steel: it cannot hold the pivot of the deepest bar.
        if (section_.shares[i] > 0) t.dmax = std::max(t.dmax, t.depth.back());
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
    out.converged = falsePosition(evaluate, x1, g1, x2, g2, searchRule(kForceTolerance, maxRounds)).converged();
    return out;
}

NeutralAxisSolution alignMoment(const ObliqueModel& model, double as, double nd, double mxd, double myd,
                                const SearchLimits& limits, Point centre) {
    auto atAngle = [&](double angle) { return balanceDepth(model, model.turn(angle), as, nd, limits.depthRounds); };
    // One moment alone: the neutral axis lies square to it.
    if (limits.twoAxesOfSymmetry && centre.x == 0 && centre.y == 0) {
        if (myd == 0) return atAngle(mxd >= 0 ? 0 : kPi);
        if (mxd == 0) return atAngle(myd > 0 ? -kPi / 2 : kPi / 2);
    }

    const double target = portable::atan2(myd, mxd);
    int passes = 0;
    NeutralAxisSolution best;
    // The error of direction; it falls as the angle grows.
    auto error = [&](double angle) {
        ++passes;
        best = atAngle(angle);
        const double mx = best.r.mx - centre.x, my = best.r.my - centre.y;
        return wrapped((mx == 0 && my == 0 ? 0 : portable::atan2(my, mx)) - target);
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
    if (done(ea) || (best.r.mx == centre.x && best.r.my == centre.y)) return finish(true);
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
    return finish(falsePosition(error, a, ea, b, eb, searchRule(limits.angleTolerance * kPi, left)).converged());
}

namespace {

// The moment of the bars alone when the whole section is squashed at eps_c2; the
// concrete, uniformly stressed, adds none about its own centroid.
Point squashMoment(const ObliqueModel& model, double as) {
    const ObliqueMaterial& m = model.material();
    const double stress = BilinearStress(m.es, m.block.epsC2 / 1000, m.fyd);
    Point moment{0, 0};
    const ObliqueSection& s = model.section();
    for (std::size_t i = 0; i < s.bars.size(); ++i) {
        moment.x += stress * s.shares[i] * as * s.bars[i].y;
        moment.y += stress * s.shares[i] * as * s.bars[i].x;
    }
    return moment;
}

double largestExtent(const std::vector<Point>& outline) {
    double xl = 0, xh = 0, yl = 0, yh = 0;
    for (const Point& p : outline) {
        xl = std::min(xl, p.x), xh = std::max(xh, p.x);
        yl = std::min(yl, p.y), yh = std::max(yh, p.y);
    }
    return std::max(xh - xl, yh - yl);
}

// How far the point (n, mx, my) lies inside the failure surface, in kN cm. Under
// the force n the resisting moments form a closed convex contour; with the bars
// off the centroid of the concrete it moves off the origin, and near the squash
// load it no longer surrounds it, so the point is seen from a centre inside the
// contour: the mean of the moments of four neutral axes a quarter turn apart.
// Along the ray from that centre through the point the contour lies at a distance
// r; the gap is r less the distance of the point, positive inside.
double surfaceGap(const ObliqueModel& model, double as, double n, double mx, double my, const SearchLimits& limits,
                  NeutralAxisSolution& axis, bool& converged) {
    converged = true;
    Point centre{0, 0};
    for (int k = 0; k < 4; ++k) {
        const NeutralAxisSolution edge = balanceDepth(model, model.turn(k * kPi / 2), as, n, limits.depthRounds);
        converged = converged && edge.converged;
        centre.x += edge.r.mx / 4;
        centre.y += edge.r.my / 4;
    }
    double dx = mx - centre.x, dy = my - centre.y;
    const double distance = portable::hypot(dx, dy);
    // The point on the centre: any ray will do.
    if (distance == 0) dx = 1, dy = 0;
    axis = alignMoment(model, as, n, dx, dy, limits, centre);
    converged = converged && axis.converged;
    return portable::hypot(axis.r.mx - centre.x, axis.r.my - centre.y) - distance;
}

// The gap that counts as nil: a hundred-thousandth of the moments at stake.
double gapTolerance(const ObliqueModel& model, double nd, double md) {
    return 1e-5 * (md + nd * largestExtent(model.section().outline));
}

}  // namespace

SteelDesign designSteel(const ObliqueModel& model, double nd, double mxd, double myd, const SearchLimits& limits) {
    const ObliqueMaterial& m = model.material();
    const double ac = model.section().area;
    const double md = portable::hypot(mxd, myd);
    const double squash = BilinearStress(m.es, m.block.epsC2 / 1000, m.fyd);
    SteelDesign out;
    // The steel that uniform compression needs.
    double as0 = std::max((nd - m.sigmacd * ac) / squash, 0.0);
    // With two axes of symmetry the contour of moments is centred on the origin and
    // uniform compression bends nothing; otherwise the bars off the centroid of the
    // concrete bend the section even then, and the forces are placed against the
    // failure surface as the safety factor places them.
    const bool symmetric = limits.twoAxesOfSymmetry;
    if (md == 0 && symmetric) {
        out.as = as0;
        return out;
    }
    double last = 0;  // the excess of the last evaluation
    auto excess = [&](double as) {
        out.as = as;
        if (!symmetric) return last = surfaceGap(model, as, nd, mxd, myd, limits, out.axis, out.converged);
        out.axis = alignMoment(model, as, nd, mxd, myd, limits);
        out.converged = out.axis.converged;
        return last = (portable::hypot(out.axis.r.mx, out.axis.r.my) - md) / md;
    };
    const double tolerance = symmetric ? kSteelTolerance : gapTolerance(model, nd, md);
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
    const bool found = falsePosition(excess, as0, f0, as1, f1, searchRule(tolerance, limits.steelRounds)).converged();
    out.converged = out.converged && found;
    if (!std::isfinite(last)) out.as = std::nan("");
    return out;
}

SafetyFactor safetyFactor(const ObliqueModel& model, double as, double nd, double mxd, double myd,
                          const SearchLimits& limits) {
    SafetyFactor out;
    const double md = portable::hypot(mxd, myd);
    if (nd == 0) {
        // Bending alone: the contour of the moments under no force surrounds the
        // origin, and S is its radius along the acting moment over that moment.
        if (md == 0) {
            out.s = std::nan("");
            return out;
        }
        out.axis = alignMoment(model, as, 0, mxd, myd, limits);
        out.converged = out.axis.converged;
        out.s = portable::hypot(out.axis.r.mx, out.axis.r.my) / md;
        return out;
    }
    double last = 0;  // the gap of the last evaluation
    auto gap = [&](double s) {
        out.s = s;
        return last = surfaceGap(model, as, s * nd, s * mxd, s * myd, limits, out.axis, out.converged);
    };
    const double tolerance = gapTolerance(model, nd, md);
    // The path leaves the surface at the latest where the force alone squashes the
    // section; there the contour has shrunk to the moment of the bars alone.
    const double b0 = model.squashForce(as) / nd;
    const Point atSquash = squashMoment(model, as);
    double b = b0, gb = -portable::hypot(b * mxd - atSquash.x, b * myd - atSquash.y);
    if (std::abs(gb) <= tolerance) {
        out.s = b;
        return out;
    }
    double a = 0, ga = gap(0);
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
    const bool found = falsePosition(gap, a, ga, b, gb, searchRule(tolerance, limits.steelRounds)).converged();
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
