// "CALCULAR" of the continuous beam on 20 bars with 40 load segments, and its
// report with the four pictures.
#include <benchmark/benchmark.h>

#include "app/module.h"
#include "reports/report_dispatch.h"
#include "reports/report_writer.h"

using namespace morve;

namespace {

// Ten simple supports on the odd nodes (the most the reactions table holds), the
// last two bars as an overhang, two segments of load on every bar.
ModuleSession preparedForm34() {
    ModuleSession session(*ModuleRegistry::find("Form34"), StartDefaults{});
    FormState& s = session.state();
    ScriptedPrompter prompter;
    s.setText("Text3", "20");
    s.setText("Text4", "10");
    s.setText("Text7", "40");
    session.press("Command8", prompter);
    for (int i = 1; i <= 20; ++i) s.grid("Form34b.Grade1")[i] = {std::to_string(i), "3", "200000"};
    for (int k = 1; k <= 10; ++k) s.grid("Form34b.Grade2")[k] = {std::to_string(2 * k - 1), "1", "0"};
    session.press("Command4", prompter);
    for (int k = 1; k <= 40; ++k)
        s.grid("Form34c.Grade3")[k] = {std::to_string((k + 1) / 2), k % 2 ? "0" : "1.5", "1.5", k % 3 ? "12" : "20"};
    return session;
}

void Form34Calculation(benchmark::State& state) {
    ModuleSession session = preparedForm34();
    for (auto _ : state) {
        ScriptedPrompter prompter;
        Outcome o = session.press("Command3", prompter);
        if (!o.completed) state.SkipWithError("the case stopped");
        benchmark::DoNotOptimize(o);
    }
}
BENCHMARK(Form34Calculation)->Unit(benchmark::kMillisecond);

void Form34Report(benchmark::State& state) {
    ModuleSession session = preparedForm34();
    ScriptedPrompter prompter;
    session.press("Command3", prompter);
    for (auto _ : state) {
        ReportWriter w;
        generateReport("Form34", session.module(), session.state(), w);
        auto pages = paginate(w.document(), "Viga V1", PageRule::Paper);
        std::string text = renderText(pages, PageRule::Paper);
        benchmark::DoNotOptimize(text);
    }
}
BENCHMARK(Form34Report)->Unit(benchmark::kMillisecond);

}  // namespace
