// "DETERMINAÇÃO DA RIGIDEZ EQUIVALENTE DE PÓRTICOS PLANOS": the frame of the wind
// module, bare and first order, under a unit-type load at its left column; the
// cantilever with the same top sway gives EIeq and Ieq.
#include <cmath>

#include "app/grid_tables.h"
#include "app/numbers.h"
#include "basis/messages.h"
#include "frames/equivalent_stiffness.h"
#include "frames/form33.h"
#include "frames/frame_report.h"
#include "frames/frame_texts.h"

namespace morve {

namespace {

RegisterModule<Form30> registerForm30;

const FrameScreens kScreens{"Form30b", "Form30c", false};

Outcome openTables(FormState& s, Prompter& prompter, const std::string& screen) {
    CheckSequence checks(prompter);
    checkFrameCounts(checks, s, msg::kHighFck);
    if (checks.stopped()) return checks.outcome();
    if (screen == kScreens.columns) sizeColumnTables(s, kScreens);
    if (screen == kScreens.beams) sizeBeamTables(s, kScreens);
    return switchTo("Form30", screen);
}

// The horizontal load of each level on the left column line.
std::vector<double> unitLoads(const FrameModel& m, bool concentrated) {
    const int v = m.levels();
    std::vector<double> f(static_cast<std::size_t>(v), 0.0);
    if (concentrated) {
        f.back() = kUnitForce;
        return f;
    }
    for (int i = 1; i <= v; ++i) {
        const double below = m.heights[static_cast<std::size_t>(i - 1)];
        const double above = i < v ? m.heights[static_cast<std::size_t>(i)] : 0;
        f[static_cast<std::size_t>(i - 1)] = kUnitLoad * (below + above) / 2;
    }
    return f;
}

Outcome calculate(FormState& s, Prompter& prompter) {
    CheckSequence checks(prompter);
    checkFrameLimits(checks, s);
    checkFrameTables(checks, s, kScreens);
    if (checks.stopped()) return checks.outcome();
    const std::optional<FrameModel> m = readFrame(s, checks, kScreens);
    if (!m) return checks.outcome();
    const bool concentrated = s.option("Option1");
    const FrameSolver solver(*m, frameBars(*m));
    checks.warnIf(solver.singular(), msg::kSingular);
    if (checks.stopped()) return checks.outcome();
    const std::vector<double> u = solver.solveLevels(unitLoads(*m, concentrated));
    const double height = m->levelHeight(m->levels());
    const double ei = equivalentStiffness(concentrated, height, levelSway(*m, u, m->levels()));
    checks.warnIf(!writeStiffness(s, ei, m->e), msg::kOutOfRange);
    if (checks.stopped()) return checks.outcome();
    return Outcome::done().then(EffectKind::EnableControl, printButton("Form30"));
}

}  // namespace

ModuleInfo Form30::info() const {
    ModuleInfo i;
    i.key = "Form30";
    i.unloads = {"FormAjuda", "FormAbrir", "FormSalvar", "Form30b", "Form30c", "Form30d"};
    i.printKey = "Form30";
    i.calculate = "Command3";
    return i;
}

std::vector<ScreenDecl> Form30::screens() const {
    ScreenBuilder main("Form30", "DETERMINAÇÃO DA RIGIDEZ EQUIVALENTE DE PÓRTICOS PLANOS");
    concreteBoxes(main);
    main.frame("Frame2", "Pórtico", 0, 1)
        .box("Text3", "Número de pilares:  p=", "", "", KeyFilter::Digit)
        .box("Text4", "Número de vigas: v=", "", "", KeyFilter::Digit)
        .command("Command8", "Pilares")
        .command("Command4", "Vigas")
        .command("Command10", "Ver desenho");
    loadModelOptions(main);
    main.frame("Frame4", "Resultados", 1, 1)
        .command("Command3", "CALCULAR")
        .result("Text11", "Rigidez equivalente (kNm2)=")
        .result("Text12", "Inércia equivalente (m4)=");
    ScreenBuilder picture("Form30d", "Pórtico", false);
    picture.frame("Frame1", "", 0, 0).picture("Picture1", 700, 500).command("Command1", "&Voltar");
    return {main.build(), columnScreen(kScreens), beamScreen(kScreens), picture.build()};
}

void Form30::load(FormState& state, const StartDefaults& defaults) const {
    loadConcrete(state, defaults);
}

Outcome Form30::press(const std::string& command, FormState& s, Prompter& prompter) const {
    const std::string c = s.qualify(command);
    if (c == "Form30.Command8") return openTables(s, prompter, kScreens.columns);
    if (c == "Form30.Command4") return openTables(s, prompter, kScreens.beams);
    if (c == "Form30.Command10") return openTables(s, prompter, "Form30d");
    if (c == "Form30.Command3") return calculate(s, prompter);
    if (c == "Form30b.Command1") return switchTo("Form30b", "Form30", "Form30.Command4");
    if (c == "Form30c.Command1") return switchTo("Form30c", "Form30", "Form30.Command3");
    if (c == "Form30d.Command1") return switchTo("Form30d", "Form30");
    return Outcome::stop();
}

Drawing Form30::drawing(const std::string& picture, const FormState& s) const {
    if (s.qualify(picture) != "Form30d.Picture1") return {};
    const std::optional<FrameModel> m = frameOutline(s, kScreens);
    return m ? framePicture(*m, unitLoads(*m, s.option("Option1"))) : Drawing{};
}

void Form30::report(const std::string& key, const FormState& s, ReportWriter& out) const {
    if (key != "Form30") return;
    writeConcrete(s, out);
    writeFrameData(s, kScreens, out);
    writeStiffnessAnswer(s, out, false);
}

}  // namespace morve
