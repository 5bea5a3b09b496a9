#pragma once
// A benchmark's case is prepared the way morve-calc runs a case file, so that a case
// the screens would refuse shows up as an error instead of a figure: every press
// before the timed one must be taken and must complete.
#include <benchmark/benchmark.h>

#include <memory>
#include <string>

#include <nlohmann/json.hpp>

#include "app/module.h"
#include "cli/case_runner.h"

namespace bench {

// The session after the case's presses, or null with the reason in `fault`.
inline std::unique_ptr<morve::ModuleSession> preparedCase(const nlohmann::json& caseFile, std::string& fault) {
    morve::CaseRun run;
    try {
        run = morve::runCase(caseFile);
    } catch (const std::exception& e) {
        fault = e.what();
        return nullptr;
    }
    for (const auto& step : run.outcome.at("steps")) {
        const std::string press = step.at("press").get<std::string>();
        if (step.contains("refused")) fault = press + " refused: " + step.at("refused").get<std::string>();
        else if (!step.at("completed").get<bool>()) fault = press + " stopped";
        if (!fault.empty()) return nullptr;
    }
    return std::move(run.session);
}

// The session after the case's presses and then `then` (when given), or null with
// the benchmark marked as an error.
inline std::unique_ptr<morve::ModuleSession> sessionFor(benchmark::State& state, nlohmann::json caseFile,
                                                        const std::string& then = "") {
    if (!then.empty()) caseFile["press"].push_back(then);
    std::string fault;
    std::unique_ptr<morve::ModuleSession> session = preparedCase(caseFile, fault);
    if (!session) state.SkipWithError(fault.c_str());
    return session;
}

// Times one press of a prepared case; a case that does not complete is an error.
inline void timePress(benchmark::State& state, const nlohmann::json& caseFile, const std::string& command) {
    std::unique_ptr<morve::ModuleSession> session = sessionFor(state, caseFile);
    if (!session) return;
    // Each press starts from the prepared case, as a user's first press does: a
    // second press on the results may be refused or stop.
    for (auto _ : state) {
        state.PauseTiming();
        morve::ModuleSession fresh = *session;
        morve::ScriptedPrompter prompter;
        state.ResumeTiming();
        const morve::Outcome o = fresh.press(command, prompter);
        if (!o.completed) {
            state.SkipWithError((command + " stopped").c_str());
            break;
        }
        benchmark::DoNotOptimize(o);
    }
}

}  // namespace bench
