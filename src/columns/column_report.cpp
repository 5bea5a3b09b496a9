// The reports of the column modules: the boxes as the user sees them.
#include "columns/column_form.h"
#include "columns/column_results.h"
#include "columns/column_section.h"
#include "reports/report_writer.h"

namespace morve {

namespace {

void writeSection(ReportWriter& out, const ColumnForm& f, const FormState& s) {
    auto t = [&](const std::string& box) { return s.text(box); };
    out.write("Dimensões da seção transversal:");
    switch (f.shape) {
        case ColumnShape::Rectangle:
        case ColumnShape::Box:
            out.write("Largura b= ", t(f.b), " cm", blanks(5), "Altura h= ", t(f.h), " cm", blanks(5), "d'= ",
                      t(f.dPrime), " cm");
            if (f.shape == ColumnShape::Box)
                out.write("Largura das nervuras bw= ", t(f.bw), " cm", blanks(5), "Espessura das mesas hf= ",
                          t(f.hf), " cm");
            out.blank();
            out.write("Número de camadas de armadura= ", t(f.count));
            {
                const GridRows& rows = s.grid(f.grid());
                for (std::size_t i = 1; i < rows.size(); ++i)
                    out.write("Camada= ", num(static_cast<double>(i)), tab(30), "Número de barras= ",
                              rows[i].size() > 1 ? rows[i][1] : std::string());
            }
            break;
        case ColumnShape::Circle:
            out.write("Diâmetro h= ", t(f.h), " cm", blanks(5), "d'= ", t(f.dPrime), " cm");
            out.blank();
            out.write("Número de barras de aço= ", t(f.count));
            break;
        case ColumnShape::Ring:
            out.write("Diâmetro externo h= ", t(f.h), " cm", blanks(5), "Diâmetro interno ho= ", t(f.ho), " cm",
                      blanks(5), "d'= ", t(f.dPrime), " cm");
            out.blank();
            out.write("Número de barras de aço= ", t(f.count));
            break;
    }
    out.blank();
}

}  // namespace

void ColumnModule::report(const std::string& key, const FormState& s, ReportWriter& out) const {
    const ColumnForm& f = form_;
    if (key != f.key) return;
    auto t = [&](const std::string& box) { return s.text(box); };
    writeColumnMaterials(out, s, f.gamac, f.gamas, f.design ? f.gamaf : std::string());
    writeSection(out, f, s);

    if (f.design) {
        out.write("Esforços solicitantes de serviço:");
        out.write("Esforço normal Nk= ", t(f.normal), " kN", blanks(5), "Momento fletor Mk= ", t(f.moment), " kNm");
        out.blank();
        writeDesignResults(out, s, {f.key, f.asResult, f.asMinimum, f.barCount, f.diameter, f.existing});
    } else {
        out.write("Área total de aço: As= ", t(f.area), " cm2");
        out.blank();
        out.write("Esforço normal de cálculo: Nd= ", t(f.normal), " kN");
        out.blank();
        out.blank();
        out.write("RESULTADO:");
        out.blank();
        out.write("Momento fletor de ruína de cálculo: Md= ", t(f.resistingMoment), " kNm");
    }
}

}  // namespace morve
