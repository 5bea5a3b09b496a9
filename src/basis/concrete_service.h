#pragma once
// The concrete of the service analyses (slabs, stairs): fck, Ecs and the creep
// coefficient in Text1 to Text3 of the main screen, their frame, defaults from the
// start dialog, checks and report lines, written once for every family that has them.
#include <string>

#include "app/form_state.h"
#include "app/screen.h"
#include "app/start_defaults.h"

namespace morve {

class CheckSequence;
class ReportWriter;

void addConcreteFrame(ScreenBuilder& s, const std::string& frame, int row, int column);
// fck and Ecs of the start dialog into Text1 and Text2.
void loadConcreteDefaults(FormState& state, const StartDefaults& defaults);
// fck within the code's range, Ecs positive and near the code's value, creep not above 5.
void checkConcreteService(CheckSequence& checks, const FormState& state);
void reportConcrete(ReportWriter& out, const FormState& s,
                    const std::string& creepCaption = "Coeficiente de fluência = ");

}  // namespace morve
