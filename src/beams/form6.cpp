#include "beams/form6.h"

#include <algorithm>
#include <cmath>

#include "app/numbers.h"
#include "basis/checks.h"
#include "basis/messages.h"
#include "basis/start_values.h"
#include "beams/bending.h"
#include "beams/shear_common.h"
#include "beams/shear_trace.h"
#include "beams/torsion.h"
#include "beams/torsion_trace.h"
#include "reports/report_writer.h"

namespace morve {

namespace {

RegisterModule<Form6> registration;

const std::string kHeading = " DIMENSIONAMENTO À TORÇÃO COM FLEXÃO -  SEÇÕES RETANGULARES";
const StirrupBoxes kProposalBoxes{"Form6b.Text9", "Form6b.Text10", "Form6b.Text11"};

// The double-reinforcement stops of this module send the focus to the height box
// of the rectangular-section module, Form7.Text4, not to a box of its own. The run
// ends there in any case; the name is kept as the module has always given it.
const std::string kBendingStopFocus = "Form7.Text4";

}  // namespace

ModuleInfo Form6::info() const {
    ModuleInfo i;
    i.key = "Form6";
    i.unloads = {"FormAjuda", "Form6b"};
    i.printKey = "";  // the report starts from Form6b
    return i;
}

ScreenDecl Form6::mainScreen() {
    ScreenBuilder s("Form6", kHeading);
    s.frame("Frame1", "Materiais", 0, 0)
        .box("Text1", "fck(MPa)=", "20")
        .box("Text2", "fyk(MPa)=", "500")
        .box("Text3", "Es(GPa)=", "200");
    s.frame("Frame2", "Coeficientes parciais", 1, 0)
        .box("Text4", "Gamac=", "1.4")
        .box("Text5", "Gamas=", "1.15")
        .box("Text6", "Gamaf=", "1.4");
    s.frame("Frame3", "Seção transversal", 0, 1)
        .box("Text7", "b(cm)=", "25")
        .box("Text8", "h(cm)=", "40")
        .box("Text9", "d'(cm)=", "");
    s.frame("Frame4", "Esforços solicitantes de serviço", 1, 1)
        .box("Text10", "Momento fletor: Mk (kNm)=", "")
        .box("Text11", "Esforço cortante: Vk (kN)=", "")
        .box("Text12", "Momento torçor: Tk (kNm)=", "");
    s.frame("Frame5", "", 0, 2, 2, 1).picture("Picture1", 220, 280);
    s.frame("Frame6", "Diâmetro dos estribos", 2, 0);
    declareStirrupList(s, "List1");
    s.frame("Frame7", "Ductilidade", 2, 1)
        .list("List2", "xlim/d = ", ductilityItems(), ductilityItems().front())
        .tip("Critério de ductilidade. Consulte a Ajuda.");
    s.frame("Frame8", "Coeficiente de redistribuição", 2, 2)
        .list("List3", "Beta=", redistributionItems(), redistributionItems().front());
    s.frame("Frame9", "", 3, 0, 1, 3).command("Command1", "&CALCULAR", "Realizar o dimensionamento");
    return s.build();
}

ScreenDecl Form6::resultScreen() {
    ScreenBuilder s("Form6b", kHeading, false);
    s.frame("Frame1", "Armadura longitudinal", 0, 0)
        .label("Label1", "Para o momento fletor Md:")
        .result("Text1", "As (cm2)=")
        .result("Text2", "As' (cm2)=")
        .label("Label2", "Para o momento torçor Td:")
        .result("Text3", "Asl (cm2)=");
    s.frame("Frame2", "Arranjo", 0, 1)
        .result("Text4", "As1 (cm2)=")
        .result("Text5", "As2 (cm2)=")
        .result("Text6", "As3 (cm2)=");
    s.frame("Frame3", "Estribos verticais", 1, 0)
        .label("Label3", "Para o esforço cortante Vd:")
        .result("Text7", "Asw,V (cm2/m)=")
        .label("Label4", "Para o momento torçor Td:")
        .result("Text8", "Asw,T (cm2/m)=");
    s.frame("Frame4", "Sugestão para estribos", 1, 1)
        .result("Text9", "Diâmetro (mm)=")
        .result("Text10", "Espaçamento (cm)=")
        .result("Text11", "Ramos=");
    s.frame("Frame5", "", 2, 0, 1, 2)
        .command("Command2", "&Voltar")
        .command("Command7", "Im&primir");
    return s.build();
}

std::vector<ScreenDecl> Form6::screens() const { return {mainScreen(), resultScreen()}; }

void Form6::load(FormState& state, const StartDefaults& defaults) const {
    loadMaterialDefaults(state, defaults, {"Text1", "Text2", "Text3", 3});
}

Outcome Form6::press(const std::string& command, FormState& state, Prompter& prompter) const {
    if (command == "Command1" || command == "Form6.Command1") return calculate(state, prompter);
    if (command == "Form6b.Command2")
        return Outcome::done()
            .then(EffectKind::ShowScreen, "Form0b")
            .then(EffectKind::HideScreen, "Form6b")
            .then(EffectKind::ShowScreen, "Form6");
    if (command == "Form6b.Command7")
        return Outcome::done()
            .then(EffectKind::StartReport, "Form6b")
            .then(EffectKind::DisableScreen, "Form6b");
    return Outcome::stop();
}

Outcome Form6::calculate(FormState& s, Prompter& prompter) const {
    const double fck = s.number("Text1"), fyk = s.number("Text2"), es = s.number("Text3");
    const double gamac = s.number("Text4"), gamas = s.number("Text5"), gamaf = s.number("Text6");
    const double b = s.number("Text7"), h = s.number("Text8"), dPrime = s.number("Text9");
    // Mk, Vk and Tk keep their signs all through.
    const double mk = s.number("Text10"), vk = s.number("Text11"), tk = s.number("Text12");

    CheckSequence checks(prompter);
    checkConcreteRange(checks, fck, "Text1");
    checkPositiveFyk(checks, fyk, "Text2");
    checkSteelClass(checks, fyk, "Text2");
    checkPositiveEs(checks, es, "Text3");
    checkCodeModulus(checks, es, "Text3");
    checkPartialCoefficients(checks, {{gamac, "Text4"}, {gamas, "Text5"}, {gamaf, "Text6"}});
    checks.warnIf(b <= 0, msg::positiveValue("b"), "Text7");
    checkBeamWidth(checks, b, "Text7");
    checks.warnIf(h <= 0, msg::kPositiveH, "Text8")
        .warnIf(dPrime <= 0, "Forneça um valor positivo para a distância d'.", "Text9")
        .warnIf(dPrime >= h / 2, "A distância d' tem que ser menor que h/2.", "Text9");
    checkStirrupChosen(checks, s, "List1");
    checks.warnIf(tk == 0, "O momento torçor tem que ser diferente de zero.", "Text12");
    if (checks.stopped()) return checks.outcome();

    const DesignBasis basis = designBasis(checks, s, fck, fyk, es, gamac, gamas, gamaf, mk);
    if (checks.stopped()) return checks.outcome();

    // Bending in kN and cm, as the rectangular section.
    const StressBlockValues& block = basis.block;
    const double xlim = basis.xlim, fyd = basis.fyd, sigmacd = basis.sigmacd, md = basis.md;
    const double d = h - dPrime;
    const double fcd = fck / 10 / gamac;
    const double vd = gamaf * vk, td = gamaf * tk * 100;
    double as = 0, asPrime = 0;
    TraceRecorder rec(prompter.trace());
    rec.stage("Flexão");
    rec.step("Altura útil", "d = h − d'", "{} − {}", {{h, "cm"}, {dPrime, "cm"}}, d, "cm");
    if (md != 0) {
        rec.step("Momento reduzido", "μ = Md / (b · d² · σcd)", "{} / ({} · ({})² · {})",
                 {{md, "kN·cm"}, {b, "cm"}, {d, "cm"}, {sigmacd, "kN/cm²"}}, md / (b * d * d * sigmacd), "", -1,
                 "NBR-6118:2014, 17.2.2");
        const ReducedSteel steel =
            designRectangle(md / (b * d * d * sigmacd), xlim, dPrime / d, block, es * 100, fyd, rec);
        checks.warnIf(steel.stop != BendingStop::None, bendingStopMessage(steel.stop),
                      kBendingStopFocus);
        if (checks.stopped()) return checks.outcome();
        as = steel.omega * b * d * sigmacd / fyd;
        asPrime = steel.omegaPrime * b * d * sigmacd / fyd;
        rec.step("Armadura de flexão tracionada", "As = ω · b · d · σcd / fyd", "{} · {} · {} · {} / {}",
                 {{steel.omega, ""}, {b, "cm"}, {d, "cm"}, {sigmacd, "kN/cm²"}, {fyd, "kN/cm²"}}, as, "cm²", 2);
        rec.step("Armadura de flexão comprimida", "A's = ω' · b · d · σcd / fyd", "{} · {} · {} · {} / {}",
                 {{steel.omegaPrime, ""}, {b, "cm"}, {d, "cm"}, {sigmacd, "kN/cm²"}, {fyd, "kN/cm²"}}, asPrime, "cm²", 2);
    }
    const double rhoMin = torsionBendingMinimumRatio(fck, fyd * 10);
    const double asMin = rhoMin * b * h;
    rec.step("Taxa mínima de flexão", "ρmin", "", {}, rhoMin, "", -1, "NBR-6118:2014, 17.3.5.2.1");
    rec.step("Armadura de flexão adotada", "As = max(As, ρmin · b · h)", "max({}, {} · {} · {})",
             {{as, "cm²"}, {rhoMin, ""}, {b, "cm"}, {h, "cm"}}, std::max(as, asMin), "cm²", 2);
    if (as < asMin) as = asMin;

    // Shear and torsion in MPa.
    const double fcdMpa = fcd * 10;
    const double fydStirrup = stirrupDesignStrength(fyk, gamas);
    const double alphav = strutReduction(fck);
    const double tauwd = 10 * vd / (b * d);
    const double tauwd2 = 0.27 * alphav * fcdMpa;

    const HollowSection wall = torsionHollowSection(b, h, dPrime);
    // Past b / 2 the wall and its area turn negative together and the results stay
    // defined; only at b / 2 itself the wall is nothing and the formulas would
    // divide by zero.
    checks.warnIf(wall.te == 0 || wall.ae == 0, "A distância d' tem que ser diferente de b/2.", "Text9");
    if (checks.stopped()) return checks.outcome();
    const double tautd = 10 * td / (2 * wall.ae * wall.te);
    const double tautd2 = 0.25 * alphav * fcdMpa;
    const double ratio = tauwd / tauwd2 + tautd / tautd2;
    traceTorsionStrut(rec, {b, h, dPrime, d, gamaf, vk, tk, fck, fcdMpa, wall, tauwd, tauwd2, tautd, tautd2, ratio});
    checks.warnIf(ratio > 1, msg::kCrushedStrut);
    if (checks.stopped()) return checks.outcome();

    const double aswV = shearStirrupArea(b, tauwd, concreteShearStress(fck, gamac), fydStirrup);
    const double fydTorsion = fydStirrup / 10;  // kN/cm2
    const double aswT = 100 * td / (2 * wall.ae * fydTorsion);  // one leg, cm2/m
    double asl = wall.ue * td / (2 * wall.ae * fydTorsion);

    // Minimum stirrups on the total only; Asw,V and Asw,T are shown as computed.
    const double rhow = minimumStirrupRatio(fck, fyk);
    const double aswMin = 100 * rhow * b;
    double stirrups = std::max(2 * aswT + aswV, aswMin);
    const double aslMin = 0.5 * rhow * wall.ue * b;
    if (rec.on()) {
        rec.stage("Armaduras de torção e estribos");
        traceShearStirrups(rec, fck, gamac, b, tauwd, fydStirrup, aswV);
        rec.step("Estribos de torção (um ramo)", "Asw,T = 100 · Td / (2 · Ae · fywd / 10)", "100 · {} / (2 · {} · {} / 10)",
                 {{td, "kN·cm"}, {wall.ae, "cm²"}, {fydStirrup, "MPa"}}, aswT, "cm²/m", 2, "NBR-6118:2014, 17.5.1.6");
        rec.step("Armadura longitudinal de torção", "Asl = ue · Td / (2 · Ae · fywd / 10)", "{} · {} / (2 · {} · {} / 10)",
                 {{wall.ue, "cm"}, {td, "kN·cm"}, {wall.ae, "cm²"}, {fydStirrup, "MPa"}},
                 asl, "cm²", -1, "NBR-6118:2014, 17.5.1.6");
        traceMinimumStirrups(rec, fck, fyk, b, aswMin);
        rec.step("Estribos totais", "Asw = max(2 · Asw,T + Asw,V, Asw,min)", "max(2 · {} + {}, 100 · {} · {})",
                 {{aswT, "cm²/m"}, {aswV, "cm²/m"}, {rhow, ""}, {b, "cm"}}, stirrups, "cm²/m");
        rec.step("Mínimo longitudinal de torção", "Asl,min = 0.5 · ρw,min · ue · b", "0.5 · {} · {} · {}",
                 {{rhow, ""}, {wall.ue, "cm"}, {b, "cm"}}, aslMin, "cm²", -1, "NBR-6118:2014, 17.5.1.2");
    }
    if (asl > 0 && asl < aslMin) asl = aslMin;
    rec.step("Armadura longitudinal de torção adotada", "Asl", "", {}, asl, "cm²", 2);
    rec.check("Taxa total de armadura", "ρ = (A's + As + Asl) / (h · b) ≤ 0.04", "({} + {} + {}) / ({} · {})",
              {{asPrime, "cm²"}, {as, "cm²"}, {asl, "cm²"}, {h, "cm"}, {b, "cm"}}, (asPrime + as + asl) / (h * b), "",
              !((asPrime + as + asl) / (h * b) > 0.04), "NBR-6118:2014, 17.3.5.2.4");

    checks.warnIf((asPrime + as + asl) / (h * b) > 0.04, msg::kSteelRateAbove4);
    if (checks.stopped()) return checks.outcome();

    s.setText("Form6b.Text1", formatResult(as));
    s.setText("Form6b.Text2", formatResult(asPrime));
    s.setText("Form6b.Text3", formatResult(asl));
    s.setText("Form6b.Text7", formatResult(aswV));
    s.setText("Form6b.Text8", formatResult(aswT));
    const Arrangement faces = arrangeLongitudinal(b, h, wall, as, asPrime, asl);
    s.setText("Form6b.Text4", formatResult(faces.bottom));
    s.setText("Form6b.Text5", formatResult(faces.top));
    s.setText("Form6b.Text6", formatResult(faces.side));

    const double smax = maximumStirrupSpacing(!(ratio <= 0.67), d);
    const StirrupProposal proposal = proposeStirrups(stirrups, s.number("List1"), smax);
    traceStirrupProposal(rec, !(ratio <= 0.67), d, smax, stirrups, proposal.diameter, proposal.legs, proposal.spacing);
    writeStirrupProposal(s, kProposalBoxes, proposal);
    return Outcome::done()
        .then(EffectKind::HideScreen, "Form6")
        .then(EffectKind::ShowScreen, "Form0b")
        .then(EffectKind::ShowScreen, "Form6b");
}

namespace {

// xlim/d printed with three decimals whatever the criterion.
std::string torsionDuctilityLine(const FormState& s) {
    const auto criterion = ductilityCriterion(s.text("List2"));
    if (!criterion) return "";
    const double xlim = DuctilityLimit(*criterion, s.number("List3"), s.number("Text1"),
                                       s.number("Text2"), s.number("Text5"), s.number("Text3"));
    const char* lead = *criterion == DuctilityCriterion::CEB90
                           ? "Critério de ductilidade: CEB/90.  xlim/d = "
                       : *criterion == DuctilityCriterion::NBR6118
                           ? "Critério de ductilidade: NBR-6118.  xlim/d = "
                           : "Critério de ductilidade: Condição balanceada. xlim / d = ";
    return lead + formatResult(xlim, 3);
}

// A computed number in a line is set off by a blank on each side.
ReportItem spacedNumber(double value) { return lit(" " + formatPlain(value) + " "); }

constexpr int kValueColumn = 30;

}  // namespace

void Form6::report(const std::string& key, const FormState& s, ReportWriter& out) const {
    if (key != "Form6b") return;
    out.write("Propriedades dos materiais:");
    out.write("Concreto: fck= ", s.text("Text1"), " MPa");
    out.write("Aço: fyk= ", s.text("Text2"), " MPa", blanks(5), "Es= ", s.text("Text3"), " GPa");
    out.blank();
    out.write("Coeficientes parciais de segurança:");
    out.write("Gamac= ", s.text("Text4"), blanks(5), "Gamas= ", s.text("Text5"), blanks(5),
              "Gamaf= ", s.text("Text6"));
    out.blank();
    out.write("Dimensões da seção transversal:");
    out.write("Largura b= ", s.text("Text7"), " cm", tab(40), "Altura h= ", s.text("Text8"), " cm");
    out.write("Altura útil d=", spacedNumber(s.number("Text8") - s.number("Text9")), "cm");
    out.write("Distância d'= ", s.text("Text9"), " cm");
    out.blank();
    out.write("Esforços solicitantes de serviço:");
    out.write("Momento fletor:", tab(kValueColumn), "Mk= ", s.text("Text10"), " kNm");
    out.write("Esforço cortante:", tab(kValueColumn), "Vk= ", s.text("Text11"), " kN");
    out.write("Momento torçor:", tab(kValueColumn), "Tk= ", s.text("Text12"), " kNm");
    out.blank();
    out.write("Coeficiente de redistribuição de momentos: Beta = ", s.text("List3"));
    out.write(torsionDuctilityLine(s));
    out.blank();
    out.write("... Continua");
    out.pageBreak();

    out.write("SOLUÇÃO:");
    out.write("A)ARMADURA LONGITUDINAL");
    out.write("Para o momento fletor Md:");
    out.write("Armadura tracionada As= ", s.text("Form6b.Text1"), " cm2", blanks(5),
              "Armadura comprimida As'= ", s.text("Form6b.Text2"), " cm2");
    out.write("Para o momento torçor Td:");
    out.write("Asl= ", s.text("Form6b.Text3"), " cm2");
    out.write("ARRANJO SUGERIDO:");
    out.write("Na face inferior:", tab(kValueColumn), "As1= ", s.text("Form6b.Text4"), " cm2");
    out.write("Na face superior:", tab(kValueColumn), "As2= ", s.text("Form6b.Text5"), " cm2");
    out.write("Em cada face lateral:", tab(kValueColumn), "As3= ", s.text("Form6b.Text6"), " cm2");
    out.write("B)ESTRIBOS VERTICAIS");
    out.write("Para o esforço cortante Vd:", tab(kValueColumn), "Asw,V= ", s.text("Form6b.Text7"),
              " cm2/m");
    out.write("Para o momento torçor Td:", tab(kValueColumn), "Asw,T= ", s.text("Form6b.Text8"),
              " cm2/m");
    writeStirrupReportLine(out, s, kProposalBoxes);
}

Drawing Form6::drawing(const std::string& picture, const FormState&) const {
    if (picture != "Form6.Picture1" && picture != "Picture1") return {};
    // A 25 x 40 section with the wall of the equivalent hollow section through the
    // corner bars, the bars at d' from the faces and the torque about the axis.
    Drawing g;
    g.unit = DrawingUnit::Centimetre;
    g.left = -10;
    g.top = -8;
    g.right = 38;
    g.bottom = 48;
    g.rectangle({0, 0}, {25, 40}, colours::lightGrey, 1, true);
    g.rectangle({0, 0}, {25, 40}, colours::black, 2);
    g.rectangle({4, 4}, {21, 36}, colours::grey, 1);
    g.as(ShapeKind::Bars).rectangle({2.5, 2.5}, {22.5, 37.5}, colours::blue, 2);
    for (double x : {4.0, 12.5, 21.0}) {
        g.circle({x, 4}, 1.0, colours::black, true);
        g.circle({x, 36}, 1.4, colours::black, true);
    }
    for (double y : {15.0, 25.0}) {
        g.circle({4, y}, 0.9, colours::black, true);
        g.circle({21, y}, 0.9, colours::black, true);
    }
    g.text({12.5, 20}, "Ae", 9, TextAlign::Centre, colours::grey);
    g.text({12.5, 33}, "As", 9, TextAlign::Centre, colours::red);
    g.text({12.5, 8.5}, "As'", 9, TextAlign::Centre, colours::red);
    g.dimension({0, 44}, {25, 44}, "b", 0, 2.5);
    g.dimension({-5, 0}, {-5, 40}, "h", -2.8, 0);
    g.dimension({29, 36}, {29, 40}, "d'", 2.8, 0);
    g.as(ShapeKind::Loads).circle({31, 12}, 3.5, colours::red, false, 2);
    g.polyline({{33.5, 8}, {34.6, 11}, {31.5, 10.5}}, false, colours::red, 2);
    g.text({31, 4}, "Tk", 9, TextAlign::Centre, colours::red);
    return g;
}

}  // namespace morve
