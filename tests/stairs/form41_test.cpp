// "Helicoidais" as a user drives it: the checks in their order with their focus,
// the tables it fills against the statics of the stair, and the report.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

#include "../beams/beam_session.h"
#include "../stop_expectations.h"
#include "app/numbers.h"
#include "basis/messages.h"

namespace morve {
namespace {

using testing::BeamRun;

const std::map<std::string, std::string> kStair = {{"Text4", "180"}, {"Text5", "2"}, {"Text6", "3"},
                                                   {"Text9", "15"},  {"Text10", "1.2"}, {"Text7", "1.5"},
                                                   {"Text8", "3"}};

double cell(const BeamRun& run, const std::string& grid, int row, int column) {
    return readNumber(run.session.state().grid(grid)[static_cast<std::size_t>(row)][static_cast<std::size_t>(column)]);
}

TEST(Form41, ChecksInOrder) {
    struct Case {
        std::map<std::string, std::string> set;
        std::vector<std::string> answers;
        std::string message, focus;
        MessageKind kind = MessageKind::Warning;
    } cases[] = {
        {{{"Text1", "95"}}, {}, msg::kHighFck, "Form41.Text1"},
        {{{"Text2", "abc"}}, {}, msg::kPositiveEcs, "Form41.Text2"},
        {{{"Text2", "2000"}}, {"yes"}, "O módulo secante do concreto está fora dos limites razoáveis. VOCÊ QUER CORRIGIR O MÓDULO?", "Form41.Text2", MessageKind::YesNo},
        {{{"Text3", "-1"}}, {}, "O coeficiente de fluência não pode ser negativo.", "Form41.Text3"},
        {{{"Text4", "0"}}, {}, "A abertura total 2a deve ser maior que 0 e no máximo igual a 360 graus.", "Form41.Text4"},
        {{{"Text4", "361"}}, {}, "A abertura total 2a deve ser maior que 0 e no máximo igual a 360 graus.", "Form41.Text4"},
        {{{"Text5", "-0"}}, {}, "Forneça um valor positivo para o raio médio R.", "Form41.Text5"},
        {{{"Text6", "-1"}}, {}, "A altura de piso a piso H não pode ser negativa.", "Form41.Text6"},
        {{{"Text9", ""}}, {}, "Forneça um valor positivo para a espessura h.", "Form41.Text9"},
        {{{"Text10", "0"}}, {}, "Forneça um valor positivo para a largura b.", "Form41.Text10"},
        {{{"Text10", "4"}}, {}, "A largura b deve ser menor que o diâmetro 2R da hélice média.", "Form41.Text10"},
        {{{"Text7", "-2"}}, {}, "A carga permanente g não pode ser negativa.", "Form41.Text7"},
        {{{"Text8", "-3"}}, {}, "A carga acidental q não pode ser negativa.", "Form41.Text8"},
        {{{"Text5", "1" + std::string(300, '0')}}, {}, "Os valores fornecidos levam a resultados fora dos limites numéricos. Revise os dados.", "Form41.Text5"},
        // Apoiadas, 2a = 300: R^2 sin 2a + H^2 / 2a = 0, the supports' torsion
        // restraints both square to the line through them.
        {{{"Option4", "true"}, {"Text4", "300"}, {"Text5", "1.6"}, {"Text6", std::to_string(std::sqrt(1.6 * 1.6 * std::sqrt(3.0) / 2 * 5 * std::acos(-1.0) / 3))}}, {}, "Com estes apoios a escada não é estável: ela pode girar em torno da reta que liga os apoios. Use extremidades engastadas ou altere a geometria.", "Form41.Option3"},
        // Fixed ends already: the section far too thin or narrow to tell from a
        // mechanism, the smaller of the two named.
        {{{"Text9", "0.01"}}, {}, "A escada resulta quase instável mesmo com as extremidades engastadas: aumente a espessura h.", "Form41.Text9"},
        {{{"Text10", "0.0001"}}, {}, "A escada resulta quase instável mesmo com as extremidades engastadas: aumente a largura b.", "Form41.Text10"},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.message);
        BeamRun run("Form41", c.answers);
        run.set(kStair).set(c.set);
        if (c.set.count("Option4")) run.session.state().setOption("Option4", true);
        const Outcome o = run.press("Command1");
        expectStop(run.prompter, o, c.message, c.kind, c.focus);
        EXPECT_EQ(run.text("Text13"), "");
    }
}

// The half-turn stair is symmetric about its centre's radius turned upside down:
// each support carries half the load, worked out here from the slab's true length
// and its plan.
TEST(Form41, TablesCarryTheLoad) {
    for (const char* ends : {"Option3", "Option4"}) {
        BeamRun run("Form41");
        run.set(kStair);
        run.session.state().setOption(ends, true);
        ASSERT_TRUE(run.press("Command1").completed);
        EXPECT_TRUE(run.prompter.messages().empty());
        const double pi = std::acos(-1.0), c = 3 / pi;
        const double load = 25 * 0.15 * 1.2 * std::sqrt(4 + c * c) * pi + 4.5 * 1.2 * 2 * pi;
        EXPECT_NEAR(cell(run, "Form41.Grade2", 1, 3), load / 2, 0.01);
        EXPECT_NEAR(cell(run, "Form41.Grade2", 2, 3), load / 2, 0.01);
        // The base pushes as the top pulls: the horizontal reactions balance.
        EXPECT_NEAR(cell(run, "Form41.Grade2", 1, 1), -cell(run, "Form41.Grade2", 2, 1), 0.011);
        EXPECT_NEAR(cell(run, "Form41.Grade2", 1, 2), -cell(run, "Form41.Grade2", 2, 2), 0.011);
        EXPECT_GT(run.number("Text13"), 0);
    }
}

TEST(Form41, ReportLines) {
    BeamRun run("Form41");
    run.set(kStair);
    ASSERT_TRUE(run.press("Command1").completed);
    const std::vector<std::string> lines = run.report("Form41");
    const auto has = [&](const std::string& text) { return std::find(lines.begin(), lines.end(), text) != lines.end(); };
    for (const char* text : {"fi= 2.5", "Espessura h = 15 cm", "Abertura total 2a = 180 graus", "Raio médio R = 2 m", "Altura de piso a piso H = 3 m",
                             "Sentido de subida: anti-horário", "Extremidades engastadas", "Esforços na base:",
                             "Esforços no topo:", "Esforços no centro:", "Reações na base:", "Reações no topo:"})
        EXPECT_TRUE(has(text)) << text;
    EXPECT_TRUE(has("Flecha máxima = " + run.text("Text13") + " cm"));
    EXPECT_EQ(lines.back(), "[figura]");
}

}  // namespace
}  // namespace morve
