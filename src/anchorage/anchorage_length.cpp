#include "anchorage/anchorage_length.h"

#include <algorithm>
#include <cmath>

#include "numeric/elementary.h"

namespace morve {

namespace {

struct SurfaceRow {
    const char* text;
    BarSurface surface;
    double eta1;  // bond coefficient of the surface
};

const SurfaceRow kSurfaces[] = {
    {"Nervurado", BarSurface::Ribbed, 1.0},
    {"Entalhado", BarSurface::Indented, 0.62},
    {"Liso", BarSurface::Plain, 0.44},
};

struct LapRow {
    const char* text;
    double a0;
};

const LapRow kLapShares[] = {{"<=20%", 1.2}, {"25%", 1.4}, {"33%", 1.6}, {"50%", 1.8}, {">50%", 2.0}};

}  // namespace

std::optional<BarSurface> barSurface(const std::string& listText) {
    for (const auto& row : kSurfaces)
        if (listText == row.text) return row.surface;
    return std::nullopt;
}

const std::vector<std::string>& barSurfaceItems() {
    static const std::vector<std::string> items{"Nervurado", "Entalhado", "Liso"};
    return items;
}

double bondZoneCoefficient(bool goodBond) { return goodBond ? 1.0 : 0.7; }

double bondStrength(double fck, BarSurface surface, bool goodBond) {
    const double eta1 = surfaceCoefficient(surface), eta2 = bondZoneCoefficient(goodBond);
    // fctd of the concrete, with the logarithmic law of the high-strength classes.
    const double fc = fck / 1.4;
    const double f0 = fck <= 50 ? 0.42 * portable::cbrt(fc * fc) : 2.4 * portable::log(1 + 0.15 * fc);
    return eta1 * eta2 * f0;
}

double bondLength(double phi, double fyk, double fbd) { return phi * (fyk / 1.15) / (4 * fbd); }

double basicAnchorageLength(double phi, double fyk, double fbd) {
    // 25 phi is the least basic length for every surface and bond zone: a good bond
    // shortens lb down to it, never below, and a poor one lengthens it as far as the
    // bond asks.
    return std::max(bondLength(phi, fyk, fbd), 25 * phi);
}

AnchorageLengths anchorageLengths(const AnchorageDemand& d) {
    const double needed = d.factor * d.lb * d.ratio;
    return {std::max(needed, d.straightMinimum), std::max(0.7 * needed, d.hookMinimum)};
}

double anchorageMinimum(double lb, double phi) { return std::max({0.3 * lb, 10 * phi, 10.0}); }

double hookBendRadius(double phi, double fyk) {
    if (fyk < 550) return phi < 2 ? 2.5 * phi : 4 * phi;
    return 3 * phi;
}

double supportHookMinimum(double phi, double fyk) { return std::max(hookBendRadius(phi, fyk) + 5.5 * phi, 6.0); }

double lapMinimum(double lb, double phi, double factor, bool tension) {
    const double least = std::max(15 * phi, 20.0);
    return tension ? std::max(least, 0.3 * factor * lb) : std::max(least, 0.6 * lb);
}

double lapFactor(const std::string& listText) {
    for (const auto& row : kLapShares)
        if (listText == row.text) return row.a0;
    return 0;
}

const std::vector<std::string>& lapShareItems() {
    static const std::vector<std::string> items{"<=20%", "25%", "33%", "50%", ">50%"};
    return items;
}

double surfaceCoefficient(BarSurface surface) {
    for (const auto& row : kSurfaces)
        if (row.surface == surface) return row.eta1;
    return 1.0;
}

}  // namespace morve
