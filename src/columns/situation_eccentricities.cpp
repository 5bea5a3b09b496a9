#include "columns/situation_eccentricities.h"

#include <algorithm>
#include <cmath>

#include "numeric/elementary.h"

namespace morve {

namespace {

// pi squared as the program has always written it into the Euler load.
constexpr double kPiSquared = 9.869604403666765;

}  // namespace

double cebSecantModulus(double fck) { return 18275 * portable::cbrt((fck + 8) / 10); }

double columnSecantModulus(double fck, bool nbr6118) {
    if (nbr6118 && fck <= 50) return 4760 * std::sqrt(fck);
    return cebSecantModulus(fck);
}

int columnType(double max, double mbx, double may, double mby) {
    const bool x = max != 0 || mbx != 0, y = may != 0 || mby != 0;
    if (!x && !y) return 1;
    if (x && !y) return 2;
    if (!x && y) return 3;
    return 4;
}

const char* columnTypeCaption(int type) {
    switch (type) {
        case 1: return "PILAR INTERMEDIÁRIO";
        case 2:
        case 3: return "PILAR DE EXTREMIDADE";
        default: return "PILAR DE CANTO";
    }
}

double slenderness(const ColumnDirection& d, double area) { return d.le / std::sqrt(d.inertia / area); }

double reducedForce(const ColumnCase& c) {
    const double nu = c.gamaf * c.fk / (c.area * c.fcd);
    return std::max(nu, 0.5);
}

DirectionEccentricities directionEccentricities(const ColumnDirection& d, const ColumnCase& c, double nu) {
    DirectionEccentricities e;
    e.lambda = slenderness(d, c.area);
    e.accidental = d.le / 400;
    e.minimum = 1.5 + 0.03 * d.h;
    // Curvature 0.005 / (h (nu + 0.5)), times le^2 / 10.
    e.secondOrder = 0.005 * d.le * d.le / (10 * d.h * (nu + 0.5));

    e.moments = d.ma != 0 || d.mb != 0;
    e.endA = 100 * d.ma / c.fk;
    e.endB = 100 * d.mb / c.fk;
    e.big = std::max(std::fabs(e.endA), std::fabs(e.endB));
    double small = std::min(std::fabs(e.endA), std::fabs(e.endB));
    // Ends turning the column in opposite senses: the smaller counts against.
    if (small != 0 && e.endA / e.endB < 0) small = -small;
    e.intermediate = std::max(0.6 * e.big + 0.4 * small, 0.4 * e.big);

    // Creep acts on the eccentricity the column carries for good: the accidental one,
    // plus the intermediate first-order one where there are moments. Under the
    // service force Fk, against the Euler load of the secant modulus.
    double creepFactor = 0;
    if (e.lambda > 50) {
        const double euler = kPiSquared * (c.ecs / 10) * d.inertia / (d.le * d.le);
        creepFactor = portable::exp(c.phi * c.fk / (euler - c.fk)) - 1;
    }
    const double base = e.moments ? e.intermediate + e.accidental : e.accidental;
    e.creep = creepFactor * base;

    e.totalWithoutMoments = e.secondOrder + std::max(e.accidental, e.minimum) + e.creep;
    const double end = std::max(e.big + e.accidental, e.minimum);
    e.middle = e.secondOrder + std::max(e.intermediate + e.accidental, e.minimum) + e.creep;
    e.totalWithMoments = std::max(e.middle, end);
    return e;
}

ColumnSituations columnSituations(const ColumnCase& c) {
    ColumnSituations s;
    s.type = columnType(c.x.ma, c.x.mb, c.y.ma, c.y.mb);
    const double nu = reducedForce(c);
    s.x = directionEccentricities(c.x, c, nu);
    s.y = directionEccentricities(c.y, c, nu);
    const DirectionEccentricities &x = s.x, &y = s.y;
    switch (s.type) {
        case 1: s.rows = {{x.totalWithoutMoments, 0}, {0, y.totalWithoutMoments}}; break;
        case 2: s.rows = {{x.totalWithMoments, 0}, {0, y.totalWithoutMoments}}; break;
        // The direction with moments comes first, as for type 2.
        case 3: s.rows = {{0, y.totalWithMoments}, {x.totalWithoutMoments, 0}}; break;
        default: {
            // A corner column: each end with the accidental eccentricity in one
            // direction at a time, then the middle with the second-order and creep
            // effects of one direction at a time. The middle is not compared with
            // the ends here.
            auto end = [](double e, const DirectionEccentricities& d) {
                return std::max(std::fabs(e) + d.accidental, d.minimum);
            };
            s.rows = {{end(x.endA, x), std::fabs(y.endA)}, {std::fabs(x.endA), end(y.endA, y)},
                      {end(x.endB, x), std::fabs(y.endB)}, {std::fabs(x.endB), end(y.endB, y)},
                      {x.middle, y.intermediate},           {x.intermediate, y.middle}};
        }
    }
    auto ok = [](const DirectionEccentricities& d) {
        return std::isfinite(d.lambda) && std::isfinite(d.secondOrder) && std::isfinite(d.creep) &&
               std::isfinite(d.totalWithMoments) && std::isfinite(d.totalWithoutMoments);
    };
    s.finite = ok(x) && ok(y);
    for (const auto& r : s.rows) s.finite = s.finite && std::isfinite(r.ex) && std::isfinite(r.ey);
    return s;
}

}  // namespace morve
