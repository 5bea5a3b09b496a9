#include "web/drawing_json.h"

#include <cmath>

namespace morve::web {

using nlohmann::json;

namespace {

// A coordinate the page can draw: a value that is not finite (which no drawing
// should hold) goes as 0 rather than as JSON's null.
double finite(double v) { return std::isfinite(v) ? v : 0.0; }

json point(Point p) { return json::array({finite(p.x), finite(p.y)}); }

json colour(Colour c) { return json::array({c.r, c.g, c.b}); }

const char* alignName(TextAlign a) {
    switch (a) {
        case TextAlign::Left: return "left";
        case TextAlign::Centre: return "centre";
        case TextAlign::Right: return "right";
    }
    return "left";
}

const char* unitName(DrawingUnit u) {
    switch (u) {
        case DrawingUnit::None: return "none";
        case DrawingUnit::Centimetre: return "cm";
        case DrawingUnit::Metre: return "m";
    }
    return "none";
}

const char* shapeKindName(ShapeKind k) {
    switch (k) {
        case ShapeKind::Outline: return "outline";
        case ShapeKind::Bars: return "bars";
        case ShapeKind::Dimensions: return "dimensions";
        case ShapeKind::Texts: return "texts";
        case ShapeKind::Loads: return "loads";
        case ShapeKind::Diagrams: return "diagrams";
    }
    return "outline";
}

struct GeometryJson {
    json operator()(const Line& l) const { return {{"type", "line"}, {"from", point(l.from)}, {"to", point(l.to)}}; }
    json operator()(const Polyline& p) const {
        json points = json::array();
        for (Point q : p.points) points.push_back(point(q));
        return {{"type", "polyline"}, {"points", points}, {"closed", p.closed}, {"filled", p.filled}};
    }
    json operator()(const Circle& c) const {
        return {{"type", "circle"}, {"centre", point(c.centre)}, {"radius", finite(c.radius)}, {"filled", c.filled}};
    }
    json operator()(const Label& l) const {
        return {{"type", "label"}, {"at", point(l.at)}, {"text", l.text}, {"size", finite(l.size)},
                {"align", alignName(l.align)}};
    }
};

}  // namespace

json drawingJson(const Drawing& d) {
    json shapes = json::array();
    for (const Shape& s : d.shapes) {
        json shape = std::visit(GeometryJson{}, s.geometry);
        shape["colour"] = colour(s.colour);
        shape["width"] = finite(s.width);
        shape["kind"] = shapeKindName(s.kind);
        shapes.push_back(std::move(shape));
    }
    return {{"left", finite(d.left)},     {"top", finite(d.top)},
            {"right", finite(d.right)},   {"bottom", finite(d.bottom)},
            {"fitContent", d.fitContent}, {"unit", unitName(d.unit)},
            {"perCoordinate", finite(d.perCoordinate)}, {"shapes", shapes}};
}

json chartJson(const Chart& c) {
    json series = json::array();
    for (const ChartSeries& s : c.series) {
        json points = json::array();
        for (Point p : s.points) points.push_back(point(p));
        series.push_back({{"name", s.name},
                          {"points", points},
                          {"scatter", s.scatter},
                          {"colour", colour(s.colour)},
                          {"markerSize", finite(s.markerSize)}});
    }
    return {{"title", c.title}, {"xTitle", c.xTitle}, {"yTitle", c.yTitle}, {"xMin", finite(c.xMin)},
            {"xMax", finite(c.xMax)}, {"yMin", finite(c.yMin)}, {"yMax", finite(c.yMax)}, {"series", series}};
}

}  // namespace morve::web
