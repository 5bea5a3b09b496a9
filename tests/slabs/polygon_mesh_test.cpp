// The mesh generator of the polygonal slab: counts of nodes and bars worked out by
// hand on the grid, the restarts and limits at their edges.
#include <gtest/gtest.h>

#include <cmath>

#include "slabs/polygon_mesh.h"

namespace morve {
namespace {

SlabPolygon polygon(std::vector<Point> v) {
    SlabPolygon p;
    p.sides.assign(v.size(), SideSupport::Simple);
    p.vertices = std::move(v);
    return p;
}

SlabPolygon rectangle(double a, double b) { return polygon({{0, 0}, {a, 0}, {a, b}, {0, b}}); }

int boundaryNodes(const GrillageMesh& m) {
    int n = 0;
    for (const MeshNode& node : m.nodes) n += node.boundary;
    return n;
}

TEST(PolygonMesh, SquareOnTheCoarsestMeshHasNoCornerNodes) {
    const MeshResult r = generateMesh(rectangle(4, 4), 4);
    ASSERT_EQ(r.status, MeshStatus::Ok);
    const GrillageMesh& m = r.mesh;
    EXPECT_EQ(m.nx, 4);
    EXPECT_EQ(m.ny, 4);
    // Four rows and four columns through the cell centres: two ends each on the
    // outline, 16 crossings inside; a row of 4 + 2 nodes has 5 bars.
    EXPECT_EQ(m.nodes.size(), 32u);
    EXPECT_EQ(boundaryNodes(m), 16);
    EXPECT_EQ(m.xBars, 20);
    EXPECT_EQ(m.bars.size(), 40u);
    for (const MeshNode& n : m.nodes) {
        const bool corner = (n.at.x == 0 || n.at.x == 4) && (n.at.y == 0 || n.at.y == 4);
        EXPECT_FALSE(corner) << n.at.x << " " << n.at.y;
    }
    // Numbered row by row: the four column ends on y = 0 come first, then the row
    // y = 0.5 from left to right.
    for (int i = 0; i < 4; ++i) EXPECT_DOUBLE_EQ(m.nodes[i].at.y, 0);
    EXPECT_DOUBLE_EQ(m.nodes[4].at.x, 0);
    EXPECT_DOUBLE_EQ(m.nodes[5].at.x, 0.5);
    // Each side holds the four grid lines that end on it.
    for (const auto& side : m.sideNodes) EXPECT_EQ(side.size(), 4u);
}

TEST(PolygonMesh, DivisionsAcrossTheShorterSize) {
    struct Case {
        double a, b;
        int n, nx, ny;
    };
    const Case cases[] = {
        {4, 3, 6, 6, 4},   // 3/4 * 6 = 4.5 rounds to the even 4
        {5, 3, 6, 6, 4},   // 3.6 rounds to 4
        {1, 2, 4, 3, 4},   // 2 is raised to the least of 3
        // A slender slab has three divisions across, and then bars of half a narrow
        // cell, less than a quarter of a wide one: three more divisions both ways.
        {1, 10, 5, 6, 8},
        {10, 1, 4, 7, 6},
    };
    for (const Case& c : cases) {
        const MeshResult r = generateMesh(rectangle(c.a, c.b), c.n);
        ASSERT_EQ(r.status, MeshStatus::Ok) << c.a << "x" << c.b;
        EXPECT_EQ(r.mesh.nx, c.nx) << c.a << "x" << c.b;
        EXPECT_EQ(r.mesh.ny, c.ny) << c.a << "x" << c.b;
        // Every grid line crosses a rectangle once: 2 (nx + ny) ends, nx ny crossings.
        EXPECT_EQ(static_cast<int>(r.mesh.nodes.size()), 2 * (c.nx + c.ny) + c.nx * c.ny);
    }
}

TEST(PolygonMesh, GridLineThroughAVertexAddsADivision) {
    // The vertex (4, 1.5) splits the right side and lies on the second row of 4
    // divisions: the generator starts again with 5 both ways, rows at 0.4 ... 3.6.
    const MeshResult r = generateMesh(polygon({{0, 0}, {4, 0}, {4, 1.5}, {4, 4}, {0, 4}}), 4);
    ASSERT_EQ(r.status, MeshStatus::Ok);
    EXPECT_EQ(r.mesh.nx, 5);
    EXPECT_EQ(r.mesh.ny, 5);
    // Rows 0.4 and 1.2 end on the lower part of the split side, the other three on
    // the upper part.
    EXPECT_EQ(r.mesh.sideNodes[1].size(), 2u);
    EXPECT_EQ(r.mesh.sideNodes[2].size(), 3u);
    EXPECT_EQ(r.mesh.sideNodes[0].size(), 5u);
}

TEST(PolygonMesh, SliverShorterThanACellLeavesNoNode) {
    // Row y = 3.5 of the triangle is 0.5 long, half a cell: it goes with its ends,
    // and the columns end on the sloping sides at y = 2 x.
    const MeshResult r = generateMesh(polygon({{0, 0}, {4, 0}, {2, 4}}), 4);
    ASSERT_EQ(r.status, MeshStatus::Ok);
    ASSERT_EQ(r.mesh.nx, 4);
    double top = 0;
    for (const MeshNode& n : r.mesh.nodes) top = std::max(top, n.at.y);
    EXPECT_DOUBLE_EQ(top, 3);
}

TEST(PolygonMesh, PrecisionStopPast23Divisions) {
    // A slender slab stays within the counts, so it meets this stop first.
    EXPECT_EQ(generateMesh(rectangle(1, 10), 23).status, MeshStatus::Ok);
    EXPECT_EQ(generateMesh(rectangle(1, 10), 24).status, MeshStatus::Unstable);
}

}  // namespace
}  // namespace morve
