// What the "Passo a passo" costs: a rectangular beam and a column design pressed
// with the recorder off and on, side by side, and the steps written as HTML.
#include <benchmark/benchmark.h>

#include "app/module.h"
#include "app/trace.h"

using namespace morve;

namespace {

ModuleSession prepared(const char* key, bool record) {
    ModuleSession session(*ModuleRegistry::find(key), StartDefaults{});
    FormState& s = session.state();
    if (std::string(key) == "Form7") {
        s.setText("Text10", "4");
        s.setText("Text6", "100");
        s.setText("List6", "1");
    } else {
        for (auto [box, text] : {std::pair{"Text1", "25"}, {"Text4", "20"}, {"Text5", "50"}, {"Text6", "4"},
                                 {"Text7", "2"}, {"Text8", "1000"}, {"Text9", "120"}})
            s.setText(box, text);
        GridRows& rows = s.grid("Form12b.Grade1");
        rows.resize(1);
        rows.push_back({"1", "3"});
        rows.push_back({"2", "3"});
    }
    session.recordSteps(record);
    return session;
}

void Calculation(benchmark::State& state, const char* key, const char* command, bool record) {
    ModuleSession session = prepared(key, record);
    for (auto _ : state) {
        ScriptedPrompter prompter({"no", "no"});
        Outcome o = session.press(command, prompter);
        benchmark::DoNotOptimize(o);
    }
}
BENCHMARK_CAPTURE(Calculation, Form7_sem_passos, "Form7", "Command1", false);
BENCHMARK_CAPTURE(Calculation, Form7_com_passos, "Form7", "Command1", true);
BENCHMARK_CAPTURE(Calculation, Form12_sem_passos, "Form12", "Command4", false);
BENCHMARK_CAPTURE(Calculation, Form12_com_passos, "Form12", "Command4", true);

void StepsHtml(benchmark::State& state, const char* key, const char* command) {
    ModuleSession session = prepared(key, true);
    ScriptedPrompter prompter;
    session.press(command, prompter);
    for (auto _ : state) {
        std::string html = traceHtml(session.steps());
        benchmark::DoNotOptimize(html);
    }
}
BENCHMARK_CAPTURE(StepsHtml, Form7, "Form7", "Command1");
BENCHMARK_CAPTURE(StepsHtml, Form12, "Form12", "Command4");

}  // namespace
