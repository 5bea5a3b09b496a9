// "CALCULAR" of the plane frame under wind: the largest frame the screens take
// (40 levels of 12 columns, every panel filled, P-delta on) and a usual 10-storey
// frame of 3 bays.
#include <benchmark/benchmark.h>

#include "bench/prepared_case.h"

using namespace morve;

namespace {

nlohmann::json frameCase(int p, int v, bool infill, const char* fk) {
    using nlohmann::json;
    json heights = json::array(), columns = json::array(), spans = json::array(), beams = json::array(),
         loads = json::array(), masses = json::array();
    for (int i = 1; i <= v; ++i) {
        const std::string level = std::to_string(i);
        heights.push_back({level, "3"});
        beams.push_back({level, "1200", "126000"});
        loads.push_back({level, "8"});
        masses.push_back({level, "600"});
    }
    for (int j = 1; j <= p; ++j) columns.push_back({std::to_string(j), "2000", "600000"});
    for (int j = 1; j < p; ++j) spans.push_back({std::to_string(j), "5"});
    json set = {{"Text1", "25"}, {"Text2", "25000"}, {"Text3", std::to_string(p)}, {"Text4", std::to_string(v)},
                {"Form33d.Option1", "true"}};
    if (infill) {
        set["Form33i.Option2"] = "true";
        set["Form33i.Option4"] = "true";
        set["Form33i.Text1"] = "3000";
        set["Form33i.Text2"] = fk;
        set["Form33i.Text4"] = "14";
    }
    return {{"module", "Form33"},
            {"set", set},
            {"grids",
             {{"Form33b.Grade1", heights}, {"Form33b.Grade2", columns}, {"Form33c.Grade1", spans},
              {"Form33c.Grade2", beams}, {"Form33c.Grade3", json::array({json::array({"1", "10"})})},
              {"Form33d.Grade1", loads}, {"Form33d.Grade2", masses}}},
            {"press",
             {"Command8", "Form33b.Command1", "Command4", "Form33c.Command1", "Command10", "Form33d.Command1"}}};
}

void BM_Form33Largest(benchmark::State& state) {
    bench::timePress(state, frameCase(12, 40, true, "2"), "Command3");
}
// Walls so weak that every panel loses its stiffness a twentieth at a time: the
// longest run of the infill loop.
void BM_Form33LargestWeakWalls(benchmark::State& state) {
    bench::timePress(state, frameCase(12, 40, true, "0.05"), "Command3");
}
void BM_Form33TenStoreys(benchmark::State& state) {
    bench::timePress(state, frameCase(4, 10, false, "2"), "Command3");
}

}  // namespace

BENCHMARK(BM_Form33Largest)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_Form33LargestWeakWalls)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_Form33TenStoreys)->Unit(benchmark::kMillisecond);
