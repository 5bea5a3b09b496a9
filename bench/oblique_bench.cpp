// The polygonal sections under oblique flexo-compression: a 40-vertex outline (a
// hollow-cornered octagon drawn with many points) with 30 bars, designed with the
// searches of the doubly symmetric module and of the arbitrary one, and the moment
// contour of 72 neutral-axis directions.
#include <benchmark/benchmark.h>

#include <cmath>
#include <numbers>

#include "columns/oblique_section.h"

namespace {

// A 40-gon close to an ellipse of 60 x 40 cm, with 30 bars on a ring 5 cm inside.
morve::ObliqueModel section() {
    std::vector<morve::Point> outline, bars;
    for (int k = 0; k < 40; ++k) {
        const double t = 2 * std::numbers::pi * k / 40;
        outline.push_back({30 * std::cos(t), 20 * std::sin(t)});
    }
    for (int k = 0; k < 30; ++k) {
        const double t = 2 * std::numbers::pi * k / 30;
        bars.push_back({25 * std::cos(t), 15 * std::sin(t)});
    }
    const double fcd = 3.0 / 1.4;
    const auto block = morve::StressBlockParameters(30);
    return morve::ObliqueModel(morve::centredSection(outline, bars, std::vector<double>(30, 1.0 / 30)),
                               {block, block.alphac * fcd, 50 / 1.15, 21000});
}

void SymmetricDesign(benchmark::State& state) {
    const morve::ObliqueModel model = section();
    for (auto _ : state) benchmark::DoNotOptimize(morve::designSteel(model, 2500, 30000, 18000, {}));
}
BENCHMARK(SymmetricDesign)->Unit(benchmark::kMillisecond);

void ArbitraryDesignAndVerification(benchmark::State& state) {
    const morve::ObliqueModel model = section();
    const morve::SearchLimits limits{100, 60, 1e-4, 100};
    for (auto _ : state) {
        auto design = morve::designSteel(model, 2500, 30000, -18000, limits);
        benchmark::DoNotOptimize(morve::safetyFactor(model, design.as, 2500, 30000, -18000, limits));
    }
}
BENCHMARK(ArbitraryDesignAndVerification)->Unit(benchmark::kMillisecond);

void MomentContour(benchmark::State& state) {
    const morve::ObliqueModel model = section();
    for (auto _ : state) benchmark::DoNotOptimize(morve::momentContour(model, 30, 2500, 72));
}
BENCHMARK(MomentContour)->Unit(benchmark::kMillisecond);

}  // namespace
