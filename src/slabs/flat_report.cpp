// The report of the flat slab: the data as typed and the loads of the columns and
// edges as the screens show them; the surfaces go to paper or to files from their
// own screen.
#include "reports/report_writer.h"
#include "slabs/flat_slab.h"

namespace morve {

namespace {

// One row per column of a table: its number, then two of its cells with their names.
void columnRows(ReportWriter& out, const FormState& s, const std::string& grid, const char* first,
                const char* second) {
    for (int r = 1; r < static_cast<int>(s.grid(grid).size()); ++r)
        out.write("Pilar= ", std::to_string(r), tab(14), first, s.cell(grid, r, 1), tab(34), second, s.cell(grid, r, 2));
}

}  // namespace

void writeForm40Report(const FormState& s, ReportWriter& out) {
    auto t = [&](const std::string& box) { return s.text(box); };
    out.write("Propriedades do concreto:");
    out.write("Resistência característica à compressão: fck= ", t("Text1"), " MPa");
    out.write("Módulo secante: Ecs= ", t("Text2"), " MPa");
    out.write("Coeficiente de fluência: fi= ", t("Text3"));
    out.blank();
    out.write("Dados da laje:");
    out.write("Espessura: h= ", t("Text4"), " cm");
    out.write("Vãos: lx= ", t("Text5"), " m", tab(34), "ly= ", t("Text6"), " m");
    out.write("Número de pilares internos: n= ", t("Text7"));
    out.blank();
    out.write("Cargas de serviço:");
    out.write("Permanente: g= ", t("Text8"), " kN/m2", tab(34), "Acidental: q= ", t("Text9"), " kN/m2");
    out.blank();
    if (s.grid("Form40b.Grade1").size() > 1) {
        out.write("Coordenadas dos centros dos pilares:");
        columnRows(out, s, "Form40b.Grade1", "X (m)= ", "Y (m)= ");
        out.blank();
        out.write("Dimensões das seções dos pilares:");
        columnRows(out, s, "Form40b.Grade2", "hx (cm)= ", "hy (cm)= ");
        out.blank();
    }
    out.write("RESULTADOS PARCIAIS:");
    const std::string loads = "Form40c.Grade1";
    for (int r = 1; r < static_cast<int>(s.grid(loads).size()); ++r)
        out.write("Pilar= ", s.cell(loads, r, 0), tab(14), "Carga= ", s.cell(loads, r, 1), " kN");
    out.blank();
    out.write("Reações totais nos lados apoiados:");
    out.write("Em y=ly:", tab(14), "R1= ", t("Form40c.Text1"), " kN");
    out.write("Em y=0:", tab(14), "R2= ", t("Form40c.Text2"), " kN");
    out.write("Em x=0:", tab(14), "R3= ", t("Form40c.Text3"), " kN");
    out.write("Em x=lx:", tab(14), "R4= ", t("Form40c.Text4"), " kN");
    out.blank();
    out.write("Momentos fletores, torçores e flechas: imprimir ou salvar gráficos");
}

}  // namespace morve
