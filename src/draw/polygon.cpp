#include "draw/polygon.h"

#include <algorithm>
#include <cmath>

#include "numeric/elementary.h"

namespace morve {

PolygonMoments polygonMoments(const std::vector<Point>& v) {
    PolygonMoments m;
    const std::size_t n = v.size();
    for (std::size_t i = 0; i < n; ++i) {
        const Point a = v[i], b = v[(i + 1) % n];
        const double dx = b.x - a.x, dy = b.y - a.y;
        m.area += (2 * a.x + dx) * dy / 2;
        m.sy += (3 * a.x * b.x + dx * dx) * dy / 6;
        m.sx -= (3 * a.y * b.y + dy * dy) * dx / 6;
    }
    return m;
}

std::vector<Point> clipAbove(const std::vector<Point>& v, double cut) {
    std::vector<Point> out;
    const std::size_t n = v.size();
    out.reserve(n + 4);
    for (std::size_t i = 0; i < n; ++i) {
        const Point a = v[i], b = v[(i + 1) % n];
        const bool aIn = a.y >= cut, bIn = b.y >= cut;
        if (aIn) out.push_back(a);
        if (aIn != bIn) {
            const double t = (cut - a.y) / (b.y - a.y);
            out.push_back({a.x + t * (b.x - a.x), cut});
        }
    }
    return out;
}

Point rotated(Point p, double c, double s) { return {c * p.x + s * p.y, -s * p.x + c * p.y}; }

std::vector<Point> rotated(const std::vector<Point>& points, double angle) {
    const double c = portable::cos(angle), s = portable::sin(angle);
    std::vector<Point> out;
    out.reserve(points.size());
    for (const Point& p : points) out.push_back(rotated(p, c, s));
    return out;
}

namespace {

double cross(Point o, Point a, Point b) { return (a.x - o.x) * (b.y - o.y) - (a.y - o.y) * (b.x - o.x); }

bool onSegment(Point a, Point b, Point p) {
    return std::min(a.x, b.x) <= p.x && p.x <= std::max(a.x, b.x) && std::min(a.y, b.y) <= p.y &&
           p.y <= std::max(a.y, b.y);
}

int side(double c) { return (c > 0) - (c < 0); }

bool segmentsMeet(Point a, Point b, Point c, Point d) {
    const int d1 = side(cross(c, d, a)), d2 = side(cross(c, d, b));
    const int d3 = side(cross(a, b, c)), d4 = side(cross(a, b, d));
    if (d1 * d2 < 0 && d3 * d4 < 0) return true;
    return (d1 == 0 && onSegment(c, d, a)) || (d2 == 0 && onSegment(c, d, b)) ||
           (d3 == 0 && onSegment(a, b, c)) || (d4 == 0 && onSegment(a, b, d));
}

}  // namespace

bool crossesItself(const std::vector<Point>& v) {
    const std::size_t n = v.size();
    if (n < 4) return false;
    for (std::size_t i = 0; i < n; ++i)
        for (std::size_t j = i + 2; j < n; ++j) {
            if (i == 0 && j == n - 1) continue;  // the last edge meets the first at vertex 1
            if (segmentsMeet(v[i], v[(i + 1) % n], v[j], v[(j + 1) % n])) return true;
        }
    return false;
}

bool containsPoint(const std::vector<Point>& v, Point p) {
    const std::size_t n = v.size();
    bool inside = false;
    for (std::size_t i = 0, j = n - 1; i < n; j = i++) {
        const Point a = v[j], b = v[i];
        if (side(cross(a, b, p)) == 0 && onSegment(a, b, p)) return true;
        if ((b.y > p.y) != (a.y > p.y) && p.x < a.x + (p.y - a.y) * (b.x - a.x) / (b.y - a.y)) inside = !inside;
    }
    return inside;
}

}  // namespace morve
