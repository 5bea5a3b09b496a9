#pragma once
// Where the bars of a detailing stand: the layers of each face as "Ver seção" last
// fitted them, every bar's centre in the section, and the true depths they give.
// Shared by the commands of the detailing screens and by its drawing.
#include <string>
#include <vector>

#include "beams/detailing.h"

namespace morve {

// A control of the detailing screen, and of its results screen, by name.
inline std::string detailingBox(const DetailingSetup& s, const char* control) { return s.screen + "." + control; }
inline std::string resultBox(const DetailingSetup& s, const char* control) { return s.results + "." + control; }

// The face that takes the tension bars.
bool tensionOnTop(const DetailingSetup& s, const FormState& state);

// Clear spacing of bars of phi (cm), with aggregate in mm and a factor of 1.2
// across a layer, 0.5 between layers: at least 2 cm and one bar.
double clearSpacing(double aggregateMm, double factor, double phi);

// The bars of each layer, kept between presses as "3 2 2".
std::string joinCounts(const std::vector<int>& counts);
std::vector<int> splitCounts(const std::string& text);
std::string layersVar(const DetailingSetup& s, bool top);

// One face as placed: bar size, layers and every bar's centre, in cm from the top
// left corner of the section (the flange's corner for a T).
struct FaceBars {
    double phi = 0;
    std::vector<int> counts;
    std::vector<double> depths;
    std::vector<std::vector<double>> xs;
};

struct SectionBars {
    double b = 0, h = 0, bf = 0, hf = 0, webLeft = 0, cover = 0, stirrup = 0;
    FaceBars top, bottom;
};

// Both faces placed from the boxes and the layers kept by the last "Ver seção".
SectionBars sectionBars(const DetailingSetup& s, const FormState& state);
// The depth of a face's centroid, from the top.
double meanDepth(const FaceBars& f);

}  // namespace morve
