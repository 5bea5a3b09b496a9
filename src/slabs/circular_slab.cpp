// Lajes circulares: a circular solid slab under uniform load, simply supported or
// fixed round its edge, by the closed formulas of the axisymmetric plate.
#include <cmath>

#include "app/module.h"
#include "app/numbers.h"
#include "numeric/elementary.h"
#include "reports/report_writer.h"
#include "slabs/slab_basis.h"

namespace morve {

namespace {

class Form24d : public Module {
public:
    ModuleInfo info() const override {
        ModuleInfo i;
        i.key = "Form24d";
        i.unloads = {"Form24e", "FormAjuda"};
        return i;
    }

    std::vector<ScreenDecl> screens() const override {
        ScreenBuilder s("Form24d", " LAJES CIRCULARES     CARGA UNIFORME");
        addConcreteFrame(s, "Frame1", 0, 0);
        addLoadFrame(s, "Frame3", 1, 0);
        s.frame("Frame4", "Geometria", 0, 1).box("Text6", "R (m)=").box("Text8", "h (cm)=");
        s.frame("Frame2", "Contorno da laje", 1, 1)
            .option("Option1", "Simplesmente apoiada", "Contorno", true)
            .option("Option2", "Engastada", "Contorno");
        s.frame("Frame5", "", 2, 0, 1, 2).command("Command1", "&CALCULAR", "Calcular esforços e flecha");
        ScreenBuilder r("Form24e", "LAJES CIRCULARES", false);
        addCentreResultFrames(r, "Momentos fletores")
            .result("Text3", "Mr=")
            .result("Text4", "Mc=")
            .result("Text5", "Resultante (malha quadrada)=")
            .result("Text6", "Mer=");
        addBackAndPrint(r.frame("Frame3", "", 1, 0, 1, 2));
        return {s.build(), r.build()};
    }

    void load(FormState& state, const StartDefaults& defaults) const override { loadConcreteDefaults(state, defaults); }

    Outcome press(const std::string& command, FormState& s, Prompter& prompter) const override {
        if (command == "Form24e.Command1")
            return Outcome::done().then(EffectKind::HideScreen, "Form24e").then(EffectKind::ShowScreen, "Form24d");
        if (command == "Form24e.Command7")
            return Outcome::done().then(EffectKind::StartReport, "Form24e").then(EffectKind::DisableScreen, "Form24e");
        if (command != "Command1" && command != "Form24d.Command1") return Outcome::stop();

        CheckSequence checks(prompter);
        checkConcreteService(checks, s);
        checkSlabLoads(checks, s);
        const double radius = s.number("Text6"), h = s.number("Text8");
        checkPositive(checks, radius, "o raio", "Text6");
        checkSlabThickness(checks, h, "Text8");
        if (checks.stopped()) return checks.outcome();

        const SlabLoading l = slabLoading(s, h);
        const bool fixed = s.option("Option2");
        const double nu = kSlabPoisson, sq = l.p * radius * radius / 16;
        const double centre = (fixed ? 1 + nu : 3 + nu) * sq;
        // The simply supported plate deflects (5 + nu) / (1 + nu) times as much as the fixed one.
        const double w0 = l.pqp * portable::pow(radius, 4) / (64 * l.d) * (fixed ? 1 : (5 + nu) / (1 + nu));
        writeResult(s, "Form24e.Text1", longTermMm(w0, l));
        writeResult(s, "Form24e.Text2", admissibleMm(2 * radius));
        writeResult(s, "Form24e.Text3", centre);
        writeResult(s, "Form24e.Text4", centre);
        // Equal radial and hoop moments at the centre: a square mesh at any angle
        // needs their resultant, 2 cos 45 degrees times either.
        writeResult(s, "Form24e.Text5", 2 * centre * 0.707106781);
        s.setText("Form24e.Text6", fixed ? formatResult(-2 * sq) : "");
        return Outcome::done()
            .then(EffectKind::HideScreen, "Form24d")
            .then(EffectKind::ShowScreen, "Form0b")
            .then(EffectKind::ShowScreen, "Form24e");
    }

    void report(const std::string& key, const FormState& s, ReportWriter& out) const override {
        if (key != "Form24e") return;
        const bool fixed = s.option("Option2");
        out.write(fixed ? "Contorno da laje: engastado" : "Contorno da laje: simplesmente apoiado");
        out.blank();
        reportConcrete(out, s);
        reportLoads(out, s);
        out.write("Raio da laje: R= ", s.text("Text6"), " m");
        reportThickness(out, s, "Text8");
        out.write("RESULTADOS:");
        out.blank();
        out.write("Flecha final no centro da laje:");
        out.write("Calculada: Wtot= ", s.text("Form24e.Text1"), " mm", tab(40), "Admissível: Wadm= ",
                  s.text("Form24e.Text2"), " mm");
        out.blank();
        out.write("Momentos fletores positivos no centro da laje:");
        out.write("Momento radial: Mr= ", s.text("Form24e.Text3"), " kNm/m");
        out.write("Momento circunferencial: Mc= ", s.text("Form24e.Text4"), " kNm/m");
        out.blank();
        out.write("Armação com malha quadrada:");
        out.write("Momento fletor resultante = ", s.text("Form24e.Text5"), " kNm/m");
        if (fixed) {
            out.blank();
            out.write("Momento negativo na direção radial: Mer= ", s.text("Form24e.Text6"), " kNm/m");
        }
    }
};

RegisterModule<Form24d> registration;

}  // namespace

}  // namespace morve
