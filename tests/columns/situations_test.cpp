// Column design situations: the eccentricities and situations of the four column
// types against hand calculations, the slenderness limits, the checks in order,
// the screens and the plot, and the report.
#include <gtest/gtest.h>

#include <map>
#include <set>

#include "app/module.h"
#include "basis/messages.h"
#include "reports/report_dispatch.h"

using namespace morve;

namespace {

const Module& form35() { return *ModuleRegistry::find("Form35"); }

struct Run {
    std::unique_ptr<ModuleSession> session;
    ScriptedPrompter prompter;
    Outcome outcome;
    const std::string& text(const std::string& name) const { return session->state().text(name); }
    std::vector<std::vector<std::string>> rows() const {
        const GridRows& g = session->state().grid("Form35c.Grade1");
        return {g.begin() + 1, g.end()};
    }
};

// A 20 x 20 column, 3 m both ways, Fk 500 kN, fck 20, Ecs 25757, phi 2.5, then the
// changes of the case ("Option2": "True" picks the other section).
std::unique_ptr<Run> calculate(const std::map<std::string, std::string>& set,
                               std::vector<std::string> answers = {}) {
    auto run = std::make_unique<Run>();
    run->session = std::make_unique<ModuleSession>(form35(), StartDefaults{});
    FormState& s = run->session->state();
    s.setText("Text8", "3");
    s.setText("Text9", "3");
    s.setText("Text14", "500");
    for (const auto& [name, value] : set) {
        if (name.rfind("Option", 0) == 0)
            s.setOption(name, value == "True");
        else
            s.setText(name, value);
    }
    run->prompter = ScriptedPrompter(std::move(answers));
    run->outcome = run->session->press("Command3", run->prompter);
    return run;
}

using Rows = std::vector<std::vector<std::string>>;

}  // namespace

// The 20 x 20 column of 3 m: A 400, i = 20 / sqrt(12) = 5.7735, lambda = 51.96.
// fcd = 1.428571, nu = 700 / 571.43 = 1.225; e2 = 0.005 x 300^2 / (10 x 20 x 1.725)
// = 1.3043. Euler: 9.8696 x 2575.7 x 13333.3 / 90000 = 3766.1 kN; creep factor
// exp(2.5 x 500 / 3266.1) - 1 = 0.46627.
TEST(Form35Situations, IntermediateColumn) {
    // Each way: e_a 0.75, e1,min 2.1, ec = 0.46627 x 0.75 = 0.3497; total 3.754.
    auto run = calculate({});
    ASSERT_TRUE(run->outcome.completed);
    EXPECT_EQ(run->text("Form35c.Text1"), "PILAR INTERMEDIÁRIO");
    EXPECT_EQ(run->text("Form35c.Text12"), "51.96");
    EXPECT_EQ(run->text("Form35c.Text2"), "0.75");
    EXPECT_EQ(run->text("Form35c.Text3"), "2.1");
    EXPECT_EQ(run->text("Form35c.Text5"), "1.3");
    EXPECT_EQ(run->text("Form35c.Text6"), "0.35");
    EXPECT_EQ(run->text("Form35c.Text11"), "0.35");
    EXPECT_EQ(run->rows(), (Rows{{"1", "3.75", "0"}, {"2", "0", "3.75"}}));
}

TEST(Form35Situations, EndColumnWithMomentsAlongX) {
    // Max 20, Mbx 10: ends 4 and 2 cm, e1c = 2.4 + 0.8 = 3.2. End 4.75; middle
    // 3.2 + 0.75 = 3.95; creep on 3.95: 1.8418; total 1.3043 + 3.95 + 1.8418 = 7.096.
    auto run = calculate({{"Text10", "20"}, {"Text11", "10"}});
    EXPECT_EQ(run->text("Form35c.Text1"), "PILAR DE EXTREMIDADE");
    EXPECT_EQ(run->text("Form35c.Text6"), "1.84");
    EXPECT_EQ(run->text("Form35c.Text11"), "0.35");
    EXPECT_EQ(run->rows(), (Rows{{"1", "7.1", "0"}, {"2", "0", "3.75"}}));
}

TEST(Form35Situations, EndColumnWithMomentsAlongYComesFirstAndTheEndGoverns) {
    // 20 x 30, lex 3, ley 2.5, Fk 600: A 600, nu = 840 / 857.14 = 0.98.
    // y: i = 8.660, lambda 28.87, no creep; e2y = 0.005 x 62500 / (300 x 1.48) = 0.7038.
    // May -15, Mby 15: ends -2.5 and 2.5, opposite: 0.6 x 2.5 - 0.4 x 2.5 = 0.5,
    // raised to 0.4 x 2.5 = 1.0. Middle 0.7038 + max(1.625, 2.4) = 3.104 below the end
    // 2.5 + 0.625 = 3.125, which is written 3.12 (half to even).
    // x: lambda 51.96, e2x = 0.005 x 90000 / (200 x 1.48) = 1.5203; Euler 9.8696 x
    // 2575.7 x 20000 / 90000 = 5649.2, creep exp(1500 / 5049.2) - 1 = 0.3459 on 0.75.
    // Total 1.5203 + 2.1 + 0.2594 = 3.880.
    auto run = calculate({{"Text6", "30"}, {"Text9", "2.5"}, {"Text14", "600"}, {"Text12", "-15"},
                          {"Text13", "15"}});
    EXPECT_EQ(run->text("Form35c.Text1"), "PILAR DE EXTREMIDADE");
    EXPECT_EQ(run->text("Form35c.Text13"), "28.87");
    EXPECT_EQ(run->text("Form35c.Text10"), "0.7");
    EXPECT_EQ(run->text("Form35c.Text11"), "0");
    EXPECT_EQ(run->text("Form35c.Text6"), "0.26");
    EXPECT_EQ(run->rows(), (Rows{{"1", "0", "3.12"}, {"2", "3.88", "0"}}));
}

TEST(Form35Situations, CornerColumnSixSituations) {
    // 25 x 25, 4 m both ways, Fk 1000: A 625, nu = 1400 / 892.86 = 1.568, e2 =
    // 0.005 x 160000 / (250 x 2.068) = 1.5474. lambda 55.43; Euler 9.8696 x 2575.7 x 32552 / 160000 = 5172.0,
    // creep exp(2500 / 4172.0) - 1 = 0.8203.
    // x: Max 30, Mbx -10 -> 3 and -1 cm, e1c = 1.8 - 0.4 = 1.4; ecx on 2.4 = 1.969.
    // y: May 20, Mby 0 -> 2 and 0 cm, e1c = 1.2; ecy on 2.2 = 1.806.
    // Ends: a (max(3 + 1, 2.25), 2), (3, max(2 + 1, 2.25)); b (max(1 + 1, 2.25), 0),
    // (1, max(0 + 1, 2.25)). Middle: 1.5474 + 2.4 + 1.969 = 5.917 with 1.2;
    // 1.4 with 1.5474 + 2.25 + 1.806 = 5.603.
    auto run = calculate({{"Text5", "25"}, {"Text6", "25"}, {"Text8", "4"}, {"Text9", "4"},
                          {"Text14", "1000"}, {"Text10", "30"}, {"Text11", "-10"}, {"Text12", "20"},
                          {"Text13", "0"}});
    EXPECT_EQ(run->text("Form35c.Text1"), "PILAR DE CANTO");
    EXPECT_EQ(run->text("Form35c.Text6"), "1.97");
    EXPECT_EQ(run->text("Form35c.Text11"), "1.81");
    EXPECT_EQ(run->rows(), (Rows{{"1", "4", "2"},
                                 {"2", "3", "3"},
                                 {"3", "2.25", "0"},
                                 {"4", "1", "2.25"},
                                 {"5", "5.92", "1.2"},
                                 {"6", "1.4", "5.6"}}));
}

TEST(Form35Slenderness, FiftyHasNoCreepAndNinetyStillPasses) {
    // Other section: A 400, Ix = Iy = 40000, radius of gyration exactly 10 cm.
    const std::map<std::string, std::string> other{
        {"Option2", "True"}, {"Text7", "400"}, {"Text15", "40000"}, {"Text16", "40000"}};
    auto with = [&](const char* le) {
        auto set = other;
        set["Text8"] = le;
        return calculate(set);
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

struct SituationCheck {
    const char* name;
    std::map<std::string, std::string> set;
    std::vector<std::string> answers;
    std::string message;
    MessageKind kind;
    std::string focus;
};

class Form35Checks : public ::testing::TestWithParam<SituationCheck> {};

TEST_P(Form35Checks, StopWithTheirTextAndFocus) {
    const SituationCheck& c = GetParam();
    auto run = calculate(c.set, c.answers);
    EXPECT_FALSE(run->outcome.completed);
    ASSERT_FALSE(run->prompter.messages().empty());
    const Message& last = run->prompter.messages().back();
    EXPECT_EQ(last.text, c.message);
    EXPECT_EQ(last.kind, c.kind);
    EXPECT_EQ(last.title, "MORVE");
    EXPECT_EQ(run->outcome.focus, c.focus.empty() ? "" : "Form35." + c.focus);
    EXPECT_TRUE(run->outcome.effects.empty());
    EXPECT_EQ(run->text("Form35c.Text1"), "");
}

const std::string kEcs = "O módulo secante do concreto está fora dos limites razoáveis. VOCÊ QUER CORRIGIR O MÓDULO?";
const std::string kCreep =
    "O coeficiente de fluência é muito alto e pode ter havido um erro em sua avaliação. VOCÊ QUER ALTERAR O "
    "COEFICIENTE DE FLUÊNCIA?";
const std::string kDim = "A NBR-6118 não admite pilares com dimensão menor que 14cm. VOCÊ QUER CORRIGIR A DIMENSÃO?";
const std::string kInertia = "O momento de inércia não pode ser nulo.";
using K = MessageKind;

INSTANTIATE_TEST_SUITE_P(
    InOrder, Form35Checks,
    ::testing::Values(
        SituationCheck{"LowFck", {{"Text1", "19.9"}, {"Text2", "0"}}, {}, msg::kLowFck, K::Warning, ""},
        SituationCheck{"HighFck", {{"Text1", "90.1"}, {"Text2", "0"}}, {}, msg::kHighFck, K::Warning, "Text1"},
        SituationCheck{"Ecs", {{"Text2", "0"}, {"Text17", "6"}}, {}, msg::kPositiveEcs, K::Warning, "Text2"},
        // 0.7 x 25757.9 = 18030.5
        SituationCheck{"EcsRange", {{"Text2", "18030"}}, {"yes"}, kEcs, K::YesNo, "Text2"},
        SituationCheck{"Creep", {{"Text17", "5.01"}, {"Text3", "0"}}, {"yes"}, kCreep, K::YesNo, "Text17"},
        SituationCheck{"Gamac", {{"Text3", "0.99"}, {"Text4", "0"}}, {}, msg::kPartialCoefficient, K::Warning, "Text3"},
        SituationCheck{"Gamaf", {{"Text4", "0"}, {"Text5", "10"}}, {}, msg::kPartialCoefficient, K::Warning, "Text4"},
        SituationCheck{"Hx", {{"Text5", "13.9"}}, {"yes"}, kDim, K::YesNo, "Text5"},
        SituationCheck{"Hy", {{"Text6", "13.9"}}, {"yes"}, kDim, K::YesNo, "Text6"},
        SituationCheck{"HxZero", {{"Text5", ""}}, {"no"}, "A dimensão hx não pode ser nula.", K::Warning, "Text5"},
        SituationCheck{"Ix", {{"Option2", "True"}, {"Text7", "0"}}, {}, kInertia, K::Warning, "Text15"},
        SituationCheck{"Iy", {{"Option2", "True"}, {"Text15", "100"}}, {}, kInertia, K::Warning, "Text16"},
        SituationCheck{"Area", {{"Option2", "True"}, {"Text15", "100"}, {"Text16", "100"}}, {},
                       "A área da seção não pode ser nula.", K::Warning, "Text7"},
        SituationCheck{"InertiaSign", {{"Option2", "True"}, {"Text15", "100"}, {"Text16", "100"}, {"Text7", "-400"}},
                       {}, "Os momentos de inércia e a área da seção devem ter o mesmo sinal.", K::Warning, "Text7"},
        SituationCheck{"Lex", {{"Text8", ""}, {"Text9", ""}}, {}, "O comprimento de flambagem lex não pode ser nulo.",
                       K::Warning, "Text8"},
        SituationCheck{"Ley", {{"Text9", "0"}, {"Text14", ""}}, {}, "O comprimento de flambagem ley não pode ser nulo.",
                       K::Warning, "Text9"},
        SituationCheck{"Fk", {{"Text14", "0"}}, {}, "A força normal Fk não pode ser nula.", K::Warning, "Text14"}),
    [](const ::testing::TestParamInfo<SituationCheck>& info) { return info.param.name; });

TEST(Form35Checks, WarningsAndNoAnswersGoOn) {
    // 18 x 18 = 324 cm2: the warning, then the run ends well; a modulus out of range
    // and a high creep coefficient answered No are kept; negative lengths and forces
    // are not refused.
    auto run = calculate({{"Text5", "18"}, {"Text6", "18"}, {"Text2", "40000"}, {"Text17", "6"},
                          {"Text14", "-500"}, {"Text8", "-3"}},
                         {"no", "no"});
    EXPECT_TRUE(run->outcome.completed);
    ASSERT_EQ(run->prompter.messages().size(), 3u);
    EXPECT_EQ(run->prompter.messages()[2].text,
              "ATENÇÃO: A área da seção do pilar é menor que 360cm2, o que não é permitido pela NBR-6118.");
    EXPECT_EQ(run->prompter.messages()[2].kind, MessageKind::Warning);
    for (const auto& row : run->rows())
        for (const auto& cell : row) {
            EXPECT_EQ(cell.find("nan"), std::string::npos);
            EXPECT_EQ(cell.find("inf"), std::string::npos);
        }
}

TEST(Form35Screens, LoadOptionsAndCompanions) {
    ModuleSession plain(form35(), StartDefaults{});
    EXPECT_EQ(plain.state().text("Text2"), "25757");  // 18275 x 2.8^(1/3) = 25757.9, whole MPa
    EXPECT_EQ(plain.state().text("Text17"), "2.5");
    EXPECT_FALSE(plain.state().visible("Text7"));
    EXPECT_EQ(plain.state().declaration("Text10")->filter, KeyFilter::SignedNumber);
    EXPECT_EQ(plain.state().declaration("Text13")->filter, KeyFilter::SignedNumber);
    EXPECT_EQ(plain.state().declaration("Text14")->filter, KeyFilter::PositiveNumber);
    EXPECT_EQ(plain.info().unloads, (std::vector<std::string>{"FormAjuda", "Form35b", "Form35c", "Form35d"}));
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
    std::multiset<std::string> labels;
    int points = 0;
    for (const auto& s : g.shapes) {
        if (const auto* l = std::get_if<Label>(&s.geometry)) labels.insert(l->text);
        if (const auto* c = std::get_if<Circle>(&s.geometry); c && c->filled) ++points;
    }
    EXPECT_EQ(points, 2);
    EXPECT_EQ(labels.count("(R=0.19)"), 2u);
    EXPECT_EQ(labels.count("ex/hx"), 1u);
    EXPECT_EQ(labels.count("ey/hy"), 1u);
    // A width of zero leaves nothing to plot rather than a division by it.
    run->session->state().setText("Text5", "0");
    EXPECT_TRUE(form35().drawing("Form35d.Picture1", run->session->state()).empty());
}

TEST(Form35Report, LineByLine) {
    auto run = calculate({{"Text10", "20"}, {"Text11", "10"}});
    ReportWriter w;
    ASSERT_TRUE(generateReport("Form35", run->session->module(), run->session->state(), w));
    EXPECT_EQ(w.document().title, "Situações de Cálculo dos Pilares");
    std::vector<std::string> lines;
    for (const auto& b : w.document().blocks)
        if (const auto* l = std::get_if<ReportLine>(&b)) lines.push_back(l->text());
    const std::vector<std::string> expected{
        "Propriedades do concreto:",
        "Resistência característica fck= 20 MPa     Módulo secante Ecs= 25757 MPa",
        "Coeficiente de fluência= 2.5",
        " ",
        "Coeficientes parciais:  Gamac= 1.4     Gamaf= 1.4",
        " ",
        "Dados da seção transversal:",
        "Seção retangular: hx= 20 cm     hy= 20 cm",
        "Momentos de inércia: Ix=  cm4     Iy=  cm4",
        "Área da seção transversal=  cm2",
        " ",
        "Comprimentos de flambagem: Lex= 3 m     Ley= 3 m",
        " ",
        "Força normal de serviço: Fk= 500 kN",
        "Momentos iniciais na direção x: Max= 20 kNm     Mbx= 10 kNm",
        "Momentos iniciais na direção y: May=  kNm     Mby=  kNm",
        " ",
        " ",
        "RESULTADOS: ",
        " ",
        "Tipo de pilar: PILAR DE EXTREMIDADE",
        " ",
        "Índices de esbeltez: Direção x= 51.96     Direção y= 51.96",
        " ",
        "Excentricidades segundo a direção x:",
        "Excentricidade acidental: eax= 0.75 cm",
        "Excentricidade de primeira ordem mínima: e1x,min= 2.1 cm",
        "Excentricidade de segunda ordem: e2x= 1.3 cm",
        "Excentricidade de fluência: ecx= 1.84 cm",
        " ",
        "Excentricidades segundo a direção y:",
        "Excentricidade acidental: eay= 0.75 cm",
        "Excentricidade de primeira ordem mínima: e1y,min= 2.1 cm",
        "Excentricidade de segunda ordem: e2y= 1.3 cm",
        "Excentricidade de fluência: ecy= 0.35 cm",
        " ",
        " ",
        "EXCENTRICIDADES TOTAIS NAS SITUAÇÕES DE CÁLCULO:",
        " ",
        "Situação de cálculo = 1                ex = 7.1 cm         ey = 0 cm",
        "Situação de cálculo = 2                ex = 0 cm           ey = 3.75 cm",
        " ",
        "Utilize o módulo apropriado para dimensionamento: flexo-compressão normal ou oblíqua.",
    };
    EXPECT_EQ(lines, expected);
    run->session->state().setOption("Option2", true);
    ReportWriter other;
    generateReport("Form35", run->session->module(), run->session->state(), other);
    EXPECT_EQ(std::get<ReportLine>(other.document().blocks[7]).text(), "Seção não retangular: hx= 20 cm     hy= 20 cm");
}
