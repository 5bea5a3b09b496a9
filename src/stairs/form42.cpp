// "Autoportantes": the internal forces of a stair of two flights and a free
// landing, held only at the base and at the top floor, from a model of bars in
// space.
#include <cmath>
#include <optional>

#include "app/prompter.h"
#include "reports/report_writer.h"
#include "stairs/axonometric.h"
#include "stairs/stair_module.h"
#include "stairs/stair_screens.h"
#include "stairs/two_flights.h"

namespace morve {

namespace {

const std::string kNarrowLanding =
    "O patamar deve ter pelo menos a largura dos dois lances juntos: b não pode ser menor que 2L.";
const std::string kDeflection = "Text15";
const std::vector<std::string> kSections = {"Base", "Topo", "L1, My máx", "L2, My máx", "L1-patamar",
                                            "L2-patamar", "Patamar"};
const std::vector<std::string> kTitles = {"Esforços na base:",
                                          "Esforços no topo:",
                                          "Esforços no lance L1, onde My é máximo:",
                                          "Esforços no lance L2, onde My é máximo:",
                                          "Esforços na ligação do lance L1 com o patamar:",
                                          "Esforços na ligação do lance L2 com o patamar:",
                                          "Esforços no centro do patamar:"};

std::optional<TwoFlights> readStair(const FormState& s, CheckSequence& checks) {
    checkStairConcrete(checks, s);
    TwoFlights t;
    t.run = positiveBox(checks, s, "Text4", "a projeção horizontal do lance a");
    t.flightWidth = positiveBox(checks, s, "Text5", "a largura do lance L");
    t.landingLength = positiveBox(checks, s, "Text6", "o comprimento do patamar c");
    t.landingWidth = positiveBox(checks, s, "Text7", "a largura total do patamar b");
    checks.warnIf(!checks.stopped() && t.landingWidth < 2 * t.flightWidth, kNarrowLanding, "Text7");
    t.rise = positiveBox(checks, s, "Text8", "a altura de piso a piso H");
    t.landingThickness = positiveBox(checks, s, "Text9", "a espessura do patamar h") / 100;
    t.flightThickness = positiveBox(checks, s, "Text10", "a espessura do lance h") / 100;
    t.gFlight = loadBox(checks, s, "Text11", "carga permanente no lance");
    t.gLanding = loadBox(checks, s, "Text12", "carga permanente no patamar");
    t.qFlight = loadBox(checks, s, "Text13", "carga acidental no lance");
    t.qLanding = loadBox(checks, s, "Text14", "carga acidental no patamar");
    if (checks.stopped()) return std::nullopt;
    t.modulus = stairModulus(s);
    t.creep = s.number("Text3");
    t.clockwise = clockwiseRise(s);
    t.fixedEnds = fixedEnds(s);
    return t;
}

// The slabs' outlines in isometric view, the bar model displaced (red), the
// supports and the global axes.
Drawing stairPicture(const TwoFlights& t) {
    const TwoFlightResults r = analyseTwoFlights(t);
    SpacePicture p;
    const double e = (t.landingWidth - t.flightWidth) / 2 * (t.clockwise ? -1 : 1), w = t.flightWidth / 2;
    const double half = t.rise / 2, far = t.run + t.landingLength, edge = t.landingWidth / 2;
    p.path({{0, -e - w, 0}, {t.run, -e - w, half}, {t.run, -e + w, half}, {0, -e + w, 0}, {0, -e - w, 0}});
    p.path({{t.run, -edge, half}, {far, -edge, half}, {far, edge, half}, {t.run, edge, half}, {t.run, -edge, half}});
    p.path({{0, e - w, t.rise}, {t.run, e - w, half}, {t.run, e + w, half}, {0, e + w, t.rise}, {0, e - w, t.rise}});
    deformedShape(p, r.model, r.frame, displacementScale(r.model, r.frame, 0.1));
    const double size = std::max(0.15, t.run / 15);
    p.support({0, -e, 0}, size);
    p.support({0, e, t.rise}, size);
    p.text({t.run / 2, -e, half / 2}, "  L1");
    p.text({t.run / 2, e, 1.5 * half}, "  L2");
    p.text({far, 0, half}, "  Patamar");
    p.axes({0, 0, 0}, std::max(0.5, t.run / 3));
    p.drawing.fitContent = true;
    p.caption("Deformada em vermelho (ampliada)", colours::red);
    return p.drawing;
}

class Form42 : public StairModule {
public:
    Form42() : StairModule({"Form42", "Escada autoportante", 14, kDeflection, kSections, kTitles}) {}

protected:
    ScreenDecl mainScreen() const override {
        ScreenBuilder main("Form42", "CÁLCULO DE ESFORÇOS EM ESCADAS AUTOPORTANTES DE DOIS LANCES");
        stairConcreteFrame(main, 0, 0);
        main.frame("Frame2", "Geometria (m)", 0, 1)
            .box("Text4", "Projeção horizontal do lance inclinado a = ", "", "m")
            .box("Text5", "Largura do lance inclinado L = ", "", "m")
            .box("Text6", "Comprimento do patamar c = ", "", "m")
            .box("Text7", "Largura total do patamar b = ", "", "m")
            .box("Text8", "Altura de piso a piso H = ", "", "m");
        stairOptionFrames(main, 1);
        main.frame("Frame5", "Espessuras (cm)", 2, 0)
            .box("Text9", "No patamar h = ", "", "cm")
            .box("Text10", "No lance h = ", "", "cm")
            .command("Command1", "&CALCULAR", "Calcular os esforços")
            .command("Command2", "Ver desenho", "A escada em perspectiva, com a deformada")
            .disabled();
        main.frame("Frame7", "Cargas (kN/m2 de projeção horizontal)", 2, 1)
            .box("Text11", "Permanente no lance: g = ")
            .box("Text12", "Permanente no patamar: g = ")
            .box("Text13", "Acidental no lance: q = ")
            .box("Text14", "Acidental no patamar: q = ")
            .label("Label5", "Peso próprio (25 kN/m3) somado pelo programa");
        stairResultFrame(main, 3, kSections, kDeflection);

        return main.build();
    }

    Outcome calculate(FormState& s, Prompter& prompter) const override {
        CheckSequence checks(prompter);
        clearResults(s);
        const std::optional<TwoFlights> t = readStair(s, checks);
        if (!t) return checks.outcome();
        const TwoFlightResults r = analyseTwoFlights(*t);
        const bool mechanism = !r.solved && r.frame.mechanism;
        checks.warnIf(mechanism && !fixedEnds(s), kStairMechanism, "Option3");
        if (mechanism && fixedEnds(s))
            stopNearMechanism(checks, {{"Text6", "o comprimento do patamar c", s.number("Text6")},
                                       {"Text5", "a largura do lance L", s.number("Text5")},
                                       {"Text9", "a espessura h no patamar", s.number("Text9") / 100},
                                       {"Text10", "a espessura h no lance", s.number("Text10") / 100}});
        checks.warnIf(!r.solved, kStairOutOfRange, "Text4");
        if (checks.stopped()) return checks.outcome();
        writeStairResults(s,
                          {{kSections[0], r.base},
                           {kSections[1], r.top},
                           {kSections[2], r.flight1Max},
                           {kSections[3], r.flight2Max},
                           {kSections[4], r.flight1Joint},
                           {kSections[5], r.flight2Joint},
                           {kSections[6], r.landingCentre}},
                          r.baseForce, r.baseMoment, r.topForce, r.topMoment, r.deflection, kDeflection);
        return calculated();
    }

    Drawing picture(const FormState& s) const override {
        ScriptedPrompter quiet;
        CheckSequence checks(quiet);
        const std::optional<TwoFlights> t = readStair(s, checks);
        return t ? stairPicture(*t) : Drawing{};
    }

    void reportData(const FormState& s, ReportWriter& out) const override {
        out.write("Geometria:");
        out.write("Projeção horizontal do lance inclinado a = ", s.text("Text4"), " m");
        out.write("Largura do lance inclinado L = ", s.text("Text5"), " m");
        out.write("Comprimento do patamar c = ", s.text("Text6"), " m");
        out.write("Largura total do patamar b = ", s.text("Text7"), " m");
        out.write("Altura de piso a piso H = ", s.text("Text8"), " m");
        out.write("No patamar h = ", s.text("Text9"), " cm");
        out.write("No lance h = ", s.text("Text10"), " cm");
        out.blank();
        reportStairOptions(out, s);
        out.write("Cargas (kN/m2 de projeção horizontal):");
        out.write("Permanente no lance: g = ", s.text("Text11"), " kN/m2");
        out.write("Permanente no patamar: g = ", s.text("Text12"), " kN/m2");
        out.write("Acidental no lance: q = ", s.text("Text13"), " kN/m2");
        out.write("Acidental no patamar: q = ", s.text("Text14"), " kN/m2");
        out.write("Peso próprio das lajes: 25 kN/m3");
        out.blank();
    }
};

RegisterModule<Form42> registerForm42;

}  // namespace

}  // namespace morve
