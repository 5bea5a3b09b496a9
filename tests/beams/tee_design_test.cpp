// Form10: the T section in simple bending.
#include <gtest/gtest.h>

#include <cmath>

#include "basis/messages.h"
#include "beams/bending.h"
#include "beam_session.h"

using namespace morve;
using morve::testing::BeamRun;
using morve::testing::CheckCase;

namespace {

// bf 60, hf 10, bw 12, h 40, d 36, d' 4, fck 20, CA-50, class 1.
BeamRun tee(const std::map<std::string, std::string>& more = {}, std::vector<std::string> answers = {}) {
    BeamRun run("Form10", std::move(answers));
    run.set({{"Text5", "10"}, {"Text9", "4"}, {"Text10", "100"}, {"List6", "1"}});
    run.set(more);
    return run;
}

}  // namespace

TEST(Form10Design, BlockInTheFlangeIsTheRectangleOfWidthBf) {
    // Mk 100: Md 14000 kNcm; sigmacd = 0.85 x 2 / 1.4 = 1.21429, fyd = 43.478.
    // mu = 14000 / (60 x 36^2 x 1.21429) = 0.14827; the block 1 - sqrt(1 - 2 mu) =
    // 0.16128 of d = 5.81 cm stays in the 10 cm flange:
    // As = 0.16128 x 60 x 36 x 1.21429 / 43.478 = 9.73 cm2.
    BeamRun t = tee();
    ASSERT_TRUE(t.press("Command3").completed);
    EXPECT_EQ(t.text("Text11"), "9.73");
    EXPECT_EQ(t.text("Text12"), "0");

    BeamRun r("Form7");
    r.set({{"Text3", "60"}, {"Text10", "4"}, {"Text6", "100"}, {"List6", "1"}});
    ASSERT_TRUE(r.press("Command1").completed);
    EXPECT_EQ(r.text("Text7"), t.text("Text11"));
}

TEST(Form10Design, BlockInTheWebByTheOverhangsAndTheWeb) {
    // hf 6, Mk 120 (Md 16800). Overhangs: (60 - 12) x 6 x 1.21429 = 349.71 kN at
    // 36 - 3 = 33 cm carry 11540.6 kNcm. The web takes 5259.4 kNcm:
    // 5259.4 / (12 x 36^2 x 1.21429) = 0.27850, block y = 36 (1 - sqrt(1 - 0.557)) = 12.04 cm.
    // As = (349.71 + 12 x 12.04 x 1.21429) / 43.478 = 12.08 cm2.
    BeamRun t = tee({{"Text5", "6"}, {"Text10", "120"}});
    ASSERT_TRUE(t.press("Command3").completed);
    EXPECT_EQ(t.text("Text11"), "12.08");
    EXPECT_EQ(t.text("Text12"), "0");
}

TEST(Form10Design, WebBranchStartsWhereTheFlangeBranchEnds) {
    const StressBlockValues block{0.8, 0.85, 3.5};
    const double eta = 0.2, r = 0.25, xlim = 0.45;
    const double muf = (1 - eta / 2) * eta;  // the whole flange compressed: omega = eta
    TeeSteel at = designTee(muf, xlim, eta, r, 0.1, block, 20000, 43.478);
    TeeSteel above = designTee(muf * (1 + 1e-9), xlim, eta, r, 0.1, block, 20000, 43.478);
    EXPECT_NEAR(at.steel.omega, eta, 1e-12);
    EXPECT_NEAR(above.steel.omega, eta, 1e-8);
    EXPECT_EQ(above.branch, TeeBranch::Web);
}

TEST(Form10Design, FlangeAsDeepAsTheLimitBlockIsARectangle) {
    const StressBlockValues block{0.8, 0.85, 3.5};
    const double xlim = 0.45, eta = block.lambda * xlim;
    EXPECT_EQ(designTee(0.1, xlim, eta, 0.2, 0.1, block, 20000, 43.478).branch, TeeBranch::Rectangle);
    EXPECT_EQ(designTee(0.1, xlim, std::nextafter(eta, 0.0), 0.2, 0.1, block, 20000, 43.478).branch,
              TeeBranch::Web);
    // Through the module: hf = lambda xlim d with d = 50 gives hf = 18, and the T of
    // a flange that deep designs as the rectangle of width bf.
    BeamRun t = tee({{"Text5", "18"}, {"Text7", "55"}, {"Text8", "50"}, {"Text10", "250"}});
    BeamRun r("Form7");
    r.set({{"Text3", "60"}, {"Text4", "55"}, {"Text5", "50"}, {"Text10", "4"}, {"Text6", "250"},
           {"List6", "1"}});
    ASSERT_TRUE(t.press("Command3").completed);
    ASSERT_TRUE(r.press("Command1").completed);
    EXPECT_EQ(t.text("Text11"), r.text("Text7"));
}

TEST(Form10Design, DoubleReinforcementAsFlangePlusCompressionSteel) {
    // hf 6, Mk 160: mu = 22400 / 94422.9 = 0.23723 above the limit of the T,
    // mulim = (0.36 - 1/6) x 0.2 x (1 - (0.36 + 1/6) / 2) + (1 - 1/12) / 6 = 0.181262.
    // The excess 0.055966 x 94422.9 = 5284.5 kNcm is taken by a couple over
    // d - d' = 32 cm: 165.14 kN; the compression steel at eps = 0.35% x (0.45 -
    // 0.1111) / 0.45 = 2.64 per mille yields. As' = 165.14 / 43.478 = 3.80;
    // As = ((0.36 - 1/6) x 0.2 + 1/6) x 60 x 36 x 1.21429 / 43.478 + 3.798
    //    = 12.387 + 3.798 = 16.19 cm2.
    BeamRun t = tee({{"Text5", "6"}, {"Text10", "160"}});
    ASSERT_TRUE(t.press("Command3").completed);
    EXPECT_EQ(t.text("Text12"), "3.8");
    EXPECT_EQ(t.text("Text11"), "16.19");
}

TEST(Form10Design, EnablesDetailingAndPrintAndCopiesTheAreas) {
    BeamRun t = tee();
    EXPECT_FALSE(t.session.state().enabled("Form10.Command4"));
    Outcome o = t.press("Command3");
    EXPECT_TRUE(t.session.state().enabled("Form10.Command4"));
    EXPECT_TRUE(t.session.state().enabled(printButton("Form10")));
    o = t.press("Command4");
    EXPECT_EQ(t.text("Form10b.Text1"), "9.73");
    EXPECT_EQ(t.text("Form10b.Text2"), "0");
    EXPECT_TRUE(t.session.screenShown("Form10b"));
    EXPECT_FALSE(t.session.screenShown("Form10"));
}

TEST(Form10Design, ChecksStopInOrderWithTheirFocus) {
    const std::vector<CheckCase> cases = {
        {{{"Text1", "19"}}, {}, msg::kLowFck, ""},
        {{{"List6", ""}}, {}, msg::kChooseClass, "Form10.List6"},
        {{{"List6", "3"}, {"Text1", "25"}}, {}, msg::kClassFck, "Form10.Text1"},
        {{{"Text2", "450"}}, {"yes"}, msg::kSteelClass, "Form10.Text2"},
        {{{"Text4", "0"}}, {}, "Forneça um valor positivo para bf.", "Form10.Text4"},
        {{{"Text5", ""}}, {}, "Forneça um valor positivo para hf.", "Form10.Text5"},
        {{{"Text6", "0"}}, {}, "Forneça um valor positivo para bw.", "Form10.Text6"},
        {{{"Text6", "60"}}, {}, kFlangeWiderThanWeb, "Form10.Text6"},
        {{{"Text6", "10"}}, {"yes"}, msg::kBeamWidth, "Form10.Text6"},
        {{{"Text7", "0"}}, {}, msg::kPositiveH, "Form10.Text7"},
        {{{"Text8", "0"}}, {}, msg::kPositiveD, "Form10.Text8"},
        {{{"Text5", "40"}}, {}, "A espessura da mesa deve ser menor que a altura total da seção.", "Form10.Text5"},
        {{{"Text8", "40"}}, {}, msg::kDBelowH, "Form10.Text8"},
        {{{"Text5", "36"}}, {}, "A altura útil tem que ser maior que a espessura da mesa hf.", "Form10.Text8"},
        {{{"Text9", ""}}, {}, msg::kPositiveDPrime, "Form10.Text9"},
        {{{"Text9", "36"}}, {}, msg::kDPrimeBelowD, "Form10.Text9"},
        {{{"Text10", ""}}, {}, "Forneça um valor positivo para o momento fletor Mk.", "Form10.Text10"},
        {{{"Text13", "0.9"}}, {}, msg::kPartialCoefficient, "Form10.Text13"},
        {{{"List2", "Balanceada"}, {"List3", "0.95"}}, {}, msg::kBalancedBeta, "Form10.List2"},
        // fck 90 with NBR-6118 at Beta 0.75: xlim 0.15 is below 2.6 / 12.6.
        {{{"Text1", "90"}, {"List2", "NBR-6118"}, {"List3", "0.75"}, {"Text5", "3"}, {"Text10", "400"}},
         {}, msg::kDomain2, "Form10.Text7"},
        {{{"Text9", "20"}, {"Text10", "400"}}, {}, msg::kEnlargeSection, "Form10.Text7"},
    };
    for (const auto& c : cases) {
        BeamRun t = tee(c.set, c.answers);
        t.session.state().setText("Text11", "old");
        Outcome o = t.press("Command3");
        SCOPED_TRACE(c.message);
        EXPECT_FALSE(o.completed);
        EXPECT_EQ(t.lastMessage(), c.message);
        EXPECT_EQ(t.prompter.messages().size(), 1u);
        EXPECT_EQ(o.focus, c.focus);
        EXPECT_EQ(t.text("Text11"), " ");
    }
}
