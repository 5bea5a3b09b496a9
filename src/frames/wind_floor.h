#pragma once
// One floor of a building as a rigid diaphragm with three displacements (u, v
// and the rotation), held by bracing panels, each stiff only in its own plane,
// and loaded by the drag of the wind at that level.
#include <array>
#include <vector>

namespace morve {

struct BracingPanel {
    double x = 0, y = 0;     // centre in plan, m
    double inclination = 0;  // of its plane to the x axis, degrees
    double k = 0;            // stiffness in its plane, kN/m
};

struct FloorLoad {
    double fx = 0, fy = 0;  // kN
    double torque = 0;      // kNm, counter-clockwise
};

// The wind on the floor: drag coefficients, pressure q (N/m2), faces A along x
// and B along y, the storey height L that the floor gathers, the angle of the
// wind (degrees, 0 along x) and the eccentricities as percentages of the faces.
struct FloorWind {
    double cax = 0, cay = 0, q = 0;
    double a = 0, b = 0, storey = 0;
    double angle = 0;
    double eaPercent = 0, ebPercent = 0;
};
FloorLoad floorWindLoad(const FloorWind& wind);

enum class FloorStatus { Solved, Singular, NotFinite };

struct FloorShare {
    FloorStatus status = FloorStatus::Singular;
    std::array<double, 3> displacement{};
    std::vector<double> forces;  // in each panel's plane, kN
};

// The floor's stiffness K = sum of k T'T, with T = (cos b, sin b, x sin b - y cos b)
// of each panel, assembled and solved by the band routines. A floor that can
// move without straining a panel (all panels parallel, or all through one
// point) is singular; stiffnesses or places too large for the arithmetic are
// not finite.
FloorShare distributeToPanels(const std::vector<BracingPanel>& panels, const FloorLoad& load);

}  // namespace morve
