// Form8 and Form10b: bars, layers, the true d and d', the drawing; and the
// reports of the bending family.
#include <gtest/gtest.h>

#include <algorithm>

#include "basis/materials.h"
#include "beam_session.h"
#include "beams/detailing.h"

using namespace morve;
using morve::testing::BeamRun;

namespace {

// Form7 designs 20 x 40, d 36, d' 4, fck 25, class 2, and goes to Form8 with
// bars 16 / 10 mm, stirrups 6.3, cover 3, aggregate 19, vibrator 5.
BeamRun detailed(const std::string& mk, const std::map<std::string, std::string>& more = {}) {
    BeamRun run("Form7");
    run.set({{"Text1", "25"}, {"Text10", "4"}, {"Text6", mk}, {"List6", "2"}, {"Form8.List1", "16"},
             {"Form8.List2", "10"}, {"Form8.List3", "6.3"}, {"Form8.List4", "3"}, {"Form8.List5", "19"},
             {"Form8.List6", "5"}});
    run.set(more);
    run.press("Command1");
    run.press("Command3");
    return run;
}

int filledCircles(const Drawing& g) {
    return static_cast<int>(std::count_if(g.shapes.begin(), g.shapes.end(), [](const Shape& s) {
        const auto* c = std::get_if<Circle>(&s.geometry);
        return c && c->filled;
    }));
}

}  // namespace

TEST(Form8Detailing, TheSectionDrawingShowsEveryBar) {
    // 7 bars of 16 below and 5 of 10 above (tests/cases/beams/form8-detailing.json).
    BeamRun run = detailed("120");
    run.press("Form8.Command2");
    run.press("Form8.Command3");
    EXPECT_EQ(filledCircles(run.session.module().drawing("Form8b.Picture1", run.session.state())), 12);
}

TEST(Form8Detailing, BarCountsAndLayers) {
    EXPECT_EQ(barCount(4 * BarCatalogue::barArea(16), 16), 4);
    EXPECT_EQ(barCount(8.05, 16), 5);
    EXPECT_EQ(barCount(0, 10), 2);
    // W 12.74, 16 mm, e 2.28, vibrator 5: three in the first layer, pairs after it.
    EXPECT_EQ(fitLayers(3, 12.74, 1.6, 2.28, 5).counts, (std::vector<int>{3}));
    EXPECT_EQ(fitLayers(4, 12.74, 1.6, 2.28, 5).counts, (std::vector<int>{3, 1}));
    EXPECT_EQ(fitLayers(5, 12.74, 1.6, 2.28, 5).counts, (std::vector<int>{3, 2}));
    EXPECT_EQ(fitLayers(21, 12.74, 1.6, 2.28, 5).counts.size(), 10u);
    EXPECT_EQ(fitLayers(22, 12.74, 1.6, 2.28, 5).stop, LayerStop::TooManyLayers);
    // (4.56 + 12.74 - 12) / 3.88 = 1.37 -> 1, odd -> 0: no room beside the vibrator.
    EXPECT_EQ(fitLayers(4, 12.74, 1.6, 2.28, 12).stop, LayerStop::NoSecondLayer);
}

TEST(Form10bDetailing, WebWordsAndTheFlangeInTheDrawing) {
    BeamRun run("Form10");
    run.set({{"Text5", "10"}, {"Text9", "4"}, {"Text10", "100"}, {"List6", "1"}, {"Form10b.List1", "12.5"},
             {"Form10b.List2", "8.0"}, {"Form10b.List3", "5.0"}, {"Form10b.List4", "2.5"},
             {"Form10b.List5", "38"}, {"Form10b.List6", "3"}});
    run.press("Command3");
    run.press("Command4");
    EXPECT_FALSE(run.press("Form10b.Command2").completed);
    EXPECT_EQ(run.lastMessage(),
              "Limite o diâmetro do agregado em 25% da largura da nervura. Escolha outro valor.");

    run.set({{"Form10b.List5", "19"}});
    ASSERT_TRUE(run.press("Form10b.Command2").completed);
    // 9.73 / 1.2272 = 7.93 -> 8 bars of 12.5 in a 12 cm web.
    EXPECT_EQ(run.text("Form10b.Text3"), "8");
    run.press("Form10b.Command3");
    const Drawing g = run.session.module().drawing("Form10c.Picture1", run.session.state());
    EXPECT_EQ(filledCircles(g), 10);
    const auto outline = std::find_if(g.shapes.begin(), g.shapes.end(), [](const Shape& s) {
        const auto* p = std::get_if<Polyline>(&s.geometry);
        return p && p->points.size() == 8;
    });
    EXPECT_NE(outline, g.shapes.end());

    BeamRun tight("Form10");
    tight.set({{"Text5", "10"}, {"Text9", "4"}, {"Text10", "100"}, {"List6", "1"}, {"Form10b.List1", "25"},
               {"Form10b.List2", "8.0"}, {"Form10b.List3", "9.5"}, {"Form10b.List4", "4"},
               {"Form10b.List5", "25"}, {"Form10b.List6", "3"}});
    tight.press("Command3");
    tight.press("Command4");
    EXPECT_FALSE(tight.press("Form10b.Command2").completed);
    EXPECT_EQ(tight.lastMessage(), "Não é possível colocar 2 barras por camada na nervura. Revise o seu projeto.");
}
