#include "slabs/grillage_analysis.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "numeric/band.h"
#include "numeric/elementary.h"
#include "slabs/slab_basis.h"

namespace morve {

namespace {

constexpr int kDof = 3;
using Matrix6 = std::array<std::array<double, 6>, 6>;
using Vector6 = std::array<double, 6>;

// The slopes of a node in the axes they are solved in: global (dw/dy, dw/dx) for
// most nodes; at a simply supported node, the slope along its side and the slope
// across it, so that the first can be held at zero and the second left free.
struct NodeAxes {
    double r[2][2] = {{1, 0}, {0, 1}};  // (dw/dy, dw/dx) = r * (local 2, local 3)
};

NodeAxes sideAxes(Point t) {
    // The tangent t and the normal (-ty, tx): dw/dy = ty s_t + tx s_n, dw/dx = tx s_t - ty s_n.
    NodeAxes a;
    a.r[0][0] = t.y;
    a.r[0][1] = t.x;
    a.r[1][0] = t.x;
    a.r[1][1] = -t.y;
    return a;
}

double barLength(const GrillageMesh& m, const MeshBar& b) {
    const Point a = m.nodes[b.from].at, c = m.nodes[b.to].at;
    return portable::hypot(c.x - a.x, c.y - a.y);
}

// The strip a bar stands for is one cell wide across it.
double stripWidth(const GrillageMesh& m, const MeshBar& b) { return b.alongX ? m.dy : m.dx; }

// Bending in the bar's plane acts on w and the slope along the bar; torsion on the
// slope across it. Node order (w, dw/dy, dw/dx) at each end.
Matrix6 barStiffness(double bending, double torsion, double l, bool alongX) {
    Matrix6 k{};
    const int slope = alongX ? 2 : 1, twist = alongX ? 1 : 2;
    const int d[4] = {0, slope, 3, 3 + slope};
    const double b[4][4] = {{12, 6 * l, -12, 6 * l},
                            {6 * l, 4 * l * l, -6 * l, 2 * l * l},
                            {-12, -6 * l, 12, -6 * l},
                            {6 * l, 2 * l * l, -6 * l, 4 * l * l}};
    for (int i = 0; i < 4; ++i)
        for (int j = 0; j < 4; ++j) k[d[i]][d[j]] = bending / (l * l * l) * b[i][j];
    const double t = torsion / l;
    k[twist][twist] = k[3 + twist][3 + twist] = t;
    k[twist][3 + twist] = k[3 + twist][twist] = -t;
    return k;
}

// The nodal loads of a uniform line load on a fixed-ended bar.
Vector6 fixedEndLoads(double p, double l, bool alongX) {
    Vector6 f{};
    const int slope = alongX ? 2 : 1;
    f[0] = f[3] = p * l / 2;
    f[slope] = p * l * l / 12;
    f[3 + slope] = -p * l * l / 12;
    return f;
}

// Global end values of a bar from the values in its nodes' axes, and back.
Vector6 toGlobal(const Vector6& local, const NodeAxes& a, const NodeAxes& b) {
    Vector6 g = local;
    for (int e = 0; e < 2; ++e) {
        const NodeAxes& n = e == 0 ? a : b;
        for (int i = 0; i < 2; ++i) g[3 * e + 1 + i] = n.r[i][0] * local[3 * e + 1] + n.r[i][1] * local[3 * e + 2];
    }
    return g;
}

Vector6 toLocal(const Vector6& global, const NodeAxes& a, const NodeAxes& b) {
    Vector6 l = global;
    for (int e = 0; e < 2; ++e) {
        const NodeAxes& n = e == 0 ? a : b;
        for (int i = 0; i < 2; ++i) l[3 * e + 1 + i] = n.r[0][i] * global[3 * e + 1] + n.r[1][i] * global[3 * e + 2];
    }
    return l;
}

Vector6 times(const Matrix6& k, const Vector6& u) {
    Vector6 f{};
    for (int i = 0; i < 6; ++i)
        for (int j = 0; j < 6; ++j) f[i] += k[i][j] * u[j];
    return f;
}

}  // namespace

GrillageResults analyseGrillage(const SlabPolygon& p, const GrillageMesh& m, const GrillageData& data) {
    GrillageResults r;
    const int nodes = static_cast<int>(m.nodes.size());
    Incidence incidence;
    for (const MeshBar& b : m.bars) {
        incidence.nodes.push_back(b.from + 1);
        incidence.nodes.push_back(b.to + 1);
    }
    r.semiBandwidth = BandWidth(incidence, kDof);
    if (r.semiBandwidth >= kGrillageBandLimit) {
        r.status = GrillageStatus::BandTooWide;
        return r;
    }
    // No bar at all: nothing carries the load.
    if (m.bars.empty()) {
        r.status = GrillageStatus::Singular;
        return r;
    }

    // The whole load of the slab spread evenly along all the bars.
    double total = 0;
    for (const MeshBar& b : m.bars) total += barLength(m, b);
    const double pbar = data.load * polygonArea(p.vertices) / total;

    std::vector<NodeAxes> axes(static_cast<std::size_t>(nodes));
    std::vector<Restraint> restraints;
    // A node that no bar reaches (the end of a chord too short to cross a column)
    // takes no part: it is held so that it leaves no empty equation.
    std::vector<int> reached(static_cast<std::size_t>(nodes), 0);
    for (const MeshBar& b : m.bars) ++reached[b.from], ++reached[b.to];
    for (int i = 0; i < nodes; ++i) {
        const MeshNode& n = m.nodes[i];
        if (!reached[i]) {
            for (int dof = 1; dof <= kDof; ++dof) restraints.push_back({i + 1, dof});
            continue;
        }
        if (n.side < 0 || n.side >= static_cast<int>(p.sides.size())) continue;
        const SideSupport t = p.sides[static_cast<std::size_t>(n.side)];
        if (t == SideSupport::Free) continue;
        restraints.push_back({i + 1, 1});
        if (t == SideSupport::Fixed) {
            restraints.push_back({i + 1, 2});
            restraints.push_back({i + 1, 3});
            continue;
        }
        const Point a = p.vertex(n.side), b = p.vertex(n.side + 1);
        const double len = sideLength(p, n.side);
        axes[static_cast<std::size_t>(i)] = sideAxes({(b.x - a.x) / len, (b.y - a.y) / len});
        restraints.push_back({i + 1, 2});
    }

    const int n = nodes * kDof;
    BandMatrix band(n, r.semiBandwidth);
    LoadVector load(n);
    std::vector<Matrix6> stiffness;
    std::vector<Vector6> fixedEnd;
    for (std::size_t e = 0; e < m.bars.size(); ++e) {
        const MeshBar& b = m.bars[e];
        const double l = barLength(m, b), bending = data.rigidity * stripWidth(m, b);
        stiffness.push_back(barStiffness(bending, (1 - kSlabPoisson) * bending * data.torsionRatio, l, b.alongX));
        fixedEnd.push_back(fixedEndLoads(pbar, l, b.alongX));
        const NodeAxes &na = axes[b.from], &nb = axes[b.to];
        // The bar's matrix in its nodes' axes: T' K T, T taking node axes to global.
        Matrix6 kl{};
        for (int j = 0; j < 6; ++j) {
            Vector6 unit{};
            unit[j] = 1;
            const Vector6 column = toLocal(times(stiffness.back(), toGlobal(unit, na, nb)), na, nb);
            for (int i = 0; i < 6; ++i) kl[i][j] = column[i];
        }
        ElementStiffness k(6);
        for (int i = 0; i < 6; ++i)
            for (int j = 0; j < 6; ++j) k(i + 1, j + 1) = kl[i][j];
        BandAssemble(band, k, incidence, static_cast<int>(e) + 1, kDof);
        const Vector6 f = toLocal(fixedEnd.back(), na, nb);
        for (int i = 0; i < 3; ++i) {
            load(b.from * kDof + i + 1) += f[i];
            load(b.to * kDof + i + 1) += f[3 + i];
        }
    }
    BandRestrain(band, restraints, kDof);
    for (const Restraint& x : restraints) load((x.node - 1) * kDof + x.dof) = 0;

    // A slab free to move as a body leaves only a pivot lost to rounding: the
    // factorisation refuses it.
    const bool factored = BandCholesky(band);
    if (!factored) {
        r.status = GrillageStatus::Singular;
        return r;
    }
    BandSolve(band, load);

    r.w.resize(static_cast<std::size_t>(nodes));
    for (int i = 0; i < nodes; ++i) r.w[i] = load(i * kDof + 1);
    r.wmax = *std::max_element(r.w.begin(), r.w.end());

    // End forces of each bar; a node's moment is the mean of the bars of one
    // direction that meet there.
    std::vector<double> mxSum(nodes, 0), mySum(nodes, 0), force(nodes, 0);
    std::vector<int> mxCount(nodes, 0), myCount(nodes, 0);
    for (std::size_t e = 0; e < m.bars.size(); ++e) {
        const MeshBar& b = m.bars[e];
        Vector6 ul{};
        for (int i = 0; i < 3; ++i) {
            ul[i] = load(b.from * kDof + i + 1);
            ul[3 + i] = load(b.to * kDof + i + 1);
        }
        Vector6 f = times(stiffness[e], toGlobal(ul, axes[b.from], axes[b.to]));
        for (int i = 0; i < 6; ++i) f[i] -= fixedEnd[e][i];
        const int slope = b.alongX ? 2 : 1;
        const double width = stripWidth(m, b);
        const BarMoments bm{f[slope] / width, -f[3 + slope] / width, pbar / width};
        r.bars.push_back(bm);
        force[b.from] += f[0];
        force[b.to] += f[3];
        auto& sum = b.alongX ? mxSum : mySum;
        auto& count = b.alongX ? mxCount : myCount;
        sum[b.from] += bm.start;
        sum[b.to] += bm.end;
        ++count[b.from];
        ++count[b.to];
    }
    r.mx.resize(nodes);
    r.my.resize(nodes);
    r.reaction.assign(nodes, 0);
    for (const Restraint& x : restraints)
        if (x.dof == 1) r.reaction[x.node - 1] = -force[x.node - 1];
    bool anyX = false, anyY = false;
    for (int i = 0; i < nodes; ++i) {
        if (mxCount[i]) {
            r.mx[i] = mxSum[i] / mxCount[i];
            r.mxMax = anyX ? std::max(r.mxMax, *r.mx[i]) : *r.mx[i];
            r.mxMin = anyX ? std::min(r.mxMin, *r.mx[i]) : *r.mx[i];
            anyX = true;
        }
        if (myCount[i]) {
            r.my[i] = mySum[i] / myCount[i];
            r.myMax = anyY ? std::max(r.myMax, *r.my[i]) : *r.my[i];
            r.myMin = anyY ? std::min(r.myMin, *r.my[i]) : *r.my[i];
            anyY = true;
        }
    }

    // The centre is the crossing of the middle row and the middle column of the grid.
    const double xc = m.xmin + (std::nearbyint(m.nx / 2.0) - 0.5) * m.dx;
    const double yc = m.ymin + (std::nearbyint(m.ny / 2.0) - 0.5) * m.dy;
    for (int i = 0; i < nodes; ++i)
        if (std::abs(m.nodes[i].at.x - xc) < 1e-10 && std::abs(m.nodes[i].at.y - yc) < 1e-10) {
            r.mxCentre = r.mx[i];
            r.myCentre = r.my[i];
        }

    r.sideReaction.assign(m.sideNodes.size(), 0);
    for (std::size_t s = 0; s < m.sideNodes.size(); ++s) {
        double sum = 0;
        for (int node : m.sideNodes[s]) sum += r.reaction[node];
        r.sideReaction[s] = sum / sideLength(p, static_cast<int>(s));
    }
    return r;
}

}  // namespace morve
