#pragma once
// The parts of the frame reports that Form30 and Form33 write alike: the concrete
// and the tables of the frame as typed.
#include "app/form_state.h"
#include "frames/frame_input.h"
#include "reports/report_writer.h"

namespace morve {

const std::string& reportCell(const FormState& s, const std::string& grid, int row, int column);
void writeConcrete(const FormState& s, ReportWriter& out);
// "Dados do Pórtico:" and the tables A) to D).
void writeFrameData(const FormState& s, const FrameScreens& f, ReportWriter& out);
// The closing answer of the equivalent-stiffness modules.
void writeStiffnessAnswer(const FormState& s, ReportWriter& out, bool area);

}  // namespace morve
