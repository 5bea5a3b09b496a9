#include "slabs/slab_basis.h"

#include <cmath>

#include "app/numbers.h"
#include "basis/messages.h"
#include "numeric/elementary.h"
#include "reports/report_writer.h"

namespace morve {

namespace {

const std::string kThinSlab =
    "Segundo a NBR-6118, a espessura mínima das lajes maciças é 7 cm, em todos os casos.   Clique em "
    "OK para corrigir a espessura. Clique em CANCELAR para continuar.";

}  // namespace


void addLoadFrame(ScreenBuilder& s, const std::string& frame, int row, int column) {
    s.frame(frame, "Cargas (kN/m2)", row, column)
        .box("Text4", "Permanente=")
        .label("Label20", "(Incluir o peso próprio)")
        .box("Text5", "Acidental=");
}

void addRectangularSlabFrames(ScreenBuilder& s) {
    addConcreteFrame(s, "Frame1", 0, 0);
    addLoadFrame(s, "Frame3", 1, 0);
    s.frame("Frame4", "Vãos (m)", 0, 1).box("Text6", "lx=").box("Text7", "ly=");
    s.frame("Frame5", "Espessura da laje", 1, 1).box("Text8", "h (cm)=");
}

ScreenBuilder& addCentreResultFrames(ScreenBuilder& r, const std::string& momentsCaption) {
    r.frame("Frame1", "Flecha no centro", 0, 0)
        .label("Label1", "Valores em mm:")
        .result("Text1", "Calculada =")
        .result("Text2", "Admissível =");
    return r.frame("Frame2", momentsCaption, 0, 1).label("Label2", "Valores em kNm/m:");
}

ScreenBuilder& addBackAndPrint(ScreenBuilder& r) {
    return r.command("Command1", "&Voltar").command("Command7", "Im&primir", "Imprimir relatório");
}



void checkPositive(CheckSequence& checks, double value, const std::string& what, const std::string& box) {
    checks.warnIf(!(value > 0), msg::positiveValue(what), box);
}

void checkSlabLoads(CheckSequence& checks, const FormState& s) {
    checkPositive(checks, s.number("Text4"), "a carga permanente", "Text4");
    checkPositive(checks, s.number("Text5"), "a carga acidental", "Text5");
}

void checkSlabThickness(CheckSequence& checks, double hCm, const std::string& box) {
    checkPositive(checks, hCm, "a espessura da laje", box);
    checks.confirmIf(hCm < 7, kThinSlab, box);
}

SlabLoading slabStiffness(const FormState& s, double hCm) {
    SlabLoading l;
    const double h = hCm / 100, ecs = s.number("Text2") * 1000;
    l.d = ecs * h * h * h / (12 * (1 - kSlabPoisson * kSlabPoisson));
    l.creep = s.number("Text3");
    return l;
}

SlabLoading slabLoading(const FormState& s, double hCm) {
    SlabLoading l = slabStiffness(s, hCm);
    const double g = s.number("Text4"), q = s.number("Text5");
    l.p = g + q;
    l.pqp = g + 0.3 * q;
    return l;
}


void reportLoads(ReportWriter& out, const FormState& s) {
    out.write("Cargas:");
    out.write("Permanente g= ", s.text("Text4"), " kN/m2", tab(40), "Acidental q= ", s.text("Text5"), " kN/m2");
    out.blank();
}

void reportSpans(ReportWriter& out, const FormState& s, const std::string& lx, const std::string& ly) {
    out.write("Vãos da laje:", tab(20), "lx= ", s.text(lx), " m", tab(40), "ly= ", s.text(ly), " m");
    out.blank();
}

void reportThickness(ReportWriter& out, const FormState& s, const std::string& h) {
    out.write("Espessura da laje h= ", s.text(h), " cm");
    out.blank();
}

double Fit::operator()(double r) const {
    for (std::size_t i = 0; i < pieces.size(); ++i) {
        if (r <= pieces[i].upTo || i + 1 == pieces.size()) {
            double v = 0;
            const auto& c = pieces[i].c;
            for (auto it = c.rbegin(); it != c.rend(); ++it) v = v * r + *it;
            return v;
        }
    }
    return 0;
}

Drawing supportDrawing(const SupportPattern& p) {
    // A slab 60 x 40 in plan, x to the right, y downwards as the screen has it.
    const double w = 60, h = 40;
    Drawing g;
    g.left = -8;
    g.top = -14;
    g.right = w + 14;
    g.bottom = h + 8;
    g.rectangle({0, 0}, {w, h}, colours::lightGrey, 1, true);
    struct Side {
        SlabEdge edge;
        Point a, b, out;  // ends, and the outward unit normal
    };
    const Side sides[] = {{p.x0, {0, 0}, {0, h}, {-1, 0}},
                          {p.x1, {w, 0}, {w, h}, {1, 0}},
                          {p.y0, {0, 0}, {w, 0}, {0, -1}},
                          {p.y1, {0, h}, {w, h}, {0, 1}}};
    for (const Side& s : sides) {
        const double len = portable::hypot(s.b.x - s.a.x, s.b.y - s.a.y);
        const Point t{(s.b.x - s.a.x) / len, (s.b.y - s.a.y) / len};
        if (s.edge == SlabEdge::Free) {
            for (double u = 0; u < len; u += 6)
                g.line({s.a.x + t.x * u, s.a.y + t.y * u}, {s.a.x + t.x * (u + 3), s.a.y + t.y * (u + 3)},
                       colours::black, 2);
            continue;
        }
        g.line(s.a, s.b, colours::black, 2);
        if (s.edge != SlabEdge::Fixed) continue;
        // Short strokes outside the side, leaning along it: the wall that holds it.
        for (double u = 2; u <= len; u += 4) {
            const Point at{s.a.x + t.x * u, s.a.y + t.y * u};
            g.line(at, {at.x + 4 * s.out.x - 3 * t.x, at.y + 4 * s.out.y - 3 * t.y}, colours::black, 1);
        }
    }
    // The span names stand clear of the hatching, which reaches 4 out of the sides.
    g.text({w / 2, -8}, "lx", 9, TextAlign::Centre);
    g.text({w + 6, h / 2}, "ly", 9, TextAlign::Left);
    return g;
}

Outcome showResults(const std::string& module, const ResultFrames& shown) {
    Outcome o = Outcome::done()
                    .then(EffectKind::HideScreen, module)
                    .then(EffectKind::ShowScreen, "Form0b")
                    .then(EffectKind::ShowScreen, shown.screen);
    for (const std::string& f : shown.frames) o.then(EffectKind::ShowControl, shown.screen + "." + f);
    return o;
}

std::optional<Outcome> resultScreenCommand(const std::string& command, const std::string& module,
                                           const std::vector<ResultFrames>& cases) {
    for (const ResultFrames& c : cases) {
        const std::string& screen = c.screen;
        if (command == screen + ".Command7")
            return Outcome::done().then(EffectKind::StartReport, screen).then(EffectKind::DisableScreen, screen);
        if (command != screen + ".Command1") continue;
        Outcome o = Outcome::done();
        for (const ResultFrames& other : cases)
            if (other.screen == screen)
                for (const std::string& f : other.frames) o.then(EffectKind::HideControl, screen + "." + f);
        return o.then(EffectKind::HideScreen, screen).then(EffectKind::ShowScreen, module);
    }
    return std::nullopt;
}

void hideCaseFrames(FormState& state, const std::vector<ResultFrames>& cases) {
    for (const ResultFrames& c : cases)
        for (const std::string& f : c.frames) state.setVisible(c.screen + "." + f, false);
}

void writeResult(FormState& state, const std::string& box, double value) {
    state.setText(box, formatResult(value));
}

}  // namespace morve
