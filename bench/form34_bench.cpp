// "CALCULAR" of the continuous beam on 20 bars with 40 load segments, and its
// report with the four pictures.
#include <benchmark/benchmark.h>

#include "bench/prepared_case.h"
#include "reports/report_dispatch.h"
#include "reports/report_writer.h"

using namespace morve;

namespace {

// Ten simple supports on the odd nodes (the most the reactions table holds), the
// last two bars as an overhang, two segments of load on every bar.
nlohmann::json twentyBars() {
    nlohmann::json bars = nlohmann::json::array(), supports = nlohmann::json::array(),
                   loads = nlohmann::json::array();
    for (int i = 1; i <= 20; ++i) bars.push_back({std::to_string(i), "3", "200000"});
    for (int k = 1; k <= 10; ++k) supports.push_back({std::to_string(2 * k - 1), "1", "0"});
    for (int k = 1; k <= 40; ++k)
        loads.push_back({std::to_string((k + 1) / 2), k % 2 ? "0" : "1.5", "1.5", k % 3 ? "12" : "20"});
    return {{"module", "Form34"},
            {"set", {{"Text3", "20"}, {"Text4", "10"}, {"Text5", "0"}, {"Text6", "0"}, {"Text7", "40"}}},
            {"grids", {{"Form34b.Grade1", bars}, {"Form34b.Grade2", supports}, {"Form34c.Grade3", loads}}},
            {"press", {"Command8", "Form34b.Command2", "Command4", "Form34c.Command2"}}};
}

void Form34Calculation(benchmark::State& state) { bench::timePress(state, twentyBars(), "Command3"); }
BENCHMARK(Form34Calculation)->Unit(benchmark::kMillisecond);

void Form34Report(benchmark::State& state) {
    auto session = bench::sessionFor(state, twentyBars(), "Command3");
    if (!session) return;
    for (auto _ : state) {
        ReportWriter w;
        generateReport("Form34", session->module(), session->state(), w);
        auto pages = paginate(w.document(), "Viga V1", PageRule::Paper);
        std::string text = renderText(pages, PageRule::Paper);
        benchmark::DoNotOptimize(text);
    }
}
BENCHMARK(Form34Report)->Unit(benchmark::kMillisecond);

}  // namespace
