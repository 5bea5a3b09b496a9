#pragma once
// A rectangular flat slab simply supported on four rigid edge beams and resting on
// up to 40 inner columns, by the double sine series of the simply supported plate:
// the uniform load less the column loads, each spread over its column's section,
// with the column loads found so that the slab does not sink under any column.
// Everything is in kN and cm; moments per unit width come out in kN cm/cm, which
// is kNm/m as the screens show them.
#include <array>
#include <vector>

namespace morve {

inline constexpr int kFlatMaxColumns = 40;
// Terms 1 ... 21 in each direction: the uniform load has odd terms only, the
// columns of an unsymmetric layout need the even ones as well.
inline constexpr int kFlatTerms = 21;
// Samples of the surfaces: 21 by 21 points, the edges included.
inline constexpr int kFlatSamples = 21;

struct FlatColumn {
    double x = 0, y = 0;    // centre, cm
    double hx = 0, hy = 0;  // section, cm
};

struct FlatSlab {
    double a = 0, b = 0;   // spans along x and y, cm
    double d = 0;          // plate rigidity with the effective (creep) modulus, kN cm
    double p = 0;          // g + q, kN/cm2: moments and reactions
    double pqp = 0;        // g + 0.3 q, kN/cm2: the deflection
    std::vector<FlatColumn> columns;
};

// The values of one quantity at the samples, [i][j] at x = i a / 20, y = j b / 20.
struct FlatSurface {
    std::array<std::array<double, kFlatSamples>, kFlatSamples> at{};
    double max = 0, min = 0;
};

enum class FlatStatus { Done, Singular, NotFinite };

struct FlatResults {
    FlatStatus status = FlatStatus::Done;
    std::vector<double> columnLoads;  // kN, upwards on the slab
    // Edge reactions, kN: r1 on y = ly, r2 on y = 0, r3 on x = 0, r4 on x = lx.
    double r1 = 0, r2 = 0, r3 = 0, r4 = 0;
    // The one factor the summed edge shears were scaled by so that the reactions
    // balance the load exactly; near 1 when the series is fine enough.
    double edgeScale = 1;
    FlatSurface w;                // deflection under the quasi-permanent load, mm
    FlatSurface mx, my, mxy;      // kNm/m
};

FlatResults analyseFlatSlab(const FlatSlab& slab);

}  // namespace morve
