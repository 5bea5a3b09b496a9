// The heavy paths of the column modules: one interaction diagram (99 searches of the
// neutral axis) and one design, both on a 40 x 60 section with 4 layers.
#include <benchmark/benchmark.h>

#include "columns/section_model.h"

namespace {

morve::SectionModel section() {
    return {morve::rectangularLayers({4, 2, 2, 4}, 0.08), morve::ConcreteOutline::rectangle(),
            morve::StressBlockParameters(30), 21000, 50 / 1.15};
}

void InteractionDiagram(benchmark::State& state) {
    const morve::SectionModel model = section();
    const double sigmacd = 0.85 * 3 / 1.4, area = 2400, omega = 0.6;
    for (auto _ : state) {
        auto curve = morve::interactionCurve(model, area, 60, sigmacd, omega, 0.002);
        benchmark::DoNotOptimize(curve);
    }
}
BENCHMARK(InteractionDiagram)->Unit(benchmark::kMillisecond);

void Design(benchmark::State& state) {
    const morve::SectionModel model = section();
    for (auto _ : state) {
        auto ratio = morve::designRatio(model, 0.55, 0.18);
        benchmark::DoNotOptimize(ratio);
    }
}
BENCHMARK(Design)->Unit(benchmark::kMicrosecond);

void CircularInteractionDiagram(benchmark::State& state) {
    const morve::SectionModel model{morve::ringLayers(16, 0.08), morve::ConcreteOutline::circle(60, 30),
                                    morve::StressBlockParameters(30), 21000, 50 / 1.15};
    for (auto _ : state) {
        auto curve = morve::interactionCurve(model, 2120, 60, 0.8 * 3 / 1.4, 0.6, 0.002);
        benchmark::DoNotOptimize(curve);
    }
}
BENCHMARK(CircularInteractionDiagram)->Unit(benchmark::kMillisecond);

}  // namespace
