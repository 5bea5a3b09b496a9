// Column design situations: the screens and the plot. The eccentricities against
// hand calculations, the slenderness limits, the checks in order and the report are
// cases in tests/cases/columns.
#include "../module_run.h"
#include "column_case.h"

using namespace morve;
using morve::testing::labels;

namespace {

const Module& form35() { return *ModuleRegistry::find("Form35"); }
using morve::testing::Run;

// A 20 x 20 column, 3 m both ways, Fk 500 kN, fck 20, Ecs 25757, phi 2.5, then the
// changes of the case ("Option2": "True" picks the other section).
std::unique_ptr<Run> calculate(const std::map<std::string, std::string>& set,
                               std::vector<std::string> answers = {}) {
    const auto boxes = morve::testing::with({{"Text8", "3"}, {"Text9", "3"}, {"Text14", "500"}}, set);
    return morve::testing::pressWith("Form35", "Command3", boxes, std::move(answers));
}

}  // namespace

TEST(Form35Screens, LoadOptionsAndCompanions) {
    ModuleSession plain(form35(), StartDefaults{});
    EXPECT_EQ(plain.state().text("Text2"), "25757");  // 18275 x 2.8^(1/3) = 25757.9, whole MPa
    EXPECT_EQ(plain.state().text("Text17"), "2.5");
    EXPECT_FALSE(plain.state().visible("Text7"));
    // Moments of either sign, a force that is only pressed.
    EXPECT_EQ(plain.state().declaration("Text10")->filter, KeyFilter::SignedNumber);
    EXPECT_EQ(plain.state().declaration("Text13")->filter, KeyFilter::SignedNumber);
    EXPECT_EQ(plain.state().declaration("Text14")->filter, KeyFilter::PositiveNumber);
    StartDefaults nbr;
    nbr.select(1, "25");
    nbr.select(4, "NBR-6118");
    EXPECT_EQ(ModuleSession(form35(), nbr).state().text("Text2"), "23800");  // 4760 x 5
    nbr.select(1, "60");  // above 50 MPa the CEB/90 formula: 18275 x 6.8^(1/3) = 34622.7
    EXPECT_EQ(ModuleSession(form35(), nbr).state().text("Text2"), "34622");

    ScriptedPrompter p;
    plain.press("Option2", p);
    EXPECT_TRUE(plain.state().visible("Text15"));
    EXPECT_TRUE(plain.state().option("Option2"));
    plain.press("Option1", p);
    EXPECT_FALSE(plain.state().visible("Text16"));
    plain.press("Command8", p);
    EXPECT_TRUE(plain.screenShown("Form35b"));
    plain.press("Form35b.Command1", p);
    EXPECT_FALSE(plain.screenShown("Form35b"));

    auto run = calculate({});
    EXPECT_TRUE(run->session->screenShown("Form35c"));
    EXPECT_TRUE(run->session->state().enabled(printButton("Form35")));
    run->session->press("Form35c.Command1", run->prompter);
    EXPECT_TRUE(run->session->screenShown("Form35d"));
    run->session->press("Form35d.Command1", run->prompter);
    EXPECT_FALSE(run->session->screenShown("Form35d"));
}

TEST(Form35Diagram, PlotsEachSituationWithItsRelativeDistance) {
    // 3.75 / 20 = 0.1875 on one axis each: R = 0.19 twice.
    auto run = calculate({});
    Drawing g = form35().drawing("Form35d.Picture1", run->session->state());
    int points = 0;
    for (const auto& s : g.shapes)
        if (const auto* c = std::get_if<Circle>(&s.geometry); c && c->filled) ++points;
    EXPECT_EQ(points, 2);
    const auto text = labels(g);
    EXPECT_EQ(text.count("(R=0.19)"), 2u);
    EXPECT_EQ(text.count("ex/hx"), 1u);
    EXPECT_EQ(text.count("ey/hy"), 1u);
    // A width of zero leaves nothing to plot rather than a division by it.
    run->session->state().setText("Text5", "0");
    EXPECT_TRUE(form35().drawing("Form35d.Picture1", run->session->state()).empty());
}
