#pragma once
// What the modules of slab moments and deflections share: the concrete, load,
// span and thickness boxes with their checks in order, the plate rigidity, the
// long-term deflection, the admissible one, the report lines of the data, the
// fitted coefficients in the side ratio and the picture of a support pattern.
#include <initializer_list>
#include <optional>
#include <string>
#include <vector>

#include "app/form_state.h"
#include "app/outcome.h"
#include "app/screen.h"
#include "app/start_defaults.h"
#include "basis/checks.h"
#include "basis/concrete_service.h"
#include "draw/drawing.h"

namespace morve {

class ReportWriter;

// Poisson's ratio of the concrete in every plate formula of the program.
inline constexpr double kSlabPoisson = 0.2;

// The "Cargas (kN/m2)" frame: g Text4, q Text5.
void addLoadFrame(ScreenBuilder& s, const std::string& frame, int row, int column);
// The data of a rectangular slab: concrete, loads, spans lx (Text6) and ly (Text7)
// and thickness (Text8), in the two left columns of the screen.
void addRectangularSlabFrames(ScreenBuilder& s);
// A result screen of one case: the deflection at the centre (Text1, Text2) and the
// frame of the moments, to which the caller adds the boxes.
ScreenBuilder& addCentreResultFrames(ScreenBuilder& r, const std::string& momentsCaption);
// "&Voltar" (Command1) and "Im&primir" (Command7), the last buttons of a result screen.
ScreenBuilder& addBackAndPrint(ScreenBuilder& r);

// g and q both positive (a zero variable load is refused).
void checkSlabLoads(CheckSequence& checks, const FormState& state);
// A positive box, with the words "Forneça um valor positivo para ..." and its focus.
void checkPositive(CheckSequence& checks, double value, const std::string& what, const std::string& box);
// h positive, then the OK/Cancel box of the 7 cm minimum.
void checkSlabThickness(CheckSequence& checks, double hCm, const std::string& box);

// The quantities every plate result is scaled with.
struct SlabLoading {
    double p = 0;    // g + q, kN/m2: moments and reactions
    double pqp = 0;  // g + 0.3 q, kN/m2: the quasi-permanent load of the deflection
    double d = 0;    // plate rigidity, kNm
    double creep = 0;
};
// The rigidity and creep alone, from Ecs (Text2), the creep coefficient (Text3)
// and a thickness in cm.
SlabLoading slabStiffness(const FormState& state, double hCm);
// With the loads g (Text4) and q (Text5) as well.
SlabLoading slabLoading(const FormState& state, double hCm);
// A deflection w0 in m of the plate under pqp made long-term, in mm.
inline double longTermMm(double w0, const SlabLoading& l) { return w0 * (1 + l.creep) * 1000; }
// span / 250 in mm for the smaller span given.
inline double admissibleMm(double span) { return span / 250 * 1000; }

void reportLoads(ReportWriter& out, const FormState& s);
void reportSpans(ReportWriter& out, const FormState& s, const std::string& lx, const std::string& ly);
void reportThickness(ReportWriter& out, const FormState& s, const std::string& h);

// A coefficient that is a polynomial in the side ratio r, in pieces: each piece
// serves up to its bound (inclusive), the last one beyond it as well.
struct FitPiece {
    double upTo;
    std::vector<double> c;  // c0 + c1 r + c2 r^2 + ...
};
struct Fit {
    std::vector<FitPiece> pieces;
    Fit() = default;
    Fit(std::initializer_list<double> c) : pieces{{1e300, c}} {}
    Fit(std::vector<FitPiece> p) : pieces(std::move(p)) {}
    bool empty() const { return pieces.empty(); }
    double operator()(double r) const;
};

// The sides of a rectangular slab, x along lx: x = 0, x = lx, y = 0, y = ly.
enum class SlabEdge { Supported, Fixed, Free };
struct SupportPattern {
    SlabEdge x0, x1, y0, y1;
};
// The outline in plan, hatched along the fixed sides, dashed along a free one.
Drawing supportDrawing(const SupportPattern& pattern);

// The frames of one case on a result screen.
struct ResultFrames {
    std::string screen;               // "Form22b"
    std::vector<std::string> frames;  // shown for the case, hidden otherwise
};
// After a calculation: the module's screen gives way to the result screen with the
// case's frames.
Outcome showResults(const std::string& module, const ResultFrames& shown);
// The two buttons of a result screen: "&Voltar" (Command1) hides the case frames
// and the screen and shows the module again; "Im&primir" (Command7) starts the
// screen's report. Nothing for another command.
std::optional<Outcome> resultScreenCommand(const std::string& command, const std::string& module,
                                           const std::vector<ResultFrames>& cases);
// Every case frame hidden, as the screens open.
void hideCaseFrames(FormState& state, const std::vector<ResultFrames>& cases);

// Writes a result as the screens show it, with two decimals.
void writeResult(FormState& state, const std::string& box, double value);

}  // namespace morve
