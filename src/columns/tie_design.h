#pragma once
// The arithmetic of a rectangular section under a tensile force and a bending
// moment, in reduced terms over the section b x d: moments over b d^2 sigma_cd,
// forces over b d sigma_cd, steel areas as omega = As fyd / (b d sigma_cd). The
// tie force acts on the mid-plane of the two layers of steel, so its moment about
// the tensioned layer is mu0 = 0.5 nu (1 - delta).
#include "basis/materials.h"

namespace morve {

struct TieSection {
    double mu = 0;     // Md / (b d^2 sigma_cd)
    double nu = 0;     // Nd / (b d sigma_cd), tension positive
    double delta = 0;  // d' / d
    StressBlockParametersValues block{};
    double es = 0;   // kN/cm2
    double fyd = 0;  // kN/cm2
};

enum class TieStop {
    None,
    SectionTooSmall,  // the ductility limit lies at or above the compressed layer
    NoNeutralAxis,    // no strain plane balances the forces with equal layers
    NotConverged,     // the search stalled (see falsePosition)
};

enum class TieCase {
    SmallEccentricity,  // both layers in tension, the concrete idle
    SingleSteel,        // concrete and one tensioned layer
    DoubleSteel,        // compression steel beyond the ductility limit
};

struct AsymmetricTie {
    TieStop stop = TieStop::None;
    TieCase kind = TieCase::SmallEccentricity;
    double omega = 0;       // the layer at d
    double omegaPrime = 0;  // the layer at d'
};

// Strain (per mille, compression positive) of the layer at d' when the neutral
// axis stands at xiLim = x/d.
double compressedSteelStrain(double xiLim, double delta, double ecu);

// As and A's in closed form; xiLim is xlim/d of the ductility criterion.
AsymmetricTie designAsymmetricTie(const TieSection& section, double xiLim);

struct SymmetricTie {
    TieStop stop = TieStop::None;
    bool tieCase = false;  // the whole section in tension
    double xi = 0;         // x/d of the strain plane found (0 in the tie case)
    double omega = 0;      // each of the two equal layers
};

// Stress ratios sigma / fyd (tension positive) of the layers at d and d', for the
// strain plane of the ultimate state with the neutral axis at xi = x/d (0 <= xi <= 1).
struct LayerStresses {
    double atD = 0, atDPrime = 0;
};
LayerStresses tieLayerStresses(const TieSection& section, double xi);

// The equal area per face, by a false-position search on the neutral axis.
SymmetricTie designSymmetricTie(const TieSection& section);

}  // namespace morve
