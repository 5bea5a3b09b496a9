// The pictures of the continuous beam: the beam with its supports and loads, the
// diagrams of moments and shears, and the deformed shape. The whole beam fills the
// width of each picture, all spans at one horizontal scale.
#include <algorithm>
#include <cmath>
#include <numbers>

#include "app/numbers.h"
#include "continuous/form34.h"
#include "numeric/elementary.h"

namespace morve {

namespace {

constexpr double kLeft = 586, kRight = 8172;  // picture units across the beam
constexpr Colour kCurve{255, 0, 0};

double scaleX(double total, double x) {
    return kLeft + x / total * (kRight - kLeft);
}

std::vector<double> nodeAbscissae(const BeamModel& m) {
    std::vector<double> x{0};
    for (double l : m.length) x.push_back(x.back() + l);
    return x;
}

double totalOf(const BeamModel& m) {
    double t = 0;
    for (double l : m.length) t += l;
    return t;
}

// A value written beside the curve, left out when it is too small to matter.
void valueLabel(Drawing& g, Point at, double value, TextAlign align) {
    if (std::abs(value) < 0.1) return;
    g.text(at, formatResult(value, 2), 8, align, colours::blue);
}

void support(Drawing& g, double x, double y, SupportType type) {
    const double s = 90;
    if (type == SupportType::Simple) {
        g.polyline({{x, y}, {x - s, y + 1.6 * s}, {x + s, y + 1.6 * s}}, true, colours::black, 1.5);
        g.line({x - 1.4 * s, y + 1.6 * s}, {x + 1.4 * s, y + 1.6 * s});
    } else {
        g.line({x, y - 1.8 * s}, {x, y + 1.8 * s}, colours::black, 2.5);
        for (double t = -1.8 * s; t < 1.8 * s; t += 0.6 * s) g.line({x, t + y}, {x - 0.5 * s, y + t + 0.5 * s});
    }
}

void arrowDown(Drawing& g, double x, double top, double tip) {
    const double head = 0.25 * (tip - top);
    g.line({x, top}, {x, tip}, colours::blue, 1.5);
    g.polyline({{x - 0.4 * head, tip - head}, {x, tip}, {x + 0.4 * head, tip - head}}, false, colours::blue, 1.5);
}

// A couple as an arc round its point, the arrow at its end showing the sense.
void couple(Drawing& g, double x, double y, double value) {
    const double r = 110;
    std::vector<Point> arc;
    for (int k = 0; k <= 12; ++k) {
        const double a = std::numbers::pi * (0.15 + 0.7 * k / 12.0);
        arc.push_back({x - r * portable::cos(a), y - r * portable::sin(a)});
    }
    g.polyline(arc, false, colours::green, 1.5);
    const Point end = value > 0 ? arc.back() : arc.front();
    g.circle(end, 18, colours::green, true);
    g.text({x, y - r - 60}, formatResult(value, 2), 8, TextAlign::Centre, colours::green);
}

}  // namespace

Drawing beamPicture(const BeamModel& m, bool loads) {
    Drawing g;
    const double total = totalOf(m);
    if (!(total > 0) || !std::isfinite(total)) return g;
    g.unit = DrawingUnit::Metre;
    g.perCoordinate = total / (kRight - kLeft);
    g.left = kLeft - 400, g.right = kRight + 400, g.top = 250, g.bottom = 1300;
    const double y = 800;
    const std::vector<double> nodes = nodeAbscissae(m);
    g.line({kLeft, y}, {kRight, y}, colours::black, 3);
    for (std::size_t j = 0; j < nodes.size(); ++j) {
        const double x = scaleX(total, nodes[j]);
        g.circle({x, y}, 14, colours::black, true);
        g.text({x, y + 230}, std::to_string(j + 1), 8, TextAlign::Centre, colours::grey);
    }
    for (std::size_t i = 0; i < m.length.size(); ++i)
        g.dimension({scaleX(total, nodes[i]), y + 360}, {scaleX(total, nodes[i + 1]), y + 360},
                    formatResult(m.length[i], 2), 0, 60, colours::grey);
    for (const BeamSupport& s : m.supports)
        if (s.node >= 1 && s.node <= static_cast<int>(nodes.size()))
            support(g, scaleX(total, nodes[s.node - 1]), y, s.type);
    if (!loads) return g;
    g.as(ShapeKind::Loads);

    // Uniform loads stand above the beam as bands, one level per segment of a span
    // so that overlapping segments stay apart.
    std::vector<int> level(m.length.size(), 0);
    for (const UniformSegment& s : m.segments) {
        const double x0 = nodes[s.bar - 1] + s.start;
        const double x1 = std::min(x0 + s.length, nodes[s.bar]);
        const double top = y - 420 - 110 * (level[s.bar - 1]++ % 3);
        const double a = scaleX(total, x0), b = scaleX(total, x1);
        g.rectangle({a, top}, {b, top + 90}, colours::lightGrey, 1, true);
        g.rectangle({a, top}, {b, top + 90}, colours::blue, 1);
        // Labels keep their size in pixels while the beam is scaled to the box: a
        // clearance of about a text's height keeps the value off the band's edge.
        g.text({(a + b) / 2, top - 100}, formatResult(s.q, 2), 8, TextAlign::Centre, colours::blue);
    }
    auto force = [&](double x, double p, double mo) {
        const double sx = scaleX(total, x);
        if (p != 0) {
            arrowDown(g, sx, y - 300, y - 20);
            g.text({sx + 70, y - 200}, formatResult(p, 2), 8, TextAlign::Left, colours::blue);
        }
        if (mo != 0) couple(g, sx, y, mo);
    };
    for (const BarLoad& p : m.barLoads) force(nodes[p.bar - 1] + p.a, p.force, p.moment);
    for (const NodalLoad& p : m.nodalLoads) force(nodes[p.node - 1], p.force, p.moment);
    return g;
}

namespace {

enum class Quantity { Moment, Shear };

// One diagram over the whole beam: the curve closed to the axis at the ends, the
// end values and, for moments, the largest of each span written beside it.
Drawing diagram(const AnalysedBeam& beam, Quantity q) {
    const BeamModel& m = beam.model;
    Drawing g;
    const double total = beam.results.totalLength;
    constexpr double kHeight = 2220;
    // Along the beam the picture is to scale; across it, the values are.
    g.unit = DrawingUnit::Metre;
    g.perCoordinate = total / (kRight - kLeft);
    g.left = kLeft - 450, g.right = kRight + 450, g.top = -250, g.bottom = kHeight + 250;
    auto value = [&](const DiagramPoint& p) { return q == Quantity::Moment ? p.m : p.v; };
    double high = 0, low = 0;
    for (const SpanResult& s : beam.results.spans)
        for (const DiagramPoint& p : s.points) high = std::max(high, value(p)), low = std::min(low, value(p));
    const double range = high - low;
    const double scale = range > 1e-12 ? 0.9 * kHeight / range : 0;
    // Moments are drawn on the side of the face they tension: positive below.
    const double sense = q == Quantity::Moment ? 1 : -1;
    const double axis = kHeight / 2 - sense * 0.5 * (high + low) * scale;
    auto at = [&](double x, double v) { return Point{scaleX(total, x), axis + sense * v * scale}; };
    g.line({kLeft, axis}, {kRight, axis}, colours::black, 1);
    std::vector<Point> curve{at(0, 0)};
    for (const SpanResult& s : beam.results.spans)
        for (const DiagramPoint& p : s.points) curve.push_back(at(p.x, value(p)));
    curve.push_back(at(total, 0));
    g.as(ShapeKind::Diagrams).polyline(curve, false, kCurve, 2);
    g.as(ShapeKind::Outline);
    double x0 = 0, previousEnd = 0;
    const int n = m.spans();
    for (int i = 0; i < n; ++i) {
        const SpanResult& s = beam.results.spans[i];
        const double l = m.length[i];
        const double a = q == Quantity::Moment ? s.ma : s.va, b = q == Quantity::Moment ? s.mb : s.vb;
        // At an interior support the value is written once when both sides agree.
        if (i == 0 || formatResult(a, 2) != formatResult(previousEnd, 2))
            valueLabel(g, {at(x0, a).x + 60, at(x0, a).y}, a, TextAlign::Left);
        previousEnd = b;
        const Point end = at(x0 + l, b);
        valueLabel(g, {i == n - 1 ? end.x - 160 : end.x + 60, end.y}, b,
                   i == n - 1 ? TextAlign::Right : TextAlign::Left);
        if (q == Quantity::Moment && s.maxMoment > 0) {
            const Point top = at(x0 + s.maxMomentX, s.maxMoment);
            valueLabel(g, {top.x + 60, top.y + 60}, s.maxMoment, TextAlign::Left);
        }
        g.line(at(x0, 0), {at(x0, 0).x, at(x0, 0).y + 30}, colours::grey);
        x0 += l;
    }
    return g;
}

}  // namespace

Drawing momentDiagram(const AnalysedBeam& beam) { return diagram(beam, Quantity::Moment); }
Drawing shearDiagram(const AnalysedBeam& beam) { return diagram(beam, Quantity::Shear); }

Drawing deformedShape(const AnalysedBeam& beam) {
    const BeamModel& m = beam.model;
    constexpr double kX0 = 721, kX1 = 8172, kHeight = 1387;
    Drawing g;
    g.left = kX0 - 300, g.right = kX1 + 300, g.top = -150, g.bottom = kHeight + 150;
    double wmax = -1e300, wmin = 1e300;
    for (const SpanResult& s : beam.results.spans)
        for (double w : s.deflection) wmax = std::max(wmax, w), wmin = std::min(wmin, w);
    const double r = std::abs(wmax - wmin);
    // A beam that does not deflect keeps its axis in the middle, without a scale.
    const double scale = r < 1e-8 ? 0 : 0.8 * kHeight / r;
    const double axis = kHeight / 2 - 0.5 * (wmax + wmin) * scale;
    const double total = beam.results.totalLength;
    g.unit = DrawingUnit::Metre;
    g.perCoordinate = total / (kX1 - kX0);
    auto sx = [&](double x) { return kX0 + x / total * (kX1 - kX0); };
    g.line({kX0, axis}, {kX1, axis}, colours::black, 1);
    std::vector<Point> curve;
    double x0 = 0, extreme = 0;
    Point extremeAt{};
    for (int i = 0; i < m.spans(); ++i) {
        const auto& w = beam.results.spans[i].deflection;
        g.circle({sx(x0), axis}, 12, colours::black, true);
        for (std::size_t k = 0; k < w.size(); ++k) {
            const Point p{sx(x0 + m.length[i] * k / (w.size() - 1)), axis + w[k] * scale};
            curve.push_back(p);
            if (std::abs(w[k]) > std::abs(extreme)) extreme = w[k], extremeAt = p;
        }
        x0 += m.length[i];
    }
    g.circle({sx(x0), axis}, 12, colours::black, true);
    g.as(ShapeKind::Diagrams).polyline(curve, false, kCurve, 2);
    if (std::abs(extreme) > 0)
        g.text({extremeAt.x, extremeAt.y + (extreme > 0 ? 120 : -120)}, formatResult(extreme, 1), 8,
               TextAlign::Centre, colours::blue);
    return g;
}

}  // namespace morve
