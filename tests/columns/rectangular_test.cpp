// Solid and hollow rectangular sections: design (Form12, Form12d) against
// verification (Form13, Form13e), hand-worked values and the limits of the model.
// The squash load and half of it are cases in tests/cases/columns.
#include <cmath>

#include "column_case.h"

using morve::testing::ColumnCase;

namespace {

ColumnCase form12(std::string nk, std::string mk) {
    return {"Form12",
            {{"Text1", "25"}, {"Text3", "210"}, {"Text4", "20"}, {"Text5", "50"}, {"Text6", "4"},
             {"Text7", "3"}, {"Text8", nk}, {"Text9", mk}},
            {3, 2, 3}, {}};
}

ColumnCase form13(std::string nd, std::string as) {
    return {"Form13",
            {{"Text1", "25"}, {"Text3", "210"}, {"Text4", "20"}, {"Text5", "50"}, {"Text6", "4"},
             {"Text7", "3"}, {"Text8", nd}, {"Form13b.Text1", as}},
            {3, 2, 3}, {}};
}

}  // namespace

TEST(RectangularColumn, DesignedSectionGivesBackItsMoment) {
    // Small eccentricity, large eccentricity and nearly pure bending.
    for (auto [nk, mk] : {std::pair{"1000", "60"}, {"700", "150"}, {"60", "90"}}) {
        auto design = form12(nk, mk).press();
        ASSERT_TRUE(design.outcome.completed) << nk;
        ASSERT_GT(design.number("Text10"), design.number("Text11")) << "the minimum must not govern";
        auto check = form13(morve::formatResult(1.4 * std::stod(nk)), design.text("Text10")).press();
        ASSERT_TRUE(check.outcome.completed);
        EXPECT_NEAR(check.number("Text10"), 1.4 * std::stod(mk), 0.005 * 1.4 * std::stod(mk)) << nk << " " << mk;
    }
}

TEST(RectangularColumn, PureBendingMatchesTheHandSolution) {
    // 20 x 50, d' 5, 5 cm2 at each face, fck 20, CA-50, Nd = 0. Domain 2: the
    // tension steel at 10 per mille and yielded, the compression steel elastic:
    // 0.8 x 20 sigma_cd x + 5 Es 0.01 (x - 5)/(45 - x) = 5 fyd.
    const double sc = 0.85 * 2.0 / 1.4, fyd = 50 / 1.15;
    auto force = [&](double x) { return 16 * sc * x + 5 * 21000 * 0.01 * (x - 5) / (45 - x) - 5 * fyd; };
    double lo = 5, hi = 20;
    for (int i = 0; i < 200; ++i) ((force(0.5 * (lo + hi)) < 0) ? lo : hi) = 0.5 * (lo + hi);
    const double x = lo, stress = 21000 * 0.01 * (x - 5) / (45 - x);
    ASSERT_LT(x / 50, 3.5 * 0.9 / 13.5);  // domain 2 indeed
    ASSERT_LT(stress, fyd);
    const double m = (16 * sc * x * (25 - 0.4 * x) + 5 * stress * 20 + 5 * fyd * 20) / 100;

    ColumnCase c{"Form13",
                 {{"Text3", "210"}, {"Text4", "20"}, {"Text5", "50"}, {"Text6", "5"}, {"Text7", "2"},
                  {"Text8", "0"}, {"Form13b.Text1", "10"}},
                 {2, 2}, {}};
    auto r = c.press();
    ASSERT_TRUE(r.outcome.completed);
    EXPECT_NEAR(r.number("Text10"), m, 0.005 * m);
}

TEST(BoxColumn, BoxWithoutHoleIsTheSolidRectangle) {
    // 20 x 50 with bw = b/2 and hf = h/2 leaves no hole: design and verification agree.
    const std::map<std::string, std::string> section{{"Text4", "20"}, {"Text5", "50"}, {"Text7", "3"}};
    auto with = [&](const char* module, std::map<std::string, std::string> more) {
        more.insert(section.begin(), section.end());
        return ColumnCase{module, more, {3, 2, 3}, {}}.press();
    };
    auto hollow = with("Form12d", {{"Text12", "10"}, {"Text6", "25"}, {"Text13", "4"}, {"Text8", "700"}, {"Text9", "150"}});
    auto solid = with("Form12", {{"Text6", "4"}, {"Text8", "700"}, {"Text9", "150"}});
    ASSERT_TRUE(hollow.outcome.completed);
    EXPECT_EQ(hollow.text("Text10"), solid.text("Text10"));
    EXPECT_EQ(hollow.text("Text11"), solid.text("Text11"));
    EXPECT_EQ(hollow.text("Text18"), solid.text("Text13"));
    auto boxCheck = with("Form13e", {{"Text12", "10"}, {"Text13", "25"}, {"Text6", "4"}, {"Text10", "980"}, {"Form13f.Text1", "12"}});
    auto solidCheck = with("Form13", {{"Text6", "4"}, {"Text8", "980"}, {"Form13b.Text1", "12"}});
    EXPECT_EQ(boxCheck.text("Text11"), solidCheck.text("Text10"));
}

TEST(BoxColumn, DesignedBoxGivesBackItsMoment) {
    const std::map<std::string, std::string> box{{"Text4", "80"}, {"Text5", "100"}, {"Text12", "15"}, {"Text7", "4"}};
    for (auto [nk, mk] : {std::pair{"3000", "1000"}, {"1200", "1500"}}) {
        ColumnCase design{"Form12d", box, {8, 2, 2, 8}, {}};
        design.set.insert({{"Text6", "12"}, {"Text13", "5"}, {"Text8", nk}, {"Text9", mk}});
        auto d = design.press();
        ASSERT_TRUE(d.outcome.completed) << nk;
        ASSERT_GT(d.number("Text10"), d.number("Text11"));
        ColumnCase check{"Form13e", box, {8, 2, 2, 8}, {}};
        check.set.insert({{"Text13", "12"}, {"Text6", "5"}, {"Text10", morve::formatResult(1.4 * std::stod(nk))},
                          {"Form13f.Text1", d.text("Text10")}});
        auto v = check.press();
        ASSERT_TRUE(v.outcome.completed);
        EXPECT_NEAR(v.number("Text11"), 1.4 * std::stod(mk), 0.005 * 1.4 * std::stod(mk)) << nk;
    }
}
