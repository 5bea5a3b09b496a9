#pragma once
// An XY chart (the interaction diagram of a column section, say): the desktop shows
// it with its chart widget, a report or file with the drawing renderer.
#include <string>
#include <vector>

#include "draw/drawing.h"

namespace morve {

struct ChartSeries {
    std::string name;
    std::vector<Point> points;  // x to the right, y upwards
    bool scatter = true;        // points only; false joins them with a line
    Colour colour = colours::blue;
    double markerSize = 6;      // pixels
};

struct Chart {
    std::string title, xTitle, yTitle;
    double xMin = 0, xMax = 1, yMin = 0, yMax = 1;
    std::vector<ChartSeries> series;

    bool empty() const { return series.empty(); }
};

}  // namespace morve
