#include "anchorage/anchorage_modules.h"

#include <algorithm>
#include <cmath>

#include "anchorage/anchorage_length.h"
#include "anchorage/anchorage_trace.h"
#include "app/numbers.h"
#include "basis/checks.h"
#include "basis/materials.h"
#include "basis/start_values.h"
#include "reports/report_writer.h"

namespace morve {

namespace {

AnchorageForm spanForm() {
    return {"Form36", "  ANCORAGEM AO LONGO DO VÃO DE UMA VIGA", AnchorageCase::Span,
            "Reta: lb,nec (cm)=", "Com gancho: lb,nec (cm)=",
            "Comprimento de ancoragem reta: lb,nec= ", "Comprimento de ancoragem com gancho: lb,nec= "};
}

AnchorageForm supportForm() {
    AnchorageForm f = spanForm();
    f.key = "Form37";
    f.heading = " ANCORAGEM EM APOIOS DE EXTREMIDADE";
    f.kind = AnchorageCase::Support;
    return f;
}

AnchorageForm spliceForm() {
    return {"Form38", " EMENDAS DAS BARRAS DAS ARMADURAS", AnchorageCase::Splice,
            "Extremidade reta: lo (cm)=", "Extremidade com gancho: lo (cm)=",
            "Comprimento de emenda com extremidade reta: lo= ",
            "Comprimento de emenda com extremidade em gancho: lo= "};
}

struct Registration {
    Registration() {
        for (auto form : {spanForm(), supportForm(), spliceForm()})
            ModuleRegistry::add(std::make_unique<AnchorageModule>(form));
    }
} registration;

}  // namespace

ModuleInfo AnchorageModule::info() const {
    ModuleInfo i;
    i.key = form_.key;
    i.unloads = {"FormAjuda"};
    i.printKey = form_.key;
    return i;
}

std::vector<ScreenDecl> AnchorageModule::screens() const {
    const bool support = form_.kind == AnchorageCase::Support;
    ScreenBuilder s(form_.key, form_.heading);
    s.frame("Frame1", "Materiais", 0, 0).box("Text1", "fck(MPa)=", "20").box("Text2", "fyk(MPa)=", "500");
    s.frame("Frame2", "Armadura", 1, 0)
        .list("List1", "Tipo:", barSurfaceItems())
        .list("List2", "Diâmetro (mm):", BarCatalogue::tensionBars())
        .tip(BarCatalogue::kBarListTip);
    if (form_.choosesBond())
        s.frame("Frame3", "Aderência", 0, 1)
            .option("Option1", "Zona de boa aderência", "zona", true)
            .tip("Consulte a Ajuda")
            .option("Option2", "Zona de má aderência", "zona")
            .tip("Consulte a Ajuda");
    if (form_.kind == AnchorageCase::Splice)
        s.frame("Frame4", "Solicitação", 1, 1)
            .option("Option3", "Tração", "esforco", true)
            .option("Option4", "Compressão", "esforco")
            .list("List3", "% barras emendadas:", lapShareItems());
    s.frame("Frame5", "Área de aço", support ? 0 : 2, support ? 1 : 0);
    if (support)
        s.box("Text3", "Armadura existente:  Ase(cm2)=").box("Text5", "Reação de apoio de cálculo: Vd(kN)=");
    else
        s.box("Text3", "Calculada: As,cal (cm2) =").box("Text4", "Existente: Ase (cm2)=");
    s.frame("Frame6", form_.kind == AnchorageCase::Splice ? "Comprimento de emenda" : "Comprimento de ancoragem",
            2, 1)
        .result("Text6", form_.straightCaption)
        .result("Text7", form_.hookedCaption);
    s.frame("Frame7", "", 3, 0, 1, 2).command("Command1", "&CALCULAR");
    return {s.build()};
}

void AnchorageModule::load(FormState& state, const StartDefaults& defaults) const {
    // fck and the bar steel of the start dialog; these modules have no modulus.
    loadMaterialDefaults(state, defaults, {"Text1", "Text2", "", 3});
}

Outcome AnchorageModule::press(const std::string& command, FormState& state, Prompter& prompter) const {
    if (state.qualify(command) == form_.key + ".Command1") return calculate(state, prompter);
    return Outcome::stop();
}

Outcome AnchorageModule::calculate(FormState& s, Prompter& prompter) const {
    s.setText("Text6", " ");
    s.setText("Text7", " ");
    const double fck = s.number("Text1"), fyk = s.number("Text2");
    const auto surface = barSurface(s.text("List1"));
    const auto& bars = BarCatalogue::tensionBars();
    const bool chosen = std::find(bars.begin(), bars.end(), s.text("List2")) != bars.end();
    const double phi = s.number("List2") / 10;  // cm
    const bool support = form_.kind == AnchorageCase::Support;
    const bool tension = form_.kind != AnchorageCase::Splice || s.option("Option3");

    CheckSequence checks(prompter);
    checkConcreteRange(checks, fck, "Text1");
    checkPositiveFyk(checks, fyk, "Text2", false);
    checkSteelClass(checks, fyk, "Text2");
    checks.warnIf(!surface, "Escolha o tipo de aço.", "List1")
        .warnIf(!chosen, "Escolha o diâmetro da barra de aço.", "List2");
    // Areas and forces read as missing when not positive: the boxes take no sign,
    // so a negative value only comes from outside the keyboard.
    double asCal = 0, ase = 0;
    if (support) {
        ase = s.number("Text3");
        const double vd = s.number("Text5");
        checks.warnIf(ase <= 0, "Forneça a área de aço existente no apoio.", "Text3")
            .warnIf(vd <= 0, "Forneça o valor de cálculo da reação de apoio.", "Text5");
        asCal = vd / (fyk / 1.15 * 0.1);  // the area that carries Rsd = Vd
    } else {
        asCal = s.number("Text3");
        ase = s.number("Text4");
        checks.warnIf(form_.kind == AnchorageCase::Splice && tension && lapFactor(s.text("List3")) == 0,
                      "Escolha a porcentagem de barras emendadas na mesma seção.", "List3")
            .warnIf(asCal <= 0, "Forneça a área de aço calculada.", "Text3")
            .warnIf(ase <= 0, "Forneça a área de aço existente.", "Text4")
            .warnIf(ase < asCal, "A área de aço existente não pode ser menor que a área calculada.", "Text4");
    }
    if (checks.stopped()) return checks.outcome();

    const bool goodBond = !form_.choosesBond() || s.option("Option1");
    AnchorageDemand demand;
    demand.lb = basicAnchorageLength(phi, fyk, bondStrength(fck, *surface, goodBond));
    if (support)
        checks.warnIf(!(ase >= asCal), "A área de aço existente no apoio é insuficiente para ancorar a força Rsd=Vd.",
                      "Text3");
    if (checks.stopped()) return checks.outcome();
    demand.ratio = asCal / ase;
    switch (form_.kind) {
        case AnchorageCase::Span:
            demand.straightMinimum = demand.hookMinimum = anchorageMinimum(demand.lb, phi);
            break;
        case AnchorageCase::Support:
            demand.straightMinimum = anchorageMinimum(demand.lb, phi);
            demand.hookMinimum = supportHookMinimum(phi, fyk);
            break;
        case AnchorageCase::Splice:
            demand.factor = tension ? lapFactor(s.text("List3")) : 1.0;
            demand.straightMinimum = demand.hookMinimum = lapMinimum(demand.lb, phi, demand.factor, tension);
            break;
    }
    const AnchorageLengths lengths = anchorageLengths(demand);
    // A steel far past any real class, kept after the steel-class question, can carry
    // the length past what a number holds; say so rather than leave the boxes blank.
    checks.warnIf(!std::isfinite(lengths.straight) || !std::isfinite(lengths.hooked),
                  "Com este valor de fyk o comprimento de ancoragem é grande demais para ser calculado.", "Text2");
    if (checks.stopped()) return checks.outcome();
    traceAnchorage(TraceRecorder(prompter.trace()), {form_.kind, fck, fyk, phi, *surface, goodBond, tension,
                                                     support ? s.number("Text5") : 0, asCal, demand, lengths});
    s.setText("Text6", formatResult(lengths.straight, 0));
    s.setText("Text7", formatResult(lengths.hooked, 0));
    return Outcome::done().then(EffectKind::EnableControl, printButton(form_.key));
}

void AnchorageModule::report(const std::string& key, const FormState& s, ReportWriter& out) const {
    if (key != form_.key) return;
    auto bondLine = [&] {
        out.write(s.option("Option1") ? "Armadura em zona de boa aderência" : "Armadura em zona de má aderência");
    };
    auto areaLines = [&] {
        out.write("Área da armadura calculada: As,cal= ", s.text("Text3"), " cm2");
        out.write("Área da armadura existente: Ase= ", s.text("Text4"), " cm2");
    };
    out.write("Resistências dos materiais:");
    out.write("Concreto: fck= ", s.text("Text1"), " MPa");
    out.write("Aço: fyk= ", s.text("Text2"), " MPa");
    out.blank();
    out.write("Conformação superficial: Aço ", s.text("List1"));
    out.write("Diâmetro das barras= ", s.text("List2"), " mm");
    switch (form_.kind) {
        case AnchorageCase::Span:
            areaLines();
            bondLine();
            break;
        case AnchorageCase::Support:
            out.write("Área da armadura existente no apoio: Ase= ", s.text("Text3"), " cm2");
            out.write("Esforço cortante de cálculo no apoio: Vd= ", s.text("Text5"), " kN");
            break;
        case AnchorageCase::Splice:
            if (s.option("Option3")) {
                out.write("Tipo de solicitação: Tração");
                out.write("Porcentagem de barras emendadas na mesma seção: ", s.text("List3"));
            } else {
                out.write("Tipo de solicitação: Compressão");
            }
            bondLine();
            areaLines();
            break;
    }
    out.blank();
    out.write("SOLUÇÃO:");
    out.blank();
    out.write(form_.straightLine, s.text("Text6"), " cm");
    out.write(form_.hookedLine, s.text("Text7"), " cm");
}

}  // namespace morve
