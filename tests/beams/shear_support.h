#pragma once
// What the tests of the stirrup modules share: a run of "&CALCULAR" on boxes set
// by name, a check that stopped with its words and focus, and a report as lines.
#include <gtest/gtest.h>

#include <map>
#include <string>
#include <variant>
#include <vector>

#include "app/module.h"
#include "reports/report_dispatch.h"
#include "reports/report_writer.h"

namespace morve::shear_test {

using Inputs = std::map<std::string, std::string>;

struct ModuleRun {
    ModuleSession session;
    Outcome outcome;
    std::vector<Message> messages;
};

inline ModuleRun runModule(const std::string& key, const Inputs& inputs,
                           std::vector<std::string> answers = {}, StartDefaults defaults = {}) {
    ModuleRun run{ModuleSession(*ModuleRegistry::find(key), defaults), {}, {}};
    for (const auto& [name, value] : inputs) run.session.state().setText(name, value);
    ScriptedPrompter prompter(std::move(answers));
    run.outcome = run.session.press("Command1", prompter);
    run.messages = prompter.messages();
    return run;
}

// A base case with some boxes changed.
inline Inputs changed(Inputs base, const Inputs& changes) {
    for (const auto& [k, v] : changes) base[k] = v;
    return base;
}

struct CheckCase {
    const char* what;
    Inputs in;
    std::vector<std::string> answers;
    std::string text;
    MessageKind kind;
    std::string focus;  // qualified; "" when the focus stays
};

// The run stopped at this check alone: one box, its words, its kind, its focus.
inline void expectStop(const ModuleRun& run, const CheckCase& c) {
    EXPECT_FALSE(run.outcome.completed);
    EXPECT_EQ(run.outcome.focus, c.focus);
    ASSERT_EQ(run.messages.size(), 1u);  // the later faults of the case are never reached
    EXPECT_EQ(run.messages[0].text, c.text);
    EXPECT_EQ(run.messages[0].kind, c.kind);
    EXPECT_EQ(run.messages[0].title, "MORVE");
    EXPECT_TRUE(run.outcome.effects.empty());
}

// The body of a report, one string a line, "<page>" for a fixed page break.
inline std::vector<std::string> reportLines(const ModuleSession& session, const std::string& key) {
    ReportWriter out;
    EXPECT_TRUE(generateReport(key, session.module(), session.state(), out));
    std::vector<std::string> lines;
    for (const auto& block : out.document().blocks) {
        if (const auto* l = std::get_if<ReportLine>(&block)) lines.push_back(l->text());
        if (std::holds_alternative<PageBreak>(block)) lines.push_back("<page>");
    }
    return lines;
}

}  // namespace morve::shear_test
