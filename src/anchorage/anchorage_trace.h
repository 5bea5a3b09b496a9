#pragma once
// The "Passo a passo" of anchorage along the span, at an end support and of lap
// splices: bond strength, basic length, the case's minimums and the two lengths.
#include "anchorage/anchorage_length.h"
#include "app/trace.h"

namespace morve {

enum class AnchorageCase;  // anchorage_modules.h

struct AnchorageTraceInput {
    AnchorageCase kind;
    double fck, fyk, phi;  // MPa, MPa, cm
    BarSurface surface;
    bool goodBond, tension;
    double vd = 0;     // kN, at an end support
    double asCal = 0;  // cm², the area that carries Rsd = Vd there
    const AnchorageDemand& demand;
    const AnchorageLengths& lengths;
};

void traceAnchorage(TraceRecorder rec, const AnchorageTraceInput& in);

}  // namespace morve
