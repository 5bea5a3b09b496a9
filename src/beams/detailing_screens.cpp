// The two detailings as data: the boxes of the design each reads, the words that
// differ, and their screens.
#include "beams/detailing.h"

#include "basis/materials.h"
#include "beams/detailing_bars.h"

namespace morve {

const DetailingSetup& form8Setup() {
    static const DetailingSetup setup = [] {
        DetailingSetup d;
        d.design = "Form7";
        d.screen = "Form8";
        d.results = "Form8b";
        d.fck = "Form7.Text1";
        d.fyk = "Form7.Text2";
        d.es = "Form7.Text9";
        d.width = "Form7.Text3";
        d.height = "Form7.Text4";
        d.moment = "Form7.Text6";
        return d;
    }();
    return setup;
}

const DetailingSetup& form10bSetup() {
    static const DetailingSetup setup = [] {
        DetailingSetup d;
        d.design = "Form10";
        d.screen = "Form10b";
        d.results = "Form10c";
        d.fck = "Form10.Text1";
        d.fyk = "Form10.Text2";
        d.es = "Form10.Text3";
        d.width = "Form10.Text6";  // bars, cover and vibrator all live in the web
        d.height = "Form10.Text7";
        d.moment = "Form10.Text10";
        d.flangeWidth = "Form10.Text4";
        d.flangeThickness = "Form10.Text5";
        d.signedMoment = false;
        d.aggregateWidthMessage =
            "Limite o diâmetro do agregado em 25% da largura da nervura. Escolha outro valor.";
        // The flange is wide: only the web is checked for two bars a layer.
        d.checkTopFace = false;
        d.bottomTwoBarsMessage =
            "Não é possível colocar 2 barras por camada na nervura. Revise o seu projeto.";
        d.vibratorMessage = "Não é possível introduzir o vibrador na nervura. Revise o seu projeto.";
        d.topSecondLayerMessage = "Aumente o diâmetro da armadura de compressão.";
        return d;
    }();
    return setup;
}

ScreenDecl detailingScreen(const DetailingSetup& s) {
    ScreenBuilder b(s.screen, "DETALHAMENTO DAS ARMADURAS", false);
    b.frame("Frame1", "Áreas calculadas (cm2)", 0, 0)
        .result("Text1", "Armadura tracionada:")
        .result("Text2", "Armadura comprimida:");
    b.frame("Frame2", "Barras", 1, 0)
        .list("List1", "Diâmetro da armadura tracionada:", BarCatalogue::tensionBars())
        .tip(BarCatalogue::kBarListTip)
        .list("List2", "Diâmetro da armadura comprimida:", BarCatalogue::compressionBars())
        .tip(BarCatalogue::kBarListTip)
        .list("List3", "Diâmetro dos estribos:", BarCatalogue::stirrups())
        .tip(BarCatalogue::kBarListTip);
    b.frame("Frame3", "Restrições", 1, 1)
        .list("List4", "Cobrimento das armaduras (cm):", BarCatalogue::covers())
        .list("List5", "Diâmetro máximo do agregado (mm):", BarCatalogue::aggregates())
        .list("List6", "Espaço para o vibrador (cm):", BarCatalogue::vibratorSpaces());
    b.frame("Frame4", "", 2, 0, 1, 2)
        .result("Text3", "NA FACE INFERIOR:")
        .result("Text5", "barras de", "mm")
        .result("Text9", "", "cm2")
        .result("Text6", "NA FACE SUPERIOR:")
        .result("Text8", "barras de", "mm")
        .result("Text10", "", "cm2");
    b.frame("Frame5", "", 0, 1)
        .command("Command2", "&CALCULAR")
        .command("Command3", "Ver seção")
        .disabled()
        .command("Command1", "&Voltar", "Resolver outro exemplo ou alterar dados")
        .command("Command6", "Aj&uda");
    return b.build();
}

ScreenDecl detailingResultScreen(const DetailingSetup& s) {
    ScreenBuilder b(s.results, "SOLUÇÃO FINAL", false);
    b.frame("Frame1", "SOLUÇÃO FINAL", 0, 0)
        .result("Text2", "Armadura superior:")
        .result("Text4", "barras de", "mm")
        .result("Text7", "Armadura inferior:")
        .result("Text9", "barras de", "mm")
        .result("Text12", "Altura útil correta (cm) =")
        .result("Text14", "Distância d' correta (cm) =");
    b.frame("Frame2", "", 0, 1, 2, 1).picture("Picture1", 420, 280);
    b.frame("Frame3", "", 1, 0)
        .command("Command1", "&Voltar")
        .command("Command2", "Im&primir");
    return b.build();
}

}  // namespace morve
