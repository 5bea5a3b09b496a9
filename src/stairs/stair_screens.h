#pragma once
// What the two stair modules share on their screens and in their reports: the
// concrete, the direction of rise and the end conditions, the tables of internal
// forces and reactions, the checks of the data common to both.
#include <string>
#include <vector>

#include "app/form_state.h"
#include "app/screen.h"
#include "basis/checks.h"
#include "stairs/space_frame.h"

namespace morve {

class ReportWriter;

// "Concreto": fck Text1, Ecs Text2, creep Text3.
void stairConcreteFrame(ScreenBuilder& s, int row, int column);
// The direction of rise (Option1, Option2) and the end conditions (Option3, Option4).
void stairOptionFrames(ScreenBuilder& s, int row);
bool clockwiseRise(const FormState& s);
bool fixedEnds(const FormState& s);

// The results frame: Grade1 internal forces at the named sections, Grade2 the
// reactions at base and top, `deflectionBox` the largest deflection, with the words
// that say which way each points.
void stairResultFrame(ScreenBuilder& s, int row, const std::vector<std::string>& sections,
                      const std::string& deflectionBox);

// One named section's N, Vy, Vz, T, My, Mz.
struct SectionRow {
    std::string name;
    EndForces forces;
};
void writeStairResults(FormState& s, const std::vector<SectionRow>& sections, const Vec3& baseForce,
                       const Vec3& baseMoment, const Vec3& topForce, const Vec3& topMoment, double deflectionM,
                       const std::string& deflectionBox);
// The tables keep their rows, named, with blank values: the screen keeps its size.
void clearStairResults(FormState& s, const std::vector<std::string>& sections, const std::string& deflectionBox);

// fck, Ecs and the creep coefficient, each with its question.
void checkStairConcrete(CheckSequence& checks, const FormState& s);
// A box that must hold a positive number; its value.
double positiveBox(CheckSequence& checks, const FormState& s, const std::string& box, const std::string& what);
// A load that may be zero but not negative.
double loadBox(CheckSequence& checks, const FormState& s, const std::string& box, const std::string& what);

// Ecs in kN/m2, from MPa.
double stairModulus(const FormState& s);

// The report's lines of the concrete, the options and the results. `titles` name
// the rows of Grade1 as the report heads them ("Esforços na base:").
void reportStairConcrete(ReportWriter& out, const FormState& s);
void reportStairOptions(ReportWriter& out, const FormState& s);
void reportStairResults(ReportWriter& out, const FormState& s, const std::vector<std::string>& titles,
                        const std::string& deflectionBox);

inline const std::string kStairMechanism =
    "Com estes apoios a escada não é estável: ela pode girar em torno da reta que liga os apoios. Use "
    "extremidades engastadas ou altere a geometria.";
// A stair whose ends are fixed cannot turn about its supports, yet one dimension far
// too small for the others leaves it so flexible that the analysis cannot tell it
// from a mechanism. The smallest of the named dimensions (in metres) is the one to
// change: the run stops on its box, with the message that names it.
struct StairDimension {
    std::string box;
    std::string name;  // "a espessura h"
    double metres = 0;
};
void stopNearMechanism(CheckSequence& checks, const std::vector<StairDimension>& dimensions);

inline const std::string kStairOutOfRange =
    "Os valores fornecidos levam a resultados fora dos limites numéricos. Revise os dados.";

}  // namespace morve
