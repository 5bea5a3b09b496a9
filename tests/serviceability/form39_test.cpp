// Estados limites de utilização (Form39) as its user drives it: the load tables
// opened by "Cargas", the checks in their order with their words and focus, the
// results of an uncracked beam worked by hand, the T section, and the report.
#include <gtest/gtest.h>

#include "../stop_expectations.h"
#include "app/module.h"
#include "basis/messages.h"
#include "reports/report_dispatch.h"
#include "reports/report_writer.h"

namespace morve {
namespace {

using Inputs = std::map<std::string, std::string>;
using Rows = std::vector<std::vector<std::string>>;

struct Form39Run {
    ModuleSession session{*ModuleRegistry::find("Form39"), StartDefaults{}};
    ScriptedPrompter prompter;
    Outcome outcome;

    FormState& state() { return session.state(); }
    const std::string& text(const std::string& name) { return state().text(name); }
    Outcome press(const std::string& command) { return outcome = session.press(command, prompter); }
};

// 20 x 50 with As 6 at d = 45, no creep or shrinkage, 10 kN at the middle of 4 m:
// uncracked (Ma = 10 kNm below Mr = 27.63 kNm).
Inputs good(const Inputs& changes = {}) {
    Inputs in{{"Text3", "0"}, {"Text4", "0"}, {"Text6", "4"}, {"Text8", "1"}, {"Text9", "20"}, {"Text10", "50"},
              {"Text11", "5"}, {"Text12", "4"}, {"Text13", "6"}, {"Text14", "0"}, {"List1", "12.5"}};
    for (const auto& [k, v] : changes) in[k] = v;
    return in;
}
const Inputs kTee{{"Option1", ""}, {"Option2", "True"}, {"Text15", "60"}, {"Text16", "10"}, {"Text17", "20"},
                  {"Text18", "50"}, {"Text19", "5"}, {"Text20", "4"}, {"Text21", "6"}, {"Text22", "0"},
                  {"List2", "12.5"}};
Inputs tee(const Inputs& changes = {}) {
    Inputs in = good(kTee);
    for (const auto& [k, v] : changes) in[k] = v;
    return in;
}

// Types the boxes, opens the tables with "Cargas", fills them, closes with "&OK"
// and presses "&CALCULAR".
std::unique_ptr<Form39Run> run(const Inputs& in, const Rows& points = {{"1", "2", "10", "0"}}, const Rows& uniform = {},
                               std::vector<std::string> answers = {}) {
    auto r = std::make_unique<Form39Run>();
    for (const auto& [k, v] : in) r->state().setText(k, v);
    r->state().setText("Text7", std::to_string(uniform.size()));
    if (!in.count("Text8")) r->state().setText("Text8", std::to_string(points.size()));
    r->press("Command8");
    for (std::size_t i = 0; i < points.size() && i + 1 < r->state().grid("Form39b.Grade1").size(); ++i)
        r->state().grid("Form39b.Grade1")[i + 1] = points[i];
    for (std::size_t i = 0; i < uniform.size(); ++i) r->state().grid("Form39b.Grade2")[i + 1] = uniform[i];
    r->press("Form39b.Command2");
    r->prompter = ScriptedPrompter(std::move(answers));
    r->press("Command3");
    return r;
}

TEST(Form39Run, TeeSectionBlanksTheRectangleOnlyMethods) {
    auto r = run(tee());
    ASSERT_TRUE(r->outcome.completed) << r->prompter.messages().back().text;
    EXPECT_EQ(r->text("Form39c.Text1"), "");
    EXPECT_EQ(r->text("Form39c.Text2"), "");
    // Still uncracked: Wo on the gross T (Ic = 325952 cm4) = 6.4E8 / (48 x 2575.7 x
    // 325952) = 0.0159 cm.
    EXPECT_EQ(r->text("Form39c.Text3"), "0.16");
    EXPECT_EQ(r->text("Form39c.Text8"), "0.16");
    // Back from the results, the option swaps the section frames.
    r->press("Form39c.Command2");
    Outcome o = r->press("Option1");
    EXPECT_FALSE(r->state().option("Option2"));
    EXPECT_TRUE(r->state().visible("Frame3"));
    EXPECT_FALSE(r->state().visible("Frame4"));
    EXPECT_EQ(o.effects.size(), 2u);
}

TEST(Form39Run, LoadTablesFollowTheCountsAndTheirPictureTakesAnyData) {
    Form39Run r;
    r.state().setText("Text7", "21");
    r.press("Command8");
    EXPECT_EQ(r.prompter.messages().back().text, "Este programa está limitado ao máximo de 20 segmentos de carga uniforme.");
    r.state().setText("Text8", "25");
    r.press("Command8");
    EXPECT_EQ(r.prompter.messages().back().text, "Este programa está limitado ao máximo de 20 cargas concentradas.");
    r.state().setText("Text7", "2");
    r.state().setText("Text8", "3");
    ASSERT_TRUE(r.press("Command8").completed);
    EXPECT_EQ(r.state().grid("Form39b.Grade2").size(), 3u);
    EXPECT_EQ(r.state().grid("Form39b.Grade1")[3][0], "3");
    r.state().grid("Form39b.Grade1")[1] = {"1", "9", "12", "-4"};  // beyond a span of nothing
    r.state().grid("Form39b.Grade2")[1] = {"1", "-1", "30", "7"};
    EXPECT_FALSE(r.session.module().drawing("Form39b2.Picture1", r.state()).empty());
}

struct Check39 {
    const char* what;
    Inputs in;
    Rows points, uniform;
    std::vector<std::string> answers;
    std::string text;
    MessageKind kind;
    std::string focus;
};

using K = MessageKind;
const Rows kPoint{{"1", "2", "10", "0"}};
const std::string kExcessive = "A distância d' é excessiva.";

const Check39 kChecks[] = {
    {"stale tables", good({{"Text1", "10"}}), kPoint, {}, {}, "Atualize os dados do carregamento.", K::Warning, "Form39.Command8"},
    {"low fck", good({{"Text1", "19.9"}, {"Text2", "0"}}), kPoint, {}, {}, msg::kLowFck, K::Warning, ""},
    {"high fck", good({{"Text1", "90.1"}, {"Text2", "0"}}), kPoint, {}, {}, msg::kHighFck, K::Warning, "Form39.Text1"},
    {"Ecs", good({{"Text2", "-0"}, {"Text3", "6"}}), kPoint, {}, {}, msg::kPositiveEcs, K::Warning, "Form39.Text2"},
    {"Ecs range", good({{"Text2", "33500"}, {"Text3", "6"}}), kPoint, {}, {"yes"},
     "O módulo secante do concreto está fora dos limites razoáveis. VOCÊ QUER CORRIGIR O MÓDULO?", K::YesNo, "Form39.Text2"},
    {"creep", good({{"Text3", "5.1"}, {"Text4", "0.003"}}), kPoint, {}, {"yes"},
     "O coeficiente de fluência é muito alto e pode ter havido um erro em sua avaliação. VOCÊ QUER ALTERAR O "
     "COEFICIENTE DE FLUÊNCIA?", K::YesNo, "Form39.Text3"},
    {"shrinkage", good({{"Text4", "0.0021"}, {"Text5", "205"}}), kPoint, {}, {"yes"},
     "A deformação de retração é muito alta e pode ter havido um erro em sua avaliação. VOCÊ QUER ALTERAR A "
     "DEFORMAÇÃO DE RETRAÇÃO?", K::YesNo, "Form39.Text4"},
    {"Es", good({{"Text5", "205"}, {"Text6", "0"}}), kPoint, {}, {"yes"}, msg::kCodeEs, K::YesNo, "Form39.Text5"},
    {"span", good({{"Text6", ""}, {"Text9", "0"}}), kPoint, {}, {}, "Forneça o vão da viga.", K::Warning, "Form39.Text6"},
    {"b", good({{"Text9", "0"}, {"Text10", "0"}}), kPoint, {}, {}, "Forneça um valor positivo para b.", K::Warning, "Form39.Text9"},
    {"narrow b", good({{"Text9", "11"}, {"Text10", "0"}}), kPoint, {}, {"yes"}, msg::kBeamWidth, K::YesNo, "Form39.Text9"},
    {"h", good({{"Text10", "0"}}), kPoint, {}, {}, msg::kPositiveH, K::Warning, "Form39.Text10"},
    {"d' excessive", good({{"Text11", "20.1"}, {"Text12", "0"}}), kPoint, {}, {}, kExcessive, K::Warning, "Form39.Text11"},
    {"d''", good({{"Text12", "0"}, {"Text13", "0"}}), kPoint, {}, {}, "Forneça um valor positivo para d''.", K::Warning, "Form39.Text12"},
    {"d'' excessive", good({{"Text12", "20.1"}, {"Text13", "0"}}), kPoint, {}, {}, "A distância d'' é excessiva.", K::Warning, "Form39.Text12"},
    {"As", good({{"Text13", "abc"}, {"List1", ""}}), kPoint, {}, {}, "A área da armadura tracionada não pode ser nula.", K::Warning, "Form39.Text13"},
    {"diameter", good({{"List1", ""}}), {{"1", "9", "10", "0"}}, {}, {}, "Escolha o diâmetro da barra de aço tracionada.", K::Warning, "Form39.List1"},
    {"bf", tee({{"Text15", "0"}, {"Text16", "0"}}), kPoint, {}, {}, "Forneça um valor positivo para bf.", K::Warning, "Form39.Text15"},
    {"bw", tee({{"Text17", "0"}}), kPoint, {}, {}, "Forneça um valor positivo para bw.", K::Warning, "Form39.Text17"},
    {"narrow web", tee({{"Text17", "10"}, {"Text15", "8"}}), kPoint, {}, {"yes"},
     "Segundo a NBR-6118, a largura mínima da nervura é igual a 12cm.   VOCÊ QUER CORRIGIR A LARGURA?", K::YesNo, "Form39.Text17"},
    {"flange narrower than web", tee({{"Text15", "19"}, {"Text18", "0"}}), kPoint, {}, {},
     "A largura da mesa bf não pode ser menor que a largura da nervura bw.", K::Warning, "Form39.Text15"},
    {"T height", tee({{"Text18", "9"}}), kPoint, {}, {}, "A altura h não pode ser menor que a espessura da mesa hf.", K::Warning, "Form39.Text18"},
    {"T d'", tee({{"Text19", "20.1"}}), kPoint, {}, {}, kExcessive, K::Warning, "Form39.Text19"},
    {"point beyond the span", good(), {{"1", "4.01", "10", "0"}}, {{"1", "0", "5", "0"}}, {},
     "Você está fornecendo carga concentrada fora do vão.", K::Warning, "Form39.Command8"},
    {"point loads all zero", good(), {{"1", "2", "0", "0"}}, {{"1", "0", "5", "0"}}, {},
     "Todas as cargas concentradas são nulas. Revise os dados.", K::Warning, "Form39.Command8"},
    {"uniform beyond the span", good(), kPoint, {{"1", "-0.5", "1", "2"}}, {},
     "Você está fornecendo carga distribuída fora do vão.", K::Warning, "Form39.Command8"},
    {"uniform too long", good(), kPoint, {{"1", "1", "3.01", "2"}}, {},
     "Uma ou mais cargas distribuídas possuem comprimento superior ao máximo.", K::Warning, "Form39.Command8"},
    {"uniform loads all zero", good(), kPoint, {{"1", "1", "2", "0"}}, {},
     "Todas as cargas distribuídas são nulas. Revise os dados.", K::Warning, "Form39.Command8"},
    {"no load", good({{"Text8", "0"}}), {}, {}, {}, "A viga está sem carregamento.", K::Warning, "Form39.Command8"},
};

TEST(Form39Checks, EachStopsWithItsWordsAndFocusBeforeTheNextCheck) {
    for (const auto& c : kChecks) {
        SCOPED_TRACE(c.what);
        auto r = run(c.in, c.points, c.uniform, c.answers);
        if (std::string(c.what) == "stale tables") {  // a count changed after "Cargas"
            r->state().setText("Text7", "1");
            r->prompter = ScriptedPrompter();
            r->press("Command3");
        }
        expectStop(r->prompter, r->outcome, c.text, c.kind, c.focus);
        EXPECT_EQ(r->prompter.messages().size(), 1u);
        EXPECT_EQ(r->text("Form39c.Text8"), " ");
        EXPECT_FALSE(r->state().enabled(printButton("Form39")));
    }
}

TEST(Form39Checks, NoGoesOnAndASegmentEndingAtTheSupportPasses) {
    // 2.4 + 1.6 ends at 4 m whatever binary fractions make of the sum.
    auto r = run(good({{"Text2", "40000"}, {"Text3", "6"}}), kPoint, {{"1", "2.4", "1.6", "3"}}, {"no", "no"});
    EXPECT_TRUE(r->outcome.completed);
    EXPECT_EQ(r->prompter.messages().size(), 2u);
    // "Cargas" refuses a count past 20, so "&CALCULAR" meets the stale tables first,
    // as the table of checks orders them.
    auto many = run(good({{"Text8", "99999999999"}}));
    EXPECT_EQ(many->prompter.messages().back().text, "Atualize os dados do carregamento.");
}

TEST(Form39Report, ReadsTheBoxesLineByLine) {
    // Uncracked (Ma = 10 + 2.5 x 16/8 = 15 kNm): Wo = 0.2485 + 5 x 0.025 x 400^4 /
    // (384 x 2575.7 x 208333) = 0.4038 mm, Wtot 2.32 Wo = 0.937, practical 3.380 x 1.3717 x
    // 0.4038 = 1.872. sigma_s = 7.765 x 1500 x 32.66/62223 = 6.11 kN/cm2: CEB e = 0;
    // NBR wk1 = 3 x 12.5 x 6.11^2/124335 = 0.011.
    auto r = run(good(), kPoint, {{"1", "0", "4", "2.5"}});
    ASSERT_TRUE(r->outcome.completed);
    EXPECT_TRUE(r->session.screenShown("Form39c"));
    EXPECT_TRUE(r->state().enabled(printButton("Form39")));
    ReportWriter out;
    ASSERT_TRUE(generateReport("Form39", r->session.module(), r->state(), out));
    std::vector<std::string> lines;
    for (const auto& block : out.document().blocks) lines.push_back(std::get<ReportLine>(block).text());
    const std::vector<std::string> expected{
        "Propriedades dos materiais:",
        "Concreto:",
        "Resistência característica fck= 20 MPa                     Módulo secante Ecs= 25757 MPa",
        "Coeficiente de fluência= 0                                 Deformação imposta= 0",
        "Aço: Módulo de elasticidade Es= 200 GPa",
        " ",
        "Dimensões da seção retangular:",
        "Largura b= 20 cm                                 Altura h= 50 cm",
        "Distância d'= 5 cm                               Distância d''= 4 cm",
        "Armadura tracionada As= 6 cm2                    Armadura comprimida As'= 0 cm2",
        "Diâmetro das barras tracionadas= 12.5 mm",
        " ",
        "Vão da viga= 4 m",
        " ",
        "Dados do carregamento:",
        "Cargas uniformemente distribuídas",
        "Início                       Comprimento         Valor",
        "0 m                          4 m                 2.5 kN/m",
        " ",
        "Cargas concentradas no vão",
        "Posição                      Força               Momento",
        "2 m                          10 kN               0 kNm",
        " ",
        "Momentos nas extremidades do vão",
        "Esquerda: XA= 0 kNm     Direita: XB= 0kNm",
        " ",
        "RESULTADOS DA ANÁLISE:",
        " ",
        "Flecha no meio do vão:",
        "Método do Eurocode 2:                            Wtot= 0.4 mm",
        "Método bilinear do CEB:                          Wtot= 0.4 mm",
        "Fórmula prática do CEB/90:                       Wtot= 1.87 mm",
        "NBR-6118:   Wo= 0.4 mm                           Wtot= 0.94 mm",
        "Flecha admissível:                               Wadm= 16 mm",
        " ",
        "Abertura máxima das fissuras:",
        "Formulação do CEB/90:                            wk= 0 mm",
        "Formulação da NBR-6118:                          wk= 0.01 mm",
    };
    ASSERT_EQ(lines.size(), expected.size());
    for (std::size_t i = 0; i < lines.size(); ++i) EXPECT_EQ(lines[i], expected[i]) << "line " << i + 1;
}

}  // namespace
}  // namespace morve
