// Column design situations: the eccentricities and situations of the four column
// types against hand calculations, the slenderness limits, the checks in order,
// the screens and the plot, and the report.
#include "../module_run.h"
#include "../stop_expectations.h"
#include "basis/messages.h"
#include "column_case.h"

using namespace morve;
using morve::testing::labels;
using morve::testing::reportLines;

namespace {

const Module& form35() { return *ModuleRegistry::find("Form35"); }
using Rows = std::vector<std::vector<std::string>>;

using morve::testing::Run;

Rows rows(const Run& run) {
    const GridRows& g = run.session->state().grid("Form35c.Grade1");
    return {g.begin() + 1, g.end()};
}

// A 20 x 20 column, 3 m both ways, Fk 500 kN, fck 20, Ecs 25757, phi 2.5, then the
// changes of the case ("Option2": "True" picks the other section).
std::unique_ptr<Run> calculate(const std::map<std::string, std::string>& set,
                               std::vector<std::string> answers = {}) {
    const auto boxes = morve::testing::with({{"Text8", "3"}, {"Text9", "3"}, {"Text14", "500"}}, set);
    return morve::testing::pressWith("Form35", "Command3", boxes, std::move(answers));
}

struct SituationCase {
    const char* what;
    std::map<std::string, std::string> set;
    std::map<std::string, std::string> boxes;  // on Form35c
    Rows rows;
};

// 20 x 20 of 3 m: i = 5.7735, lambda 51.96; nu = 700 / 571.43 = 1.225; e2 = 0.005 x
// 300^2 / (10 x 20 x 1.725) = 1.3043; Euler 9.8696 x 2575.7 x 13333.3 / 90000 =
// 3766.1 kN, creep factor exp(2.5 x 500 / 3266.1) - 1 = 0.46627.
const SituationCase kSituations[] = {
    // Each way: e_a 0.75, e1,min 2.1, ec = 0.46627 x 0.75 = 0.3497; total 3.754.
    {"intermediate", {},
     {{"Text1", "PILAR INTERMEDIÁRIO"}, {"Text12", "51.96"}, {"Text2", "0.75"}, {"Text3", "2.1"}, {"Text5", "1.3"},
      {"Text6", "0.35"}, {"Text11", "0.35"}},
     {{"1", "3.75", "0"}, {"2", "0", "3.75"}}},
    // Max 20, Mbx 10: ends 4 and 2 cm, e1c = 2.4 + 0.8 = 3.2; middle 3.95, creep on it
    // 1.8418; total 1.3043 + 3.95 + 1.8418 = 7.096.
    {"end along x", {{"Text10", "20"}, {"Text11", "10"}},
     {{"Text1", "PILAR DE EXTREMIDADE"}, {"Text6", "1.84"}, {"Text11", "0.35"}},
     {{"1", "7.1", "0"}, {"2", "0", "3.75"}}},
    // 20 x 30, ley 2.5, Fk 600: nu 0.98. y: lambda 28.87, no creep, e2y = 0.005 x 62500
    // / (300 x 1.48) = 0.7038; ends -2.5 and 2.5 opposite: 0.5 raised to 1.0; middle
    // 0.7038 + 2.4 = 3.104 below the end 3.125, written 3.12 (half to even).
    // x: e2x = 0.005 x 90000 / (200 x 1.48) = 1.5203; Euler 5649.2, creep
    // exp(1500 / 5049.2) - 1 = 0.3459 on 0.75; total 1.5203 + 2.1 + 0.2594 = 3.880.
    {"end along y first", {{"Text6", "30"}, {"Text9", "2.5"}, {"Text14", "600"}, {"Text12", "-15"}, {"Text13", "15"}},
     {{"Text1", "PILAR DE EXTREMIDADE"}, {"Text13", "28.87"}, {"Text10", "0.7"}, {"Text11", "0"}, {"Text6", "0.26"}},
     {{"1", "0", "3.12"}, {"2", "3.88", "0"}}},
    // 25 x 25, 4 m, Fk 1000: nu 1.568, e2 = 0.005 x 160000 / (250 x 2.068) = 1.5474;
    // lambda 55.43; Euler 5172.0, creep 0.8203. x: 3 and -1 cm, e1c 1.4, ecx on 2.4 =
    // 1.969; y: 2 and 0 cm, e1c 1.2, ecy on 2.2 = 1.806. Ends a (4, 2), (3, 3);
    // b (2.25, 0), (1, 2.25); middle 1.5474 + 2.4 + 1.969 = 5.917 / 1.2, 1.4 / 5.603.
    {"corner", {{"Text5", "25"}, {"Text6", "25"}, {"Text8", "4"}, {"Text9", "4"}, {"Text14", "1000"}, {"Text10", "30"},
                {"Text11", "-10"}, {"Text12", "20"}, {"Text13", "0"}},
     {{"Text1", "PILAR DE CANTO"}, {"Text6", "1.97"}, {"Text11", "1.81"}},
     {{"1", "4", "2"}, {"2", "3", "3"}, {"3", "2.25", "0"}, {"4", "1", "2.25"}, {"5", "5.92", "1.2"}, {"6", "1.4", "5.6"}}},
};

}  // namespace

TEST(Form35Situations, FourColumnTypesByHand) {
    for (const auto& c : kSituations) {
        SCOPED_TRACE(c.what);
        auto run = calculate(c.set);
        ASSERT_TRUE(run->outcome.completed);
        for (const auto& [box, text] : c.boxes) EXPECT_EQ(run->text("Form35c." + box), text) << box;
        EXPECT_EQ(rows(*run), c.rows);
    }
}

TEST(Form35Slenderness, FiftyHasNoCreepAndNinetyStillPasses) {
    // Other section: A 400, Ix = Iy = 40000, radius of gyration exactly 10 cm.
    auto with = [&](const char* le) {
        return calculate({{"Option2", "True"}, {"Text7", "400"}, {"Text15", "40000"}, {"Text16", "40000"}, {"Text8", le}});
    };
    auto fifty = with("5");
    EXPECT_EQ(fifty->text("Form35c.Text12"), "50");
    EXPECT_EQ(fifty->text("Form35c.Text6"), "0");
    EXPECT_NE(with("5.01")->text("Form35c.Text6"), "0");
    auto ninety = with("9");
    EXPECT_TRUE(ninety->outcome.completed);
    EXPECT_EQ(ninety->text("Form35c.Text12"), "90");
    auto beyond = with("9.01");
    EXPECT_FALSE(beyond->outcome.completed);
    EXPECT_EQ(beyond->prompter.messages().back().text,
              "O pilar é esbelto e não pode ser dimensionado através de processos simplificados.");
    EXPECT_TRUE(beyond->outcome.effects.empty());  // nothing shown
}

TEST(Form35Checks, StopInOrderWithTheirTextAndFocus) {
    struct Check {
        std::map<std::string, std::string> set;
        std::vector<std::string> answers;
        std::string message;
        MessageKind kind;
        std::string focus;
    };
    const std::string kDim = "A NBR-6118 não admite pilares com dimensão menor que 14cm. VOCÊ QUER CORRIGIR A DIMENSÃO?";
    const std::string kInertia = "O momento de inércia não pode ser nulo.";
    using K = MessageKind;
    const Check checks[] = {
        {{{"Text1", "19.9"}, {"Text2", "0"}}, {}, msg::kLowFck, K::Warning, ""},
        {{{"Text1", "90.1"}, {"Text2", "0"}}, {}, msg::kHighFck, K::Warning, "Text1"},
        {{{"Text2", "0"}, {"Text17", "6"}}, {}, msg::kPositiveEcs, K::Warning, "Text2"},
        // 0.7 x 25757.9 = 18030.5
        {{{"Text2", "18030"}}, {"yes"}, "O módulo secante do concreto está fora dos limites razoáveis. VOCÊ QUER CORRIGIR O MÓDULO?", K::YesNo, "Text2"},
        {{{"Text17", "5.01"}, {"Text3", "0"}}, {"yes"}, "O coeficiente de fluência é muito alto e pode ter havido um erro em sua avaliação. VOCÊ QUER ALTERAR O COEFICIENTE DE FLUÊNCIA?", K::YesNo, "Text17"},
        {{{"Text3", "0.99"}, {"Text4", "0"}}, {}, msg::kPartialCoefficient, K::Warning, "Text3"},
        {{{"Text4", "0"}, {"Text5", "10"}}, {}, msg::kPartialCoefficient, K::Warning, "Text4"},
        {{{"Text5", "13.9"}}, {"yes"}, kDim, K::YesNo, "Text5"},
        {{{"Text6", "13.9"}}, {"yes"}, kDim, K::YesNo, "Text6"},
        {{{"Text5", ""}}, {"no"}, "A dimensão hx não pode ser nula.", K::Warning, "Text5"},
        {{{"Option2", "True"}, {"Text7", "0"}}, {}, kInertia, K::Warning, "Text15"},
        {{{"Option2", "True"}, {"Text15", "100"}}, {}, kInertia, K::Warning, "Text16"},
        {{{"Option2", "True"}, {"Text15", "100"}, {"Text16", "100"}}, {}, "A área da seção não pode ser nula.", K::Warning, "Text7"},
        {{{"Option2", "True"}, {"Text15", "100"}, {"Text16", "100"}, {"Text7", "-400"}}, {}, "Os momentos de inércia e a área da seção devem ter o mesmo sinal.", K::Warning, "Text7"},
        {{{"Text8", ""}, {"Text9", ""}}, {}, "O comprimento de flambagem lex não pode ser nulo.", K::Warning, "Text8"},
        {{{"Text9", "0"}, {"Text14", ""}}, {}, "O comprimento de flambagem ley não pode ser nulo.", K::Warning, "Text9"},
        {{{"Text14", "0"}}, {}, "A força normal Fk não pode ser nula.", K::Warning, "Text14"},
    };
    for (const auto& c : checks) {
        SCOPED_TRACE(c.message);
        auto run = calculate(c.set, c.answers);
        expectStop(run->prompter, run->outcome, c.message, c.kind,
                   c.focus.empty() ? "" : "Form35." + c.focus);
        EXPECT_EQ(run->text("Form35c.Text1"), "");
    }
}

TEST(Form35Checks, WarningsAndNoAnswersGoOn) {
    // 18 x 18 = 324 cm2 warns and goes on; a modulus out of range and a high creep
    // coefficient answered No are kept; negative lengths and forces are not refused.
    auto run = calculate({{"Text5", "18"}, {"Text6", "18"}, {"Text2", "40000"}, {"Text17", "6"}, {"Text14", "-500"},
                          {"Text8", "-3"}}, {"no", "no"});
    EXPECT_TRUE(run->outcome.completed);
    ASSERT_EQ(run->prompter.messages().size(), 3u);
    EXPECT_EQ(run->prompter.messages()[2].text,
              "ATENÇÃO: A área da seção do pilar é menor que 360cm2, o que não é permitido pela NBR-6118.");
    EXPECT_EQ(run->prompter.messages()[2].kind, MessageKind::Warning);
    for (const auto& row : rows(*run))
        for (const auto& cell : row) EXPECT_EQ(cell.find_first_of("ni"), std::string::npos) << cell;  // no nan, inf
}

TEST(Form35Screens, LoadOptionsAndCompanions) {
    ModuleSession plain(form35(), StartDefaults{});
    EXPECT_EQ(plain.state().text("Text2"), "25757");  // 18275 x 2.8^(1/3) = 25757.9, whole MPa
    EXPECT_EQ(plain.state().text("Text17"), "2.5");
    EXPECT_FALSE(plain.state().visible("Text7"));
    // Moments of either sign, a force that is only pressed.
    EXPECT_EQ(plain.state().declaration("Text10")->filter, KeyFilter::SignedNumber);
    EXPECT_EQ(plain.state().declaration("Text13")->filter, KeyFilter::SignedNumber);
    EXPECT_EQ(plain.state().declaration("Text14")->filter, KeyFilter::PositiveNumber);
    StartDefaults nbr;
    nbr.select(1, "25");
    nbr.select(4, "NBR-6118");
    EXPECT_EQ(ModuleSession(form35(), nbr).state().text("Text2"), "23800");  // 4760 x 5
    nbr.select(1, "60");  // above 50 MPa the CEB/90 formula: 18275 x 6.8^(1/3) = 34622.7
    EXPECT_EQ(ModuleSession(form35(), nbr).state().text("Text2"), "34622");

    ScriptedPrompter p;
    plain.press("Option2", p);
    EXPECT_TRUE(plain.state().visible("Text15"));
    EXPECT_TRUE(plain.state().option("Option2"));
    plain.press("Option1", p);
    EXPECT_FALSE(plain.state().visible("Text16"));
    plain.press("Command8", p);
    EXPECT_TRUE(plain.screenShown("Form35b"));
    plain.press("Form35b.Command1", p);
    EXPECT_FALSE(plain.screenShown("Form35b"));

    auto run = calculate({});
    EXPECT_TRUE(run->session->screenShown("Form35c"));
    EXPECT_TRUE(run->session->state().enabled(printButton("Form35")));
    run->session->press("Form35c.Command1", run->prompter);
    EXPECT_TRUE(run->session->screenShown("Form35d"));
    run->session->press("Form35d.Command1", run->prompter);
    EXPECT_FALSE(run->session->screenShown("Form35d"));
}

TEST(Form35Diagram, PlotsEachSituationWithItsRelativeDistance) {
    // 3.75 / 20 = 0.1875 on one axis each: R = 0.19 twice.
    auto run = calculate({});
    Drawing g = form35().drawing("Form35d.Picture1", run->session->state());
    int points = 0;
    for (const auto& s : g.shapes)
        if (const auto* c = std::get_if<Circle>(&s.geometry); c && c->filled) ++points;
    EXPECT_EQ(points, 2);
    const auto text = labels(g);
    EXPECT_EQ(text.count("(R=0.19)"), 2u);
    EXPECT_EQ(text.count("ex/hx"), 1u);
    EXPECT_EQ(text.count("ey/hy"), 1u);
    // A width of zero leaves nothing to plot rather than a division by it.
    run->session->state().setText("Text5", "0");
    EXPECT_TRUE(form35().drawing("Form35d.Picture1", run->session->state()).empty());
}

TEST(Form35Report, LineByLine) {
    auto run = calculate({{"Text10", "20"}, {"Text11", "10"}});
    ReportWriter w;
    ASSERT_TRUE(generateReport("Form35", run->session->module(), run->session->state(), w));
    EXPECT_EQ(w.document().title, "Situações de Cálculo dos Pilares");
    const std::vector<std::string> expected{
        "Propriedades do concreto:", "Resistência característica fck= 20 MPa     Módulo secante Ecs= 25757 MPa",
        "Coeficiente de fluência= 2.5", " ", "Coeficientes parciais:  Gamac= 1.4     Gamaf= 1.4", " ",
        "Dados da seção transversal:", "Seção retangular: hx= 20 cm     hy= 20 cm",
        "Momentos de inércia: Ix=  cm4     Iy=  cm4", "Área da seção transversal=  cm2", " ",
        "Comprimentos de flambagem: Lex= 3 m     Ley= 3 m", " ", "Força normal de serviço: Fk= 500 kN",
        "Momentos iniciais na direção x: Max= 20 kNm     Mbx= 10 kNm",
        "Momentos iniciais na direção y: May=  kNm     Mby=  kNm", " ", " ", "RESULTADOS: ", " ",
        "Tipo de pilar: PILAR DE EXTREMIDADE", " ", "Índices de esbeltez: Direção x= 51.96     Direção y= 51.96", " ",
        "Excentricidades segundo a direção x:", "Excentricidade acidental: eax= 0.75 cm",
        "Excentricidade de primeira ordem mínima: e1x,min= 2.1 cm", "Excentricidade de segunda ordem: e2x= 1.3 cm",
        "Excentricidade de fluência: ecx= 1.84 cm", " ", "Excentricidades segundo a direção y:",
        "Excentricidade acidental: eay= 0.75 cm", "Excentricidade de primeira ordem mínima: e1y,min= 2.1 cm",
        "Excentricidade de segunda ordem: e2y= 1.3 cm", "Excentricidade de fluência: ecy= 0.35 cm", " ", " ",
        "EXCENTRICIDADES TOTAIS NAS SITUAÇÕES DE CÁLCULO:", " ",
        "Situação de cálculo = 1                ex = 7.1 cm         ey = 0 cm",
        "Situação de cálculo = 2                ex = 0 cm           ey = 3.75 cm", " ",
        "Utilize o módulo apropriado para dimensionamento: flexo-compressão normal ou oblíqua.",
    };
    EXPECT_EQ(reportLines(*run->session, "Form35"), expected);
    run->session->state().setOption("Option2", true);
    EXPECT_EQ(reportLines(*run->session, "Form35")[7], "Seção não retangular: hx= 20 cm     hy= 20 cm");
}
