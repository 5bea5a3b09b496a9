#include "frames/plane_frame.h"

#include <cmath>

#include "numeric/elementary.h"

namespace morve {

namespace {

double& at(ElementStiffness& k, int i, int j) { return k(i, j); }

// Adds w times the bending terms of a bar over (v, theta) of both ends, from the
// 4 x 4 matrix given in units of EI.
void addBending(ElementStiffness& k, const double (&m)[4][4], double w) {
    static constexpr int dof[4] = {2, 3, 5, 6};
    for (int i = 0; i < 4; ++i)
        for (int j = 0; j < 4; ++j) at(k, dof[i], dof[j]) += w * m[i][j];
}

}  // namespace

Point FrameModel::position(int node) const {
    const int p = lines();
    const int level = (node - 1) / p, line = (node - 1) % p + 1;
    double x = 0;
    for (int j = 1; j < line; ++j) x += spans[static_cast<std::size_t>(j - 1)];
    return {x, levelHeight(level)};
}

double FrameModel::levelHeight(int level) const {
    double y = 0;
    for (int i = 1; i <= level; ++i) y += heights[static_cast<std::size_t>(i - 1)];
    return y;
}

std::vector<FrameBar> frameBars(const FrameModel& m) {
    const int p = m.lines(), v = m.levels();
    std::vector<FrameBar> bars;
    bars.reserve(static_cast<std::size_t>(m.frameBars()));
    for (int i = 1; i <= v; ++i) {
        const BarSection& s = m.beams[static_cast<std::size_t>(i - 1)];
        for (int j = 1; j < p; ++j) {
            FrameBar b{BarKind::Beam, m.node(i, j), m.node(i, j + 1), m.e * s.area, m.e * s.inertia, 0, 0, i, j};
            // A beam framing into an outer column ends there: that joint is the one
            // whose connection is reduced, the inner joints stay continuous.
            if (j == 1) b.releaseA = m.release;
            if (j == p - 1) b.releaseB = m.release;
            bars.push_back(b);
        }
    }
    for (int i = 1; i <= v; ++i)
        for (int j = 1; j <= p; ++j) {
            const BarSection& s = m.columns[static_cast<std::size_t>(j - 1)];
            bars.push_back({BarKind::Column, m.node(i - 1, j), m.node(i, j), m.e * s.area, m.e * s.inertia, 0, 0, i, j});
        }
    return bars;
}

ElementStiffness FrameBarLocal(const FrameBar& bar, double l) {
    ElementStiffness k(6);
    const double axial = bar.ea / l;
    at(k, 1, 1) = axial, at(k, 1, 4) = -axial, at(k, 4, 1) = -axial, at(k, 4, 4) = axial;
    if (bar.ei == 0) return k;
    const double l2 = l * l, l3 = l2 * l, ei = bar.ei;
    const double rigid[4][4] = {{12 / l3, 6 / l2, -12 / l3, 6 / l2},
                                {6 / l2, 4 / l, -6 / l2, 2 / l},
                                {-12 / l3, -6 / l2, 12 / l3, -6 / l2},
                                {6 / l2, 2 / l, -6 / l2, 4 / l}};
    const double hingedB[4][4] = {{3 / l3, 3 / l2, -3 / l3, 0},
                                  {3 / l2, 3 / l, -3 / l2, 0},
                                  {-3 / l3, -3 / l2, 3 / l3, 0},
                                  {0, 0, 0, 0}};
    const double hingedA[4][4] = {{3 / l3, 0, -3 / l3, 3 / l2},
                                  {0, 0, 0, 0},
                                  {-3 / l3, 0, 3 / l3, -3 / l2},
                                  {3 / l2, 0, -3 / l2, 3 / l}};
    // Each end's reduction weighs the rigid and hinged states of that end; with both
    // ends reduced the four states mix bilinearly (the one hinged at both ends has
    // no bending stiffness).
    const double ra = bar.releaseA, rb = bar.releaseB;
    addBending(k, rigid, ei * (1 - ra) * (1 - rb));
    if (ra > 0) addBending(k, hingedA, ei * ra * (1 - rb));
    if (rb > 0) addBending(k, hingedB, ei * rb * (1 - ra));
    return k;
}

ElementStiffness FrameBarStiffness(const FrameBar& bar, Point a, Point b) {
    const double dx = b.x - a.x, dy = b.y - a.y, l = portable::hypot(dx, dy);
    const double c = dx / l, s = dy / l;
    const ElementStiffness local = FrameBarLocal(bar, l);
    // Local from global at each end: u = c X + s Y, v = -s X + c Y, theta = theta.
    double t[6][6] = {};
    for (int e = 0; e < 2; ++e) {
        const int o = 3 * e;
        t[o][o] = c, t[o][o + 1] = s, t[o + 1][o] = -s, t[o + 1][o + 1] = c, t[o + 2][o + 2] = 1;
    }
    double kt[6][6] = {};
    for (int i = 0; i < 6; ++i)
        for (int j = 0; j < 6; ++j)
            for (int m = 0; m < 6; ++m) kt[i][j] += local(i + 1, m + 1) * t[m][j];
    ElementStiffness k(6);
    for (int i = 0; i < 6; ++i)
        for (int j = 0; j < 6; ++j) {
            double sum = 0;
            for (int m = 0; m < 6; ++m) sum += t[m][i] * kt[m][j];
            k(i + 1, j + 1) = sum;
        }
    return k;
}

BarEnds barEndForces(const FrameModel& model, const FrameBar& bar, const std::vector<double>& u) {
    const Point a = model.position(bar.a), b = model.position(bar.b);
    const double dx = b.x - a.x, dy = b.y - a.y, l = portable::hypot(dx, dy);
    const double c = dx / l, s = dy / l;
    double d[6];
    for (int e = 0; e < 2; ++e) {
        const std::size_t g = static_cast<std::size_t>(kFrameDof * ((e == 0 ? bar.a : bar.b) - 1));
        d[3 * e] = c * u[g] + s * u[g + 1];
        d[3 * e + 1] = -s * u[g] + c * u[g + 1];
        d[3 * e + 2] = u[g + 2];
    }
    const ElementStiffness k = FrameBarLocal(bar, l);
    BarEnds f{};
    for (int i = 0; i < 6; ++i)
        for (int j = 0; j < 6; ++j) f[static_cast<std::size_t>(i)] += k(i + 1, j + 1) * d[j];
    return f;
}

FrameSolver::FrameSolver(const FrameModel& model, const std::vector<FrameBar>& bars) : model_(model) {
    Incidence incidence;
    for (const FrameBar& b : bars) incidence.nodes.insert(incidence.nodes.end(), {b.a, b.b});
    band_ = BandMatrix(model.equations(), BandWidth(incidence, kFrameDof));
    for (std::size_t e = 0; e < bars.size(); ++e) {
        const FrameBar& b = bars[e];
        BandAssemble(band_, FrameBarStiffness(b, model.position(b.a), model.position(b.b)), incidence,
                     static_cast<int>(e) + 1, kFrameDof);
    }
    std::vector<Restraint> base;
    for (int j = 1; j <= model.lines(); ++j)
        for (int dof = 1; dof <= kFrameDof; ++dof) base.push_back({j, dof});
    BandRestrain(band_, base, kFrameDof);
    singular_ = !BandCholesky(band_);
}

std::vector<double> FrameSolver::solve(const std::vector<double>& load) const {
    LoadVector v(band_.size());
    for (int i = 1; i <= v.size(); ++i) v(i) = load[static_cast<std::size_t>(i - 1)];
    // The base is held where it stands.
    for (int i = 1; i <= kFrameDof * model_.lines(); ++i) v(i) = 0;
    BandSolve(band_, v);
    return {v.data(), v.data() + v.size()};
}

std::vector<double> FrameSolver::solveLevels(const std::vector<double>& forces) const {
    std::vector<double> load(static_cast<std::size_t>(band_.size()), 0.0);
    for (std::size_t i = 1; i <= forces.size(); ++i)
        load[static_cast<std::size_t>(kFrameDof * model_.node(static_cast<int>(i), 1) - kFrameDof)] = forces[i - 1];
    return solve(load);
}

double levelSway(const FrameModel& model, const std::vector<double>& u, int level) {
    return u[static_cast<std::size_t>(kFrameDof * (model.node(level, 1) - 1))];
}

}  // namespace morve
