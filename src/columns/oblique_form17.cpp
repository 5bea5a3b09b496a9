// Form17: an arbitrary polygonal column section (an L, a U, any outline) under a
// design normal force and two design moments. The bars are placed one by one, each
// with its own area. The calculation verifies the section with the steel typed
// (the safety factor S on a proportional load path) and designs the total steel,
// spread over the same bars in proportion to their areas, that brings S to 1.
#include <algorithm>
#include <cmath>
#include <numbers>
#include <optional>

#include "app/numbers.h"
#include "columns/column_results.h"
#include "columns/oblique_common.h"
#include "numeric/elementary.h"
#include "reports/report_writer.h"

namespace morve {

namespace {

const CoordinateTables kTables{"Form17", "Form17b", true};
const std::string kContourScreen = "Form17c";
const std::string kContourChart = "Form17c.MSChart1";
const std::string kVertexGrid = "Form17b.Grade1";
const std::string kBarGrid = "Form17b.Grade2";

const std::string kBadArea =
    "A área da seção resultou nula ou negativa. Forneça os vértices no sentido anti-horário.";
const std::string kCrossed = "O contorno da seção se cruza. Verifique a ordem dos vértices.";
const std::string kNoForces = "Forneça ao menos um esforço de cálculo diferente de zero.";
const std::string kResists = "A seção resiste aos esforços de cálculo dados.";
const std::string kFails = "A seção não resiste aos esforços de cálculo dados.";
const std::string kDesignOnly = "Sem áreas das barras: apenas o dimensionamento foi feito.";

std::string barOutside(std::size_t bar) {
    return "A barra " + std::to_string(bar) + " está fora da seção. Verifique as coordenadas das barras.";
}
std::string negativeBar(std::size_t bar) {
    return "A área da barra " + std::to_string(bar) + " não pode ser negativa.";
}

// With no direction error above a hundredth of a degree the components of the
// moment are exact to far better than the rounding of the results. An outline
// without symmetry bends askew under one moment alone, so the angle is always sought.
const SearchLimits kLimits{100, 60, 1e-4, 100, false};
constexpr int kContourDirections = 72;
constexpr int kReportPictureLines = 18;

// What the calculation and the contour are made from, once every check has passed.
struct Prepared {
    ObliqueModel model;
    double asGiven = 0;  // the sum of the areas typed for the bars
    double nd = 0, mxd = 0, myd = 0;  // kN, kN cm
    double fcd = 0, fyd = 0;
};

std::optional<Prepared> prepare(const FormState& s, CheckSequence& checks) {
    const double fck = s.number("Text1"), fyk = s.number("Text2"), es = s.number("Text3");
    const double nd = s.number("Text7"), mxd = 100 * s.number("Text8"), myd = 100 * s.number("Text9");
    const double gamac = s.number("Text10"), gamas = s.number("Text14");
    checkSectionMaterials(checks, fck, "Text1", fyk, "Text2", es, "Text3");
    checkCoordinateCounts(checks, kTables, s, true);
    checks.warnIf(nd < 0, "O esforço normal Nd não pode ser negativo.", "Text7")
        .warnIf(nd == 0 && mxd == 0 && myd == 0, kNoForces, "Text7");
    checkPartialCoefficients(checks, {{gamac, "Text10"}, {gamas, "Text14"}});
    if (checks.stopped()) return std::nullopt;

    const TypedSection typed = readCoordinates(kTables, s);
    const PolygonMoments m = polygonMoments(typed.outline);
    checks.warnIf(!(m.area > 0) || !std::isfinite(m.area), kBadArea, kVertexGrid)
        .warnIf(crossesItself(typed.outline), kCrossed, kVertexGrid);
    for (std::size_t i = 0; i < typed.bars.size() && !checks.stopped(); ++i)
        checks.warnIf(!containsPoint(typed.outline, typed.bars[i]), barOutside(i + 1), kBarGrid)
            .warnIf(typed.areas[i] < 0, negativeBar(i + 1), kBarGrid);
    checks.warnIf(!std::isfinite(nd) || !std::isfinite(portable::hypot(mxd, myd)), kUndefinedResult);
    if (checks.stopped()) return std::nullopt;

    // The bars share the steel as their typed areas do; without areas, equally.
    double given = 0;
    for (double a : typed.areas) given += a;
    std::vector<double> shares;
    for (double a : typed.areas) shares.push_back(given > 0 ? a / given : 1.0 / static_cast<double>(typed.areas.size()));
    const double fcd = fck / 10 / gamac, fyd = fyk / 10 / gamas;
    ObliqueModel model(centredSection(typed.outline, typed.bars, shares), obliqueMaterial(fck, fcd, fyd, es * 100));
    return Prepared{std::move(model), given, nd, mxd, myd, fcd, fyd};
}

class Form17 : public PolygonSectionModule {
public:
    Form17() : PolygonSectionModule(kTables, {kContourScreen}) {}

    std::vector<ScreenDecl> screens() const override {
        ScreenBuilder s("Form17", "VERIFICAÇÃO E DIMENSIONAMENTO À FLEXO-COMPRESSÃO OBLÍQUA DE SEÇÕES POLIGONAIS ARBITRÁRIAS");
        sectionFrames(s);
        s.frame("Frame3", "Esforços solicitantes de cálculo", 0, 1)
            .box("Text7", "Nd (kN)=")
            .box("Text8", "Mxd (kNm)=", "", "", KeyFilter::SignedNumber)
            .box("Text9", "Myd (kNm)=", "", "", KeyFilter::SignedNumber);
        s.frame("Frame4", "Coeficientes parciais", 1, 1).box("Text10", "Gamac=", "1.4").box("Text14", "Gamas=", "1.15");
        s.frame("Frame5", "A) Verificação:", 2, 0)
            .result("Text6", "Área de aço fornecida: As=", "cm2")
            .result("Text11", "Coeficiente de segurança: S=")
            .result("Text15", "")
            .width(48);
        s.frame("Frame6", "B) Dimensionamento:", 2, 1)
            .result("Text12", "Área de aço calculada: As=", "cm2")
            .result("Text13", "Armadura mínima=", "cm2");
        s.frame("Frame7", "", 3, 0, 1, 2)
            .command("Command3", "Entrar com as coordenadas", "Fornecer as coordenadas dos vértices e das barras")
            .command("Command4", "&CALCULAR", "Verificar a seção e calcular a armadura")
            .command("Command5", "Ver seção", "Ver um desenho da seção com as armaduras e a linha neutra")
            .command("Command6", "Ver contorno de momentos", "Ver os momentos resistentes da seção sob Nd")
            .disabled();
        ScreenBuilder c(kContourScreen, "Contorno de momentos resistentes", false);
        c.frame("Frame1", "", 0, 0).chart("MSChart1", 520, 520).command("Command1", "&Voltar");
        return {s.build(), coordinateScreen(kTables), polygonPictureScreen(), c.build()};
    }

    Outcome press(const std::string& command, FormState& s, Prompter& prompter) const override {
        const std::string c = s.qualify(command);
        if (auto shared = pressShared(c, s, prompter)) return *shared;
        if (c == "Form17.Command4") return calculate(s, prompter);
        if (c == "Form17.Command6") {
            CheckSequence checks(prompter);
            if (!prepare(s, checks)) return checks.outcome();
            return Outcome::done().then(EffectKind::HideScreen, "Form17").then(EffectKind::ShowScreen, kContourScreen);
        }
        if (c == kContourScreen + ".Command1") return backFrom(kContourScreen, "Form17");
        return Outcome::stop();
    }

    void report(const std::string& key, const FormState& s, ReportWriter& out) const override {
        if (key != "Form17") return;
        auto t = [&](const std::string& box) { return s.text(box); };
        writePolygonCase(out, kTables, s, {"Text10", "Text14"}, "d", {"Text7", "Text8", "Text9"});
        out.write("RESULTADOS:");
        out.blank();
        out.write("A) Verificação:");
        out.write("Área de aço fornecida: As= ", t("Text6"), " cm2");
        out.write("Coeficiente de segurança: S= ", t("Text11"));
        out.write(t("Text15"));
        out.blank();
        out.write("B) Dimensionamento:");
        out.write("Área de aço calculada: As= ", t("Text12"), " cm2");
        out.write("Armadura mínima= ", t("Text13"), " cm2");
        // The section with the neutral axis of the solution, once there is one.
        Drawing section = drawing(kPolygonPictureScreen + ".Picture1", s);
        if (!section.empty()) {
            out.pageBreak();
            out.write("Seção transversal e linha neutra:");
            out.blank();
            out.picture(std::move(section), kReportPictureLines);
        }
    }

    Chart chart(const std::string& control, const FormState& s) const override {
        if (control != kContourChart) return {};
        ScriptedPrompter silent;
        CheckSequence checks(silent);
        const std::optional<Prepared> p = prepare(s, checks);
        if (!p) return {};
        // The steel typed for the bars, or without it the steel designed.
        const double as = p->asGiven > 0 ? p->asGiven : readNumber(s.text("Text12"));
        const std::vector<Point> contour = momentContour(p->model, as, p->nd, kContourDirections);
        if (contour.empty()) return {};
        Chart c;
        c.title = "Contorno de momentos resistentes para Nd= " + formatResult(p->nd) + " kN";
        c.xTitle = "Mxd (kNm)";
        c.yTitle = "Myd (kNm)";
        ChartSeries line{"As= " + formatResult(as) + " cm2", {}, false, colours::blue, 4};
        double reach = std::max(std::abs(p->mxd), std::abs(p->myd)) / 100;
        for (const Point& q : contour) {
            line.points.push_back({q.x / 100, q.y / 100});
            reach = std::max({reach, std::abs(q.x) / 100, std::abs(q.y) / 100});
        }
        line.points.push_back(line.points.front());
        c.series.push_back(std::move(line));
        c.series.push_back({"Mxd, Myd do cálculo", {{p->mxd / 100, p->myd / 100}}, true, colours::red, 9});
        // Equal scales on both axes, so that the contour keeps its shape.
        const double edge = reach > 0 ? 1.1 * reach : 1;
        c.xMin = c.yMin = -edge;
        c.xMax = c.yMax = edge;
        return c;
    }

private:
    Outcome calculate(FormState& s, Prompter& prompter) const {
        for (const auto& box : {"Text6", "Text11", "Text15", "Text12", "Text13"}) s.setText(box, " ");
        forgetNeutralAxis(s);
        CheckSequence checks(prompter);
        const std::optional<Prepared> p = prepare(s, checks);
        if (!p) return checks.outcome();
        warnSmallColumnArea(checks, p->model.section().area);

        // A) the steel typed for the bars; with no areas there is nothing to verify.
        const bool verify = p->asGiven > 0;
        SafetyFactor safety;
        if (verify) {
            safety = safetyFactor(p->model, p->asGiven, p->nd, p->mxd, p->myd, kLimits);
            checks.warnIf(!std::isfinite(safety.s), kUndefinedResult);
            if (checks.stopped()) return checks.outcome();
            s.setText("Text6", formatResult(p->asGiven));
            // The verdict follows the factor as shown, so that "S= 1" never reads as a failure.
            s.setText("Text11", formatResult(safety.s));
            s.setText("Text15", readNumber(s.text("Text11")) >= 1 ? kResists : kFails);
        } else {
            s.setText("Text15", kDesignOnly);
        }

        // B) the steel that the same bars need.
        const SteelDesign design = designSteel(p->model, p->nd, p->mxd, p->myd, kLimits);
        const double ac = p->model.section().area;
        const double rho = 100 * design.as / ac;
        checks.warnIf(!std::isfinite(design.as), kUndefinedResult).warnIf(rho > 8, kRateAbove8);
        if (checks.stopped()) return checks.outcome();
        if (rho > 4) prompter.warn(kRateAbove4);
        s.setText("Text12", formatResult(design.as));
        s.setText("Text13", formatResult(minimumColumnSteel(ac, p->nd, p->fcd, p->fyd)));

        // The picture shows the neutral axis of the bars as typed, or of the design.
        const NeutralAxisSolution& axis = verify ? safety.axis : design.axis;
        if (p->mxd != 0 || p->myd != 0) keepNeutralAxis(s, axis, p->model.material().block.lambda);
        return Outcome::done()
            .then(EffectKind::EnableControl, "Form17.Command6")
            .then(EffectKind::EnableControl, printButton("Form17"));
    }
};

RegisterModule<Form17> registration;

}  // namespace

}  // namespace morve
