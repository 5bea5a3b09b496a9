// The report document and its paging on screen and on paper.
#include <gtest/gtest.h>

#include "reports/report_writer.h"

using namespace morve;

namespace {

ReportDocument bodyOf(int lines) {
    ReportWriter w;
    w.begin("Título");
    for (int i = 1; i <= lines; ++i) w.write("linha ", std::to_string(i));
    return w.document();
}

}  // namespace

TEST(ReportLine, TabsMoveToTheirColumnCountingCharactersNotBytes) {
    ReportLine l{{lit("Altura útil d= "), lit("36"), lit(" cm"), tab(40), lit("x")}, false};
    std::string t = l.text();
    // "Altura útil d= 36 cm" is 20 characters (22 bytes): 19 blanks reach column 40.
    EXPECT_EQ(t, "Altura útil d= 36 cm" + std::string(19, ' ') + "x");
    ReportLine past{{lit(std::string(45, 'a')), tab(40), lit("x")}, false};
    EXPECT_EQ(past.text(), std::string(45, 'a') + " x");
    ReportLine spaced{{lit("a"), blanks(5), lit("b"), num(0.41), num(2.5)}, false};
    EXPECT_EQ(spaced.text(), "a     b0.412.5");
}

TEST(Paging, ScreenPageHolds38LinesWithTheHeaderOnTheFirst) {
    // 7 header lines + 31 body lines = 38: one page; the 39th line opens page 2.
    EXPECT_EQ(paginate(bodyOf(31), "", PageRule::Screen).size(), 1u);
    auto two = paginate(bodyOf(32), "", PageRule::Screen);
    ASSERT_EQ(two.size(), 2u);
    EXPECT_EQ(two[0].lines.size(), 38u);
    ASSERT_EQ(two[1].lines.size(), 1u);
    EXPECT_EQ(two[1].lines[0].text, "linha 32");
    EXPECT_EQ(two[1].number, 2);
    // Page 2 has no header: 31 + 38 lines fill exactly two pages.
    EXPECT_EQ(paginate(bodyOf(69), "", PageRule::Screen).size(), 2u);
    EXPECT_EQ(paginate(bodyOf(70), "", PageRule::Screen).size(), 3u);
}

TEST(Paging, ScreenHeaderIsBoldAndNamesModuleAndDenomination) {
    auto pages = paginate(bodyOf(1), "Viga V1 - 'térreo'", PageRule::Screen);
    const auto& l = pages[0].lines;
    ASSERT_EQ(l.size(), 8u);
    EXPECT_EQ(l[0].text, " ");
    EXPECT_EQ(l[2].text, "RELATÓRIO DE CÁLCULO - MORVE");
    EXPECT_EQ(l[3].text, "Módulo: Título");
    EXPECT_EQ(l[4].text, "Denominação: Viga V1 - 'térreo'");
    for (int i = 0; i < 7; ++i) EXPECT_TRUE(l[static_cast<std::size_t>(i)].bold) << i;
    EXPECT_FALSE(l[7].bold);
}

TEST(Paging, PaperPageHolds53LinesWithAFiveLineHeader) {
    EXPECT_EQ(paginate(bodyOf(48), "", PageRule::Paper).size(), 1u);
    auto two = paginate(bodyOf(49), "", PageRule::Paper);
    ASSERT_EQ(two.size(), 2u);
    EXPECT_EQ(two[0].lines.size(), 53u);
    EXPECT_EQ(two[0].lines[0].text, "RELATÓRIO DE CÁLCULO - MORVE");
    EXPECT_EQ(paginate(bodyOf(48 + 53), "", PageRule::Paper).size(), 2u);
    EXPECT_EQ(paginate(bodyOf(48 + 54), "", PageRule::Paper).size(), 3u);
    std::string text = renderText(two, PageRule::Paper);
    EXPECT_NE(text.find('\f'), std::string::npos);
    EXPECT_NE(text.find("\f" + std::string(40, ' ') + "2\nlinha 49\n"), std::string::npos);
}

TEST(Paging, FixedBreaksAndPicturesTakeTheirPlace) {
    ReportWriter w;
    w.begin("Detalhamento");
    w.write("página 1");
    w.write("... Continua");
    w.pageBreak();
    w.blank();
    w.write("SOLUÇÃO FINAL:");
    Drawing g;
    g.line({0, 0}, {1, 1});
    w.picture(g, 20);
    w.pageBreak();  // a break at the very end opens no empty page
    auto pages = paginate(w.document(), "", PageRule::Screen);
    ASSERT_EQ(pages.size(), 2u);
    EXPECT_EQ(pages[0].lines.back().text, "... Continua");
    ASSERT_EQ(pages[1].lines.size(), 3u);
    EXPECT_EQ(pages[1].lines[1].text, "SOLUÇÃO FINAL:");
    ASSERT_TRUE(pages[1].lines[2].picture);
    EXPECT_EQ(pages[1].lines[2].pictureLines, 20);
    EXPECT_EQ(w.bodyLines(), 24);
}
