#pragma once
// A vector drawing in the module's own units (cm for a section), with y growing
// downwards as on a screen. One renderer per surface draws it: window, report
// page, PDF, picture file. Sizes of text and line widths are in pixels of the
// surface, so labels stay legible at any scale.
#include <cstdint>
#include <string>
#include <variant>
#include <vector>

namespace morve {

struct Point {
    double x = 0, y = 0;
};

struct Colour {
    std::uint8_t r = 0, g = 0, b = 0;
    bool operator==(const Colour&) const = default;
};

namespace colours {
inline constexpr Colour black{0, 0, 0};
inline constexpr Colour red{200, 0, 0};
inline constexpr Colour blue{0, 0, 200};
inline constexpr Colour green{0, 128, 0};
inline constexpr Colour grey{128, 128, 128};
inline constexpr Colour lightGrey{220, 220, 220};
}  // namespace colours

enum class TextAlign { Left, Centre, Right };

struct Line { Point from, to; };
struct Polyline { std::vector<Point> points; bool closed = false; bool filled = false; };
struct Circle { Point centre; double radius = 0; bool filled = false; };
// A text whose point is its left end, centre or right end by the alignment, at the
// middle of its height.
struct Label { Point at; std::string text; double size = 9; TextAlign align = TextAlign::Left; };

// The real length a drawing's coordinates measure, for CAD files: none for a
// sketch without a scale.
enum class DrawingUnit { None, Centimetre, Metre };

// What a shape stands for, so that a CAD program gets it on a layer of its kind.
enum class ShapeKind { Outline, Bars, Dimensions, Texts, Loads, Diagrams };

struct Shape {
    std::variant<Line, Polyline, Circle, Label> geometry;
    Colour colour = colours::black;
    double width = 1;  // pixels
    ShapeKind kind = ShapeKind::Outline;
};

struct Drawing {
    // The region of the module's units that the surface shows.
    double left = 0, top = 0, right = 1, bottom = 1;
    // Show only what is drawn, labels included, as large as the surface allows,
    // rather than the whole region: for a sketch whose proportions vary with the
    // case (a tall narrow section in a wide frame).
    bool fitContent = false;
    std::vector<Shape> shapes;
    // One coordinate is `perCoordinate` of `unit`: a section drawn at a scale of its
    // own knows how many centimetres one of its coordinates is.
    DrawingUnit unit = DrawingUnit::None;
    double perCoordinate = 1;

    // The kind of the shapes drawn from now on; texts outside a dimension are Texts
    // whatever the kind.
    ShapeKind kind = ShapeKind::Outline;

    bool empty() const { return shapes.empty(); }
    Drawing& as(ShapeKind k) {
        kind = k;
        return *this;
    }
    Drawing& line(Point a, Point b, Colour c = colours::black, double width = 1);
    Drawing& polyline(std::vector<Point> points, bool closed, Colour c = colours::black,
                      double width = 1, bool filled = false);
    Drawing& rectangle(Point topLeft, Point bottomRight, Colour c = colours::black,
                       double width = 1, bool filled = false);
    Drawing& circle(Point centre, double radius, Colour c = colours::black, bool filled = false,
                    double width = 1);
    Drawing& text(Point at, std::string text, double size = 9, TextAlign align = TextAlign::Left,
                  Colour c = colours::black);
    // A dimension line from a to b with ticks at the ends and its label beside it.
    Drawing& dimension(Point a, Point b, std::string label, double offsetX, double offsetY,
                       Colour c = colours::black);
};

}  // namespace morve
