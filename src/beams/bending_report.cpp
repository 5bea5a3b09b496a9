#include "beams/bending_report.h"

#include "app/numbers.h"
#include "basis/materials.h"
#include "beams/detailing.h"

namespace morve {

void writeBendingHead(ReportWriter& out, const FormState& s, const BendingReportLayout& l) {
    writeMaterialLines(out, s, l);
    writeSectionDimensions(out, s, l);
    out.blank();
    out.write("Momento fletor de serviço Mk= ", s.text(l.moment), " kNm");
    out.blank();
    out.write("Coeficiente de redistribuição de momentos: Beta = ", num(s.number(l.betaList)));
    out.write(ductilityLine(s, l));
}

void writeBendingSolution(ReportWriter& out, const FormState& s, const BendingReportLayout& l) {
    out.blank();
    out.write("SOLUÇÃO:");
    out.blank();
    out.write("Armadura tracionada As= ", s.text(l.as), " cm2");
    out.write("Armadura comprimida As'= ", s.text(l.asPrime), " cm2");
}

void writeDetailingReport(ReportWriter& out, const FormState& s, const BendingReportLayout& l,
                          const DetailingSetup& setup, Drawing section) {
    auto box = [&](const std::string& screen, const char* control) { return s.text(screen + "." + control); };
    writeBendingHead(out, s, l);
    out.blank();
    out.write("RESULTADOS DO DIMENSIONAMENTO:");
    out.blank();
    out.write("Armadura tracionada As= ", s.text(l.as), " cm2", blanks(5), "Armadura comprimida As'= ",
              s.text(l.asPrime), " cm2");
    out.blank();
    out.write("Restrições para o detalhamento:");
    out.write("Diâmetro dos estribos = ", box(setup.screen, "List3"), " mm", tab(55),
              "Cobrimento das armaduras = ", box(setup.screen, "List4"), " cm");
    out.write("Diâmetro máximo dos agregados = ", box(setup.screen, "List5"), " mm", tab(55),
              "Espaço livre para o vibrador = ", box(setup.screen, "List6"), " cm");
    out.write("... Continua");
    out.pageBreak();
    out.blank();
    out.write("SOLUÇÃO FINAL:");
    out.blank();
    out.write("Altura útil correta = ", box(setup.results, "Text12"), " cm", blanks(5),
              "Distância d' correta = ", box(setup.results, "Text14"), " cm");
    out.blank();
    out.write("Armadura superior: ", box(setup.results, "Text2"), " barras de ", box(setup.results, "Text4"),
              " mm");
    out.write("Armadura inferior: ", box(setup.results, "Text7"), " barras de ", box(setup.results, "Text9"),
              " mm");
    out.blank();
    out.picture(std::move(section), kSectionPictureLines);
}

void writeVerificationReport(ReportWriter& out, const FormState& s, const VerificationReportLayout& l) {
    writeMaterials(out, s, "Text1", "Text2", "Text3", {{"Gamac= ", "Text13"}, {"Gamas= ", "Text14"}});
    if (!l.sectionHeading.empty()) out.write(l.sectionHeading);
    for (const auto& line : l.section) out.write(line.label, s.text(line.box), " cm");
    out.write("Número de camadas de armadura: n= ", s.text(l.count));
    out.blank();
    out.write("Dados das camadas de armadura:");
    const GridRows& rows = s.grid(l.grid);
    for (std::size_t i = 1; i < rows.size(); ++i)
        out.write("Camada = ", std::to_string(i), tab(15), "Área: As= ", s.cell(l.grid, int(i), 1), " cm2",
                  tab(40), "Altura útil: d= ", s.cell(l.grid, int(i), 2), " cm");
    out.blank();
    out.blank();
    out.write("Momento de ruína de cálculo: Md= ", s.text(l.result), " kNm");
}

}  // namespace morve
