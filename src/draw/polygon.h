#pragma once
// Plane polygons given by their vertices in order, closed implicitly (the vertex
// after the last is the first): area and first moments by the trapezoid sums over
// the edges, the part on one side of a horizontal line, and the tests that an
// outline must pass before it can be integrated. Column sections and slab outlines
// share them. Counter-clockwise order (with y upwards) gives a positive area.
#include <vector>

#include "draw/drawing.h"

namespace morve {

struct PolygonMoments {
    double area = 0;
    double sx = 0;  // integral of y dA
    double sy = 0;  // integral of x dA
};

PolygonMoments polygonMoments(const std::vector<Point>& polygon);

// The part of the polygon with y >= cut, as a polygon of its own: the vertices kept
// in order, with a new vertex where an edge crosses the line. Empty when nothing
// lies above the line. A non-convex outline may give a polygon with edges along the
// line that touch; its area and moments are still exact.
std::vector<Point> clipAbove(const std::vector<Point>& polygon, double cut);

// Every point turned by the angle (radians) about the origin.
std::vector<Point> rotated(const std::vector<Point>& points, double angle);
Point rotated(Point p, double cosine, double sine);

// Whether two edges that are not neighbours meet: the outline crosses itself.
bool crossesItself(const std::vector<Point>& polygon);

// Whether the point lies inside the polygon or on its outline.
bool containsPoint(const std::vector<Point>& polygon, Point p);

}  // namespace morve
