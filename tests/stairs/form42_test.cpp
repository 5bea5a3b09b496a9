// The two-flight stair: the statics of the whole, the symmetry of a stair turned
// end for end about the landing's middle. "Autoportantes" as a user drives it is
// in tests/cases/stairs/form42-checks.json.
#include <gtest/gtest.h>

#include <cmath>

#include "stairs/two_flights.h"

namespace morve {
namespace {

TwoFlights stair(bool fixed, bool clockwise) {
    TwoFlights t;
    t.run = 2.7;
    t.flightWidth = 1.2;
    t.landingLength = 1.3;
    t.landingWidth = 2.6;
    t.rise = 2.88;
    t.landingThickness = 0.15;
    t.flightThickness = 0.14;
    t.modulus = 2.6e7;
    t.creep = 2.5;
    t.gFlight = 2;
    t.gLanding = 1;
    t.qFlight = t.qLanding = 3;
    t.fixedEnds = fixed;
    t.clockwise = clockwise;
    return t;
}

// Loads by hand: each flight's weight along its slope plus g and q on its plan, at
// its middle; the landing's on its area, at its centre.
TEST(TwoFlights, SupportsBalanceTheLoad) {
    for (bool fixed : {true, false})
        for (bool clockwise : {false, true}) {
            const TwoFlights t = stair(fixed, clockwise);
            const TwoFlightResults r = analyseTwoFlights(t);
            ASSERT_TRUE(r.solved);
            const double half = t.rise / 2, slope = std::hypot(t.run, half);
            const double flight = 25 * 0.14 * 1.2 * slope + (2 + 3) * 1.2 * t.run;
            const double landing = (25 * 0.15 + 1 + 3) * 1.3 * 2.6;
            EXPECT_NEAR(r.totalLoad, 2 * flight + landing, 1e-9 * r.totalLoad);
            const Vec3 force = r.baseForce + r.topForce;
            EXPECT_NEAR(force[0], 0, 1e-6 * r.totalLoad);
            EXPECT_NEAR(force[1], 0, 1e-6 * r.totalLoad);
            EXPECT_NEAR(force[2], r.totalLoad, 1e-6 * r.totalLoad);
            const double e = (clockwise ? -1 : 1) * 0.7;
            const Vec3 base{0, -e, 0}, top{0, e, t.rise};
            const Vec3 load = cross({t.run / 2, -e, half / 2}, {0, 0, -flight}) +
                              cross({t.run / 2, e, 1.5 * half}, {0, 0, -flight}) +
                              cross({t.run + 0.65, 0, half}, {0, 0, -landing});
            const Vec3 moment = r.baseMoment + r.topMoment + cross(base, r.baseForce) + cross(top, r.topForce) + load;
            for (double m : moment) EXPECT_NEAR(m, 0, 1e-6 * r.totalLoad * t.run);
        }
}

// Turned half round about the landing's middle line, the stair is itself with
// the load upside down: L2 answers L1 with N, Vz, T and Mz reversed (the flight
// runs the other way and the part above becomes the part below), Vy and My kept.
TEST(TwoFlights, SymmetricStairGivesSymmetricResults) {
    const TwoFlightResults r = analyseTwoFlights(stair(true, false));
    ASSERT_TRUE(r.solved);
    const double sign[6] = {-1, 1, -1, -1, 1, -1};
    for (int i = 0; i < 6; ++i) {
        EXPECT_NEAR(r.top[i], sign[i] * r.base[i], 1e-6 * (1 + std::abs(r.base[i]))) << i;
        EXPECT_NEAR(r.flight2Joint[i], sign[i] * r.flight1Joint[i], 1e-6 * (1 + std::abs(r.flight1Joint[i]))) << i;
        EXPECT_NEAR(r.flight2Max[i], sign[i] * r.flight1Max[i], 1e-6 * (1 + std::abs(r.flight1Max[i]))) << i;
    }
    EXPECT_NEAR(r.flight1MaxAt, r.flight2MaxAt, 1e-9);
    EXPECT_NEAR(r.baseForce[2], r.topForce[2], 1e-6 * r.totalLoad);
    // One flight pushes up on the landing, the other hangs it: opposite normal forces.
    EXPECT_LT(r.flight1Joint[0] * r.flight2Joint[0], 0);
    EXPECT_GT(r.deflection, 0);
}

}  // namespace
}  // namespace morve
