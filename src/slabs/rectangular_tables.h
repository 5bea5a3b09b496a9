#pragma once
// The coefficients of the slab supported on four sides, one table per method,
// typed once: the plate fits in the side ratio, the one-way strips below r = 0.5,
// and the two grillage families.
#include <array>

#include "slabs/slab_basis.h"

namespace morve {

// The results of a slab supported on four sides, in the order of the tables.
enum SlabResult { Cw, Mx, My, Mxe, Mye, Rx, Ry, Rxe, Rye, kSlabResults };
using SlabRow = std::array<Fit, kSlabResults>;

// Plate theory. Branch A serves lx <= ly with r = lx / ly, branch B lx > ly with
// r = ly / lx; moments and reactions per mille of p L^2 and p L, the deflection
// per mille of pqp L^4 / D, L the smaller span. Support moments are held as sizes.
struct PlateBranch {
    SlabRow strip;  // r < 0.5
    SlabRow fit;    // r >= 0.5
};
struct PlateCase {
    PlateBranch a, b;
    bool mirrored;  // branch B is branch A with x and y exchanged
};
// Cases 1 to 6 at index 0 to 5.
const std::array<PlateCase, 6>& plateTable();
// Branch B of a mirrored case: x and y exchanged in every pair of results.
SlabRow mirror(const SlabRow& row);

// Grillage: the load shared between crossing strips, kx = a l^4 / (a l^4 + b) to the
// x strips with l = ly / lx. Moment divisors of p lx^2 (0 where the case has none),
// reaction fractions of the strip's load, and the deflection factor over 384.
struct GrillageCase {
    double a, b;
    double mx, my, mxe, mye;
    double rx, ry, rxe, rye;
    double kw;
};
const std::array<GrillageCase, 6>& grillageTable();              // elastic strips
const std::array<GrillageCase, 6>& redistributedGrillageTable();  // span = support moment

}  // namespace morve
