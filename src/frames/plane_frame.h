#pragma once
// The regular plane frame shared by the frame modules: p column lines and v beam
// levels, fixed at the base, three dof per node (x to the right, y upwards,
// rotation anticlockwise). Nodes run level by level from the base and left to
// right, so the node of column line j at level k is k*p + j. The bars are the
// beams (level by level, left to right), then the columns (storey by storey, left
// to right), then the struts of the masonry panels. One factorisation of the band
// serves every load case of an analysis.
#include <array>
#include <optional>
#include <vector>

#include "draw/drawing.h"
#include "numeric/band.h"

namespace morve {

inline constexpr int kFrameMaxColumns = 40;
inline constexpr int kFrameMaxLevels = 100;
inline constexpr int kFrameMaxNodes = 500;
inline constexpr int kFrameMaxBars = 950;
inline constexpr int kFrameDof = 3;

struct BarSection {
    double area = 0;     // m2
    double inertia = 0;  // m4
};

enum class BarKind { Beam, Column, Strut };

struct FrameBar {
    BarKind kind = BarKind::Beam;
    int a = 1, b = 2;        // end nodes: left or lower end first
    double ea = 0, ei = 0;   // kN, kNm2; a strut carries ea = Ea t w f, ei = 0
    // Share of the rotational stiffness taken from each end's joint with its
    // column: 0 is a rigid joint, 1 a hinge.
    double releaseA = 0, releaseB = 0;
    int level = 0, line = 0;  // beam: level and span; column: storey and line; strut: panel
};

struct FrameModel {
    double e = 0;                      // kN/m2
    std::vector<double> heights;       // storey heights, m, one per level
    std::vector<double> spans;         // distances between column lines, m
    std::vector<BarSection> columns;   // per column line
    std::vector<BarSection> beams;     // per beam level
    // Reduction of the rotational stiffness of the beams' joints with the outer
    // column lines, 0 ... 0.9.
    double release = 0;

    int lines() const { return static_cast<int>(spans.size()) + 1; }
    int levels() const { return static_cast<int>(heights.size()); }
    int nodes() const { return (levels() + 1) * lines(); }
    int node(int level, int line) const { return level * lines() + line; }
    int equations() const { return kFrameDof * nodes(); }
    // Beams and columns, struts apart.
    int frameBars() const { return lines() * levels() + (lines() - 1) * levels(); }
    Point position(int node) const;
    // Height of a level above the base.
    double levelHeight(int level) const;
};

// The beams and columns of the model, in bar order, with the joint reduction on
// the beam ends that meet an outer column line.
std::vector<FrameBar> frameBars(const FrameModel& model);

// The 6 x 6 matrix of a bar in its own axes (u, v, theta of end a, then of end b),
// x from a to b. A bar with rigid joints has the usual terms; a reduced joint
// blends the rigid matrix with that of the bar hinged at the end concerned,
// (1 - r) K + r K_hinged, so that r = 0 keeps the rigid bar and r = 1 a hinge.
ElementStiffness FrameBarLocal(const FrameBar& bar, double length);
// The same turned to the global axes, K = T' k T: what BandAssemble takes.
ElementStiffness FrameBarStiffness(const FrameBar& bar, Point a, Point b);

// End forces of a bar in its own axes (forces and moments the nodes apply to it),
// u, v, theta at end a then end b.
using BarEnds = std::array<double, 6>;
BarEnds barEndForces(const FrameModel& model, const FrameBar& bar, const std::vector<double>& u);

// The band of a frame, assembled, restrained at the base and factored.
class FrameSolver {
public:
    FrameSolver(const FrameModel& model, const std::vector<FrameBar>& bars);
    bool singular() const { return singular_; }
    int bandwidth() const { return band_.bandwidth(); }
    // Displacements, in equation order, of the horizontal forces given at the first
    // node of each level (level 1 first).
    std::vector<double> solveLevels(const std::vector<double>& forces) const;
    // Displacements of a full load vector (index 0 = equation 1).
    std::vector<double> solve(const std::vector<double>& load) const;

private:
    const FrameModel& model_;
    BandMatrix band_;
    bool singular_ = false;
};

// The x displacement of the first node of a level.
double levelSway(const FrameModel& model, const std::vector<double>& u, int level);

}  // namespace morve
