#pragma once
// What the two tie modules share: one screen with the same boxes (only the two
// force boxes swap places and the asymmetric one adds the ductility lists and A's),
// the same checks in the same order, the same report frame and the same sketch.
#include <optional>
#include <string>

#include "app/module.h"
#include "basis/checks.h"
#include "columns/tie_design.h"
#include "reports/report_writer.h"

namespace morve {

struct TieLayout {
    std::string key;      // "Form18", "Form19"
    std::string heading;  // the title inside the window
    bool symmetric = false;
    std::string mkBox, nkBox;  // "Text8" / "Text9", by the order of the labels
};

ScreenDecl tieScreen(const TieLayout& layout);

// The inputs after every check passed, in the units of the arithmetic.
struct TieCaseData {
    TieSection section;
    double xiLim = 0;  // asymmetric only
    double unit = 0;   // cm2 per unit of omega: b d sigma_cd / fyd
};

// Reads the boxes, runs the checks in their order and reduces the forces; nothing
// when a check stopped the run (the outcome is then in `checks`).
std::optional<TieCaseData> readTieCase(const TieLayout& layout, const FormState& state,
                                       CheckSequence& checks);

// The run's own words for a search or a section that has no answer.
const std::string& tieStopMessage(TieStop stop);

// Marks the small-eccentricity case of the last good run, for the report.
inline const std::string kTieCaseVar = "TieCase";

void writeTieReport(const TieLayout& layout, const FormState& state, ReportWriter& out);

// The section with its two layers, the tie force seen end on at the mid-plane of
// the steel, and the moment.
Drawing tieSectionSketch(bool symmetric);

// The module frame of both: declaration, Load, "&CALCULAR" with its checks, the
// report and the sketch. Each module adds only its arithmetic and result boxes.
class TieModule : public Module {
public:
    explicit TieModule(TieLayout layout) : layout_(std::move(layout)) {}
    ModuleInfo info() const override;
    std::vector<ScreenDecl> screens() const override;
    void load(FormState& state, const StartDefaults& defaults) const override;
    Outcome press(const std::string& command, FormState& state, Prompter& prompter) const override;
    void report(const std::string& key, const FormState& state, ReportWriter& out) const override;
    Drawing drawing(const std::string& picture, const FormState& state) const override;

    const TieLayout& layout() const { return layout_; }
    Outcome calculate(FormState& state, Prompter& prompter) const;

protected:
    // The result boxes the run blanks first.
    virtual std::vector<std::string> resultBoxes() const = 0;
    // Designs the steel and writes it; the stop of a section without answer, if any.
    virtual TieStop design(const TieCaseData& data, FormState& state) const = 0;

private:
    TieLayout layout_;
};

}  // namespace morve
