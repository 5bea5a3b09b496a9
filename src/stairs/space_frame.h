#pragma once
// Linear analysis of a frame in space: straight bars between nodes, six dof a node
// (three displacements, three rotations), bending in two planes, Saint-Venant
// torsion and axial stretch, shear deformation left out. The stiffness is
// assembled and solved with the band routines; every model of bars in space (the
// stairs and any later one) is built on this.
#include <array>
#include <optional>
#include <vector>

namespace morve {

using Vec3 = std::array<double, 3>;
// Rows are the three unit axes of a frame, in global components.
using Axes = std::array<Vec3, 3>;

Vec3 cross(const Vec3& a, const Vec3& b);
double dot(const Vec3& a, const Vec3& b);
Vec3 operator+(const Vec3& a, const Vec3& b);
Vec3 operator-(const Vec3& a, const Vec3& b);
Vec3 operator*(double k, const Vec3& a);
Vec3 unit(const Vec3& a);
// The components of v in the axes.
Vec3 toAxes(const Axes& axes, const Vec3& v);
// The global vector of components c in the axes.
Vec3 fromAxes(const Axes& axes, const Vec3& c);

// The section's stiffnesses: E A, G J, E Iy (bending about local y), E Iz.
struct BarSection {
    double ea = 0, gj = 0, eiy = 0, eiz = 0;
};
// The Saint-Venant torsion constant of a b x h rectangle (either way round).
double rectangleTorsionConstant(double b, double h);
// A concrete rectangle of width b (along local y) and thickness h (along local z),
// modulus e, Poisson's ratio nu.
BarSection rectangleSection(double e, double nu, double b, double h);

struct SpaceNode {
    Vec3 at{};
    // The node's dof follow these axes; global axes when absent. A support that
    // holds a rotation about a direction of its own (a slab end held against
    // twisting about its axis) is written in the axes of that direction.
    std::optional<Axes> axes;
    std::array<bool, 6> fixed{};  // u, v, w, rx, ry, rz in the node's axes
    std::array<double, 6> load{};  // forces and moments, global axes
};

struct SpaceBar {
    int from = 0, to = 0;  // 0-based node indices
    BarSection section;
    // Local z is this direction made perpendicular to the bar; y = z x x.
    Vec3 zHint{0, 0, 1};
    Vec3 load{};  // uniform force per unit length of the bar, global axes
};

struct SpaceModel {
    std::vector<SpaceNode> nodes;
    std::vector<SpaceBar> bars;
};

// The six resultants of a bar's end in its local axes: N, Vy, Vz, T, My, Mz.
using EndForces = std::array<double, 6>;

struct SpaceResults {
    bool solved = false;  // false: a mechanism, or numbers out of range
    bool mechanism = false;  // the supports leave the structure free to move
    std::vector<Vec3> displacement, rotation;  // global axes, per node
    // Internal forces at each bar's ends in its local axes: what the part beyond
    // the section (towards `to`) exerts on the part before it.
    std::vector<EndForces> atFrom, atTo;
    // What the supports exert on the structure, global axes, per node (zero at a
    // free node).
    std::vector<Vec3> reactionForce, reactionMoment;
};

// The local axes of a bar: x from `from` to `to`, z from the hint.
Axes barAxes(const Vec3& from, const Vec3& to, const Vec3& zHint);
// The 12 x 12 stiffness in local axes, dof u v w rx ry rz at each end.
std::array<std::array<double, 12>, 12> localBarStiffness(const BarSection& s, double length);

SpaceResults analyseSpaceFrame(const SpaceModel& model);

}  // namespace morve
