#pragma once
// The loads of one span and the bending moment they give at the stations of the
// span. Lengths in m, forces in kN, moments in kNm; downward forces, clockwise
// moments and sagging bending moments are positive.
#include <vector>

namespace morve {

struct UniformSegment {
    double start = 0;   // m from the left support
    double length = 0;  // m
    double value = 0;   // kN/m
};

struct PointLoad {
    double position = 0;  // m from the left support
    double force = 0;     // kN
    double moment = 0;    // kNm, clockwise
};

struct SpanLoads {
    double span = 0;  // m
    std::vector<UniformSegment> uniform{};
    std::vector<PointLoad> points{};
    double xa = 0, xb = 0;  // bending moments at the ends, kNm
};

inline constexpr int kStations = 101;  // the span in 100 equal steps, both ends included

// Bending moment (kNm) at x m: the end moments interpolated plus each load on the
// simply supported span.
double bendingMoment(const SpanLoads& loads, double x);

// The moments at the kStations stations, x = i l / 100.
std::vector<double> stationMoments(const SpanLoads& loads);

}  // namespace morve
