#include "columns/tie_module.h"

#include "app/numbers.h"
#include "basis/checks.h"
#include "basis/design_basis.h"
#include "basis/messages.h"
#include "basis/section_report.h"
#include "basis/section_sketch.h"
#include "basis/start_values.h"

namespace morve {

namespace {

const std::string kMkNotNegative = "Forneça um valor positivo (ou nulo) para Mk.";

BendingReportLayout reportLayout(const TieLayout& l) {
    return {"Text1", "Text2", "Text3", "Text13", "Text14", "Text15",
            {{"Largura b= ", "Text4", "Altura h= ", "Text5"},
             {"Altura útil d= ", "Text6", "Distância d'= ", "Text7"}},
            l.mkBox, "List3", "List2", "Text10", "Text11"};
}

}  // namespace

ScreenDecl tieScreen(const TieLayout& l) {
    ScreenBuilder s(l.key, l.heading);
    addMaterialFrames(s, "Text3");  // the boxes and defaults of the beam designs
    s.frame("Frame3", "Seção transversal", 0, 1, 2, 1)
        .box("Text4", "b(cm)=", "20")
        .box("Text5", "h(cm)=", "40")
        .box("Text6", "d(cm)=", "36")
        .box("Text7", "d'(cm)=", "");
    s.frame("Frame4", "Esforços solicitantes de serviço", 2, 1);
    // The boxes stand in the order of their names; the labels say which is which.
    if (l.mkBox == "Text8")
        s.box("Text8", "Mk(kNm)=").box("Text9", "Nk(kN)=");
    else
        s.box("Text8", "Nk(kN)=").box("Text9", "Mk(kNm)=");
    s.frame("Frame5", "", 0, 2, 2, 1).picture("Picture1", 220, 260);
    if (!l.symmetric) {
        s.frame("Frame6", "Ductilidade", 2, 0)
            .list("List2", "xlim/d = ", ductilityItems(), ductilityItems().front())
            .tip("Critério de ductilidade. Consulte a Ajuda.");
        s.frame("Frame7", "Coeficiente de redistribuição", 3, 0)
            .list("List3", "Beta=", redistributionItems(), redistributionItems().front());
    }
    s.frame("Frame8", "RESPOSTA", 2, 2).result("Text10", "As (cm2)=");
    if (!l.symmetric) s.result("Text11", " A's (cm2)=");
    s.frame("Frame9", "", 3, 2).command("Command6", "&CALCULAR", "Realizar o dimensionamento");
    return s.build();
}

std::optional<TieCaseData> readTieCase(const TieLayout& l, const FormState& s, CheckSequence& checks) {
    const double fck = s.number("Text1"), fyk = s.number("Text2"), es = s.number("Text3");
    const double b = s.number("Text4"), h = s.number("Text5"), d = s.number("Text6");
    const double dPrime = s.number("Text7");
    const double mk = s.number(l.mkBox), nk = s.number(l.nkBox);
    const double gamac = s.number("Text13"), gamas = s.number("Text14"), gamaf = s.number("Text15");

    checkSectionMaterials(checks, fck, "Text1", fyk, "Text2", es, "Text3");
    checks.warnIf(b <= 0, msg::positiveValue("b"), "Text4")
        .warnIf(h <= 0, msg::kPositiveH, "Text5")
        .warnIf(d <= 0, msg::kPositiveD, "Text6")
        .warnIf(d >= h, msg::kDBelowH, "Text6")
        .warnIf(dPrime <= 0, msg::kPositiveDPrime, "Text7")
        .warnIf(dPrime >= d, msg::kDPrimeBelowD, "Text7")
        .warnIf(mk < 0, kMkNotNegative, l.mkBox)
        .warnIf(nk <= 0, msg::positiveValue("Nk"), l.nkBox);
    checkPartialCoefficients(checks, {{gamac, "Text13"}, {gamas, "Text14"}, {gamaf, "Text15"}});
    TieCaseData c;
    if (!l.symmetric) {
        const double beta = s.number("List3");
        const auto criterion = ductilityCriterion(s.text("List2")).value_or(DuctilityCriterion::CEB90);
        checkBalancedBeta(checks, criterion, beta, "List2");
        // The balanced limit is 0.0035 / (0.0035 + fyd / Es), the same number.
        c.xiLim = DuctilityLimit(criterion, beta, fck, fyk, gamas, es);
    }
    if (checks.stopped()) return std::nullopt;

    TieSection& t = c.section;
    t.block = StressBlockParameters(fck);
    t.fyd = fyk / 10 / gamas;
    t.es = es * 100;
    const double sigmacd = t.block.alphac * fck / 10 / gamac;
    t.mu = 100 * gamaf * mk / (b * d * d * sigmacd);
    t.nu = gamaf * nk / (b * d * sigmacd);
    t.delta = dPrime / d;
    c.unit = b * d * sigmacd / t.fyd;
    return c;
}

const std::string& tieStopMessage(TieStop stop) {
    static const std::string none;
    static const std::string noAxis =
        "Não há posição da linha neutra que equilibre os esforços com armaduras simétricas. "
        "Aumente as dimensões da seção transversal.";
    static const std::string guard =
        "A busca da linha neutra não convergiu. Revise os dados da seção e dos esforços.";
    switch (stop) {
        case TieStop::None: return none;
        case TieStop::SectionTooSmall: return msg::kEnlargeSection;
        case TieStop::NoNeutralAxis: return noAxis;
        case TieStop::NotConverged: return guard;
    }
    return none;
}

void writeTieReport(const TieLayout& l, const FormState& s, ReportWriter& out) {
    const BendingReportLayout layout = reportLayout(l);
    writeMaterialLines(out, s, layout);
    writeSectionDimensions(out, s, layout);
    out.blank();
    out.write("Momento fletor de serviço Mk= ", s.text(l.mkBox), " kNm");
    out.write("Esforço normal de serviço Nk= ", s.text(l.nkBox), " kN");
    if (!l.symmetric) {
        out.blank();
        out.write("Coeficiente de redistribuição de momentos: Beta = ", num(s.number("List3")));
        out.write(ductilityLine(s, layout));
    }
    out.blank();
    out.write("SOLUÇÃO:");
    out.blank();
    if (l.symmetric) {
        out.write("Armadura por face: As= ", s.text("Text10"), " cm2");
    } else if (s.var(kTieCaseVar) == "True") {
        // With the resultant between the layers there is no compressed steel: both
        // layers pull, and the lines say which pulls more.
        out.write("Tração com pequena excentricidade: as duas armaduras estão tracionadas.");
        out.write("Armadura mais tracionada: As= ", s.text("Text10"), " cm2");
        out.write("Armadura menos tracionada: As'= ", s.text("Text11"), " cm2");
    } else {
        out.write("Armadura tracionada exclusivamente pelo momento: As= ", s.text("Text10"), " cm2");
        out.write("Armadura comprimida exclusivamente pelo momento: As'= ", s.text("Text11"), " cm2");
    }
}

Drawing tieSectionSketch(bool symmetric) {
    Drawing g = rectangularSectionSketch();
    if (symmetric)
        for (auto& shape : g.shapes)
            if (auto* label = std::get_if<Label>(&shape.geometry); label && label->text == "A's")
                label->text = "As";
    // The tie force seen end on (pointing at the reader) at the mid-plane of the steel,
    // and the moment turning about it.
    g.as(ShapeKind::Loads).circle({10, 20}, 1.4, colours::black, false, 2);
    g.circle({10, 20}, 0.4, colours::black, true);
    g.text({12.2, 19}, "Nk", 9);
    g.polyline({{6, 23}, {5.2, 20}, {6, 17}, {8, 15.3}, {10, 15}}, false, colours::green, 2);
    g.polyline({{9, 14.2}, {10, 15}, {9, 15.8}}, false, colours::green, 2);
    g.text({3.3, 24.5}, "Mk", 9, TextAlign::Left, colours::green);
    return g;
}

ModuleInfo TieModule::info() const {
    ModuleInfo i;
    i.key = layout_.key;
    i.unloads = {"FormAjuda"};
    i.printKey = layout_.key;
    i.calculate = "Command6";
    return i;
}

std::vector<ScreenDecl> TieModule::screens() const { return {tieScreen(layout_)}; }

void TieModule::load(FormState& state, const StartDefaults& defaults) const {
    loadMaterialDefaults(state, defaults, {"Text1", "Text2", "Text3", 3});
}

Outcome TieModule::press(const std::string& command, FormState& state, Prompter& prompter) const {
    if (command == "Command6" || command == layout_.key + ".Command6") return calculate(state, prompter);
    return Outcome::stop();
}

Outcome TieModule::calculate(FormState& s, Prompter& prompter) const {
    for (const auto& box : resultBoxes()) s.setText(box, " ");
    s.setVar(kTieCaseVar, "");
    CheckSequence checks(prompter);
    const std::optional<TieCaseData> data = readTieCase(layout_, s, checks);
    if (!data) return checks.outcome();
    const TieStop stop = design(*data, s);
    checks.warnIf(stop != TieStop::None, tieStopMessage(stop),
                  stop == TieStop::NotConverged ? "" : "Text5");
    if (checks.stopped()) return checks.outcome();
    return Outcome::done().then(EffectKind::EnableControl, printButton(layout_.key));
}

void TieModule::report(const std::string& key, const FormState& state, ReportWriter& out) const {
    if (key == layout_.key) writeTieReport(layout_, state, out);
}

Drawing TieModule::drawing(const std::string& picture, const FormState&) const {
    if (picture == "Picture1" || picture == layout_.key + ".Picture1")
        return tieSectionSketch(layout_.symmetric);
    return {};
}

}  // namespace morve
