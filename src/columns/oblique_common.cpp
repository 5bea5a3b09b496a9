#include "columns/oblique_common.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <sstream>

#include "app/numbers.h"
#include "basis/start_values.h"
#include "columns/column_results.h"
#include "reports/report_writer.h"
#include "basis/messages.h"

namespace morve {

namespace {

const std::string kFewVertices = "O número de vértices da seção deve ser maior ou igual a 3.";
const std::string kNoBars = "Forneça um valor positivo para o número de barras de aço.";
const std::string kManyBars = "Este programa está limitado a 299 barras de aço.";
const std::string kManyVertices = "Este programa está limitado a seções com um máximo de 299 vértices.";
const std::string kStaleVertices = "Atualize as coordenadas dos vértices da seção.";
const std::string kStaleBars = "Atualize as coordenadas das barras da armadura.";
constexpr int kMaxCount = 299;

const std::string kAxisVar = "NeutralAxis";
constexpr double kBarRadius = 0.8;  // cm, when the bar has no area of its own

std::vector<std::string> header(const std::string& first, bool area) {
    std::vector<std::string> h{first, "X (cm)", "Y (cm)"};
    if (area) h.push_back("As (cm2)");
    return h;
}


std::vector<Point> readPoints(const FormState& s, const std::string& grid) {
    std::vector<Point> points;
    const GridRows& rows = s.grid(grid);
    for (std::size_t r = 1; r < rows.size(); ++r)
        points.push_back({s.cellNumber(grid, static_cast<int>(r), 1), s.cellNumber(grid, static_cast<int>(r), 2)});
    return points;
}

}  // namespace

ScreenDecl coordinateScreen(const CoordinateTables& t) {
    const int limit = kMaxCount;
    ScreenBuilder s(t.screen, "Coordenadas da seção", false);
    s.frame("Frame1", "Coordenadas dos vértices da seção", 0, 0)
        .grid("Grade1", GridDecl{header("Vértice", false), 0, limit, KeyFilter::SignedNumber, true});
    s.frame("Frame2", "Coordenadas das barras de aço", 0, 1)
        .grid("Grade2", GridDecl{header("Barra", t.barAreas), 0, limit, KeyFilter::SignedNumber, true});
    s.frame("Frame3", "", 1, 0, 1, 2)
        .label("Label1", msg::kGridsArrows)
        .command("Command2", "&OK", "Volta para o dimensionamento");
    return s.build();
}

void sectionFrames(ScreenBuilder& s) {
    s.frame("Frame1", "Materiais", 0, 0)
        .box("Text1", "fck (MPa)=", "20")
        .box("Text2", "fyk (MPa)=", "500")
        .box("Text3", "Es (GPa)=", "200");
    s.frame("Frame2", "Seção", 1, 0)
        .box("Text4", "Número de vértices da seção=", "", "", KeyFilter::Digit)
        .box("Text5", "Número de barras de aço=", "", "", KeyFilter::Digit);
}

ScreenDecl polygonPictureScreen() {
    ScreenBuilder s(kPolygonPictureScreen, "Seção transversal", false);
    s.frame("Frame1", "", 0, 0).picture("Picture1", 360, 360).command("Command1", "&Voltar");
    return s.build();
}

void checkCoordinateCounts(CheckSequence& checks, const CoordinateTables& t, const FormState& s, bool tables) {
    const double nv = s.number(t.vertices), nb = s.number(t.bars);
    checks.warnIf(nv < 3, kFewVertices, t.vertices)
        .warnIf(nb <= 0, kNoBars, t.bars)
        .warnIf(nb > kMaxCount, kManyBars, t.bars)
        .warnIf(nv > kMaxCount, kManyVertices, t.vertices);
    if (!tables) return;
    // Counts are read as typed: 3.5 vertices never match a table.
    checks.warnIf(static_cast<double>(s.grid(t.vertexGrid()).size()) != nv + 1, kStaleVertices, t.command)
        .warnIf(static_cast<double>(s.grid(t.barGrid()).size()) != nb + 1, kStaleBars, t.command);
}

Outcome openCoordinates(const CoordinateTables& t, FormState& s, Prompter& prompter) {
    CheckSequence checks(prompter);
    checkCoordinateCounts(checks, t, s, false);
    if (checks.stopped()) return checks.outcome();
    s.resizeGrid(t.vertexGrid(), static_cast<std::size_t>(std::floor(s.number(t.vertices))));
    s.resizeGrid(t.barGrid(), static_cast<std::size_t>(std::floor(s.number(t.bars))));
    return Outcome::done().then(EffectKind::HideScreen, t.module).then(EffectKind::ShowScreen, t.screen);
}

Outcome closeCoordinates(const CoordinateTables& t) {
    return Outcome::done().then(EffectKind::HideScreen, t.screen).then(EffectKind::ShowScreen, t.module);
}

Outcome backFrom(const std::string& companion, const std::string& module) {
    return Outcome::done().then(EffectKind::HideScreen, companion).then(EffectKind::ShowScreen, module);
}

TypedSection readCoordinates(const CoordinateTables& t, const FormState& s) {
    TypedSection typed{readPoints(s, t.vertexGrid()), readPoints(s, t.barGrid()), {}};
    if (t.barAreas) {
        const GridRows& rows = s.grid(t.barGrid());
        for (std::size_t r = 1; r < rows.size(); ++r) typed.areas.push_back(s.cellNumber(t.barGrid(), static_cast<int>(r), 3));
    }
    return typed;
}

ObliqueMaterial obliqueMaterial(double fck, double fcd, double fyd, double es) {
    const StressBlockParametersValues block = StressBlockParameters(fck);
    return {block, block.alphac * fcd, fyd, es};
}

void keepNeutralAxis(FormState& s, const NeutralAxisSolution& axis, double lambda) {
    s.setVar(kAxisVar, formatPlain(axis.angle) + " " + formatPlain(axis.depth) + " " + formatPlain(lambda));
}

void forgetNeutralAxis(FormState& s) { s.setVar(kAxisVar, ""); }

namespace {

// The line y' = level of the turned section, as a segment across the outline in
// the typed axes (y downwards for the picture).
void levelLine(Drawing& g, const TurnedSection& t, double level, Point centroid, Colour colour, double width) {
    double lo = 0, hi = 0;
    for (const Point& p : t.outline) {
        lo = std::min(lo, p.x);
        hi = std::max(hi, p.x);
    }
    const double overhang = 0.1 * (hi - lo);
    auto back = [&](double x) {
        const Point p = rotated(Point{x, level}, t.cosine, -t.sine);
        return Point{p.x + centroid.x, -(p.y + centroid.y)};
    };
    g.line(back(lo - overhang), back(hi + overhang), colour, width);
}

}  // namespace

Drawing polygonSectionDrawing(const TypedSection& typed, const FormState& s) {
    Drawing g;
    if (typed.outline.size() < 3) return g;
    auto screen = [](Point p) { return Point{p.x, -p.y}; };
    double left = typed.outline[0].x, right = left, top = typed.outline[0].y, bottom = top;
    for (const Point& p : typed.outline) {
        left = std::min(left, p.x);
        right = std::max(right, p.x);
        top = std::max(top, p.y);
        bottom = std::min(bottom, p.y);
    }
    const double size = std::max(right - left, top - bottom);
    if (!(size > 0) || !std::isfinite(size)) return g;
    const double margin = 0.2 * size;
    g.unit = DrawingUnit::Centimetre;
    g.left = left - margin;
    g.right = right + margin;
    g.top = -top - margin;
    g.bottom = -bottom + margin;

    std::vector<Point> outline;
    for (const Point& p : typed.outline) outline.push_back(screen(p));
    g.polyline(outline, true, colours::lightGrey, 1, true);

    const PolygonMoments m = polygonMoments(typed.outline);
    const Point centroid = m.area > 0 ? Point{m.sy / m.area, m.sx / m.area} : Point{};
    std::istringstream axis(s.var(kAxisVar));
    double angle = 0, depth = 0, lambda = 0;
    if (m.area > 0 && axis >> angle >> depth >> lambda) {
        ObliqueSection centred = centredSection(typed.outline, {}, {});
        ObliqueModel model(centred, {});
        const TurnedSection t = model.turn(angle);
        // The compressed block, darker, and the neutral axis in red.
        g.as(ShapeKind::Diagrams);
        std::vector<Point> block;
        for (const Point& p : clipAbove(t.outline, t.ymax - lambda * depth)) {
            const Point q = rotated(p, t.cosine, -t.sine);
            block.push_back(screen({q.x + centroid.x, q.y + centroid.y}));
        }
        if (block.size() >= 3) g.polyline(block, true, colours::grey, 1, true);
        if (depth <= 2 * t.h) levelLine(g, t, t.ymax - depth, centroid, colours::red, 2);
        g.as(ShapeKind::Outline);
    }
    g.polyline(outline, true, colours::black, 2);

    // The centroidal axes run past the section on both sides, so their names
    // stand on the white beyond it and not on the concrete.
    double armX = 0, armY = 0;
    for (const Point& p : typed.outline) {
        armX = std::max(armX, std::abs(p.x - centroid.x));
        armY = std::max(armY, std::abs(p.y - centroid.y));
    }
    armX += 0.08 * size, armY += 0.08 * size;
    g.as(ShapeKind::Dimensions);
    g.line(screen({centroid.x - armX, centroid.y}), screen({centroid.x + armX, centroid.y}), colours::green);
    g.line(screen({centroid.x, centroid.y - armY}), screen({centroid.x, centroid.y + armY}), colours::green);
    g.text(screen({centroid.x + armX + 0.02 * size, centroid.y}), "x", 9, TextAlign::Left, colours::green);
    g.text(screen({centroid.x + 0.03 * size, centroid.y + armY}), "y", 9, TextAlign::Left, colours::green);

    g.as(ShapeKind::Bars);
    for (std::size_t i = 0; i < typed.bars.size(); ++i) {
        const double area = i < typed.areas.size() ? typed.areas[i] : 0;
        const double r = area > 0 ? std::sqrt(area / std::numbers::pi) : kBarRadius;
        g.circle(screen(typed.bars[i]), std::min(r, 0.05 * size), colours::blue, true);
    }
    return g;
}

void writePolygonCase(ReportWriter& out, const CoordinateTables& t, const FormState& s,
                      const std::vector<std::string>& gamas, const std::string& index,
                      const std::vector<std::string>& forces) {
    writeColumnMaterials(out, s, gamas[0], gamas[1], gamas.size() > 2 ? gamas[2] : std::string());
    out.write("Número de vértices da seção= ", s.text(t.vertices));
    out.write("Número de barras de aço= ", s.text(t.bars));
    out.blank();
    // The tables with an area column keep to narrower columns to fit the page.
    const int xAt = t.barAreas ? 15 : 30, yAt = t.barAreas ? 35 : 55, areaAt = 55;
    auto table = [&](const std::string& caption, const std::string& name, const std::string& grid, bool area) {
        out.write(caption);
        const GridRows& rows = s.grid(grid);
        for (std::size_t r = 1; r < rows.size(); ++r) {
            auto cell = [&](std::size_t c) { return c < rows[r].size() ? rows[r][c] : std::string(); };
            if (area)
                out.write(name, num(static_cast<double>(r)), tab(xAt), "X (cm)= ", cell(1), tab(yAt), "Y (cm)= ",
                          cell(2), tab(areaAt), "As (cm2)= ", cell(3));
            else
                out.write(name, num(static_cast<double>(r)), tab(xAt), "X (cm)= ", cell(1), tab(yAt), "Y (cm)= ",
                          cell(2));
        }
        out.blank();
    };
    table("Coordenadas dos vértices da seção:", "Vértice= ", t.vertexGrid(), false);
    table("Coordenadas das barras de aço:", "Barra= ", t.barGrid(), t.barAreas);
    out.write(index == "k" ? "Esforços solicitantes de serviço:" : "Esforços solicitantes de cálculo:");
    out.write("Esforço normal N", index, "= ", s.text(forces[0]), " kN");
    out.write("Momentos fletores: Mx", index, "= ", s.text(forces[1]), " kNm", blanks(5), "My", index, "= ",
              s.text(forces[2]), " kNm");
    out.blank();
}

ModuleInfo PolygonSectionModule::info() const {
    ModuleInfo i;
    i.key = tables_.module;
    i.unloads = {tables_.screen, kPolygonPictureScreen};
    i.unloads.insert(i.unloads.end(), companions_.begin(), companions_.end());
    i.unloads.insert(i.unloads.end(), {"FormAjuda", "FormAbrir", "FormSalvar"});
    i.printKey = tables_.module;
    i.calculate = "Command4";
    return i;
}

void PolygonSectionModule::load(FormState& state, const StartDefaults& defaults) const {
    loadMaterialDefaults(state, defaults, {"Text1", "Text2", "Text3", 3});
}

Drawing PolygonSectionModule::drawing(const std::string& picture, const FormState& s) const {
    if (picture != kPolygonPictureScreen + ".Picture1") return {};
    ScriptedPrompter silent;
    CheckSequence checks(silent);
    checkCoordinateCounts(checks, tables_, s, true);
    if (checks.stopped()) return {};
    return polygonSectionDrawing(readCoordinates(tables_, s), s);
}

std::optional<Outcome> PolygonSectionModule::pressShared(const std::string& c, FormState& s,
                                                         Prompter& prompter) const {
    const std::string& key = tables_.module;
    if (c == key + "." + tables_.command) return openCoordinates(tables_, s, prompter);
    if (c == tables_.screen + ".Command2") return closeCoordinates(tables_);
    if (c == key + ".Command5") {
        CheckSequence checks(prompter);
        checkCoordinateCounts(checks, tables_, s, true);
        if (checks.stopped()) return checks.outcome();
        return Outcome::done().then(EffectKind::HideScreen, key).then(EffectKind::ShowScreen, kPolygonPictureScreen);
    }
    if (c == kPolygonPictureScreen + ".Command1") return backFrom(kPolygonPictureScreen, key);
    return std::nullopt;
}

}  // namespace morve
