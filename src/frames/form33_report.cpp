// The report of the frame under wind: the data as typed and the result tables as
// the screens show them.
#include "app/grid_tables.h"
#include "frames/form33.h"
#include "frames/frame_report.h"

namespace morve {

void writeForm33Report(const FormState& s, ReportWriter& out) {
    const FrameScreens f{"Form33b", "Form33c", true};
    writeConcrete(s, out);
    writeFrameData(s, f, out);
    out.write("E) Rotação adicional nas ligações:");
    const double r = s.cellNumber(f.releaseTable(), 1, 1);
    if (r > 0)
        out.write("Rotação adicional= ", reportCell(s, f.releaseTable(), 1, 1), " %");
    else
        out.write("Desprezada. Logo, consideram-se ligações rígidas com os pilares.");
    out.write("F) Forças horizontais nos níveis das vigas:");
    for (int i = 1; i <= dataRows(s, "Form33d.Grade1"); ++i)
        out.write("Nível= ", std::to_string(i), tab(15), "Força (kN)= ", reportCell(s, "Form33d.Grade1", i, 1));
    out.write("G) Cargas verticais nos níveis das vigas:");
    for (int i = 1; i <= dataRows(s, "Form33d.Grade2"); ++i)
        out.write("Nível= ", std::to_string(i), tab(15), "Carga (kN)= ", reportCell(s, "Form33d.Grade2", i, 1));
    out.blank();
    out.write(s.option("Form33d.Option1") ? "Análise não linear geométrica - Método P-delta "
                                          : "Análise linear geométrica - Teoria de primeira ordem ");
    if (!s.option("Form33i.Option2")) {
        out.write("Não considera a contribuição das alvenarias ");
    } else {
        out.write("Considera o pórtico com preenchimento de alvenaria ");
        out.write(s.option("Form33i.Option3") ? "Apenas os vãos previamente selecionados foram preenchidos por alvenaria "
                                              : "Considera todos os vãos preenchidos por alvenaria ");
        out.write("Propriedades das alvenarias: ");
        out.write("Espessura = ", s.text("Form33i.Text4"), " cm");
        out.write("Módulo de elasticidade = ", s.text("Form33i.Text1"), " MPa");
        out.write("Resistência característica à compressão = ", s.text("Form33i.Text2"), " MPa");
        const std::string mortar = s.text("Form33i.List1");
        out.write(mortar == "acima de 7,0"  ? "Resistência da argamassa acima de 7,0 MPa"
                  : mortar == "3,5 a 7,0" ? "Resistência da argamassa entre 3,5 MPa e 7,0 MPa"
                                          : "Resistência da argamassa entre 1,5 MPa e 3,4 MPa");
    }
    out.blank();

    const std::string beamM = "Form33e.Grade1", beamV = "Form33e.Grade2", colM = "Form33e.Grade3",
                      colF = "Form33e.Grade4", sway = "Form33e.Grade5";
    out.write("RESULTADOS:");
    out.write("1) Esforços nas vigas:");
    out.write("Nível", tab(8), "Vão", tab(15), "Momento Ma (kNm)", tab(35), "Momento Mb (kNm)", tab(55), "Cortante (kN)");
    for (int k = 1; k <= dataRows(s, beamM); ++k)
        out.write(reportCell(s, beamM, k, 0), tab(8), reportCell(s, beamM, k, 1), tab(15), reportCell(s, beamM, k, 2),
                  tab(35), reportCell(s, beamM, k, 3), tab(55), reportCell(s, beamV, k, 2));
    out.blank();
    out.write("2) Momentos fletores nos pilares (kNm):");
    out.write("Andar", tab(8), "Pilar", tab(15), "Na base", tab(35), "No topo");
    for (int k = 1; k <= dataRows(s, colM); ++k)
        out.write(reportCell(s, colM, k, 0), tab(8), reportCell(s, colM, k, 1), tab(15), reportCell(s, colM, k, 2),
                  tab(35), reportCell(s, colM, k, 3));
    out.blank();
    out.write("3) Esforços normais e cortantes nos pilares (kN):");
    out.write("Andar", tab(8), "Pilar", tab(15), "Normal", tab(35), "Cortante");
    for (int k = 1; k <= dataRows(s, colF); ++k)
        out.write(reportCell(s, colF, k, 0), tab(8), reportCell(s, colF, k, 1), tab(15), reportCell(s, colF, k, 2),
                  tab(35), reportCell(s, colF, k, 3));
    out.blank();
    out.write("4) Deslocamentos horizontais (cm):");
    for (int i = 1; i <= dataRows(s, sway); ++i)
        out.write("Nível= ", reportCell(s, sway, i, 0), tab(15), "U= ", reportCell(s, sway, i, 1));
    out.write("Deslocamentos médio= ", s.text("Form33e.Text1"), " cm");
    out.blank();
    out.write("5) Parâmetros de indeslocabilidade horizontal:");
    out.write("Força vertical total atribuída ao pórtico= ", s.text("Text7"), " kN");
    out.write("Coeficiente Gamaz= ", s.text("Form33e.Text2"));
    out.write("Índice de estabilidade do ACI: Q,max= ", s.text("Form33e.Text3"));
    out.blank();
    out.write("6) Esforços nas fundações:");
    out.write("Pilar ", tab(15), "N (kN)", tab(30), "V (kN)", tab(45), "M (kNm)");
    // The first storey's columns stand on the foundations, in the order of the lines.
    for (int k = 1; k <= dataRows(s, colF); ++k) {
        if (reportCell(s, colF, k, 0) != "1") break;
        out.write("Pilar ", reportCell(s, colF, k, 1), tab(15), reportCell(s, colF, k, 2), tab(30),
                  reportCell(s, colF, k, 3), tab(45), reportCell(s, colM, k, 2));
    }
}

}  // namespace morve
