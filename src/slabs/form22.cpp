#include "slabs/form22.h"

#include <algorithm>
#include <utility>

#include "app/numbers.h"
#include "reports/report_writer.h"

namespace morve {

namespace {

RegisterModule<Form22> registration;

using Line = std::pair<SlabResult, const char*>;

// Where a case stands on the result screens and what its report says.
struct CaseLayout {
    const char* text;  // the fixed sides, as the report names them
    SupportPattern pattern;
    ResultFrames shown;
    std::array<const char*, kSlabResults> boxes;  // "" where the case has no such result
    std::vector<Line> negatives;
    std::vector<Line> reactions;
};

constexpr SlabEdge S = SlabEdge::Supported, F = SlabEdge::Fixed;

const char* const kRxBoth = "Nos lados lx (y=0 e y=ly): Rx= ";
const char* const kRyBoth = "Nos lados ly (x=0 e x=lx): Ry= ";
const char* const kMxeOne = "Momento negativo em x=0: Mxe= ";
const char* const kMxeBoth = "Momento negativo em x=0 e x=lx: Mxe= ";
const char* const kMyeOne = "Momento negativo em y=0: Mye= ";
const char* const kRxSupported = "No lado lx apoiado (y=ly): Rx= ";
const char* const kRxeFixed = "No lado lx engastado (y=0): Rxe= ";
const char* const kRySupported = "No lado ly apoiado (x=lx): Ry= ";
const char* const kRyeFixed = "No lado ly engastado (x=0): Rye= ";

const std::array<CaseLayout, 6>& layouts() {
    //     w        Mx        My        Mxe       Mye      Rx        Ry        Rxe       Rye
    static const std::array<CaseLayout, 6> table{{
        {"Nenhum lado é engastado", {S, S, S, S}, {"Form22b", {"Frame1", "Frame2"}},
         {"Text5", "Text1", "Text2", "", "", "Text3", "Text4", "", ""}, {},
         {{Rx, kRxBoth}, {Ry, kRyBoth}}},
        {"Lado com x = 0", {F, S, S, S}, {"Form22b", {"Frame4", "Frame5"}},
         {"Text5", "Text8", "Text7", "Text11", "", "Text10", "Text9", "", "Text12"}, {{Mxe, kMxeOne}},
         {{Rx, kRxBoth}, {Ry, kRySupported}, {Rye, kRyeFixed}}},
        {"Lados com x = 0 e x = lx", {F, F, S, S}, {"Form22b", {"Frame6", "Frame7"}},
         {"Text5", "Text14", "Text15", "Text13", "", "Text17", "Text18", "", ""}, {{Mxe, kMxeBoth}},
         {{Rx, kRxBoth}, {Ry, kRyBoth}}},
        {"Lados com x = 0 e y = 0", {F, S, F, S}, {"Form22c", {"Frame1", "Frame2"}},
         {"Text5", "Text14", "Text15", "Text13", "Text1", "Text17", "Text18", "Text2", "Text3"},
         {{Mxe, kMxeOne}, {Mye, kMyeOne}},
         {{Rx, kRxSupported}, {Rxe, kRxeFixed}, {Ry, kRySupported}, {Rye, kRyeFixed}}},
        {"Lados com x = 0, x = lx e y = 0", {F, F, F, S}, {"Form22c", {"Frame4", "Frame5"}},
         {"Text5", "Text8", "Text9", "Text7", "Text4", "Text12", "Text16", "Text11", ""},
         {{Mxe, kMxeBoth}, {Mye, kMyeOne}}, {{Rx, kRxSupported}, {Rxe, kRxeFixed}, {Ry, kRyBoth}}},
        {"Todos os lados são engastados", {F, F, F, F}, {"Form22d", {}},
         {"Text5", "Text8", "Text9", "Text7", "Text4", "Text12", "Text16", "", ""},
         {{Mxe, kMxeBoth}, {Mye, "Momento negativo em y=0 e y=ly: Mye= "}}, {{Rx, kRxBoth}, {Ry, kRyBoth}}},
    }};
    return table;
}

std::vector<ResultFrames> caseFrames() {
    std::vector<ResultFrames> all;
    for (const CaseLayout& c : layouts()) all.push_back(c.shown);
    return all;
}

const char* const kOptions[] = {"Option1", "Option2", "Option3", "Option4", "Option5", "Option6"};

int selectedCase(const FormState& s) {
    for (int i = 0; i < 6; ++i)
        if (s.option(kOptions[i])) return i + 1;
    return 1;
}

bool isSupportMoment(int i) { return i == Mxe || i == Mye; }

RectangularSlabResults plateSlab(int caseNo, double lx, double ly, const SlabLoading& l) {
    const PlateCase& c = plateTable()[caseNo - 1];
    const bool branchA = lx <= ly;
    const double r = branchA ? lx / ly : ly / lx;
    const double span = branchA ? lx : ly;
    const PlateBranch& b = branchA || c.mirrored ? c.a : c.b;
    const SlabRow& row = r < 0.5 ? b.strip : b.fit;
    const SlabRow used = branchA || !c.mirrored ? row : mirror(row);

    std::array<double, kSlabResults> k{};
    for (int i = 0; i < kSlabResults; ++i) k[i] = used[i].empty() ? 0 : used[i](r);
    // A square slab of a symmetric pattern gets equal results both ways; the two
    // fits of a pair differ a little at r = 1.
    if (c.mirrored && r == 1.0)
        for (auto [i, j] : {std::pair{Mx, My}, {Mxe, Mye}, {Rx, Ry}, {Rxe, Rye}}) k[i] = k[j] = (k[i] + k[j]) / 2;

    RectangularSlabResults out;
    for (int i = Mx; i < kSlabResults; ++i) {
        const double scale = i < Rx ? l.p * span * span : l.p * span;
        out.v[i] = (isSupportMoment(i) ? -1 : 1) * k[i] * 0.001 * scale;
    }
    out.v[Cw] = longTermMm(k[Cw] * 0.001 * l.pqp * span * span * span * span / l.d, l);
    return out;
}

RectangularSlabResults grillageSlab(const GrillageCase& c, double lx, double ly, const SlabLoading& l) {
    const double lambda = ly / lx, l2 = lambda * lambda, l4 = l2 * l2;
    // kx = a l^4 / (a l^4 + b) and ky l^2, written so that a slab of any
    // proportions, however extreme, still gives the limits 0 and 1.
    const double kx = c.a / (c.a + c.b / l4), ky = 1 - kx, kyl2 = c.b / (c.a * l2 + c.b / l2);
    const double m = l.p * lx * lx;
    auto share = [](double share, double divisor) { return divisor > 0 ? share / divisor : 0.0; };
    RectangularSlabResults out;
    out.v[Mx] = share(kx, c.mx) * m;
    out.v[My] = share(kyl2, c.my) * m;
    out.v[Mxe] = -share(kx, c.mxe) * m;
    out.v[Mye] = -share(kyl2, c.mye) * m;
    out.v[Rx] = c.rx * ky * l.p * ly;
    out.v[Ry] = c.ry * kx * l.p * lx;
    out.v[Rxe] = c.rxe * ky * l.p * ly;
    out.v[Rye] = c.rye * kx * l.p * lx;
    out.v[Cw] = longTermMm(c.kw / 384 * kx * l.pqp * lx * lx * lx * lx / l.d, l);
    return out;
}

ScreenDecl mainScreen() {
    ScreenBuilder s("Form22", "      LAJES RETANGULARES APOIADAS NOS QUATRO LADOS            CARGA UNIFORME");
    addRectangularSlabFrames(s);
    s.frame("Frame2", "Lados engastados", 0, 2, 3, 1);
    for (int i = 0; i < 6; ++i) {
        s.option(kOptions[i], std::to_string(i + 1) + ": " + layouts()[i].text, "Caso", i == 0);
        s.picture("Picture" + std::to_string(i + 1), 110, 70);
    }
    s.frame("Frame6", "Método de cálculo", 2, 0, 1, 2)
        .command("Command1", "Teoria de Placas", "Calcular a laje pela Teoria de Placas")
        .command("Command2", "Teoria das Grelhas", "Calcular a laje pela Teoria das Grelhas tradicional")
        .command("Command3", "Grelhas com redistribuição",
                 "Calcular a laje pela Teoria das Grelhas considerando redistribuição de momentos");
    return s.build();
}

const char* const kResultNames[kSlabResults] = {"w", "Mx", "My", "Mxe", "Mye", "Rx", "Ry", "Rxe", "Rye"};

// One result frame per kind of result of a case, its boxes in the order the
// screen lists them.
void resultFrames(ScreenBuilder& s, const CaseLayout& c, const std::string& moments,
                  const std::string& reactions) {
    s.frame(moments, "Momentos fletores", 0, 0).label(moments + "L", "Valores em kNm/m:");
    for (int i : {Mx, My, Mxe, Mye})
        if (*c.boxes[i]) s.result(c.boxes[i], std::string(kResultNames[i]) + "=");
    s.frame(reactions, "Reações de apoio", 0, 1).label(reactions + "L", "Valores em kN/m:");
    for (int i : {Rx, Ry, Rxe, Rye})
        if (*c.boxes[i]) s.result(c.boxes[i], std::string(kResultNames[i]) + "=");
}

ScreenDecl resultScreen(const std::string& name, const std::vector<int>& cases) {
    ScreenBuilder s(name, "LAJES RETANGULARES APOIADAS NOS QUATRO LADOS", false);
    for (int c : cases) {
        const CaseLayout& l = layouts()[c - 1];
        const auto& f = l.shown.frames;
        resultFrames(s, l, f.empty() ? "Frame1" : f[0], f.empty() ? "Frame2" : f[1]);
    }
    s.frame("Frame3", "Flecha", 1, 0)
        .label("Label30", "Valores em mm:")
        .result("Text5", "Calculada =")
        .result("Text6", "Admissível =");
    addBackAndPrint(s.frame("Frame8", "", 1, 1).picture("Picture1", 130, 90));
    return s.build();
}

const char* const kResultScreens[] = {"Form22b", "Form22c", "Form22d"};

Outcome calculate(SlabMethod method, FormState& s, Prompter& prompter) {
    CheckSequence checks(prompter);
    checkConcreteService(checks, s);
    checkSlabLoads(checks, s);
    const double lx = s.number("Text6"), ly = s.number("Text7"), h = s.number("Text8");
    checkPositive(checks, lx, "o vão lx", "Text6");
    checkPositive(checks, ly, "o vão ly", "Text7");
    checkSlabThickness(checks, h, "Text8");
    if (checks.stopped()) return checks.outcome();

    const int caseNo = selectedCase(s);
    const CaseLayout& layout = layouts()[caseNo - 1];
    const SlabLoading loading = slabLoading(s, h);
    const RectangularSlabResults r = rectangularSlab(method, caseNo, lx, ly, loading);

    const std::string screen = layout.shown.screen + ".";
    for (int i = 0; i < kSlabResults; ++i)
        if (*layout.boxes[i]) writeResult(s, screen + layout.boxes[i], r.v[i]);
    writeResult(s, screen + "Text6", r.wadm);
    return showResults("Form22", layout.shown);
}

}  // namespace

RectangularSlabResults rectangularSlab(SlabMethod method, int caseNo, double lx, double ly,
                                       const SlabLoading& loading) {
    RectangularSlabResults r;
    if (method == SlabMethod::Plate) r = plateSlab(caseNo, lx, ly, loading);
    else if (method == SlabMethod::Grillage) r = grillageSlab(grillageTable()[caseNo - 1], lx, ly, loading);
    else r = grillageSlab(redistributedGrillageTable()[caseNo - 1], lx, ly, loading);
    r.wadm = admissibleMm(std::min(lx, ly));
    return r;
}

ModuleInfo Form22::info() const {
    ModuleInfo i;
    i.key = "Form22";
    i.unloads = {"FormAjuda", "Form22b", "Form22c", "Form22d"};
    return i;
}

std::vector<ScreenDecl> Form22::screens() const {
    return {mainScreen(), resultScreen("Form22b", {1, 2, 3}), resultScreen("Form22c", {4, 5}),
            resultScreen("Form22d", {6})};
}

void Form22::load(FormState& state, const StartDefaults& defaults) const {
    loadConcreteDefaults(state, defaults);
    hideCaseFrames(state, caseFrames());
}

Outcome Form22::press(const std::string& command, FormState& state, Prompter& prompter) const {
    const std::string c = command.rfind("Form22.", 0) == 0 ? command.substr(7) : command;
    if (c == "Command1") return calculate(SlabMethod::Plate, state, prompter);
    if (c == "Command2") return calculate(SlabMethod::Grillage, state, prompter);
    if (c == "Command3") return calculate(SlabMethod::RedistributedGrillage, state, prompter);
    return resultScreenCommand(command, "Form22", caseFrames()).value_or(Outcome::stop());
}

void Form22::report(const std::string& key, const FormState& s, ReportWriter& out) const {
    const CaseLayout& c = layouts()[selectedCase(s) - 1];
    if (key != c.shown.screen) return;
    const std::string screen = key + ".";
    auto value = [&](SlabResult i) { return s.text(screen + c.boxes[i]); };
    out.write("Lados Engastados:");
    out.write(c.text);
    out.blank();
    reportConcrete(out, s);
    reportLoads(out, s);
    reportSpans(out, s, "Text6", "Text7");
    reportThickness(out, s, "Text8");
    out.write("RESULTADOS:");
    out.blank();
    out.write("Flecha final no centro da laje:");
    out.write("Calculada: Wtot= ", value(Cw), " mm", tab(40), "Admissível: Wadm= ", s.text(screen + "Text6"), " mm");
    out.blank();
    out.write("Momentos fletores positivos:");
    out.write("Na direção x: Mx= ", value(Mx), " kNm/m", tab(40), "Na direção y: My= ", value(My), " kNm/m");
    out.blank();
    for (const auto& [i, label] : c.negatives) out.write(label, value(i), " kNm/m");
    if (!c.negatives.empty()) out.blank();
    out.write("Reações de apoio:");
    for (const auto& [i, label] : c.reactions) out.write(label, value(i), " kN/m");
}

Drawing Form22::drawing(const std::string& picture, const FormState& state) const {
    // The pictures beside the options show their own pattern; those of the result
    // screens the pattern calculated.
    for (int i = 1; i <= 6; ++i)
        if (picture == "Form22.Picture" + std::to_string(i)) return supportDrawing(layouts()[i - 1].pattern);
    for (const char* screen : kResultScreens)
        if (picture == screen + std::string(".Picture1")) return supportDrawing(layouts()[selectedCase(state) - 1].pattern);
    return {};
}

}  // namespace morve
