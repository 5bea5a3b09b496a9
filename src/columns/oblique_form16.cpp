// Form16: the steel of a polygonal column section with two axes of symmetry under
// a normal force and two bending moments, with bars of equal area.
#include <algorithm>
#include <cmath>

#include "app/numbers.h"
#include "columns/column_results.h"
#include "columns/oblique_common.h"
#include "numeric/elementary.h"
#include "reports/report_writer.h"

namespace morve {

namespace {

const CoordinateTables kTables{"Form16", "Form16b", false};
const DesignBoxes kBoxes{"Form16", "Text9", "Text10", "Text11", "Text12", "Text19"};
const std::string kBadOutline = "Erro!   Verifique as coordenadas dos vértices da seção.";
const std::string kNoSymmetry = "Falta a dupla simetria. Verifique as coordenadas.";
const std::string kTooThick =
    "Resultou um diâmetro das barras superior ao valor máximo (bmin/8) estabelecido na NBR-6118.";
// The bars balance about the centroid of the outline when both sums of their
// coordinates vanish; the outline itself is taken as typed.
constexpr double kSymmetryTolerance = 1e-9;

double sum(const std::vector<Point>& points, double Point::*coordinate) {
    double total = 0;
    for (const Point& p : points) total += p.*coordinate;
    return total;
}

// The smaller of the section's extents along x and y.
double smallestExtent(const std::vector<Point>& outline) {
    auto [xl, xh] = std::minmax_element(outline.begin(), outline.end(), [](Point a, Point b) { return a.x < b.x; });
    auto [yl, yh] = std::minmax_element(outline.begin(), outline.end(), [](Point a, Point b) { return a.y < b.y; });
    return std::min(xh->x - xl->x, yh->y - yl->y);
}

class Form16 : public PolygonSectionModule {
public:
    Form16() : PolygonSectionModule(kTables, {}) {}

    ModuleInfo info() const override {
        ModuleInfo i = PolygonSectionModule::info();
        i.busy = {{"Form16.Command4", "Form16.Command11"}};
        return i;
    }

    std::vector<ScreenDecl> screens() const override {
        ScreenBuilder s("Form16",
                        "DIMENSIONAMENTO À FLEXO-COMPRESSÃO OBLÍQUA DE SEÇÕES POLIGONAIS COM DOIS EIXOS DE SIMETRIA");
        sectionFrames(s);
        s.frame("Frame3", "Esforços solicitantes de serviço", 0, 1)
            .box("Text6", "Nk (kN)=")
            .box("Text7", "Mxk (kNm)=")
            .box("Text8", "Myk (kNm)=");
        s.frame("Frame4", "Coeficientes parciais", 1, 1)
            .box("Text13", "Gamac=", "1.4")
            .box("Text14", "Gamas=", "1.15")
            .box("Text15", "Gamaf=", "1.4");
        s.frame("Frame5", "RESPOSTA", 2, 0)
            .result("Text9", "Área de aço calculada =", "cm2")
            .result("Text10", "Armadura mínima=", "cm2")
            .label("Label2", "SOLUÇÃO:")
            .result("Text11", "")
            .label("Label3", "barras de ")
            .result("Text12", "", "mm")
            .result("Text19", "Armadura existente =", "cm2");
        s.frame("Frame6", "", 2, 1)
            .command("Command3", "Entrar com as coordenadas", "Fornecer as coordenadas dos vértices e das barras")
            .command("Command4", "&CALCULAR", "Realizar o dimensionamento")
            .command("Command5", "Ver seção", "Ver um desenho da seção com as armaduras")
            .command("Command11", "Calculando... Aguarde.")
            .hidden();
        return {s.build(), coordinateScreen(kTables), polygonPictureScreen()};
    }

    Outcome press(const std::string& command, FormState& s, Prompter& prompter) const override {
        const std::string c = s.qualify(command);
        if (auto shared = pressShared(c, s, prompter)) return *shared;
        if (c == "Form16.Command4") return calculate(s, prompter);
        return Outcome::stop();
    }

    void report(const std::string& key, const FormState& s, ReportWriter& out) const override {
        if (key != "Form16") return;
        writePolygonCase(out, kTables, s, {"Text13", "Text14", "Text15"}, "k", {"Text6", "Text7", "Text8"});
        writeDesignResults(out, s, kBoxes);
    }

private:
    Outcome calculate(FormState& s, Prompter& prompter) const {
        for (const auto& box : {"Text9", "Text10", "Text11", "Text12", "Text19"}) s.setText(box, " ");
        forgetNeutralAxis(s);
        const double fck = s.number("Text1"), fyk = s.number("Text2"), es = s.number("Text3");
        const double nk = s.number("Text6"), mxk = s.number("Text7"), myk = s.number("Text8");
        const double gamac = s.number("Text13"), gamas = s.number("Text14"), gamaf = s.number("Text15");

        CheckSequence checks(prompter);
        checkSectionMaterials(checks, fck, "Text1", fyk, "Text2", es, "Text3");
        checkCoordinateCounts(checks, kTables, s, true);
        checks.warnIf(nk < 0, "O esforço normal Nk não pode ser negativo.", "Text6")
            .warnIf(mxk < 0, "Forneça um valor positivo (ou nulo) para Mxk.", "Text7")
            .warnIf(myk < 0, "Forneça um valor positivo (ou nulo) para Myk.", "Text8");
        checkPartialCoefficients(checks, {{gamac, "Text13"}, {gamas, "Text14"}, {gamaf, "Text15"}});
        if (checks.stopped()) return checks.outcome();

        const TypedSection typed = readCoordinates(kTables, s);
        const std::vector<double> shares(typed.bars.size(), 1.0 / static_cast<double>(typed.bars.size()));
        const ObliqueSection section = centredSection(typed.outline, typed.bars, shares);
        checks.warnIf(!(section.area > 0) || !std::isfinite(section.area), kBadOutline, kTables.command);
        const double offX = sum(section.bars, &Point::x), offY = sum(section.bars, &Point::y);
        checks.warnIf(!(std::abs(offX) <= kSymmetryTolerance && std::abs(offY) <= kSymmetryTolerance), kNoSymmetry,
                      kTables.command);
        const double bmin = smallestExtent(typed.outline);
        if (!checks.stopped()) checkColumnSize(checks, bmin, section.area, kTables.command, kSlenderGamaf, "Text15");
        const double fcd = fck / 10 / gamac, fyd = fyk / 10 / gamas;
        const double nd = gamaf * nk, mxd = 100 * gamaf * mxk, myd = 100 * gamaf * myk;
        checks.warnIf(!std::isfinite(nd) || !std::isfinite(portable::hypot(mxd, myd)), kUndefinedResult);
        if (checks.stopped()) return checks.outcome();

        const ObliqueMaterial material = obliqueMaterial(fck, fcd, fyd, es * 100);
        const ObliqueModel model(section, material);
        const SteelDesign design = designSteel(model, nd, mxd, myd, SearchLimits{});
        if (mxd != 0 || myd != 0) keepNeutralAxis(s, design.axis, material.block.lambda);
        const int bars = static_cast<int>(typed.bars.size());
        Outcome out = writeColumnSteel(checks, s, kBoxes, {design.as, section.area, nd, fcd, fyd, bars, bmin, kTooThick});
        return out.then(EffectKind::HideControl, "Form16.Command11");
    }
};

RegisterModule<Form16> registration;

}  // namespace

}  // namespace morve
