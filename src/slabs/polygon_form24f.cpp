#include "slabs/polygon_form24f.h"

#include <cmath>
#include <cstdio>
#include <sstream>

#include "app/module.h"
#include "app/numbers.h"
#include "basis/checks.h"
#include "basis/messages.h"
#include "reports/report_writer.h"
#include "slabs/polygon_screens.h"
#include "slabs/slab_basis.h"

namespace morve {

namespace {

const std::string kFewVertices = "O número de vértices da poligonal deve ser maior ou igual a 3.";
const std::string kManyVertices = "Este programa está limitado a lajes poligonais com um máximo de 29 vértices.";
const std::string kBadSide = "Lado com condição de contorno inválida.";
const std::string kChooseMesh = "Escolha uma discretização.";
const std::string kRefineFirst = "É necessário escolher uma discretização inicial antes de refinar a malha.";
const std::string kUpdateVertices = "Atualize as coordenadas dos vértices da poligonal.";
const std::string kBadPolygon = "Erro! Verifique as coordenadas dos vértices da poligonal.";
const std::string kRepeated = "Erro! Verifique as coordenadas dos vértices da poligonal. (Vértices repetidos)";
const std::string kUnstable = "O gerador apresenta instabilidade numérica. Utilize uma malha mais grossa.";
const std::string kNoFiner = "Impossível refinar mais.";
const std::string kPositiveRatio = "Forneça um valor positivo para a relação J/J1.";
const std::string kRatioAboveOne = "A relação J/J1 deve ser menor ou igual a 1.";
const std::string kBandTooWide = "Impossível resolver com essa malha. Escolha uma malha mais grosseira.";

// The count in force, the picture Form24h shows, and the case last analysed.
const std::string kDivisionsVar = "Form24f.divisions", kPictureVar = "Form24h.shows", kCaseVar = "Form24f.case";
// A cell holds at most this many characters, as the table's field.
constexpr std::size_t kCellWidth = 7;
// Coordinates beyond this (m) are no slab: they would only overflow the geometry.
constexpr double kFarthest = 1e5;

// The vertex count of Text6, as a whole number; a fraction counts as its nearest.
double vertexCount(const FormState& s) { return std::nearbyint(s.number("Text6")); }

void checkVertexCount(CheckSequence& checks, double n) {
    checks.warnIf(n < 3, kFewVertices, "Text6").warnIf(n >= 30, kManyVertices, "Text6");
}

void cutCells(FormState& s, const std::string& grid) {
    for (auto& row : s.grid(grid))
        for (auto& cell : row)
            if (cell.size() > kCellWidth) cell.resize(kCellWidth);
}

// Any change of the outline drops the mesh and the results with it.
Outcome dropMesh(Outcome o) {
    return o.then(EffectKind::HideControl, "Form24f.Frame4")
        .then(EffectKind::HideControl, "Form24f.Frame5")
        .then(EffectKind::HideControl, "Form24f.Command13")
        .then(EffectKind::DisableControl, "Form24f.Command1")
        .then(EffectKind::DisableControl, "Form24f.Command10");
}

Outcome enterVertices(FormState& s, Prompter& prompter) {
    CheckSequence checks(prompter);
    const double n = vertexCount(s);
    checkVertexCount(checks, n);
    if (checks.stopped()) return checks.outcome();
    s.resizeGrid(kPolygonVertices, static_cast<std::size_t>(n));
    s.resizeGrid(kPolygonSides, static_cast<std::size_t>(n));
    return dropMesh(Outcome::done()).then(EffectKind::ShowScreen, "Form24g");
}

bool validSides(const FormState& s) {
    const GridRows& g = s.grid(kPolygonSides);
    for (std::size_t r = 1; r < g.size(); ++r) {
        const double t = readNumber(g[r].size() > 1 ? g[r][1] : "");
        if (!(t == 0 || t == 1 || t == 2)) return false;
    }
    return g.size() - 1 <= static_cast<std::size_t>(mesh_limits::kVertices);
}

// The outline as the tables hold it; nullopt with the message given when the
// coordinates cannot make a slab.
std::optional<SlabPolygon> readPolygon(const FormState& s, CheckSequence& checks) {
    SlabPolygon p;
    const GridRows& g = s.grid(kPolygonVertices);
    bool finite = true;
    for (std::size_t r = 1; r < g.size(); ++r) {
        const Point v{s.cellNumber(kPolygonVertices, static_cast<int>(r), 1), s.cellNumber(kPolygonVertices, static_cast<int>(r), 2)};
        finite = finite && std::abs(v.x) < kFarthest && std::abs(v.y) < kFarthest;
        p.vertices.push_back(v);
        const double t = s.cellNumber(kPolygonSides, static_cast<int>(r), 1);
        p.sides.push_back(t == 1 ? SideSupport::Fixed : t == 2 ? SideSupport::Free : SideSupport::Simple);
    }
    checks.warnIf(!validSides(s), kBadSide, "Form24f.Command4").warnIf(!finite, kBadPolygon, "Form24f.Command4");
    if (checks.stopped()) return std::nullopt;
    return p;
}

Outcome closeVertices(FormState& s, Prompter& prompter, bool picture) {
    CheckSequence checks(prompter);
    checks.warnIf(!validSides(s), kBadSide);
    if (checks.stopped()) return checks.outcome();
    cutCells(s, kPolygonVertices);
    cutCells(s, kPolygonSides);
    if (picture) {
        s.setVar(kPictureVar, "outline");
        return Outcome::done().then(EffectKind::ShowScreen, "Form24h");
    }
    Outcome o = Outcome::done().then(EffectKind::HideScreen, "Form24g");
    o.focus = "Form24f.List1";
    return o;
}

// The requested divisions of the fineness chosen, or 0 after a message.
int requestedDivisions(const FormState& s, CheckSequence& checks) {
    const std::string& chosen = s.text("List1");
    checks.warnIf(chosen.empty(), kChooseMesh, "List1");
    if (checks.stopped()) return 0;
    for (int i = 0; i < 3; ++i)
        if (chosen == kPolygonFineness[i]) return 4 + i;
    const int inForce = static_cast<int>(readNumber(s.var(kDivisionsVar)));
    checks.warnIf(inForce < 3, kRefineFirst, "List1");
    return checks.stopped() ? 0 : inForce + 1;
}

const std::string* meshMessage(MeshStatus status) {
    switch (status) {
        case MeshStatus::NotCounterClockwise: return &kBadPolygon;
        case MeshStatus::RepeatedVertices: return &kRepeated;
        case MeshStatus::Unstable: return &kUnstable;
        case MeshStatus::TooFine: return &kNoFiner;
        case MeshStatus::Ok: break;
    }
    return nullptr;
}

std::string focusOf(MeshStatus status) {
    return status == MeshStatus::Unstable ? "List1" : status == MeshStatus::TooFine ? "" : "Command4";
}

// The outline read and meshed as "Gerar malha " does; the checks hold the message.
std::optional<MeshResult> meshOf(const FormState& s, CheckSequence& checks, int divisions, SlabPolygon& polygon,
                                 MeshStatus* status = nullptr) {
    const double n = vertexCount(s);
    checkVertexCount(checks, n);
    if (checks.stopped()) return std::nullopt;
    checks.warnIf(static_cast<double>(s.grid(kPolygonVertices).size()) != n + 1, kUpdateVertices);
    if (checks.stopped()) return std::nullopt;
    std::optional<SlabPolygon> p = readPolygon(s, checks);
    if (!p) return std::nullopt;
    polygon = *p;
    MeshResult m = generateMesh(polygon, divisions);
    if (status) *status = m.status;
    if (const std::string* text = meshMessage(m.status)) checks.warnIf(true, *text, focusOf(m.status));
    if (checks.stopped()) return std::nullopt;
    return m;
}

Outcome generate(FormState& s, Prompter& prompter) {
    CheckSequence checks(prompter);
    const Outcome start = Outcome::done().then(EffectKind::DisableControl, "Form24f.Command10");
    const int divisions = requestedDivisions(s, checks);
    if (checks.stopped()) return checks.outcome();
    const bool stale = static_cast<double>(s.grid(kPolygonVertices).size()) != vertexCount(s) + 1;
    SlabPolygon polygon;
    MeshStatus status = MeshStatus::Ok;
    const std::optional<MeshResult> mesh = meshOf(s, checks, divisions, polygon, &status);
    if (!mesh) {
        // A table of the wrong size is opened again for the user, as "Entrar com as
        // coordenadas" would.
        if (stale && vertexCount(s) >= 3 && vertexCount(s) < 30) {
            Outcome o = enterVertices(s, prompter);
            o.completed = false;
            return o;
        }
        // After the limits the count in force is 6, so that "Refinar mais!" tries 7 next.
        if (status == MeshStatus::TooFine) s.setVar(kDivisionsVar, "6");
        return dropMesh(checks.outcome());
    }
    s.setVar(kDivisionsVar, std::to_string(divisions));
    s.setVar(kPictureVar, "mesh");
    Outcome o = start;
    o.then(EffectKind::HideControl, "Form24f.Frame4")
        .then(EffectKind::HideControl, "Form24f.Frame5")
        .then(EffectKind::HideControl, "Form24f.Command13")
        .then(EffectKind::EnableControl, "Form24f.Command1")
        .then(EffectKind::ShowScreen, "Form24h");
    return o;
}

void fillResults(FormState& s, const PolygonCase& c, const GrillageResults& r) {
    auto text = [](const std::optional<double>& v) { return v ? formatResult(*v) : std::string(" "); };
    GridRows& m = s.grid(kPolygonMoments);
    m.resize(1);
    m.push_back({"Mx", formatResult(r.mxMax), formatResult(r.mxMin), text(r.mxCentre)});
    m.push_back({"My", formatResult(r.myMax), formatResult(r.myMin), text(r.myCentre)});
    // The deflection in service is that of the quasi-permanent load, made long-term.
    const double wqp = r.wmax * 1000 * (c.g + 0.3 * c.q) / (c.g + c.q);
    writeResult(s, "Text9", wqp);
    writeResult(s, "Text10", wqp * (1 + readNumber(s.text("Text3"))));
    GridRows& g = s.grid(kPolygonReactions);
    g.resize(1);
    for (std::size_t i = 0; i < r.sideReaction.size(); ++i)
        g.push_back({std::to_string(i + 1), formatResult(r.sideReaction[i])});
}

Outcome calculate(FormState& s, Prompter& prompter) {
    CheckSequence checks(prompter);
    checks.warnIf(static_cast<double>(s.grid(kPolygonVertices).size()) != vertexCount(s) + 1, kUpdateVertices);
    if (checks.stopped()) return checks.outcome();
    checkConcreteService(checks, s);
    checkSlabLoads(checks, s);
    checkSlabThickness(checks, s.number("Text7"), "Text7");
    const double ratio = s.number("Text8");
    checks.warnIf(ratio <= 0, kPositiveRatio, "Text8").warnIf(ratio > 1, kRatioAboveOne, "Text8");
    if (checks.stopped()) return checks.outcome();
    const int divisions = static_cast<int>(readNumber(s.var(kDivisionsVar)));
    checks.warnIf(divisions < 3, kChooseMesh, "List1");
    if (checks.stopped()) return checks.outcome();

    PolygonCase c;
    const std::optional<MeshResult> mesh = meshOf(s, checks, divisions, c.polygon);
    if (!mesh) return checks.outcome();
    c.divisions = divisions;
    c.ecs = s.number("Text2") * 1000;
    c.h = s.number("Text7");
    c.ratio = ratio;
    c.g = s.number("Text4");
    c.q = s.number("Text5");
    const GrillageResults r = analyseGrillage(c.polygon, mesh->mesh, grillageData(c));
    checks.warnIf(r.status == GrillageStatus::BandTooWide, kBandTooWide, "Command1")
        .warnIf(r.status == GrillageStatus::Singular, msg::kSingular);
    if (checks.stopped()) return checks.outcome();
    bool finite = std::isfinite(r.wmax) && std::isfinite(r.mxMax) && std::isfinite(r.mxMin) &&
                  std::isfinite(r.myMax) && std::isfinite(r.myMin);
    for (double v : r.sideReaction) finite = finite && std::isfinite(v);
    checks.warnIf(!finite, msg::kSingular);
    if (checks.stopped()) return checks.outcome();
    fillResults(s, c, r);
    s.setVar(kCaseVar, encodeCase(c));
    return Outcome::done()
        .then(EffectKind::ShowControl, "Form24f.Frame4")
        .then(EffectKind::ShowControl, "Form24f.Frame5")
        .then(EffectKind::EnableControl, "Form24f.Command10")
        .then(EffectKind::EnableControl, printButton("Form24f"));
}

class Form24f : public Module {
public:
    ModuleInfo info() const override {
        ModuleInfo i;
        i.key = "Form24f";
        i.unloads = {"Form24h", "FormAjuda", "FormAbrir", "FormSalvar", "Form24g", "Form24j"};
        i.printKey = "Form24f";
        // Both the mesh and the grillage of a fine mesh take a while.
        i.busy = {{"Form24f.Command7", "Form24f.Command13"}, {"Form24f.Command1", "Form24f.Command13"}};
        return i;
    }

    std::vector<ScreenDecl> screens() const override { return polygonScreens(); }

    // The boxes, the fineness and the two tables of the outline; the result tables
    // are made again by "CALCULAR".
    std::vector<std::string> projectFields() const override {
        return {"Form24f.Text1", "Form24f.Text2", "Form24f.Text3", "Form24f.Text4", "Form24f.Text5", "Form24f.Text7",
                "Form24f.Text8", "Form24f.Text6", "Form24f.List1", kPolygonVertices, kPolygonSides};
    }

    void load(FormState& state, const StartDefaults& defaults) const override {
        loadConcreteDefaults(state, defaults);
        state.setVisible("Form24f.Frame4", false);
        state.setVisible("Form24f.Frame5", false);
    }

    Outcome press(const std::string& command, FormState& s, Prompter& prompter) const override {
        const std::string c = s.qualify(command);
        if (c == "Form24f.Command4") return enterVertices(s, prompter);
        if (c == "Form24f.Command7") return generate(s, prompter);
        if (c == "Form24f.Command1") return calculate(s, prompter);
        if (c == "Form24f.Command10") return Outcome::done().then(EffectKind::ShowScreen, "Form24j");
        if (c == "Form24g.Command2") return closeVertices(s, prompter, false);
        if (c == "Form24g.Command5") return closeVertices(s, prompter, true);
        for (const char* screen : {"Form24h", "Form24j"})
            if (c == std::string(screen) + ".Command1") return Outcome::done().then(EffectKind::HideScreen, screen);
        return Outcome::stop();
    }

    Drawing drawing(const std::string& picture, const FormState& s) const override {
        const std::string p = s.qualify(picture);
        ScriptedPrompter quiet;
        CheckSequence checks(quiet);
        if (p == "Form24h.Picture1") {
            const std::optional<SlabPolygon> polygon = readPolygon(s, checks);
            if (!polygon || polygon->count() < 3) return {};
            if (s.var(kPictureVar) != "mesh") {
                Drawing d;
                drawOutline(d, *polygon, outlineScale(polygon->vertices));
                return d;
            }
            const MeshResult m = generateMesh(*polygon, static_cast<int>(readNumber(s.var(kDivisionsVar))));
            return m.status == MeshStatus::Ok ? meshDrawing(*polygon, m.mesh) : Drawing{};
        }
        if (p != "Form24j.Picture1") return {};
        const std::optional<PolygonCase> c = decodeCase(s.var(kCaseVar));
        if (!c) return {};
        const MeshResult m = generateMesh(c->polygon, c->divisions);
        if (m.status != MeshStatus::Ok) return {};
        const GrillageResults r = analyseGrillage(c->polygon, m.mesh, grillageData(*c));
        return r.status == GrillageStatus::Ok ? momentDiagrams(*c, m.mesh, r) : Drawing{};
    }

    void report(const std::string& key, const FormState& s, ReportWriter& out) const override {
        if (key == "Form24f") writePolygonReport(s, out);
    }
};

RegisterModule<Form24f> registration;

}  // namespace

GrillageData grillageData(const PolygonCase& c) {
    const double h = c.h / 100;
    return {c.ecs * h * h * h / (12 * (1 - kSlabPoisson * kSlabPoisson)), c.ratio, c.g + c.q};
}

std::string encodeCase(const PolygonCase& c) {
    std::ostringstream out;
    out.precision(17);
    out << c.divisions << ' ' << c.ecs << ' ' << c.h << ' ' << c.ratio << ' ' << c.g << ' ' << c.q << ' '
        << c.polygon.count();
    for (int i = 0; i < c.polygon.count(); ++i)
        out << ' ' << c.polygon.vertices[i].x << ' ' << c.polygon.vertices[i].y << ' '
            << static_cast<int>(c.polygon.sides[i]);
    return out.str();
}

std::optional<PolygonCase> decodeCase(const std::string& text) {
    std::istringstream in(text);
    PolygonCase c;
    int n = 0;
    if (!(in >> c.divisions >> c.ecs >> c.h >> c.ratio >> c.g >> c.q >> n) || n < 3 || n > mesh_limits::kVertices)
        return std::nullopt;
    for (int i = 0; i < n; ++i) {
        Point p;
        int t = 0;
        if (!(in >> p.x >> p.y >> t) || t < 0 || t > 2) return std::nullopt;
        c.polygon.vertices.push_back(p);
        c.polygon.sides.push_back(static_cast<SideSupport>(t));
    }
    return c;
}

}  // namespace morve
