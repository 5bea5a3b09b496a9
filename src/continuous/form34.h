#pragma once
// "ESFORÇOS EM VIGAS CONTÍNUAS": a straight beam of up to 20 spans on simple
// supports, fixed ends and columns, under nodal, concentrated and uniform loads.
// Its tables are typed on companion screens; "CALCULAR" fills the result tables,
// the diagrams and the deformed shape.
#include "app/grid_tables.h"
#include "app/module.h"
#include "continuous/beam_analysis.h"

namespace morve {

class Form34 : public Module {
public:
    ModuleInfo info() const override;
    std::vector<ScreenDecl> screens() const override;
    void load(FormState& state, const StartDefaults& defaults) const override;
    Outcome press(const std::string& command, FormState& state, Prompter& prompter) const override;
    void report(const std::string& key, const FormState& state, ReportWriter& out) const override;
    Drawing drawing(const std::string& picture, const FormState& state) const override;
    std::vector<std::string> projectFields() const override;
};

// The inputs of the module in the order its project files keep them.
std::vector<std::string> form34Inputs();

// The beam as the tables hold it, read and checked as "CALCULAR" does, in its
// order; nullopt when a check stopped it (the checks hold the message and focus).
class CheckSequence;
std::optional<BeamModel> readBeam(const FormState& state, CheckSequence& checks);

// The analysed case that the pictures and the report show: the inputs as they were
// at the last good "CALCULAR", analysed again.
struct AnalysedBeam {
    BeamModel model;
    BeamResults results;
};
std::optional<AnalysedBeam> lastAnalysis(const FormState& state);
// Kept at the end of a good "CALCULAR".
void keepAnalysedInputs(FormState& state);

// The load tables into the model (its spans already read), each with its checks;
// a failed check leaves the focus on `focus`.
void readNodalLoads(const FormState& state, BeamModel& model, CheckSequence& checks, const std::string& focus);
void readBarLoads(const FormState& state, BeamModel& model, CheckSequence& checks, const std::string& zeroMessage,
                  const std::string& focus);
void readSegments(const FormState& state, BeamModel& model, CheckSequence& checks, const std::string& focus);
void checkSpanCount(CheckSequence& checks, int n);
void checkSupportCount(CheckSequence& checks, int supports, int n);
void checkLoadCounts(CheckSequence& checks, int nodal, int bar, int segments, int n);

// Pictures of the beam: its spans and supports, with the loads when asked.
Drawing beamPicture(const BeamModel& model, bool loads);
Drawing momentDiagram(const AnalysedBeam& beam);
Drawing shearDiagram(const AnalysedBeam& beam);
Drawing deformedShape(const AnalysedBeam& beam);

void writeForm34Report(const FormState& state, ReportWriter& out);

}  // namespace morve
