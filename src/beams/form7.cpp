#include "beams/form7.h"

#include <cmath>

#include "app/numbers.h"
#include "basis/checks.h"
#include "basis/messages.h"
#include "basis/start_values.h"
#include "beams/bending.h"
#include "beams/bending_report.h"
#include "beams/detailing.h"
#include "reports/report_writer.h"

namespace morve {

namespace {

RegisterModule<Form7> registration;

const BendingReportLayout& reportLayout() {
    static const BendingReportLayout layout{
        "Text1", "Text2", "Text9", "Text13", "Text14", "Text15",
        {{"Largura b= ", "Text3", "Altura h= ", "Text4"},
         {"Altura útil d= ", "Text5", "Distância d'= ", "Text10"}},
        "Text6", "List3", "List2", "Text7", "Text8"};
    return layout;
}

const DesignOutput& output() {
    static const DesignOutput out{"Form7", "Text7", "Text8", "Text4", "Form7.Command3", "Form8"};
    return out;
}

}  // namespace

ModuleInfo Form7::info() const {
    ModuleInfo i;
    i.key = "Form7";
    i.unloads = {"FormAjuda", "Form8b", "Form8"};
    i.printKey = "Form7";
    return i;
}

ScreenDecl Form7::mainScreen() {
    ScreenBuilder s("Form7", " DIMENSIONAMENTO À FLEXÃO SIMPLES DE SEÇÕES RETANGULARES ");
    addMaterialFrames(s, "Text9");
    s.frame("Frame3", "Seção transversal", 0, 1, 2, 1)
        .box("Text3", "b(cm)=", "20")
        .box("Text4", "h(cm)=", "40")
        .box("Text5", "d(cm)=", "36")
        .box("Text10", "d'(cm)=", "")
        .box("Text6", "Mk(kNm)=", "", "", KeyFilter::SignedNumber);
    s.frame("Frame4", "", 0, 2, 2, 1).picture("Picture1", 220, 260);
    addCriterionFrames(s);
    s.frame("Frame8", "RESPOSTA", 3, 0, 1, 2)
        .result("Text7", "Armadura tracionada: As(cm2) =")
        .result("Text8", "Armadura comprimida: A's(cm2) =");
    s.frame("Frame9", "", 3, 2)
        .command("Command1", "&CALCULAR", "Realizar o dimensionamento")
        .command("Command3", "Detalhamento", "Detalhar as armaduras da viga")
        .disabled();
    return s.build();
}

std::vector<ScreenDecl> Form7::screens() const {
    return {mainScreen(), detailingScreen(form8Setup()), detailingResultScreen(form8Setup())};
}

void Form7::load(FormState& state, const StartDefaults& defaults) const {
    loadMaterialDefaults(state, defaults, {"Text1", "Text2", "Text9", 3});
}

Outcome Form7::press(const std::string& command, FormState& state, Prompter& prompter) const {
    if (command == "Command1" || command == "Form7.Command1") return calculate(state, prompter);
    if (command == "Command3" || command == "Form7.Command3") return detail(state);
    if (isDetailingCommand(form8Setup(), command))
        return pressDetailing(form8Setup(), command, state, prompter);
    return Outcome::stop();
}

Outcome Form7::calculate(FormState& s, Prompter& prompter) const {
    s.setText("Text7", " ");
    s.setText("Text8", " ");
    // The class goes to the detailing before any check can stop the run.
    s.setVar("AggressivenessClass", s.text("List6"));

    const double fck = s.number("Text1"), fyk = s.number("Text2"), es = s.number("Text9");
    const double b = s.number("Text3"), h = s.number("Text4"), d = s.number("Text5");
    const double dPrime = s.number("Text10");
    double mk = s.number("Text6");
    const double gamac = s.number("Text13"), gamas = s.number("Text14"), gamaf = s.number("Text15");

    CheckSequence checks(prompter);
    checkDesignMaterials(checks, s, {"Text1", "List6", "Text2", "Text9"});
    checks.warnIf(b <= 0, msg::positiveValue("b"), "Text3");
    checkBeamWidth(checks, b, "Text3");
    checks.warnIf(h <= 0, msg::kPositiveH, "Text4")
        .warnIf(d <= 0, msg::kPositiveD, "Text5")
        .warnIf(d >= h, msg::kDBelowH, "Text5")
        .warnIf(mk == 0, "Forneça um valor não nulo para Mk.", "Text6");
    mk = std::fabs(mk);  // a negative moment is designed by its size, without a word
    checks.warnIf(dPrime <= 0, msg::kPositiveDPrime, "Text10")
        .warnIf(d <= dPrime, msg::kDPrimeBelowD, "Text10");
    checkPartialCoefficients(checks, {{gamac, "Text13"}, {gamas, "Text14"}, {gamaf, "Text15"}});
    if (checks.stopped()) return checks.outcome();

    const DesignBasis basis = designBasis(checks, s, fck, fyk, es, gamac, gamas, gamaf, mk);
    if (checks.stopped()) return checks.outcome();
    const double xlim = basis.xlim, md = basis.md, fyd = basis.fyd, sigmacd = basis.sigmacd;
    const StressBlockValues& block = basis.block;
    const double mu = md / (b * d * d * sigmacd);
    TraceRecorder rec(prompter.trace());
    rec.stage("Flexão da seção retangular");
    rec.step("Momento reduzido", "μ = Md / (b · d² · σcd)", "{} / ({} · ({})² · {})",
             {{md, "kN·cm"}, {b, "cm"}, {d, "cm"}, {sigmacd, "kN/cm²"}}, mu, "", -1, "NBR-6118:2014, 17.2.2");

    rec.step("Posição relativa da armadura comprimida", "δ = d' / d", "{} / {}", {{dPrime, "cm"}, {d, "cm"}}, dPrime / d, "");
    ReducedSteel steel = designRectangle(mu, xlim, dPrime / d, block, es * 100, fyd, rec);
    rec.step("Área de referência", "U = b · d · σcd / fyd", "{} · {} · {} / {}",
             {{b, "cm"}, {d, "cm"}, {sigmacd, "kN/cm²"}, {fyd, "kN/cm²"}}, b * d * sigmacd / fyd, "cm²");
    rec.step("Área de concreto", "Ac = b · h", "{} · {}", {{b, "cm"}, {h, "cm"}}, b * h, "cm²");
    return finishDesign(checks, s, steel, b * d * sigmacd / fyd, b * h, fck, fyd, output());
}

Outcome Form7::detail(FormState& s) { return openDetailing(s, output()); }

void Form7::report(const std::string& key, const FormState& state, ReportWriter& out) const {
    if (key == "Form8b") {
        writeDetailingReport(out, state, reportLayout(), form8Setup(), drawing("Form8b.Picture1", state));
        return;
    }
    if (key != "Form7") return;
    writeBendingHead(out, state, reportLayout());
    writeBendingSolution(out, state, reportLayout());
}

Drawing Form7::drawing(const std::string& picture, const FormState& state) const {
    if (picture == "Form7.Picture1" || picture == "Picture1") return rectangularSectionSketch();
    if (picture == "Form8b.Picture1") return detailingDrawing(form8Setup(), state);
    return {};
}

}  // namespace morve
