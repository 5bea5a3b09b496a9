// Form33 as a user drives it: the bar lists and the diagrams of a typed portal. The
// checks of each button in order, the portal against slope-deflection with its
// report, and the P-delta and infill messages are cases in tests/cases/frames.
#include <gtest/gtest.h>

#include "../beams/beam_session.h"
#include "../stop_expectations.h"
#include "frames/frame_texts.h"

using namespace morve;
using morve::testing::BeamRun;

namespace {

GridRows numbered(const std::string& c0, const std::vector<std::vector<std::string>>& rows) {
    GridRows g{{c0}};
    for (std::size_t i = 0; i < rows.size(); ++i) {
        g.push_back({std::to_string(i + 1)});
        g.back().insert(g.back().end(), rows[i].begin(), rows[i].end());
    }
    return g;
}

// A portal of 4 m columns 20 x 50 (I = 208333 cm4) and a 6 m beam 20 x 60
// (I = 360000 cm4), 10 kN of wind, typed table by table. Areas are typed so large
// that no bar shortens, as slope-deflection assumes.
BeamRun portal() {
    BeamRun run("Form33");
    run.set({{"Text3", "2"}, {"Text4", "1"}, {"Text2", "25000"}, {"Text1", "25"}, {"Text7", "400"}});
    FormState& s = run.session.state();
    run.press("Command8");
    s.grid("Form33b.Grade1") = numbered("Andar", {{"4"}});
    s.grid("Form33b.Grade2") = numbered("Pilar", {{"1000000", "208333"}, {"1000000", "208333"}});
    run.press("Command4");
    s.grid("Form33c.Grade1") = numbered("Vão", {{"6"}});
    s.grid("Form33c.Grade2") = numbered("Viga", {{"1000000", "360000"}});
    run.press("Command10");
    s.grid("Form33d.Grade1") = numbered("Nível", {{"10"}});
    s.grid("Form33d.Grade2") = numbered("Nível", {{"400"}});
    return run;
}

}  // namespace

TEST(Form33, PortalRunListsAndDrawsItsBars) {
    BeamRun run = portal();
    const Outcome o = run.press("Command3");
    ASSERT_TRUE(o.completed) << run.lastMessage();
    const FormState& s = run.session.state();
    // The bars are listed for their diagrams in the order of the tables, the first
    // one picked; a column picked on its own screen is the one drawn, and without a
    // pick the screen says so where the pick is made.
    EXPECT_EQ(s.items("Form33e.List2"), (std::vector<std::string>{"Andar 1 - Pilar 1", "Andar 1 - Pilar 2"}));
    run.set({{"Form33e.List2", "Andar 1 - Pilar 2"}});
    EXPECT_TRUE(run.press("Form33e.Command1").completed);
    EXPECT_TRUE(run.press("Form33e.Command3").completed);
    EXPECT_TRUE(run.session.screenShown("Form33h"));
    for (const char* p : {"Form33g.Picture1", "Form33g.Picture2", "Form33h.Picture1", "Form33h.Picture2", "Form33h.Picture3", "Form33f.Picture1"})
        EXPECT_FALSE(run.session.module().drawing(p, s).empty()) << p;
    auto drawnBar = [&] {
        for (const Shape& shape : run.session.module().drawing("Form33h.Picture3", s).shapes)
            if (const auto* l = std::get_if<Label>(&shape.geometry); l && l->text.rfind("Andar", 0) == 0) return l->text;
        return std::string();
    };
    EXPECT_EQ(drawnBar().substr(0, 17), "Andar 1 - Pilar 2");
    run.set({{"Form33h.List1", "Andar 1 - Pilar 1"}});
    EXPECT_TRUE(run.press("Form33h.List1").completed);
    EXPECT_EQ(drawnBar().substr(0, 17), "Andar 1 - Pilar 1");
    run.set({{"Form33g.List1", ""}});
    expectStop(run.prompter, run.press("Form33g.Command1"), txtframe::kPickBar, MessageKind::Warning,
               "Form33g.List1");
    // The bar lists are results, the mortar list an input: a project file keeps only the input.
    for (const std::string& f : run.session.module().projectFields())
        EXPECT_TRUE(f.find(".List") == std::string::npos || f == "Form33i.List1") << f;
}
