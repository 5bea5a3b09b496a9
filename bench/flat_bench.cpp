// "CALCULAR" of the flat slab with 40 columns, the series sampled over the floor,
// and the surface drawing that Form40d shows from it.
#include <benchmark/benchmark.h>

#include "bench/prepared_case.h"

using namespace morve;

namespace {

// A 12 by 15 m floor with 40 columns in a 5 by 8 grid, sections of three sizes.
nlohmann::json fortyColumns() {
    nlohmann::json places = nlohmann::json::array(), sections = nlohmann::json::array();
    const char* sizes[] = {"30", "40", "50"};
    for (int k = 1; k <= 40; ++k) {
        const int i = (k - 1) % 5, j = (k - 1) / 5;
        places.push_back({std::to_string(k), std::to_string(2 + 2 * i), std::to_string(1.5 + 1.5 * j)});
        sections.push_back({std::to_string(k), sizes[k % 3], sizes[(k + 1) % 3]});
    }
    return {{"module", "Form40"},
            {"set", {{"Text1", "25"}, {"Text2", "28517"}, {"Text3", "2.5"}, {"Text4", "22"}, {"Text5", "12"},
                     {"Text6", "15"}, {"Text7", "40"}, {"Text8", "6"}, {"Text9", "3"}}},
            {"grids", {{"Form40b.Grade1", places}, {"Form40b.Grade2", sections}}},
            {"press", {"Command1", "Form40b.Command1"}}};
}

void Form40Calculation(benchmark::State& state) { bench::timePress(state, fortyColumns(), "Command3"); }
BENCHMARK(Form40Calculation)->Unit(benchmark::kMillisecond);

void Form40SurfaceDrawing(benchmark::State& state) {
    auto session = bench::sessionFor(state, fortyColumns(), "Command3");
    if (!session) return;
    for (auto _ : state) {
        Drawing d = session->module().drawing("Form40d.Picture1", session->state());
        benchmark::DoNotOptimize(d);
    }
}
BENCHMARK(Form40SurfaceDrawing)->Unit(benchmark::kMillisecond);

}  // namespace
