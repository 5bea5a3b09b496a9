#include "columns/column_results.h"

#include <algorithm>
#include <cmath>
#include <utility>
#include <vector>

#include "app/numbers.h"
#include "app/trace.h"
#include "columns/section_model.h"
#include "reports/report_writer.h"

namespace morve {

const std::string kSlenderGamaf =
    "Como a menor dimensão da seção (bmin) é inferior a 19cm, a NBR-6118 exige que o coeficiente "
    "Gamaf seja multiplicado por 1,95-bmin/20.      VOCÊ QUER CORRIGIR Gamaf?";
const std::string kUndefinedResult =
    "Os dados fornecidos não levam a um resultado definido. Revise os dados da seção e dos esforços.";
const std::string kRateAbove8 = "A taxa de armadura é superior a 8%. Aumente as dimensões da seção de concreto.";
const std::string kRateAbove4 =
    "A taxa de armadura é superior a 4%. Verifique se a taxa de armadura não será superior a 8%, na "
    "região das emendas por traspasse.";

namespace {

const std::string kSmallColumn =
    "A NBR-6118 não admite pilares com dimensão menor que 14cm. VOCÊ QUER CORRIGIR A DIMENSÃO?";
const std::string kSmallArea =
    "ATENÇÃO: A área da seção do pilar é menor que 360cm2, o que não é permitido pela NBR-6118.";
const std::string kDiameterAbove25 =
    "Resultou um diâmetro das barras superior a 25mm. Você pode empregar feixes de barras ou alterar o "
    "número de barras na seção.";

// The commercial diameters of column bars, mm.
const std::vector<std::pair<double, std::string>> kDiameters{
    {10, "10"}, {12.5, "12.5"}, {16, "16"}, {20, "20"}, {25, "25"}};

}  // namespace

void checkColumnSize(CheckSequence& checks, double bmin, double area, const std::string& sizeFocus,
                     const std::string& slenderQuestion, const std::string& slenderFocus) {
    checks.askIf(bmin < 14, kSmallColumn, sizeFocus).askIf(bmin < 19, slenderQuestion, slenderFocus);
    warnSmallColumnArea(checks, area);
}

void warnSmallColumnArea(CheckSequence& checks, double area) {
    if (!checks.stopped() && area < 360) checks.prompter().warn(kSmallArea);
}

double minimumColumnSteel(double ac, double nd, double fcd, double fyd) {
    const double nu0 = nd / (ac * fcd);
    return ac * std::max(0.15 * fcd * nu0 / fyd, 0.004);
}

Outcome writeColumnSteel(CheckSequence& checks, FormState& s, const DesignBoxes& boxes, const DesignedSteel& d) {
    checks.warnIf(!std::isfinite(d.as), kUndefinedResult);
    const double rho = 100 * d.as / d.ac;
    TraceRecorder rec(checks.prompter().trace());
    if (std::isfinite(d.as))
        rec.check("Taxa de armadura", "ρ = 100 · As / Ac ≤ 8 %", "100 · {} / {}", {{d.as, "cm²"}, {d.ac, "cm²"}}, rho, "%",
                  !(rho > 8), "NBR-6118:2014, 17.3.5.3.2");
    checks.warnIf(rho > 8, kRateAbove8);
    if (checks.stopped()) return checks.outcome();
    if (rho > 4) checks.prompter().warn(kRateAbove4);
    s.setText(boxes.asResult, formatResult(d.as));

    const double asMin = minimumColumnSteel(d.ac, d.nd, d.fcd, d.fyd);
    s.setText(boxes.asMinimum, formatResult(asMin));
    rec.step("Armadura mínima", "As,min = Ac · max(0.15 · Nd / (Ac · fyd), 0.004)", "{} · max(0.15 · {} / ({} · {}), 0.004)",
             {{d.ac, "cm²"}, {d.nd, "kN"}, {d.ac, "cm²"}, {d.fyd, "kN/cm²"}}, asMin, "cm²", 2, "NBR-6118:2014, 17.3.5.3.1");

    const double phi = 10 * std::sqrt(4 * std::max(d.as, asMin) / (d.bars * kBarPi));
    rec.step("Diâmetro necessário", "φ = 10 · √(4 · max(As, As,min) / (n · π))", "10 · √(4 · max({}, {}) / ({} · 3.14159))",
             {{d.as, "cm²"}, {asMin, "cm²"}, {static_cast<double>(d.bars), ""}}, phi, "mm");
    auto chosen = std::find_if(kDiameters.begin(), kDiameters.end(), [&](const auto& c) { return c.first >= phi; });
    checks.warnIf(chosen == kDiameters.end(), kDiameterAbove25);
    if (checks.stopped()) return checks.outcome();
    s.setText(boxes.barCount, std::to_string(d.bars));
    s.setText(boxes.diameter, chosen->second);

    const double phiMax = 10 * d.bmin / 8;
    if (rec.on())
        rec.note(std::to_string(d.bars) + " barras de " + chosen->second + " mm: o menor diâmetro comercial que não é menor que φ.");
    rec.check("Diâmetro máximo", "φ ≤ φmax = 10 · bmin / 8", "10 · {} / 8", {{d.bmin, "cm"}}, phiMax, "mm",
              !(phiMax < chosen->first), "NBR-6118:2014, 18.4.2.1");
    checks.warnIf(phiMax < chosen->first, d.tooThick);
    if (checks.stopped()) return checks.outcome();
    const double bar = chosen->first / 10;
    s.setText(boxes.existing, formatResult(d.bars * kBarPi * bar * bar / 4));
    rec.step("Área de aço existente", "As,ef = n · π · φ² / 4", "{} · 3.14159 · ({})² / 4",
             {{static_cast<double>(d.bars), ""}, {bar, "cm"}}, d.bars * kBarPi * bar * bar / 4, "cm²", 2);
    return Outcome::done().then(EffectKind::EnableControl, printButton(boxes.key));
}

void writeColumnMaterials(ReportWriter& out, const FormState& s, const std::string& gamac, const std::string& gamas,
                          const std::string& gamaf) {
    auto t = [&](const std::string& box) { return s.text(box); };
    out.write("Propriedades dos materiais:");
    out.write("Concreto: fck= ", t("Text1"), " MPa");
    out.write("Aço: fyk= ", t("Text2"), " MPa", blanks(5), "Es= ", t("Text3"), " GPa");
    out.blank();
    out.write("Coeficientes parciais de segurança:");
    if (gamaf.empty())
        out.write("Gamac= ", t(gamac), blanks(5), "Gamas= ", t(gamas));
    else
        out.write("Gamac= ", t(gamac), blanks(5), "Gamas= ", t(gamas), blanks(5), "Gamaf= ", t(gamaf));
    out.blank();
}

void writeDesignResults(ReportWriter& out, const FormState& s, const DesignBoxes& boxes) {
    out.write("RESULTADOS:");
    out.blank();
    out.write("Área de aço calculada: As= ", s.text(boxes.asResult), " cm2");
    out.blank();
    out.write("Armadura mínima= ", s.text(boxes.asMinimum), " cm2");
    out.blank();
    out.write("SOLUÇÃO:", blanks(5), s.text(boxes.barCount), " barras de ", s.text(boxes.diameter), " mm");
}

}  // namespace morve
