#include "beams/detailing_bars.h"

#include <algorithm>
#include <cmath>
#include <sstream>

#include "basis/materials.h"

namespace morve {

namespace {

constexpr int kMaxLayers = 10;

// Centres across a layer. The first layer spreads its bars evenly between the two
// outer positions. A layer after it leaves the vibrator's gap in the middle: half
// the bars stand against each side at the clear spacing e. The layer of the rest
// may have an odd count: its extra bar goes to the left half, so a single bar
// stands against the left side and the gap stays free.
std::vector<double> layerCentres(int n, bool firstLayer, double left, double right, double pitch) {
    std::vector<double> xs;
    if (n <= 0) return xs;
    if (firstLayer) {
        if (n == 1) return {(left + right) / 2};
        for (int i = 0; i < n; ++i) xs.push_back(left + i * (right - left) / (n - 1));
        return xs;
    }
    const int onLeft = (n + 1) / 2;
    for (int i = 0; i < onLeft; ++i) xs.push_back(left + i * pitch);
    for (int i = 0; i < n - onLeft; ++i) xs.push_back(right - i * pitch);
    return xs;
}

FaceBars placeFace(const SectionBars& sec, double phiMm, const std::vector<int>& counts, bool top,
                   double aggregateMm) {
    FaceBars f;
    f.phi = phiMm / 10;
    f.counts = counts;
    const double t = (phiMm * 0.5 + sec.stirrup) / 10 + sec.cover;  // edge to bar centre
    const double ev = clearSpacing(aggregateMm, 0.5, f.phi);
    const double e = clearSpacing(aggregateMm, 1.2, f.phi);
    const double left = sec.webLeft + t, right = sec.webLeft + sec.b - t;
    for (std::size_t k = 0; k < counts.size(); ++k) {
        const double offset = t + static_cast<double>(k) * (f.phi + ev);
        f.depths.push_back(top ? offset : sec.h - offset);
        f.xs.push_back(layerCentres(counts[k], k == 0, left, right, f.phi + e));
    }
    return f;
}

}  // namespace

bool tensionOnTop(const DetailingSetup& s, const FormState& state) {
    return s.signedMoment && state.number(s.moment) <= 0;
}

double clearSpacing(double aggregateMm, double factor, double phi) {
    return std::max({aggregateMm * factor / 10, 2.0, phi});
}

std::string joinCounts(const std::vector<int>& counts) {
    std::string out;
    for (int n : counts) {
        if (!out.empty()) out += ' ';
        out += std::to_string(n);
    }
    return out;
}

std::vector<int> splitCounts(const std::string& text) {
    std::vector<int> out;
    std::istringstream in(text);
    for (int n; in >> n;) out.push_back(n);
    return out;
}

std::string layersVar(const DetailingSetup& s, bool top) {
    return s.results + (top ? ".layers.top" : ".layers.bottom");
}

SectionBars sectionBars(const DetailingSetup& s, const FormState& state) {
    SectionBars sec;
    sec.b = state.number(s.width);
    sec.h = state.number(s.height);
    if (!s.flangeWidth.empty()) {
        sec.bf = state.number(s.flangeWidth);
        sec.hf = state.number(s.flangeThickness);
        sec.webLeft = std::max(0.0, (sec.bf - sec.b) / 2);
    }
    sec.cover = state.number(detailingBox(s, "List4"));
    sec.stirrup = state.number(detailingBox(s, "List3"));
    const double aggregate = state.number(detailingBox(s, "List5"));
    sec.top = placeFace(sec, state.number(detailingBox(s, "Text8")), splitCounts(state.var(layersVar(s, true))),
                        true, aggregate);
    sec.bottom = placeFace(sec, state.number(detailingBox(s, "Text5")),
                           splitCounts(state.var(layersVar(s, false))), false, aggregate);
    return sec;
}

double meanDepth(const FaceBars& f) {
    double n = 0, sum = 0;
    for (std::size_t k = 0; k < f.counts.size(); ++k) {
        n += f.counts[k];
        sum += f.counts[k] * f.depths[k];
    }
    return n > 0 ? sum / n : 0;
}

int barCount(double area, double diameterMm) {
    const double ratio = area / BarCatalogue::barArea(diameterMm);
    if (!std::isfinite(ratio) || ratio <= 2) return 2;
    // A ratio that the box's two decimals leave a hair above a whole number is that number.
    const double whole = std::round(ratio);
    if (std::fabs(ratio - whole) < 1e-9) return static_cast<int>(whole);
    return static_cast<int>(std::ceil(ratio));
}

LayerFit fitLayers(int n, double width, double phi, double e, double vibrator) {
    LayerFit fit;
    const int n1 = static_cast<int>(std::floor((e + width) / (phi + e)));
    if (n <= n1) {
        fit.counts = {n};
        return fit;
    }
    int n2 = static_cast<int>(std::floor((2 * e + width - vibrator) / (phi + e)));
    if (n2 % 2 != 0) n2 -= 1;  // the gap stays in the middle
    if (n2 <= 0 || n1 <= 0) {
        fit.stop = LayerStop::NoSecondLayer;
        return fit;
    }
    const int layers = 1 + (n - n1 + n2 - 1) / n2;
    if (layers > kMaxLayers) {
        fit.stop = LayerStop::TooManyLayers;
        return fit;
    }
    fit.counts.push_back(n1);
    for (int rest = n - n1; rest > 0; rest -= n2) fit.counts.push_back(std::min(rest, n2));
    return fit;
}

Drawing detailingDrawing(const DetailingSetup& s, const FormState& state) {
    const SectionBars sec = sectionBars(s, state);
    if (sec.top.counts.empty() || sec.bottom.counts.empty() || sec.b <= 0 || sec.h <= 0) return {};
    // The section fits a box of 4200 by 2300 units centred at (2600, 1377), scaled
    // on its width or its height, whichever is tighter. A T is scaled on its flange.
    const double overall = sec.bf > sec.b ? sec.bf : sec.b;
    const double scale = std::min(4200 / overall, 2300 / sec.h);
    const double x0 = 2600 - overall * scale / 2, y0 = 1377 - sec.h * scale / 2;
    auto at = [&](double x, double y) { return Point{x0 + x * scale, y0 + y * scale}; };

    Drawing g;
    g.left = 0;
    g.top = 0;
    g.right = 5600;
    g.bottom = 3000;
    g.fitContent = true;
    g.unit = DrawingUnit::Centimetre;
    g.perCoordinate = 1 / scale;
    const double right = overall, webL = sec.webLeft, webR = sec.webLeft + sec.b;
    if (sec.bf > sec.b) {
        // The whole T: flange on top, web centred under it. The bars of the top face
        // stay inside the web's stirrup, as the widths were checked on the web.
        g.polyline({at(0, 0), at(sec.bf, 0), at(sec.bf, sec.hf), at(webR, sec.hf), at(webR, sec.h),
                    at(webL, sec.h), at(webL, sec.hf), at(0, sec.hf)},
                   true, colours::black, 2);
    } else {
        g.rectangle(at(0, 0), at(sec.b, sec.h), colours::black, 2);
    }
    const double inset = sec.cover + sec.stirrup / 20;
    g.as(ShapeKind::Bars).rectangle(at(webL + inset, inset), at(webR - inset, sec.h - inset), colours::grey, 1);
    for (const FaceBars* face : {&sec.top, &sec.bottom}) {
        const Colour colour = face == &sec.top ? colours::blue : colours::red;
        for (std::size_t k = 0; k < face->counts.size(); ++k)
            for (double x : face->xs[k])
                g.circle(at(x, face->depths[k]), face->phi / 2 * scale, colour, true);
    }
    g.as(ShapeKind::Outline);
    // Dimension lines at 260 units from the section with their labels at 312: h
    // beside the right edge, the width of the bars' part under it, the flange over it.
    const double xr = x0 + right * scale, yb = y0 + sec.h * scale;
    g.dimension({xr + 260, y0}, {xr + 260, yb}, "", 0, 0);
    g.text({xr + 312, (y0 + yb) / 2}, "h = " + state.text(s.height) + " cm", 9, TextAlign::Left);
    const std::string webName = sec.bf > sec.b ? "bw = " : "b = ";
    g.dimension({x0 + webL * scale, yb + 260}, {x0 + webR * scale, yb + 260},
                webName + state.text(s.width) + " cm", 0, 140);
    if (sec.bf > sec.b)
        g.dimension({x0, y0 - 260}, {xr, y0 - 260}, "bf = " + state.text(s.flangeWidth) + " cm", 0, -140);
    return g;
}

}  // namespace morve
