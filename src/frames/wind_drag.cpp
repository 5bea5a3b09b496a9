#include "frames/wind_drag.h"

#include <algorithm>
#include <cmath>

#include "numeric/elementary.h"

namespace morve {

namespace {

// b, p by category (rows I to V) and class (columns A, B, C); Fr by class.
constexpr double kB[5][3] = {{1.10, 1.11, 1.12}, {1.00, 1.00, 1.00}, {0.94, 0.94, 0.93},
                             {0.86, 0.85, 0.84}, {0.74, 0.73, 0.71}};
constexpr double kP[5][3] = {{0.06, 0.065, 0.07}, {0.085, 0.09, 0.10}, {0.10, 0.105, 0.115},
                             {0.12, 0.125, 0.135}, {0.15, 0.16, 0.175}};
constexpr double kFr[3] = {1.00, 0.98, 0.95};

// A chart as one polynomial surface in the logarithms of its two ratios, each
// scaled to [-1, 1] over the range the chart accepts:
//   u = ln(l1/l2) / ln 4,  v = 2 ln(h/l1 / 0.5) / ln(top / 0.5) - 1,
//   Ca = sum of k[i][j] u^i v^j.
// The coefficients reproduce every reading of data/wind/nbr6123_drag_readings.txt
// within 0.022 (low turbulence) and 0.012 (high); data/wind/fit_drag.py makes them.
struct DragChart {
    double k[7][5];
    double topHeight;  // the largest h/l1 the chart covers
};

constexpr DragChart kLow{{{1.382464793, 0.4241324882, 0.1755046661, 0.06953450715, -0.06398237666},
                          {0.4174286153, 0.1422819632, 0.5419011896, 0.0758220757, -0.3437531083},
                          {-0.5571973133, 0.1962470449, 0.2741826695, -0.4997714074, -0.238803789},
                          {0.1633822013, 0.1163228251, -1.221865317, -0.3006159761, 0.7745414915},
                          {0.5580461794, -0.8619472389, -0.6269805985, 1.078222356, 0.5348606056},
                          {-0.1986508856, -0.1328445274, 0.7532765792, 0.2110409879, -0.436078048},
                          {-0.2307548246, 0.5163982404, 0.2909113435, -0.6044020463, -0.2681115521}},
                         40};
constexpr DragChart kHigh{{{0.9575465206, 0.07984798188, -0.02355249498, 0.03831367972, 0.03000069448},
                           {0.2401315487, -0.06965651884, -0.0150723069, 0.09099668364, 0.03402593542},
                           {-0.2423034571, 0.02779241141, 0.7784811561, -0.006934218657, -0.5466230649},
                           {0.1063845792, 0.4511697147, 0.1300013244, -0.3673491433, -0.1653316276},
                           {0.7406031704, 0.09453750209, -1.933891167, -0.1339661472, 1.415273947},
                           {-0.01534769872, -0.3397588678, -0.1149730734, 0.3133340045, 0.1448732246},
                           {-0.4023843125, -0.100463778, 1.159916468, 0.1453498582, -0.8878547576}},
                          6};

DragReading readChart(const DragChart& chart, double l1OverL2, double hOverL1) {
    // Both ends of each range are readings of the chart. A ratio of typed decimals
    // that should fall on an end (4.4 / 1.1) may miss it in the last bit: such a
    // ratio is taken as the end itself.
    const auto within = [](double& ratio, double low, double high) {
        constexpr double kSlack = 1e-12;
        if (!(ratio >= low * (1 - kSlack) && ratio <= high * (1 + kSlack))) return false;
        ratio = std::clamp(ratio, low, high);
        return true;
    };
    if (!within(l1OverL2, 0.25, 4)) return {DragStatus::FacesOutside, 0};
    if (!within(hOverL1, 0.5, chart.topHeight)) return {DragStatus::HeightOutside, 0};
    const double u = portable::log(l1OverL2) / portable::log(4.0);
    const double v = 2 * portable::log(hOverL1 / 0.5) / portable::log(chart.topHeight / 0.5) - 1;
    double ca = 0;
    for (int i = 6; i >= 0; --i) {
        double row = 0;
        for (int j = 4; j >= 0; --j) row = row * v + chart.k[i][j];
        ca = ca * u + row;
    }
    return {DragStatus::Read, ca};
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
    return 0.613 * v10 * v10 * portable::pow(z / 10, 2 * r.p);
}

DragReading DragLowTurbulence(double l1OverL2, double hOverL1) { return readChart(kLow, l1OverL2, hOverL1); }
DragReading DragHighTurbulence(double l1OverL2, double hOverL1) { return readChart(kHigh, l1OverL2, hOverL1); }

}  // namespace morve
