#include "stairs/two_flights.h"

#include <algorithm>
#include <cmath>

#include "stairs/helix.h"

namespace morve {

namespace {

// The rigid links are this many times stiffer than the stiffest slab: far enough
// to act as rigid, near enough to leave the band well conditioned.
constexpr double kRigid = 1e4;
constexpr int kLandingBars = 8;  // on each of the three stretches of the centre line

const Vec3 kDown{0, 0, -1};

struct Layout {
    int baseNode = 0, flight1End = 0, flight2Start = 0, topNode = 0, landingCentre = 0;
    int flight1Bars = 0, flight2FirstBar = 0, landingCentreBar = 0;
};

double side(const TwoFlights& s) { return s.clockwise ? -1 : 1; }
// The flights' axes stand this far to each side of the middle line.
double offset(const TwoFlights& s) { return (s.landingWidth - s.flightWidth) / 2; }

int addNode(SpaceModel& m, const Vec3& at) {
    m.nodes.push_back({at, {}, {}, {}});
    return static_cast<int>(m.nodes.size()) - 1;
}

void addBar(SpaceModel& m, int from, int to, const BarSection& section, double loadPerLength) {
    m.bars.push_back({from, to, section, kDown, {0, 0, -loadPerLength}});
}

// A straight run of n bars from node `from` to the point `to`; the last node made.
int addRun(SpaceModel& m, int from, const Vec3& to, int n, const BarSection& section, double load) {
    const Vec3 start = m.nodes[static_cast<std::size_t>(from)].at;
    int last = from;
    for (int k = 1; k <= n; ++k) {
        const int next = addNode(m, start + (static_cast<double>(k) / n) * (to - start));
        addBar(m, last, next, section, load);
        last = next;
    }
    return last;
}

Layout build(const TwoFlights& s, bool quasiPermanent, SpaceModel& m) {
    Layout l;
    const double e = offset(s) * side(s), half = s.rise / 2;
    const double slope = std::sqrt(s.run * s.run + half * half);
    const double qf = quasiPermanent ? 0.3 * s.qFlight : s.qFlight, ql = quasiPermanent ? 0.3 * s.qLanding : s.qLanding;
    // Own weight along the flight's true length; g and q on its plan.
    const double flightLoad = kConcreteWeight * s.flightThickness * s.flightWidth +
                              (s.gFlight + qf) * s.flightWidth * (slope > 0 ? s.run / slope : 0);
    const double landingLoad = (kConcreteWeight * s.landingThickness + s.gLanding + ql) * s.landingLength;
    const BarSection flight = rectangleSection(s.modulus, kConcretePoisson, s.flightWidth, s.flightThickness);
    const BarSection landing = rectangleSection(s.modulus, kConcretePoisson, s.landingLength, s.landingThickness);
    BarSection rigid;
    const double big = kRigid * std::max(flight.eiy + flight.eiz + flight.gj, landing.eiy + landing.eiz + landing.gj);
    rigid = {kRigid * std::max(flight.ea, landing.ea), big, big, big};

    const int n = std::max(2, s.flightBars);
    l.baseNode = addNode(m, {0, -e, 0});
    l.flight1End = addRun(m, l.baseNode, {s.run, -e, half}, n, flight, flightLoad);
    l.flight1Bars = n;
    const double x = s.run + s.landingLength / 2;
    // The landing's centre line, edge to edge, with nodes where the links come in
    // and at its middle.
    const int edge1 = addNode(m, {x, -side(s) * s.landingWidth / 2, half});
    const int join1 = addRun(m, edge1, {x, -e, half}, kLandingBars, landing, landingLoad);
    l.landingCentre = addRun(m, join1, {x, 0, half}, kLandingBars, landing, landingLoad);
    l.landingCentreBar = static_cast<int>(m.bars.size()) - 1;
    const int join2 = addRun(m, l.landingCentre, {x, e, half}, kLandingBars, landing, landingLoad);
    addRun(m, join2, {x, side(s) * s.landingWidth / 2, half}, kLandingBars, landing, landingLoad);
    addBar(m, l.flight1End, join1, rigid, 0);
    l.flight2Start = addNode(m, {s.run, e, half});
    addBar(m, l.flight2Start, join2, rigid, 0);
    l.flight2FirstBar = static_cast<int>(m.bars.size());
    l.topNode = addRun(m, l.flight2Start, {0, e, s.rise}, n, flight, flightLoad);
    for (int end : {l.baseNode, l.topNode}) {
        SpaceNode& node = m.nodes[static_cast<std::size_t>(end)];
        if (s.fixedEnds) {
            node.fixed.fill(true);
        } else {
            // As in every stair of the program: the flight rests across its width,
            // which stops it twisting about its axis but lets it turn in bending.
            const Vec3 along = end == l.baseNode ? Vec3{s.run, 0, half} : Vec3{-s.run, 0, half};
            node.axes = barAxes({0, 0, 0}, along, kDown);
            node.fixed = {true, true, true, true, false, false};
        }
    }
    return l;
}

double totalOf(const SpaceModel& m) {
    double total = 0;
    for (const SpaceBar& b : m.bars) {
        const Vec3 d = m.nodes[static_cast<std::size_t>(b.to)].at - m.nodes[static_cast<std::size_t>(b.from)].at;
        total -= b.load[2] * std::sqrt(dot(d, d));
    }
    return total;
}

// The section of a flight's bars where My is greatest, and its distance in plan
// from the floor at the flight's foot.
EndForces largestMy(const SpaceResults& r, const SpaceModel& m, int firstBar, int bars, double& at) {
    EndForces best = r.atFrom[static_cast<std::size_t>(firstBar)];
    Vec3 where = m.nodes[static_cast<std::size_t>(m.bars[static_cast<std::size_t>(firstBar)].from)].at;
    for (int k = firstBar; k < firstBar + bars; ++k) {
        const auto b = static_cast<std::size_t>(k);
        if (r.atTo[b][4] > best[4]) {
            best = r.atTo[b];
            where = m.nodes[static_cast<std::size_t>(m.bars[b].to)].at;
        }
    }
    at = where[0];
    return best;
}

}  // namespace

SpaceModel twoFlightModel(const TwoFlights& s, bool quasiPermanent) {
    SpaceModel m;
    build(s, quasiPermanent, m);
    return m;
}

TwoFlightResults analyseTwoFlights(const TwoFlights& s) {
    TwoFlightResults out;
    const Layout l = build(s, false, out.model);
    out.frame = analyseSpaceFrame(out.model);
    if (!out.frame.solved) return out;
    const SpaceResults& r = out.frame;
    const auto bar = [](int k) { return static_cast<std::size_t>(k); };
    const int n = l.flight1Bars;
    out.base = r.atFrom[0];
    out.top = r.atTo[bar(l.flight2FirstBar + n - 1)];
    out.flight1Joint = r.atTo[bar(n - 1)];
    out.flight2Joint = r.atFrom[bar(l.flight2FirstBar)];
    out.flight1Max = largestMy(r, out.model, 0, n, out.flight1MaxAt);
    out.flight2Max = largestMy(r, out.model, l.flight2FirstBar, n, out.flight2MaxAt);
    out.landingCentre = r.atTo[bar(l.landingCentreBar)];
    out.baseForce = r.reactionForce[bar(l.baseNode)];
    out.baseMoment = r.reactionMoment[bar(l.baseNode)];
    out.topForce = r.reactionForce[bar(l.topNode)];
    out.topMoment = r.reactionMoment[bar(l.topNode)];
    out.totalLoad = totalOf(out.model);

    const SpaceResults lasting = analyseSpaceFrame(twoFlightModel(s, true));
    if (!lasting.solved) return out;
    double down = 0;
    for (const Vec3& d : lasting.displacement) down = std::max(down, -d[2]);
    out.deflection = down * (1 + s.creep);
    bool finite = std::isfinite(out.deflection) && std::isfinite(out.totalLoad);
    for (const EndForces* e : {&out.base, &out.top, &out.flight1Max, &out.flight2Max, &out.flight1Joint,
                               &out.flight2Joint, &out.landingCentre})
        for (double v : *e) finite = finite && std::isfinite(v);
    out.solved = finite;
    return out;
}

}  // namespace morve
