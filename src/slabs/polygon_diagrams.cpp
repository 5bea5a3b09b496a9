// The moment diagrams of the grillage over the slab's outline: each row carries
// its Mx, each column its My, drawn across the bars to one scale.
#include <algorithm>
#include <cmath>

#include "app/numbers.h"
#include "numeric/elementary.h"
#include "slabs/polygon_form24f.h"

namespace morve {

namespace {

constexpr int kSamples = 8;

// The moment at a fraction t of a bar: the straight line between its end moments
// and the parabola of its own load.
double momentAt(const BarMoments& m, double length, double t) {
    return m.start * (1 - t) + m.end * t + m.load * length * length * t * (1 - t) / 2;
}

}  // namespace

Drawing momentDiagrams(const PolygonCase& c, const GrillageMesh& mesh, const GrillageResults& r) {
    Drawing d;
    const OutlineScale s = outlineScale(c.polygon.vertices);
    drawOutline(d, c.polygon, s);
    double largest = 0;
    for (std::size_t e = 0; e < mesh.bars.size(); ++e) {
        const MeshBar& b = mesh.bars[e];
        const Point p = mesh.nodes[b.from].at, q = mesh.nodes[b.to].at;
        const double l = portable::hypot(q.x - p.x, q.y - p.y);
        for (int k = 0; k <= kSamples; ++k) largest = std::max(largest, std::abs(momentAt(r.bars[e], l, double(k) / kSamples)));
    }
    // The greatest moment reaches nine tenths of a cell.
    const double reach = largest > 0 ? 0.9 * std::max(mesh.dx, mesh.dy) * s.scale / largest : 0;
    for (std::size_t e = 0; e < mesh.bars.size(); ++e) {
        const MeshBar& b = mesh.bars[e];
        const Point p = s.map(mesh.nodes[b.from].at), q = s.map(mesh.nodes[b.to].at);
        const double l = portable::hypot(mesh.nodes[b.to].at.x - mesh.nodes[b.from].at.x,
                                    mesh.nodes[b.to].at.y - mesh.nodes[b.from].at.y);
        d.line(p, q, colours::grey, 1);
        // Positive moments below a row and right of a column; negative ones on the
        // other side of the line.
        const Point across = b.alongX ? Point{0, 1} : Point{1, 0};
        const Colour colour = b.alongX ? colours::red : colours::green;
        std::vector<Point> curve;
        for (int k = 0; k <= kSamples; ++k) {
            const double t = double(k) / kSamples, o = momentAt(r.bars[e], l, t) * reach;
            curve.push_back({p.x + (q.x - p.x) * t + across.x * o, p.y + (q.y - p.y) * t + across.y * o});
        }
        d.as(ShapeKind::Diagrams).line(p, curve.front(), colour, 1);
        d.line(q, curve.back(), colour, 1);
        d.polyline(curve, false, colour, 1);
        d.as(ShapeKind::Outline);
    }
    const double x = s.width + 150;
    double y = 300;
    auto note = [&](const std::string& text, Colour colour = colours::black) {
        d.text({x, y}, text, 9, TextAlign::Left, colour);
        y += 160;
    };
    auto value = [](const std::optional<double>& v) { return v ? formatResult(*v) : std::string(); };
    note("Momentos");
    note("(kNm/m):");
    note("Mx,max=" + formatResult(r.mxMax), colours::red);
    note("Mx,min=" + formatResult(r.mxMin), colours::red);
    note("My,max=" + formatResult(r.myMax), colours::green);
    note("My,min=" + formatResult(r.myMin), colours::green);
    note("Mx,centro=" + value(r.mxCentre), colours::red);
    note("My,centro=" + value(r.myCentre), colours::green);
    d.right = x + 1100;
    return d;
}

}  // namespace morve
