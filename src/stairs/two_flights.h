#pragma once
// A self-supporting stair of two flights and a free landing, held only at the base
// and at the top floor. Each flight is a bar along its axis; the landing is a bar
// along its centre line, across the stair, joined to the flights' upper ends by
// rigid links as long as half the landing.
#include <vector>

#include "stairs/space_frame.h"

namespace morve {

struct TwoFlights {
    double run = 0;          // a: horizontal projection of a flight, m
    double flightWidth = 0;  // L, m
    double landingLength = 0;  // c, along the flights, m
    double landingWidth = 0;   // b, across both flights, m
    double rise = 0;           // H, floor to floor, m
    double landingThickness = 0, flightThickness = 0;  // m
    double modulus = 0, creep = 0;                      // kN/m2
    double gFlight = 0, gLanding = 0, qFlight = 0, qLanding = 0;  // kN/m2 of plan
    bool clockwise = false;
    bool fixedEnds = true;
    int flightBars = 40;
};

// Global axes: origin at the foot of the stair on the middle line between the
// flights, X along the flights towards the landing, Z up. Flight L1 rises from
// the base along X; L2 comes back above it, on its left when the stair turns
// anticlockwise (seen from above), on its right when it turns clockwise.
struct TwoFlightResults {
    bool solved = false;
    // N, Vy, Vz, T, My, Mz in the flight's (or landing's) axes: x along the bar
    // (upward in a flight, from L1's side to L2's across the landing), z down and
    // square to the slab, y = z x x.
    EndForces base{}, top{}, flight1Max{}, flight2Max{}, flight1Joint{}, flight2Joint{}, landingCentre{};
    double flight1MaxAt = 0, flight2MaxAt = 0;  // horizontal distance from the floor, m
    Vec3 baseForce{}, baseMoment{}, topForce{}, topMoment{};
    double deflection = 0;  // long term under g + 0.3 q, m
    double totalLoad = 0;   // kN
    SpaceModel model;
    SpaceResults frame;
};

SpaceModel twoFlightModel(const TwoFlights& s, bool quasiPermanent = false);
TwoFlightResults analyseTwoFlights(const TwoFlights& s);

}  // namespace morve
