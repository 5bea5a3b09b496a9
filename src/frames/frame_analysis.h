#pragma once
// The frame under wind: horizontal forces at the levels, an optional P-delta
// iteration with the vertical loads of the levels, and optional masonry infill
// whose panels act as compression struts and lose stiffness while overstressed.
#include <optional>
#include <vector>

#include "frames/plane_frame.h"

namespace morve {

inline constexpr int kPDeltaRounds = 50;

enum class Mortar { Weak, Medium, Strong };  // 1,5 a 3,4; 3,5 a 7,0; acima de 7,0 MPa

struct Infill {
    double ea = 0, fk = 0, t = 0;  // kN/m2, kN/m2, m
    Mortar mortar = Mortar::Weak;
    std::vector<bool> filled;       // per panel: storey by storey, left to right
};

struct FrameLoading {
    std::vector<double> forces;    // F(i), kN, per level
    std::vector<double> vertical;  // P(i), kN, per level
    bool pDelta = false;
};

// The equivalent strut of a panel.
struct PanelStrut {
    double h = 0, l = 0, theta = 0, al = 0, w = 0;
};

enum class PanelFault { None, NoClearSpace, Slender };
// The strut of the panel of a storey and a bay, from the sections that frame it.
PanelStrut panelStrut(const FrameModel& model, const Infill& infill, int storey, int bay, PanelFault& fault);

// Compressive capacity and the shear test of a strut carrying N (compression
// positive); true when the panel is overstressed by each.
bool strutCrushes(const PanelStrut& s, const Infill& infill, double n);
bool strutShears(const PanelStrut& s, const Infill& infill, double n);

enum class FrameStatus { Done, Singular, NoClearPanel, SlenderPanel, NotFinite, NoProgress };

struct FrameResults {
    FrameStatus status = FrameStatus::Done;
    bool pDeltaStopped = false;  // some P-delta iteration ran its 50 rounds
    bool infillLost = false;     // panels were given and none kept stiffness
    std::vector<FrameBar> bars;  // frame bars, then the struts
    std::vector<BarEnds> ends;   // per bar, own axes
    std::vector<double> u;       // equation order
    std::vector<double> sway;    // u(i) per level, m
    std::vector<double> f;       // stiffness factor per panel
    int rounds = 0;              // analyses of the infill loop
    double meanSway = 0;         // cm
    std::optional<double> gamaZ;
    double qMax = 0;
};

// Displacements under the level forces, iterated for P-delta when asked. `stopped`
// tells that the iteration ran out of rounds; the last displacements stand.
std::vector<double> solveWithPDelta(const FrameModel& model, const FrameSolver& solver, const FrameLoading& loading,
                                    bool& stopped);

FrameResults analyseFrame(const FrameModel& model, const FrameLoading& loading, const std::optional<Infill>& infill);

// GamaZ = 1 / (1 - sum P u / sum F H); none when the frame is unstable by it.
std::optional<double> gamaZ(const FrameModel& model, const FrameLoading& loading, const std::vector<double>& sway);
// The largest stability index of the storeys, Q = du SP / (h SF).
double stabilityIndex(const FrameModel& model, const FrameLoading& loading, const std::vector<double>& sway);

}  // namespace morve
