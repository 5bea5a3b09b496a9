#pragma once
// Drawings and charts as data, for the page to draw as SVG to the same scale and
// with the same texts as the desktop's painter.
#include <nlohmann/json.hpp>

#include "draw/chart.h"
#include "draw/drawing.h"

namespace morve::web {

nlohmann::json drawingJson(const Drawing& drawing);
nlohmann::json chartJson(const Chart& chart);

}  // namespace morve::web
