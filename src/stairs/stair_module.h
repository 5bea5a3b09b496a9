#pragma once
// The frame both stair modules share: a main screen of data and results, a
// companion with the structure's picture, "CALCULAR" and "Ver desenho", the
// project fields, and a report of the data, the results and the picture.
#include <optional>
#include <string>
#include <vector>

#include "app/module.h"

namespace morve {

struct StairLayout {
    std::string key;               // "Form41"; the picture screen is key + "b"
    std::string pictureTitle;      // the picture screen's heading
    int boxes = 0;                 // Text1 ... TextN are the inputs
    std::string deflectionBox;     // the box of "Flecha máxima"
    std::vector<std::string> sections;      // the rows of Grade1
    std::vector<std::string> reportTitles;  // the report's heads of the rows of Grade1
};

class StairModule : public Module {
public:
    explicit StairModule(StairLayout layout) : layout_(std::move(layout)) {}

    ModuleInfo info() const override;
    std::vector<ScreenDecl> screens() const override;
    void load(FormState& state, const StartDefaults& defaults) const override;
    std::vector<std::string> projectFields() const override;
    Outcome press(const std::string& command, FormState& state, Prompter& prompter) const override;
    Drawing drawing(const std::string& picture, const FormState& state) const override;
    void report(const std::string& key, const FormState& state, ReportWriter& out) const override;

protected:
    // The main screen, results frame and buttons included.
    virtual ScreenDecl mainScreen() const = 0;
    // Checks, analysis and results of "CALCULAR".
    virtual Outcome calculate(FormState& state, Prompter& prompter) const = 0;
    // The picture of the data as typed; empty when they do not make a stair.
    virtual Drawing picture(const FormState& state) const = 0;
    // The report's lines of the geometry and loads.
    virtual void reportData(const FormState& state, ReportWriter& out) const = 0;

    // What a successful calculation enables.
    Outcome calculated() const;
    // The result tables blank, before the checks of a calculation.
    void clearResults(FormState& state) const;

private:
    StairLayout layout_;
};

}  // namespace morve
