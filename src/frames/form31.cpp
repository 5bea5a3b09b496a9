// "RIGIDEZ EQUIVALENTE DE PILARES DE SEÇÃO VARIÁVEL": a cantilever column of n
// segments on one line of bars, loaded at its top or along its height; the
// constant section with the same top sway and the same axial flexibility.
#include <cmath>

#include "app/grid_tables.h"
#include "app/numbers.h"
#include "frames/equivalent_stiffness.h"
#include "frames/frame_input.h"
#include "frames/frame_report.h"
#include "frames/frame_texts.h"
#include "frames/plane_frame.h"

namespace morve {

namespace {

RegisterModule<Form31> registerForm31;

const std::string kSegments = "Form31b.Grade1";
// One line of n + 1 nodes of three dof each must fit in the band's equations.
constexpr int kMaxSegments = band_limits::kEquations / kFrameDof - 1;

const std::string kMinSegments = "O número mínimo de segmentos é igual a 1.";
const std::string kZeroHeight = "Você está fornecendo uma altura de segmento igual a zero. Revise os dados.";
const std::string kZeroArea = "Você está fornecendo uma área nula para a seção do pilar. Revise os dados.";
const std::string kZeroInertia = "Você está fornecendo uma inércia nula para a seção do pilar. Revise os dados.";
const std::string kUpdate = "Atualize os dados dos segmentos.";

void checkSegmentCount(CheckSequence& checks, int n) {
    checks.warnIf(n < 1, kMinSegments, "Text3")
        .warnIf(n > kMaxSegments, bandLimitMessage({kFrameDof * (n + 1), 2 * kFrameDof, kFrameDof, 2 * kFrameDof}),
                "Text3");
}

Outcome openSegments(FormState& s, Prompter& prompter) {
    CheckSequence checks(prompter);
    checkStiffnessMaterials(checks, s);
    checkSegmentCount(checks, countIn(s, "Text3"));
    if (checks.stopped()) return checks.outcome();
    sizeTable(s, kSegments, countIn(s, "Text3"), true);
    return switchTo("Form31", "Form31b");
}

Outcome calculate(FormState& s, Prompter& prompter) {
    CheckSequence checks(prompter);
    const int n = countIn(s, "Text3");
    checkStiffnessMaterials(checks, s);
    checkSegmentCount(checks, n);
    checks.warnIf(dataRows(s, kSegments) != n, kUpdate, "Command8");
    if (checks.stopped()) return checks.outcome();
    // The column is a frame of one line: its nodes stand on the heights, its bars
    // carry the sections of their segments.
    FrameModel m;
    m.e = s.number("Text2") * 1000;
    std::vector<FrameBar> bars;
    bool heights = true, areas = true, inertias = true;
    double flexibility = 0;
    for (int i = 1; i <= n; ++i) {
        const double h = s.cellNumber(kSegments, i, 1), a = s.cellNumber(kSegments, i, 2) / 1e4,
                     inertia = s.cellNumber(kSegments, i, 3) / 1e8;
        heights = heights && h > 0 && std::isfinite(h);
        areas = areas && a > 0 && std::isfinite(a);
        inertias = inertias && inertia > 0 && std::isfinite(inertia);
        m.heights.push_back(h);
        bars.push_back({BarKind::Column, i, i + 1, m.e * a, m.e * inertia, 0, 0, i, 1});
        flexibility += h / a;
    }
    checks.warnIf(!heights, kZeroHeight, "Command8")
        .warnIf(!areas, kZeroArea, "Command8")
        .warnIf(!inertias, kZeroInertia, "Command8");
    if (checks.stopped()) return checks.outcome();
    const FrameSolver solver(m, bars);
    checks.warnIf(solver.singular(), msg::kSingular);
    if (checks.stopped()) return checks.outcome();
    const bool concentrated = s.option("Option1");
    std::vector<double> load(static_cast<std::size_t>(m.equations()), 0.0);
    if (concentrated) {
        load[static_cast<std::size_t>(kFrameDof * n)] = kUnitForce;
    } else {
        // Each segment's share of the uniform load at its two ends: forces q h / 2
        // and the moments -q h^2 / 12 below, +q h^2 / 12 above.
        for (int i = 1; i <= n; ++i) {
            const double h = m.heights[static_cast<std::size_t>(i - 1)];
            const std::size_t below = static_cast<std::size_t>(kFrameDof * (i - 1)), above = below + kFrameDof;
            load[below] += kUnitLoad * h / 2;
            load[above] += kUnitLoad * h / 2;
            load[below + 2] -= kUnitLoad * h * h / 12;
            load[above + 2] += kUnitLoad * h * h / 12;
        }
    }
    const std::vector<double> u = solver.solve(load);
    const double height = m.levelHeight(n);
    const double ei = equivalentStiffness(concentrated, height, u[static_cast<std::size_t>(kFrameDof * n)]);
    const double area = height / flexibility;
    checks.warnIf(!writeStiffness(s, ei, m.e) || !std::isfinite(area), msg::kOutOfRange);
    if (checks.stopped()) return checks.outcome();
    s.setText("Text4", formatResult(area, 4));
    return Outcome::done().then(EffectKind::EnableControl, printButton("Form31"));
}

}  // namespace

ModuleInfo Form31::info() const {
    ModuleInfo i;
    i.key = "Form31";
    i.unloads = {"FormAjuda", "Form31b"};
    i.printKey = "Form31";
    i.calculate = "Command3";
    return i;
}

std::vector<ScreenDecl> Form31::screens() const {
    ScreenBuilder main("Form31", "RIGIDEZ EQUIVALENTE DE PILARES DE SEÇÃO VARIÁVEL");
    concreteBoxes(main);
    main.frame("Frame2", "Pilar", 0, 1)
        .box("Text3", "Número de segmentos: n=", "", "", KeyFilter::Digit)
        .command("Command8", "Segmentos");
    loadModelOptions(main);
    main.frame("Frame4", "Resultados", 1, 1)
        .command("Command3", "CALCULAR")
        .result("Text11", "Rigidez equivalente (kNm2)=")
        .result("Text12", "Inércia equivalente (m4)=")
        .result("Text4", "Área equivalente (m2)=");
    ScreenBuilder segments("Form31b", "Dados dos segmentos do pilar", false);
    GridDecl g;
    g.header = {"Segmento", "H (m)", "A (cm2)", "I (cm4)"};
    g.maxRows = kMaxSegments;
    segments.frame("Frame1", "Dados dos segmentos do pilar", 0, 0)
        .grid("Grade1", g)
        .label("Label1", "Segmentos numerados a partir da base")
        .command("Command1", "OK");
    return {main.build(), segments.build()};
}

void Form31::load(FormState& state, const StartDefaults& defaults) const {
    loadConcrete(state, defaults);
}

Outcome Form31::press(const std::string& command, FormState& s, Prompter& prompter) const {
    const std::string c = s.qualify(command);
    if (c == "Form31.Command8") return openSegments(s, prompter);
    if (c == "Form31.Command3") return calculate(s, prompter);
    if (c == "Form31b.Command1") return switchTo("Form31b", "Form31", "Form31.Command3");
    return Outcome::stop();
}

void Form31::report(const std::string& key, const FormState& s, ReportWriter& out) const {
    if (key != "Form31") return;
    writeConcrete(s, out);
    out.write("Dados do Pilar:");
    out.write("Número de segmentos= ", s.text("Text3"));
    for (int i = 1; i <= dataRows(s, kSegments); ++i)
        out.write("Segmento= ", std::to_string(i), tab(15), "Altura (m)= ", reportCell(s, kSegments, i, 1), tab(35),
                  "Área (cm2)= ", reportCell(s, kSegments, i, 2), tab(55), "Inércia (cm4)= ",
                  reportCell(s, kSegments, i, 3));
    out.blank();
    writeStiffnessAnswer(s, out, true);
}

}  // namespace morve
