// The checks of the slab modules in their order, with their texts, kinds and focus;
// the notices of the free-edge ratio; the reports line by line.
#include <gtest/gtest.h>

#include "../beams/beam_session.h"
#include "../stop_expectations.h"
#include "basis/messages.h"

namespace morve::testing {
namespace {

using K = MessageKind;

struct Check {
    const char* module;
    std::map<std::string, std::string> set;  // on top of a case that passes
    std::vector<std::string> answers;
    std::string message;
    K kind;
    std::string focus;
};

const std::map<std::string, std::map<std::string, std::string>> kGood{
    {"Form22", {{"Text4", "5"}, {"Text5", "2"}, {"Text6", "4"}, {"Text7", "5"}, {"Text8", "10"}}},
    {"Form20", {{"Text4", "10"}, {"Text5", "7"}, {"Text6", "10"}, {"List6", "1"}, {"List1", "8.0"}}},
    {"Form23", {{"Text4", "4"}, {"Text5", "5"}, {"Text6", "10"}, {"Text12", "10"}, {"Text13", "2"}, {"Text14", "2"},
                {"Text15", "1"}, {"Text16", "1"}, {"Option3", "True"}, {"Option1", ""}}},
};

const std::string kThin =
    "Segundo a NBR-6118, a espessura mínima das lajes maciças é 7 cm, em todos os casos.   Clique em OK para "
    "corrigir a espessura. Clique em CANCELAR para continuar.";

class SlabChecks : public ::testing::TestWithParam<Check> {};

TEST_P(SlabChecks, StopInOrderWithTextAndFocus) {
    const Check& c = GetParam();
    BeamRun run(c.module, c.answers);
    run.set(kGood.at(c.module)).set(c.set);
    const Outcome o = run.press("Command1");
    expectStop(run.prompter, o, c.message, c.kind, c.focus.empty() ? "" : std::string(c.module) + "." + c.focus);
}

INSTANTIATE_TEST_SUITE_P(
    All, SlabChecks,
    ::testing::Values(
        Check{"Form22", {{"Text1", "15"}, {"Text2", "0"}}, {}, msg::kLowFck, K::Warning, ""},
        Check{"Form22", {{"Text2", "-1"}, {"Text4", ""}}, {}, msg::kPositiveEcs, K::Warning, "Text2"},
        Check{"Form22", {{"Text2", "2575"}}, {"yes"},
              "O módulo secante do concreto está fora dos limites razoáveis. VOCÊ QUER CORRIGIR O MÓDULO?", K::YesNo, "Text2"},
        Check{"Form22", {{"Text3", "5.1"}}, {"yes"},
              "O coeficiente de fluência é muito alto e pode ter havido um erro em sua avaliação. VOCÊ QUER ALTERAR O "
              "COEFICIENTE DE FLUÊNCIA?", K::YesNo, "Text3"},
        Check{"Form22", {{"Text4", "0"}, {"Text5", "0"}}, {}, "Forneça um valor positivo para a carga permanente.", K::Warning, "Text4"},
        Check{"Form22", {{"Text5", "0"}, {"Text6", "0"}}, {}, "Forneça um valor positivo para a carga acidental.", K::Warning, "Text5"},
        Check{"Form22", {{"Text6", "abc"}}, {}, "Forneça um valor positivo para o vão lx.", K::Warning, "Text6"},
        Check{"Form22", {{"Text7", "-0"}}, {}, "Forneça um valor positivo para o vão ly.", K::Warning, "Text7"},
        Check{"Form22", {{"Text8", ""}}, {}, "Forneça um valor positivo para a espessura da laje.", K::Warning, "Text8"},
        Check{"Form22", {{"Text8", "6.5"}}, {"ok"}, kThin, K::OkCancel, "Text8"},
        Check{"Form23", {{"Text12", ""}}, {}, "Forneça o valor da carga.", K::Warning, "Text12"},
        Check{"Form23", {{"Text14", "0"}}, {}, "Forneça a posição do centro da carga.", K::Warning, "Text14"},
        Check{"Form23", {{"Text15", "0"}}, {}, "Forneça a dimensão da área carregada.", K::Warning, "Text15"},
        Check{"Form23", {{"Text13", "4.5"}}, {}, "A carga está fora da laje. Revise a posição ax.", K::Warning, "Text13"},
        Check{"Form23", {{"Text14", "5.5"}}, {}, "A carga está fora da laje. Revise a posição ay.", K::Warning, "Text14"},
        Check{"Form23", {{"Text16", "4.1"}}, {}, "A carga está fora da laje.", K::Warning, ""},
        Check{"Form20", {{"List6", "4"}}, {}, msg::kClassFck, K::Warning, "Text1"},
        Check{"Form20", {{"Text4", "6"}, {"Text5", "3"}}, {"ok"},
              "Segundo a NBR-6118, a espessura mínima das lajes maciças é 7 cm, em todos os casos. Clique em OK para "
              "corrigir a espessura. Clique em CANCELAR para continuar.", K::OkCancel, "Text4"},
        Check{"Form20", {{"Text5", "10"}}, {}, msg::kDBelowH, K::Warning, "Text5"},
        Check{"Form20", {{"Text6", "0"}}, {}, "Forneça um valor positivo para Mk.", K::Warning, "Text6"},
        Check{"Form20", {{"List1", ""}}, {}, "Escolha o diâmetro das barras.", K::Warning, "List1"},
        Check{"Form20", {{"List6", "2"}, {"Text1", "25"}, {"Text5", "8"}}, {},
              "O cobrimento calculado é inferior ao mínimo de 2,5 cm, exigido para a classe de agressividade II. "
              "Reduza a altura útil d.", K::Warning, "Text5"},
        Check{"Form20", {{"List2", "Balanceada"}, {"List3", "0.95"}}, {}, msg::kBalancedBeta, K::Warning, "List2"},
        Check{"Form20", {{"Text6", "30"}}, {}, "Está resultando armadura dupla. Aumente a espessura da laje.", K::Warning, ""},
        Check{"Form20", {{"List1", "5.0"}}, {},
              "Resultou um espaçamento das barras menor que 7cm. Escolha um diâmetro maior.", K::Warning, ""}));

// The ratio of the free-edge slab is held between 0.3 and 2 with a notice, and the
// values are those at the limit.
TEST(SlabChecks, FreeEdgeRatioKeptInRangeWithANotice) {
    auto run = [](const std::string& ly) {
        auto r = std::make_unique<BeamRun>("Form24");
        r->set({{"Text4", "5"}, {"Text5", "2"}, {"Text6", "4"}, {"Text7", ly}, {"Text8", "12"}});
        EXPECT_TRUE(r->press("Command1").completed);
        return r;
    };
    EXPECT_TRUE(run("1.2")->prompter.messages().empty());
    const auto low = run("1"), high = run("9");
    EXPECT_EQ(low->lastMessage(), "Valores calculados para relação ly/lx=0,3.");
    EXPECT_EQ(high->lastMessage(), "Valores calculados para relação ly/lx=2.");
    EXPECT_EQ(low->text("Form24b.Text1"), run("1.2")->text("Form24b.Text1"));
    EXPECT_EQ(high->text("Form24b.Text1"), run("8")->text("Form24b.Text1"));
}

TEST(SlabReports, LinesInOrder) {
    BeamRun slab("Form22");
    slab.set(kGood.at("Form22")).set({{"Option4", "True"}, {"Option1", ""}});
    ASSERT_TRUE(slab.press("Command2").completed);
    const std::vector<std::string> expected{
        "Lados Engastados:", "Lados com x = 0 e y = 0", " ", "Propriedades do concreto:",
        "Resistência característica fck= 20 MPa", "Módulo secante Ecs= 25757 MPa", "Coeficiente de fluência = 2.5", " ",
        "Cargas:", "Permanente g= 5 kN/m2                  Acidental q= 2 kN/m2", " ",
        "Vãos da laje:      lx= 4 m             ly= 5 m", " ", "Espessura da laje h= 10 cm", " ", "RESULTADOS:", " ",
        // kx = 1.25^4 / (1.25^4 + 1) = 0.7094, D = 2235.9: w = 2 / 384 kx 5.6 4^4 / D x 3.5.
        "Flecha final no centro da laje:", "Calculada: Wtot= 8.29 mm               Admissível: Wadm= 16 mm"};
    const auto lines = slab.report("Form22c");
    ASSERT_GE(lines.size(), expected.size() + 9);
    for (std::size_t i = 0; i < expected.size(); ++i) EXPECT_EQ(lines[i], expected[i]) << i;
    EXPECT_EQ(lines[expected.size() + 4].rfind("Momento negativo em x=0: Mxe= -", 0), 0u);
    EXPECT_EQ(lines[expected.size() + 5].rfind("Momento negativo em y=0: Mye= -", 0), 0u);
    EXPECT_EQ(lines.back().rfind("No lado ly engastado (x=0): Rye= ", 0), 0u);
    EXPECT_TRUE(slab.report("Form22b").empty());  // the other screens' keys print nothing
}

TEST(SlabReports, ShortReportsWholeAndResultsInTheOthers) {
    BeamRun shear("Form21");
    shear.set({{"Text2", "30"}, {"Text3", "7"}, {"Text5", "3"}, {"List1", "maior ou igual a 50%"}});
    ASSERT_TRUE(shear.press("Command1").completed);
    EXPECT_EQ(shear.report("Form21"),
              (std::vector<std::string>{"Concreto: fck= 20 MPa", "Esforço cortante de serviço Vk= 30 kN/m",
                                        "Coeficiente parcial de segurança Gamaf= 1.4", "Altura útil da laje d= 7 cm",
                                        "Armadura chegando ao apoio As= 3 cm2/m",
                                        "A porcentagem de armadura que chega ao apoio é maior ou igual a 50%", " ",
                                        "RESPOSTA:", " ", "Tensões de cisalhamento de referência:",
                                        "Tensão solicitante Twd= 0.6 MPa", "Tensão resistente Twu1= 0.58 MPa", " ",
                                        "CONCLUSÃO: Armadura transversal obrigatória."}));
    BeamRun circle("Form24d");
    circle.set({{"Text4", "5"}, {"Text5", "2"}, {"Text6", "3"}, {"Text8", "12"}, {"Option2", "True"}});
    ASSERT_TRUE(circle.press("Command1").completed);
    const auto lines = circle.report("Form24e");
    ASSERT_EQ(lines.size(), 26u);
    EXPECT_EQ(lines[0], "Contorno da laje: engastado");
    EXPECT_EQ(lines[10], "Raio da laje: R= 3 m");
    EXPECT_EQ(lines[16], "Calculada: Wtot= 6.42 mm               Admissível: Wadm= 24 mm");
    EXPECT_EQ(lines[19], "Momento radial: Mr= 4.72 kNm/m");
    EXPECT_EQ(lines[23], "Momento fletor resultante = 6.68 kNm/m");
    EXPECT_EQ(lines[25], "Momento negativo na direção radial: Mer= -7.88 kNm/m");
    // Every result the screen shows reaches the report of the others.
    for (const auto& [module, key, set] :
         std::vector<std::tuple<std::string, std::string, std::map<std::string, std::string>>>{
             {"Form20", "Form20", kGood.at("Form20")},
             {"Form23", "Form23b", kGood.at("Form23")},
             {"Form24", "Form24b", {{"Text4", "5"}, {"Text5", "2"}, {"Text6", "4"}, {"Text7", "3.2"}, {"Text8", "12"},
                                    {"Option3", "True"}, {"Option1", ""}}}}) {
        BeamRun run(module);
        run.set(set);
        ASSERT_TRUE(run.press("Command1").completed) << module;
        std::string all;
        for (const auto& l : run.report(key)) all += l + "\n";
        for (const auto& [name, text] : run.session.state().texts())
            if (name.rfind(key + ".Text", 0) == 0 && !text.empty() &&
                run.session.state().declaration(name)->kind == ControlKind::ResultBox) {
                EXPECT_NE(all.find("= " + text + " "), std::string::npos) << name << " " << text;
            }
    }
}

}  // namespace
}  // namespace morve::testing
