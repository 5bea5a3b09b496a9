#include "stairs/helix.h"

#include <cmath>

#include "numeric/elementary.h"

namespace morve {

namespace {

double half(const Helix& h) { return h.opening / 2; }
// Rise per radian.
double pitch(const Helix& h) { return h.opening > 0 ? h.rise / h.opening : 0; }
double side(const Helix& h) { return h.clockwise ? -1 : 1; }

// The internal forces at a node, from the bar that ends there (or starts, at the
// base), turned into the helix's section axes.
EndForces sectionForces(const Helix& h, const SpaceModel& m, const SpaceResults& r, int node) {
    const bool first = node == 0;
    const int bar = first ? 0 : node - 1;
    const SpaceBar& b = m.bars[static_cast<std::size_t>(bar)];
    const EndForces& f = first ? r.atFrom[0] : r.atTo[static_cast<std::size_t>(bar)];
    const Axes bar3 = barAxes(m.nodes[static_cast<std::size_t>(b.from)].at, m.nodes[static_cast<std::size_t>(b.to)].at, b.zHint);
    const double angle = -half(h) + h.opening * node / h.bars;
    const Axes s = helixSection(h, angle);
    const Vec3 force = toAxes(s, fromAxes(bar3, {f[0], f[1], f[2]}));
    const Vec3 moment = toAxes(s, fromAxes(bar3, {f[3], f[4], f[5]}));
    return {force[0], force[1], force[2], moment[0], moment[1], moment[2]};
}

}  // namespace

Vec3 helixPoint(const Helix& h, double angle) {
    return {h.radius * portable::cos(angle), side(h) * h.radius * portable::sin(angle), pitch(h) * (angle + half(h))};
}

Axes helixSection(const Helix& h, double angle) {
    const Vec3 x = unit({-h.radius * portable::sin(angle), side(h) * h.radius * portable::cos(angle), pitch(h)});
    const Vec3 down{0, 0, -1};
    const Vec3 z = unit(down - dot(down, x) * x);
    return {x, cross(z, x), z};
}

double helixLoadPerRadian(const Helix& h, double g, double q) {
    const double length = std::sqrt(h.radius * h.radius + pitch(h) * pitch(h));
    return kConcreteWeight * h.thickness * h.width * length + (g + q) * h.width * h.radius;
}

SpaceModel helixModel(const Helix& h) {
    SpaceModel m;
    const int n = h.bars;
    for (int k = 0; k <= n; ++k) m.nodes.push_back({helixPoint(h, -half(h) + h.opening * k / n), {}, {}, {}});
    for (int end : {0, n}) {
        SpaceNode& node = m.nodes[static_cast<std::size_t>(end)];
        if (h.fixedEnds) {
            node.fixed.fill(true);
        } else {
            // The slab rests on its floor across its whole width: the support stops
            // it moving and twisting about its own axis, but lets it turn in bending.
            node.axes = helixSection(h, end == 0 ? -half(h) : half(h));
            node.fixed = {true, true, true, true, false, false};
        }
    }
    const BarSection section = rectangleSection(h.modulus, kConcretePoisson, h.width, h.thickness);
    // Each bar carries the load of its own arc of the helix, so that the chain
    // carries the whole load however coarse it is.
    const double perBar = helixLoadPerRadian(h, h.g, h.q) * h.opening / n;
    for (int k = 0; k < n; ++k) {
        SpaceBar b;
        b.from = k;
        b.to = k + 1;
        b.section = section;
        const Vec3 chord = m.nodes[static_cast<std::size_t>(k + 1)].at - m.nodes[static_cast<std::size_t>(k)].at;
        b.load = {0, 0, -perBar / std::sqrt(dot(chord, chord))};
        m.bars.push_back(b);
    }
    return m;
}

HelixResults analyseHelix(const Helix& h) {
    HelixResults out;
    if (h.bars < 2 || h.bars % 2 != 0) return out;
    out.model = helixModel(h);
    out.frame = analyseSpaceFrame(out.model);
    if (!out.frame.solved) return out;
    const SpaceResults& r = out.frame;
    out.base = sectionForces(h, out.model, r, 0);
    out.top = sectionForces(h, out.model, r, h.bars);
    out.centre = sectionForces(h, out.model, r, h.bars / 2);
    out.baseForce = r.reactionForce.front();
    out.baseMoment = r.reactionMoment.front();
    out.topForce = r.reactionForce.back();
    out.topMoment = r.reactionMoment.back();
    out.totalLoad = helixLoadPerRadian(h, h.g, h.q) * h.opening;
    // The deflection that matters is the long-term one under the quasi-permanent
    // load; the analysis is linear, so it is the total one scaled.
    const double full = helixLoadPerRadian(h, h.g, h.q);
    const double ratio = full > 0 ? helixLoadPerRadian(h, h.g, 0.3 * h.q) / full : 0;
    double down = 0;
    for (const Vec3& d : r.displacement) down = std::max(down, -d[2]);
    out.deflection = down * ratio * (1 + h.creep);
    bool finite = std::isfinite(out.deflection);
    for (const EndForces* e : {&out.base, &out.top, &out.centre})
        for (double v : *e) finite = finite && std::isfinite(v);
    out.solved = finite;
    return out;
}

}  // namespace morve
