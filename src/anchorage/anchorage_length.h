#pragma once
// The one calculation behind anchorage along the span, anchorage at an end support
// and lap splices: the bond strength of a bar, its basic anchorage length, and the
// straight and hooked lengths once the steel ratio, the lap factor and the minimums
// of the case are known.
#include <optional>
#include <string>
#include <vector>

namespace morve {

enum class BarSurface { Ribbed, Indented, Plain };

// "Nervurado", "Entalhado", "Liso"; nothing when no type is chosen.
std::optional<BarSurface> barSurface(const std::string& listText);
const std::vector<std::string>& barSurfaceItems();

// Design bond strength fbd (MPa) of a bar of the surface in good or poor bond.
double bondStrength(double fck, BarSurface surface, bool goodBond);
// eta2 of the bond zone: 1 in good bond, 0.7 in poor.
double bondZoneCoefficient(bool goodBond);

// The length phi fyd / (4 fbd) (cm) that the bond alone asks of a bar of phi cm.
double bondLength(double phi, double fyk, double fbd);
// Basic anchorage length lb (cm): the bond's length, never below 25 phi.
double basicAnchorageLength(double phi, double fyk, double fbd);

// What a case asks of the bar: lb scaled by the ratio As,cal/Ase and the lap factor
// a0, then the straight length and 0.7 of it for a hook, each held to its minimum.
struct AnchorageDemand {
    double lb = 0;
    double ratio = 1;          // As,cal / Ase
    double factor = 1;         // a0 of a lap, 1 for an anchorage
    double straightMinimum = 0;
    double hookMinimum = 0;
};

struct AnchorageLengths {
    double straight = 0;  // cm
    double hooked = 0;    // cm
};

AnchorageLengths anchorageLengths(const AnchorageDemand& demand);

// The least length of a straight anchorage: 0.3 lb, 10 phi, 10 cm.
double anchorageMinimum(double lb, double phi);
// Bend radius (cm) of a hook by steel and diameter.
double hookBendRadius(double phi, double fyk);
// Hook at an end support: the bend radius plus 5.5 phi, at least 6 cm.
double supportHookMinimum(double phi, double fyk);
// A lap: 15 phi and 20 cm, then 0.3 a0 lb in tension or 0.6 lb in compression.
double lapMinimum(double lb, double phi, double factor, bool tension);

// a0 of the share of bars spliced in one section ("<=20%" ... ">50%"); 0 when the
// text is none of them.
double lapFactor(const std::string& listText);
const std::vector<std::string>& lapShareItems();

// eta1 of a bar surface, as the bond strength takes it.
double surfaceCoefficient(BarSurface surface);

}  // namespace morve
