// The rectangular-section design module: its screen effects and the report keys it
// refuses. Its checks, results and report lines are cases in tests/cases/beams.
#include <gtest/gtest.h>

#include <map>

#include "../module_run.h"
#include "app/module.h"
#include "beams/form7.h"
#include "reports/report_dispatch.h"
#include "reports/report_writer.h"

using namespace morve;

namespace {

const Module& form7() { return *ModuleRegistry::find("Form7"); }

// Load with the start dialog's first selections, the section b 20, h 40, d 36 of
// the window's defaults, d' = 4 and class 1, then the changes of the case.
std::unique_ptr<morve::testing::Run> calculate(const std::map<std::string, std::string>& set,
                                        std::vector<std::string> answers = {}, StartDefaults defaults = {}) {
    const auto boxes = morve::testing::with({{"Text10", "4"}, {"Text6", "50"}, {"List6", "1"}}, set);
    return morve::testing::pressWith("Form7", "Command1", boxes, std::move(answers), defaults);
}

}  // namespace

TEST(Form7Effects, SuccessEnablesDetailingAndPrintAndAFailureKeepsThem) {
    auto run = calculate({});
    EXPECT_EQ(run->outcome.effects,
              (std::vector<ScreenEffect>{{EffectKind::EnableControl, "Form7.Command3"},
                                         {EffectKind::EnableControl, "Form7.Toolbar1.Imprimir"}}));
    FormState& s = run->session->state();
    EXPECT_TRUE(s.enabled(printButton("Form7")));
    s.setText("Text4", "0");
    Outcome failed = run->session->press("Command1", run->prompter);
    EXPECT_FALSE(failed.completed);
    EXPECT_TRUE(s.enabled(printButton("Form7")));
    EXPECT_TRUE(s.enabled("Command3"));
    EXPECT_EQ(s.text("Text7"), " ");
}

TEST(Form7Effects, DetailingCopiesTheAreasAndShowsTheDetailingScreen) {
    auto run = calculate({{"Text6", "100"}});
    Outcome o = run->session->press("Command3", run->prompter);
    EXPECT_TRUE(o.completed);
    EXPECT_EQ(o.effects, (std::vector<ScreenEffect>{{EffectKind::HideScreen, "FormAjuda"},
                                                    {EffectKind::ShowScreen, "Form0b"},
                                                    {EffectKind::HideScreen, "Form7"},
                                                    {EffectKind::ShowScreen, "Form8"}}));
    EXPECT_EQ(run->text("Form8.Text1"), "10.62");
    EXPECT_EQ(run->text("Form8.Text2"), "3.38");
    EXPECT_FALSE(run->session->screenShown("Form7"));
    EXPECT_TRUE(run->session->screenShown("Form8"));
}

TEST(Form7Report, UnknownOrForeignKeysWriteNothing) {
    ModuleSession session(form7(), StartDefaults{});
    ReportWriter w;
    EXPECT_FALSE(generateReport("Form99", session.module(), session.state(), w));
    EXPECT_FALSE(generateReport("Form10", session.module(), session.state(), w));
    EXPECT_TRUE(w.document().blocks.empty());
}

TEST(Form7Sketch, LabelsEveryDimensionAndBothSteels) {
    Drawing g = form7().drawing("Form7.Picture1", FormState{});
    std::set<std::string> labels;
    for (const auto& s : g.shapes)
        if (const auto* l = std::get_if<Label>(&s.geometry)) labels.insert(l->text);
    EXPECT_EQ(labels, (std::set<std::string>{"b", "h", "d", "d'", "As", "A's"}));
}
