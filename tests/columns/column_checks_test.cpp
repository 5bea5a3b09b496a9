// What the valid cases of the column modules enable; the layer table; the interaction
// diagram; the section drawing. The checks in order and the reports are cases in
// tests/cases/columns.
#include <algorithm>

#include "column_case.h"

using morve::testing::ColumnCase;

namespace {

const std::map<std::string, ColumnCase>& validCases() {
    static const std::map<std::string, ColumnCase> cases{
        {"Form12", {"Form12", {{"Text6", "4"}, {"Text7", "2"}, {"Text8", "500"}, {"Text9", "50"}}, {3, 3}, {}}},
        {"Form12d",
         {"Form12d", {{"Text13", "4"}, {"Text7", "2"}, {"Text8", "2000"}, {"Text9", "200"}}, {4, 4}, {}}},
        {"Form13", {"Form13", {{"Text6", "4"}, {"Text7", "2"}, {"Text8", "500"}, {"Form13b.Text1", "8"}}, {3, 3}, {}}},
        {"Form13e",
         {"Form13e", {{"Text6", "4"}, {"Text7", "2"}, {"Text10", "2000"}, {"Form13f.Text1", "20"}}, {4, 4}, {}}},
        {"Form14", {"Form14", {{"Text5", "4"}, {"Text6", "8"}, {"Text7", "2000"}, {"Text8", "200"}}, {}, {}}},
        {"Form14c", {"Form14c", {{"Text5", "4"}, {"Text6", "8"}, {"Text7", "2000"}, {"Text8", "200"}}, {}, {}}},
        {"Form15", {"Form15", {{"Text5", "4"}, {"Text6", "8"}, {"Text7", "2000"}, {"Text9", "20"}}, {}, {}}},
        {"Form25", {"Form25", {{"Text5", "4"}, {"Text6", "8"}, {"Text8", "2000"}, {"Text7", "20"}}, {}, {}}},
    };
    return cases;
}

}  // namespace

// Design enables the report; verification only the diagram, which enables it. That
// the valid cases run to the end without a word, and their reports, are cases in
// tests/cases/columns/column-reports.json.
TEST(ColumnChecks, ValidCasesEnableWhatTheyMust) {
    for (const auto& [key, c] : validCases()) {
        auto r = c.press();
        const bool design = key == "Form12" || key == "Form12d" || key == "Form14" || key == "Form14c";
        EXPECT_EQ(r.session->state().enabled(morve::printButton(key)), design) << key;
        EXPECT_TRUE(design || r.session->state().enabled(key + ".Command6")) << key;
    }
}

TEST(LayerTable, OpensWithNRowsKeepsTypedBarsAndTrimsOnOk) {
    const morve::Module* m = morve::ModuleRegistry::find("Form13");
    morve::ModuleSession session(*m, morve::StartDefaults{});
    morve::ScriptedPrompter prompter;
    session.state().setText("Text7", "1");
    auto o = session.press("Command3", prompter);
    EXPECT_FALSE(o.completed);
    EXPECT_EQ(o.focus, "Form13.Text7");
    session.state().setText("Text7", "2");
    ASSERT_TRUE(session.press("Command3", prompter).completed);
    EXPECT_TRUE(session.screenShown("Form13b"));
    EXPECT_FALSE(session.screenShown("Form13"));
    auto& rows = session.state().grid("Form13b.Grade1");
    ASSERT_EQ(rows.size(), 3u);
    // "OK" keeps three characters of a count, never part of one.
    rows[1][1] = "12345";
    rows[2][1] = "çãé€";
    session.press("Form13b.Command2", prompter);
    EXPECT_TRUE(session.screenShown("Form13"));
    EXPECT_EQ(session.state().grid("Form13b.Grade1")[1][1], "123");
    EXPECT_EQ(session.state().grid("Form13b.Grade1")[2][1], "çãé");
    session.state().setText("Text7", "3");
    session.press("Command3", prompter);
    ASSERT_EQ(session.state().grid("Form13b.Grade1").size(), 4u);
    EXPECT_EQ(session.state().grid("Form13b.Grade1")[3][0], "3");
    EXPECT_EQ(session.state().grid("Form13b.Grade1")[1][1], "123");
}

TEST(InteractionDiagram, HundredPointsUpToTheSquashLoad) {
    for (std::string key : {"Form13", "Form15"}) {
        ColumnCase c = validCases().at(key);
        auto r = c.press();
        ASSERT_TRUE(r.outcome.completed);
        morve::ScriptedPrompter prompter;
        auto o = r.session->press("Command6", prompter);
        ASSERT_TRUE(o.completed) << key;
        EXPECT_TRUE(r.session->state().enabled(morve::printButton(key)));
        EXPECT_TRUE(r.session->screenShown("Form13c"));
        const morve::Chart chart = r.session->module().chart("Form13c.MSChart1", r.session->state());
        ASSERT_EQ(chart.series.size(), 2u);
        EXPECT_EQ(chart.title, "Diagrama de interação na flexo-compressão normal");
        EXPECT_EQ(chart.xTitle, "Esforço normal de cálculo (kN)");
        EXPECT_EQ(chart.yTitle, "Momento fletor de cálculo (kNm)");
        const auto& p = chart.series[0].points;
        ASSERT_EQ(p.size(), 100u);
        // Squash load with the diagram's own stress: 0.85 fcd (0.8 for circles) and
        // the steel at 2 per mille (40 kN/cm2 with Es 200).
        const double fcd = 2 / 1.4, area = key == "Form13" ? 800 : 3.141592654 * 900;
        const double squash = key == "Form13" ? 0.85 * fcd * area + 8 * 40 : 0.8 * fcd * area + 20 * 40;
        // The search stops within 0.001 of nu: near the peak Md may wobble by that
        // much force times the depth, and no more.
        const double wobble = 0.001 * squash * (key == "Form13" ? 40 : 60) / 100;
        EXPECT_NEAR(p.back().x, squash, 1e-6 * squash);
        EXPECT_EQ(p.back().y, 0);
        EXPECT_EQ(p.front().x, 0);
        // Nd rises by equal steps; Md rises to one peak and falls.
        auto peak = std::max_element(p.begin(), p.end(), [](auto& a, auto& b) { return a.y < b.y; });
        for (std::size_t i = 1; i < p.size(); ++i) {
            EXPECT_GT(p[i].x, p[i - 1].x);
            if (p.begin() + i <= peak) EXPECT_GE(p[i].y, p[i - 1].y - wobble) << key << " " << i;
            else EXPECT_LE(p[i].y, p[i - 1].y + wobble) << key << " " << i;
        }
        const double span = p.back().x;
        EXPECT_NEAR(chart.xMin, -0.05 * span, 1e-9 * span);
        EXPECT_NEAR(chart.xMax, 1.05 * span, 1e-9 * span);
        // The case's own point lies inside the curve at its Nd.
        const auto& own = chart.series[1].points.at(0);
        auto above = std::lower_bound(p.begin(), p.end(), own.x, [](auto& a, double x) { return a.x < x; });
        EXPECT_LE(own.y, std::max(above->y, (above - 1)->y) * 1.05);
    }
}

TEST(SectionDrawing, ShowsTheOutlineAndEveryBar) {
    auto countBars = [](const morve::Drawing& g) {
        return std::count_if(g.shapes.begin(), g.shapes.end(), [](const morve::Shape& s) {
            auto c = std::get_if<morve::Circle>(&s.geometry);
            return c && c->filled && c->radius == 0.8;
        });
    };
    for (std::string key : {"Form12", "Form13e", "Form14c", "Form25"}) {
        auto r = validCases().at(key).press("Command5");
        ASSERT_TRUE(r.outcome.completed) << key;
        EXPECT_TRUE(r.session->screenShown("Form12c"));
        const morve::Drawing g = r.session->module().drawing("Form12c.Picture1", r.session->state());
        EXPECT_EQ(countBars(g), key == "Form12" ? 6 : 8) << key;
    }
    // Nothing is drawn from a section that fails its checks.
    ColumnCase bad = validCases().at("Form14");
    bad.set["Text6"] = "7";
    auto r = bad.press("Command5");
    EXPECT_FALSE(r.outcome.completed);
    EXPECT_TRUE(r.session->module().drawing("Form12c.Picture1", r.session->state()).empty());
}
