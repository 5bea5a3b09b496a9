#pragma once
// What the two modules of polygonal sections under oblique flexo-compression share:
// the screen of the coordinate tables and its checks, the reading of the outline
// and the bars, the picture of the section with the neutral axis of the last
// calculation, and the tables of the report.
#include <optional>
#include <string>
#include <vector>

#include "app/module.h"
#include "basis/checks.h"
#include "columns/oblique_section.h"

namespace morve {

class ReportWriter;

struct CoordinateTables {
    std::string module;   // "Form16"
    std::string screen;   // "Form16b"
    bool barAreas = false;  // a column for the area of each bar
    std::string vertices = "Text4", bars = "Text5", command = "Command3";

    std::string vertexGrid() const { return screen + ".Grade1"; }
    std::string barGrid() const { return screen + ".Grade2"; }
};

// The picture of the section, the same screen as that of the other column modules.
inline const std::string kPolygonPictureScreen = "Form12c";

ScreenDecl coordinateScreen(const CoordinateTables& t);
// The frames of the materials and of the two counts, first on the module's screen.
void sectionFrames(ScreenBuilder& s);
ScreenDecl polygonPictureScreen();

// The four checks of the counts that also guard the opening of the tables, then,
// with `tables`, the two that find a table left behind by its count.
void checkCoordinateCounts(CheckSequence& checks, const CoordinateTables& t, const FormState& state,
                           bool tables);
// "Entrar com as coordenadas": the tables take the counts' rows, keeping what was
// typed in the rows that stay; "&OK" goes back.
Outcome openCoordinates(const CoordinateTables& t, FormState& state, Prompter& prompter);
Outcome closeCoordinates(const CoordinateTables& t);
// The buttons "&Voltar" of the companion screens.
Outcome backFrom(const std::string& companion, const std::string& module);

struct TypedSection {
    std::vector<Point> outline, bars;
    std::vector<double> areas;  // of each bar, cm2, when the table has them
};
TypedSection readCoordinates(const CoordinateTables& t, const FormState& state);

// The material of the block for fck (MPa) and the design strengths in kN/cm2.
ObliqueMaterial obliqueMaterial(double fck, double fcd, double fyd, double es);

// The neutral axis of the last calculation, kept for the picture; cleared when a
// calculation starts again.
void keepNeutralAxis(FormState& state, const NeutralAxisSolution& axis, double lambda);
void forgetNeutralAxis(FormState& state);

// The outline as typed with its bars (circles of their own area when `areas` are
// given and positive) and, once calculated, the neutral axis and the compressed
// block. y grows upwards in the section and downwards on the picture.
Drawing polygonSectionDrawing(const TypedSection& typed, const FormState& state);

// The head of the report: the materials and coefficients, the vertex and bar
// tables and the three forces, service ("k") or design ("d") values by `index`, in
// the boxes `forces` (N, Mx, My).
void writePolygonCase(ReportWriter& out, const CoordinateTables& t, const FormState& state,
                      const std::vector<std::string>& coefficients, const std::string& index,
                      const std::vector<std::string>& forces);

// What the modules of polygonal sections do alike: their files, defaults, tables
// and picture. "&CALCULAR" is Command4, the tables open by Command3 and the
// picture by Command5.
class PolygonSectionModule : public Module {
public:
    PolygonSectionModule(CoordinateTables tables, std::vector<std::string> companions)
        : tables_(std::move(tables)), companions_(std::move(companions)) {}

    ModuleInfo info() const override;
    void load(FormState& state, const StartDefaults& defaults) const override;
    Drawing drawing(const std::string& picture, const FormState& state) const override;

protected:
    const CoordinateTables& tables() const { return tables_; }
    // The press of a table or picture command; nothing for the module's own.
    std::optional<Outcome> pressShared(const std::string& qualified, FormState& state, Prompter& prompter) const;

private:
    CoordinateTables tables_;
    std::vector<std::string> companions_;  // screens of the module's own, unloaded with it
};

}  // namespace morve
