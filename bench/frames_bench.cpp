// "CALCULAR" of the plane frame under wind: the largest frame the screens take
// (40 levels of 12 columns, every panel filled, P-delta on) and a usual 10-storey
// frame of 3 bays.
#include <benchmark/benchmark.h>

#include "app/module.h"

using namespace morve;

namespace {

ModuleSession preparedForm33(int p, int v, bool infill, const char* fk = "2") {
    ModuleSession session(*ModuleRegistry::find("Form33"), StartDefaults{});
    FormState& s = session.state();
    ScriptedPrompter prompter;
    s.setText("Text1", "25");
    s.setText("Text2", "25000");
    s.setText("Text3", std::to_string(p));
    s.setText("Text4", std::to_string(v));
    for (const char* b : {"Command8", "Command4", "Command10", "Command1"}) session.press(b, prompter);
    for (int i = 1; i <= v; ++i) {
        s.grid("Form33b.Grade1")[static_cast<std::size_t>(i)][1] = "3";
        s.grid("Form33c.Grade2")[static_cast<std::size_t>(i)] = {std::to_string(i), "1200", "126000"};
        s.grid("Form33d.Grade1")[static_cast<std::size_t>(i)][1] = "8";
        s.grid("Form33d.Grade2")[static_cast<std::size_t>(i)][1] = "600";
    }
    for (int j = 1; j <= p; ++j) s.grid("Form33b.Grade2")[static_cast<std::size_t>(j)] = {std::to_string(j), "2000", "600000"};
    for (int j = 1; j < p; ++j) s.grid("Form33c.Grade1")[static_cast<std::size_t>(j)][1] = "5";
    s.grid("Form33c.Grade3")[1][1] = "10";
    s.setOption("Form33d.Option1", true);
    if (infill) {
        s.setOption("Form33i.Option2", true);
        s.setOption("Form33i.Option4", true);
        s.setText("Form33i.Text1", "3000");
        s.setText("Form33i.Text2", fk);
        s.setText("Form33i.Text4", "14");
    }
    return session;
}

void calculate(benchmark::State& state, int p, int v, bool infill, const char* fk = "2") {
    ModuleSession session = preparedForm33(p, v, infill, fk);
    for (auto _ : state) {
        ScriptedPrompter prompter;
        const Outcome o = session.press("Command3", prompter);
        if (!o.completed) state.SkipWithError("CALCULAR stopped");
        benchmark::DoNotOptimize(o);
    }
}

void BM_Form33Largest(benchmark::State& state) { calculate(state, 12, 40, true); }
// Walls so weak that every panel loses its stiffness a twentieth at a time: the
// longest run of the infill loop.
void BM_Form33LargestWeakWalls(benchmark::State& state) { calculate(state, 12, 40, true, "0.05"); }
void BM_Form33TenStoreys(benchmark::State& state) { calculate(state, 4, 10, false); }

}  // namespace

BENCHMARK(BM_Form33Largest)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_Form33LargestWeakWalls)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_Form33TenStoreys)->Unit(benchmark::kMillisecond);
