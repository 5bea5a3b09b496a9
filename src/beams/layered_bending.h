#pragma once
// The ultimate moment of a section whose steel is given in layers, rectangular or
// T, under simple bending: the neutral axis that balances the concrete block and
// the steel, found by false position, and the moment about the deepest layer.
#include <vector>

namespace morve {

struct SteelLayers {
    std::vector<double> areas;   // cm2
    std::vector<double> depths;  // cm from the compressed edge
};

// Layer 1 the deepest: a bubble sort by depth, areas moving with their depths.
void sortDeepestFirst(SteelLayers& layers);

struct LayeredSection {
    double width = 0;           // b, or bf of a T
    double flangeThickness = 0; // hf; 0 for a rectangle
    double webWidth = 0;        // bw of a T
    bool tee = false;
    double fck = 0, fyk = 0, es = 0;  // MPa, MPa, GPa
    double gamac = 1.4, gamas = 1.15;
};

enum class NeutralAxisStatus {
    Found,
    NotBracketed,  // the balance has one sign all over the depth of the deepest layer
    NotConverged,  // the search stalled (see falsePosition)
};

struct UltimateMoment {
    NeutralAxisStatus status = NeutralAxisStatus::Found;
    double x = 0;       // cm
    double moment = 0;  // kNm
    long rounds = 0;
};

// Layers sorted deepest first.
UltimateMoment layeredUltimateMoment(const LayeredSection& section, const SteelLayers& layers);

}  // namespace morve
