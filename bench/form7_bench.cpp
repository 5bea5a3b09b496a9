// One rectangular-section design, and one full report with its paging.
#include <benchmark/benchmark.h>

#include "app/module.h"
#include "reports/report_dispatch.h"
#include "reports/report_writer.h"

using namespace morve;

namespace {

ModuleSession preparedForm7() {
    ModuleSession session(*ModuleRegistry::find("Form7"), StartDefaults{});
    FormState& s = session.state();
    s.setText("Text10", "4");
    s.setText("Text6", "100");
    s.setText("List6", "1");
    return session;
}

void Form7Calculation(benchmark::State& state) {
    ModuleSession session = preparedForm7();
    for (auto _ : state) {
        ScriptedPrompter prompter;
        Outcome o = session.press("Command1", prompter);
        if (!o.completed) {
            state.SkipWithError("the case stopped");
            break;
        }
        benchmark::DoNotOptimize(o);
    }
}
BENCHMARK(Form7Calculation);

void Form7Report(benchmark::State& state) {
    ModuleSession session = preparedForm7();
    ScriptedPrompter prompter;
    session.press("Command1", prompter);
    for (auto _ : state) {
        ReportWriter w;
        generateReport("Form7", session.module(), session.state(), w);
        auto pages = paginate(w.document(), "Viga V1", PageRule::Paper);
        std::string text = renderText(pages, PageRule::Paper);
        benchmark::DoNotOptimize(text);
    }
}
BENCHMARK(Form7Report);

}  // namespace
