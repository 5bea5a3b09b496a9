#include "beams/form10.h"

#include "app/numbers.h"
#include "basis/checks.h"
#include "basis/messages.h"
#include "basis/start_values.h"
#include "beams/bending.h"
#include "beams/bending_report.h"
#include "beams/detailing.h"
#include "beams/sketches.h"
#include "reports/report_writer.h"

namespace morve {

namespace {

RegisterModule<Form10> registration;

const BendingReportLayout& reportLayout() {
    static const BendingReportLayout layout{
        "Text1", "Text2", "Text3", "Text13", "Text14", "Text15",
        {{"Largura da mesa bf= ", "Text4", "Espessura da mesa hf= ", "Text5"},
         {"Largura da nervura bw= ", "Text6", "Altura h= ", "Text7"},
         {"Altura útil d= ", "Text8", "Distância d'= ", "Text9"}},
        "Text10", "List3", "List2", "Text11", "Text12"};
    return layout;
}

const DesignOutput& output() {
    static const DesignOutput out{"Form10", "Text11", "Text12", "Text7", "Form10.Command4", "Form10b"};
    return out;
}

}  // namespace

ModuleInfo Form10::info() const {
    ModuleInfo i;
    i.key = "Form10";
    i.unloads = {"Form10c", "Form10b", "FormAjuda"};
    i.printKey = "Form10";
    i.calculate = "Command3";
    return i;
}

ScreenDecl Form10::mainScreen() {
    ScreenBuilder s("Form10", " DIMENSIONAMENTO À FLEXÃO SIMPLES NORMAL DE SEÇÕES T ");
    addMaterialFrames(s, "Text3");
    s.frame("Frame3", "Seção transversal", 0, 1, 2, 1)
        .box("Text4", "bf(cm)=", "60")
        .box("Text5", "hf(cm)=", "")
        .box("Text6", "bw(cm)=", "12")
        .box("Text7", "h(cm)=", "40")
        .box("Text8", "d(cm)=", "36")
        .box("Text9", "d'(cm)=", "")
        .box("Text10", "Mk(kNm)=", "");
    s.frame("Frame4", "", 0, 2, 2, 1).picture("Picture1", 260, 260);
    addCriterionFrames(s);
    s.frame("Frame8", "RESPOSTA", 3, 0, 1, 2)
        .result("Text11", "Armadura tracionada: As(cm2)=")
        .result("Text12", "Armadura comprimida: A's(cm2)=");
    s.frame("Frame9", "", 3, 2)
        .command("Command3", "&CALCULAR", "Realizar o dimensionamento")
        .command("Command4", "Detalhamento", "Detalhar as armaduras da viga")
        .disabled();
    return s.build();
}

std::vector<ScreenDecl> Form10::screens() const {
    return {mainScreen(), detailingScreen(form10bSetup()), detailingResultScreen(form10bSetup())};
}

void Form10::load(FormState& state, const StartDefaults& defaults) const {
    loadMaterialDefaults(state, defaults, {"Text1", "Text2", "Text3", 3});
}

Outcome Form10::press(const std::string& command, FormState& state, Prompter& prompter) const {
    if (command == "Command3" || command == "Form10.Command3") return calculate(state, prompter);
    if (command == "Command4" || command == "Form10.Command4") return detail(state);
    if (isDetailingCommand(form10bSetup(), command))
        return pressDetailing(form10bSetup(), command, state, prompter);
    return Outcome::stop();
}

Outcome Form10::calculate(FormState& s, Prompter& prompter) const {
    s.setText("Text11", " ");
    s.setText("Text12", " ");
    // The class goes to the detailing before any check can stop the run.
    s.setVar("AggressivenessClass", s.text("List6"));

    const double fck = s.number("Text1"), fyk = s.number("Text2"), es = s.number("Text3");
    const double bf = s.number("Text4"), hf = s.number("Text5"), bw = s.number("Text6");
    const double h = s.number("Text7"), d = s.number("Text8"), dPrime = s.number("Text9");
    const double mk = s.number("Text10");
    const double gamac = s.number("Text13"), gamas = s.number("Text14"), gamaf = s.number("Text15");

    CheckSequence checks(prompter);
    checkDesignMaterials(checks, s, {"Text1", "List6", "Text2", "Text3"});
    checks.warnIf(bf <= 0, msg::positiveValue("bf"), "Text4")
        .warnIf(hf <= 0, msg::positiveValue("hf"), "Text5")
        .warnIf(bw <= 0, msg::positiveValue("bw"), "Text6")
        .warnIf(bw >= bf, kFlangeWiderThanWeb, "Text6");
    checkBeamWidth(checks, bw, "Text6");
    checks.warnIf(h <= 0, msg::kPositiveH, "Text7")
        .warnIf(d <= 0, msg::kPositiveD, "Text8")
        .warnIf(h <= hf, "A espessura da mesa deve ser menor que a altura total da seção.", "Text5")
        .warnIf(h <= d, msg::kDBelowH, "Text8")
        .warnIf(d <= hf, "A altura útil tem que ser maior que a espessura da mesa hf.", "Text8")
        .warnIf(dPrime <= 0, msg::kPositiveDPrime, "Text9")
        .warnIf(d <= dPrime, msg::kDPrimeBelowD, "Text9")
        .warnIf(mk <= 0, "Forneça um valor positivo para o momento fletor Mk.", "Text10");
    checkPartialCoefficients(checks, {{gamac, "Text13"}, {gamas, "Text14"}, {gamaf, "Text15"}});
    if (checks.stopped()) return checks.outcome();

    const DesignBasis basis = designBasis(checks, s, fck, fyk, es, gamac, gamas, gamaf, mk);
    if (checks.stopped()) return checks.outcome();
    const double xlim = basis.xlim, md = basis.md, fyd = basis.fyd, sigmacd = basis.sigmacd;
    const StressBlockValues& block = basis.block;
    const double mu = md / (bf * d * d * sigmacd);
    TraceRecorder rec(prompter.trace());
    rec.stage("Flexão da seção T");
    rec.step("Momento reduzido", "μ = Md / (bf · d² · σcd)", "{} / ({} · ({})² · {})",
             {{md, "kN·cm"}, {bf, "cm"}, {d, "cm"}, {sigmacd, "kN/cm²"}}, mu, "", -1, "NBR-6118:2014, 17.2.2");
    rec.step("Espessura relativa da mesa", "η = hf / d", "{} / {}", {{hf, "cm"}, {d, "cm"}}, hf / d, "");
    rec.step("Posição relativa da armadura comprimida", "δ = d' / d", "{} / {}", {{dPrime, "cm"}, {d, "cm"}}, dPrime / d, "");
    rec.step("Razão das larguras", "r = bw / bf", "{} / {}", {{bw, "cm"}, {bf, "cm"}}, bw / bf, "");

    const ReducedSteel steel =
        designTee(mu, xlim, hf / d, bw / bf, dPrime / d, block, es * 100, fyd, rec).steel;
    rec.step("Área de referência", "U = bf · d · σcd / fyd", "{} · {} · {} / {}",
             {{bf, "cm"}, {d, "cm"}, {sigmacd, "kN/cm²"}, {fyd, "kN/cm²"}}, bf * d * sigmacd / fyd, "cm²");
    rec.step("Área de concreto", "Ac = bf · hf + (h − hf) · bw", "{} · {} + ({} − {}) · {}",
             {{bf, "cm"}, {hf, "cm"}, {h, "cm"}, {hf, "cm"}, {bw, "cm"}}, bf * hf + (h - hf) * bw, "cm²");
    return finishDesign(checks, s, steel, bf * d * sigmacd / fyd, bf * hf + (h - hf) * bw, fck, fyd, output());
}

Outcome Form10::detail(FormState& s) { return openDetailing(s, output()); }

void Form10::report(const std::string& key, const FormState& state, ReportWriter& out) const {
    if (key == "Form10") {
        writeBendingHead(out, state, reportLayout());
        writeBendingSolution(out, state, reportLayout());
    } else if (key == "Form10c") {
        writeDetailingReport(out, state, reportLayout(), form10bSetup(), drawing("Form10c.Picture1", state));
    }
}

Drawing Form10::drawing(const std::string& picture, const FormState& state) const {
    if (picture == "Form10.Picture1" || picture == "Picture1") return teeSectionSketch();
    if (picture == "Form10c.Picture1") return detailingDrawing(form10bSetup(), state);
    return {};
}

}  // namespace morve
