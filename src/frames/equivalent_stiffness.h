#pragma once
// The cantilever that stands for a frame or a stepped column: same height, same
// load, same top displacement. Form30 and Form31 differ only in the structure they
// load.
#include "app/module.h"
#include "basis/checks.h"

namespace morve {

inline constexpr double kUnitForce = 1000;  // kN at the top, "Carga concentrada"
inline constexpr double kUnitLoad = 10;     // kN/m over the height, "Carga uniforme"

// EI of the cantilever of height h whose top moves d under the load type chosen.
double equivalentStiffness(bool concentrated, double height, double sway);

// The material checks of the equivalent-stiffness modules: fck, Ecs.
void checkStiffnessMaterials(CheckSequence& checks, const FormState& s);
// EIeq and Ieq into Text11 and Text12; false when the arithmetic left the range of
// numbers (the caller warns).
bool writeStiffness(FormState& s, double ei, double e);

class Form30 : public Module {
public:
    ModuleInfo info() const override;
    std::vector<ScreenDecl> screens() const override;
    void load(FormState& state, const StartDefaults& defaults) const override;
    Outcome press(const std::string& command, FormState& state, Prompter& prompter) const override;
    void report(const std::string& key, const FormState& state, ReportWriter& out) const override;
    Drawing drawing(const std::string& picture, const FormState& state) const override;
};

class Form31 : public Module {
public:
    ModuleInfo info() const override;
    std::vector<ScreenDecl> screens() const override;
    void load(FormState& state, const StartDefaults& defaults) const override;
    Outcome press(const std::string& command, FormState& state, Prompter& prompter) const override;
    void report(const std::string& key, const FormState& state, ReportWriter& out) const override;
};

}  // namespace morve
