#pragma once
// The torsion steps of the "Passo a passo": the hollow section, Vd and Td, the
// two strut stresses and their combined check.
#include "app/trace.h"
#include "beams/torsion.h"

namespace morve {

struct TorsionStrutValues {
    double b, h, dPrime, d, gamaf, vk, tk, fck, fcd;  // cm, kN, kNm, MPa
    HollowSection wall;
    double tauwd, tauwd2, tautd, tautd2, ratio;  // MPa
};

void traceTorsionStrut(TraceRecorder rec, const TorsionStrutValues& v);

}  // namespace morve
