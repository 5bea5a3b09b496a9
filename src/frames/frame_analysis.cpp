#include "frames/frame_analysis.h"

#include <cmath>
#include <numbers>

#include "numeric/elementary.h"

namespace morve {

namespace {

// A beam's depth and a column's from their cracked inertia and their area: the
// inertias typed are 35 % and 70 % of the gross ones.
double beamDepth(const BarSection& s) { return std::sqrt(12 * s.inertia / (0.35 * s.area)); }
double columnDepth(const BarSection& s) { return std::sqrt(12 * s.inertia / (0.7 * s.area)); }

// The reduction of a panel found overstressed: a twentieth at a time, down to none.
void weaken(double& f) {
    f -= 0.05;
    if (f < 0.0001) f = 0;
}

bool finite(const std::vector<double>& v) {
    for (double x : v)
        if (!std::isfinite(x)) return false;
    return true;
}

// The storey shear, which decides the diagonal that the wind compresses.
double storeyShear(const FrameLoading& loading, int storey) {
    double sum = 0;
    for (std::size_t k = static_cast<std::size_t>(storey - 1); k < loading.forces.size(); ++k) sum += loading.forces[k];
    return sum;
}

FrameBar strutBar(const FrameModel& m, const FrameLoading& loading, int storey, int bay, double ea, int panel) {
    FrameBar b;
    b.kind = BarKind::Strut;
    b.level = panel;
    b.ea = ea;
    if (storeyShear(loading, storey) >= 0) {
        b.a = m.node(storey - 1, bay + 1);  // lower right to upper left
        b.b = m.node(storey, bay);
    } else {
        b.a = m.node(storey - 1, bay);  // lower left to upper right
        b.b = m.node(storey, bay + 1);
    }
    return b;
}

std::vector<double> swayOf(const FrameModel& m, const std::vector<double>& u) {
    std::vector<double> s;
    for (int i = 1; i <= m.levels(); ++i) s.push_back(levelSway(m, u, i));
    return s;
}

}  // namespace

PanelStrut panelStrut(const FrameModel& m, const Infill& infill, int storey, int bay, PanelFault& fault) {
    fault = PanelFault::None;
    // The base has no beam: the first storey is framed by the beam above it alone.
    std::vector<BarSection> beams{m.beams[static_cast<std::size_t>(storey - 1)]};
    if (storey > 1) beams.push_back(m.beams[static_cast<std::size_t>(storey - 2)]);
    double db = 0, ib = 0;
    for (const BarSection& s : beams) db += beamDepth(s) / beams.size(), ib += s.inertia / beams.size();
    const BarSection& left = m.columns[static_cast<std::size_t>(bay - 1)];
    const BarSection& right = m.columns[static_cast<std::size_t>(bay)];
    const double dc = (columnDepth(left) + columnDepth(right)) / 2, ic = (left.inertia + right.inertia) / 2;

    PanelStrut s;
    s.h = m.heights[static_cast<std::size_t>(storey - 1)] - db;
    s.l = m.spans[static_cast<std::size_t>(bay - 1)] - dc;
    if (!(s.h > 0 && s.l > 0)) {
        fault = PanelFault::NoClearSpace;
        return s;
    }
    // A wall of exactly 24 passes, whatever the last digit of its clear height.
    if (s.h / infill.t > 24 * (1 + 1e-9)) {
        fault = PanelFault::Slender;
        return s;
    }
    const double d = portable::hypot(s.h, s.l);
    s.theta = portable::atan(s.h / s.l);
    const double b = infill.ea * infill.t * portable::sin(2 * s.theta);
    const double lh = portable::pow(b / (4 * m.e * ic * s.h), 0.25);
    const double ah = std::min(std::numbers::pi / (2 * lh), s.h);
    const double ll = portable::pow(b / (4 * m.e * ib * s.l), 0.25);
    s.al = std::min(std::numbers::pi / ll, s.l);
    s.w = std::min(ah / 2, 0.15 * d);
    return s;
}

bool strutCrushes(const PanelStrut& s, const Infill& infill, double n) {
    const double r = 1 - portable::pow(s.h / (40 * infill.t), 3);
    return n > r * infill.t * s.w * (infill.fk / 2);
}

bool strutShears(const PanelStrut& s, const Infill& infill, double n) {
    struct Law { double base, limit; };
    static constexpr Law laws[] = {{0.1, 1.0}, {0.15, 1.4}, {0.35, 1.7}};
    const Law& law = laws[static_cast<int>(infill.mortar)];
    const double tau = n * portable::cos(s.theta) / (s.l * infill.t);                       // kN/m2
    const double sigma = n * portable::sin(s.theta) * s.al / (s.l * s.l * infill.t) / 1000;  // MPa
    const double fv = std::min(law.base + 0.5 * sigma, law.limit);
    return tau > fv / 2 * 1000;
}

std::vector<double> solveWithPDelta(const FrameModel& m, const FrameSolver& solver, const FrameLoading& loading,
                                    bool& stopped) {
    stopped = false;
    std::vector<double> u = solver.solveLevels(loading.forces);
    if (!loading.pDelta) return u;
    std::vector<double> previous = swayOf(m, u);
    for (int round = 2;; ++round) {
        if (round > kPDeltaRounds) {
            stopped = true;
            return u;
        }
        std::vector<double> forces(loading.forces);
        for (int i = 1; i <= m.levels(); ++i) {
            const std::size_t k = static_cast<std::size_t>(i - 1);
            forces[k] += loading.vertical[k] * previous[k] / m.levelHeight(i);
        }
        u = solver.solveLevels(forces);
        const std::vector<double> now = swayOf(m, u);
        // The relative change of each level, without dividing: a level that stays
        // at zero has converged, one that has just reached zero has not.
        bool settled = finite(now);
        for (std::size_t k = 0; k < now.size(); ++k)
            settled = settled && std::abs(now[k] - previous[k]) <= 0.01 * std::abs(now[k]);
        previous = now;
        if (settled || !finite(now)) return u;
    }
}

std::optional<double> gamaZ(const FrameModel& m, const FrameLoading& loading, const std::vector<double>& sway) {
    double m1 = 0, dm = 0;
    for (int i = 1; i <= m.levels(); ++i) {
        const std::size_t k = static_cast<std::size_t>(i - 1);
        m1 += loading.forces[k] * m.levelHeight(i);
        dm += loading.vertical[k] * sway[k];
    }
    const double d = 1 - dm / m1;
    if (m1 == 0 || !(d > 0) || !std::isfinite(1 / d)) return std::nullopt;
    return 1 / d;
}

double stabilityIndex(const FrameModel& m, const FrameLoading& loading, const std::vector<double>& sway) {
    double sp = 0, sf = 0;
    std::optional<double> largest;
    for (int i = m.levels(); i >= 1; --i) {
        const std::size_t k = static_cast<std::size_t>(i - 1);
        sp += loading.vertical[k];
        sf += loading.forces[k];
        if (sf == 0) continue;  // a storey that carries no shear has no index
        const double du = sway[k] - (i > 1 ? sway[k - 1] : 0);
        const double q = du * sp / (m.heights[k] * sf);
        if (std::isfinite(q) && (!largest || q > *largest)) largest = q;
    }
    return largest.value_or(0);
}

FrameResults analyseFrame(const FrameModel& m, const FrameLoading& loading, const std::optional<Infill>& infill) {
    FrameResults r;
    const std::vector<FrameBar> frame = frameBars(m);
    const int p = m.lines(), panels = infill ? static_cast<int>(infill->filled.size()) : 0;
    std::vector<PanelStrut> struts(static_cast<std::size_t>(panels));
    r.f.assign(static_cast<std::size_t>(panels), 0.0);
    int filled = 0;
    for (int k = 0; k < panels; ++k) {
        if (!infill->filled[static_cast<std::size_t>(k)]) continue;
        PanelFault fault;
        struts[static_cast<std::size_t>(k)] = panelStrut(m, *infill, k / (p - 1) + 1, k % (p - 1) + 1, fault);
        if (fault != PanelFault::None) {
            r.status = fault == PanelFault::Slender ? FrameStatus::SlenderPanel : FrameStatus::NoClearPanel;
            return r;
        }
        r.f[static_cast<std::size_t>(k)] = 1;
        ++filled;
    }
    // Every pass that repeats the analysis takes at least 0.05 off some panel, and
    // f never rises, so the loop ends within 20 passes a panel; the guard lies past
    // that bound and only stops a loop that could not end.
    const int guard = 21 * filled + 2;
    std::vector<double> u;
    for (;;) {
        if (++r.rounds > guard) {
            r.status = FrameStatus::NoProgress;
            return r;
        }
        r.bars = frame;
        for (int k = 0; k < panels; ++k) {
            if (!infill->filled[static_cast<std::size_t>(k)]) continue;
            const PanelStrut& s = struts[static_cast<std::size_t>(k)];
            const double ea = infill->ea * infill->t * s.w * r.f[static_cast<std::size_t>(k)];
            r.bars.push_back(strutBar(m, loading, k / (p - 1) + 1, k % (p - 1) + 1, ea, k + 1));
        }
        const FrameSolver solver(m, r.bars);
        if (solver.singular()) {
            r.status = FrameStatus::Singular;
            return r;
        }
        bool stopped = false;
        u = solveWithPDelta(m, solver, loading, stopped);
        r.pDeltaStopped = r.pDeltaStopped || stopped;
        if (!finite(u)) {
            r.status = FrameStatus::NotFinite;
            return r;
        }
        bool overstressed = false;
        for (std::size_t b = frame.size(); b < r.bars.size(); ++b) {
            const FrameBar& bar = r.bars[b];
            double& f = r.f[static_cast<std::size_t>(bar.level - 1)];
            if (f == 0) continue;
            const PanelStrut& s = struts[static_cast<std::size_t>(bar.level - 1)];
            const double n = barEndForces(m, bar, u)[0];
            if (strutCrushes(s, *infill, n)) overstressed = true, weaken(f);
            if (strutShears(s, *infill, n)) overstressed = true, weaken(f);
        }
        if (!overstressed) break;
    }
    r.u = u;
    for (const FrameBar& bar : r.bars) r.ends.push_back(barEndForces(m, bar, u));
    r.sway = swayOf(m, u);
    for (double s : r.sway) r.meanSway += s * 100 / m.levels();
    r.gamaZ = gamaZ(m, loading, r.sway);
    r.qMax = stabilityIndex(m, loading, r.sway);
    bool kept = false;
    for (double f : r.f) kept = kept || f > 0;
    r.infillLost = filled > 0 && !kept;
    return r;
}

}  // namespace morve
