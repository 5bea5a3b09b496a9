#include "frames/wind_form32.h"

#include <array>
#include <cmath>
#include <optional>

#include "app/grid_tables.h"
#include "app/numbers.h"
#include "basis/checks.h"
#include "frames/wind_drag.h"
#include "frames/wind_floor.h"
#include "frames/wind_texts.h"
#include "reports/report_writer.h"
#include "basis/messages.h"

namespace morve {

namespace {

RegisterModule<Form32> registerForm32;

const std::string kPanels = "Form32b.Grade1", kForces = "Form32.Grade1";
constexpr int kMaxPanels = 50;
// Columns of the panel table after the panel's number.
enum PanelColumn { kX = 1, kY, kInclination, kStiffness };
// Results the screens do not show but the report prints.
const std::string kFxVar = "Form32.Fx", kFyVar = "Form32.Fy";


int panelRows(const FormState& s) { return std::max(0, static_cast<int>(s.grid(kPanels).size()) - 1); }

Outcome panelData(FormState& s, Prompter& prompter) {
    const int n = countIn(s, "Text2");
    CheckSequence checks(prompter);
    checks.warnIf(n <= 0, txt32::kPanelCount, "Form32.Text2").warnIf(n > kMaxPanels, txt32::kMaxPanels, "Form32.Text2");
    if (checks.stopped()) return checks.outcome();
    sizeTable(s, kPanels, n, true);
    return switchTo("Form32", "Form32b");
}

bool shown(double v) { return std::abs(v) < 1e300; }

struct BuildingData {
    double a = 0, b = 0, h = 0;
    std::vector<BracingPanel> panels;
    double z = 0, below = 0, above = 0;
    double vo = 0, angle = 0, s1 = 0, s3 = 0;
    RoughnessParameters roughness;
};

// Every check of "CALCULAR" on the typed data, in its order.
std::optional<BuildingData> readBuilding(const FormState& s, CheckSequence& checks) {
    BuildingData d;
    const int n = countIn(s, "Text2");
    checks.warnIf(n <= 0, txt32::kBracingCount, "Form32.Text2")
        .warnIf(n != panelRows(s), txt32::kUpdatePanels, "Form32.Command8");
    d.a = s.number("Text1"), d.b = s.number("Text3"), d.h = s.number("Text4");
    checks.warnIf(!(d.a > 0), txt32::kFaceA, "Form32.Text1")
        .warnIf(!(d.b > 0), txt32::kFaceB, "Form32.Text3")
        .warnIf(!(d.h > 0), txt32::kHeight, "Form32.Text4");
    if (checks.stopped()) return std::nullopt;
    for (int i = 1; i <= n && !checks.stopped(); ++i) {
        const BracingPanel p{s.cellNumber(kPanels, i, kX), s.cellNumber(kPanels, i, kY),
                             s.cellNumber(kPanels, i, kInclination), s.cellNumber(kPanels, i, kStiffness)};
        // A negative stiffness cannot be typed; one that comes from elsewhere is as
        // unusable as none.
        checks.warnIf(!(p.k > 0), txt32::kZeroStiffness, "Form32.Command8")
            .warnIf(!(p.inclination >= 0 && p.inclination <= 90), txt32::kAlpha, "Form32.Command8");
        d.panels.push_back(p);
    }
    d.z = s.number("Form32b.Text1"), d.below = s.number("Form32b.Text2"), d.above = s.number("Form32b.Text3");
    checks.warnIf(!(d.z > 0), txt32::kFloorZ, "Form32b.Text1")
        .warnIf(!(d.below > 0), txt32::kStoreyBelow, "Form32b.Text2")
        .warnIf(!(d.above > 0), txt32::kStoreyAbove, "Form32b.Text3")
        .warnIf(d.below > d.z, txt32::kBelowOverZ, "Form32b.Text2");
    d.vo = s.number("Form32c.Text1"), d.angle = s.number("Form32c.Text2");
    d.s1 = s.number("Form32c.Text3"), d.s3 = s.number("Form32c.Text4");
    checks.warnIf(!(d.vo > 0), txt32::kBasicSpeed, "Form32c.Text1")
        .warnIf(!(d.angle >= 0 && d.angle <= 360), txt32::kAngle, "Form32c.Text2")
        .warnIf(!(d.s1 > 0), txt32::kS1, "Form32c.Text3")
        .askIf(d.s1 < 0.9, txt32::kS1Low, "Form32c.Text3")
        .warnIf(!(d.s3 > 0), txt32::kS3, "Form32c.Text4")
        .askIf(d.s3 < 0.83, txt32::kS3Low, "Form32c.Text4");
    const std::string category = s.text("Form32c.List1"), buildingClass = s.text("Form32c.List2");
    const std::optional<RoughnessParameters> r = roughnessParameters(category, buildingClass);
    checks.warnIf(!roughnessParameters(category, "A"), txt32::kCategory, "Form32c.List1")
        .warnIf(!r, txt32::kClass, "Form32c.List2");
    if (checks.stopped()) return std::nullopt;
    d.roughness = *r;
    return d;
}

// Cax and Cay: from the chart chosen, each for its own wind direction, or as typed.
std::optional<std::array<double, 2>> dragCoefficients(const FormState& s, const BuildingData& d,
                                                      CheckSequence& checks) {
    if (s.option("Form32c.Option3")) {
        const double cax = s.number("Form32c.Text5"), cay = s.number("Form32c.Text6");
        checks.warnIf(!(cax > 0 && cay > 0 && shown(cax) && shown(cay)), txt32::kTypedDrag, "Form32c.Text5");
        if (checks.stopped()) return std::nullopt;
        return std::array<double, 2>{cax, cay};
    }
    const bool high = s.option("Form32c.Option2");
    const auto read = [high](double faces, double height) {
        return high ? DragHighTurbulence(faces, height) : DragLowTurbulence(faces, height);
    };
    // The wind along x meets the face B wide across it, the building being A deep
    // along it: Cax is read with l1/l2 = B/A and h/l1 = H/B; Cay the other way round.
    const DragReading x = read(d.b / d.a, d.h / d.b), y = read(d.a / d.b, d.h / d.a);
    // A plan outside the charts is told before a height outside them.
    const auto either = [&](DragStatus status) { return x.status == status || y.status == status; };
    checks.warnIf(either(DragStatus::FacesOutside), txt32::kFacesOutside)
        .warnIf(either(DragStatus::HeightOutside), txt32::kHeightOutside);
    const double cax = x.ca, cay = y.ca;
    if (checks.stopped()) return std::nullopt;
    // The forces use the coefficients as the boxes show them, so that the report
    // can be followed by hand.
    return std::array<double, 2>{readNumber(formatResult(cax)), readNumber(formatResult(cay))};
}

Outcome calculate(FormState& s, Prompter& prompter) {
    CheckSequence checks(prompter);
    const std::optional<BuildingData> d = readBuilding(s, checks);
    if (!d) return checks.outcome();
    const std::optional<std::array<double, 2>> ca = dragCoefficients(s, *d, checks);
    if (!ca) return checks.outcome();

    const double q = windPressure(d->vo, d->s1, d->s3, d->roughness, d->z);
    const FloorLoad load = floorWindLoad({(*ca)[0], (*ca)[1], q, d->a, d->b, (d->above + d->below) / 2, d->angle,
                                         s.number("Form32c.List3"), s.number("Form32c.List4")});
    bool finite = shown(d->z) && shown(load.fx) && shown(load.fy) && shown(load.torque);
    const FloorShare share = distributeToPanels(d->panels, load);
    for (double f : share.forces) finite = finite && shown(f);
    checks.warnIf(share.status == FloorStatus::NotFinite || (share.status == FloorStatus::Solved && !finite),
                  msg::kOutOfRange, "Form32.Command8")
        .warnIf(share.status == FloorStatus::Singular, msg::kSingular, "Form32.Command8");
    if (checks.stopped()) return checks.outcome();

    if (!s.option("Form32c.Option3")) {
        s.setText("Form32c.Text5", formatResult((*ca)[0]));
        s.setText("Form32c.Text6", formatResult((*ca)[1]));
    }
    s.setText("Text5", formatResult(d->z));
    GridRows& forces = s.grid(kForces);
    forces.resize(1);
    for (std::size_t i = 0; i < share.forces.size(); ++i)
        forces.push_back({std::to_string(i + 1), formatResult(share.forces[i])});
    s.setVar(kFxVar, formatResult(load.fx));
    s.setVar(kFyVar, formatResult(load.fy));
    return Outcome::done().then(EffectKind::EnableControl, printButton("Form32"));
}

GridDecl panelTable() {
    GridDecl g;
    g.header = {"Painel", "Centro x", "Centro y", "Inclinação", "Rigidez K"};
    g.maxRows = kMaxPanels;
    return g;
}

GridDecl forceTable() {
    GridDecl g;
    g.header = {"Painel", "Força (kN)"};
    g.filter = KeyFilter::None;
    return g;
}

}  // namespace

ModuleInfo Form32::info() const {
    ModuleInfo i;
    i.key = "Form32";
    i.unloads = {"FormAjuda", "FormAbrir", "FormSalvar", "Form32b", "Form32c"};
    i.printKey = "Form32";
    i.calculate = "Command3";
    return i;
}

std::vector<ScreenDecl> Form32::screens() const {
    ScreenBuilder main("Form32", "DISTRIBUIÇÃO DAS FORÇAS DO VENTO PARA OS PAINÉIS DE CONTRAVENTAMENTO");
    main.frame("Frame1", "Dimensões do edifício", 0, 0)
        .box("Text1", "A (m) =")
        .tip("Dimensão da fachada segundo a direção x")
        .box("Text3", "B (m) =")
        .tip("Dimensão da fachada segundo a direção y")
        .box("Text4", "H (m) =")
        .tip("Altura do edifício");
    main.frame("Frame2", "Painéis de contraventamento", 0, 1)
        .box("Text2", "n =", "10", "", KeyFilter::Digit)
        .tip("Número de painéis")
        .command("Command8", "Dados do contraventamento")
        .command("Command4", "Dados do vento")
        .command("Command3", "&CALCULAR");
    main.frame("Frame3", "Forças nos painéis", 1, 0, 1, 2)
        .result("Text5", "No nível  Z (m) =")
        .grid("Grade1", forceTable());

    ScreenBuilder panels("Form32b", "Dados do contraventamento", false);
    panels.frame("Frame1", "Painéis de contraventamento (centro em m, inclinação em graus, rigidez em kN/m)", 0, 0, 1, 2).grid("Grade1", panelTable());
    panels.frame("Frame2", "Piso em estudo", 1, 0)
        .box("Text1", "Altura do piso para cálculo: Z (m) =")
        .box("Text2", "hi (m) =")
        .tip("Altura do andar inferior")
        .box("Text3", "hs (m) =")
        .tip("Altura do andar superior")
        .label("Label3", "Altura de influência: L=(hs+hi)/2");
    panels.frame("Frame3", "", 1, 1)
        .label("Label1", "Inclinação: ângulo do plano do painel com o eixo x, entre 0 e 90 graus")
        .label("Label2", msg::kGridsArrows)
        .command("Command1", "OK");

    ScreenBuilder wind("Form32c", "Dados do vento", false);
    wind.frame("Frame1", "Vento", 0, 0)
        .box("Text1", "Velocidade básica : Vo (m/s) =")
        .label("Label1", "Ângulo de incidência do vento com o eixo x:")
        .box("Text2", "(graus) =", "0")
        .box("Text3", "Fator topográfico S1 =", "1")
        .box("Text4", "Fator estatístico S3 =", "1")
        .list("List1", "Rugosidade do terreno:  Categoria =", {"I", "II", "III", "IV", "V"})
        .list("List2", "Classe da edificação =", {"A", "B", "C"});
    const std::vector<std::string> eccentricities = {"-15.0", "-10.0", "-7.5", "+7.5", "+10.0", "+15.0"};
    wind.frame("Frame2", "Coeficientes de arrasto", 0, 1)
        .option("Option1", "Baixa turbulência", "Arrasto", true)
        .option("Option2", "Alta turbulência", "Arrasto")
        .option("Option3", "Fornecer os valores", "Arrasto")
        .box("Text5", "Cax=")
        .box("Text6", "Cay=");
    wind.frame("Frame3", "Excentricidades (%)", 1, 0)
        .list("List3", "ea/A=", eccentricities)
        .list("List4", "eb/B=", eccentricities);
    wind.frame("Frame4", "", 1, 1).command("Command1", "OK");

    return {main.build(), panels.build(), wind.build()};
}

Outcome Form32::press(const std::string& command, FormState& s, Prompter& prompter) const {
    const std::string c = s.qualify(command);
    if (c == "Form32.Command8") return panelData(s, prompter);
    if (c == "Form32.Command4") return switchTo("Form32", "Form32c");
    if (c == "Form32.Command3") return calculate(s, prompter);
    if (c == "Form32b.Command1") return switchTo("Form32b", "Form32");
    if (c == "Form32c.Command1") return switchTo("Form32c", "Form32");
    return Outcome::stop();
}

void Form32::report(const std::string& key, const FormState& state, ReportWriter& out) const {
    if (key == "Form32") writeForm32Report(state, out);
}

void writeForm32Report(const FormState& s, ReportWriter& out) {
    auto t = [&](const std::string& box) { return s.text(box); };
    auto cell = [&](const std::string& grid, std::size_t r, std::size_t c) {
        const GridRows& g = s.grid(grid);
        return r < g.size() && c < g[r].size() ? g[r][c] : std::string();
    };
    out.write("Dimensões do edifício em planta:");
    out.write("Segundo a direção x: A= ", t("Text1"));
    out.write("Segundo a direção y: B= ", t("Text3"));
    out.write("Altura do edifício: H= ", t("Text4"));
    out.blank();
    out.write("Dados dos painéis de contraventamento:");
    for (std::size_t r = 1; r < s.grid(kPanels).size(); ++r)
        out.write("Painel= ", cell(kPanels, r, 0), tab(12), "Centro x= ", cell(kPanels, r, kX), tab(30), "Centro y = ",
                  cell(kPanels, r, kY), tab(48), "Rigidez K= ", cell(kPanels, r, kStiffness), " kN/m", tab(74),
                  "Inclinação = ", cell(kPanels, r, kInclination), " graus");
    out.blank();
    out.write("Dados do piso em estudo:");
    out.write("Altura do piso: Z= ", t("Form32b.Text1"));
    out.write("Altura do andar inferior: hi= ", t("Form32b.Text2"));
    out.write("Altura do andar superior: hs= ", t("Form32b.Text3"));
    out.blank();
    out.write("Dados do vento:");
    out.write("Velocidade básica: Vo= ", t("Form32c.Text1"), " m/s");
    out.write("Ângulo de incidência: teta= ", t("Form32c.Text2"));
    out.write("Fator topográfico: S1= ", t("Form32c.Text3"));
    out.write("Rugosidade do terreno: Categoria ", t("Form32c.List1"));
    out.write("Edificação: Classe ", t("Form32c.List2"));
    out.write("Fator estatístico: S3= ", t("Form32c.Text4"));
    out.blank();
    out.write("Excentricidades das forças de arrasto:");
    out.write("Segundo a direção x: eb/B= ", t("Form32c.List4"), " %");
    out.write("Segundo a direção y: ea/A= ", t("Form32c.List3"), " %");
    out.blank();
    out.write("RESSULTADOS:");
    out.write("Coeficientes de arrasto: Cax= ", t("Form32c.Text5"), tab(44), "Cay= ", t("Form32c.Text6"));
    out.write("Forças de arrasto resultantes no nível do piso:");
    out.write("Na direção x: Fx= ", s.var(kFxVar), " kN");
    out.write("Na direção y: Fy= ", s.var(kFyVar), " kN");
    out.blank();
    out.write("Forças nos painéis de contraventamento:");
    for (std::size_t r = 1; r < s.grid(kForces).size(); ++r)
        out.write("Painel= ", cell(kForces, r, 0), tab(12), "Força = ", cell(kForces, r, 1), " kN");
}

}  // namespace morve
