// Torção com flexão (Form6 and its results Form6b): the screens it shows and the
// two fixed pages of the report. Its design, checks and report lines are cases in
// tests/cases/beams.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "app/module.h"
#include "beams/shear_common.h"
#include "shear_support.h"

namespace morve {
namespace {

using namespace shear_test;

ModuleRun calculate(const Inputs& inputs, std::vector<std::string> answers = {}) {
    return runModule("Form6", inputs, std::move(answers));
}

// Defaults: fck 20, fyk 500, Es 200, b 25, h 40, CEB/90, Beta 1.00.
Inputs with(const Inputs& changes) {
    return changed({{"Text9", "4"}, {"Text10", "50"}, {"Text11", "50"}, {"Text12", "10"}, {"List1", "6.3"}},
                   changes);
}

TEST(Form6Screens, SuccessShowsTheResultsAndTheirButtonsActOnThem) {
    ModuleRun run = calculate(with({}));
    ASSERT_TRUE(run.outcome.completed);
    const std::vector<ScreenEffect> shown{{EffectKind::HideScreen, "Form6"},
                                          {EffectKind::ShowScreen, "Form0b"},
                                          {EffectKind::ShowScreen, "Form6b"}};
    EXPECT_EQ(run.outcome.effects, shown);
    EXPECT_TRUE(run.session.screenShown("Form6b"));
    EXPECT_FALSE(run.session.screenShown("Form6"));
    // The toolbar of Form6 prints nothing; the report is Form6b's.
    EXPECT_FALSE(run.session.state().enabled(printButton("Form6")));

    ScriptedPrompter quiet;
    Outcome print = run.session.press("Form6b.Command7", quiet);
    const std::vector<ScreenEffect> report{{EffectKind::StartReport, "Form6b"},
                                           {EffectKind::DisableScreen, "Form6b"}};
    EXPECT_EQ(print.effects, report);
    Outcome back = run.session.press("Form6b.Command2", quiet);
    EXPECT_TRUE(run.session.screenShown("Form6"));
    EXPECT_FALSE(run.session.screenShown("Form6b"));
    EXPECT_EQ(back.effects.front(), (ScreenEffect{EffectKind::ShowScreen, "Form0b"}));
}

TEST(Form6Report, TwoFixedPagesTheDataAndTheSolution) {
    // The first case of tests/cases/beams/form6-design.json, whose lines are there.
    ModuleRun run = calculate({{"Text1", "25"}, {"Text3", "210"}, {"Text7", "25"}, {"Text8", "50"}, {"Text9", "4"},
                               {"Text10", "100"}, {"Text11", "80"}, {"Text12", "15"}, {"List1", "8.0"}});
    ASSERT_TRUE(run.outcome.completed);
    ReportWriter out;
    generateReport("Form6b", run.session.module(), run.session.state(), out);
    const auto pages = paginate(out.document(), "", PageRule::Screen);
    ASSERT_EQ(pages.size(), 2u);
    EXPECT_EQ(pages[0].lines.back().text, "... Continua");
    EXPECT_EQ(pages[1].lines.front().text, "SOLUÇÃO:");
}

}  // namespace
}  // namespace morve
