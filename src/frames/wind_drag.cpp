#include "frames/wind_drag.h"

#include <array>
#include <cmath>

namespace morve {

namespace {

// b, p by category (rows I to V) and class (columns A, B, C); Fr by class.
constexpr double kB[5][3] = {{1.10, 1.11, 1.12}, {1.00, 1.00, 1.00}, {0.94, 0.94, 0.93},
                             {0.86, 0.85, 0.84}, {0.74, 0.73, 0.71}};
constexpr double kP[5][3] = {{0.06, 0.065, 0.07}, {0.085, 0.09, 0.10}, {0.10, 0.105, 0.115},
                             {0.12, 0.125, 0.135}, {0.15, 0.16, 0.175}};
constexpr double kFr[3] = {1.00, 0.98, 0.95};

// A chart as y + d(x) y^2 = a(x) + b(x) Ca + c(x) Ca^2 with x = ln(l1/l2),
// y = ln(h/l1) and a, b, c, d cubics in x, coefficients from x^0 up. The
// fits, their points and how they were made are in data/wind.
struct DragChart {
    std::array<double, 16> k;
    double topHeight;  // the largest h/l1 the chart covers
};

constexpr DragChart kLow{{-11.9202725, 5.842942976, -1.261749788, -0.419256766,
                          16.15230752, -12.17427877, 4.342454575, -0.01733999265,
                          -4.591006167, 5.01196672, -2.399549641, 0.2685239597,
                          -0.1184900325, 0.00227378598, 0.01867209567, -0.0208451555},
                         40};
constexpr DragChart kHigh{{-14.80226014, 8.203292421, -3.79155671, 0.1922223177,
                           22.0626578, -18.91965416, 9.779081983, -1.135486744,
                           -6.379255982, 8.769244575, -5.460316527, 0.9197188215,
                           0, 0, 0, 0},
                          6};

double cubic(const DragChart& chart, int part, double x) {
    const double* c = &chart.k[static_cast<std::size_t>(4 * part)];
    return c[0] + x * (c[1] + x * (c[2] + x * c[3]));
}

DragReading readChart(const DragChart& chart, double l1OverL2, double hOverL1) {
    if (!(l1OverL2 > 0.25 && l1OverL2 <= 4)) return {DragStatus::FacesOutside, 0};
    if (!(hOverL1 > 0.5 && hOverL1 <= chart.topHeight)) return {DragStatus::HeightOutside, 0};
    const double x = std::log(l1OverL2), y = std::log(hOverL1);
    const double rhs = y + cubic(chart, 3, x) * y * y - cubic(chart, 0, x);
    const double b = cubic(chart, 1, x), c = cubic(chart, 2, x);
    const double discriminant = b * b + 4 * c * rhs;
    if (discriminant < 0) return {DragStatus::HeightOutside, 0};
    // The root on the branch where Ca grows with the height, written so that it
    // stays exact as c goes to zero.
    const double root = 2 * rhs / (b + std::sqrt(discriminant));
    if (!std::isfinite(root) || root <= 0) return {DragStatus::HeightOutside, 0};
    return {DragStatus::Read, root};
}

int indexOf(const std::string& text, std::initializer_list<const char*> items) {
    int i = 0;
    for (const char* item : items) {
        if (text == item) return i;
        ++i;
    }
    return -1;
}

}  // namespace

std::optional<RoughnessParameters> roughnessParameters(const std::string& category, const std::string& buildingClass) {
    const int row = indexOf(category, {"I", "II", "III", "IV", "V"});
    const int column = indexOf(buildingClass, {"A", "B", "C"});
    if (row < 0 || column < 0) return std::nullopt;
    return RoughnessParameters{kB[row][column], kP[row][column], kFr[column]};
}

double windPressure(double vo, double s1, double s3, const RoughnessParameters& r, double z) {
    const double v10 = vo * s1 * s3 * r.b * r.fr;
    return 0.613 * v10 * v10 * std::pow(z / 10, 2 * r.p);
}

DragReading DragLowTurbulence(double l1OverL2, double hOverL1) { return readChart(kLow, l1OverL2, hOverL1); }
DragReading DragHighTurbulence(double l1OverL2, double hOverL1) { return readChart(kHigh, l1OverL2, hOverL1); }

}  // namespace morve
