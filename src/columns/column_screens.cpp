// The windows of the column modules, declared from their description.
#include "columns/column_form.h"
#include "basis/messages.h"

namespace morve {

namespace {

const char* const kOkTip = "Volta para o dimensionamento";

void sectionBoxes(ScreenBuilder& s, const ColumnForm& f) {
    s.frame("Frame2", "Seção", 1, 0);
    switch (f.shape) {
        case ColumnShape::Rectangle:
        case ColumnShape::Box: {
            const bool solid = f.shape == ColumnShape::Rectangle;
            // The boxes stand in the order of their meaning, whatever their numbers.
            s.box(f.b, "b (cm)=", solid ? "20" : "60").box(f.h, "h (cm)=", solid ? "40" : "60");
            if (!solid) s.box(f.bw, "bw (cm)=", "20").box(f.hf, "hf (cm)=", "20");
            s.box(f.dPrime, "d' (cm)=")
                .label("Label1", "Número de camadas:")
                .box(f.count, "n=", "", "", KeyFilter::Digit);
            break;
        }
        case ColumnShape::Circle:
        case ColumnShape::Ring:
            s.box(f.h, "h (cm)=", "60");
            if (f.shape == ColumnShape::Ring) s.box(f.ho, "ho(cm)=", "20");
            s.box(f.dPrime, "d' (cm)=").box(f.count, "Número de barras: n=", "", "", KeyFilter::Digit);
            if (!f.design) s.box(f.area, "Área total de aço na seção=", "", "cm2");
            break;
    }
}

ScreenDecl mainScreen(const ColumnForm& f) {
    ScreenBuilder s(f.key, f.heading);
    s.frame("Frame1", "Materiais", 0, 0)
        .box("Text1", "fck (MPa)=", "20")
        .box("Text2", "fyk (MPa)=", "500")
        .box("Text3", "Es (GPa)=", "200");
    sectionBoxes(s, f);
    if (f.design)
        s.frame("Frame3", "Esforços solicitantes de serviço", 0, 1)
            .box(f.normal, "Nk (kN)=")
            .box(f.moment, "Mk (kNm)=");
    else
        s.frame("Frame3", "Esforço normal de cálculo", 0, 1).box(f.normal, "Nd (kN)=");
    s.frame("Frame4", "Coeficientes parciais", 1, 1).box(f.gamac, "Gamac=", "1.4").box(f.gamas, "Gamas=", "1.15");
    if (f.design) s.box(f.gamaf, "Gamaf=", "1.4");

    s.frame("Frame5", "RESPOSTA", 2, 0);
    if (f.design)
        s.result(f.asResult, "Área de aço calculada =", "cm2")
            .result(f.asMinimum, "Armadura mínima=", "cm2")
            .label("Label2", "SOLUÇÃO:")
            .result(f.barCount, "").sameRow()
            .label("Label3", "barras de ").sameRow()
            .result(f.diameter, "", "mm").sameRow()
            .result(f.existing, "Armadura existente =", "cm2");
    else
        s.label("Label2", "Momento fletor de ruína de cálculo:").result(f.resistingMoment, "Md=", "kNm");

    s.frame("Frame6", "", 2, 1);
    if (isLayered(f.shape))
        s.command(f.layersCommand, "Entrar com dados das camadas",
                  "Fornecer o número de barras de cada camada de aço");
    s.command(f.calculate, "&CALCULAR",
              f.design ? "Realizar o dimensionamento" : "Calcular o momento fletor de ruína");
    s.command(f.drawCommand, "Ver seção", "Ver um desenho da seção com as armaduras");
    if (!f.design)
        s.command(f.diagramCommand, "Ver diagrama de interação", "Ver a forma do diagrama de interação")
            .disabled();
    return s.build();
}

ScreenDecl layerScreen(const ColumnForm& f) {
    ScreenBuilder s(f.layerScreen, "Dados das camadas de armadura", false);
    s.frame("Frame1", "", 0, 0)
        .label("Label1", msg::kGridArrows)
        .grid("Grade1", GridDecl{{"Camada", "Número de barras"}, 0, 300, KeyFilter::Digit, true});
    if (!f.design) s.box("Text1", "Área total de aço na seção=", "", "cm2");
    s.command("Command2", "&OK", kOkTip);
    return s.build();
}

ScreenDecl sectionScreen() {
    ScreenBuilder s(kSectionScreen, "Seção transversal", false);
    s.frame("Frame1", "", 0, 0).picture("Picture1", 360, 360).command("Command1", "&Voltar");
    return s.build();
}

ScreenDecl diagramScreen() {
    ScreenBuilder s(kDiagramScreen, "Diagrama de interação", false);
    s.frame("Frame1", "", 0, 0).chart("MSChart1", 560, 420).command("Command1", "&Voltar");
    return s.build();
}

}  // namespace

std::vector<ScreenDecl> ColumnModule::screens() const {
    std::vector<ScreenDecl> out{mainScreen(form_)};
    if (isLayered(form_.shape)) out.push_back(layerScreen(form_));
    out.push_back(sectionScreen());
    if (!form_.design) out.push_back(diagramScreen());
    return out;
}

}  // namespace morve
