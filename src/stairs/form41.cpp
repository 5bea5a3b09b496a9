// "Helicoidais": the internal forces of a helicoidal beam, ramp or stair, held at
// both floors, from the helix of bars in space.
#include <cmath>
#include <optional>

#include "app/prompter.h"
#include "app/numbers.h"
#include "basis/messages.h"
#include "reports/report_writer.h"
#include "stairs/axonometric.h"
#include "stairs/helix.h"
#include "stairs/stair_module.h"
#include "stairs/stair_screens.h"

namespace morve {

namespace {

constexpr double kPi = 3.14159265358979323846;

const std::string kOpening = "A abertura total 2a deve ser maior que 0 e no máximo igual a 360 graus.";
const std::string kNegativeRise = "A altura de piso a piso H não pode ser negativa.";
const std::string kTooWide = "A largura b deve ser menor que o diâmetro 2R da hélice média.";
const std::vector<std::string> kSections = {"Base", "Topo", "Centro"};

// The data as typed, with no check: what the picture is drawn from.
Helix typedHelix(const FormState& s) {
    Helix h;
    h.opening = s.number("Text4") * kPi / 180;
    h.radius = s.number("Text5");
    h.rise = s.number("Text6");
    h.thickness = s.number("Text9") / 100;
    h.width = s.number("Text10");
    h.modulus = stairModulus(s);
    h.creep = s.number("Text3");
    h.g = s.number("Text7");
    h.q = s.number("Text8");
    h.clockwise = clockwiseRise(s);
    h.fixedEnds = fixedEnds(s);
    return h;
}

std::optional<Helix> readHelix(const FormState& s, CheckSequence& checks) {
    checkStairConcrete(checks, s);
    const double opening = s.number("Text4");
    checks.warnIf(!(opening > 0 && opening <= 360), kOpening, "Text4");
    const double r = positiveBox(checks, s, "Text5", "o raio médio R");
    const double rise = s.number("Text6");
    checks.warnIf(!(rise >= 0) || !std::isfinite(rise), kNegativeRise, "Text6");
    positiveBox(checks, s, "Text9", "a espessura h");
    const double b = positiveBox(checks, s, "Text10", "a largura b");
    checks.warnIf(!checks.stopped() && !(b < 2 * r), kTooWide, "Text10");
    loadBox(checks, s, "Text7", "carga permanente g");
    loadBox(checks, s, "Text8", "carga acidental q");
    if (checks.stopped()) return std::nullopt;
    return typedHelix(s);
}

// The helix in isometric view: its two edges, a cross line every few bars, the
// axis displaced (red), the supports and the global axes.
Drawing helixPicture(const Helix& h) {
    const HelixResults r = analyseHelix(h);
    SpacePicture p;
    const int n = h.bars, every = std::max(1, n / 24);
    std::vector<Vec3> inner, outer;
    for (int k = 0; k <= n; ++k) {
        const double angle = -h.opening / 2 + h.opening * k / n;
        const Vec3 c = helixPoint(h, angle), y = helixSection(h, angle)[1];
        inner.push_back(c - h.width / 2 * y);
        outer.push_back(c + h.width / 2 * y);
        if (k % every == 0 || k == n) p.path({inner.back(), outer.back()}, colours::grey);
    }
    p.path(inner);
    p.path(outer);
    deformedShape(p, r.model, r.frame, displacementScale(r.model, r.frame, 0.1));
    const double size = std::max(0.15, h.radius / 12);
    p.support(helixPoint(h, -h.opening / 2), size);
    p.support(helixPoint(h, h.opening / 2), size);
    p.text(helixPoint(h, -h.opening / 2), "  Base");
    p.text(helixPoint(h, h.opening / 2), "  Topo");
    p.text(helixPoint(h, 0), "  Centro");
    p.axes({0, 0, 0}, h.radius / 2);
    p.drawing.fitContent = true;
    p.caption("Deformada em vermelho (ampliada)", colours::red);
    return p.drawing;
}

class Form41 : public StairModule {
public:
    Form41()
        : StairModule({"Form41", "Escada helicoidal", 10, "Text13", kSections,
                       {"Esforços na base:", "Esforços no topo:", "Esforços no centro:"}}) {}

protected:
    ScreenDecl mainScreen() const override {
        ScreenBuilder main("Form41", "CÁLCULO DE ESFORÇOS EM VIGAS, RAMPAS E ESCADAS HELICOIDAIS");
        stairConcreteFrame(main, 0, 0);
        main.frame("Frame2", "Geometria", 0, 1)
            .box("Text4", "Abertura total 2a = ", "", "graus")
            .box("Text5", "Raio médio R = ", "", "m")
            .box("Text6", "Altura de piso a piso H = ", "", "m")
            .box("Text9", "Espessura h = ", "", "cm")
            .box("Text10", "Largura b = ", "", "m");
        stairOptionFrames(main, 1);
        main.frame("Frame5", "Cargas (kN/m2 de projeção horizontal)", 2, 0)
            .box("Text7", "Permanente: g = ")
            .box("Text8", "Acidental: q = ")
            .label("Label5", "Peso próprio (25 kN/m3) somado pelo programa");
        main.frame("Frame7", "", 2, 1)
            .command("Command1", "&CALCULAR", "Calcular os esforços")
            .command("Command2", "Ver desenho", "A hélice em perspectiva, com a deformada")
            .disabled();
        stairResultFrame(main, 3, kSections, "Text13");
        return main.build();
    }

    Outcome calculate(FormState& s, Prompter& prompter) const override {
        CheckSequence checks(prompter);
        clearResults(s);
        const std::optional<Helix> h = readHelix(s, checks);
        if (!h) return checks.outcome();
        const HelixResults r = analyseHelix(*h);
        const bool mechanism = !r.solved && r.frame.mechanism;
        checks.warnIf(mechanism && !fixedEnds(s), kStairMechanism, "Option3");
        if (mechanism && fixedEnds(s))
            stopNearMechanism(checks, {{"Text9", "a espessura h", s.number("Text9") / 100},
                                       {"Text10", "a largura b", s.number("Text10")}});
        checks.warnIf(!r.solved, kStairOutOfRange, "Text5");
        if (checks.stopped()) return checks.outcome();
        writeStairResults(s, {{kSections[0], r.base}, {kSections[1], r.top}, {kSections[2], r.centre}}, r.baseForce,
                          r.baseMoment, r.topForce, r.topMoment, r.deflection, "Text13");
        return calculated();
    }

    Drawing picture(const FormState& s) const override {
        ScriptedPrompter quiet;
        CheckSequence checks(quiet);
        const std::optional<Helix> h = readHelix(s, checks);
        return h ? helixPicture(*h) : Drawing{};
    }

    void reportData(const FormState& s, ReportWriter& out) const override {
        out.write("Geometria:");
        out.write("Abertura total 2a = ", s.text("Text4"), " graus");
        out.write("Raio médio R = ", s.text("Text5"), " m");
        out.write("Altura de piso a piso H = ", s.text("Text6"), " m");
        out.write("Espessura h = ", s.text("Text9"), " cm");
        out.write("Largura b = ", s.text("Text10"), " m");
        out.blank();
        reportStairOptions(out, s);
        out.write("Cargas (kN/m2 de projeção horizontal):");
        out.write("Permanente: g = ", s.text("Text7"), " kN/m2");
        out.write("Acidental: q = ", s.text("Text8"), " kN/m2");
        out.write("Peso próprio da laje: 25 kN/m3");
        out.blank();
    }
};

RegisterModule<Form41> registerForm41;

}  // namespace

}  // namespace morve
