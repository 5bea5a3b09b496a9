// Form8 and Form10b: bars, layers, the true d and d', the drawing; and the
// reports of the bending family.
#include <gtest/gtest.h>

#include <algorithm>

#include "basis/materials.h"
#include "beam_session.h"
#include "beams/detailing.h"

using namespace morve;
using morve::testing::BeamRun;
using morve::testing::CheckCase;

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

TEST(Form8Detailing, SevenBarsInThreeLayersWithTheVibratorGap) {
    // As 12.78: 12.78 / 2.0106 = 6.36 -> 7 bars of 16 (14.07 cm2); As' 3.73 / 0.7854 -> 5 of 10.
    // Inside the stirrup W = 20 - 2 (0.63 + 3) = 12.74; e = 1.2 x 1.9 = 2.28 cm.
    // First layer (2.28 + 12.74) / (1.6 + 2.28) = 3.87 -> 3 bars; with the gap
    // (4.56 + 12.74 - 5) / 3.88 = 3.17 -> 3, odd -> 2. Layers 3, 2, 2.
    // Centres: t = (8 + 6.3) / 10 + 3 = 4.43, pitch 1.6 + 2 = 3.6 -> 35.57, 31.97, 28.37;
    // d = (3 x 35.57 + 2 x 31.97 + 2 x 28.37) / 7 = 32.48 (first layer 3.09 below it < 4).
    // Top: 10 mm, first layer (2.28 + 12.74) / 3.28 -> 4, then 1; t = 4.13, pitch 3:
    // d' = (4 x 4.13 + 7.13) / 5 = 4.73.
    BeamRun run = detailed("120");
    ASSERT_EQ(run.text("Form8.Text1"), "12.78");
    ASSERT_TRUE(run.press("Form8.Command2").completed);
    EXPECT_EQ(run.text("Form8.Text3"), "7");
    EXPECT_EQ(run.text("Form8.Text5"), "16");
    EXPECT_EQ(run.text("Form8.Text9"), "14.07");
    EXPECT_EQ(run.text("Form8.Text6"), "5");
    EXPECT_EQ(run.text("Form8.Text10"), "3.93");
    EXPECT_TRUE(run.session.state().enabled("Form8.Command3"));

    Outcome o = run.press("Form8.Command3");
    EXPECT_TRUE(run.session.screenShown("Form8b"));
    EXPECT_EQ(run.text("Form8b.Text12"), "32.48");
    EXPECT_EQ(run.text("Form8b.Text14"), "4.73");
    EXPECT_EQ(run.text("Form8b.Text7"), "7");
    EXPECT_EQ(run.text("Form8b.Text2"), "5");
    // d fell from 36 to 32.48: 7 bars no longer carry 1.4 x 120 kNm.
    EXPECT_EQ(run.lastMessage(),
              "É necessário refazer o dimensionamento com os valores corretos da altura útil (d) e da "
              "distância (d').");
    EXPECT_EQ(filledCircles(run.session.module().drawing("Form8b.Picture1", run.session.state())), 12);
}

TEST(Form8Detailing, NegativeMomentPutsTheTensionBarsOnTop) {
    // The same bars mirrored: d = 40 - 7.516 = 32.48 measured from the bottom.
    BeamRun run = detailed("-120");
    run.press("Form8.Command2");
    run.press("Form8.Command3");
    for (auto [box, text] : {std::pair{"Form8.Text6", "7"}, {"Form8.Text8", "16"}, {"Form8.Text3", "5"}, {"Form8b.Text2", "7"},
                             {"Form8b.Text4", "16"}, {"Form8b.Text12", "32.48"}, {"Form8b.Text14", "4.73"}})
        EXPECT_EQ(run.text(box), text) << box;
}

TEST(Form8Detailing, EnoughBarsPassTheRedesign) {
    // Mk 40: As 2.87 -> 2 bars of 16 in one layer, d = 35.57; the hanger bars 2 x 10.
    BeamRun run = detailed("40");
    run.press("Form8.Command2");
    EXPECT_EQ(run.text("Form8.Text3"), "2");
    EXPECT_EQ(run.text("Form8.Text6"), "2");
    Outcome o = run.press("Form8.Command3");
    EXPECT_TRUE(o.completed);
    EXPECT_EQ(run.text("Form8b.Text12"), "35.57");
    EXPECT_TRUE(run.prompter.messages().empty());
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

TEST(Form8Detailing, ChecksStopInOrderWithTheirFocus) {
    const std::vector<CheckCase> cases = {
        {{{"Form8.List1", ""}}, {}, "Escolha o diâmetro da armadura tracionada.", "Form8.List1"},
        {{{"Form8.List2", ""}}, {}, "Escolha o diâmetro da armadura comprimida.", "Form8.List2"},
        {{{"Form8.List3", ""}}, {}, "Escolha o diâmetro dos estribos.", "Form8.List3"},
        {{{"Form8.List4", "2.5"}}, {}, "O cobrimento mínimo para a classe de agressividade II é igual a 3 cm. Aumente o cobrimento das armaduras.", "Form8.List4"},
        {{{"Form8.List5", ""}}, {}, "Escolha o diâmetro máximo do agregado.", "Form8.List5"},
        {{{"Form8.List6", ""}}, {}, "Escolha o espaço para o vibrador.", "Form8.List6"},
        {{{"Form8.List5", "38"}}, {}, "De acordo com a NBR-6118, o diâmetro máximo do agregado não pode superar 20% do cobrimento nominal. Escolha outro valor.", "Form8.List5"},
        {{{"Form8.List6", "8"}, {"Form8.List4", "5"}}, {}, "Não é possível introduzir o vibrador. Revise o seu projeto.", ""},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.message);
        BeamRun run = detailed("120", c.set);
        Outcome o = run.press("Form8.Command2");
        EXPECT_FALSE(o.completed);
        EXPECT_EQ(run.lastMessage(), c.message);
        EXPECT_EQ(o.focus, c.focus);
        EXPECT_EQ(run.text("Form8.Text3"), "");
    }
    // A 12 cm beam: 38 mm aggregate is more than a quarter of it.
    BeamRun narrow = detailed("20", {{"Text3", "12"}, {"Form8.List5", "38"}, {"Form8.List4", "4"}});
    EXPECT_FALSE(narrow.press("Form8.Command2").completed);
    EXPECT_EQ(narrow.lastMessage(), "Limite o diâmetro do agregado em 25% da largura da viga. Escolha outro valor.");

    // "Ver seção" after a detailing that then failed: its results are blank.
    BeamRun early = detailed("120");
    early.press("Form8.Command2");
    early.set({{"Form8.List1", ""}}).press("Form8.Command2");
    Outcome o = early.press("Form8.Command3");
    EXPECT_EQ(early.lastMessage(), "Altere os dados e clique em CALCULAR.");
    EXPECT_EQ(o.focus, "Form8.Command2");
}

TEST(Form8Detailing, LayersTooFarFromTheCentroidAreRefused) {
    // b 20, h 25, d 21, Mk 60: many bars of 10 mm stack up far above the first layer.
    BeamRun run = detailed("60", {{"Text4", "25"}, {"Text5", "21"}, {"Form8.List1", "10"}});
    run.press("Form8.Command2");
    Outcome o = run.press("Form8.Command3");
    EXPECT_FALSE(o.completed);
    EXPECT_EQ(run.lastMessage(),
              "A distância do centróide da armadura tracionada até a primeira camada é superior a 0,1h. "
              "Segundo a NBR-6118, deve-se considerar a disposição correta das barras. Use o módulo "
              "VERIFICAÇÃO ou revise o seu projeto.");
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

TEST(BendingReports, DetailingReportHasTwoFixedPages) {
    BeamRun run = detailed("120");
    run.press("Form8.Command2");
    run.press("Form8.Command3");
    const auto lines = run.report("Form8b");
    const auto page = std::find(lines.begin(), lines.end(), "\f");
    ASSERT_NE(page, lines.end());
    EXPECT_EQ(*(page - 1), "... Continua");
    const std::vector<std::string> first(lines.begin() + 15, page);
    EXPECT_EQ(first, (std::vector<std::string>{
                         " ", "RESULTADOS DO DIMENSIONAMENTO:", " ",
                         "Armadura tracionada As= 12.78 cm2     Armadura comprimida As'= 3.73 cm2", " ",
                         "Restrições para o detalhamento:",
                         "Diâmetro dos estribos = 6.3 mm                        Cobrimento das armaduras = 3 cm",
                         "Diâmetro máximo dos agregados = 19 mm                 Espaço livre para o vibrador = 5 cm",
                         "... Continua"}));
    EXPECT_EQ(std::vector<std::string>(page + 1, lines.end()),
              (std::vector<std::string>{" ", "SOLUÇÃO FINAL:", " ", "Altura útil correta = 32.48 cm     Distância d' correta = 4.73 cm",
                                        " ", "Armadura superior: 5 barras de 10 mm", "Armadura inferior: 7 barras de 16 mm", " ",
                                        "[figura]"}));
    EXPECT_EQ(lines[0], "Propriedades dos materiais:");
    EXPECT_EQ(lines[14], "Critério de ductilidade: CEB/90.  xlim/d = 0.45");
}

TEST(BendingReports, TeeDesignAndVerificationLines) {
    BeamRun t("Form10");
    t.set({{"Text5", "10"}, {"Text9", "4"}, {"Text10", "100"}, {"List6", "1"}});
    t.press("Command3");
    const auto lines = t.report("Form10");
    ASSERT_EQ(lines.size(), 21u);
    EXPECT_EQ(lines[8], "Largura da mesa bf= 60 cm              Espessura da mesa hf= 10 cm");
    EXPECT_EQ(lines[9], "Largura da nervura bw= 12 cm           Altura h= 40 cm");
    EXPECT_EQ(lines[10], "Altura útil d= 36 cm                   Distância d'= 4 cm");
    EXPECT_EQ(lines[12], "Momento fletor de serviço Mk= 100 kNm");
    EXPECT_EQ(lines[19], "Armadura tracionada As= 9.73 cm2");
    EXPECT_EQ(lines[20], "Armadura comprimida As'= 0 cm2");

    BeamRun v("Form11");
    v.set({{"Text5", "10"}, {"Text8", "2"}}).layers("Form11b.Grade1", {{"6", "36"}, {"2", "31"}});
    v.press("Command3");
    EXPECT_EQ(v.report("Form11"),
              (std::vector<std::string>{
                  "Propriedades dos materiais:", "Concreto: fck= 20 MPa", "Aço: fyk= 500 MPa     Es= 200 GPa",
                  " ", "Coeficientes parciais de segurança:", "Gamac= 1.4     Gamas= 1.15", " ",
                  "Dimensões da seção transversal:", "Largura da mesa: bf= 60 cm",
                  "Espessura da mesa: hf= 10 cm", "Largura da nervura: bw= 12 cm",
                  "Número de camadas de armadura: n= 2", " ", "Dados das camadas de armadura:",
                  "Camada = 1    Área: As= 6 cm2          Altura útil: d= 36 cm",
                  "Camada = 2    Área: As= 2 cm2          Altura útil: d= 31 cm", " ", " ",
                  "Momento de ruína de cálculo: Md= " + v.text("Text9") + " kNm"}));
    BeamRun r("Form9");
    r.set({{"Text6", "1"}}).layers("Form9b.Grade1", {{"6", "36"}});
    EXPECT_EQ(r.report("Form9")[7], "Largura da seção transversal: b= 20 cm");
}
