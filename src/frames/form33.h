#pragma once
// "ESFORÇOS EM PÓRTICOS PLANOS DEVIDOS AO VENTO": a regular plane frame under
// design horizontal forces at its levels, with optional P-delta and masonry infill.
// Tables are typed on companion screens; "CALCULAR" fills the efforts tables, the
// displacements, GamaZ and the stability index.
#include "app/module.h"
#include "frames/frame_analysis.h"
#include "frames/frame_input.h"

namespace morve {

class Form33 : public Module {
public:
    ModuleInfo info() const override;
    std::vector<ScreenDecl> screens() const override;
    void load(FormState& state, const StartDefaults& defaults) const override;
    Outcome press(const std::string& command, FormState& state, Prompter& prompter) const override;
    void report(const std::string& key, const FormState& state, ReportWriter& out) const override;
    Drawing drawing(const std::string& picture, const FormState& state) const override;
    std::vector<std::string> projectFields() const override;
};

// Every check of "CALCULAR" in its order and the analysis; nullopt when a check or
// the analysis stopped (the checks hold the message and focus).
struct Form33Case {
    FrameModel model;
    FrameLoading loading;
    std::optional<Infill> infill;
};
std::optional<Form33Case> readForm33(const FormState& state, CheckSequence& checks);

// Pictures: the frame with its loads, and the diagrams of one bar from the result
// tables (a beam by its row of the beam tables, a column by its row of the column
// tables).
Drawing framePicture(const FrameModel& model, const std::vector<double>& forces);
std::optional<FrameModel> frameOutline(const FormState& state, const FrameScreens& screens);
Drawing beamDiagram(const FormState& state, int row, bool shear);
Drawing columnDiagram(const FormState& state, int row, int which);  // 0 moment, 1 shear, 2 normal

void writeForm33Report(const FormState& state, ReportWriter& out);

}  // namespace morve
