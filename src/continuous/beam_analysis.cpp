#include "continuous/beam_analysis.h"

#include <algorithm>
#include <cmath>

namespace morve {

namespace {


// The end actions of one bar and its diagram points, from the displacements.
struct BarActions {
    double va = 0, ma = 0, vb = 0, mb = 0;
    std::vector<DiagramPoint> points;
};

BarActions barActions(const BeamModel& m, int bar, const std::vector<double>& u,
                      const std::array<double, 4>& fixedEnd, double startX) {
    const double length = m.length[bar - 1];
    const ElementStiffness k = BeamStiffness(m.e * m.inertia[bar - 1], length);
    double f[4] = {};
    for (int r = 0; r < 4; ++r)
        for (int c = 0; c < 4; ++c) f[r] += k(r + 1, c + 1) * u[2 * (bar - 1) + c];
    BarActions b;
    b.va = fixedEnd[0] - f[0];
    b.ma = f[1] - fixedEnd[1];
    b.vb = f[2] - fixedEnd[2];
    b.mb = -f[3] - fixedEnd[3];
    // End moments brought from other actions (a frame under wind) ride on top,
    // outside the stiffness system.
    const double ma0 = m.initialMa[bar - 1], mb0 = m.initialMb[bar - 1];
    const double d = (mb0 - ma0) / length;
    b.va += d;
    b.vb += d;
    b.ma += ma0;
    b.mb += mb0;

    const double dx = length / (kBeamPoints - 1);
    b.points.reserve(kBeamPoints);
    for (int p = 0; p < kBeamPoints; ++p) {
        const double x = p * dx;
        double moment = b.va * x + b.ma, shear = b.va;
        for (const BarLoad& l : m.barLoads) {
            if (l.bar != bar || !(x > l.a)) continue;  // at the load itself, not yet
            moment += -(x - l.a) * l.force + l.moment;
            shear -= l.force;
        }
        for (const UniformSegment& s : m.segments) {
            if (s.bar != bar || !(x > s.start)) continue;
            if (x <= s.start + s.length) {
                const double t = x - s.start;
                moment -= s.q * t * t / 2;
                shear -= s.q * t;
            } else {
                const double t = x - (s.start + s.length / 2);
                moment -= s.length * s.q * t;
                shear -= s.length * s.q;
            }
        }
        if (std::abs(moment) < 1e-6) moment = 0;
        b.points.push_back({startX + x, moment, shear});
    }
    return b;
}

// The largest moment of the points, the first from the left on a tie.
const DiagramPoint& largestMoment(const std::vector<DiagramPoint>& points) {
    std::size_t best = 0;
    for (std::size_t p = 1; p < points.size(); ++p)
        if (points[p].m > points[best].m) best = p;
    return points[best];
}

// Where the moment changes sign or vanishes inside the span, at most two places,
// to the resolution of the 101 points (a sign change is put half-way).
std::vector<double> zeroMoments(const std::vector<DiagramPoint>& points, double length) {
    const double dx = length / (kBeamPoints - 1), tol = length / 100000;
    const double start = points.front().x;
    std::vector<double> found;
    for (int k = 0; k + 1 < kBeamPoints && found.size() < 2; ++k) {
        const double m0 = points[k].m, m1 = points[k + 1].m;
        const double x = points[k].x - start;
        double x0;
        if (m0 == 0) x0 = x;
        else if (m1 == 0) x0 = x + dx;
        else if ((m0 < 0) != (m1 < 0)) x0 = x + dx / 2;
        else continue;
        if (!(x0 > tol && x0 < length - tol)) continue;
        if (found.empty() || std::abs(x0 - found.back()) > tol) found.push_back(x0);
    }
    return found;
}

// The deflected shape along the span, integrated from the left node with the
// moment and shear of each point reached, in mm.
std::vector<double> deflection(const BeamModel& m, int bar, const std::vector<double>& u,
                               const std::vector<DiagramPoint>& points) {
    const double ei = m.e * m.inertia[bar - 1];
    const double h = m.length[bar - 1] / (kBeamPoints - 1);
    double w = u[2 * (bar - 1)], theta = u[2 * (bar - 1) + 1];
    std::vector<double> mm{w * 1000};
    for (int k = 1; k < kBeamPoints; ++k) {
        const double moment = points[k].m, shear = points[k].v;
        const double next = w + h * theta + (h * h * h / (3 * ei)) * (shear - 1.5 * moment / h);
        theta = (h / 4) * (-moment / ei - 6 * w / (h * h) - 2 * theta / h + 6 * next / (h * h));
        w = next;
        mm.push_back(w * 1000);
    }
    return mm;
}

struct Solution {
    bool regular = false;
    std::vector<double> u;
};

// Assembles, restrains and solves one analysis of the beam.
Solution solve(const BeamModel& m, const std::vector<PrescribedDof>& restraints,
               const LoadVector& saved, bool elasticSupports) {
    const int n = m.equations();
    BandMatrix band(n, std::min(kBeamBandwidth, n));
    for (int i = 1; i <= m.spans(); ++i)
        BeamAssemble(band, BeamStiffness(m.e * m.inertia[i - 1], m.length[i - 1]), 2 * (i - 1) + 1);
    if (elasticSupports)
        for (const BeamSupport& s : m.supports) band(2 * (s.node - 1) + 2, 1) += m.e * s.ig;
    LoadVector load = saved;
    BeamRestrain(band, load, restraints);
    Solution sol;
    sol.regular = BandCholesky(band);
    if (!sol.regular) return sol;
    BandSolve(band, load);
    sol.u.assign(load.data(), load.data() + n);
    return sol;
}

bool finite(double v) { return std::isfinite(v); }

bool allFinite(const BeamResults& r) {
    for (const SpanResult& s : r.spans) {
        for (double v : {s.va, s.vb, s.ma, s.mb, s.maxMoment, s.maxShear})
            if (!finite(v)) return false;
        for (const DiagramPoint& p : s.points)
            if (!finite(p.x) || !finite(p.m) || !finite(p.v)) return false;
        for (double w : s.deflection)
            if (!finite(w)) return false;
    }
    for (const ReactionRow& row : r.reactions)
        if (!finite(row.force) || !finite(row.moment)) return false;
    for (double v : r.fixedSpanMoments)
        if (!finite(v)) return false;
    return true;
}

}  // namespace

ElementStiffness BeamStiffness(double ei, double length) {
    const double k = ei / (length * length * length), l = length;
    ElementStiffness s(4);
    const double terms[4][4] = {{12 * k, 6 * l * k, -12 * k, 6 * l * k},
                                {6 * l * k, 4 * l * l * k, -6 * l * k, 2 * l * l * k},
                                {-12 * k, -6 * l * k, 12 * k, -6 * l * k},
                                {6 * l * k, 2 * l * l * k, -6 * l * k, 4 * l * l * k}};
    for (int i = 0; i < 4; ++i)
        for (int j = 0; j < 4; ++j) s(i + 1, j + 1) = terms[i][j];
    return s;
}

void BeamAssemble(BandMatrix& band, const ElementStiffness& k, int firstRow) {
    for (int i = firstRow; i <= firstRow + 3; ++i)
        for (int j = i; j <= firstRow + 3; ++j) band(i, j - i + 1) += k(i - firstRow + 1, j - firstRow + 1);
}

std::vector<std::array<double, 4>> BeamFixedEndActions(const BeamModel& m, LoadVector& load) {
    std::vector<std::array<double, 4>> ends(static_cast<std::size_t>(m.spans()), {0, 0, 0, 0});
    auto add = [&](int bar, double ra, double ma, double rb, double mb) {
        load(2 * bar - 1) += ra;
        load(2 * bar) += ma;
        load(2 * bar + 1) += rb;
        load(2 * bar + 2) -= mb;
        auto& e = ends[bar - 1];
        e[0] += ra, e[1] += ma, e[2] += rb, e[3] += mb;
    };
    for (const BarLoad& p : m.barLoads) {
        const double l = m.length[p.bar - 1], a = p.a, b = l - a, l2 = l * l;
        const double m1 = -p.moment * b * (2 * l - 3 * b) / l2;
        const double m2 = p.moment * a * (2 * l - 3 * a) / l2;
        const double t = -(p.moment + m2 - m1) / l;
        add(p.bar, p.force * b * b * (3 - 2 * b / l) / l2 + t, p.force * a * b * b / l2 + m1,
            p.force * a * a * (3 - 2 * a / l) / l2 - t, p.force * a * a * b / l2 + m2);
    }
    for (const UniformSegment& s : m.segments) {
        const double l = m.length[s.bar - 1], l2 = l * l, h = s.length / 2, a = s.start + h, b = l - a;
        const double q = 2 * s.q * h;
        const double u = (h * h + a * a) * (2 * a) / (l2 * l);
        add(s.bar, q * (1 - (3 * a * a + h * h) / l2 + u), q * (a * b * b - (b - l / 3) * h * h) / l2,
            q * ((3 * a * a + h * h) / l2 - u), q * (a * a * b - (a - l / 3) * h * h) / l2);
    }
    return ends;
}

void BeamRestrain(BandMatrix& band, LoadVector& load, const std::vector<PrescribedDof>& dofs) {
    const int n = band.size(), nb = band.bandwidth();
    for (const PrescribedDof& p : dofs) {
        const int q = 2 * (p.node - 1) + p.dof;
        for (int i = std::max(1, q - nb + 1); i <= q; ++i) {
            load(i) -= p.value * band(i, q - i + 1);
            band(i, q - i + 1) = 0;
        }
        for (int j = q + 1; j <= std::min(q + nb - 1, n); ++j) {
            load(j) -= p.value * band(q, j - q + 1);
            band(q, j - q + 1) = 0;
        }
        band(q, 1) = 1;
    }
    for (const PrescribedDof& p : dofs) load(2 * (p.node - 1) + p.dof) = p.value;
}

std::vector<PrescribedDof> beamRestraints(const BeamModel& m) {
    std::vector<PrescribedDof> dofs;
    for (const BeamSupport& s : m.supports) {
        dofs.push_back({s.node, 1, 0});
        if (s.type == SupportType::Fixed && !(s.ig > 0)) dofs.push_back({s.node, 2, 0});
    }
    return dofs;
}

BeamResults analyseBeam(const BeamModel& m) {
    BeamResults r;
    const int n = m.spans();
    for (double l : m.length) r.totalLength += l;

    LoadVector saved(m.equations());
    for (const NodalLoad& p : m.nodalLoads) {
        saved(2 * p.node - 1) += p.force;
        saved(2 * p.node) += p.moment;
    }
    const auto fixedEnd = BeamFixedEndActions(m, saved);

    const std::vector<PrescribedDof> restraints = beamRestraints(m);
    const Solution first = solve(m, restraints, saved, true);
    if (!first.regular) {
        r.status = BeamStatus::Singular;
        return r;
    }
    r.displacement = first.u;

    double startX = 0;
    std::vector<std::array<double, 4>> contributions;
    for (int i = 1; i <= n; ++i) {
        BarActions b = barActions(m, i, first.u, fixedEnd[i - 1], startX);
        SpanResult s;
        s.va = b.va, s.vb = b.vb, s.ma = b.ma, s.mb = b.mb;
        const DiagramPoint& top = largestMoment(b.points);
        s.maxMoment = top.m;
        s.maxMomentX = top.x - startX;
        for (const DiagramPoint& p : b.points) s.maxShear = std::max(s.maxShear, std::abs(p.v));
        s.zeroMoments = zeroMoments(b.points, m.length[i - 1]);
        s.deflection = deflection(m, i, first.u, b.points);
        s.points = std::move(b.points);
        contributions.push_back({b.va, -b.ma, -b.vb, b.mb});
        r.spans.push_back(std::move(s));
        startX += m.length[i - 1];
    }

    if (static_cast<int>(restraints.size()) > kBeamMaxReactions) {
        r.status = BeamStatus::TooManyReactions;
        return r;
    }
    std::vector<double> reaction;
    for (const PrescribedDof& p : restraints) {
        const int j = p.node, d = p.dof;
        double v;
        if (j == 1) v = contributions[0][d - 1];
        else if (j == n + 1) v = contributions[n - 1][d + 1];
        else v = contributions[j - 2][d + 1] + contributions[j - 1][d - 1];
        for (const NodalLoad& l : m.nodalLoads)
            if (l.node == j) v += d == 1 ? l.force : l.moment;
        reaction.push_back(v);
    }
    for (std::size_t k = 0; k < restraints.size();) {
        ReactionRow row{restraints[k].node, reaction[k], 0};
        if (k + 1 < restraints.size() && restraints[k + 1].node == restraints[k].node) {
            row.moment = reaction[k + 1];
            k += 2;
        } else {
            k += 1;
        }
        r.reactions.push_back(row);
    }

    // The same beam with its interior supports fixed: a span's positive moment is
    // never designed below what it would carry between perfect fixings.
    r.fixedSpanMoments.assign(static_cast<std::size_t>(n), 0.0);
    const int supports = static_cast<int>(m.supports.size());
    if (supports >= 3) {
        std::vector<PrescribedDof> fixed;
        for (int k = 0; k < supports; ++k) {
            const BeamSupport& s = m.supports[k];
            fixed.push_back({s.node, 1, 0});
            const bool interior = k > 0 && k < supports - 1;
            if (interior || (s.type == SupportType::Fixed && !(s.ig > 0))) fixed.push_back({s.node, 2, 0});
        }
        const Solution second = solve(m, fixed, saved, false);
        if (!second.regular) {
            r.status = BeamStatus::Singular;
            return r;
        }
        double x0 = 0;
        for (int i = 1; i <= n; ++i) {
            const BarActions b = barActions(m, i, second.u, fixedEnd[i - 1], x0);
            r.fixedSpanMoments[i - 1] = largestMoment(b.points).m;
            x0 += m.length[i - 1];
        }
    }

    const int rows = std::max(n, supports);
    for (int k = 0; k < rows; ++k) {
        DesignRow d;
        if (k < n) {
            d.maxShear = r.spans[k].maxShear;
            d.positiveMoment = std::max(r.spans[k].maxMoment, r.fixedSpanMoments[k]);
        }
        if (k < supports) {
            d.support = k + 1;
            const int j = m.supports[k].node;
            if (j == 1) d.supportMoment = r.spans[0].ma;
            else if (j == n + 1) d.supportMoment = r.spans[n - 1].mb;
            else {
                const double left = r.spans[j - 2].mb, right = r.spans[j - 1].ma;
                d.supportMoment = std::abs(left) > std::abs(right) ? left : right;
            }
        }
        r.design.push_back(d);
    }
    if (!allFinite(r)) r.status = BeamStatus::NotFinite;
    return r;
}

}  // namespace morve
