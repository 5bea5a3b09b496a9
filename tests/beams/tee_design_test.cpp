// Form10: the T section in simple bending.
#include <gtest/gtest.h>

#include <cmath>

#include "beams/bending.h"
#include "beam_session.h"

using namespace morve;
using morve::testing::BeamRun;

namespace {

// bf 60, hf 10, bw 12, h 40, d 36, d' 4, fck 20, CA-50, class 1.
BeamRun tee(const std::map<std::string, std::string>& more = {}, std::vector<std::string> answers = {}) {
    BeamRun run("Form10", std::move(answers));
    run.set({{"Text5", "10"}, {"Text9", "4"}, {"Text10", "100"}, {"List6", "1"}});
    run.set(more);
    return run;
}

}  // namespace

TEST(Form10Design, TheFlangeCaseIsTheRectangleOfWidthBf) {
    // The hand-calculated designs are tests/cases/beams/form10-design.json.
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
