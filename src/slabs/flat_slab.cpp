#include "slabs/flat_slab.h"

#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <sstream>

#include "app/numbers.h"
#include "basis/checks.h"
#include "basis/messages.h"
#include "reports/report_writer.h"
#include "slabs/slab_basis.h"

namespace morve {

namespace {

RegisterModule<Form40> registerForm40;

const std::string kCentres = "Form40b.Grade1", kSections = "Form40b.Grade2", kLoads = "Form40c.Grade1";
const char* const kAnalysed = "Form40.analysed";
const char* const kShown = "Form40d.shown";

const std::string kNoColumns =
    "Não há pilares no pavimento. A laje será calculada como uma laje retangular simplesmente apoiada "
    "nos quatro lados. Clique no botão CALCULAR ou forneça o número de pilares.";
const std::string kMaxColumns = "Este programa é limitado ao máximo de 40 pilares.";
const std::string kNotInner =
    "Há um ou mais pilares fora da laje. Todos os pilares devem ser internos. Revise as coordenadas dos "
    "pilares.";
const std::string kThinFlatSlab =
    "Segundo a NBR-6118, a espessura mínima das lajes lisas é 16 cm.   Clique em OK para corrigir a "
    "espessura. Clique em CANCELAR para continuar.";
const std::string kCountChanged =
    "Você alterou o número de pilares. Clique no botão 'Dados dos pilares' para atualização dos dados.";
const std::string kOutside = "Há um ou mais pilares fora da laje. Revise as coordenadas dos pilares.";
const std::string kSamePlace = "Há um ou mais pilares na mesma posição. Revise as coordenadas dos pilares.";
const std::string kNullSection = "Há um ou mais pilares com dimensão nula. Revise as dimensões dos pilares.";
const std::string kSmallSide =
    "Segundo a NBR-6118, a menor dimensão dos pilares é 19 cm.   Clique em OK para corrigir as dimensões "
    "dos pilares. Clique em CANCELAR para continuar.";
const std::string kSmallArea =
    "Segundo a NBR-6118, a área mínima da seção transversal dos pilares é de 360 cm2.   Clique em OK para "
    "corrigir as dimensões dos pilares. Clique em CANCELAR para continuar.";
const std::string kSingular = "Matriz singular. Revise os dados.";
const std::string kCalculateFirst = "Clique no botão 'CALCULAR' para resolver a estrutura.";

// A count typed in a box, truncated; far values stay far, without overflow.
int countIn(const FormState& s, const std::string& box) {
    const double v = s.number(box);
    if (!(std::abs(v) < 1e6)) return v < 0 ? -1000000 : 1000000;
    return static_cast<int>(std::trunc(v));
}

int rowsOf(const FormState& s, const std::string& grid) {
    return std::max(0, static_cast<int>(s.grid(grid).size()) - 1);
}

// The column tables take n rows, keeping what was typed in the rows that stay.
void sizeColumnTables(FormState& s, int n) {
    for (const std::string& name : {kCentres, kSections}) s.resizeGrid(name, static_cast<std::size_t>(n));
}

// The columns as typed, centres turned to cm.
std::vector<FlatColumn> columnsIn(const FormState& s) {
    std::vector<FlatColumn> cs;
    const int n = std::min(rowsOf(s, kCentres), rowsOf(s, kSections));
    for (int r = 1; r <= n; ++r)
        cs.push_back({s.cellNumber(kCentres, r, 1) * 100, s.cellNumber(kCentres, r, 2) * 100,
                      s.cellNumber(kSections, r, 1), s.cellNumber(kSections, r, 2)});
    return cs;
}

void checkSpans(CheckSequence& checks, const FormState& s) {
    checkPositive(checks, s.number("Text5"), "o vão lx", "Text5");
    checkPositive(checks, s.number("Text6"), "o vão ly", "Text6");
}

Outcome columnData(FormState& s, Prompter& prompter) {
    const int n = countIn(s, "Text7");
    CheckSequence checks(prompter);
    if (n <= 0) {
        // A slab without columns is calculated as it is; the tables are emptied so
        // that "CALCULAR" finds them in step with the count.
        sizeColumnTables(s, 0);
        checks.warnIf(true, kNoColumns, "Text7");
    }
    checks.warnIf(n > kFlatMaxColumns, kMaxColumns, "Text7");
    checkSpans(checks, s);
    if (checks.stopped()) return checks.outcome();
    sizeColumnTables(s, n);
    return switchTo("Form40", "Form40b");
}

Outcome columnsTyped(FormState& s, Prompter& prompter) {
    const double a = s.number("Text5") * 100, b = s.number("Text6") * 100;
    bool inner = true;
    for (const FlatColumn& c : columnsIn(s)) inner = inner && c.x > 0 && c.x < a && c.y > 0 && c.y < b;
    CheckSequence checks(prompter);
    checks.warnIf(!inner, kNotInner);
    if (checks.stopped()) return checks.outcome();
    // New columns call for a new calculation before the diagrams.
    return switchTo("Form40b", "Form40").then(EffectKind::DisableControl, "Form40.Command2");
}

std::optional<FlatSlab> readSlab(const FormState& s, CheckSequence& checks) {
    checkConcreteService(checks, s);
    const double h = s.number("Text4");
    checkPositive(checks, h, "a espessura da laje", "Text4");
    checks.confirmIf(h < 16, kThinFlatSlab, "Text4");
    checkSpans(checks, s);
    checkPositive(checks, s.number("Text8"), "a carga permanente", "Text8");
    checkPositive(checks, s.number("Text9"), "a carga acidental", "Text9");
    checks.warnIf(countIn(s, "Text7") != rowsOf(s, kCentres), kCountChanged, "Command1");
    if (checks.stopped()) return std::nullopt;

    FlatSlab slab;
    slab.a = s.number("Text5") * 100;
    slab.b = s.number("Text6") * 100;
    slab.columns = columnsIn(s);
    bool inside = true, apart = true, sized = true, sides = true, areas = true;
    for (std::size_t i = 0; i < slab.columns.size(); ++i) {
        const FlatColumn& c = slab.columns[i];
        inside = inside && c.x >= 0 && c.x <= slab.a && c.y >= 0 && c.y <= slab.b;
        for (std::size_t j = 0; j < i; ++j)
            apart = apart && !(std::abs(c.x - slab.columns[j].x) < 1 && std::abs(c.y - slab.columns[j].y) < 1);
        sized = sized && c.hx > 0 && c.hy > 0;
        sides = sides && c.hx >= 19 && c.hy >= 19;
        areas = areas && c.hx * c.hy >= 360;
    }
    checks.warnIf(!inside, kOutside).warnIf(!apart, kSamePlace).warnIf(!sized, kNullSection);
    checks.confirmIf(!sides, kSmallSide, "Command1").confirmIf(!areas, kSmallArea, "Command1");
    if (checks.stopped()) return std::nullopt;

    // The effective modulus of the concrete under creep, kN/cm2; the loads in kN/cm2.
    const double e = s.number("Text2") / 10 / (1 + s.number("Text3"));
    slab.d = h * h * h * e / (12 * (1 - kSlabPoisson * kSlabPoisson));
    const double g = s.number("Text8"), q = s.number("Text9");
    slab.p = (g + q) / 10000;
    slab.pqp = (g + 0.3 * q) / 10000;
    return slab;
}

// The analysed slab kept as text, every number with the 17 significant digits
// that read back as the same double; printf and strtod round exactly in every C
// library we build with, so the text is the same on every platform.
std::string keep(const FlatSlab& slab) {
    std::string out;
    auto put = [&](double v) {
        char buf[32];
        std::snprintf(buf, sizeof buf, "%.17g", v);
        out += buf;
        out += ' ';
    };
    for (double v : {slab.a, slab.b, slab.d, slab.p, slab.pqp}) put(v);
    for (const FlatColumn& c : slab.columns)
        for (double v : {c.x, c.y, c.hx, c.hy}) put(v);
    return out;
}

std::string rounded(double v) { return formatResult(v, 2); }

void writeResults(FormState& s, const FlatResults& r) {
    GridRows& loads = s.grid(kLoads);
    loads.resize(1);
    for (std::size_t j = 0; j < r.columnLoads.size(); ++j)
        loads.push_back({std::to_string(j + 1), rounded(r.columnLoads[j])});
    const double edges[] = {r.r1, r.r2, r.r3, r.r4};
    for (int k = 0; k < 4; ++k) s.setText("Form40c.Text" + std::to_string(k + 1), rounded(edges[k]));
}

Outcome calculate(FormState& s, Prompter& prompter) {
    CheckSequence checks(prompter);
    const std::optional<FlatSlab> slab = readSlab(s, checks);
    if (!slab) return checks.outcome();
    const FlatResults r = analyseFlatSlab(*slab);
    checks.warnIf(r.status == FlatStatus::Singular, kSingular)
        .warnIf(r.status == FlatStatus::NotFinite, msg::kOutOfRange);
    if (checks.stopped()) return checks.outcome();
    writeResults(s, r);
    s.setVar(kAnalysed, keep(*slab));
    return Outcome::done()
        .then(EffectKind::EnableControl, "Form40.Command2")
        .then(EffectKind::EnableControl, printButton("Form40"))
        .then(EffectKind::HideScreen, "Form40")
        .then(EffectKind::ShowScreen, "Form40c");
}

Outcome showDiagrams(FormState& s, Prompter& prompter) {
    CheckSequence checks(prompter);
    checks.warnIf(!analysedSlab(s), kCalculateFirst, "Command3");
    if (checks.stopped()) return checks.outcome();
    return switchTo("Form40", "Form40d");
}

const struct {
    const char* command;
    FlatQuantity quantity;
    const char* name;
} kSurfaceCommands[] = {{"Form40d.Command3", FlatQuantity::Mx, "Mx"},
                        {"Form40d.Command4", FlatQuantity::My, "My"},
                        {"Form40d.Command5", FlatQuantity::Mxy, "Mxy"},
                        {"Form40d.Command6", FlatQuantity::Deflection, "w"}};

FlatQuantity shownQuantity(const FormState& s) {
    for (const auto& c : kSurfaceCommands)
        if (s.var(kShown) == c.name) return c.quantity;
    return FlatQuantity::Mx;
}

GridDecl columnTable(std::vector<std::string> header, KeyFilter filter) {
    GridDecl g;
    g.header = std::move(header);
    g.maxRows = kFlatMaxColumns;
    g.filter = filter;
    return g;
}

}  // namespace

std::optional<FlatSlab> analysedSlab(const FormState& s) {
    std::istringstream in(s.var(kAnalysed));
    std::vector<double> v;
    for (std::string word; in >> word;) {
        char* end = nullptr;
        const double x = std::strtod(word.c_str(), &end);
        if (end != word.c_str() + word.size() || !std::isfinite(x)) return std::nullopt;
        v.push_back(x);
    }
    if (v.size() < 5 || (v.size() - 5) % 4 != 0) return std::nullopt;
    FlatSlab slab{v[0], v[1], v[2], v[3], v[4], {}};
    for (std::size_t k = 5; k < v.size(); k += 4) slab.columns.push_back({v[k], v[k + 1], v[k + 2], v[k + 3]});
    return slab;
}

ModuleInfo Form40::info() const {
    ModuleInfo i;
    i.key = "Form40";
    i.unloads = {"Form40d", "Form40c", "Form40b", "FormAjuda", "FormAbrir", "FormSalvar"};
    i.printKey = "Form40";
    i.calculate = "Command3";
    i.busy = {{"Form40.Command3", "Form40.Command13"}};
    return i;
}

std::vector<std::string> Form40::projectFields() const {
    std::vector<std::string> f;
    for (int k = 1; k <= 9; ++k) f.push_back("Form40.Text" + std::to_string(k));
    f.push_back(kCentres);
    f.push_back(kSections);
    return f;
}

std::vector<ScreenDecl> Form40::screens() const {
    ScreenBuilder main("Form40", "CÁLCULO DE LAJES LISAS APOIADAS EM VIGAS DE BORDA RÍGIDAS");
    addConcreteFrame(main, "Frame1", 0, 0);
    main.frame("Frame2", "Laje", 0, 1)
        .box("Text4", "Espessura h =", "", "cm")
        .box("Text5", "Vão lx =", "", "m")
        .box("Text6", "Vão ly =", "", "m");
    main.frame("Frame3", "Pilares", 1, 0)
        .box("Text7", "Número de pilares internos n =", "", "", KeyFilter::Digit)
        .command("Command1", "Dados dos pilares");
    main.frame("Frame4", "Cargas de serviço (kN/m2)", 1, 1)
        .box("Text8", "Permanente=")
        .box("Text9", "Acidental=");
    main.frame("Frame5", "", 2, 0, 1, 2)
        .command("Command3", "&CALCULAR", "Calcular a laje")
        .command("Command2", "Momentos e Flecha", "Ver diagramas de momentos e flecha")
        .disabled()
        .command("Command13", "Calculando...Aguarde.")
        .hidden();

    ScreenBuilder columns("Form40b", "Dados dos pilares", false);
    columns.frame("Frame1", "Dados dos pilares", 0, 0)
        .label("Label1", "Coordenadas do centro dos pilares (metros)")
        .grid("Grade1", columnTable({"Pilar", "X", "Y"}, KeyFilter::PositiveNumber))
        .label("Label2", "Dimensões das seções dos pilares (cm)")
        .grid("Grade2", columnTable({"Pilar", "hx", "hy"}, KeyFilter::PositiveNumber))
        .label("Label3", msg::kGridsArrows)
        .command("Command1", "&OK");

    GridDecl loads;
    loads.header = {"Pilar", "Carga (kN)"};
    loads.filter = KeyFilter::None;
    ScreenBuilder floor("Form40c", "Pavimento", false);
    floor.frame("Frame1", "", 0, 0, 2, 1).picture("Picture1", 520, 420);
    floor.frame("Frame2", "Cargas nos pilares", 0, 1).grid("Grade1", loads);
    floor.frame("Frame3", "Reações totais nos lados apoiados (kN)", 1, 1)
        .result("Text1", "Em y=ly: R1=", "kN")
        .result("Text2", "Em y=0: R2=", "kN")
        .result("Text3", "Em x=0: R3=", "kN")
        .result("Text4", "Em x=lx: R4=", "kN")
        .command("Command1", "&Voltar");

    ScreenBuilder diagrams("Form40d", "Momentos e Flecha", false);
    diagrams.frame("Frame1", "", 0, 0).picture("Picture1", 640, 480);
    diagrams.frame("Frame2", "", 0, 1)
        .command("Command3", "Momentos Mx", "Momentos fletores segundo a direção x")
        .command("Command4", "Momentos My", "Momentos fletores segundo a direção y")
        .command("Command5", "Momentos Mxy", "Momentos torçores")
        .command("Command6", "Flechas", "Flechas da laje")
        .command("Command1", "Im&primir", "Imprimir o desenho")
        .command("Command15", "&Salvar", "Salvar a imagem em arquivo")
        .command("Command2", "Fechar");
    return {main.build(), columns.build(), floor.build(), diagrams.build()};
}

void Form40::load(FormState& state, const StartDefaults& defaults) const { loadConcreteDefaults(state, defaults); }

Outcome Form40::press(const std::string& command, FormState& s, Prompter& prompter) const {
    const std::string c = s.qualify(command);
    if (c == "Form40.Command1") return columnData(s, prompter);
    if (c == "Form40.Command3") return calculate(s, prompter);
    if (c == "Form40.Command2") return showDiagrams(s, prompter);
    if (c == "Form40b.Command1") return columnsTyped(s, prompter);
    if (c == "Form40c.Command1") return switchTo("Form40c", "Form40");
    if (c == "Form40d.Command2") return switchTo("Form40d", "Form40");
    for (const auto& sc : kSurfaceCommands)
        if (c == sc.command) {
            s.setVar(kShown, sc.name);
            return Outcome::done();
        }
    if (c == "Form40d.Command15") return Outcome::done().then(EffectKind::SavePicture, "Form40d.Picture1");
    if (c == "Form40d.Command1") return Outcome::done().then(EffectKind::PrintPicture, "Form40d.Picture1");
    return Outcome::stop();
}

Drawing Form40::drawing(const std::string& picture, const FormState& s) const {
    const std::string p = s.qualify(picture);
    if (p != "Form40c.Picture1" && p != "Form40d.Picture1") return {};
    const std::optional<FlatSlab> slab = analysedSlab(s);
    if (!slab) return {};
    const FlatResults r = analyseFlatSlab(*slab);
    if (r.status != FlatStatus::Done) return {};
    if (p == "Form40c.Picture1") return flatFloorDrawing(*slab, r.columnLoads);
    return flatSurfaceDrawing(r, shownQuantity(s), slab->a / 100, slab->b / 100);
}

void Form40::report(const std::string& key, const FormState& state, ReportWriter& out) const {
    if (key == "Form40") writeForm40Report(state, out);
}

}  // namespace morve
