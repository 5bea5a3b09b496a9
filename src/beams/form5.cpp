#include "beams/form5.h"

#include <algorithm>

#include "app/numbers.h"
#include "basis/checks.h"
#include "basis/messages.h"
#include "basis/start_values.h"
#include "beams/shear_common.h"
#include "beams/shear_trace.h"
#include "reports/report_writer.h"

namespace morve {

namespace {

RegisterModule<Form5> registration;

const StirrupBoxes kProposalBoxes{"Text7", "Text8", "Text9"};

}  // namespace

ModuleInfo Form5::info() const {
    ModuleInfo i;
    i.key = "Form5";
    i.unloads = {"FormAjuda"};
    i.printKey = "Form5";
    return i;
}

ScreenDecl Form5::mainScreen() {
    ScreenBuilder s("Form5", " DIMENSIONAMENTO AO ESFORÇO CORTANTE");
    s.frame("Frame1", "Materiais", 0, 0)
        .box("Text1", "fck(MPa)=", "20")
        .box("Text2", "fyk(MPa)=", "600");
    s.frame("Frame2", "Coeficientes parciais", 1, 0)
        .box("Text13", "Gamac=", "1.4")
        .box("Text14", "Gamas=", "1.15")
        .box("Text15", "Gamaf=", "1.4");
    s.frame("Frame3", "Seção transversal", 0, 1, 2, 1)
        .box("Text3", "bw(cm)=", "20")
        .box("Text4", "d(cm)=", "36")
        .box("Text5", "Vk(kN)=", "");
    s.frame("Frame4", "", 0, 2, 2, 1).picture("Picture1", 200, 260);
    s.frame("Frame5", "Diâmetro dos estribos", 2, 0);
    declareStirrupList(s, "List1");
    s.frame("Frame6", "RESPOSTA", 2, 1)
        .result("Text6", "Armadura: Asw(cm2/m)=")
        .result("Text7", "Diâmetro dos estribos (mm)=")
        .result("Text8", "Espaçamento (cm)=")
        .result("Text9", "Ramos=");
    s.frame("Frame7", "", 2, 2).command("Command1", "&CALCULAR", "Realizar o dimensionamento");
    return s.build();
}

std::vector<ScreenDecl> Form5::screens() const { return {mainScreen()}; }

void Form5::load(FormState& state, const StartDefaults& defaults) const {
    // The steel of stirrups is the start dialog's second list; there is no Es here.
    loadMaterialDefaults(state, defaults, {"Text1", "Text2", "", 2});
}

Outcome Form5::press(const std::string& command, FormState& state, Prompter& prompter) const {
    if (command == "Command1" || command == "Form5.Command1") return calculate(state, prompter);
    return Outcome::stop();
}

Outcome Form5::calculate(FormState& s, Prompter& prompter) const {
    for (const char* box : {"Text6", "Text7", "Text8", "Text9"}) s.setText(box, " ");

    const double fck = s.number("Text1"), fyk = s.number("Text2");
    const double bw = s.number("Text3"), d = s.number("Text4"), vk = s.number("Text5");
    const double gamac = s.number("Text13"), gamas = s.number("Text14"), gamaf = s.number("Text15");

    CheckSequence checks(prompter);
    checkConcreteRange(checks, fck, "Text1");
    checkPositiveFyk(checks, fyk, "Text2", false);
    checkSteelClass(checks, fyk, "Text2");
    checks.warnIf(bw <= 0, "Forneça um valor positivo para bw", "Text3")
        .confirmIf(bw < 12, msg::kBeamWidthOkCancel, "Text3")
        .warnIf(d <= 0, "Forneça um valor positivo para d", "Text4")
        .warnIf(vk <= 0, "Forneça um valor positivo para Vk", "Text5");
    checkStirrupChosen(checks, s, "List1");
    checkPartialCoefficients(checks, {{gamac, "Text13"}, {gamas, "Text14"}, {gamaf, "Text15"}});
    if (checks.stopped()) return checks.outcome();

    // MPa from here on; bw and d stay in cm.
    const double vd = gamaf * vk;
    const double fcd = fck / gamac;
    const double fyd = stirrupDesignStrength(fyk, gamas);
    const double tauwd = 10 * vd / (bw * d);
    const double tauwu = 0.27 * strutReduction(fck) * fcd;
    TraceRecorder rec(prompter.trace());
    rec.stage("Esforço cortante");
    rec.step("Força cortante de cálculo", "Vd = γf · Vk", "{} · {}", {{gamaf, ""}, {vk, "kN"}}, vd, "kN", -1,
             "NBR-6118:2014, 11.7.1");
    rec.step("Resistência de cálculo do concreto", "fcd = fck / γc", "{} / {}", {{fck, "MPa"}, {gamac, ""}}, fcd, "MPa", -1,
             "NBR-6118:2014, 12.3.3");
    traceShearStrut(rec, fyk, gamas, fyd, vd, bw, d, fck, fcd, tauwd, tauwu);
    checks.warnIf(tauwu < tauwd, msg::kCrushedStrut);
    if (checks.stopped()) return checks.outcome();

    double asw = shearStirrupArea(bw, tauwd, concreteShearStress(fck, gamac), fyd);
    rec.stage("Estribos");
    traceShearStirrups(rec, fck, gamac, bw, tauwd, fyd, asw);
    const double aswMin = 100 * minimumStirrupRatio(fck, fyk) * bw;
    traceMinimumStirrups(rec, fck, fyk, bw, aswMin);
    rec.step("Estribos adotados", "Asw = max(Asw, Asw,min)", "max({}, {})", {{asw, "cm²/m"}, {aswMin, "cm²/m"}},
             std::max(asw, aswMin), "cm²/m", 2);
    if (asw < aswMin) asw = aswMin;
    s.setText("Text6", formatResult(asw));

    const double smax = maximumStirrupSpacing(0.67 * tauwu < tauwd, d);
    const StirrupProposal proposal = proposeStirrups(asw, s.number("List1"), smax);
    traceStirrupProposal(rec, 0.67 * tauwu < tauwd, d, smax, asw, proposal.diameter, proposal.legs, proposal.spacing);
    writeStirrupProposal(s, kProposalBoxes, proposal);
    return Outcome::done().then(EffectKind::EnableControl, printButton("Form5"));
}

void Form5::report(const std::string& key, const FormState& s, ReportWriter& out) const {
    if (key != "Form5") return;
    out.write("Propriedades dos materiais:");
    out.write("Concreto: fck= ", s.text("Text1"), " MPa");
    out.write("Aço: fyk= ", s.text("Text2"), " MPa");
    out.blank();
    out.write("Coeficientes parciais de segurança:");
    out.write("Gamac= ", s.text("Text13"), blanks(5), "Gamas= ", s.text("Text14"), blanks(5),
              "Gamaf= ", s.text("Text15"));
    out.blank();
    out.write("Largura da seção transversal bw= ", s.text("Text3"), " cm");
    out.write("Altura útil d= ", s.text("Text4"), " cm");
    out.blank();
    out.write("Esforço cortante de serviço Vk= ", s.text("Text5"), " kN");
    out.blank();
    out.blank();
    out.write("SOLUÇÃO:");
    out.blank();
    out.write("Armadura calculada Asw= ", s.text("Text6"), " cm2/m");
    out.blank();
    writeStirrupReportLine(out, s, kProposalBoxes);
}

Drawing Form5::drawing(const std::string& picture, const FormState&) const {
    if (picture != "Form5.Picture1" && picture != "Picture1") return {};
    // A 20 x 40 beam cut across, its two-legged stirrup and the shear it carries.
    Drawing g;
    g.unit = DrawingUnit::Centimetre;
    g.left = -9;
    g.top = -6;
    g.right = 33;
    g.bottom = 47;
    g.rectangle({0, 0}, {20, 40}, colours::lightGrey, 1, true);
    g.rectangle({0, 0}, {20, 40}, colours::black, 2);
    g.as(ShapeKind::Bars).rectangle({2.5, 2.5}, {17.5, 37.5}, colours::blue, 2);
    for (double x : {4.0, 16.0}) {
        g.circle({x, 4}, 1.0, colours::black, true);
        g.circle({x, 36}, 1.4, colours::black, true);
    }
    g.text({10, 20}, "Asw", 9, TextAlign::Centre, colours::blue);
    g.dimension({0, 43}, {20, 43}, "bw", 0, 2.5);
    g.dimension({-4, 0}, {-4, 36}, "d", -2.5, 0);
    g.as(ShapeKind::Loads).line({27, 8}, {27, 32}, colours::red, 2);
    g.polyline({{25.5, 29}, {27, 32}, {28.5, 29}}, false, colours::red, 2);
    g.text({29, 18}, "Vk", 9, TextAlign::Left, colours::red);
    return g;
}

}  // namespace morve
