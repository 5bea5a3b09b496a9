#include "slabs/solid_slab.h"

#include <algorithm>
#include <cmath>

#include "app/numbers.h"
#include "basis/design_basis.h"
#include "basis/messages.h"
#include "basis/start_values.h"
#include "numeric/elementary.h"
#include "reports/report_writer.h"

namespace morve {

namespace {

RegisterModule<Form20> registration20;
RegisterModule<Form21> registration21;

const std::string kThinSlab =
    "Segundo a NBR-6118, a espessura mínima das lajes maciças é 7 cm, em todos os casos. Clique em OK "
    "para corrigir a espessura. Clique em CANCELAR para continuar.";
const std::string kChooseDiameter = "Escolha o diâmetro das barras.";
const std::string kCa50Size = "O diâmetro escolhido corresponde ao aço CA-50. Você deve usar fyk=500 MPa. ALTERA fyk?";
const std::string kCa60Size = "O diâmetro escolhido corresponde ao aço CA-60. Você pode usar fyk=600 MPa. ALTERA fyk?";
const std::string kDoubleSteel = "Está resultando armadura dupla. Aumente a espessura da laje.";
const std::string kCloseBars = "Resultou um espaçamento das barras menor que 7cm. Escolha um diâmetro maior.";
const std::string kMainSteel = "Você está dimensionando armadura principal para momento positivo?";
const char* const kClassNames[] = {"I", "II", "III", "IV"};

// Wires drawn only in CA-60 and bars rolled only in CA-50; 8 mm is made in both
// steels and asks nothing.
bool ca60Only(double mm) { return mm == 5 || mm == 6 || mm == 7 || mm == 9.5; }
bool ca50Only(double mm) { return mm == 6.3 || mm == 10 || mm == 12.5; }

std::string coverMessage(const AggressivenessLimits& c) {
    std::string cover = formatResult(c.slabCover, 1);
    if (cover.find('.') == std::string::npos) cover += ".0";
    std::replace(cover.begin(), cover.end(), '.', ',');
    return "O cobrimento calculado é inferior ao mínimo de " + cover + " cm, exigido para a classe de agressividade " +
           kClassNames[c.cls - 1] + ". Reduza a altura útil d.";
}

Outcome design(FormState& s, Prompter& prompter) {
    for (const char* box : {"Text7", "Text8", "Text9"}) s.setText(box, "");
    const double fck = s.number("Text1"), fyk = s.number("Text2"), es = s.number("Text3");
    const double h = s.number("Text4"), d = s.number("Text5"), mk = s.number("Text6");
    const double gamac = s.number("Text13"), gamas = s.number("Text14"), gamaf = s.number("Text15");
    const double bar = s.number("List1");

    CheckSequence checks(prompter);
    checkDesignMaterials(checks, s, {"Text1", "List6", "Text2", "Text3"});
    checks.warnIf(!(h > 0), msg::kPositiveH, "Text4")
        .confirmIf(h < 7, kThinSlab, "Text4")
        .warnIf(!(d > 0), msg::kPositiveD, "Text5")
        .warnIf(d >= h, msg::kDBelowH, "Text5")
        .warnIf(!(mk > 0), msg::positiveValue("Mk"), "Text6")
        .warnIf(s.text("List1").empty(), kChooseDiameter, "List1");
    checkPartialCoefficients(checks, {{gamac, "Text13"}, {gamas, "Text14"}, {gamaf, "Text15"}});
    if (checks.stopped()) return checks.outcome();
    if (ca50Only(bar) && fyk != 500 && prompter.askYesNo(kCa50Size)) s.setText("Text2", "500");
    if (ca60Only(bar) && fyk != 600 && prompter.askYesNo(kCa60Size)) s.setText("Text2", "600");
    const auto cls = AggressivenessClass(s.text("List6"));
    checks.warnIf(cls && h - d - bar / 10 < cls->slabCover, cls ? coverMessage(*cls) : "", "Text5");
    if (checks.stopped()) return checks.outcome();
    const DesignBasis b = designBasis(checks, s, fck, s.number("Text2"), es, gamac, gamas, gamaf, mk);
    if (checks.stopped()) return checks.outcome();

    const double mu = b.md / (100 * d * d * b.sigmacd);
    checks.warnIf(mu > rectangularLimitMoment(b.xlim, b.block), kDoubleSteel);
    if (checks.stopped()) return checks.outcome();
    const double xi = (1 - std::sqrt(1 - 2 * mu)) / b.block.lambda;
    double as = xi * b.block.lambda * 100 * d * b.sigmacd / b.fyd;
    as = std::max(as, MinimumSteelRatio(fck, b.fyd * 10) * 100 * h);
    s.setText("Text7", formatResult(as));

    const double spacing = std::min(100 * BarCatalogue::barArea(bar) / as, 33.0);
    checks.warnIf(spacing < 7, kCloseBars);
    if (checks.stopped()) return checks.outcome();
    s.setText("Text8", s.text("List1"));
    const double smax = std::min(2 * h, 20.0);
    // A main positive steel keeps to the code's largest spacing; other steel may be
    // spaced as the area allows.
    const bool main = spacing > smax && prompter.askYesNo(kMainSteel);
    s.setText("Text9", formatResult(main ? smax : spacing));
    return Outcome::done().then(EffectKind::EnableControl, printButton("Form20"));
}

Outcome shear(FormState& s, Prompter& prompter) {
    for (const char* box : {"Text4", "Text6", "Text7"}) s.setText(box, "");
    const double fck = s.number("Text1"), vk = s.number("Text2"), gamaf = s.number("Text15");
    const double d = s.number("Text3"), as = s.number("Text5");
    CheckSequence checks(prompter);
    checkConcreteRange(checks, fck, "Text1");
    checks.warnIf(!(vk > 0), msg::positiveValue("o esforço cortante"), "Text2");
    checkPartialCoefficients(checks, {{gamaf, "Text15"}});
    checks.warnIf(!(d > 0), msg::positiveValue("a altura útil d"), "Text3")
        .warnIf(!(as > 0), msg::positiveValue("a área de aço As"), "Text5")
        .warnIf(s.text("List1").empty(), "Forneça a porcentagem de armadura que chega ao apoio.", "List1");
    if (checks.stopped()) return checks.outcome();

    const double twd = vk * gamaf / (100 * d) * 10;  // MPa
    const double tref = fck <= 50 ? 0.0375 * portable::pow(fck, 2.0 / 3.0) : 0.265 * portable::log(1 + 0.11 * fck);
    const double rho = std::min(as / (100 * d), 0.02);
    // Less than half the bottom steel reaching the support gives no size effect.
    const double k = s.text("List1") == "menor que 50%" ? 1.0 : std::max(1.6 - d / 100, 1.0);
    const double twu1 = (1.2 + 40 * rho) * k * tref;
    s.setText("Text4", formatResult(twd, 3));
    s.setText("Text6", formatResult(twu1, 3));
    s.setText("Text7", twd <= twu1 ? "Dispensa-se o uso de armadura transversal." : "Armadura transversal obrigatória.");
    return Outcome::done().then(EffectKind::EnableControl, printButton("Form21"));
}

}  // namespace

ModuleInfo Form20::info() const {
    ModuleInfo i;
    i.key = "Form20";
    i.unloads = {"FormAjuda"};
    i.printKey = "Form20";
    return i;
}

std::vector<ScreenDecl> Form20::screens() const {
    ScreenBuilder s("Form20", " DIMENSIONAMENTO DE LAJES MACIÇAS");
    addMaterialFrames(s, "Text3", "600");
    s.frame("Frame3", "Seção transversal: b=1 m", 0, 1)
        .box("Text4", "h(cm)=")
        .box("Text5", "d(cm)=")
        .label("Label10", "d = altura útil média ")
        .box("Text6", "Mk(kNm/m)=");
    s.frame("Frame4", "Diâmetro das barras:", 1, 1)
        .list("List1", "Diâmetro das barras:", BarCatalogue::slabBars())
        .tip(BarCatalogue::kBarListTip);
    addCriterionFrames(s, "Critério de ductilidade");
    s.frame("Frame8", "Armadura calculada:", 0, 2, 2, 1)
        .result("Text7", "As(cm2/m)=")
        .result("Text8", "Diâmetro=")
        .result("Text9", "Espaçamento (cm)=")
        .command("Command1", "&CALCULAR", "Calcular a armadura");
    return {s.build()};
}

void Form20::load(FormState& state, const StartDefaults& defaults) const {
    loadMaterialDefaults(state, defaults, {"Text1", "Text2", "Text3", 2});
}

Outcome Form20::press(const std::string& command, FormState& state, Prompter& prompter) const {
    if (command == "Command1" || command == "Form20.Command1") return design(state, prompter);
    return Outcome::stop();
}

void Form20::report(const std::string& key, const FormState& s, ReportWriter& out) const {
    if (key != "Form20") return;
    out.write("Propriedades dos materiais:");
    out.write("Concreto: fck= ", s.text("Text1"), " MPa");
    out.write("Aço: fyk= ", s.text("Text2"), " MPa", tab(30), "Es= ", s.text("Text3"), " GPa");
    out.blank();
    out.write("Coeficientes parciais de segurança:");
    out.write("Gamac= ", s.text("Text13"), blanks(5), "Gamas= ", s.text("Text14"), blanks(5), "Gamaf= ",
              s.text("Text15"));
    out.blank();
    out.write("Espessura da laje h= ", s.text("Text4"), " cm");
    out.write("Altura útil d= ", s.text("Text5"), " cm");
    out.write("Momento fletor de serviço Mk= ", s.text("Text6"), " kNm/m");
    out.blank();
    out.write("Coeficiente de redistribuição de momentos: Beta = ", s.text("List3"));
    const auto criterion = ductilityCriterion(s.text("List2"));
    if (criterion) {
        const double xlim = DuctilityLimit(*criterion, s.number("List3"), s.number("Text1"), s.number("Text2"),
                                           s.number("Text14"), s.number("Text3"));
        const char* line = *criterion == DuctilityCriterion::CEB90     ? "Critério de ductilidade: CEB/90.  xlim/d = "
                           : *criterion == DuctilityCriterion::NBR6118 ? "Critério de ductilidade: NBR-6118.  xlim/d = "
                                                                       : "Critério de ductilidade: Condição balanceada. xlim / d = ";
        out.write(line, formatResult(xlim, 3));
    }
    out.blank();
    out.write("SOLUÇÃO:");
    out.blank();
    out.write("Armadura calculada:   As= ", s.text("Text7"), " cm2/m");
    out.write("Diâmetro = ", s.text("Text8"), " mm");
    out.write("Espaçamento = ", s.text("Text9"), " cm");
}

ModuleInfo Form21::info() const {
    ModuleInfo i;
    i.key = "Form21";
    i.unloads = {"FormAjuda"};
    i.printKey = "Form21";
    return i;
}

std::vector<ScreenDecl> Form21::screens() const {
    ScreenBuilder s("Form21", " VERIFICAÇÃO DA NECESSIDADE DE ESTRIBOS NAS LAJES MACIÇAS");
    s.frame("Frame1", "Dados", 0, 0)
        .box("Text1", "fck(MPa)=", "20")
        .box("Text2", "Vk(kN/m)=")
        .box("Text15", "Gamaf=", "1.4")
        .box("Text3", "d(cm)=")
        .box("Text5", "As (cm2/m)=");
    s.frame("Frame2", "Porcentagem da armadura inferior que chega ao apoio:", 1, 0)
        .list("List1", "Porcentagem da armadura inferior que chega ao apoio:",
              {"menor que 50%", "maior ou igual a 50%"});
    s.frame("Frame3", "Tensões de cisalhamento", 0, 1, 2, 1)
        .result("Text4", "Twd(MPa)=")
        .result("Text6", "Twu1(MPa)=")
        .result("Text7", "")
        .width(40)
        .command("Command1", "&CALCULAR", "Verificar a necessidade de estribos");
    return {s.build()};
}

void Form21::load(FormState& state, const StartDefaults& defaults) const {
    loadMaterialDefaults(state, defaults, {"Text1", "", "", 2});
}

Outcome Form21::press(const std::string& command, FormState& state, Prompter& prompter) const {
    if (command == "Command1" || command == "Form21.Command1") return shear(state, prompter);
    return Outcome::stop();
}

void Form21::report(const std::string& key, const FormState& s, ReportWriter& out) const {
    if (key != "Form21") return;
    out.write("Concreto: fck= ", s.text("Text1"), " MPa");
    out.write("Esforço cortante de serviço Vk= ", s.text("Text2"), " kN/m");
    out.write("Coeficiente parcial de segurança Gamaf= ", s.text("Text15"));
    out.write("Altura útil da laje d= ", s.text("Text3"), " cm");
    out.write("Armadura chegando ao apoio As= ", s.text("Text5"), " cm2/m");
    out.write("A porcentagem de armadura que chega ao apoio é ", s.text("List1"));
    out.blank();
    out.write("RESPOSTA:");
    out.blank();
    out.write("Tensões de cisalhamento de referência:");
    out.write("Tensão solicitante Twd= ", s.text("Text4"), " MPa");
    out.write("Tensão resistente Twu1= ", s.text("Text6"), " MPa");
    out.blank();
    out.write("CONCLUSÃO: ", s.text("Text7"));
}

}  // namespace morve
