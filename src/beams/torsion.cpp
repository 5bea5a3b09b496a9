#include "beams/torsion.h"

#include <algorithm>
#include <cmath>

#include "numeric/elementary.h"

namespace morve {

HollowSection torsionHollowSection(double b, double h, double dPrime) {
    HollowSection w;
    const double he = b * h / (2 * (h + b));
    if (2 * dPrime <= he) {
        w.te = he;
        w.ae = (h - he) * (b - he);
    } else {
        w.te = std::min(he, b - 2 * dPrime);
        w.ae = (h - 2 * dPrime) * (b - 2 * dPrime);
    }
    w.ue = 2 * (h + b - 4 * dPrime);
    return w;
}

Arrangement arrangeLongitudinal(double b, double h, const HollowSection& wall, double as,
                                double asPrime, double asl) {
    Arrangement a;
    if (b <= 40 && h <= 40) {
        a.bottom = as + asl / 2;
        a.top = asPrime + asl / 2;
        return a;
    }
    // A perimeter of nothing (h + b = 4 d') holds no torsion steel to share out.
    const double perCm = wall.ue == 0 ? 0 : asl / wall.ue;
    a.bottom = as + (b - wall.te) * perCm;
    a.top = asPrime + (b - wall.te) * perCm;
    a.side = (h - wall.te) * perCm;
    return a;
}

double torsionBendingMinimumRatio(double fck, double fyd) {
    // The torsion module chooses the high-strength formula by fck in kN/cm2 against
    // 50, a test that never passes: every concrete up to 90 MPa takes the formula of
    // the ordinary ones. Kept so, for the results its users know.
    return std::max(0.078 * portable::pow(fck, 2.0 / 3.0) / fyd, 0.0015);
}

}  // namespace morve
