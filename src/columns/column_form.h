#pragma once
// The eight modules of column sections under normal flexo-compression: design and
// verification of the solid rectangle (Form12, Form13), the box (Form12d, Form13e),
// the solid circle (Form14, Form15) and the hollow circle (Form14c, Form25). They
// run one method (section_model.h) and differ only in the outline of the section,
// the names of their boxes, a few constants and a few words, all held by ColumnForm.
#include <string>
#include <vector>

#include "app/module.h"
#include "columns/section_model.h"

namespace morve {

enum class ColumnShape { Rectangle, Box, Circle, Ring };

inline bool isCircular(ColumnShape s) { return s == ColumnShape::Circle || s == ColumnShape::Ring; }
inline bool isLayered(ColumnShape s) { return !isCircular(s); }

struct ColumnForm {
    std::string key;      // "Form12"
    std::string heading;  // the title inside the window
    ColumnShape shape = ColumnShape::Rectangle;
    bool design = true;   // false: verification with its interaction diagram
    std::vector<std::string> unloads;

    // Section boxes ("" where the shape has none).
    std::string b, h, bw, hf, ho, dPrime, count;
    std::string layerScreen;  // the layer table ("Form12b"); "" for circles

    // Forces: Nk and Mk in design, Nd in verification; the steel area in verification.
    std::string normal, moment, area;
    std::string gamac, gamas, gamaf;

    // Results.
    std::string asResult, asMinimum, barCount, diameter, existing;  // design
    std::string resistingMoment;                                     // verification

    // Commands.
    std::string calculate, layersCommand, drawCommand, diagramCommand;

    // The title of the box that refuses an odd number of bars.
    std::string parityTitle = "MORVE";

    std::string q(const std::string& control) const { return key + "." + control; }
    std::string grid() const { return layerScreen + ".Grade1"; }
};

// The screens shared by the family.
inline const std::string kSectionScreen = "Form12c";
inline const std::string kDiagramScreen = "Form13c";
inline const std::string kDiagramChart = "Form13c.MSChart1";

class ColumnModule : public Module {
public:
    explicit ColumnModule(ColumnForm form) : form_(std::move(form)) {}

    ModuleInfo info() const override;
    std::vector<ScreenDecl> screens() const override;
    void load(FormState& state, const StartDefaults& defaults) const override;
    Outcome press(const std::string& command, FormState& state, Prompter& prompter) const override;
    void report(const std::string& key, const FormState& state, ReportWriter& out) const override;
    Drawing drawing(const std::string& picture, const FormState& state) const override;
    Chart chart(const std::string& control, const FormState& state) const override;

    const ColumnForm& form() const { return form_; }

private:
    Outcome openLayers(FormState& state, Prompter& prompter) const;
    Outcome closeLayers(FormState& state) const;
    Outcome showSection(FormState& state, Prompter& prompter) const;
    Outcome design(FormState& state, Prompter& prompter) const;
    Outcome verify(FormState& state, Prompter& prompter) const;
    Outcome diagram(FormState& state, Prompter& prompter) const;

    ColumnForm form_;
};

// The descriptions of the eight modules.
const ColumnForm& form12();
const ColumnForm& form12d();
const ColumnForm& form13();
const ColumnForm& form13e();
const ColumnForm& form14();
const ColumnForm& form14c();
const ColumnForm& form15();
const ColumnForm& form25();

}  // namespace morve
