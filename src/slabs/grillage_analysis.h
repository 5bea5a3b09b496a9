#pragma once
// The plate as a grillage: every bar of the mesh stands for the strip of plate it
// crosses, with the strip's bending and torsion stiffness, and carries an even
// share of the slab's load. Three unknowns per node: the deflection w (downwards)
// and its slopes dw/dy and dw/dx, which are the rotations about x and about y.
#include <optional>
#include <vector>

#include "slabs/polygon_mesh.h"

namespace morve {

struct GrillageData {
    double rigidity = 0;      // plate rigidity D = Ecs h^3 / (12 (1 - nu^2)), kNm
    double torsionRatio = 1;  // torsion stiffness of a bar relative to the plate strip's
    double load = 0;          // kN/m2
};

enum class GrillageStatus { Ok, BandTooWide, Singular };

// The moment along a bar, per metre of its strip: sagging positive.
struct BarMoments {
    double start = 0, end = 0;
    double load = 0;  // the bar's line load per metre of strip, kN/m2, for the span between
};

struct GrillageResults {
    GrillageStatus status = GrillageStatus::Ok;
    int semiBandwidth = 0;
    std::vector<double> w;                 // per node, m
    std::vector<std::optional<double>> mx, my;  // per node, kNm/m; none where no bar of that direction
    std::vector<double> reaction;          // per node, kN, upwards
    std::vector<double> sideReaction;      // per side, kN/m
    std::vector<BarMoments> bars;

    double wmax = 0;
    double mxMax = 0, mxMin = 0, myMax = 0, myMin = 0;
    std::optional<double> mxCentre, myCentre;
};

// A semi-bandwidth of this size or more is refused before the system is built.
inline constexpr int kGrillageBandLimit = 200;

GrillageResults analyseGrillage(const SlabPolygon& polygon, const GrillageMesh& mesh, const GrillageData& data);

}  // namespace morve
