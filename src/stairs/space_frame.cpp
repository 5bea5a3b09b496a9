#include "stairs/space_frame.h"

#include <algorithm>
#include <cmath>

#include "numeric/band.h"
#include "numeric/elementary.h"

namespace morve {

namespace {

constexpr int kDof = 6;
using Matrix12 = std::array<std::array<double, 12>, 12>;

const Axes kGlobal{{{1, 0, 0}, {0, 1, 0}, {0, 0, 1}}};

const Axes& nodeAxes(const SpaceNode& n) { return n.axes ? *n.axes : kGlobal; }

// The 12 x 12 rotation from the dof of the bar's two nodes to the bar's local dof:
// each 3 x 3 block is (bar axes) . (node axes)^T.
Matrix12 transformation(const Axes& bar, const Axes& fromNode, const Axes& toNode) {
    Matrix12 t{};
    for (int block = 0; block < 4; ++block) {
        const Axes& node = block < 2 ? fromNode : toNode;
        for (int i = 0; i < 3; ++i)
            for (int j = 0; j < 3; ++j) t[3 * block + i][3 * block + j] = dot(bar[i], node[j]);
    }
    return t;
}

// The nodal loads equal in work to a uniform load on the bar, local axes.
std::array<double, 12> uniformLoadEnds(const Vec3& w, double l) {
    std::array<double, 12> q{};
    q[0] = q[6] = w[0] * l / 2;
    q[1] = q[7] = w[1] * l / 2;
    q[2] = q[8] = w[2] * l / 2;
    q[5] = w[1] * l * l / 12;
    q[11] = -q[5];
    q[4] = -w[2] * l * l / 12;
    q[10] = -q[4];
    return q;
}

bool finite(const Vec3& v) { return std::isfinite(v[0]) && std::isfinite(v[1]) && std::isfinite(v[2]); }

// The reactions must balance the loads, forces and moments about the origin. A
// structure that is all but a mechanism solves without a zero pivot into numbers
// that do not: the run is refused rather than shown. The tolerance is well above the
// round-off of a long chain of bars and well below what a near mechanism leaves.
bool balanced(const SpaceModel& m, const SpaceResults& r) {
    Vec3 force{}, moment{};
    double forces = 0, moments = 0, reach = 0;
    auto add = [&](const Vec3& at, const Vec3& f, const Vec3& c) {
        force = force + f;
        moment = moment + c + cross(at, f);
        forces += std::sqrt(dot(f, f));
        moments += std::sqrt(dot(c, c));
        reach = std::max(reach, std::sqrt(dot(at, at)));
    };
    for (std::size_t n = 0; n < m.nodes.size(); ++n) {
        const SpaceNode& node = m.nodes[n];
        add(node.at, Vec3{node.load[0], node.load[1], node.load[2]} + r.reactionForce[n],
            Vec3{node.load[3], node.load[4], node.load[5]} + r.reactionMoment[n]);
        forces += std::sqrt(dot(r.reactionForce[n], r.reactionForce[n]));
        moments += std::sqrt(dot(r.reactionMoment[n], r.reactionMoment[n]));
    }
    for (const SpaceBar& b : m.bars) {
        const Vec3 a = m.nodes[static_cast<std::size_t>(b.from)].at, c = m.nodes[static_cast<std::size_t>(b.to)].at;
        const double l = std::sqrt(dot(c - a, c - a));
        add(0.5 * (a + c), l * b.load, {});
    }
    const double tolerance = 1e-5, forceScale = forces + (reach > 0 ? moments / reach : moments);
    return std::sqrt(dot(force, force)) <= tolerance * forceScale &&
           std::sqrt(dot(moment, moment)) <= tolerance * (moments + forces * reach);
}

}  // namespace

Vec3 cross(const Vec3& a, const Vec3& b) {
    return {a[1] * b[2] - a[2] * b[1], a[2] * b[0] - a[0] * b[2], a[0] * b[1] - a[1] * b[0]};
}
double dot(const Vec3& a, const Vec3& b) { return a[0] * b[0] + a[1] * b[1] + a[2] * b[2]; }
Vec3 operator+(const Vec3& a, const Vec3& b) { return {a[0] + b[0], a[1] + b[1], a[2] + b[2]}; }
Vec3 operator-(const Vec3& a, const Vec3& b) { return {a[0] - b[0], a[1] - b[1], a[2] - b[2]}; }
Vec3 operator*(double k, const Vec3& a) { return {k * a[0], k * a[1], k * a[2]}; }
Vec3 unit(const Vec3& a) {
    const double n = std::sqrt(dot(a, a));
    return n > 0 ? (1 / n) * a : Vec3{0, 0, 0};
}
Vec3 toAxes(const Axes& axes, const Vec3& v) { return {dot(axes[0], v), dot(axes[1], v), dot(axes[2], v)}; }
Vec3 fromAxes(const Axes& axes, const Vec3& c) { return c[0] * axes[0] + c[1] * axes[1] + c[2] * axes[2]; }

double rectangleTorsionConstant(double b, double h) {
    const double big = std::max(b, h), small = std::min(b, h);
    if (!(big > 0) || !(small > 0)) return 0;
    // Saint-Venant's series for the rectangle; the terms fall as 1/n^5, so a few
    // odd n leave nothing in the digits of a double.
    constexpr double pi = 3.14159265358979323846;
    double sum = 0;
    for (int n = 1; n <= 31; n += 2) sum += portable::tanh(n * pi * big / (2 * small)) / portable::pow(n, 5);
    return big * small * small * small / 3 * (1 - 192 / portable::pow(pi, 5) * small / big * sum);
}

BarSection rectangleSection(double e, double nu, double b, double h) {
    const double g = e / (2 * (1 + nu));
    return {e * b * h, g * rectangleTorsionConstant(b, h), e * b * h * h * h / 12, e * h * b * b * b / 12};
}

Axes barAxes(const Vec3& from, const Vec3& to, const Vec3& zHint) {
    const Vec3 x = unit(to - from);
    Vec3 z = zHint - dot(zHint, x) * x;
    // A bar along the hint takes global x (or y) as the hint instead.
    if (dot(z, z) < 1e-12 * dot(zHint, zHint)) {
        const Vec3 other = std::abs(x[0]) < 0.9 ? Vec3{1, 0, 0} : Vec3{0, 1, 0};
        z = other - dot(other, x) * x;
    }
    z = unit(z);
    return {x, cross(z, x), z};
}

Matrix12 localBarStiffness(const BarSection& s, double l) {
    Matrix12 k{};
    auto pair = [&](int i, int j, double v) { k[i][j] = k[j][i] = v; };
    const double l2 = l * l, l3 = l2 * l;
    pair(0, 0, s.ea / l), pair(6, 6, s.ea / l), pair(0, 6, -s.ea / l);
    pair(3, 3, s.gj / l), pair(9, 9, s.gj / l), pair(3, 9, -s.gj / l);
    // Bending in the local x-y plane: v and rz = dv/dx.
    const double z = s.eiz;
    pair(1, 1, 12 * z / l3), pair(7, 7, 12 * z / l3), pair(1, 7, -12 * z / l3);
    pair(1, 5, 6 * z / l2), pair(1, 11, 6 * z / l2), pair(5, 7, -6 * z / l2), pair(7, 11, -6 * z / l2);
    pair(5, 5, 4 * z / l), pair(11, 11, 4 * z / l), pair(5, 11, 2 * z / l);
    // Bending in the local x-z plane: w and ry = -dw/dx.
    const double y = s.eiy;
    pair(2, 2, 12 * y / l3), pair(8, 8, 12 * y / l3), pair(2, 8, -12 * y / l3);
    pair(2, 4, -6 * y / l2), pair(2, 10, -6 * y / l2), pair(4, 8, 6 * y / l2), pair(8, 10, 6 * y / l2);
    pair(4, 4, 4 * y / l), pair(10, 10, 4 * y / l), pair(4, 10, 2 * y / l);
    return k;
}

SpaceResults analyseSpaceFrame(const SpaceModel& m) {
    SpaceResults r;
    const int nodes = static_cast<int>(m.nodes.size()), equations = nodes * kDof;
    if (nodes < 2 || m.bars.empty()) return r;
    Incidence incidence;
    for (const SpaceBar& b : m.bars) {
        if (b.from < 0 || b.from >= nodes || b.to < 0 || b.to >= nodes || b.from == b.to) return r;
        incidence.nodes.push_back(b.from + 1);
        incidence.nodes.push_back(b.to + 1);
    }
    BandMatrix band(equations, BandWidth(incidence, kDof));
    LoadVector load(equations);
    for (int n = 0; n < nodes; ++n) {
        const Vec3 f = toAxes(nodeAxes(m.nodes[n]), {m.nodes[n].load[0], m.nodes[n].load[1], m.nodes[n].load[2]});
        const Vec3 c = toAxes(nodeAxes(m.nodes[n]), {m.nodes[n].load[3], m.nodes[n].load[4], m.nodes[n].load[5]});
        for (int i = 0; i < 3; ++i) load(n * kDof + 1 + i) += f[i], load(n * kDof + 4 + i) += c[i];
    }

    struct BarFrame {
        Matrix12 k, t;
        std::array<double, 12> q;
    };
    std::vector<BarFrame> frames;
    frames.reserve(m.bars.size());
    for (std::size_t e = 0; e < m.bars.size(); ++e) {
        const SpaceBar& b = m.bars[e];
        const SpaceNode &a = m.nodes[b.from], &c = m.nodes[b.to];
        const double l = std::sqrt(dot(c.at - a.at, c.at - a.at));
        if (!(l > 0) || !std::isfinite(l)) return r;
        const Axes axes = barAxes(a.at, c.at, b.zHint);
        BarFrame f{localBarStiffness(b.section, l), transformation(axes, nodeAxes(a), nodeAxes(c)),
                   uniformLoadEnds(toAxes(axes, b.load), l)};
        // K = T^T k T, and the equivalent loads T^T q into the nodes' dof.
        ElementStiffness kg;
        Matrix12 kt{};
        for (int i = 0; i < 12; ++i)
            for (int j = 0; j < 12; ++j) {
                double s = 0;
                for (int p = 0; p < 12; ++p) s += f.k[i][p] * f.t[p][j];
                kt[i][j] = s;
            }
        for (int i = 0; i < 12; ++i)
            for (int j = 0; j < 12; ++j) {
                double s = 0;
                for (int p = 0; p < 12; ++p) s += f.t[p][i] * kt[p][j];
                kg(i + 1, j + 1) = s;
            }
        if (!BandAssemble(band, kg, incidence, static_cast<int>(e) + 1, kDof)) return r;
        for (int i = 0; i < 12; ++i) {
            double s = 0;
            for (int p = 0; p < 12; ++p) s += f.t[p][i] * f.q[p];
            const int node = i < 6 ? b.from : b.to;
            load(node * kDof + 1 + i % 6) += s;
        }
        frames.push_back(f);
    }
    std::vector<Restraint> restraints;
    for (int n = 0; n < nodes; ++n)
        for (int d = 0; d < kDof; ++d)
            if (m.nodes[n].fixed[d]) {
                restraints.push_back({n + 1, d + 1});
                load(n * kDof + d + 1) = 0;
            }
    BandRestrain(band, restraints, kDof);
    if (!BandCholesky(band)) {
        r.mechanism = true;
        return r;
    }
    BandSolve(band, load);

    r.displacement.resize(nodes);
    r.rotation.resize(nodes);
    r.reactionForce.assign(nodes, Vec3{});
    r.reactionMoment.assign(nodes, Vec3{});
    for (int n = 0; n < nodes; ++n) {
        const Axes& ax = nodeAxes(m.nodes[n]);
        r.displacement[n] = fromAxes(ax, {load(n * kDof + 1), load(n * kDof + 2), load(n * kDof + 3)});
        r.rotation[n] = fromAxes(ax, {load(n * kDof + 4), load(n * kDof + 5), load(n * kDof + 6)});
        if (!finite(r.displacement[n]) || !finite(r.rotation[n])) return r;
    }
    for (std::size_t e = 0; e < m.bars.size(); ++e) {
        const SpaceBar& b = m.bars[e];
        const BarFrame& f = frames[e];
        std::array<double, 12> u{}, ul{}, end{};
        for (int i = 0; i < 6; ++i) u[i] = load(b.from * kDof + 1 + i), u[6 + i] = load(b.to * kDof + 1 + i);
        for (int i = 0; i < 12; ++i)
            for (int p = 0; p < 12; ++p) ul[i] += f.t[i][p] * u[p];
        // What the nodes exert on the bar's ends.
        for (int i = 0; i < 12; ++i) {
            end[i] = -f.q[i];
            for (int p = 0; p < 12; ++p) end[i] += f.k[i][p] * ul[p];
        }
        EndForces atFrom{}, atTo{};
        for (int i = 0; i < 6; ++i) atFrom[i] = -end[i], atTo[i] = end[6 + i];
        r.atFrom.push_back(atFrom);
        r.atTo.push_back(atTo);
        const Axes axes = barAxes(m.nodes[b.from].at, m.nodes[b.to].at, b.zHint);
        for (int side = 0; side < 2; ++side) {
            const int node = side == 0 ? b.from : b.to;
            r.reactionForce[node] = r.reactionForce[node] + fromAxes(axes, {end[6 * side], end[6 * side + 1], end[6 * side + 2]});
            r.reactionMoment[node] =
                r.reactionMoment[node] + fromAxes(axes, {end[6 * side + 3], end[6 * side + 4], end[6 * side + 5]});
        }
    }
    for (int n = 0; n < nodes; ++n) {
        const SpaceNode& node = m.nodes[n];
        bool held = false;
        for (bool x : node.fixed) held = held || x;
        r.reactionForce[n] = held ? r.reactionForce[n] - Vec3{node.load[0], node.load[1], node.load[2]} : Vec3{};
        r.reactionMoment[n] = held ? r.reactionMoment[n] - Vec3{node.load[3], node.load[4], node.load[5]} : Vec3{};
        if (!finite(r.reactionForce[n]) || !finite(r.reactionMoment[n])) return r;
    }
    r.solved = balanced(m, r);
    r.mechanism = !r.solved;
    return r;
}

}  // namespace morve
