#include "serviceability/span_loads.h"

namespace morve {

double bendingMoment(const SpanLoads& loads, double x) {
    const double l = loads.span;
    double m = loads.xa * (1 - x / l) + loads.xb * x / l;
    for (const auto& p : loads.points) {
        // A force on the simple span, and a clockwise couple whose reactions are
        // -C/l and C/l: the sagging moment jumps up by C where the couple acts. Read
        // right at an inner couple, the moment is the mean of its two sides, so that
        // the stations, joined by straight lines, stay true to the jump.
        m += x <= p.position ? p.force * (l - p.position) * x / l : p.force * p.position * (l - x) / l;
        if (x == p.position && x > 0 && x < l)
            m += p.moment * (l - 2 * x) / (2 * l);
        else
            m += x < p.position ? -p.moment * x / l : p.moment * (l - x) / l;
    }
    for (const auto& u : loads.uniform) {
        const double total = u.value * u.length;
        const double reaction = total * (l - u.start - u.length / 2) / l;
        m += reaction * x;
        if (x > u.start + u.length)
            m -= total * (x - u.start - u.length / 2);
        else if (x > u.start)
            m -= u.value * (x - u.start) * (x - u.start) / 2;
    }
    return m;
}

std::vector<double> stationMoments(const SpanLoads& loads) {
    std::vector<double> m(kStations);
    for (int i = 0; i < kStations; ++i) m[i] = bendingMoment(loads, loads.span * i / (kStations - 1));
    return m;
}

}  // namespace morve
