#include "frames/frame_report.h"

#include "app/grid_tables.h"

namespace morve {

const std::string& reportCell(const FormState& s, const std::string& grid, int row, int column) {
    static const std::string none;
    const GridRows& g = s.grid(grid);
    const auto r = static_cast<std::size_t>(row), c = static_cast<std::size_t>(column);
    return r < g.size() && c < g[r].size() ? g[r][c] : none;
}

void writeConcrete(const FormState& s, ReportWriter& out) {
    out.write("Propriedades do concreto:");
    out.write("Resistência característica fck= ", s.text("Text1"), " MPa");
    out.write("Módulo secante Ecs= ", s.text("Text2"), " MPa");
    out.blank();
}

void writeFrameData(const FormState& s, const FrameScreens& f, ReportWriter& out) {
    out.write("Dados do Pórtico:");
    out.write("Número de prumadas de pilares= ", s.text("Text3"));
    out.write("Número de níveis de vigas= ", s.text("Text4"));
    out.blank();
    out.write("A) Altura dos andares:");
    for (int i = 1; i <= dataRows(s, f.heights()); ++i)
        out.write("Andar= ", std::to_string(i), tab(15), "Altura (m)= ", reportCell(s, f.heights(), i, 1));
    out.write("B) Seções dos pilares:");
    for (int j = 1; j <= dataRows(s, f.columnSections()); ++j)
        out.write("Pilar= ", std::to_string(j), tab(15), "Área (cm2)= ", reportCell(s, f.columnSections(), j, 1),
                  tab(40), "Inércia (cm4)= ", reportCell(s, f.columnSections(), j, 2));
    out.write("C) Distância entre pilares:");
    for (int j = 1; j <= dataRows(s, f.spans()); ++j)
        out.write("Vão= ", std::to_string(j), tab(15), "Comprimento (m)= ", reportCell(s, f.spans(), j, 1));
    out.write("D) Seções das vigas:");
    for (int i = 1; i <= dataRows(s, f.beamSections()); ++i)
        out.write("Viga= ", std::to_string(i), tab(15), "Área (cm2)= ", reportCell(s, f.beamSections(), i, 1),
                  tab(40), "Inércia (cm4)= ", reportCell(s, f.beamSections(), i, 2));
    out.blank();
}

void writeStiffnessAnswer(const FormState& s, ReportWriter& out, bool area) {
    out.write(s.option("Option1") ? "A rigidez equivalente é baseada no modelo de carga concentrada."
                                  : "A rigidez equivalente é baseada no modelo de carga uniforme.");
    out.blank();
    out.write("RESPOSTA:");
    out.write("Rigidez equivalente EIeq= ", s.text("Text11"), " kNm2");
    out.write("Inércia equivalente Ieq= ", s.text("Text12"), " m4");
    if (area) out.write("Área equivalente Aeq= ", s.text("Text4"), " m2");
}

}  // namespace morve
