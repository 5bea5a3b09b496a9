#include "beams/verification.h"

#include <cmath>

#include "app/numbers.h"
#include "app/texts.h"
#include "basis/checks.h"
#include "basis/messages.h"
#include "basis/start_values.h"
#include "beams/bending.h"
#include "beams/layered_bending.h"
#include "beams/sketches.h"
#include "reports/report_writer.h"

namespace morve {

namespace {

RegisterModule<Form9> registerForm9;
RegisterModule<Form11> registerForm11;

constexpr int kMaxLayers = 300;
constexpr std::size_t kCellWidth = 10;
const std::string kLayerLimit = "Este programa está limitado a 300 camadas de armadura.";

const VerificationSetup& form9Setup() {
    static const VerificationSetup s{
        "Form9", "Form9b", "VERIFICAÇÃO DE SEÇÕES RETANGULARES SOB FLEXÃO SIMPLES NORMAL", false,
        "Text6", "Text7", "Command3", "Command4",
        {"", {{"Largura da seção transversal: b= ", "Text4"}}, "Text6", "Form9b.Grade1", "Text7"}};
    return s;
}

const VerificationSetup& form11Setup() {
    static const VerificationSetup s{
        "Form11", "Form11b", " VERIFICAÇÃO DE SEÇÕES T SOB FLEXÃO SIMPLES NORMAL", true,
        "Text8", "Text9", "Command4", "Command3",
        {"Dimensões da seção transversal:",
         {{"Largura da mesa: bf= ", "Text4"},
          {"Espessura da mesa: hf= ", "Text5"},
          {"Largura da nervura: bw= ", "Text6"}},
         "Text8", "Form11b.Grade1", "Text9"}};
    return s;
}

int layerCount(const FormState& state, const std::string& box) {
    const double n = std::trunc(state.number(box));
    return n > 1e6 ? 1000000 : static_cast<int>(n);  // far past the limit, without overflow
}

}  // namespace

Form9::Form9() : LayeredVerification(form9Setup()) {}
Form11::Form11() : LayeredVerification(form11Setup()) {}

ModuleInfo LayeredVerification::info() const {
    ModuleInfo i;
    i.key = setup_.key;
    i.unloads = setup_.tee ? std::vector<std::string>{setup_.companion, "FormAjuda"}
                           : std::vector<std::string>{"FormAjuda", setup_.companion};
    i.printKey = setup_.key;
    i.calculate = setup_.calculate;
    return i;
}

std::vector<ScreenDecl> LayeredVerification::screens() const {
    ScreenBuilder s(setup_.key, setup_.heading);
    s.frame("Frame1", "Materiais", 0, 0)
        .box("Text1", "fck (MPa)=", "20")
        .box("Text2", "fyk (MPa)=", "500")
        .box("Text3", "Es (GPa)=", "200");
    s.frame("Frame2", "Coeficientes parciais", 1, 0)
        .box("Text13", "Gamac=", "1.4")
        .box("Text14", "Gamas=", "1.15");
    s.frame("Frame3", "Seção transversal", 0, 1, 2, 1);
    if (setup_.tee) {
        s.box("Text4", "bf (cm)=", "60").box("Text5", "hf (cm)=", "").box("Text6", "bw (cm)=", "12");
        s.box("Text8", "Número de camadas de armadura:", "", "", KeyFilter::Digit);
    } else {
        s.box("Text4", "b (cm)=", "20");
        s.box("Text6", "Número de camadas:", "", "", KeyFilter::Digit);
    }
    s.frame("Frame4", "", 0, 2, 2, 1).picture("Picture1", setup_.tee ? 260 : 220, 260);
    s.frame("Frame5", "Momento de ruína de cálculo:", 2, 0, 1, 2).result(setup_.result, "Md =", "kNm");
    s.frame("Frame6", "", 2, 2)
        .command(setup_.openGrid, "Entrar com dados das camadas")
        .command(setup_.calculate, "&CALCULAR");

    GridDecl grid;
    grid.header = {"Camada", "As (cm2)", "d (cm)"};
    grid.rows = 1;
    grid.maxRows = kMaxLayers;
    ScreenBuilder g(setup_.companion, "Dados das camadas de armadura", false);
    g.frame("Frame1", "Dados das camadas de armadura", 0, 0)
        .label("Label1", msg::kGridArrows)
        .grid("Grade1", grid)
        .command("Command2", "&OK");
    return {s.build(), g.build()};
}

void LayeredVerification::load(FormState& state, const StartDefaults& defaults) const {
    loadMaterialDefaults(state, defaults, {"Text1", "Text2", "Text3", 3});
}

Outcome LayeredVerification::press(const std::string& command, FormState& state,
                                   Prompter& prompter) const {
    const std::string c = state.qualify(command);
    if (c == setup_.key + "." + setup_.openGrid) return openGrid(state, prompter);
    if (c == setup_.key + "." + setup_.calculate) return calculate(state, prompter);
    if (c == setup_.companion + ".Command2") return closeGrid(state);
    return Outcome::stop();
}

Outcome LayeredVerification::openGrid(FormState& state, Prompter& prompter) const {
    const int n = layerCount(state, setup_.count);
    CheckSequence checks(prompter);
    checks.warnIf(n <= 0, "Entre com um valor positivo para n", setup_.count)
        .warnIf(n > kMaxLayers, kLayerLimit, setup_.count);
    if (checks.stopped()) return checks.outcome();
    // The layers typed before stay; a new count adds blank layers or drops the last.
    state.resizeGrid(grid(), static_cast<std::size_t>(n));
    return Outcome::done()
        .then(EffectKind::DisableScreen, setup_.key)
        .then(EffectKind::ShowScreen, setup_.companion);
}

Outcome LayeredVerification::closeGrid(FormState& state) const {
    GridRows& rows = state.grid(grid());
    for (std::size_t r = 1; r < rows.size(); ++r)
        for (auto& cell : rows[r]) cell = cutText(cell, kCellWidth);
    return Outcome::done()
        .then(EffectKind::EnableScreen, setup_.key)
        .then(EffectKind::HideScreen, setup_.companion);
}

Outcome LayeredVerification::calculate(FormState& s, Prompter& prompter) const {
    s.setText(setup_.result, " ");
    LayeredSection sec;
    sec.fck = s.number("Text1");
    sec.fyk = s.number("Text2");
    sec.es = s.number("Text3");
    sec.gamac = s.number("Text13");
    sec.gamas = s.number("Text14");
    sec.width = s.number("Text4");
    sec.tee = setup_.tee;

    CheckSequence checks(prompter);
    checkSectionMaterials(checks, sec.fck, "Text1", sec.fyk, "Text2", sec.es, "Text3");
    if (setup_.tee) {
        sec.flangeThickness = s.number("Text5");
        sec.webWidth = s.number("Text6");
        checks.warnIf(sec.width <= 0, msg::positiveValue("bf"), "Text4")
            .warnIf(sec.flangeThickness <= 0, msg::positiveValue("hf"), "Text5")
            .warnIf(sec.webWidth <= 0, msg::positiveValue("bw"), "Text6")
            .warnIf(sec.width <= sec.webWidth, kFlangeWiderThanWeb);
        checkBeamWidth(checks, sec.webWidth, "Text6");
    } else {
        checks.warnIf(sec.width <= 0, msg::positiveValue("b"), "Text4");
        checkBeamWidth(checks, sec.width, "Text4");
    }
    const int n = layerCount(s, setup_.count);
    checks.warnIf(n <= 0, msg::positiveValue("n"), setup_.count)
        .warnIf(n > kMaxLayers, kLayerLimit, setup_.count)
        .warnIf(static_cast<int>(s.grid(grid()).size()) - 1 != n, "Atualize os dados das camadas.",
                setup_.openGrid);
    if (checks.stopped()) return checks.outcome();

    SteelLayers layers;
    for (int i = 1; i <= n; ++i) {
        layers.areas.push_back(s.cellNumber(grid(), i, 1));
        layers.depths.push_back(s.cellNumber(grid(), i, 2));
    }
    auto badRow = [](const std::vector<double>& values) {
        for (double v : values)
            if (v <= 0) return true;
        return false;
    };
    checks.warnIf(badRow(layers.areas),
                  "Você está fornecendo valor negativo ou nulo para área de aço. Revise os dados.")
        .warnIf(badRow(layers.depths),
                "Você está fornecendo valor negativo ou nulo para altura útil. Revise os dados.");
    if (checks.stopped()) {
        // The grid comes up again, for the user to mend.
        return checks.outcome()
            .then(EffectKind::DisableScreen, setup_.key)
            .then(EffectKind::ShowScreen, setup_.companion);
    }
    sortDeepestFirst(layers);
    if (setup_.tee)
        checks.warnIf(layers.depths.front() <= sec.flangeThickness,
                      "A altura útil d1 tem que ser maior que a espessura da mesa hf.");
    checkPartialCoefficients(checks, {{sec.gamac, "Text13"}, {sec.gamas, "Text14"}});
    if (checks.stopped()) return checks.outcome();

    const UltimateMoment mu = layeredUltimateMoment(sec, layers);
    checks.warnIf(mu.status == NeutralAxisStatus::NotBracketed, "Não é possível encontrar a linha neutra.")
        .warnIf(mu.status == NeutralAxisStatus::NotConverged,
                "A busca da linha neutra não convergiu. Revise os dados das camadas de armadura.");
    if (checks.stopped()) return checks.outcome();

    s.setText(setup_.result, formatResult(mu.moment));
    return Outcome::done().then(EffectKind::EnableControl, printButton(setup_.key));
}

void LayeredVerification::report(const std::string& key, const FormState& state, ReportWriter& out) const {
    if (key == setup_.key) writeVerificationReport(out, state, setup_.report);
}

Drawing LayeredVerification::drawing(const std::string& picture, const FormState& state) const {
    if (state.qualify(picture) == setup_.key + ".Picture1") return layeredSectionSketch(setup_.tee);
    return {};
}

}  // namespace morve
