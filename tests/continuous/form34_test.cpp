// Form34 as a user drives it: the checks of each button in order with their texts
// and focus, the tables that keep what was typed, a full run against the two-span
// closed form, its report and pictures, and hostile texts in every input.
#include <gtest/gtest.h>

#include <cmath>

#include "../beams/beam_session.h"
#include "../stop_expectations.h"
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

struct StopCase {
    const char* what;
    std::map<std::string, std::string> boxes;
    std::vector<std::string> answers;
    std::string command, text, focus;
    MessageKind kind = MessageKind::Warning;
};

TEST(Form34, ButtonsCheckInOrder) {
    const std::string big = "A maior resistência admitida na NBR-6118 é igual a 90 MPa. Os modelos de cálculo não se "
                            "aplicam ao concreto considerado.";
    const std::vector<StopCase> cases = {
        {"low fck", {{"Text1", "15"}}, {}, "Command8", "A menor resistência admitida na NBR-6118 é igual a 20 MPa. Aumente o valor de fck.", ""},
        {"high fck", {{"Text1", "95"}}, {}, "Command8", big, "Form34.Text1"},
        {"no Ecs", {{"Text2", ""}}, {}, "Command8", "Forneça um valor positivo para Ecs.", "Form34.Text2"},
        {"odd Ecs", {{"Text2", "50000"}}, {"yes"}, "Command8", msg::kEcsRange, "Form34.Text2", MessageKind::YesNo},
        {"creep", {{"Text8", "6"}}, {"yes"}, "Command8", txt34::kCreep, "Form34.Text8", MessageKind::YesNo},
        {"no span", {{"Text3", "0"}}, {}, "Command8", txt34::kMinSpans, "Form34.Text3"},
        {"21 spans", {{"Text3", "21"}}, {}, "Command8", txt34::kMaxSpans, "Form34.Text3"},
        {"huge count", {{"Text3", "99999999999"}}, {}, "Command8", txt34::kMaxSpans, "Form34.Text3"},
        {"no support", {{"Text3", "2"}, {"Text4", "0"}}, {}, "Command8", txt34::kMinSupports, "Form34.Text4"},
        {"4 supports on 3 nodes", {{"Text3", "2"}, {"Text4", "4"}}, {}, "Command8", txt34::kSupportsOverNodes, "Form34.Text4"},
        {"no load", {{"Text3", "2"}}, {}, "Command4", txt34::kNoLoad, "Form34.Command4"},
        {"nodal rows", {{"Text3", "2"}, {"Text5", "4"}}, {}, "Command4", txt34::kNodalOverNodes, "Form34.Text5"},
        {"bar rows", {{"Text3", "2"}, {"Text6", "21"}}, {}, "Command4", txt34::kMaxBarLoads, "Form34.Text6"},
        {"segments", {{"Text3", "2"}, {"Text7", "41"}}, {}, "Command4", txt34::kMaxSegments, "Form34.Text7"},
        {"moments of no span", {{"Text3", "0"}}, {}, "Command12", txt34::kMinSpans, "Form34.Text3"},
    };
    for (const StopCase& c : cases) {
        SCOPED_TRACE(c.what);
        BeamRun run("Form34", c.answers);
        run.set(c.boxes);
        expectStop(run.prompter, run.press(c.command), c.text, c.kind, c.focus);
    }
    // "No" to both questions goes on to the tables.
    BeamRun run("Form34", {"no", "no"});
    run.set({{"Text2", "50000"}, {"Text8", "6"}, {"Text3", "1"}, {"Text4", "1"}});
    EXPECT_TRUE(run.press("Command8").completed);
    EXPECT_EQ(run.prompter.messages().size(), 2u);
}

TEST(Form34, OpensWithTheConcreteOfTheStartDialog) {
    StartDefaults thirty;
    ASSERT_TRUE(thirty.select(1, "30"));
    ModuleSession session(*ModuleRegistry::find("Form34"), thirty);
    EXPECT_EQ(session.state().text("Text1"), "30");
    EXPECT_EQ(session.state().text("Text2"), "28517");  // 18275 (3.8)^(1/3) by CEB/90
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

TEST(Form34, CalculateChecksInOrder) {
    using Edit = std::function<void(FormState&)>;
    auto cell = [](const char* grid, int r, int c, const char* text) {
        return [=](FormState& s) { s.grid(grid)[r][c] = text; };
    };
    const struct {
        const char* what;
        Edit edit;
        std::string text, focus;
    } cases[] = {
        {"spans changed", [](FormState& s) { s.setText("Text3", "3"); }, txt34::kUpdateBeam, "Form34.Command8"},
        {"supports changed", [](FormState& s) { s.setText("Text4", "2"); }, txt34::kUpdateBeam, "Form34.Command8"},
        {"loads changed", [](FormState& s) { s.setText("Text5", "1"); }, txt34::kUpdateLoading, "Form34.Command4"},
        {"no inertia", cell("Form34b.Grade1", 2, 2, " "), txt34::kZeroInertia, "Form34.Command8"},
        {"no length", cell("Form34b.Grade1", 1, 1, "abc"), txt34::kZeroLength, "Form34.Command8"},
        {"segment beyond", cell("Form34c.Grade3", 1, 0, "3"), txt34::kSegmentSpan, "Form34.Command4"},
        {"segment start", cell("Form34c.Grade3", 2, 1, "-1"), txt34::kSegmentStart, "Form34.Command4"},
        {"segment length", cell("Form34c.Grade3", 2, 2, "5.5"), txt34::kSegmentLength, "Form34.Command4"},
        {"no q", [](FormState& s) { s.grid("Form34c.Grade3")[1][3] = s.grid("Form34c.Grade3")[2][3] = "0"; },
         txt34::kSegmentZero, "Form34.Command4"},
        {"support node", cell("Form34b.Grade2", 3, 0, "4"), txt34::kSupportNode, "Form34.Command8"},
        {"support type", cell("Form34b.Grade2", 2, 1, "3"), txt34::kSupportType, "Form34.Command8"},
        {"no stiffness", [](FormState& s) { s.setText("Text2", "0"); }, msg::kSingular, ""},
        {"overflow", [](FormState& s) { s.grid("Form34c.Grade3")[1][3] = "1" + std::string(308, '0'); }, msg::kOutOfRange,
         "Form34.Command8"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.what);
        BeamRun run = twoSpans();
        c.edit(run.session.state());
        expectStop(run.prompter, run.press("Command3"), c.text, MessageKind::Warning, c.focus);
        EXPECT_EQ(run.session.state().grid("Form34d.Grade1").size(), 1u);
    }

    // A concentrated load at a span's end is a nodal load.
    BeamRun atEnd = twoSpans();
    atEnd.set({{"Text6", "1"}});
    atEnd.press("Command4");
    atEnd.session.state().grid("Form34c.Grade2")[1] = {"1", "5", "10", "0"};
    expectStop(atEnd.prompter, atEnd.press("Command3"), txt34::kBarLoadPlace, MessageKind::Warning, "Form34.Command4");

    // One simple support, and eleven restrained displacements (ten spans of 3 m on
    // simple supports at every node).
    auto typed = [](int spans, int supports) {
        BeamRun run("Form34");
        run.set({{"Text3", std::to_string(spans)}, {"Text4", std::to_string(supports)}, {"Text5", "1"}});
        run.press("Command8");
        FormState& s = run.session.state();
        for (int i = 1; i <= spans; ++i) s.grid("Form34b.Grade1")[i] = {std::to_string(i), "3", "1000"};
        for (int j = 1; j <= supports; ++j) s.grid("Form34b.Grade2")[j] = {std::to_string(j), "1", "0"};
        run.press("Command4");
        s.grid("Form34c.Grade1")[1] = {"2", "10", "0"};
        return run;
    };
    BeamRun one = typed(1, 1);
    expectStop(one.prompter, one.press("Command3"), txt34::kHypostatic, MessageKind::Warning, "Form34.Command8");
    BeamRun many = typed(10, 11);
    expectStop(many.prompter, many.press("Command3"), txt34::kTooManyReactions, MessageKind::Warning,
               "Form34.Command8");
}

TEST(Form34, PictureButtonsCheckTheirTablesWithTheirOwnWords) {
    using Edit = std::function<void(FormState&)>;
    const struct {
        const char* what;
        Edit edit;
        std::string command, text;
    } cases[] = {
        {"blank length", [](FormState& s) { s.grid("Form34b.Grade1")[2][1] = " "; }, "Form34b.Command1", txt34::kAllLengths},
        {"support node", [](FormState& s) { s.grid("Form34b.Grade2")[1][0] = "9"; }, "Form34b.Command1", txt34::kBadSupportNode},
        {"support type", [](FormState& s) { s.grid("Form34b.Grade2")[1][1] = "0"; }, "Form34b.Command1", txt34::kBadSupportType},
        {"back to the lengths", [](FormState& s) { s.grid("Form34b.Grade1")[1][1] = "0"; }, "Form34c.Command1", txt34::kBackLengths},
        // Segments are checked before the concentrated loads, and the latter have
        // a zero-sum message of their own here.
        {"segments first",
         [](FormState& s) {
             s.grid("Form34c.Grade3")[1][0] = "7";
             s.grid("Form34c.Grade2") = {{"Vão", "a", "P", "M"}, {"9", "1", "1", "0"}};
         },
         "Form34c.Command1", txt34::kSegmentSpan},
        {"bar loads all zero",
         [](FormState& s) { s.grid("Form34c.Grade2") = {{"Vão", "a", "P", "M"}, {"1", "1", "0", "0"}}; },
         "Form34c.Command1", txt34::kBarLoadZeroTable},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.what);
        BeamRun run = twoSpans();
        c.edit(run.session.state());
        expectStop(run.prompter, run.press(c.command), c.text, MessageKind::Warning, "");
    }
    BeamRun run = twoSpans();
    const Outcome shown = run.press("Form34c.Command1");
    EXPECT_TRUE(shown.completed);
    EXPECT_EQ(shown.effects.back(), (ScreenEffect{EffectKind::ShowScreen, "Form34c2"}));
}

TEST(Form34, TwoSpansEndToEnd) {
    BeamRun run = twoSpans();
    const Outcome o = run.press("Command3");
    ASSERT_TRUE(o.completed) << run.lastMessage();
    EXPECT_TRUE(run.prompter.messages().empty());
    const FormState& s = run.session.state();
    // 3wL/8, 10wL/8, 3wL/8 and -wL^2/8 over the middle support.
    EXPECT_EQ(s.grid("Form34d.Grade1"),
              (GridRows{{"Nó", "Força", "Momento"}, {"1", "18.75", "0"}, {"2", "62.5", "0"}, {"3", "18.75", "0"}}));
    EXPECT_EQ(s.grid("Form34d.Grade2")[1], (std::vector<std::string>{"1", "18.75", "-31.25"}));
    EXPECT_EQ(s.grid("Form34d.Grade3")[1], (std::vector<std::string>{"1", "0", "-31.25", "17.58"}));
    EXPECT_EQ(s.grid("Form34e.Grade1")[2], (std::vector<std::string>{"2", "1.25", " "}));
    // Design: 9wL^2/128 beats the span fixed at the middle support (9wL^2/128 too,
    // as a propped cantilever); the middle support takes -wL^2/8.
    EXPECT_EQ(s.grid("Form34d.Grade4")[2], (std::vector<std::string>{"2", "31.25", "17.58", "2", "-31.25"}));
    EXPECT_EQ(s.grid("Form34d.Grade4")[3], (std::vector<std::string>{" ", " ", " ", "3", "0"}));

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
