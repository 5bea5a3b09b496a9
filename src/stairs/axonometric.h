#pragma once
// Pictures of structures in space: an isometric view, Z up, X towards the viewer's
// left and Y to the right, as a student sketches a stair on paper.
#include <string>
#include <vector>

#include "draw/drawing.h"
#include "stairs/space_frame.h"

namespace morve {

Point isometric(const Vec3& p);

struct SpacePicture {
    // The isometric view keeps true lengths along the axes: the model's metres.
    SpacePicture() { drawing.unit = DrawingUnit::Metre; }
    Drawing drawing;
    // A line through the points, in the view.
    void path(const std::vector<Vec3>& points, Colour colour = colours::black, double width = 1);
    void text(const Vec3& at, std::string text, Colour colour = colours::black);
    // The global axes at `origin`, `size` long, named X, Y, Z.
    void axes(const Vec3& origin, double size);
    // A support: a short hatched mark below the point.
    void support(const Vec3& at, double size);
    // A line of text centred under everything drawn so far.
    void caption(std::string text, Colour colour = colours::black);

private:
    void extend(const Point& p);
    double left_ = 1e300, right_ = -1e300, bottom_ = -1e300;
};

// The bars' axes undeformed (grey) and displaced by `scale` times the computed
// displacements (red).
void deformedShape(SpacePicture& picture, const SpaceModel& model, const SpaceResults& results, double scale);

// The factor that makes the largest displacement `share` of the model's extent.
double displacementScale(const SpaceModel& model, const SpaceResults& results, double share);

}  // namespace morve
