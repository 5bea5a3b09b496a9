// "CALCULAR" of the flat slab with 40 columns, the series sampled over the floor,
// and the surface drawing that Form40d shows from it.
#include <benchmark/benchmark.h>

#include "app/module.h"
#include "slabs/flat_slab.h"

using namespace morve;

namespace {

// A 12 by 15 m floor with 40 columns in a 5 by 8 grid, sections of three sizes.
ModuleSession fortyColumns() {
    ModuleSession session(*ModuleRegistry::find("Form40"), StartDefaults{});
    FormState& s = session.state();
    ScriptedPrompter prompter;
    for (auto [box, text] : {std::pair{"Text4", "22"}, {"Text5", "12"}, {"Text6", "15"}, {"Text7", "40"},
                             {"Text8", "6"}, {"Text9", "3"}})
        s.setText(box, text);
    session.press("Command1", prompter);
    const char* sizes[] = {"30", "40", "50"};
    for (int k = 1; k <= 40; ++k) {
        const int i = (k - 1) % 5, j = (k - 1) / 5;
        s.grid("Form40b.Grade1")[k] = {std::to_string(k), std::to_string(2 + 2 * i), std::to_string(1.5 + 1.5 * j)};
        s.grid("Form40b.Grade2")[k] = {std::to_string(k), sizes[k % 3], sizes[(k + 1) % 3]};
    }
    session.press("Form40b.Command1", prompter);
    return session;
}

void Form40Calculation(benchmark::State& state) {
    ModuleSession session = fortyColumns();
    for (auto _ : state) {
        ScriptedPrompter prompter;
        const Outcome o = session.press("Command3", prompter);
        if (!o.completed) state.SkipWithError("the case stopped");
        benchmark::DoNotOptimize(o);
    }
}
BENCHMARK(Form40Calculation)->Unit(benchmark::kMillisecond);

void Form40SurfaceDrawing(benchmark::State& state) {
    ModuleSession session = fortyColumns();
    ScriptedPrompter prompter;
    session.press("Command3", prompter);
    for (auto _ : state) {
        Drawing d = session.module().drawing("Form40d.Picture1", session.state());
        benchmark::DoNotOptimize(d);
    }
}
BENCHMARK(Form40SurfaceDrawing)->Unit(benchmark::kMillisecond);

}  // namespace
