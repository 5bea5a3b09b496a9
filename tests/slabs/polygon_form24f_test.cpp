// The polygonal slab as the menu opens it: refining to the limits, hostile input,
// and the report of a run. The checks of its buttons in order are cases in
// tests/cases/slabs.
#include <gtest/gtest.h>

#include <cmath>

#include "../beams/beam_session.h"

namespace morve::testing {
namespace {

using Rows = std::vector<std::vector<std::string>>;

const Rows kSquare = {{"1", "0", "0"}, {"2", "4", "0"}, {"3", "4", "4"}, {"4", "0", "4"}};

struct PolygonRun : BeamRun {
    explicit PolygonRun(const Rows& vertices = kSquare, const std::string& sideType = "0",
                        std::vector<std::string> answers = {})
        : BeamRun("Form24f", std::move(answers)) {
        set({{"Text1", "25"}, {"Text2", "28000"}, {"Text3", "2"}, {"Text4", "5"}, {"Text5", "2"}, {"Text7", "10"},
             {"Text8", "1"}, {"Text6", std::to_string(vertices.size())}, {"List1", "Grossa"}});
        session.state().grid("Form24g.Grade1") = {{"Vértice", "X", "Y"}};
        session.state().grid("Form24g.Grade2") = {{"Lado", "Tipo"}};
        for (const auto& row : vertices) {
            session.state().grid("Form24g.Grade1").push_back(row);
            session.state().grid("Form24g.Grade2").push_back({row[0], sideType});
        }
    }
    Outcome mesh() {
        press("Command4");
        press("Form24g.Command2");
        return press("Command7");
    }
};

TEST(Form24f, RefiningUpToTheLimit) {
    // A square of n divisions has 2 n (n + 1) bars: 21 fits, 22 passes 1000.
    PolygonRun run;
    ASSERT_TRUE(run.mesh().completed);
    run.set({{"List1", "Refinar mais!"}});
    for (int n = 5; n <= 21; ++n) ASSERT_TRUE(run.press("Command7").completed) << n;
    EXPECT_FALSE(run.press("Command7").completed);
    EXPECT_EQ(run.lastMessage(), "Impossível refinar mais.");
    EXPECT_FALSE(run.session.state().enabled("Form24f.Command1"));
    // The count in force falls back to 6: the next refinement is 7 divisions.
    EXPECT_TRUE(run.press("Command7").completed);
    EXPECT_EQ(run.session.state().var("Form24f.divisions"), "7");
}

TEST(Form24f, ResultsReportAndPictures) {
    PolygonRun run;
    run.set({{"List1", "Fina"}});
    run.mesh();
    ASSERT_TRUE(run.press("Command1").completed);
    const FormState& s = run.session.state();
    // Mx and My alike by symmetry; the creep of 2 triples the quasi-permanent value,
    // and the report gives the deflection of the screen. The reactions by hand and
    // the report's data are a case in tests/cases/slabs.
    EXPECT_EQ(s.cell("Form24f.Grade1", 1, 1), s.cell("Form24f.Grade1", 2, 1));
    EXPECT_NEAR(run.number("Text10"), 3 * run.number("Text9"), 0.02);
    EXPECT_EQ(run.report("Form24f").at(32), "Flecha final máxima: Wtot= " + run.text("Text10") + " mm");
    EXPECT_FALSE(run.session.module().drawing("Form24h.Picture1", s).empty());
    EXPECT_FALSE(run.session.module().drawing("Form24j.Picture1", s).empty());
}

}  // namespace
}  // namespace morve::testing
