#include "stairs/stair_screens.h"

#include <cmath>

#include "app/grid_tables.h"
#include "app/numbers.h"
#include "basis/messages.h"
#include "reports/report_writer.h"
#include "basis/concrete_service.h"

namespace morve {

namespace {

const std::string kForces = "Grade1", kReactions = "Grade2";

GridDecl resultGrid(std::vector<std::string> header, int rows) {
    GridDecl g;
    g.header = std::move(header);
    g.rows = rows;
    g.maxRows = rows;
    g.filter = KeyFilter::None;
    return g;
}

std::string shown(double v) { return formatResult(v, 2); }

}  // namespace

void stairConcreteFrame(ScreenBuilder& s, int row, int column) {
    s.frame("Frame1", "Concreto", row, column)
        .box("Text1", "fck(MPa)=", "20")
        .box("Text2", "Ecs(MPa)=", "25757")
        .box("Text3", "fi= ", "2.5")
        .tip("Coeficiente de fluência, para a flecha de longa duração");
}

void stairOptionFrames(ScreenBuilder& s, int row) {
    s.frame("Frame3", "Sentido de subida", row, 0)
        .option("Option1", "Sentido de subida: horário", "rise")
        .option("Option2", "Sentido de subida: anti-horário", "rise", true);
    s.frame("Frame4", "Extremidades", row, 1)
        .option("Option3", "Extremidades engastadas", "ends", true)
        .option("Option4", "Extremidades apoiadas", "ends");
}

bool clockwiseRise(const FormState& s) { return s.option("Option1"); }
bool fixedEnds(const FormState& s) { return !s.option("Option4"); }

void stairResultFrame(ScreenBuilder& s, int row, const std::vector<std::string>& sections,
                      const std::string& deflectionBox) {
    // The long table comes last: nothing stands below it to be crowded when it
    // grows to show all its rows.
    s.frame("Frame6", "Resultados (cargas de serviço)", row, 0, 1, 2)
        .result(deflectionBox, "Flecha máxima = ", "cm")
        .label("Label3", "Reações: eixos globais, Z para cima")
        .grid(kReactions, resultGrid({"Apoio", "Rx (kN)", "Ry (kN)", "Rz (kN)", "Mxe (kNm)", "Mye (kNm)", "Mze (kNm)"}, 2))
        .label("Label1", "Esforços: eixos locais; N > 0 tração")
        .grid(kForces, resultGrid({"Seção", "N (kN)", "Vy (kN)", "Vz (kN)", "T (kNm)", "My (kNm)", "Mz (kNm)"},
                                  static_cast<int>(sections.size())));
}

void clearStairResults(FormState& s, const std::vector<std::string>& sections, const std::string& deflectionBox) {
    s.grid(kForces).resize(1);
    for (const std::string& name : sections) s.grid(kForces).push_back({name, "", "", "", "", "", ""});
    s.grid(kReactions).resize(1);
    for (const char* name : {"Base", "Topo"}) s.grid(kReactions).push_back({name, "", "", "", "", "", ""});
    s.setText(deflectionBox, "");
}

void writeStairResults(FormState& s, const std::vector<SectionRow>& sections, const Vec3& baseForce,
                       const Vec3& baseMoment, const Vec3& topForce, const Vec3& topMoment, double deflectionM,
                       const std::string& deflectionBox) {
    s.grid(kForces).resize(1);
    s.grid(kReactions).resize(1);
    for (const SectionRow& r : sections) {
        std::vector<std::string> row{r.name};
        for (double v : r.forces) row.push_back(shown(v));
        s.grid(kForces).push_back(row);
    }
    auto reaction = [&](const char* name, const Vec3& f, const Vec3& m) {
        s.grid(kReactions).push_back({name, shown(f[0]), shown(f[1]), shown(f[2]), shown(m[0]), shown(m[1]), shown(m[2])});
    };
    reaction("Base", baseForce, baseMoment);
    reaction("Topo", topForce, topMoment);
    s.setText(deflectionBox, shown(deflectionM * 100));
}

void checkStairConcrete(CheckSequence& checks, const FormState& s) {
    checkConcreteService(checks, s);
    // A negative creep coefficient would shrink the long-term deflection below the
    // elastic one, or turn it upward.
    checks.warnIf(s.number("Text3") < 0, "O coeficiente de fluência não pode ser negativo.", "Text3");
}

double positiveBox(CheckSequence& checks, const FormState& s, const std::string& box, const std::string& what) {
    const double v = s.number(box);
    checks.warnIf(!(v > 0) || !std::isfinite(v), msg::positiveValue(what), box);
    return v;
}

double loadBox(CheckSequence& checks, const FormState& s, const std::string& box, const std::string& what) {
    const double v = s.number(box);
    checks.warnIf(v < 0 || !std::isfinite(v), "A " + what + " não pode ser negativa.", box);
    return v;
}

double stairModulus(const FormState& s) { return s.number("Text2") * 1000; }

void reportStairConcrete(ReportWriter& out, const FormState& s) { reportConcrete(out, s, "fi= "); }

void stopNearMechanism(CheckSequence& checks, const std::vector<StairDimension>& dimensions) {
    if (dimensions.empty()) return;
    const StairDimension* smallest = &dimensions.front();
    for (const StairDimension& d : dimensions)
        if (d.metres < smallest->metres) smallest = &d;
    checks.warnIf(true,
                  "A escada resulta quase instável mesmo com as extremidades engastadas: aumente " + smallest->name +
                      ".",
                  smallest->box);
}

void reportStairOptions(ReportWriter& out, const FormState& s) {
    out.write(clockwiseRise(s) ? "Sentido de subida: horário" : "Sentido de subida: anti-horário");
    out.write(fixedEnds(s) ? "Extremidades engastadas" : "Extremidades apoiadas");
    out.blank();
}

void reportStairResults(ReportWriter& out, const FormState& s, const std::vector<std::string>& titles,
                        const std::string& deflectionBox) {
    const GridRows& forces = s.grid(kForces);
    const GridRows& reactions = s.grid(kReactions);
    auto cell = [](const GridRows& g, std::size_t r, std::size_t c) -> std::string {
        return r < g.size() && c < g[r].size() ? g[r][c] : "";
    };
    out.write("RESULTADOS (cargas de serviço):");
    out.write("Esforços nos eixos locais da seção; reações nos eixos globais.");
    out.blank();
    for (std::size_t i = 0; i < titles.size(); ++i) {
        out.write(titles[i]);
        out.write("N= ", cell(forces, i + 1, 1), " kN", tab(20), "Vy= ", cell(forces, i + 1, 2), " kN", tab(40),
                  "Vz= ", cell(forces, i + 1, 3), " kN");
        out.write("T= ", cell(forces, i + 1, 4), " kNm", tab(20), "My= ", cell(forces, i + 1, 5), " kNm", tab(40),
                  "Mz= ", cell(forces, i + 1, 6), " kNm");
        out.blank();
    }
    const char* supports[] = {"Reações na base:", "Reações no topo:"};
    for (std::size_t i = 0; i < 2; ++i) {
        out.write(supports[i]);
        out.write("Rx= ", cell(reactions, i + 1, 1), " kN", tab(20), "Ry= ", cell(reactions, i + 1, 2), " kN", tab(40),
                  "Rz= ", cell(reactions, i + 1, 3), " kN");
        out.write("Mxe= ", cell(reactions, i + 1, 4), " kNm", tab(20), "Mye= ", cell(reactions, i + 1, 5), " kNm",
                  tab(40), "Mze= ", cell(reactions, i + 1, 6), " kNm");
        out.blank();
    }
    out.write("Flecha máxima = ", s.text(deflectionBox), " cm");
}

}  // namespace morve
