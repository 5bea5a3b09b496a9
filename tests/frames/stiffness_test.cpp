// Equivalent stiffness of a frame and of a stepped column against closed forms: the
// shear building, the column's own EI, the stepped cantilever.
#include <gtest/gtest.h>

#include "../beams/beam_session.h"
#include "../stop_expectations.h"

using namespace morve;
using morve::testing::BeamRun;

namespace {

GridRows rows(const std::string& c0, int n, const std::vector<std::string>& cells) {
    GridRows g{{c0}};
    for (int i = 1; i <= n; ++i) {
        g.push_back({std::to_string(i)});
        g.back().insert(g.back().end(), cells.begin(), cells.end());
    }
    return g;
}

}  // namespace

// Five storeys of 3 m, two columns of I = 0.002 m4, beams and areas so stiff that the
// frame is a shear building of storey stiffness 24 E I / h^3 = 44444 kN/m. Top load
// 1000 kN: d = 5 x 1000 / k, EIeq = 1000 H^3 / (3 d) = 1E7 kNm2, Ieq = 0.4 m4.
// Uniform 10 kN/m lumped at the levels: storey shears 135, 105, 75, 45, 15 kN,
// d = 375 / k, EIeq = 10 H^4 / (8 d) = 7.5E6 kNm2.
TEST(Form30, ShearBuildingEquivalentStiffness) {
    for (const bool concentrated : {true, false}) {
        BeamRun run("Form30");
        run.set({{"Text1", "25"}, {"Text2", "25000"}, {"Text3", "2"}, {"Text4", "5"}});
        run.session.state().setOption(concentrated ? "Option1" : "Option2", true);
        run.press("Command8");
        FormState& s = run.session.state();
        s.grid("Form30b.Grade1") = rows("Andar", 5, {"3"});
        s.grid("Form30b.Grade2") = rows("Pilar", 2, {"100000000", "200000"});
        run.press("Command4");
        s.grid("Form30c.Grade1") = rows("Vão", 1, {"5"});
        s.grid("Form30c.Grade2") = rows("Viga", 5, {"100000000", "1000000000000"});
        ASSERT_TRUE(run.press("Command3").completed) << run.lastMessage();
        EXPECT_NEAR(run.number("Text11"), concentrated ? 1e7 : 7.5e6, 1e-4 * 1e7) << concentrated;
        EXPECT_NEAR(run.number("Text12"), concentrated ? 0.4 : 0.3, 1e-5);
        const std::vector<std::string> lines = run.report("Form30");
        EXPECT_EQ(lines.back(), "Inércia equivalente Ieq= " + run.text("Text12") + " m4");
    }
}

// One segment gives back its own EI and A under both loads (the uniform load is
// lumped consistently, so the nodes are exact). Two segments, 3 m of I = 0.004 m4
// under 2 m of I = 0.001 m4, tip load: d = P (H^3 - b^3) / (3 E I1) + P b^3 / (3 E I2)
// = 0.49667 m, EIeq = 83892.6 kNm2; Aeq = 5 / (3 / 0.2 + 2 / 0.1) = 0.1429 m2.
TEST(Form31, SegmentsAgainstClosedForms) {
    struct Case { bool concentrated; GridRows segments; double ei, area; };
    const std::vector<Case> cases = {
        {true, {{"S"}, {"1", "4", "2000", "400000"}}, 25e6 * 0.004, 0.2},
        {false, {{"S"}, {"1", "4", "2000", "400000"}}, 25e6 * 0.004, 0.2},
        {true, {{"S"}, {"1", "3", "2000", "400000"}, {"2", "2", "1000", "100000"}}, 83892.62, 0.1429},
    };
    for (const Case& c : cases) {
        BeamRun run("Form31");
        run.set({{"Text1", "25"}, {"Text2", "25000"}, {"Text3", std::to_string(c.segments.size() - 1)}});
        run.session.state().setOption(c.concentrated ? "Option1" : "Option2", true);
        run.press("Command8");
        run.session.state().grid("Form31b.Grade1") = c.segments;
        ASSERT_TRUE(run.press("Command3").completed) << run.lastMessage();
        EXPECT_NEAR(run.number("Text11"), c.ei, 0.01);
        EXPECT_EQ(run.number("Text4"), c.area);
    }
    BeamRun run("Form31");
    run.set({{"Text3", "0"}});
    expectStop(run.prompter, run.press("Command8"), "O número mínimo de segmentos é igual a 1.", MessageKind::Warning,
               "Form31.Text3");
    run.set({{"Text3", "2"}});
    expectStop(run.prompter, run.press("Command3"), "Atualize os dados dos segmentos.", MessageKind::Warning,
               "Form31.Command8");
}

