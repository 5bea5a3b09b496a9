#include "stairs/axonometric.h"

#include <algorithm>
#include <cmath>

#include "numeric/elementary.h"

namespace morve {

Point isometric(const Vec3& p) {
    const double c = portable::cos(3.14159265358979323846 / 6), s = 0.5;
    // The drawing's y grows downward.
    return {(p[1] - p[0]) * c, -(p[2] + (p[0] + p[1]) * s)};
}

void SpacePicture::path(const std::vector<Vec3>& points, Colour colour, double width) {
    std::vector<Point> view;
    for (const Vec3& p : points) {
        view.push_back(isometric(p));
        extend(view.back());
    }
    drawing.polyline(std::move(view), false, colour, width);
}

void SpacePicture::text(const Vec3& at, std::string words, Colour colour) {
    drawing.text(isometric(at), std::move(words), 9, TextAlign::Left, colour);
}

void SpacePicture::axes(const Vec3& origin, double size) {
    const char* names[] = {"X", "Y", "Z"};
    for (int i = 0; i < 3; ++i) {
        Vec3 end = origin;
        end[static_cast<std::size_t>(i)] += size;
        path({origin, end}, colours::blue);
        text(end, names[i], colours::blue);
    }
}

void SpacePicture::support(const Vec3& at, double size) {
    const Point p = isometric(at);
    const double h = size / 2;
    drawing.line({p.x - size, p.y + h}, {p.x + size, p.y + h}, colours::black, 2);
    for (int k = 0; k < 5; ++k) {
        const double x = p.x - size + k * size / 2;
        drawing.line({x, p.y + h}, {x - h, p.y + 2 * h});
    }
    drawing.line(p, {p.x, p.y + h});
}

void SpacePicture::extend(const Point& p) {
    left_ = std::min(left_, p.x);
    right_ = std::max(right_, p.x);
    bottom_ = std::max(bottom_, p.y);
}

void SpacePicture::caption(std::string words, Colour colour) {
    if (left_ > right_) return;
    drawing.text({(left_ + right_) / 2, bottom_ + 0.06 * (right_ - left_)}, std::move(words), 9, TextAlign::Centre,
                 colour);
}

double displacementScale(const SpaceModel& m, const SpaceResults& r, double share) {
    double extent = 0, largest = 0;
    for (std::size_t i = 0; i < m.nodes.size(); ++i) {
        for (std::size_t j = 0; j < m.nodes.size(); j += std::max<std::size_t>(1, m.nodes.size() / 16)) {
            const Vec3 d = m.nodes[i].at - m.nodes[j].at;
            extent = std::max(extent, std::sqrt(dot(d, d)));
        }
        if (i < r.displacement.size()) largest = std::max(largest, std::sqrt(dot(r.displacement[i], r.displacement[i])));
    }
    return largest > 0 && std::isfinite(extent / largest) ? share * extent / largest : 0;
}

void deformedShape(SpacePicture& picture, const SpaceModel& m, const SpaceResults& r, double scale) {
    for (const SpaceBar& b : m.bars) {
        const auto from = static_cast<std::size_t>(b.from), to = static_cast<std::size_t>(b.to);
        picture.path({m.nodes[from].at, m.nodes[to].at}, colours::grey);
        if (!r.solved) continue;
        picture.drawing.as(ShapeKind::Diagrams);
        picture.path({m.nodes[from].at + scale * r.displacement[from], m.nodes[to].at + scale * r.displacement[to]},
                     colours::red, 2);
        picture.drawing.as(ShapeKind::Outline);
    }
}

}  // namespace morve
