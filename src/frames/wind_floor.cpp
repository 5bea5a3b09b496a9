#include "frames/wind_floor.h"

#include <cmath>

#include "numeric/band.h"
#include "numeric/elementary.h"

namespace morve {

namespace {

// The angle as the program has always converted it.
double radians(double degrees) { return degrees * 3.141592654 / 180; }

// Cosine and sine of a panel's inclination, exact at whole quarter turns so that
// a panel typed at 90 degrees has no stiffness along x at all, and a floor of
// such panels is found singular rather than held by rounding.
std::array<double, 2> direction(double degrees) {
    if (degrees == 0) return {1, 0};
    if (degrees == 90) return {0, 1};
    return {portable::cos(radians(degrees)), portable::sin(radians(degrees))};
}

std::array<double, 3> row(const BracingPanel& p) {
    const auto [c, s] = direction(p.inclination);
    return {c, s, p.x * s - p.y * c};
}

}  // namespace

FloorLoad floorWindLoad(const FloorWind& w) {
    const double a = radians(w.angle);
    double fx = w.cax * w.q * w.b * w.storey * portable::cos(a) * portable::cos(a) / 1000;
    double fy = w.cay * w.q * w.a * w.storey * portable::sin(a) * portable::sin(a) / 1000;
    // The squares lose the sense of the wind: each quadrant gives it back.
    if (w.angle > 90 && w.angle <= 180) fx = -fx;
    else if (w.angle > 180 && w.angle <= 270) fx = -fx, fy = -fy;
    else if (w.angle > 270 && w.angle <= 360) fy = -fy;
    const double e1 = w.ebPercent * w.b / 100, e2 = w.eaPercent * w.a / 100;
    const double x = w.a / 2 + e2, y = w.b / 2 + e1;
    return {fx, fy, fy * x - fx * y};
}

FloorShare distributeToPanels(const std::vector<BracingPanel>& panels, const FloorLoad& load) {
    constexpr int kDof = 3;
    Incidence incidence{1, std::vector<int>(panels.size(), 1)};
    BandMatrix band(kDof, BandWidth(incidence, kDof));
    for (std::size_t e = 0; e < panels.size(); ++e) {
        const std::array<double, 3> t = row(panels[e]);
        ElementStiffness k(kDof);
        for (int i = 1; i <= kDof; ++i)
            for (int j = 1; j <= kDof; ++j) k(i, j) = panels[e].k * t[i - 1] * t[j - 1];
        BandAssemble(band, k, incidence, static_cast<int>(e) + 1, kDof);
    }
    std::array<double, 3> diagonal{};
    for (int i = 1; i <= kDof; ++i) diagonal[i - 1] = band(i, 1);

    FloorShare share;
    for (double d : diagonal)
        if (!std::isfinite(d)) share.status = FloorStatus::NotFinite;
    // A floor with a free motion (panels all parallel, or all through one point)
    // leaves only a pivot lost to rounding: the factorisation refuses it.
    if (share.status == FloorStatus::NotFinite || !BandCholesky(band)) return share;

    LoadVector u(kDof);
    u(1) = load.fx, u(2) = load.fy, u(3) = load.torque;
    BandSolve(band, u);
    share.status = FloorStatus::Solved;
    share.displacement = {u(1), u(2), u(3)};
    for (const BracingPanel& p : panels) {
        const std::array<double, 3> t = row(p);
        share.forces.push_back(p.k * (t[0] * u(1) + t[1] * u(2) + t[2] * u(3)));
    }
    return share;
}

}  // namespace morve
