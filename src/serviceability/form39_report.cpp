// The report of Form39 and the drawing of its loaded span (Form39b2).
#include <algorithm>
#include <cmath>

#include "app/numbers.h"
#include "reports/report_writer.h"
#include "serviceability/form39.h"

namespace morve {

namespace {

void loadTable(ReportWriter& out, const FormState& s, const std::string& grid, const std::string& title,
               const char* const heads[3], const char* const units[3]) {
    const GridRows& rows = s.grid(grid);
    if (rows.size() < 2) return;
    out.write(title);
    out.write(heads[0], tab(30), heads[1], tab(50), heads[2]);
    for (std::size_t r = 1; r < rows.size(); ++r)
        out.write(s.cell(grid, r, 1), units[0], tab(30), s.cell(grid, r, 2), units[1], tab(50), s.cell(grid, r, 3),
                  units[2]);
    out.blank();
}

}  // namespace

void Form39::report(const std::string& key, const FormState& s, ReportWriter& out) const {
    if (key != "Form39") return;
    const bool tee = s.option("Option2");
    out.write("Propriedades dos materiais:");
    out.write("Concreto:");
    out.write("Resistência característica fck= ", s.text("Text1"), " MPa", tab(60), "Módulo secante Ecs= ",
              s.text("Text2"), " MPa");
    out.write("Coeficiente de fluência= ", s.text("Text3"), tab(60), "Deformação imposta= ", s.text("Text4"));
    out.write("Aço: Módulo de elasticidade Es= ", s.text("Text5"), " GPa");
    out.blank();
    if (tee) {
        out.write("Dimensões da seção T:");
        out.write("Largura da mesa bf= ", s.text("Text15"), " cm", tab(50), "Espessura da mesa hf= ", s.text("Text16"),
                  " cm");
        out.write("Largura da nervura bw= ", s.text("Text17"), " cm", tab(50), "Altura total h= ", s.text("Text18"),
                  " cm");
    } else {
        out.write("Dimensões da seção retangular:");
        out.write("Largura b= ", s.text("Text9"), " cm", tab(50), "Altura h= ", s.text("Text10"), " cm");
    }
    const int first = tee ? 19 : 11;  // d', d'', As, As' follow in both frames
    auto box = [&](int i) { return s.text("Text" + std::to_string(first + i)); };
    out.write("Distância d'= ", box(0), " cm", tab(50), "Distância d''= ", box(1), " cm");
    out.write("Armadura tracionada As= ", box(2), " cm2", tab(50), "Armadura comprimida As'= ", box(3), " cm2");
    out.write("Diâmetro das barras tracionadas= ", s.text(tee ? "List2" : "List1"), " mm");
    out.blank();
    out.write("Vão da viga= ", s.text("Text6"), " m");
    out.blank();
    out.write("Dados do carregamento:");
    static const char* const uniformHeads[] = {"Início", "Comprimento", "Valor"};
    static const char* const uniformUnits[] = {" m", " m", " kN/m"};
    static const char* const pointHeads[] = {"Posição", "Força", "Momento"};
    static const char* const pointUnits[] = {" m", " kN", " kNm"};
    loadTable(out, s, "Form39b.Grade2", "Cargas uniformemente distribuídas", uniformHeads, uniformUnits);
    loadTable(out, s, "Form39b.Grade1", "Cargas concentradas no vão", pointHeads, pointUnits);
    out.write("Momentos nas extremidades do vão");
    out.write("Esquerda: XA= ", s.text("Form39b.Text1"), " kNm", blanks(5), "Direita: XB= ", s.text("Form39b.Text2"),
              "kNm");
    out.blank();
    out.write("RESULTADOS DA ANÁLISE:");
    out.blank();
    out.write("Flecha no meio do vão:");
    auto result = [&](const std::string& caption, const std::string& symbol, const std::string& field) {
        out.write(caption, tab(50), symbol, s.text(field), " mm");
    };
    result("Método do Eurocode 2:", "Wtot= ", "Form39c.Text8");
    if (!tee) {
        result("Método bilinear do CEB:", "Wtot= ", "Form39c.Text1");
        result("Fórmula prática do CEB/90:", "Wtot= ", "Form39c.Text2");
    }
    result("NBR-6118:   Wo= " + s.text("Form39c.Text3") + " mm", "Wtot= ", "Form39c.Text7");
    result("Flecha admissível:", "Wadm= ", "Form39c.Text4");
    out.blank();
    out.write("Abertura máxima das fissuras:");
    result("Formulação do CEB/90:", "wk= ", "Form39c.Text5");
    result("Formulação da NBR-6118:", "wk= ", "Form39c.Text6");
}

Drawing Form39::drawing(const std::string& picture, const FormState& state) const {
    if (state.qualify(picture) != "Form39b2.Picture1") return {};
    return loadedSpanDrawing(readSpanLoads(state));
}

// The span is drawn 100 units long whatever its length; loads stand above it, a
// uniform segment as a band with its value, a force as an arrow, a couple as a
// circular arrow, the end moments at the supports. Loads are drawn where they are
// typed, held to the span, since the picture is only a look at the data.
Drawing loadedSpanDrawing(const SpanLoads& loads) {
    Drawing g;
    g.left = -12;
    g.top = -32;
    g.right = 112;
    g.bottom = 22;
    const bool usable = std::isfinite(loads.span) && loads.span > 0;
    const double l = usable ? loads.span : 1;
    auto at = [&](double x) { return std::isfinite(x) ? 100 * std::clamp(x / l, 0.0, 1.0) : 0.0; };
    // Along the span the picture is to scale, once the span is known.
    if (usable) {
        g.unit = DrawingUnit::Metre;
        g.perCoordinate = l / 100;
    }

    g.line({0, 0}, {100, 0}, colours::black, 3);
    for (double x : {0.0, 100.0}) g.polyline({{x, 0}, {x - 3, 5}, {x + 3, 5}}, true, colours::black, 1);
    g.dimension({0, 12}, {100, 12}, usable ? "l = " + formatPlain(loads.span) + " m" : "l = ?", 0, 4);
    g.as(ShapeKind::Loads);

    for (std::size_t i = 0; i < loads.uniform.size(); ++i) {
        const auto& u = loads.uniform[i];
        if (u.value == 0 || u.length <= 0) continue;
        const double a = at(u.start), b = at(u.start + u.length);
        const double top = -6 - 5.0 * (i % 3);  // overlapping segments stay apart
        g.rectangle({a, top - 4}, {b, top}, colours::blue, 1);
        g.text({(a + b) / 2, top - 6}, formatPlain(u.value) + " kN/m", 8, TextAlign::Centre, colours::blue);
    }
    for (const auto& p : loads.points) {
        const double x = at(p.position);
        if (p.force != 0) {
            const double tip = p.force > 0 ? -1 : -19, tail = p.force > 0 ? -19 : -1;
            const double head = p.force > 0 ? -4 : -16;
            g.line({x, tail}, {x, tip}, colours::red, 2);
            g.polyline({{x - 1.5, head}, {x, tip}, {x + 1.5, head}}, false, colours::red, 2);
            g.text({x + 1.5, -22}, formatPlain(p.force) + " kN", 8, TextAlign::Left, colours::red);
        }
        if (p.moment != 0) {
            g.circle({x, 0}, 4, colours::green, false, 2);
            g.text({x, -26}, formatPlain(p.moment) + " kNm", 8, TextAlign::Centre, colours::green);
        }
    }
    // End moments under their supports, clear of the loads above the beam.
    if (loads.xa != 0) g.text({4, 7.5}, "XA = " + formatPlain(loads.xa) + " kNm", 8, TextAlign::Left, colours::green);
    if (loads.xb != 0) g.text({96, 7.5}, "XB = " + formatPlain(loads.xb) + " kNm", 8, TextAlign::Right, colours::green);
    return g;
}

}  // namespace morve
