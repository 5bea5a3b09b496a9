// Pictures of the plane frame: its bars and level forces, and the diagrams of one
// bar drawn from the end values of the result tables (loads act at the nodes only,
// so moments are linear along a bar and shear and normal force constant).
#include <algorithm>
#include <cmath>

#include "app/grid_tables.h"
#include "app/numbers.h"
#include "frames/form33.h"
#include "frames/frame_report.h"

namespace morve {

namespace {

// The storey heights and spans typed so far, when they agree with the counts and
// are all positive.
std::optional<FrameModel> outlineOf(const FormState& s, const std::string& heights, const std::string& spans) {
    const int p = countIn(s, "Text3"), v = countIn(s, "Text4");
    if (p < 2 || p > kFrameMaxColumns || v < 1 || v > kFrameMaxLevels) return std::nullopt;
    if (dataRows(s, heights) != v || dataRows(s, spans) != p - 1) return std::nullopt;
    FrameModel m;
    for (int i = 1; i <= v; ++i) m.heights.push_back(s.cellNumber(heights, i, 1));
    for (int j = 1; j < p; ++j) m.spans.push_back(s.cellNumber(spans, j, 1));
    for (double x : m.heights) if (!(x > 0 && x < 1e6)) return std::nullopt;
    for (double x : m.spans) if (!(x > 0 && x < 1e6)) return std::nullopt;
    return m;
}

// One bar's diagram along its length: values at the two ends joined by a line,
// shaded against the axis, with the end values written and the title above.
Drawing barDiagram(const std::string& title, const std::string& bar, double length, double start, double end) {
    Drawing d;
    d.unit = DrawingUnit::Metre;
    const double peak = std::max({std::abs(start), std::abs(end), 1e-12});
    const double scale = 0.3 * length / peak;
    // Positive values are drawn below the axis, on the face they put in tension.
    const Point a{0, 0}, b{length, 0}, pa{0, start * scale}, pb{length, end * scale};
    d.left = -0.15 * length;
    d.right = 1.15 * length;
    d.top = -0.55 * length;
    d.bottom = 0.5 * length;
    d.text({length / 2, -0.47 * length}, title, 10, TextAlign::Centre);
    d.text({length / 2, 0.44 * length}, bar, 9, TextAlign::Centre, colours::grey);
    d.as(ShapeKind::Diagrams).polyline({a, pa, pb, b}, true, Colour{200, 215, 245}, 1, true);
    d.polyline({a, pa, pb, b}, true, colours::blue, 1.5);
    d.as(ShapeKind::Outline).line(a, b, colours::black, 2);
    d.text({0, start * scale + (start >= 0 ? 0.06 : -0.06) * length}, formatResult(start, 2), 9, TextAlign::Left);
    d.text({length, end * scale + (end >= 0 ? 0.06 : -0.06) * length}, formatResult(end, 2), 9, TextAlign::Right);
    return d;
}

double cellOr(const FormState& s, const std::string& grid, int row, int column) {
    return row >= 1 && row <= dataRows(s, grid) ? s.cellNumber(grid, row, column) : 0;
}

}  // namespace

std::optional<FrameModel> frameOutline(const FormState& s, const FrameScreens& screens) {
    return outlineOf(s, screens.heights(), screens.spans());
}

Drawing framePicture(const FrameModel& m, const std::vector<double>& forces) {
    Drawing d;
    d.unit = DrawingUnit::Metre;
    const double width = m.position(m.lines()).x, height = m.levelHeight(m.levels());
    const double size = std::max(width, height), arrow = 0.08 * size;
    d.left = -0.2 * size;
    d.right = width + 0.1 * size;
    d.top = -height - 0.08 * size;
    d.bottom = 0.1 * size;
    auto at = [&](int node) {
        const Point p = m.position(node);
        return Point{p.x, -p.y};
    };
    // Only the geometry is known here, not the sections: beams and columns by their
    // nodes.
    for (int i = 1; i <= m.levels(); ++i)
        for (int j = 1; j <= m.lines(); ++j) {
            d.line(at(m.node(i - 1, j)), at(m.node(i, j)), colours::black, 2);
            if (j < m.lines()) d.line(at(m.node(i, j)), at(m.node(i, j + 1)), colours::black, 2);
        }
    for (int j = 1; j <= m.lines(); ++j) {
        const Point base = at(j);
        d.line({base.x - 0.03 * size, 0}, {base.x + 0.03 * size, 0}, colours::grey, 3);
    }
    d.as(ShapeKind::Loads);
    for (int i = 1; i <= m.levels(); ++i) {
        const double f = forces[static_cast<std::size_t>(i - 1)];
        if (f == 0) continue;
        const Point tip = at(m.node(i, 1)), tail{tip.x - arrow, tip.y};
        const double dir = f > 0 ? 1 : -1;
        const Point head = f > 0 ? tip : tail, back = f > 0 ? tail : tip;
        d.line(back, head, colours::red, 1.5);
        d.line(head, {head.x - dir * 0.3 * arrow, head.y - 0.15 * arrow}, colours::red, 1.5);
        d.line(head, {head.x - dir * 0.3 * arrow, head.y + 0.15 * arrow}, colours::red, 1.5);
        d.text({tail.x - 0.02 * size, tail.y}, formatResult(f, 2), 9, TextAlign::Right, colours::red);
    }
    return d;
}

Drawing beamDiagram(const FormState& s, int row, bool shear) {
    const std::string moments = "Form33e.Grade1", shears = "Form33e.Grade2";
    if (row < 1 || row > dataRows(s, moments)) return {};
    const std::optional<FrameModel> m = outlineOf(s, "Form33b.Grade1", "Form33c.Grade1");
    const int span = static_cast<int>(cellOr(s, moments, row, 1));
    if (!m || span < 1 || span > static_cast<int>(m->spans.size())) return {};
    const double l = m->spans[static_cast<std::size_t>(span - 1)];
    const std::string bar = "Nível " + reportCell(s, moments, row, 0) + " - Vão " + std::to_string(span);
    if (shear) {
        const double v = cellOr(s, shears, row, 2);
        return barDiagram("Esforços cortantes(kN)", bar, l, v, v);
    }
    return barDiagram("Momentos fletores (kNm)", bar, l, cellOr(s, moments, row, 2), cellOr(s, moments, row, 3));
}

Drawing columnDiagram(const FormState& s, int row, int which) {
    const std::string moments = "Form33e.Grade3", forces = "Form33e.Grade4";
    if (row < 1 || row > dataRows(s, moments)) return {};
    const std::optional<FrameModel> m = outlineOf(s, "Form33b.Grade1", "Form33c.Grade1");
    const int storey = static_cast<int>(cellOr(s, moments, row, 0));
    if (!m || storey < 1 || storey > m->levels()) return {};
    const double h = m->heights[static_cast<std::size_t>(storey - 1)];
    const std::string bar = "Andar " + std::to_string(storey) + " - Pilar " + reportCell(s, moments, row, 1) +
                            "  (base à esquerda, topo à direita)";
    // The column is laid along the page from its base (left) to its top (right).
    if (which == 0) return barDiagram("Momentos fletores (kNm)", bar, h, cellOr(s, moments, row, 2), cellOr(s, moments, row, 3));
    const double value = cellOr(s, forces, row, which == 1 ? 3 : 2);
    return barDiagram(which == 1 ? "Esforços cortantes(kN)" : "Esforços normais(kN)", bar, h, value, value);
}

}  // namespace morve
