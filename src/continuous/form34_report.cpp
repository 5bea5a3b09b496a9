// The report of the continuous beam: the data as typed, the pictures of the last
// analysis, and the result tables as the screens show them (rounded).
#include "app/numbers.h"
#include "continuous/form34.h"
#include "reports/report_writer.h"

namespace morve {

namespace {

const std::string& cellOf(const FormState& s, const std::string& grid, std::size_t row, std::size_t column) {
    static const std::string none;
    const GridRows& g = s.grid(grid);
    return row < g.size() && column < g[row].size() ? g[row][column] : none;
}

std::size_t rowsOf(const FormState& s, const std::string& grid) { return s.grid(grid).size(); }

// The rows of a result table whose given column is filled.
template <class Write>
void eachFilled(const FormState& s, const std::string& grid, std::size_t column, Write write) {
    for (std::size_t r = 1; r < rowsOf(s, grid); ++r) {
        const std::string& c = cellOf(s, grid, r, column);
        if (c.find_first_not_of(' ') != std::string::npos) write(r);
    }
}

}  // namespace

void writeForm34Report(const FormState& s, ReportWriter& out) {
    auto t = [&](const std::string& box) { return s.text(box); };
    out.write("Propriedades do concreto:");
    out.write("Resistência característica fck= ", t("Text1"), " MPa");
    out.write("Módulo secante Ecs= ", t("Text2"), " MPa");
    out.write("Coeficiente de fluência= ", t("Text8"));
    out.blank();
    out.write("Inércia das seções transversais:");
    const std::string bars = "Form34b.Grade1", supports = "Form34b.Grade2", moments = "Form34f.Grade1";
    for (std::size_t i = 1; i < rowsOf(s, bars); ++i)
        out.write("Vão ", std::to_string(i), tab(10), "Inércia= ", cellOf(s, bars, i, 2), " cm4");
    out.blank();
    bool elastic = false;
    for (std::size_t r = 1; r < rowsOf(s, supports); ++r) elastic = elastic || s.cellNumber(supports, r, 2) > 0;
    if (!elastic) {
        out.write("Engastamento elástico nos pilares: Não considerado");
    } else {
        out.write("Engastamento elástico nos pilares:");
        for (std::size_t r = 1; r < rowsOf(s, supports); ++r)
            if (s.cellNumber(supports, r, 2) > 0)
                out.write("Apoio ", std::to_string(r), tab(10), "Nó= ", cellOf(s, supports, r, 0), tab(20),
                          "Inércia equivalente= ", cellOf(s, supports, r, 2), " cm3");
    }
    out.blank();
    bool initial = false;
    for (std::size_t r = 1; r < rowsOf(s, moments); ++r)
        initial = initial || s.cellNumber(moments, r, 1) != 0 || s.cellNumber(moments, r, 2) != 0;
    if (!initial) {
        out.write("Momentos iniciais devidos ao vento: Não considerado");
    } else {
        out.write("Momentos iniciais devidos ao vento:");
        for (std::size_t r = 1; r < rowsOf(s, moments); ++r)
            out.write("Vão ", std::to_string(r), tab(10), "Ma= ", cellOf(s, moments, r, 1), tab(30), "Mb= ",
                      cellOf(s, moments, r, 2), " kNm");
    }
    // The pictures start on a page of their own.
    out.write("... Continua");
    out.pageBreak();

    const std::optional<AnalysedBeam> beam = lastAnalysis(s);
    out.write("CARREGAMENTO VERTICAL:");
    out.write("Unidades: Vãos (m); Carga distribuída (kN/m); Carga concentrada (kN); Momento (kNm)");
    if (beam) out.picture(beamPicture(beam->model, true), 12);
    out.blank();
    out.write("DIAGRAMA DE MOMENTOS FLETORES (kNm):");
    if (beam) out.picture(momentDiagram(*beam), 14);
    out.blank();
    out.write("DIAGRAMA DE ESFORÇOS CORTANTES (kN):");
    if (beam) out.picture(shearDiagram(*beam), 14);
    out.blank();

    out.write("RESULTADOS:");
    out.write("Pontos de momento nulo:");
    const std::string zeros = "Form34e.Grade1", peaks = "Form34e.Grade2", design = "Form34d.Grade4";
    for (std::size_t r = 1; r < rowsOf(s, zeros); ++r)
        out.write("Vão= ", cellOf(s, zeros, r, 0), tab(10), "X1(m)= ", cellOf(s, zeros, r, 1), tab(30), "X2(m)= ",
                  cellOf(s, zeros, r, 2));
    out.write("Pontos de momento máximo positivo:");
    for (std::size_t r = 1; r < rowsOf(s, peaks); ++r)
        out.write("Vão= ", cellOf(s, peaks, r, 0), tab(10), "X(m)= ", cellOf(s, peaks, r, 1));
    out.blank();
    out.write("ESFORÇOS PARA DIMENSIONAMENTO:");
    out.write("a) ESFORÇOS CORTANTES MÁXIMOS NOS VÃOS:");
    eachFilled(s, design, 0, [&](std::size_t r) {
        out.write("Vão= ", cellOf(s, design, r, 0), tab(10), "V= ", cellOf(s, design, r, 1), " kN");
    });
    out.write("b) MOMENTOS POSITIVOS NOS VÃOS:");
    eachFilled(s, design, 0, [&](std::size_t r) {
        out.write("Vão= ", cellOf(s, design, r, 0), tab(10), "M= ", cellOf(s, design, r, 2), " kNm");
    });
    out.write("c) MOMENTOS NOS APOIOS:");
    eachFilled(s, design, 3, [&](std::size_t r) {
        out.write("Apoio= ", cellOf(s, design, r, 3), tab(10), "M= ", cellOf(s, design, r, 4), " kNm");
    });
    out.blank();
    out.write("DEFORMADA DA VIGA:");
    out.write("Flechas em mm");
    if (beam) out.picture(deformedShape(*beam), 10);
}

}  // namespace morve
