// Lajes retangulares simplesmente apoiadas, cargas diversas: the deflection and
// moments at the centre of a slab supported on four sides under one point, line
// or patch load.
#include <algorithm>

#include "app/module.h"
#include "app/numbers.h"
#include "reports/report_writer.h"
#include "slabs/navier.h"
#include "slabs/slab_basis.h"

namespace morve {

namespace {

enum class LoadKind { Point, Line, Patch };

LoadKind kindOf(const FormState& s) {
    if (s.option("Option2")) return LoadKind::Line;
    if (s.option("Option3")) return LoadKind::Patch;
    return LoadKind::Point;
}

// The boxes of each kind of load: value, ax, ay, Bx, By ("" where it has none).
struct LoadBoxes {
    const char *value, *ax, *ay, *bx, *by;
    const char* frame;
};
const LoadBoxes& boxesOf(LoadKind k) {
    static const LoadBoxes point{"Text7", "Text8", "Text9", "", "", "Frame5"};
    static const LoadBoxes line{"Text10", "Text11", "", "", "", "Frame6"};
    static const LoadBoxes patch{"Text12", "Text13", "Text14", "Text15", "Text16", "Frame7"};
    return k == LoadKind::Point ? point : k == LoadKind::Line ? line : patch;
}

double valueOf(const FormState& s, const char* box) { return *box ? s.number(box) : 0; }

class Form23 : public Module {
public:
    ModuleInfo info() const override {
        ModuleInfo i;
        i.key = "Form23";
        i.unloads = {"Form23b", "FormAjuda"};
        return i;
    }

    std::vector<ScreenDecl> screens() const override {
        ScreenBuilder s("Form23", " LAJES RETANGULARES SIMPLESMENTE APOIADAS     CARGAS DIVERSAS");
        addConcreteFrame(s, "Frame1", 0, 0);
        s.frame("Frame2", "Vãos (m) e espessura", 1, 0)
            .box("Text4", "lx=")
            .box("Text5", "ly=")
            .box("Text6", "h (cm)=");
        s.frame("Frame3", "Tipo de carga", 0, 1)
            .option("Option1", "Concentrada", "Carga", true)
            .option("Option2", "Linear", "Carga")
            .option("Option3", "Em área reduzida", "Carga");
        s.frame("Frame5", "Carga concentrada", 1, 1)
            .box("Text7", "P (kN)=")
            .box("Text8", "ax (m)=")
            .box("Text9", "ay (m)=");
        s.frame("Frame6", "Carga linear (paralela a y)", 0, 2)
            .box("Text10", "p (kN/m)=")
            .box("Text11", "ax (m)=");
        s.frame("Frame7", "Carga em área reduzida", 1, 2)
            .box("Text12", "p (kN/m2)=")
            .box("Text13", "ax (m)=")
            .box("Text14", "ay (m)=")
            .box("Text15", "Bx (m)=")
            .box("Text16", "By (m)=");
        s.frame("Frame8", "", 2, 0, 1, 3).command("Command1", "&CALCULAR", "Calcular esforços e flecha");
        ScreenBuilder r("Form23b", "LAJES RETANGULARES SIMPLESMENTE APOIADAS", false);
        addCentreResultFrames(r, "Momentos fletores no centro")
            .result("Text3", "Mx=")
            .result("Text4", "My=");
        addBackAndPrint(r.frame("Frame3", "", 1, 0, 1, 2));
        return {s.build(), r.build()};
    }

    // Only the boxes of the kind of load selected are in view, from the start as
    // after a choice; boxes of a hidden frame still take typed text.
    void load(FormState& state, const StartDefaults& defaults) const override {
        loadConcreteDefaults(state, defaults);
        for (LoadKind k : {LoadKind::Point, LoadKind::Line, LoadKind::Patch})
            state.setVisible(std::string("Form23.") + boxesOf(k).frame, k == kindOf(state));
    }

    Outcome press(const std::string& command, FormState& s, Prompter& prompter) const override {
        const std::string c = command.rfind("Form23.", 0) == 0 ? command.substr(7) : command;
        if (c == "Option1" || c == "Option2" || c == "Option3") {
            // Choosing the kind of load shows its own boxes only.
            s.setOption(c, true);
            Outcome o = Outcome::done();
            for (LoadKind k : {LoadKind::Point, LoadKind::Line, LoadKind::Patch})
                o.then(k == kindOf(s) ? EffectKind::ShowControl : EffectKind::HideControl,
                       std::string("Form23.") + boxesOf(k).frame);
            return o;
        }
        if (command == "Form23b.Command1")
            return Outcome::done().then(EffectKind::HideScreen, "Form23b").then(EffectKind::ShowScreen, "Form23");
        if (command == "Form23b.Command7")
            return Outcome::done().then(EffectKind::StartReport, "Form23b").then(EffectKind::DisableScreen, "Form23b");
        if (c != "Command1") return Outcome::stop();
        return calculate(s, prompter);
    }

    void report(const std::string& key, const FormState& s, ReportWriter& out) const override {
        if (key != "Form23b") return;
        reportConcrete(out, s);
        reportSpans(out, s, "Text4", "Text5");
        reportThickness(out, s, "Text6");
        const LoadKind kind = kindOf(s);
        const LoadBoxes& b = boxesOf(kind);
        if (kind == LoadKind::Point) {
            out.write("CARREGAMENTO: Carga concentrada");
            out.write("Coordenadas do ponto de aplicação da carga:");
            out.write("ax= ", s.text(b.ax), " m", tab(20), "ay= ", s.text(b.ay), " m");
            out.write("Carga concentrada: P= ", s.text(b.value), " kN");
        } else if (kind == LoadKind::Line) {
            out.write("CARREGAMENTO: Carga linear");
            out.write("Coordenada da linha de carga: ax= ", s.text(b.ax), " m");
            out.write("Carga linear: p= ", s.text(b.value), " kN/m");
        } else {
            out.write("CARREGAMENTO: Carga distribuída em área reduzida");
            out.write("Coordenadas do centro da área carregada:");
            out.write("ax= ", s.text(b.ax), " m", tab(20), "ay= ", s.text(b.ay), " m");
            out.write("Dimensões da área carregada:");
            out.write("Bx= ", s.text(b.bx), " m", tab(20), "By= ", s.text(b.by), " m");
            out.write("Carga distribuída na área reduzida: p= ", s.text(b.value), " kN/m2");
        }
        out.blank();
        out.write("RESULTADOS:");
        out.blank();
        out.write("Flecha final no centro da laje:");
        out.write("Calculada: Wtot= ", s.text("Form23b.Text1"), " mm", tab(40), "Admissível: Wadm= ",
                  s.text("Form23b.Text2"), " mm");
        out.blank();
        out.write("Momentos fletores positivos:");
        out.write("Na direção x: Mx= ", s.text("Form23b.Text3"), " kNm/m");
        out.write("Na direção y: My= ", s.text("Form23b.Text4"), " kNm/m");
    }

private:
    static Outcome calculate(FormState& s, Prompter& prompter) {
        CheckSequence checks(prompter);
        checkConcreteService(checks, s);
        const double lx = s.number("Text4"), ly = s.number("Text5"), h = s.number("Text6");
        checkPositive(checks, lx, "o vão lx", "Text4");
        checkPositive(checks, ly, "o vão ly", "Text5");
        checkSlabThickness(checks, h, "Text6");
        const LoadKind kind = kindOf(s);
        const LoadBoxes& b = boxesOf(kind);
        const double p = valueOf(s, b.value), ax = valueOf(s, b.ax), ay = valueOf(s, b.ay);
        const double bx = valueOf(s, b.bx), by = valueOf(s, b.by);
        const bool hasY = *b.ay != 0, patch = kind == LoadKind::Patch;
        checks.warnIf(!(p > 0), "Forneça o valor da carga.", b.value)
            .warnIf(!(ax > 0), "Forneça a posição do centro da carga.", b.ax)
            .warnIf(hasY && !(ay > 0), "Forneça a posição do centro da carga.", hasY ? b.ay : "")
            .warnIf(patch && !(bx > 0), "Forneça a dimensão da área carregada.", b.bx)
            .warnIf(patch && !(by > 0), "Forneça a dimensão da área carregada.", b.by)
            .warnIf(ax > lx, "A carga está fora da laje. Revise a posição ax.", b.ax)
            .warnIf(hasY && ay > ly, "A carga está fora da laje. Revise a posição ay.", hasY ? b.ay : "")
            .warnIf(patch && (ax - bx / 2 < 0 || ax + bx / 2 > lx || ay - by / 2 < 0 || ay + by / 2 > ly),
                    "A carga está fora da laje.");
        if (checks.stopped()) return checks.outcome();

        // A slab much longer than wide carries a local load as the shorter slab
        // would; the series then keep their accuracy with the same number of terms.
        // The load keeps its distance from the centre, where the results are taken.
        const double ratio = kind == LoadKind::Line ? 5 : 10;
        const double a = std::min(lx, ratio * ly), bb = std::min(ly, ratio * lx);
        const double ax0 = ax - (lx - a) / 2, ay0 = ay - (ly - bb) / 2;
        CentreValues v;
        const bool inside = ax0 >= 0 && ax0 <= a && (!hasY || (ay0 >= 0 && ay0 <= bb));
        if (inside && kind == LoadKind::Point) v = pointLoadAtCentre(a, bb, p, ax0, ay0, kSlabPoisson);
        if (inside && kind == LoadKind::Line) v = lineLoadAtCentre(a, bb, p, ax0, kSlabPoisson);
        if (inside && patch) v = patchLoadAtCentre(a, bb, p, ax0, ay0, std::min(bx, a), std::min(by, bb), kSlabPoisson);

        const SlabLoading l = slabStiffness(s, h);
        writeResult(s, "Form23b.Text1", longTermMm(v.dw / l.d, l));
        writeResult(s, "Form23b.Text2", admissibleMm(std::min(lx, ly)));
        writeResult(s, "Form23b.Text3", v.mx);
        writeResult(s, "Form23b.Text4", v.my);
        return Outcome::done()
            .then(EffectKind::HideScreen, "Form23")
            .then(EffectKind::ShowScreen, "Form0b")
            .then(EffectKind::ShowScreen, "Form23b");
    }
};

RegisterModule<Form23> registration;

}  // namespace

}  // namespace morve
