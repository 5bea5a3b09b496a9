#include "slabs/polygon_mesh.h"

#include <algorithm>
#include <cmath>

#include "numeric/elementary.h"

namespace morve {

namespace {

constexpr double kTol = 1e-10;

bool near(double a, double b) { return std::abs(a - b) < kTol; }
bool samePoint(Point a, Point b) { return near(a.x, b.x) && near(a.y, b.y); }

// A crossing of a grid line with the outline, with the side it was found on.
struct Crossing {
    Point at;
    int side = -1;
};

// Where the grid line `level` (a y when `rows`, an x otherwise) crosses the
// sides, ordered along the line. Sides that run along the line are skipped: their
// ends are crossings of the neighbouring sides.
std::vector<Crossing> crossings(const SlabPolygon& p, double level, bool rows) {
    std::vector<Crossing> found;
    for (int i = 0; i < p.count(); ++i) {
        Point a = p.vertex(i), b = p.vertex(i + 1);
        if (!rows) {
            std::swap(a.x, a.y);
            std::swap(b.x, b.y);
        }
        if (near(a.y, b.y)) continue;
        if (a.y > b.y) std::swap(a, b);
        if (level < a.y || level > b.y) continue;
        const double u = a.x + (level - a.y) * (b.x - a.x) / (b.y - a.y);
        if (u < std::min(a.x, b.x) - kTol || u > std::max(a.x, b.x) + kTol) continue;
        found.push_back({rows ? Point{u, level} : Point{level, u}, i});
    }
    std::stable_sort(found.begin(), found.end(), [rows](const Crossing& l, const Crossing& r) {
        return rows ? l.at.x < r.at.x : l.at.y < r.at.y;
    });
    return found;
}

bool touchesVertex(const SlabPolygon& p, const std::vector<Crossing>& points) {
    for (const Crossing& c : points)
        for (const Point& v : p.vertices)
            if (samePoint(c.at, v)) return true;
    return false;
}

// A chord of the polygon along one grid line: its two crossings.
struct Chord {
    Crossing start, end;
};

// The chords of every grid line in one direction; a chord shorter than the cell
// stands for a sliver the grid cannot carry, and goes with its two points.
struct LineChords {
    std::vector<Chord> chords;
    bool vertexHit = false;
    int points = 0;
};

LineChords chordsOf(const SlabPolygon& p, const GrillageMesh& m, bool rows) {
    LineChords out;
    const int lines = rows ? m.ny : m.nx;
    const double step = rows ? m.dy : m.dx, from = rows ? m.ymin : m.xmin, minimum = rows ? m.dx : m.dy;
    for (int j = 1; j <= lines; ++j) {
        const std::vector<Crossing> c = crossings(p, from + (j - 0.5) * step, rows);
        out.points += static_cast<int>(c.size());
        if (touchesVertex(p, c)) {
            out.vertexHit = true;
            return out;
        }
        for (std::size_t k = 0; k + 1 < c.size(); k += 2) {
            const double length = rows ? c[k + 1].at.x - c[k].at.x : c[k + 1].at.y - c[k].at.y;
            if (length + kTol >= minimum) out.chords.push_back({c[k], c[k + 1]});
        }
    }
    return out;
}

// Nodes row after row: y ascending, and x ascending within a row. The numbering is
// what keeps the band of the grillage narrow.
bool before(const MeshNode& a, const MeshNode& b) {
    if (!near(a.at.y, b.at.y)) return a.at.y < b.at.y;
    return a.at.x < b.at.x;
}

enum class Attempt { Done, Restart, Unstable, TooFine };

Attempt attempt(const SlabPolygon& p, GrillageMesh& m, int nmax) {
    m.dx = (m.xmax - m.xmin) / m.nx;
    m.dy = (m.ymax - m.ymin) / m.ny;
    if (nmax > mesh_limits::kDivisions) return Attempt::Unstable;
    const LineChords rows = chordsOf(p, m, true);
    if (rows.vertexHit) return Attempt::Restart;
    const LineChords columns = chordsOf(p, m, false);
    if (columns.vertexHit) return Attempt::Restart;
    if (rows.points + columns.points > mesh_limits::kBoundaryPoints) return Attempt::TooFine;

    std::vector<MeshNode> boundary;
    for (const LineChords* set : {&rows, &columns})
        for (const Chord& c : set->chords)
            for (const Crossing& x : {c.start, c.end}) {
                // A point found twice (a row and a column meeting on a side) is kept once.
                std::erase_if(boundary, [&](const MeshNode& n) { return samePoint(n.at, x.at); });
                boundary.push_back({x.at, true, x.side});
            }
    std::vector<MeshNode> nodes = boundary;
    for (const Chord& r : rows.chords)
        for (const Chord& c : columns.chords) {
            const double x = c.start.at.x, y = r.start.at.y;
            if (x > r.start.at.x + kTol && x < r.end.at.x - kTol && y > c.start.at.y + kTol && y < c.end.at.y - kTol)
                nodes.push_back({{x, y}, false, -1});
        }
    if (static_cast<int>(nodes.size()) > mesh_limits::kNodes ||
        static_cast<int>(boundary.size()) > mesh_limits::kBoundaryNodes)
        return Attempt::TooFine;
    // Insertion sort: well defined with the tolerant comparison of the rows.
    for (std::size_t i = 1; i < nodes.size(); ++i)
        for (std::size_t k = i; k > 0 && before(nodes[k], nodes[k - 1]); --k) std::swap(nodes[k], nodes[k - 1]);
    m.nodes = std::move(nodes);

    m.bars.clear();
    const int count = static_cast<int>(m.nodes.size());
    auto bothOnOutline = [&](int a, int b) { return m.nodes[a].boundary && m.nodes[b].boundary; };
    for (int i = 0; i + 1 < count; ++i)
        if (near(m.nodes[i].at.y, m.nodes[i + 1].at.y) && !bothOnOutline(i, i + 1)) m.bars.push_back({i, i + 1, true});
    m.xBars = static_cast<int>(m.bars.size());
    for (int i = 0; i < count; ++i)
        for (int j = i + 1; j < count; ++j)
            if (near(m.nodes[i].at.x, m.nodes[j].at.x)) {
                if (!bothOnOutline(i, j)) m.bars.push_back({i, j, false});
                break;
            }
    if (static_cast<int>(m.bars.size()) > mesh_limits::kBars) return Attempt::TooFine;

    m.sideNodes.assign(static_cast<std::size_t>(p.count()), {});
    for (int i = 0; i < count; ++i)
        if (m.nodes[i].side >= 0) m.sideNodes[static_cast<std::size_t>(m.nodes[i].side)].push_back(i);
    return Attempt::Done;
}

double shortestBar(const GrillageMesh& m) {
    double shortest = 1e300;
    for (const MeshBar& b : m.bars) {
        const Point a = m.nodes[b.from].at, c = m.nodes[b.to].at;
        shortest = std::min(shortest, portable::hypot(c.x - a.x, c.y - a.y));
    }
    return shortest;
}

}  // namespace

double polygonArea(const std::vector<Point>& v) {
    double a = 0;
    for (std::size_t i = 0; i < v.size(); ++i) {
        const Point p = v[i], q = v[(i + 1) % v.size()];
        a += (2 * p.x + (q.x - p.x)) * ((q.y - p.y) * 0.5);
    }
    return a;
}

double sideLength(const SlabPolygon& p, int side) {
    const Point a = p.vertex(side), b = p.vertex(side + 1);
    return portable::hypot(b.x - a.x, b.y - a.y);
}

MeshResult generateMesh(const SlabPolygon& p, int divisions) {
    MeshResult r;
    if (!(polygonArea(p.vertices) > 0)) {
        r.status = MeshStatus::NotCounterClockwise;
        return r;
    }
    for (int i = 0; i < p.count(); ++i)
        for (int j = i + 1; j < p.count(); ++j)
            if (samePoint(p.vertices[i], p.vertices[j])) {
                r.status = MeshStatus::RepeatedVertices;
                return r;
            }
    GrillageMesh& m = r.mesh;
    m.xmin = m.xmax = p.vertices[0].x;
    m.ymin = m.ymax = p.vertices[0].y;
    for (const Point& v : p.vertices) {
        m.xmin = std::min(m.xmin, v.x);
        m.xmax = std::max(m.xmax, v.x);
        m.ymin = std::min(m.ymin, v.y);
        m.ymax = std::max(m.ymax, v.y);
    }
    const double lx = m.xmax - m.xmin, ly = m.ymax - m.ymin;
    // The longer size takes the requested count, the other its share of it, rounded
    // half to even, and never fewer than three divisions across.
    if (lx < ly) {
        m.ny = divisions;
        m.nx = std::max(3, static_cast<int>(std::nearbyint(lx / ly * divisions)));
    } else {
        m.nx = divisions;
        m.ny = std::max(3, static_cast<int>(std::nearbyint(ly / lx * divisions)));
    }
    int nmax = std::max(m.nx, m.ny);
    int shortRetries = 0;
    for (;;) {
        const Attempt a = attempt(p, m, nmax);
        if (a == Attempt::Unstable || a == Attempt::TooFine) {
            r.status = a == Attempt::Unstable ? MeshStatus::Unstable : MeshStatus::TooFine;
            return r;
        }
        // A grid line through a vertex, or a bar far shorter than the cell (a side
        // passing just by a node): one more division both ways.
        const bool retry = a == Attempt::Restart ||
                           (0.25 * std::max(m.dx, m.dy) > shortestBar(m) && shortRetries++ < 3);
        if (!retry) return r;
        ++m.nx;
        ++m.ny;
        ++nmax;
    }
}

OutlineScale outlineScale(const std::vector<Point>& v) {
    OutlineScale s;
    double xmin = 1e300, xmax = -1e300, ymin = 1e300, ymax = -1e300;
    for (const Point& p : v) {
        xmin = std::min(xmin, p.x);
        xmax = std::max(xmax, p.x);
        ymin = std::min(ymin, p.y);
        ymax = std::max(ymax, p.y);
    }
    const double w = xmax - xmin, h = ymax - ymin;
    if (!(w > 0 && h > 0) || !std::isfinite(w * h)) return s;
    s.scale = w > h ? std::min(4200.0, 2560 * w / h) / w : 2560 / h;
    s.width = std::max(s.width, w * s.scale);
    s.offsetX = (s.width - w * s.scale) / 2 - xmin * s.scale;
    s.offsetY = (s.height + h * s.scale) / 2 + ymin * s.scale;
    return s;
}

void drawOutline(Drawing& d, const SlabPolygon& p, const OutlineScale& s) {
    // Margins round the canvas leave room for the thick lines and the labels.
    d.left = -200;
    d.top = -200;
    d.right = s.width + 200;
    d.bottom = s.height + 200;
    d.unit = DrawingUnit::Metre;
    d.perCoordinate = 1 / s.scale;
    for (int i = 0; i < p.count(); ++i) {
        const Point a = s.map(p.vertex(i)), b = s.map(p.vertex(i + 1));
        const SideSupport t = i < static_cast<int>(p.sides.size()) ? p.sides[i] : SideSupport::Simple;
        if (t != SideSupport::Free) {
            d.line(a, b, colours::black, t == SideSupport::Fixed ? 4 : 2);
            continue;
        }
        const double len = portable::hypot(b.x - a.x, b.y - a.y), dash = 40;
        for (double u = 0; u < len; u += 2 * dash) {
            const double e = std::min(len, u + dash);
            d.line({a.x + (b.x - a.x) * u / len, a.y + (b.y - a.y) * u / len},
                   {a.x + (b.x - a.x) * e / len, a.y + (b.y - a.y) * e / len}, colours::black, 1);
        }
    }
}

Drawing meshDrawing(const SlabPolygon& p, const GrillageMesh& m) {
    Drawing d;
    const OutlineScale s = outlineScale(p.vertices);
    drawOutline(d, p, s);
    for (const MeshBar& b : m.bars) d.line(s.map(m.nodes[b.from].at), s.map(m.nodes[b.to].at), colours::blue, 1);
    const double radius = 0.05 * std::min(m.dx, m.dy) * s.scale;
    for (const MeshNode& n : m.nodes) d.circle(s.map(n.at), radius, colours::black, n.boundary);
    return d;
}

}  // namespace morve
