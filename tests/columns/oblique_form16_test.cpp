// Polygonal sections with two axes of symmetry (Form16): the polygon routines
// against a second way of integrating, the layered rectangle as oracle, the
// symmetries of the square and of the turned section, the checks and the report.
#include <numbers>

#include "columns/oblique_section.h"
#include "draw/polygon.h"
#include "oblique_case.h"

using morve::Point;
using morve::testing::ColumnCase;
using morve::testing::ObliqueCase;
using morve::testing::Rows;

namespace {

constexpr double kPi = std::numbers::pi;

// An L of legs 60 x 20 and 20 x 60 (non-convex), and a hexagon.
const std::vector<Point> kL{{0, 0}, {60, 0}, {60, 20}, {20, 20}, {20, 60}, {0, 60}};
const std::vector<Point> kHexagon{{10, 0}, {30, 0}, {40, 17}, {30, 34}, {10, 34}, {0, 17}};

// The area and first moment about y = 0 of the part above y = c, by horizontal
// strips: the width at a height is the sum of the chords there, linear between the
// heights of two vertices, so Simpson's rule is exact on each strip.
std::pair<double, double> stripsAbove(const std::vector<Point>& p, double c) {
    auto width = [&](double y) {
        std::vector<double> xs;
        for (std::size_t i = 0; i < p.size(); ++i) {
            const Point a = p[i], b = p[(i + 1) % p.size()];
            if ((a.y <= y) != (b.y <= y)) xs.push_back(a.x + (y - a.y) * (b.x - a.x) / (b.y - a.y));
        }
        std::sort(xs.begin(), xs.end());
        double w = 0;
        for (std::size_t i = 0; i + 1 < xs.size(); i += 2) w += xs[i + 1] - xs[i];
        return w;
    };
    std::vector<double> levels{c};
    for (const Point& v : p)
        if (v.y > c) levels.push_back(v.y);
    std::sort(levels.begin(), levels.end());
    double area = 0, moment = 0;
    for (std::size_t i = 0; i + 1 < levels.size(); ++i) {
        const double y0 = levels[i], y1 = levels[i + 1], ym = (y0 + y1) / 2, e = 1e-12 * (y1 - y0);
        if (y1 - y0 <= 0) continue;
        const double w0 = width(y0 + e), wm = width(ym), w1 = width(y1 - e);
        area += (y1 - y0) / 6 * (w0 + 4 * wm + w1);
        moment += (y1 - y0) / 6 * (w0 * y0 + 4 * wm * ym + w1 * y1);
    }
    return {area, moment};
}

}  // namespace

TEST(Polygon, ClippedAreaAndMomentMatchHorizontalStrips) {
    for (const auto* polygon : {&kL, &kHexagon})
        for (double turn : {0.0, 0.3, -1.1, 2.5})
            for (double share : {0.0, 0.17, 0.5, 0.83, 1.0}) {
                const std::vector<Point> p = morve::rotated(*polygon, turn);
                double lo = p[0].y, hi = p[0].y;
                for (const Point& v : p) lo = std::min(lo, v.y), hi = std::max(hi, v.y);
                const double cut = hi - share * (hi - lo);
                const auto m = morve::polygonMoments(morve::clipAbove(p, cut));
                const auto [area, moment] = stripsAbove(p, cut);
                EXPECT_NEAR(m.area, area, 1e-6 * (1 + area)) << turn << " " << share;
                EXPECT_NEAR(m.sx, moment, 1e-6 * (1 + std::abs(moment))) << turn << " " << share;
            }
    // The whole L: 2000 cm2 with its centroid at (22, 22).
    const auto whole = morve::polygonMoments(kL);
    EXPECT_DOUBLE_EQ(whole.area, 2000);
    EXPECT_DOUBLE_EQ(whole.sy / whole.area, 22);
    EXPECT_DOUBLE_EQ(whole.sx / whole.area, 22);
}

TEST(Polygon, CrossedOutlinesAndPointsInside) {
    EXPECT_FALSE(morve::crossesItself(kL));
    EXPECT_TRUE(morve::crossesItself({{0, 0}, {10, 10}, {10, 0}, {0, 10}}));          // a bow tie
    EXPECT_TRUE(morve::crossesItself({{0, 0}, {10, 0}, {10, 10}, {5, 0}, {0, 10}}));  // touches an edge
    EXPECT_TRUE(morve::containsPoint(kL, {10, 50}));
    EXPECT_TRUE(morve::containsPoint(kL, {60, 10}));  // on the outline
    EXPECT_FALSE(morve::containsPoint(kL, {40, 40}));  // in the notch
}

namespace {

ObliqueCase form16(Rows vertices, Rows bars, std::string nk, std::string mxk, std::string myk) {
    return {"Form16",
            {{"Text1", "25"}, {"Text3", "210"}, {"Text6", nk}, {"Text7", mxk}, {"Text8", myk}},
            std::move(vertices), std::move(bars)};
}

}  // namespace

TEST(SymmetricPolygon, RectangleWithCornerBarsIsTheLayeredSection) {
    // The same 20 x 50 section by the layered design, bent about either axis.
    for (auto [nk, mk] : {std::pair{"1000", "60"}, {"700", "150"}, {"60", "90"}}) {
        ColumnCase layered{"Form12",
                           {{"Text1", "25"}, {"Text3", "210"}, {"Text4", "20"}, {"Text5", "50"}, {"Text6", "4"},
                            {"Text7", "2"}, {"Text8", nk}, {"Text9", mk}},
                           {2, 2}, {}};
        auto expected = layered.press();
        ASSERT_TRUE(expected.outcome.completed);
        const double as = expected.number("Text10");
        auto about = form16(morve::testing::rectangle(20, 50), morve::testing::cornerBars(20, 50, 4), nk, mk, "0")
                         .press();
        auto turned = form16(morve::testing::rectangle(50, 20), morve::testing::cornerBars(50, 20, 4), nk, "0", mk)
                          .press();
        for (const auto* r : {&about, &turned}) {
            ASSERT_TRUE(r->outcome.completed) << nk;
            EXPECT_NEAR(r->number("Text9"), as, 0.003 * as + 0.01) << nk << " " << mk;
            EXPECT_EQ(r->text("Text10"), expected.text("Text11"));
            EXPECT_EQ(r->text("Text11"), "4");
            EXPECT_EQ(r->text("Text12"), expected.text("Text13"));
        }
    }
}

TEST(SymmetricPolygon, TurningTheSectionSwapsTheMoments) {
    // A chamfered 30 x 60 octagon with six bars, and the same turned a quarter.
    const Rows octagon{{-10, -30}, {10, -30}, {15, -25}, {15, 25}, {10, 30}, {-10, 30}, {-15, 25}, {-15, -25}};
    const Rows bars{{-11, -26}, {11, -26}, {11, 0}, {11, 26}, {-11, 26}, {-11, 0}};
    auto quarter = [](const Rows& rows) {
        Rows out;
        for (const auto& p : rows) out.push_back({-p[1], p[0]});
        return out;
    };
    auto a = form16(octagon, bars, "800", "120", "45").press();
    auto b = form16(quarter(octagon), quarter(bars), "800", "45", "120").press();
    ASSERT_TRUE(a.outcome.completed);
    ASSERT_TRUE(b.outcome.completed);
    EXPECT_GT(a.number("Text9"), 0);
    EXPECT_NEAR(a.number("Text9"), b.number("Text9"), 0.003 * a.number("Text9"));
}

TEST(SymmetricPolygon, EqualMomentsOnASquareTurnTheAxisByAnEighth) {
    const auto square = morve::centredSection({{0, 0}, {40, 0}, {40, 40}, {0, 40}},
                                       {{4, 4}, {36, 4}, {36, 36}, {4, 36}}, {0.25, 0.25, 0.25, 0.25});
    const morve::ObliqueModel model(square, {morve::StressBlockParameters(25), 0.85 * 2.5 / 1.4, 50 / 1.15, 21000});
    for (double nd : {0.0, 800.0, 2400.0}) {
        const auto axis = morve::alignMoment(model, 12, nd, 5000, 5000, {});
        EXPECT_TRUE(axis.converged);
        EXPECT_NEAR(axis.angle, -kPi / 4, 0.002 * kPi) << nd;
        EXPECT_NEAR(axis.r.n, nd, 0.001);
        EXPECT_NEAR(axis.r.mx, axis.r.my, 0.01 * axis.r.mx) << nd;
    }
}

TEST(SymmetricPolygon, CentredForceNeedsNoSearch) {
    // Nd = 1400 kN on 20 x 50, fck 20: the block takes 0.85 x 2/1.4 x 1000 =
    // 1214.29 kN, the bars at 2 per mille (42 kN/cm2) the rest: 4.42 cm2; the
    // minimum 0.15 x 1400 / 43.48 = 4.83 cm2 asks for four bars of 12.5.
    ObliqueCase c{"Form16", {{"Text3", "210"}, {"Text6", "1000"}, {"Text7", "0"}, {"Text8", "0"}},
                  morve::testing::rectangle(20, 50), morve::testing::cornerBars(20, 50, 4)};
    auto r = c.press();
    ASSERT_TRUE(r.outcome.completed);
    EXPECT_EQ(r.text("Text9"), "4.42");
    EXPECT_EQ(r.text("Text10"), "4.83");
    EXPECT_EQ(r.text("Text11"), "4");
    EXPECT_EQ(r.text("Text12"), "12.5");
    EXPECT_EQ(r.text("Text19"), "4.91");
    // Any outline passes whose bars balance about its centroid: a triangle with
    // its bars halfway to the corners from the centroid (10, 10).
    c.vertices = {{0, 0}, {30, 0}, {0, 30}};
    c.bars = {{5, 5}, {20, 5}, {5, 20}};
    c.set["Text6"] = "300";
    c.set["Text7"] = "30";
    r = c.press();
    EXPECT_TRUE(r.outcome.completed) << (r.messages.empty() ? "" : r.messages.back().text);
}

TEST(SymmetricPolygon, EachCheckStopsWithItsWordsAndFocus) {
    const Rows square = morve::testing::rectangle(30, 30), bars = morve::testing::cornerBars(30, 30, 4);
    const Rows reversed{square[3], square[2], square[1], square[0]};
    struct Stop {
        std::map<std::string, std::string> set;
        Rows vertices, bars;
        std::string message, focus, command = "Command4";
    };
    const std::string gama = "O coeficiente parcial de segurança não pode ser menor que 1.";
    const std::vector<Stop> stops{
        {{{"Text2", "0"}}, square, bars, "Forneça um valor positivo para fyk.", "Form16.Text2"},
        {{{"Text4", "2"}}, square, bars, "O número de vértices da seção deve ser maior ou igual a 3.", "Form16.Text4"},
        {{{"Text5", "0"}}, square, bars, "Forneça um valor positivo para o número de barras de aço.", "Form16.Text5"},
        {{{"Text5", "300"}}, square, bars, "Este programa está limitado a 299 barras de aço.", "Form16.Text5"},
        {{{"Text4", "300"}}, square, bars, "Este programa está limitado a seções com um máximo de 299 vértices.", "Form16.Text4"},
        {{{"Text4", "5"}}, square, bars, "Atualize as coordenadas dos vértices da seção.", "Form16.Command3"},
        {{{"Text5", "3"}}, square, bars, "Atualize as coordenadas das barras da armadura.", "Form16.Command3"},
        {{{"Text6", "-1"}}, square, bars, "O esforço normal Nk não pode ser negativo.", "Form16.Text6"},
        {{{"Text7", "-1"}}, square, bars, "Forneça um valor positivo (ou nulo) para Mxk.", "Form16.Text7"},
        {{{"Text8", "-1"}}, square, bars, "Forneça um valor positivo (ou nulo) para Myk.", "Form16.Text8"},
        {{{"Text13", "0.9"}}, square, bars, gama, "Form16.Text13"},
        {{{"Text14", "0.9"}}, square, bars, gama, "Form16.Text14"},
        {{{"Text15", "0.9"}}, square, bars, gama, "Form16.Text15"},
        {{}, reversed, bars, "Erro!   Verifique as coordenadas dos vértices da seção.", "Form16.Command3"},
        {{}, square, {{-11, -11}, {11, -11}, {11, 11}, {-11, 12}}, "Falta a dupla simetria. Verifique as coordenadas.", "Form16.Command3"},
        // The tables open only for counts that pass; the picture only for fresh tables.
        {{{"Text4", "2"}}, square, bars, "O número de vértices da seção deve ser maior ou igual a 3.", "Form16.Text4", "Command3"},
        {{{"Text5", "5"}}, square, bars, "Atualize as coordenadas das barras da armadura.", "Form16.Command3", "Command5"},
    };
    for (const Stop& stop : stops) {
        ObliqueCase c{"Form16", stop.set, stop.vertices, stop.bars};
        c.set.emplace("Text6", "500");
        c.set.emplace("Text7", "40");
        c.set.emplace("Text8", "20");
        auto r = c.press(stop.command);
        SCOPED_TRACE(stop.message);
        EXPECT_FALSE(r.outcome.completed);
        ASSERT_FALSE(r.messages.empty());
        EXPECT_EQ(r.messages.back().text, stop.message);
        EXPECT_EQ(r.messages.back().title, "MORVE");
        EXPECT_EQ(r.outcome.focus, stop.focus);
    }
}

TEST(SymmetricPolygon, ReportListsTheTablesAndTheResults) {
    ObliqueCase c{"Form16", {{"Text3", "210"}, {"Text6", "1000"}, {"Text7", "0"}, {"Text8", "0"}},
                  {{-10, -25}, {10, -25}, {10, 25}, {-10, 25}}, {{-6, -21}, {6, -21}, {6, 21}, {-6, 21}}};
    auto r = c.press();
    ASSERT_TRUE(r.outcome.completed);
    // After the materials and coefficients that every column report shares.
    const std::vector<std::string> expected{
        "Gamac= 1.4     Gamas= 1.15     Gamaf= 1.4",
        " ",
        "Número de vértices da seção= 4",
        "Número de barras de aço= 4",
        " ",
        "Coordenadas dos vértices da seção:",
        "Vértice= 1                   X (cm)= -10              Y (cm)= -25",
        "Vértice= 2                   X (cm)= 10               Y (cm)= -25",
        "Vértice= 3                   X (cm)= 10               Y (cm)= 25",
        "Vértice= 4                   X (cm)= -10              Y (cm)= 25",
        " ",
        "Coordenadas das barras de aço:",
        "Barra= 1                     X (cm)= -6               Y (cm)= -21",
        "Barra= 2                     X (cm)= 6                Y (cm)= -21",
        "Barra= 3                     X (cm)= 6                Y (cm)= 21",
        "Barra= 4                     X (cm)= -6               Y (cm)= 21",
        " ",
        "Esforços solicitantes de serviço:",
        "Esforço normal Nk= 1000 kN",
        "Momentos fletores: Mxk= 0 kNm     Myk= 0 kNm",
        " ",
        "RESULTADOS:",
        " ",
        "Área de aço calculada: As= 4.42 cm2",
        " ",
        "Armadura mínima= 4.83 cm2",
        " ",
        "SOLUÇÃO:     4 barras de 12.5 mm",
    };
    const auto lines = morve::testing::reportLines(*r.session, "Form16");
    ASSERT_GT(lines.size(), 5u);
    EXPECT_EQ(std::vector<std::string>(lines.begin() + 5, lines.end()), expected);
}
