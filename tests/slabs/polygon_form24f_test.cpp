// The polygonal slab as the menu opens it: the checks of its three buttons in
// order, refining to the limits, hostile input, and the report of a run.
#include <gtest/gtest.h>

#include <cmath>

#include "../beams/beam_session.h"

namespace morve::testing {
namespace {

using Rows = std::vector<std::vector<std::string>>;

const Rows kSquare = {{"1", "0", "0"}, {"2", "4", "0"}, {"3", "4", "4"}, {"4", "0", "4"}};

struct PolygonRun : BeamRun {
    explicit PolygonRun(const Rows& vertices = kSquare, const std::string& sideType = "0",
                        std::vector<std::string> answers = {})
        : BeamRun("Form24f", std::move(answers)) {
        set({{"Text1", "25"}, {"Text2", "28000"}, {"Text3", "2"}, {"Text4", "5"}, {"Text5", "2"}, {"Text7", "10"},
             {"Text8", "1"}, {"Text6", std::to_string(vertices.size())}, {"List1", "Grossa"}});
        session.state().grid("Form24g.Grade1") = {{"Vértice", "X", "Y"}};
        session.state().grid("Form24g.Grade2") = {{"Lado", "Tipo"}};
        for (const auto& row : vertices) {
            session.state().grid("Form24g.Grade1").push_back(row);
            session.state().grid("Form24g.Grade2").push_back({row[0], sideType});
        }
    }
    Outcome mesh() {
        press("Command4");
        press("Form24g.Command2");
        return press("Command7");
    }
};

TEST(Form24f, GeneratorChecksInOrder) {
    struct Case {
        std::map<std::string, std::string> set;
        Rows vertices;
        std::string message, focus;
    };
    const Rows clockwise = {{"1", "0", "0"}, {"2", "0", "4"}, {"3", "4", "4"}, {"4", "4", "0"}};
    const Rows repeated = {{"1", "0", "0"}, {"2", "4", "0"}, {"3", "4", "4"}, {"4", "4", "4"}};
    const Case cases[] = {
        {{{"List1", ""}}, kSquare, "Escolha uma discretização.", "Form24f.List1"},
        {{{"Text6", "2"}}, kSquare, "O número de vértices da poligonal deve ser maior ou igual a 3.", "Form24f.Text6"},
        {{{"Text6", "30"}}, kSquare, "Este programa está limitado a lajes poligonais com um máximo de 29 vértices.",
         "Form24f.Text6"},
        {{{"List1", "Refinar mais!"}}, kSquare,
         "É necessário escolher uma discretização inicial antes de refinar a malha.", "Form24f.List1"},
        {{}, clockwise, "Erro! Verifique as coordenadas dos vértices da poligonal.", "Form24f.Command4"},
        {{}, repeated, "Erro! Verifique as coordenadas dos vértices da poligonal. (Vértices repetidos)",
         "Form24f.Command4"},
        // Cut to the cell's 7 characters, still 10^7 m away.
        {{}, {{"1", "0", "0"}, {"2", "99999999", "0"}, {"3", "0", "1"}},
         "Erro! Verifique as coordenadas dos vértices da poligonal.", "Form24f.Command4"},
    };
    for (const Case& c : cases) {
        PolygonRun run(c.vertices);
        run.press("Command4");
        run.press("Form24g.Command2");
        run.set(c.set);
        const Outcome o = run.press("Command7");
        EXPECT_FALSE(o.completed);
        EXPECT_EQ(run.lastMessage(), c.message);
        EXPECT_EQ(o.focus, c.focus);
        EXPECT_FALSE(run.session.state().enabled("Form24f.Command1"));
    }
    // A side type out of 0 ... 2 keeps the table open.
    PolygonRun sides(kSquare, "3");
    sides.press("Command4");
    EXPECT_FALSE(sides.press("Form24g.Command2").completed);
    EXPECT_EQ(sides.lastMessage(), "Lado com condição de contorno inválida.");
    EXPECT_TRUE(sides.session.screenShown("Form24g"));
    // A vertex count changed after the table was typed reopens the table.
    PolygonRun stale;
    stale.press("Command4");
    stale.press("Form24g.Command2");
    stale.set({{"Text6", "5"}});
    EXPECT_FALSE(stale.press("Command7").completed);
    EXPECT_EQ(stale.lastMessage(), "Atualize as coordenadas dos vértices da poligonal.");
    EXPECT_TRUE(stale.session.screenShown("Form24g"));
    EXPECT_EQ(stale.session.state().grid("Form24g.Grade1").size(), 6u);
}

TEST(Form24f, CalculationChecksInOrder) {
    const CheckCase cases[] = {
        {{{"Text4", "0"}}, {}, "Forneça um valor positivo para a carga permanente.", "Form24f.Text4"},
        {{{"Text5", "abc"}}, {}, "Forneça um valor positivo para a carga acidental.", "Form24f.Text5"},
        {{{"Text8", "0"}}, {}, "Forneça um valor positivo para a relação J/J1.", "Form24f.Text8"},
        {{{"Text8", "1.0001"}}, {}, "A relação J/J1 deve ser menor ou igual a 1.", "Form24f.Text8"},
        {{{"Text7", "6"}, {"Text8", "-1"}}, {"cancel"}, "Forneça um valor positivo para a relação J/J1.",
         "Form24f.Text8"},
    };
    for (const CheckCase& c : cases) {
        PolygonRun run(kSquare, "0", c.answers);
        ASSERT_TRUE(run.mesh().completed);
        run.set(c.set);
        const Outcome o = run.press("Command1");
        EXPECT_FALSE(o.completed) << c.message;
        EXPECT_EQ(run.lastMessage(), c.message);
        EXPECT_EQ(o.focus, c.focus);
    }
    PolygonRun exact;
    exact.mesh();
    EXPECT_TRUE(exact.press("Command1").completed);  // J/J1 = 1 is allowed
    PolygonRun loose(kSquare, "2");
    loose.mesh();
    EXPECT_FALSE(loose.press("Command1").completed);
    EXPECT_EQ(loose.lastMessage(), "A matriz de rigidez é singular. Revise os dados.");
}

TEST(Form24f, RefiningUpToTheLimit) {
    // A square of n divisions has 2 n (n + 1) bars: 21 fits, 22 passes 1000.
    PolygonRun run;
    ASSERT_TRUE(run.mesh().completed);
    run.set({{"List1", "Refinar mais!"}});
    for (int n = 5; n <= 21; ++n) ASSERT_TRUE(run.press("Command7").completed) << n;
    EXPECT_FALSE(run.press("Command7").completed);
    EXPECT_EQ(run.lastMessage(), "Impossível refinar mais.");
    EXPECT_FALSE(run.session.state().enabled("Form24f.Command1"));
    // The count in force falls back to 6: the next refinement is 7 divisions.
    EXPECT_TRUE(run.press("Command7").completed);
    EXPECT_EQ(run.session.state().var("Form24f.divisions"), "7");
}

TEST(Form24f, ResultsReportAndPictures) {
    PolygonRun run;
    run.set({{"List1", "Fina"}});
    run.mesh();
    ASSERT_TRUE(run.press("Command1").completed);
    const FormState& s = run.session.state();
    // A square on four equal supports: equal mean reactions that carry (5 + 2) x 16.
    for (int side = 1; side <= 4; ++side) EXPECT_NEAR(s.cellNumber("Form24f.Grade2", side, 1), 7.0 * 16 / 16, 0.01);
    // Mx and My alike by symmetry; the creep of 2 triples the quasi-permanent value.
    EXPECT_EQ(s.cell("Form24f.Grade1", 1, 1), s.cell("Form24f.Grade1", 2, 1));
    EXPECT_NEAR(run.number("Text10"), 3 * run.number("Text9"), 0.02);
    const std::vector<std::string> lines = run.report("Form24f");
    for (const std::string& line : std::vector<std::string>{"Rigidez à torção relativa J/J1= 1", "Lado 4        apoio simples",
                                    "Flecha final máxima: Wtot= " + run.text("Text10") + " mm"})
        EXPECT_NE(std::find(lines.begin(), lines.end(), line), lines.end()) << line;
    EXPECT_FALSE(run.session.module().drawing("Form24h.Picture1", s).empty());
    EXPECT_FALSE(run.session.module().drawing("Form24j.Picture1", s).empty());
}

}  // namespace
}  // namespace morve::testing
