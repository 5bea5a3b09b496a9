// The heaviest slab calculation: a patch load on a simply supported slab, whose
// double series runs its full 61 by 61 terms, through the module as a press.
#include <benchmark/benchmark.h>

#include <map>
#include <string>

#include "app/module.h"

using namespace morve;

namespace {

void Form23PatchLoad(benchmark::State& state) {
    ModuleSession session(*ModuleRegistry::find("Form23"), StartDefaults{});
    FormState& s = session.state();
    for (const auto& [box, text] : std::map<std::string, std::string>{
             {"Text4", "4"}, {"Text5", "6"}, {"Text6", "12"}, {"Text12", "20"}, {"Text13", "1.7"},
             {"Text14", "2.2"}, {"Text15", "0.8"}, {"Text16", "0.6"}})
        s.setText(box, text);
    s.setOption("Option3", true);
    for (auto _ : state) {
        // Every press from the typed data, as the first one.
        state.PauseTiming();
        ModuleSession fresh = session;
        ScriptedPrompter prompter;
        state.ResumeTiming();
        Outcome o = fresh.press("Command1", prompter);
        if (!o.completed) {
            state.SkipWithError("the case stopped");
            break;
        }
        benchmark::DoNotOptimize(o);
    }
}
BENCHMARK(Form23PatchLoad)->Unit(benchmark::kMicrosecond);

}  // namespace
