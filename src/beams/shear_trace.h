#pragma once
// The steps of the 45-degree truss that the stirrup modules share (Esforço cortante
// and Torção) in the "Passo a passo". Stresses in MPa, lengths in cm.
#include "app/trace.h"

namespace morve {

// fywd, tauwd, alphav2 and the strut limit tauwd2 = 0.27 alphav2 fcd, with its check.
void traceShearStrut(TraceRecorder rec, double fyk, double gamas, double fywd, double vd, double bw, double d,
                     double fck, double fcd, double tauwd, double tauwd2);
// tauc and Asw = 100 bw 1.11 (tauwd - tauc) / fywd, cm2/m.
void traceShearStirrups(TraceRecorder rec, double fck, double gamac, double bw, double tauwd, double fywd,
                        double asw);
// rhow,min and Asw,min = 100 rhow,min bw.
void traceMinimumStirrups(TraceRecorder rec, double fck, double fyk, double bw, double aswMin);
// smax by how hard the strut works, then the proposal written in the boxes.
void traceStirrupProposal(TraceRecorder rec, bool strutHighlyStressed, double d, double smax, double asw,
                          double diameterMm, long long legs, long long spacing);

}  // namespace morve
