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

// Hand calculations, kN and cm: sigmacd = 1.21429, fyd = 43.478, d = 36.
TEST(Form10Design, FlangeWebAndCompressionSteelByHand) {
    const struct {
        const char* what;
        std::map<std::string, std::string> set;
        const char *as, *asPrime;
    } cases[] = {
        // mu = 14000 / (60 x 36^2 x 1.21429) = 0.14827: a block of 5.81 cm in the 10 cm flange.
        {"block in the flange", {}, "9.73", "0"},
        // The overhangs, 349.71 kN at 33 cm, carry 11540.6 of Md 16800; the web's block is 12.04 cm.
        {"block in the web", {{"Text5", "6"}, {"Text10", "120"}}, "12.08", "0"},
        // mu 0.23723 above the T's limit 0.181262: the excess 5284.5 by a couple over 32 cm,
        // As' = 165.14 / 43.478 = 3.80, As = 12.387 + 3.798.
        {"compression steel", {{"Text5", "6"}, {"Text10", "160"}}, "16.19", "3.8"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.what);
        BeamRun t = tee(c.set);
        ASSERT_TRUE(t.press("Command3").completed);
        EXPECT_EQ(t.text("Text11"), c.as);
        EXPECT_EQ(t.text("Text12"), c.asPrime);
    }
    // The flange case is the rectangle of width bf.
    BeamRun t = tee();
    t.press("Command3");
    BeamRun r("Form7");
    r.set({{"Text3", "60"}, {"Text10", "4"}, {"Text6", "100"}, {"List6", "1"}});
    ASSERT_TRUE(r.press("Command1").completed);
    EXPECT_EQ(r.text("Text7"), t.text("Text11"));
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
