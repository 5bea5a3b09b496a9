// Lajes retangulares com um bordo livre: the side y = ly free, the other three
// supported in four patterns of fixed sides, under uniform load.
#include <algorithm>

#include "app/module.h"
#include "app/numbers.h"
#include "reports/report_writer.h"
#include "slabs/free_edge_tables.h"

namespace morve {

namespace {

using namespace free_edge;

struct FreeEdgeCase {
    const char* text;
    SupportPattern pattern;
    ResultFrames shown;
    std::array<const char*, kResults> boxes;  // w, wo and wadm share Text5, Text19, Text6
};

constexpr SlabEdge S = SlabEdge::Supported, F = SlabEdge::Fixed, L = SlabEdge::Free;

const std::array<FreeEdgeCase, 4>& cases() {
    //                                                   W        Wo        Mx        My        Mxo       Mye       Mxe       Mxeo      Rx        Ry
    static const std::array<FreeEdgeCase, 4> table{{
        {"Nenhum lado é engastado", {S, S, S, L}, {"Form24b", {"Frame1", "Frame2"}},
         {"Text5", "Text19", "Text1", "Text2", "Text3", "", "", "", "Text4", "Text7"}},
        {"Lado com y = 0", {S, S, F, L}, {"Form24b", {"Frame4", "Frame5"}},
         {"Text5", "Text19", "Text8", "Text9", "Text10", "Text11", "", "", "Text12", "Text13"}},
        {"Lados com x = 0 e x = lx", {F, F, S, L}, {"Form24b", {"Frame6", "Frame7"}},
         {"Text5", "Text19", "Text14", "Text15", "Text16", "", "Text17", "Text18", "Text20", "Text21"}},
        {"Lados com x = 0, x=lx e y = 0", {F, F, F, L}, {"Form24c", {"Frame1", "Frame2"}},
         {"Text5", "Text19", "Text1", "Text2", "Text3", "Text4", "Text7", "Text8", "Text9", "Text10"}},
    }};
    return table;
}

std::vector<ResultFrames> caseFrames() {
    std::vector<ResultFrames> all;
    for (const FreeEdgeCase& c : cases()) all.push_back(c.shown);
    return all;
}

const char* const kOptions[] = {"Option1", "Option2", "Option3", "Option4"};
const char* const kCaptions[kResults] = {"", "", "Mx=", "My=", "Mxo=", "Mye=", "Mxe=", "Mxe,o=", "Rx=", "Ry="};

int selectedCase(const FormState& s) {
    for (int i = 0; i < 4; ++i)
        if (s.option(kOptions[i])) return i + 1;
    return 1;
}

bool isSupportMoment(int i) { return i == Mye || i == Mxe || i == Mxeo; }

void addResultFrames(ScreenBuilder& s, const FreeEdgeCase& c) {
    const std::string moments = c.shown.frames[0], reactions = c.shown.frames[1];
    s.frame(moments, "Momentos fletores", 0, 0).label(moments + "L", "Valores em kNm/m:");
    for (int i = Mx; i <= Mxeo; ++i)
        if (*c.boxes[i]) s.result(c.boxes[i], kCaptions[i]);
    s.frame(reactions, "Reações de apoio", 0, 1).label(reactions + "L", "Valores em kN/m:");
    for (int i : {Rx, Ry}) s.result(c.boxes[i], kCaptions[i]);
}

ScreenDecl resultScreen(const std::string& name, std::initializer_list<int> shown) {
    ScreenBuilder s(name, "LAJES RETANGULARES COM UM BORDO LIVRE", false);
    for (int c : shown) addResultFrames(s, cases()[c - 1]);
    s.frame("Frame3", "Flecha", 1, 0)
        .label("Label30", "Valores em mm:")
        .result("Text5", "No centro =")
        .result("Text19", "No bordo livre =")
        .result("Text6", "Admissível =");
    addBackAndPrint(s.frame("Frame8", "", 1, 1).picture("Picture1", 130, 90));
    return s.build();
}

class Form24 : public Module {
public:
    ModuleInfo info() const override {
        ModuleInfo i;
        i.key = "Form24";
        i.unloads = {"Form24b", "Form24c", "FormAjuda"};
        return i;
    }

    std::vector<ScreenDecl> screens() const override {
        ScreenBuilder s("Form24", "      LAJES RETANGULARES COM UM BORDO LIVRE            CARGA UNIFORME");
        addRectangularSlabFrames(s);
        s.frame("Frame2", "Lados engastados (bordo livre em y = ly)", 0, 2, 3, 1);
        for (int i = 0; i < 4; ++i) {
            s.option(kOptions[i], std::to_string(i + 1) + ": " + cases()[i].text, "Caso", i == 0);
            s.picture("Picture" + std::to_string(i + 1), 110, 70);
        }
        s.frame("Frame6", "", 2, 0, 1, 2).command("Command1", "&CALCULAR", "Calcular esforços e flechas");
        return {s.build(), resultScreen("Form24b", {1, 2, 3}), resultScreen("Form24c", {4})};
    }

    void load(FormState& state, const StartDefaults& defaults) const override {
        loadConcreteDefaults(state, defaults);
        hideCaseFrames(state, caseFrames());
    }

    Outcome press(const std::string& command, FormState& s, Prompter& prompter) const override {
        if (auto o = resultScreenCommand(command, "Form24", caseFrames())) return *o;
        if (command != "Command1" && command != "Form24.Command1") return Outcome::stop();

        CheckSequence checks(prompter);
        checkConcreteService(checks, s);
        checkSlabLoads(checks, s);
        const double lx = s.number("Text6"), ly = s.number("Text7"), h = s.number("Text8");
        checkPositive(checks, lx, "o vão lx", "Text6");
        checkPositive(checks, ly, "o vão ly", "Text7");
        checkSlabThickness(checks, h, "Text8");
        if (checks.stopped()) return checks.outcome();

        // Outside the range of the fits the values at its end are given, and said so.
        double r = ly / lx;
        if (r < kMinRatio) prompter.warn("Valores calculados para relação ly/lx=0,3.");
        if (r > kMaxRatio) prompter.warn("Valores calculados para relação ly/lx=2.");
        r = std::clamp(r, kMinRatio, kMaxRatio);

        const FreeEdgeCase& c = cases()[selectedCase(s) - 1];
        const Row& row = table()[selectedCase(s) - 1];
        const SlabLoading l = slabLoading(s, h);
        const std::string screen = c.shown.screen + ".";
        for (int i = 0; i < kResults; ++i) {
            if (row[i].empty()) continue;
            const double k = row[i](r) * 0.001;
            double v = i <= Wo ? longTermMm(k * l.pqp * lx * lx * lx * lx / l.d, l)
                       : i < Rx ? k * l.p * lx * lx
                                : k * l.p * lx;
            writeResult(s, screen + c.boxes[i], isSupportMoment(i) ? -v : v);
        }
        writeResult(s, screen + "Text6", admissibleMm(std::min(lx, ly)));
        return showResults("Form24", c.shown);
    }

    void report(const std::string& key, const FormState& s, ReportWriter& out) const override {
        const int caseNo = selectedCase(s);
        const FreeEdgeCase& c = cases()[caseNo - 1];
        if (key != c.shown.screen) return;
        auto value = [&](int i) { return s.text(key + "." + c.boxes[i]); };
        out.write("Lados Engastados:");
        out.write(c.text);
        out.write("Bordo livre no lado com y=ly");
        out.blank();
        reportConcrete(out, s);
        reportLoads(out, s);
        reportSpans(out, s, "Text6", "Text7");
        reportThickness(out, s, "Text8");
        out.write("RESULTADOS:");
        out.blank();
        out.write("Flecha final:");
        out.write("No centro da laje: Wtot= ", value(W), " mm");
        out.write("No bordo livre: Wtot,o= ", value(Wo), " mm");
        out.write("Admissível: Wadm= ", s.text(key + ".Text6"), " mm");
        out.blank();
        // The moments and reactions of the cases with fixed sides do not fit under
        // the data on one screen page; every case turns the page here alike.
        out.write("... Continua");
        out.pageBreak();
        out.write("Momentos fletores positivos no centro da laje:");
        out.write("Na direção x: Mx= ", value(Mx), " kNm/m", tab(40), "Na direção y: My= ", value(My), " kNm/m");
        out.write("Momento positivo no bordo livre: Mxo= ", value(Mxo), " kNm/m (Na direção x)");
        out.blank();
        if (caseNo == 2 || caseNo == 4) {
            out.write("Momento negativo em y=0: Mye= ", value(Mye), " kNm/m (Na direção y)");
            out.blank();
        }
        if (caseNo >= 3) {
            out.write("Momentos negativos na direção x (em x=0 e x=lx):");
            out.write("No meio do lado: Mxe= ", value(Mxe), " kNm/m");
            out.write("No bordo livre: Mxe,o= ", value(Mxeo), " kNm/m");
            out.blank();
        }
        out.write("Reações de apoio:");
        out.write("No lado lx (y=0): Rx= ", value(Rx), " kN/m");
        out.write("Nos lados ly (x=0 e x=lx): Ry= ", value(Ry), " kN/m");
    }

    Drawing drawing(const std::string& picture, const FormState& state) const override {
        for (int i = 1; i <= 4; ++i)
            if (picture == "Form24.Picture" + std::to_string(i)) return supportDrawing(cases()[i - 1].pattern);
        if (picture == "Form24b.Picture1" || picture == "Form24c.Picture1")
            return supportDrawing(cases()[selectedCase(state) - 1].pattern);
        return {};
    }
};

RegisterModule<Form24> registration;

}  // namespace

}  // namespace morve
