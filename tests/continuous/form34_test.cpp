// Form34 as a user drives it: the tables that keep what was typed, and the report
// and pictures of a full run. The checks of the buttons, of the picture buttons and
// of "CALCULAR" in order and the two-span closed form are cases in
// tests/cases/continuous; the start dialog's concrete is in tests/cases/startup.
#include <gtest/gtest.h>

#include <cmath>

#include "../beams/beam_session.h"
#include "continuous/form34_texts.h"

using namespace morve;
using morve::testing::BeamRun;

namespace {

// Two spans of 5 m on three simple supports, 10 kN/m over both, typed as a user
// does: counts, "Dados da viga", its tables, "Cargas", its table.
BeamRun twoSpans(std::vector<std::string> answers = {}) {
    BeamRun run("Form34", std::move(answers));
    run.set({{"Text3", "2"}, {"Text4", "3"}, {"Text7", "2"}});
    run.press("Command8");
    FormState& s = run.session.state();
    s.grid("Form34b.Grade1") = {{"Vão", "L", "I"}, {"1", "5", "100000"}, {"2", "5", "100000"}};
    s.grid("Form34b.Grade2") = {{"Nó", "Tipo", "Ig"}, {"1", "1", "0"}, {"2", "1", "0"}, {"3", "1", "0"}};
    run.press("Form34b.Command2");
    run.press("Command4");
    s.grid("Form34c.Grade3") = {{"Vão", "s", "c", "q"}, {"1", "0", "5", "10"}, {"2", "0", "5", "10"}};
    run.press("Form34c.Command2");
    return run;
}

TEST(Form34, TablesKeepWhatWasTypedWhenACountGrows) {
    BeamRun run = twoSpans();
    run.set({{"Text3", "4"}, {"Text4", "5"}});
    ASSERT_TRUE(run.press("Command8").completed);
    const GridRows& bars = run.session.state().grid("Form34b.Grade1");
    ASSERT_EQ(bars.size(), 5u);
    EXPECT_EQ(bars[2], (std::vector<std::string>{"2", "5", "100000"}));
    EXPECT_EQ(bars[4], (std::vector<std::string>{"4", " ", " "}));
    EXPECT_EQ(run.session.state().grid("Form34b.Grade2")[3][0], "3");
    // "Repetir a última linha" copies span 2 into span 3; "Limpar" clears it again.
    run.press("Form34b.Command5");
    EXPECT_EQ(bars[3], (std::vector<std::string>{"3", "5", "100000"}));
    run.press("Form34b.Command4");
    EXPECT_EQ(bars[3], (std::vector<std::string>{"3", " ", " "}));
}

TEST(Form34, TwoSpansEndToEnd) {
    BeamRun run = twoSpans();
    const Outcome o = run.press("Command3");
    ASSERT_TRUE(o.completed) << run.lastMessage();
    EXPECT_TRUE(run.prompter.messages().empty());
    const FormState& s = run.session.state();
    // The results against the closed form are tests/cases/continuous/form34-calculate.json.
    const std::vector<std::string> report = run.report("Form34");
    auto has = [&](const std::string& line) { return std::find(report.begin(), report.end(), line) != report.end(); };
    EXPECT_TRUE(has("Engastamento elástico nos pilares: Não considerado"));
    EXPECT_TRUE(has("Momentos iniciais devidos ao vento: Não considerado"));
    EXPECT_TRUE(has("c) MOMENTOS NOS APOIOS:"));
    EXPECT_TRUE(has("Apoio= 2 M= -31.25 kNm"));
    const auto brk = std::find(report.begin(), report.end(), "\f");
    ASSERT_NE(brk, report.end());
    EXPECT_EQ(*(brk - 1), "... Continua");
    EXPECT_EQ(*(brk + 1), "CARREGAMENTO VERTICAL:");
    EXPECT_EQ(std::count(report.begin(), report.end(), "[figura]"), 4);
    for (const char* picture : {"Form34e.Picture1", "Form34e.Picture2", "Form34g.Picture1", "Form34c2.Picture1"})
        EXPECT_FALSE(run.session.module().drawing(picture, s).empty()) << picture;
}

}  // namespace
