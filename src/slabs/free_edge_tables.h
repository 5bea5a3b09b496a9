#pragma once
// The coefficients of the slab with the side y = ly free, per mille in the ratio
// r = ly / lx from 0.3 to 2: moments of p lx^2, reactions of p lx, deflections of
// pqp lx^4 / D. Support moments are held as sizes.
#include <array>

#include "slabs/slab_basis.h"

namespace morve::free_edge {

enum Result { W, Wo, Mx, My, Mxo, Mye, Mxe, Mxeo, Rx, Ry, kResults };
// Where each result is taken: the slab's centre, the middle of the free edge, the
// middle of the side y = 0, the middle of the sides x = 0 and x = lx, their end at
// the free edge.
using Row = std::array<Fit, kResults>;
// Cases 1 to 4 at index 0 to 3; an empty fit where the case has no such result.
const std::array<Row, 4>& table();

inline constexpr double kMinRatio = 0.3, kMaxRatio = 2.0;

}  // namespace morve::free_edge
