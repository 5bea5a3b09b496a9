// "&CALCULAR" of the design and verification modules and the interaction diagram.
#include <algorithm>
#include <cmath>

#include "app/numbers.h"
#include "app/trace.h"
#include "basis/checks.h"
#include "basis/design_basis.h"
#include "basis/messages.h"
#include "columns/column_form.h"
#include "columns/column_section.h"
#include "columns/column_results.h"

namespace morve {

namespace {

const std::string kSlenderNd =
    "Como a menor dimensão da seção (bmin) é inferior a 19cm, a NBR-6118 exige que o coeficiente "
    "Gamaf seja multiplicado por 1,95-bmin/20.      VOCÊ QUER CORRIGIR O ESFORÇO NORMAL DE CÁLCULO?";
const std::string kSquashed = "A seção não suporta o esforço normal dado.";
const std::string kAreaNotNegative = "Forneça um valor positivo (ou nulo) para a área de aço.";
const std::string kAreaPositive = "Forneça um valor positivo para a área de aço.";

// The concrete that set the block of the last "&CALCULAR": the diagram keeps it.
const std::string kBlockFck = "StressBlockFck";

struct Strengths {
    double fck, fyk, es;  // MPa, MPa, GPa as typed
    double fcd, fyd;      // kN/cm2
};

Strengths readStrengths(const FormState& s, const ColumnForm& f) {
    Strengths m{s.number("Text1"), s.number("Text2"), s.number("Text3"), 0, 0};
    m.fcd = m.fck / 10 / s.number(f.gamac);
    m.fyd = m.fyk / 10 / s.number(f.gamas);
    return m;
}

// The block stress of "&CALCULAR": circles take 0.9 of it.
double designStress(const ColumnForm& f, double alphac, double fcd) {
    return (isCircular(f.shape) ? 0.9 : 1.0) * alphac * fcd;
}

// The diagram keeps its own fixed stress, whatever the concrete.
double diagramStress(const ColumnForm& f, double fcd) { return (isCircular(f.shape) ? 0.8 : 0.85) * fcd; }

SectionModel modelOf(const ColumnSection& section, const StressBlockParametersValues& block,
                     const Strengths& m) {
    return SectionModel{section.steel(), section.outline(), block, m.es * 100, m.fyd};
}

bool finite(double x) { return std::isfinite(x); }

void traceColumnBasis(TraceRecorder rec, const ColumnForm& f, const Strengths& m, double gamac, double gamas,
                      const StressBlockParametersValues& block, double sigmacd) {
    if (!rec.on()) return;
    rec.stage("Materiais");
    rec.step("Resistência de cálculo do concreto", "fcd = fck / (10 · γc)", "{} / (10 · {})", {{m.fck, "MPa"}, {gamac, ""}},
             m.fcd, "kN/cm²", -1, "NBR-6118:2014, 12.3.3");
    rec.step("Resistência de cálculo do aço", "fyd = fyk / (10 · γs)", "{} / (10 · {})", {{m.fyk, "MPa"}, {gamas, ""}},
             m.fyd, "kN/cm²", -1, "NBR-6118:2014, 12.3.1");
    traceStressBlock(rec, StressBlockValues{block.lambda, block.alphac, block.epsCu}, m.fck);
    if (isCircular(f.shape))
        rec.step("Tensão no bloco (seção circular)", "σcd = 0.9 · αc · fcd", "0.9 · {} · {}",
                 {{block.alphac, ""}, {m.fcd, "kN/cm²"}}, sigmacd, "kN/cm²", -1, "NBR-6118:2014, 17.2.2");
    else
        rec.step("Tensão no bloco", "σcd = αc · fcd", "{} · {}", {{block.alphac, ""}, {m.fcd, "kN/cm²"}}, sigmacd,
                 "kN/cm²", -1, "NBR-6118:2014, 17.2.2");
}

}  // namespace

Outcome ColumnModule::design(FormState& s, Prompter& prompter) const {
    const ColumnForm& f = form_;
    for (const auto& box : {f.asResult, f.asMinimum, f.barCount, f.diameter, f.existing}) s.setText(box, " ");

    const Strengths m = readStrengths(s, f);
    const ColumnSection section = readSection(f, s);
    const double nk = s.number(f.normal), mk = s.number(f.moment);
    const double gamaf = s.number(f.gamaf);

    CheckSequence checks(prompter);
    checkSectionMaterials(checks, m.fck, "Text1", m.fyk, "Text2", m.es, "Text3");
    checkSection(checks, f, s, section, SectionCheck::Calculate);
    checks.warnIf(nk < 0, "O esforço normal Nk não pode ser negativo.", f.normal)
        .warnIf(mk < 0, "O momento fletor Mk não pode ser negativo.", f.moment);
    checkPartialCoefficients(checks, {{s.number(f.gamac), f.gamac}, {s.number(f.gamas), f.gamas}, {gamaf, f.gamaf}});
    checkColumnSize(checks, section.smallest(), section.area(), "Text4", kSlenderGamaf, f.gamaf);
    if (checks.stopped()) return checks.outcome();

    const StressBlockParametersValues block = StressBlockParameters(m.fck);
    s.setVar(kBlockFck, s.text("Text1"));
    const double sigmacd = designStress(f, block.alphac, m.fcd);
    const double nd = gamaf * nk, md = 100 * gamaf * mk;
    const double ac = section.area(), h = section.h;
    const double nu = nd / (ac * sigmacd), mu = md / (ac * h * sigmacd);
    const SectionModel model = modelOf(section, block, m);
    TraceRecorder rec(prompter.trace());
    traceColumnBasis(rec, f, m, s.number(f.gamac), s.number(f.gamas), block, sigmacd);
    rec.stage("Esforços reduzidos");
    rec.step("Esforço normal de cálculo", "Nd = γf · Nk", "{} · {}", {{gamaf, ""}, {nk, "kN"}}, nd, "kN", -1,
             "NBR-6118:2014, 11.7.1");
    rec.step("Momento de cálculo", "Md = 100 · γf · Mk", "100 · {} · {}", {{gamaf, ""}, {mk, "kN·m"}}, md, "kN·cm", -1,
             "NBR-6118:2014, 11.7.1");
    rec.step("Área da seção", "Ac", "", {}, ac, "cm²");
    rec.step("Esforço normal reduzido", "ν = Nd / (Ac · σcd)", "{} / ({} · {})", {{nd, "kN"}, {ac, "cm²"}, {sigmacd, "kN/cm²"}},
             nu, "");
    rec.step("Momento reduzido", "μ = Md / (Ac · h · σcd)", "{} / ({} · {} · {})",
             {{md, "kN·cm"}, {ac, "cm²"}, {h, "cm"}, {sigmacd, "kN/cm²"}}, mu, "");

    const DesignRatio ratio = designRatio(model, nu, mu, rec);
    checks.warnIf(ratio.stop != SearchStop::Converged, searchStopMessage(ratio.stop));
    const double as = ac * std::max(ratio.omega, 0.0) * sigmacd / m.fyd;
    if (!checks.stopped()) {
        rec.stage("Armaduras");
        rec.step("Área de aço calculada", "As = Ac · max(ω, 0) · σcd / fyd", "{} · max({}, 0) · {} / {}",
                 {{ac, "cm²"}, {ratio.omega, ""}, {sigmacd, "kN/cm²"}, {m.fyd, "kN/cm²"}}, as, "cm²", 2);
    }
    const std::string tooThick =
        isCircular(f.shape)
            ? "Resultou um diâmetro das barras superior ao valor máximo (h/8) estabelecido na NBR-6118."
            : "Resultou um diâmetro das barras superior ao valor máximo (bmin/8) estabelecido na NBR-6118.";
    return writeColumnSteel(checks, s, {f.key, f.asResult, f.asMinimum, f.barCount, f.diameter, f.existing},
                            {as, ac, nd, m.fcd, m.fyd, model.steel.total, section.smallest(), tooThick});
}

Outcome ColumnModule::verify(FormState& s, Prompter& prompter) const {
    const ColumnForm& f = form_;
    s.setText(f.resistingMoment, " ");

    const Strengths m = readStrengths(s, f);
    const ColumnSection section = readSection(f, s);
    const double nd = s.number(f.normal), as = s.number(f.area);

    CheckSequence checks(prompter);
    checkSectionMaterials(checks, m.fck, "Text1", m.fyk, "Text2", m.es, "Text3");
    checkSection(checks, f, s, section, SectionCheck::Calculate);
    checks.warnIf(nd < 0, "O esforço normal Nd não pode ser negativo.", f.normal)
        .warnIf(as < 0, kAreaNotNegative, isLayered(f.shape) ? f.layersCommand : f.area);
    checkPartialCoefficients(checks, {{s.number(f.gamac), f.gamac}, {s.number(f.gamas), f.gamas}});
    checkColumnSize(checks, section.smallest(), section.area(), "Text4", kSlenderNd, f.normal);
    if (checks.stopped()) return checks.outcome();

    const StressBlockParametersValues block = StressBlockParameters(m.fck);
    s.setVar(kBlockFck, s.text("Text1"));
    const double sigmacd = designStress(f, block.alphac, m.fcd);
    const double ac = section.area();
    const double omega = as * m.fyd / (sigmacd * ac), nu = nd / (sigmacd * ac);
    const SectionModel model = modelOf(section, block, m);
    const double nuMax = model.squashForce(omega, block.epsC2 / 1000);
    checks.warnIf(nu > nuMax, kSquashed);
    if (checks.stopped()) return checks.outcome();

    const ResistingMoment r = resistingMoment(model, nu, nuMax, omega);
    checks.warnIf(r.stop != SearchStop::Converged, searchStopMessage(r.stop));
    const double md = std::max(r.mu * ac * section.h * sigmacd / 100, 0.0);
    checks.warnIf(!finite(r.mu), kUndefinedResult);
    if (checks.stopped()) return checks.outcome();
    s.setText(f.resistingMoment, formatResult(md));
    return Outcome::done().then(EffectKind::EnableControl, f.q(f.diagramCommand));
}

namespace {

// What the diagram is drawn from: the boxes as they stand, the block of the last
// "&CALCULAR" and the diagram's own stress.
struct DiagramInput {
    ColumnSection section;
    SectionModel model;
    double sigmacd = 0, omega = 0, nd = 0;
};

DiagramInput diagramInput(const ColumnForm& f, const FormState& s) {
    DiagramInput in;
    const Strengths m = readStrengths(s, f);
    in.section = readSection(f, s);
    const std::string& fck = s.var(kBlockFck);
    const StressBlockParametersValues block = StressBlockParameters(fck.empty() ? m.fck : readNumber(fck));
    in.model = modelOf(in.section, block, m);
    in.sigmacd = diagramStress(f, m.fcd);
    in.omega = s.number(f.area) * m.fyd / (in.sigmacd * in.section.area());
    in.nd = s.number(f.normal);
    return in;
}

constexpr double kSquashStrain = 0.002;  // the diagram's own, whatever the concrete

InteractionCurve curveOf(const DiagramInput& in) {
    return interactionCurve(in.model, in.section.area(), in.section.h, in.sigmacd, in.omega, kSquashStrain);
}

}  // namespace

Outcome ColumnModule::diagram(FormState& s, Prompter& prompter) const {
    const ColumnForm& f = form_;
    const Strengths m = readStrengths(s, f);
    const ColumnSection section = readSection(f, s);
    const double nd = s.number(f.normal), as = s.number(f.area);

    CheckSequence checks(prompter);
    checks.warnIf(m.fck <= 0, msg::kPositiveFck, "Text1");
    checkPositiveFyk(checks, m.fyk, "Text2");
    checkPositiveEs(checks, m.es, "Text3");
    checkSection(checks, f, s, section, SectionCheck::Diagram);
    // The diagram refuses a section without steel, which "&CALCULAR" accepts; the
    // circles keep the words of "&CALCULAR".
    checks.warnIf(nd < 0, "O esforço normal Nd não pode ser negativo.", f.normal)
        .warnIf(as <= 0, isCircular(f.shape) ? kAreaNotNegative : kAreaPositive,
                isLayered(f.shape) ? f.layersCommand : f.area);
    checkPartialCoefficients(checks, {{s.number(f.gamac), f.gamac}, {s.number(f.gamas), f.gamas}});
    if (checks.stopped()) return checks.outcome();

    const DiagramInput in = diagramInput(f, s);
    if (isCircular(f.shape)) {
        const double nu = nd / (in.sigmacd * in.section.area());
        checks.warnIf(nu > in.model.squashForce(in.omega, kSquashStrain), kSquashed);
    }
    if (checks.stopped()) return checks.outcome();
    const InteractionCurve curve = curveOf(in);
    checks.warnIf(curve.stop != SearchStop::Converged, searchStopMessage(curve.stop));
    if (checks.stopped()) return checks.outcome();
    return Outcome::done()
        .then(EffectKind::HideScreen, f.key)
        .then(EffectKind::ShowScreen, kDiagramScreen)
        .then(EffectKind::EnableControl, printButton(f.key));
}

Chart ColumnModule::chart(const std::string& control, const FormState& s) const {
    if (form_.design || (control != kDiagramChart && control != "MSChart1")) return {};
    if (!sectionDrawable(form_, s, readSection(form_, s))) return {};
    const DiagramInput in = diagramInput(form_, s);
    if (!(in.omega > 0) || !finite(in.omega) || !(in.model.fyd > 0) || !(in.model.es > 0)) return {};
    const InteractionCurve curve = curveOf(in);
    if (curve.stop != SearchStop::Converged) return {};

    Chart c;
    c.title = "Diagrama de interação na flexo-compressão normal";
    c.xTitle = "Esforço normal de cálculo (kN)";
    c.yTitle = "Momento fletor de cálculo (kNm)";
    ChartSeries points{"Diagrama de interação", {}, true, colours::blue, 6};
    for (std::size_t i = 0; i < curve.nd.size(); ++i) points.points.push_back({curve.nd[i], curve.md[i]});
    auto range = [](const std::vector<double>& v, double& lo, double& hi) {
        const auto [mn, mx] = std::minmax_element(v.begin(), v.end());
        lo = *mn - 0.05 * (*mx - *mn);
        hi = *mx + 0.05 * (*mx - *mn);
    };
    range(curve.nd, c.xMin, c.xMax);
    range(curve.md, c.yMin, c.yMax);
    c.series.push_back(std::move(points));
    // The case itself, so that the student sees on which side of the curve it lies.
    const std::string& md = s.text(form_.resistingMoment);
    if (readNumber(md) != 0 || md.find('0') != std::string::npos)
        c.series.push_back({"Nd, Md do cálculo", {{in.nd, readNumber(md)}}, true, colours::red, 9});
    return c;
}

}  // namespace morve
