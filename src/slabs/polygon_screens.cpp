#include "slabs/polygon_screens.h"

#include "app/numbers.h"
#include "basis/messages.h"
#include "slabs/polygon_mesh.h"
#include "slabs/slab_basis.h"

namespace morve {

namespace {

GridDecl table(std::vector<std::string> header, KeyFilter filter) {
    GridDecl g;
    g.header = std::move(header);
    g.maxRows = mesh_limits::kVertices;
    g.filter = filter;
    return g;
}

GridDecl results(std::vector<std::string> header) {
    GridDecl g;
    g.header = std::move(header);
    g.filter = KeyFilter::None;
    return g;
}

const char* sideName(const std::string& cell) {
    const double t = readNumber(cell);
    return t == 1 ? "engaste" : t == 2 ? "bordo livre" : "apoio simples";
}

}  // namespace

std::vector<ScreenDecl> polygonScreens() {
    ScreenBuilder s("Form24f", "LAJES POLIGONAIS COM CARGA UNIFORME");
    addConcreteFrame(s, "Frame1", 0, 0);
    addLoadFrame(s, "Frame3", 1, 0);
    s.frame("Frame2", "Laje", 0, 1)
        .box("Text7", "h (cm)=")
        .box("Text8", "Rigidez à torção relativa K/K1 =")
        .box("Text6", "Número de vértices da poligonal =", "", "", KeyFilter::Digit)
        .command("Command4", "Entrar com as coordenadas");
    s.frame("Frame6", "Malha", 1, 1)
        .list("List1", "Malha da grelha :", kPolygonFineness)
        .command("Command7", "Gerar malha ", "Gerar a malha da grelha")
        .command("Command13", "Calculando...Aguarde.")
        .hidden();
    s.frame("Frame7", "", 2, 0, 1, 2)
        .command("Command1", "&CALCULAR")
        .disabled()
        .command("Command10", "Diagramas", "Ver diagramas de momentos fletores")
        .disabled();
    s.frame("Frame4", "Momentos fletores e flecha", 3, 0)
        .grid("Grade1", results({" ", "máximo", "mínimo", "no centro"}))
        .label("Label1", "Momentos em kNm/m")
        .result("Text9", "Flecha imediata (carga quase permanente) =", "mm")
        .result("Text10", "Flecha final Wtot =", "mm");
    s.frame("Frame5", "Reações de apoio", 3, 1)
        .grid("Grade2", results({"Lado", "R (kN/m)"}));

    ScreenBuilder v("Form24g", "Coordenadas dos vértices da laje (metros)", false);
    v.frame("Frame1", "Vértices", 0, 0).grid("Grade1", table({"Vértice", "X", "Y"}, KeyFilter::SignedNumber));
    v.frame("Frame2", "Condições de contorno", 0, 1)
        .grid("Grade2", table({"Lado", "Tipo"}, KeyFilter::Digit))
        .label("Label1", "0 = Apoio simples")
        .label("Label2", "1 = Engaste ")
        .label("Label3", "2 = Bordo livre");
    v.frame("Frame3", "", 1, 0, 1, 2)
        .label("Label4", msg::kGridsArrows)
        .command("Command2", "&OK", "Volta para o cálculo")
        .command("Command5", "Ver poligonal", "Ver o desenho da laje");

    ScreenBuilder h("Form24h", "Laje poligonal", false);
    h.frame("Frame1", "", 0, 0).picture("Picture1", 590, 512).command("Command1", "&Voltar");
    ScreenBuilder j("Form24j", "Diagramas de momentos fletores", false);
    j.frame("Frame1", "", 0, 0).picture("Picture1", 700, 512).command("Command1", "&Voltar");
    return {s.build(), v.build(), h.build(), j.build()};
}

void writePolygonReport(const FormState& s, ReportWriter& out) {
    reportConcrete(out, s);
    reportLoads(out, s);
    reportThickness(out, s, "Text7");
    out.write("Rigidez à torção relativa J/J1= ", s.text("Text8"));
    out.blank();
    out.write("Coordenadas dos vértices da laje (em metros):");
    const GridRows& v = s.grid(kPolygonVertices);
    for (std::size_t r = 1; r < v.size(); ++r)
        out.write("Vértice ", std::to_string(r), tab(15), "X= ", s.cell(kPolygonVertices, static_cast<int>(r), 1), tab(35),
                  "Y= ", s.cell(kPolygonVertices, static_cast<int>(r), 2));
    out.blank();
    out.write("Condições de contorno:");
    for (std::size_t r = 1; r < s.grid(kPolygonSides).size(); ++r)
        out.write("Lado ", std::to_string(r), tab(15), sideName(s.cell(kPolygonSides, static_cast<int>(r), 1)));
    out.blank();
    const GridRows& m = s.grid(kPolygonMoments);
    if (m.size() < 3) return;
    out.write("RESULTADOS:");
    out.blank();
    const char* heads[] = {"Momentos fletores Mx (na direção x) em kNm/m:", "Momentos fletores My (na direção y) em kNm/m:"};
    for (int i = 1; i <= 2; ++i) {
        out.write(heads[i - 1]);
        out.write("Máximo= ", s.cell(kPolygonMoments, i, 1), tab(25), "Mínimo= ", s.cell(kPolygonMoments, i, 2), tab(50),
                  "No centro= ", s.cell(kPolygonMoments, i, 3));
        out.blank();
    }
    out.write("Flecha final máxima: Wtot= ", s.text("Text10"), " mm");
    out.blank();
    out.write("Reações de apoio (em kN/m):");
    for (std::size_t r = 1; r < s.grid(kPolygonReactions).size(); ++r)
        out.write("Lado ", std::to_string(r), tab(15), "R= ", s.cell(kPolygonReactions, static_cast<int>(r), 1));
}

}  // namespace morve
