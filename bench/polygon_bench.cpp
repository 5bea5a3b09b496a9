// The polygonal slab on the finest mesh its limits allow (a square of 21
// divisions: 525 nodes, 924 bars): the generator alone, and "CALCULAR", which
// generates the mesh again and solves the grillage.
#include <benchmark/benchmark.h>

#include "app/module.h"
#include "slabs/polygon_mesh.h"

using namespace morve;

namespace {

void PolygonMeshFinest(benchmark::State& state) {
    SlabPolygon p{{{0, 0}, {6, 0}, {6, 6}, {0, 6}}, std::vector<SideSupport>(4, SideSupport::Simple)};
    for (auto _ : state) {
        MeshResult m = generateMesh(p, 21);
        if (m.status != MeshStatus::Ok) state.SkipWithError("the mesh was refused");
        benchmark::DoNotOptimize(m);
    }
}
BENCHMARK(PolygonMeshFinest)->Unit(benchmark::kMillisecond);

void PolygonCalculationFinest(benchmark::State& state) {
    ModuleSession session(*ModuleRegistry::find("Form24f"), StartDefaults{});
    FormState& s = session.state();
    ScriptedPrompter prompter;
    for (auto [box, text] : {std::pair{"Text4", "5"}, {"Text5", "2"}, {"Text7", "12"}, {"Text8", "1"}, {"Text6", "4"},
                             {"List1", "Grossa"}})
        s.setText(box, text);
    session.press("Command4", prompter);
    s.grid("Form24g.Grade1") = {{"Vértice", "X", "Y"}, {"1", "0", "0"}, {"2", "6", "0"}, {"3", "6", "6"}, {"4", "0", "6"}};
    s.grid("Form24g.Grade2") = {{"Lado", "Tipo"}, {"1", "0"}, {"2", "1"}, {"3", "0"}, {"4", "1"}};
    session.press("Form24g.Command2", prompter);
    session.press("Command7", prompter);
    s.setText("List1", "Refinar mais!");
    for (int n = 5; n <= 21; ++n) session.press("Command7", prompter);
    for (auto _ : state) {
        ScriptedPrompter quiet;
        Outcome o = session.press("Command1", quiet);
        if (!o.completed) {
            state.SkipWithError("the case stopped");
            break;
        }
        benchmark::DoNotOptimize(o);
    }
}
BENCHMARK(PolygonCalculationFinest)->Unit(benchmark::kMillisecond);

}  // namespace
