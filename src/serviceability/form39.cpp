#include "serviceability/form39.h"

#include <algorithm>
#include <cmath>

#include "app/numbers.h"
#include "basis/checks.h"
#include "basis/messages.h"
#include "basis/start_values.h"
#include "numeric/elementary.h"
#include "serviceability/deflection.h"

namespace morve {

namespace {

RegisterModule<Form39> registration;

constexpr int kMaxLoads = 20;
const std::string kUniformGrid = "Form39b.Grade2";
const std::string kPointGrid = "Form39b.Grade1";
const std::string kLoadsCommand = "Command8";

// The boxes of the section frame that is showing.
struct SectionBoxes {
    std::string h, dPrime, dSecond, as, asc, diameter;
};
const SectionBoxes kRectangleBoxes{"Text10", "Text11", "Text12", "Text13", "Text14", "List1"};
const SectionBoxes kTeeBoxes{"Text18", "Text19", "Text20", "Text21", "Text22", "List2"};

// The results of Form39c: Eurocode 2, bilinear, practical, Wo, NBR Wtot, Wadm, crack
// widths by the two formulations.
const char* const kResultBoxes[] = {"Form39c.Text8", "Form39c.Text1", "Form39c.Text2", "Form39c.Text3",
                                    "Form39c.Text7", "Form39c.Text4", "Form39c.Text5", "Form39c.Text6"};

double count(const FormState& s, const std::string& box) { return std::trunc(s.number(box)); }

GridDecl loadGrid(std::vector<std::string> header) {
    GridDecl g;
    g.header = std::move(header);
    g.maxRows = kMaxLoads;
    g.filter = KeyFilter::SignedNumber;
    return g;
}

ScreenDecl mainScreen() {
    ScreenBuilder s("Form39", "ESTADOS LIMITES DE UTILIZAÇÃO EM VIGAS DE CONCRETO ARMADO");
    s.frame("Frame1", "Materiais", 0, 0)
        .box("Text1", "fck(MPa) =", "20")
        .box("Text2", "Ecs(MPa)=", "25757")
        .box("Text3", "φ=", "2.5")
        .box("Text4", "Deformação imposta", "0.00050")
        .box("Text5", "Es(GPa)=", "200");
    s.frame("Frame2", "Tipo de seção", 1, 0)
        .option("Option1", "Seção retangular", "secao", true)
        .option("Option2", "Seção T", "secao");
    s.frame("Frame3", "Seção central", 0, 1, 2, 1)
        .box("Text9", "b (cm)=")
        .box("Text10", "h (cm)=")
        .box("Text11", "d' (cm)=")
        .box("Text12", "d'' (cm)=")
        .box("Text13", "As (cm2)=")
        .box("Text14", "A's (cm2)=")
        .list("List1", "Diâmetro da armadura tracionada As (mm):",
              {"6.3", "8.0", "10", "12.5", "16", "20", "22"})
        .tip(BarCatalogue::kBarListTip);
    s.frame("Frame4", "Seção central", 0, 1, 2, 1)
        .box("Text15", "bf (cm)=")
        .box("Text16", "hf (cm)=")
        .box("Text17", "bw (cm)=")
        .box("Text18", "h (cm)=")
        .box("Text19", "d' (cm)=")
        .box("Text20", "d'' (cm)=")
        .box("Text21", "As (cm2)=")
        .box("Text22", "A's (cm2)=")
        .list("List2", "Diâmetro da armadura tracionada As (mm):", BarCatalogue::tensionBars())
        .tip(BarCatalogue::kBarListTip);
    s.frame("Frame5", "Vão e carregamento", 2, 0, 1, 2)
        .box("Text6", "Vão l (m)=")
        .box("Text7", "Número de cargas uniformes =", "0", "", KeyFilter::Digit)
        .box("Text8", "Número de cargas concentradas =", "0", "", KeyFilter::Digit)
        .command(kLoadsCommand, "Cargas", "Entrar com o carregamento")
        .command("Command3", "&CALCULAR", "Calcular a flecha e a abertura das fissuras");
    return s.build();
}

ScreenDecl loadScreen() {
    ScreenBuilder s("Form39b", "Carregamento do vão", false);
    // The units go in the frame's title, where they are not cut as in a narrow column head.
    s.frame("Frame1", "Cargas uniformes (m, m, kN/m)", 0, 0)
        .grid("Grade2", loadGrid({"Carga", "Início", "Compr.", "Valor"}));
    s.frame("Frame2", "Cargas concentradas no vão (m, kN, kNm)", 0, 1)
        .grid("Grade1", loadGrid({"Carga", "Posição", "Força", "Momento"}));
    s.frame("Frame3", "Momentos nas extremidades", 1, 0)
        .box("Text1", "Xa (kNm)=", "0", "", KeyFilter::SignedNumber)
        .box("Text2", "Xb (kNm)=", "0", "", KeyFilter::SignedNumber);
    s.frame("Frame4", "Convenção de sinais", 1, 1)
        .label("Label1", "Forças positivas: dirigidas para baixo")
        .label("Label2", "Momentos positivos: sentido horário");
    s.frame("Frame5", "", 2, 0, 1, 2)
        .label("Label3", msg::kGridsArrows)
        .command("Command1", "Ver carregamento")
        .command("Command2", "&OK");
    return s.build();
}

ScreenDecl drawingScreen() {
    ScreenBuilder s("Form39b2", "Carregamento do vão", false);
    s.frame("Frame1", "", 0, 0).picture("Picture1", 640, 300).command("Command1", "&Voltar");
    return s.build();
}

ScreenDecl resultScreen() {
    ScreenBuilder s("Form39c", "Resultados", false);
    s.frame("Frame1", "Flecha no meio do vão", 0, 0)
        .result("Text8", "Método do Eurocode 2:", "mm")
        .result("Text1", "Método bilinear do CEB:", "mm")
        .result("Text2", "Fórmula prática do CEB/90:", "mm")
        .result("Text3", "NBR-6118: Wo =", "mm")
        .result("Text7", "Wtot =", "mm")
        .result("Text4", "Flecha admissível:", "mm");
    s.frame("Frame2", "Abertura máxima das fissuras", 1, 0)
        .result("Text5", "Formulação do CEB/90:", "mm")
        .result("Text6", "Formulação da NBR/6118:", "mm")
        .label("Label1", "Valores limites conforme a classe de agressividade ambiental:")
        .label("Label2", "0,4 mm para Classe I")
        .label("Label3", "0,3 mm para Classe II e Classe III")
        .label("Label4", "0,2 mm para Classe IV");
    s.frame("Frame3", "", 2, 0).command("Command2", "&Voltar");
    return s.build();
}

Outcome openLoadTables(FormState& s, Prompter& prompter) {
    const double uniform = count(s, "Text7"), points = count(s, "Text8");
    CheckSequence checks(prompter);
    checks.warnIf(points > kMaxLoads, "Este programa está limitado ao máximo de 20 cargas concentradas.", "Text8")
        .warnIf(uniform > kMaxLoads, "Este programa está limitado ao máximo de 20 segmentos de carga uniforme.",
                "Text7");
    if (checks.stopped()) return checks.outcome();
    // Rows already typed are kept; a new count adds blank rows or drops the last ones.
    auto size = [&](const std::string& grid, double n) {
        s.resizeGrid(grid, static_cast<std::size_t>(std::max(0.0, n)));
    };
    size(kUniformGrid, uniform);
    size(kPointGrid, points);
    return Outcome::done().then(EffectKind::DisableScreen, "Form39").then(EffectKind::ShowScreen, "Form39b");
}

// The load checks of the tables, after the section.
void checkLoads(CheckSequence& checks, const SpanLoads& loads) {
    const double l = loads.span;
    bool outside = false, allZero = !loads.points.empty(), anyLoad = loads.xa != 0 || loads.xb != 0;
    for (const auto& p : loads.points) {
        outside |= !(p.position >= 0 && p.position <= l);
        const bool zero = p.force == 0 && p.moment == 0;
        allZero &= zero;
        anyLoad |= !zero;
    }
    checks.warnIf(outside, "Você está fornecendo carga concentrada fora do vão.", kLoadsCommand)
        .warnIf(allZero, "Todas as cargas concentradas são nulas. Revise os dados.", kLoadsCommand);
    // A segment that ends at the support by its typed start and length passes,
    // whatever the binary fractions of the two make of their sum.
    const double slack = 1e-9 * l;
    bool beyond = false, tooLong = false;
    allZero = !loads.uniform.empty();
    for (const auto& u : loads.uniform) {
        beyond |= !(u.start >= 0 && u.start <= l && u.length >= 0);
        tooLong |= u.start + u.length > l + slack;
        const bool zero = u.value == 0 || u.length == 0;
        allZero &= zero;
        anyLoad |= !zero;
    }
    checks.warnIf(beyond, "Você está fornecendo carga distribuída fora do vão.", kLoadsCommand)
        .warnIf(tooLong, "Uma ou mais cargas distribuídas possuem comprimento superior ao máximo.", kLoadsCommand)
        .warnIf(allZero, "Todas as cargas distribuídas são nulas. Revise os dados.", kLoadsCommand)
        .warnIf(!anyLoad, "A viga está sem carregamento.", kLoadsCommand);
}

}  // namespace

ModuleInfo Form39::info() const {
    ModuleInfo i;
    i.key = "Form39";
    i.unloads = {"Form39b2", "FormAjuda", "Form39c", "Form39b"};
    i.printKey = "Form39";
    i.calculate = "Command3";
    return i;
}

std::vector<ScreenDecl> Form39::screens() const {
    return {mainScreen(), loadScreen(), drawingScreen(), resultScreen()};
}

void Form39::load(FormState& state, const StartDefaults& defaults) const {
    loadMaterialDefaults(state, defaults, {"Text1", "", "Text5", 3});
    state.setVisible("Frame4", false);
}

SpanLoads readSpanLoads(const FormState& s) {
    SpanLoads loads;
    loads.span = s.number("Form39.Text6");
    const GridRows& uniform = s.grid(kUniformGrid);
    for (std::size_t r = 1; r < uniform.size(); ++r)
        loads.uniform.push_back({s.cellNumber(kUniformGrid, r, 1), s.cellNumber(kUniformGrid, r, 2),
                                 s.cellNumber(kUniformGrid, r, 3)});
    const GridRows& points = s.grid(kPointGrid);
    for (std::size_t r = 1; r < points.size(); ++r)
        loads.points.push_back({s.cellNumber(kPointGrid, r, 1), s.cellNumber(kPointGrid, r, 2),
                                s.cellNumber(kPointGrid, r, 3)});
    loads.xa = s.number("Form39b.Text1");
    loads.xb = s.number("Form39b.Text2");
    return loads;
}

Outcome Form39::press(const std::string& command, FormState& state, Prompter& prompter) const {
    const std::string c = state.qualify(command);
    if (c == "Form39.Option1" || c == "Form39.Option2") {
        const bool tee = c == "Form39.Option2";
        state.setOption(c, true);
        return Outcome::done()
            .then(EffectKind::HideControl, tee ? "Form39.Frame3" : "Form39.Frame4")
            .then(EffectKind::ShowControl, tee ? "Form39.Frame4" : "Form39.Frame3");
    }
    if (c == "Form39.Command8") return openLoadTables(state, prompter);
    if (c == "Form39.Command3") return calculate(state, prompter);
    if (c == "Form39b.Command1") return Outcome::done().then(EffectKind::ShowScreen, "Form39b2");
    if (c == "Form39b.Command2")
        return Outcome::done().then(EffectKind::HideScreen, "Form39b").then(EffectKind::EnableScreen, "Form39");
    if (c == "Form39b2.Command1") return Outcome::done().then(EffectKind::HideScreen, "Form39b2");
    if (c == "Form39c.Command2")
        return Outcome::done().then(EffectKind::HideScreen, "Form39c").then(EffectKind::EnableScreen, "Form39");
    return Outcome::stop();
}

Outcome Form39::calculate(FormState& s, Prompter& prompter) const {
    for (const char* box : kResultBoxes) s.setText(box, " ");
    const bool tee = s.option("Option2");
    const SectionBoxes& box = tee ? kTeeBoxes : kRectangleBoxes;
    const double nUniform = count(s, "Text7"), nPoint = count(s, "Text8");
    ServiceMaterials mat{s.number("Text1"), s.number("Text2"), s.number("Text3"), s.number("Text4"),
                         s.number("Text5")};
    const double span = s.number("Text6");
    const double h = s.number(box.h), dPrime = s.number(box.dPrime), dSecond = s.number(box.dSecond);
    const double as = s.number(box.as);
    // The boxes take no sign, so a negative As' can only come from outside the
    // keyboard: it counts as none.
    const double asc = std::max(0.0, s.number(box.asc));

    CheckSequence checks(prompter);
    // The tables must have been sized by "Cargas" for the counts now in the boxes.
    checks.warnIf(static_cast<double>(s.grid(kUniformGrid).size()) != nUniform + 1 ||
                      static_cast<double>(s.grid(kPointGrid).size()) != nPoint + 1,
                  "Atualize os dados do carregamento.", kLoadsCommand)
        .warnIf(nPoint > kMaxLoads, "O número máximo de pontos de carga concentrada é igual a 20.", "Text8")
        .warnIf(nUniform > kMaxLoads, "O número máximo de segmentos de carga distribuída é igual a 20.", "Text7");
    checkConcreteRange(checks, mat.fck, "Text1");
    const double modulus = 18275 * portable::cbrt((mat.fck + 8) / 10);
    checks.warnIf(mat.ecs <= 0, msg::kPositiveEcs, "Text2")
        .askIf(mat.ecs < 0.7 * modulus || mat.ecs > 1.3 * modulus,
               msg::kEcsRange, "Text2")
        .askIf(mat.phi > 5,
               msg::kHighCreep, "Text3")
        .askIf(mat.epsCs > 0.002,
               "A deformação de retração é muito alta e pode ter havido um erro em sua avaliação. VOCÊ QUER "
               "ALTERAR A DEFORMAÇÃO DE RETRAÇÃO?",
               "Text4");
    checkCodeModulus(checks, mat.es, "Text5");
    checks.warnIf(span <= 0, "Forneça o vão da viga.", "Text6");
    double bf = 0, hf = 0, bw = 0;
    if (tee) {
        bf = s.number("Text15");
        hf = s.number("Text16");
        bw = s.number("Text17");
        checks.warnIf(bf <= 0, msg::positiveValue("bf"), "Text15")
            .warnIf(hf <= 0, msg::positiveValue("hf"), "Text16")
            .warnIf(bw <= 0, msg::positiveValue("bw"), "Text17")
            .askIf(bw < 12,
                   "Segundo a NBR-6118, a largura mínima da nervura é igual a 12cm.   VOCÊ QUER CORRIGIR A LARGURA?",
                   "Text17")
            .warnIf(bf < bw, "A largura da mesa bf não pode ser menor que a largura da nervura bw.", "Text15")
            .warnIf(h <= 0, msg::kPositiveH, box.h)
            .warnIf(h < hf, "A altura h não pode ser menor que a espessura da mesa hf.", box.h);
    } else {
        bw = bf = s.number("Text9");
        checks.warnIf(bw <= 0, msg::positiveValue("b"), "Text9");
        checkBeamWidth(checks, bw, "Text9");
        checks.warnIf(h <= 0, msg::kPositiveH, box.h);
    }
    checks.warnIf(dPrime <= 0, msg::kPositiveDPrime, box.dPrime)
        .warnIf(dPrime > 0.4 * h, "A distância d' é excessiva.", box.dPrime)
        .warnIf(dSecond <= 0, msg::positiveValue("d''"), box.dSecond)
        .warnIf(dSecond > 0.4 * h, "A distância d'' é excessiva.", box.dSecond)
        .warnIf(as <= 0, "A área da armadura tracionada não pode ser nula.", box.as)
        .warnIf(s.number(box.diameter) <= 0, "Escolha o diâmetro da barra de aço tracionada.", box.diameter);
    if (checks.stopped()) return checks.outcome();
    const SpanLoads loads = readSpanLoads(s);
    checkLoads(checks, loads);
    if (checks.stopped()) return checks.outcome();

    mat.ecs /= 10;   // kN/cm2
    mat.es *= 100;   // kN/cm2
    const double d = h - dPrime;
    const ServiceSection section = tee ? ServiceSection::tee(bf, hf, bw, h, d, dSecond, as, asc)
                                       : ServiceSection::rectangle(bw, h, d, dSecond, as, asc);
    const ServiceResults r = serviceAnalysis(section, tee, mat, s.number(box.diameter), loads);
    const double values[] = {r.ec2, r.bilinear, r.practical, r.wo, r.nbr, r.allowable, r.crackCeb, r.crackNbr};
    bool finite = true;
    for (double v : values) finite &= std::isfinite(v);
    // Absurd data (a modulus or a span far out of scale) can carry the arithmetic past
    // what a number holds; that is told, never shown as a result.
    checks.warnIf(!finite, "Os dados fornecidos levam a valores fora da escala de cálculo. Revise os dados.");
    if (checks.stopped()) return checks.outcome();

    for (int i = 0; i < 8; ++i) {
        const bool millimetres = i < 6;  // deflections are worked in cm
        s.setText(kResultBoxes[i], formatResult(millimetres ? values[i] * 10 : values[i]));
    }
    if (tee) {
        s.setText("Form39c.Text1", "");
        s.setText("Form39c.Text2", "");
    }
    return Outcome::done()
        .then(EffectKind::EnableControl, printButton("Form39"))
        .then(EffectKind::DisableScreen, "Form39")
        .then(EffectKind::ShowScreen, "Form39c");
}

}  // namespace morve
