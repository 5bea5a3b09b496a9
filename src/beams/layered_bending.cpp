#include "beams/layered_bending.h"

#include <cmath>
#include <utility>

#include "basis/false_position.h"
#include "basis/materials.h"

namespace morve {

void sortDeepestFirst(SteelLayers& layers) {
    const std::size_t n = layers.depths.size();
    for (std::size_t pass = 0; pass + 1 < n; ++pass)
        for (std::size_t i = 0; i + 1 < n - pass; ++i)
            if (layers.depths[i] < layers.depths[i + 1]) {
                std::swap(layers.depths[i], layers.depths[i + 1]);
                std::swap(layers.areas[i], layers.areas[i + 1]);
            }
}

namespace {

// The state of the section at a trial depth x of the neutral axis.
struct Balance {
    const LayeredSection& sec;
    const SteelLayers& layers;
    StressBlockValues block;
    double sigmacd, fyd, es, d1;
    std::vector<double> stress;
    double rcc = 0;

    Balance(const LayeredSection& s, const SteelLayers& l)
        : sec(s), layers(l), block(StressBlock(s.fck)), stress(l.areas.size()) {
        sigmacd = block.alphac * (s.fck / 10) / s.gamac;
        fyd = (s.fyk / 10) / s.gamas;
        es = s.es * 100;
        d1 = l.depths.front();
    }

    bool blockInWeb(double x) const { return sec.tee && sec.flangeThickness / block.lambda < x; }

    // The resultant of concrete and steel over b d1 sigmacd, compression positive.
    double operator()(double x) {
        const double y = block.lambda * x;
        rcc = blockInWeb(x) ? (sec.width * sec.flangeThickness + (y - sec.flangeThickness) * sec.webWidth) * sigmacd
                            : sec.width * y * sigmacd;
        // Domain 2 turns about the steel of layer 1 at 10 per mille, domains 3 and 4
        // about the concrete at its ultimate strain.
        const double x23 = d1 * block.ecu / (block.ecu + 10);
        const double k = x > x23 ? block.ecu / (1000 * x) : 0.01 / (d1 - x);
        double sum = rcc;
        for (std::size_t i = 0; i < stress.size(); ++i) {
            stress[i] = BilinearStress(es, (x - layers.depths[i]) * k, fyd);
            sum += layers.areas[i] * stress[i];
        }
        return sum / (sec.width * d1 * sigmacd);
    }

    // Moment about layer 1 of the state last evaluated, in kNm.
    double moment(double x) const {
        const double y = block.lambda * x;
        const double hf = sec.flangeThickness;
        double mu = blockInWeb(x)
                        ? sigmacd * ((d1 - hf / 2) * sec.width * hf + (d1 - (y + hf) / 2) * (y - hf) * sec.webWidth)
                        : (d1 - 0.5 * y) * rcc;
        for (std::size_t i = 0; i < stress.size(); ++i)
            mu += layers.areas[i] * stress[i] * (d1 - layers.depths[i]);
        return mu / 100;
    }
};

}  // namespace

UltimateMoment layeredUltimateMoment(const LayeredSection& section, const SteelLayers& layers) {
    UltimateMoment out;
    Balance f(section, layers);
    double x1 = 0, x2 = f.d1;
    double f1 = f(x1), f2 = f(x2);
    if (!(f1 * f2 <= 0)) {
        out.status = NeutralAxisStatus::NotBracketed;
        return out;
    }
    const Root root = falsePosition(f, x1, f1, x2, f2, {.tolerance = 0.0001, .zeroMovesUpper = true});
    out.rounds = root.rounds;
    if (!root.converged()) {
        out.status = NeutralAxisStatus::NotConverged;
        return out;
    }
    out.x = root.x;
    out.moment = f.moment(root.x);
    return out;
}

}  // namespace morve
