#pragma once
// The grillage mesh of a polygonal slab: a regular grid laid over the outline,
// rows and columns through the centres of its cells, nodes where the grid lines
// cross the outline and each other, bars along x and along y only.
#include <string>
#include <vector>

#include "draw/drawing.h"

namespace morve {

// How a side of the slab is held, as typed in the table of sides.
enum class SideSupport { Simple = 0, Fixed = 1, Free = 2 };

struct SlabPolygon {
    std::vector<Point> vertices;          // counter-clockwise, vertex 1 not repeated
    std::vector<SideSupport> sides;       // side i runs from vertex i to vertex i + 1
    int count() const { return static_cast<int>(vertices.size()); }
    Point vertex(int i) const { return vertices[static_cast<std::size_t>(i % count())]; }
};

// Limits of the generator; beyond them the mesh is refused as too fine.
namespace mesh_limits {
inline constexpr int kVertices = 29;
inline constexpr int kBoundaryPoints = 160;
inline constexpr int kNodes = 580;
inline constexpr int kBoundaryNodes = 120;
inline constexpr int kBars = 1000;
inline constexpr int kDivisions = 23;  // more divisions than this and the crossings lose precision
}  // namespace mesh_limits

struct MeshNode {
    Point at;
    bool boundary = false;
    int side = -1;    // 0-based side the node lies on, -1 inside
};

struct MeshBar {
    int from = 0, to = 0;  // 0-based node numbers, from < to
    bool alongX = true;
};

struct GrillageMesh {
    int nx = 0, ny = 0;
    double dx = 0, dy = 0;
    double xmin = 0, xmax = 0, ymin = 0, ymax = 0;
    std::vector<MeshNode> nodes;  // row after row, y then x ascending
    std::vector<MeshBar> bars;    // the bars along x first
    int xBars = 0;
    std::vector<std::vector<int>> sideNodes;  // per side, the nodes lying on it
};

enum class MeshStatus { Ok, NotCounterClockwise, RepeatedVertices, Unstable, TooFine };

struct MeshResult {
    MeshStatus status = MeshStatus::Ok;
    GrillageMesh mesh;
};

// Signed area of the outline: positive when the vertices run counter-clockwise.
double polygonArea(const std::vector<Point>& vertices);
double sideLength(const SlabPolygon& p, int side);

// The mesh of a polygon for a requested number of divisions across its longer
// size (4, 5, 6 for the three finenesses, more when refined).
MeshResult generateMesh(const SlabPolygon& polygon, int divisions);

// The drawing canvas of the outline and of every picture laid over it: the
// outline's larger size maps to 2560 units, centred on a canvas of 2947 by 2560.
struct OutlineScale {
    double scale = 1, offsetX = 0, offsetY = 0;
    double width = 2947, height = 2560;
    Point map(Point p) const { return {offsetX + p.x * scale, offsetY - p.y * scale}; }
};
OutlineScale outlineScale(const std::vector<Point>& vertices);
// The outline with its sides drawn by their support (thin solid, thick solid,
// dashed for a free one).
void drawOutline(Drawing& d, const SlabPolygon& p, const OutlineScale& s);
// The outline, the bars in blue and the nodes, boundary ones filled.
Drawing meshDrawing(const SlabPolygon& p, const GrillageMesh& m);

}  // namespace morve
