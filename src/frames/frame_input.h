#pragma once
// The tables of a regular plane frame as Form30 and Form33 hold them (storey
// heights and column sections on one screen, spans and beam sections on another),
// their declarations and the checks that read them into a FrameModel.
#include <optional>
#include <string>

#include "app/form_state.h"
#include "app/screen.h"
#include "app/start_defaults.h"
#include "basis/checks.h"
#include "frames/plane_frame.h"

namespace morve {

// The companion screens of a frame module: "Form33b" (columns), "Form33c" (beams).
struct FrameScreens {
    std::string columns, beams;
    bool release = false;  // the beam screen has the joint reduction table
    std::string columnsButton = "Command8", beamsButton = "Command4";

    std::string heights() const { return columns + ".Grade1"; }
    std::string columnSections() const { return columns + ".Grade2"; }
    std::string spans() const { return beams + ".Grade1"; }
    std::string beamSections() const { return beams + ".Grade2"; }
    std::string releaseTable() const { return beams + ".Grade3"; }
};

// The concrete frame of the main screens: fck and Ecs with their defaults.
void concreteBoxes(ScreenBuilder& b);
// fck and Ecs of the start dialog into those boxes.
void loadConcrete(FormState& s, const StartDefaults& defaults);
// The choice of the unit-type load of the equivalent-stiffness modules.
void loadModelOptions(ScreenBuilder& b);

GridDecl frameTable(std::vector<std::string> header, int maxRows, KeyFilter filter = KeyFilter::PositiveNumber);
ScreenDecl columnScreen(const FrameScreens& f);
ScreenDecl beamScreen(const FrameScreens& f);

// The checks of the table buttons: fck, Ecs, p, v, in this order.
void checkFrameCounts(CheckSequence& checks, const FormState& s, const std::string& highFck);
// The tables sized to p and v.
void sizeColumnTables(FormState& s, const FrameScreens& f);
void sizeBeamTables(FormState& s, const FrameScreens& f);

// "CALCULAR": the limits of p and v.
void checkFrameLimits(CheckSequence& checks, const FormState& s);
// The tables agree with p and v.
void checkFrameTables(CheckSequence& checks, const FormState& s, const FrameScreens& f);
// Node and bar counts, then every value of the tables; the model on success.
std::optional<FrameModel> readFrame(const FormState& s, CheckSequence& checks, const FrameScreens& f);

}  // namespace morve
