#pragma once
// A helicoidal beam, ramp or stair: a slab of width b and thickness h whose axis is
// a helix of mean radius R, opening 2a and rise H, held at its two ends, under its
// own weight and uniform loads on its plan. The helix is a chain of straight bars of
// the space frame.
#include <array>

#include "stairs/space_frame.h"

namespace morve {

// Bars along the helix: doubling them moves a displayed result in about a third of
// ordinary cases, and then by 0.01 or 0.02 in the forces; the model stays well inside
// the solver's limits.
inline constexpr int kHelixBars = 240;
inline constexpr double kConcreteWeight = 25;  // kN/m3
inline constexpr double kConcretePoisson = 0.2;

struct Helix {
    double opening = 0;    // 2a, radians
    double radius = 0;     // R, m
    double rise = 0;       // H, m
    double thickness = 0;  // h, m
    double width = 0;      // b, m
    double modulus = 0;    // Ecs, kN/m2
    double creep = 0;
    double g = 0, q = 0;  // kN/m2 of plan
    bool clockwise = false;
    bool fixedEnds = true;
    int bars = kHelixBars;
};

// Global axes: origin on the helix's vertical axis at the level of the base, X
// towards the middle of the helix in plan, Z up. The base is at angle -a, the top
// at +a; the angle grows anticlockwise seen from above, or clockwise when the stair
// rises that way.
Vec3 helixPoint(const Helix& h, double angle);
// The axes of the section at an angle: x along the axis towards the top, z square
// to the slab's face and downward, y = z x x along the width; a moment My that
// stretches the slab's lower face is then positive, as students draw it.
Axes helixSection(const Helix& h, double angle);

// Vertical load per radian of the opening: own weight along the true length of the
// axis, g and q over the plan of the width b.
double helixLoadPerRadian(const Helix& h, double g, double q);

SpaceModel helixModel(const Helix& h);

struct HelixResults {
    bool solved = false;
    // N, Vy, Vz, T, My, Mz in the section's axes: what the upper part exerts on the
    // lower part.
    EndForces base{}, top{}, centre{};
    // What each support exerts on the stair, global axes, moments about the support.
    Vec3 baseForce{}, baseMoment{}, topForce{}, topMoment{};
    double deflection = 0;  // largest downward displacement under g + 0.3 q, long term, m
    double totalLoad = 0;   // kN
    SpaceModel model;
    SpaceResults frame;
};

HelixResults analyseHelix(const Helix& h);

}  // namespace morve
