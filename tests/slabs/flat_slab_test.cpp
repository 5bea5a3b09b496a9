// The flat slab against plate theory worked out apart (published coefficients of
// the simply supported plate, the long Navier series of the test's own), its
// equilibrium, the symmetry of symmetric floors, and Form40 as a user drives it.
#include <gtest/gtest.h>

#include <cmath>

#include "../beams/beam_session.h"
#include "app/numbers.h"
#include "plate_solutions.h"
#include "slabs/flat_slab.h"

using namespace morve;
using morve::testing::BeamRun;
using morve::testing::navierPointDeflection;
using morve::testing::navierUniform;

namespace {

// Unit load and unit rigidity, so that results read as plate coefficients; the
// deflection surface is in mm of a slab in cm, ten times the series' value.
FlatSlab unitSlab(double a, double b, std::vector<FlatColumn> columns = {}) {
    return FlatSlab{a, b, 1, 1, 1, std::move(columns)};
}

double total(const FlatResults& r) {
    double sum = r.r1 + r.r2 + r.r3 + r.r4;
    for (double p : r.columnLoads) sum += p;
    return sum;
}

TEST(FlatSeries, PlainPlateMatchesThePublishedCoefficients) {
    // Deflection q a^4 / D of the simply supported plate at its centre (the same for
    // every Poisson's ratio), and the corner twisting moment, half the corner force
    // 0.065 q a^2 of the square at nu = 0.3, carried to nu = 0.2 by (1 - nu).
    const struct {
        double a, b, alpha;
    } plates[] = {{600, 600, 0.00406}, {400, 800, 0.01013}, {500, 750, 0.00772}};
    for (const auto& p : plates) {
        SCOPED_TRACE(p.b / p.a);
        const FlatResults r = analyseFlatSlab(unitSlab(p.a, p.b));
        ASSERT_EQ(r.status, FlatStatus::Done);
        const double a4 = std::pow(p.a, 4);
        EXPECT_NEAR(r.w.at[10][10] / 10 / a4, p.alpha, 0.003 * p.alpha);
        EXPECT_DOUBLE_EQ(r.w.max, r.w.at[10][10]);
        const auto centre = navierUniform(p.a, p.b, p.a / 2, p.b / 2, 0.2);
        EXPECT_NEAR(r.mx.at[10][10], centre.mx, 0.01 * centre.mx);
        EXPECT_NEAR(r.my.at[10][10], centre.my, 0.01 * centre.my);
        // Each pair of opposite edges carries the same, and all four the load.
        EXPECT_NEAR(r.r1, r.r2, 1e-6 * r.r1);
        EXPECT_NEAR(r.r3, r.r4, 1e-6 * r.r3);
        EXPECT_NEAR(total(r), p.a * p.b, 1e-9 * p.a * p.b);
        // The summed shears miss only what the cut series leaves out.
        EXPECT_NEAR(r.edgeScale, 1, 0.05);
    }
    const FlatResults square = analyseFlatSlab(unitSlab(600, 600));
    EXPECT_NEAR(square.mxy.at[0][0], -0.0325 * 0.8 / 0.7 * 360000, 0.02 * 0.0372 * 360000);
    EXPECT_NEAR(square.r1, 90000, 1e-6);
}

TEST(FlatSeries, ColumnsCarryWhatAPointSupportWould) {
    // Square plate, one central column: a point support takes w_q / w_P of the load,
    // 0.00406 / 0.01160 q a^2 by the published coefficients; a 30 cm column and
    // the cut series keep within a few per cent of it.
    const FlatResults central = analyseFlatSlab(unitSlab(600, 600, {{300, 300, 30, 30}}));
    ASSERT_EQ(central.status, FlatStatus::Done);
    ASSERT_EQ(central.columnLoads.size(), 1u);
    const double point = 0.00406 / 0.01160 * 360000;
    EXPECT_NEAR(central.columnLoads[0], point, 0.04 * point);
    const FlatResults plain = analyseFlatSlab(unitSlab(600, 600));
    EXPECT_LT(std::abs(central.w.at[10][10]), 0.02 * plain.w.at[10][10]);
    // Hogging over the column.
    EXPECT_LT(central.mx.at[10][10], 0);
    EXPECT_NEAR(total(central), 360000, 1e-6);

    // Off the centre lines the column is held by superposition of the long series
    // of the test: the uniform load's deflection there over a unit point load's.
    const double x = 150, y = 300;
    const double wq = navierUniform(600, 600, x, y, 0.2).w;
    const double wp = navierPointDeflection(600, 600, x, y, x, y, 121);
    const FlatResults side = analyseFlatSlab(unitSlab(600, 600, {{x, y, 30, 30}}));
    EXPECT_NEAR(side.columnLoads[0], wq / wp, 0.05 * wq / wp);
    // The slab stays up under the column and sags in the mirror point: an
    // unsymmetric floor is not read as a symmetric one.
    EXPECT_LT(std::abs(side.w.at[5][10]), 0.05 * side.w.at[15][10]);
    EXPECT_LT(side.r3, side.r4);
    EXPECT_NEAR(side.r1, side.r2, 1e-6 * side.r1);
    EXPECT_NEAR(total(side), 360000, 1e-6);
}

TEST(FlatSeries, SymmetricFloorsGiveSymmetricLoads) {
    // Four columns at the thirds of a 6 by 9 m floor, two sections turned: every
    // column carries the same by symmetry about both centre lines.
    const double a = 600, b = 900;
    const FlatResults r = analyseFlatSlab(unitSlab(a, b,
        {{200, 300, 30, 40}, {400, 300, 30, 40}, {200, 600, 30, 40}, {400, 600, 30, 40}}));
    ASSERT_EQ(r.status, FlatStatus::Done);
    for (double p : r.columnLoads) EXPECT_NEAR(p, r.columnLoads[0], 1e-6 * r.columnLoads[0]);
    EXPECT_NEAR(r.r1, r.r2, 1e-6 * r.r1);
    EXPECT_NEAR(r.r3, r.r4, 1e-6 * r.r3);
    EXPECT_NEAR(total(r), a * b, 1e-6 * a * b);
    for (int i = 0; i < kFlatSamples; ++i)
        for (int j = 0; j < kFlatSamples; ++j) {
            EXPECT_NEAR(r.w.at[i][j], r.w.at[20 - i][20 - j], 1e-9 * r.w.max);
            EXPECT_NEAR(r.mxy.at[i][j], -r.mxy.at[20 - i][j], 1e-9 * std::abs(r.mxy.min));
        }
}

// Form40 filled as a user does: 6 by 6 m, 20 cm, g = 5, q = 3, with `columns`
// typed in the column tables (metres and cm).
BeamRun typedSlab(std::vector<std::array<const char*, 4>> columns, std::vector<std::string> answers = {}) {
    BeamRun run("Form40", std::move(answers));
    run.set({{"Text4", "20"}, {"Text5", "6"}, {"Text6", "6"}, {"Text8", "5"}, {"Text9", "3"},
             {"Text7", std::to_string(columns.size())}});
    if (columns.empty()) return run;
    run.press("Command1");
    FormState& s = run.session.state();
    for (std::size_t k = 0; k < columns.size(); ++k) {
        const int r = static_cast<int>(k) + 1;
        s.grid("Form40b.Grade1")[r] = {std::to_string(r), columns[k][0], columns[k][1]};
        s.grid("Form40b.Grade2")[r] = {std::to_string(r), columns[k][2], columns[k][3]};
    }
    run.press("Form40b.Command1");
    return run;
}

TEST(Form40, TheDiagramsWaitForACalculation) {
    // Their button is not offered before it. The checks of the buttons in order are
    // tests/cases/slabs/form40-checks.json.
    BeamRun early = typedSlab({});
    EXPECT_EQ(early.press("Command2").refused, "disabled");
}

TEST(Form40, CentralColumnEndToEnd) {
    BeamRun run = typedSlab({{"3", "3", "40", "40"}});
    const Outcome o = run.press("Command3");
    ASSERT_TRUE(o.completed) << run.lastMessage();
    EXPECT_TRUE(run.session.screenShown("Form40c"));
    const FormState& s = run.session.state();
    // About 0.35 q a^2 on the column (8 kN/m2 on 6 m), the rest shared by the edges.
    const double column = s.cellNumber("Form40c.Grade1", 1, 1);
    EXPECT_NEAR(column, 0.35 * 8 * 36, 0.05 * 0.35 * 8 * 36);
    double edges = 0;
    for (const char* box : {"Form40c.Text1", "Form40c.Text2", "Form40c.Text3", "Form40c.Text4"}) {
        EXPECT_EQ(s.text(box), s.text("Form40c.Text1"));
        edges += s.number(box);
    }
    EXPECT_NEAR(edges + column, 288, 0.03);

    // The report gives the loads of the screen; its data typed are a case in tests/cases/slabs.
    const std::vector<std::string> report = run.report("Form40");
    EXPECT_EQ(report.at(20), "Pilar= 1     Carga= " + s.cell("Form40c.Grade1", 1, 1) + " kN");
    EXPECT_EQ(report.at(26), "Em x=lx:     R4= " + s.text("Form40c.Text4") + " kN");

    // The four surfaces on one picture, each with its title; "&Salvar" hands the
    // picture to the front end.
    ASSERT_TRUE(run.press("Command2").completed);
    const struct {
        const char* command;
        const char* title;
    } surfaces[] = {{"Form40d.Command3", "MOMENTOS FLETORES SEGUNDO A DIREÇÃO X"},
                    {"Form40d.Command4", "MOMENTOS FLETORES SEGUNDO A DIREÇÃO Y"},
                    {"Form40d.Command5", "MOMENTOS TORÇORES"},
                    {"Form40d.Command6", "FLECHAS DA LAJE"}};
    for (const auto& surface : surfaces) {
        run.press(surface.command);
        const Drawing d = run.session.module().drawing("Form40d.Picture1", s);
        ASSERT_FALSE(d.empty());
        EXPECT_EQ(std::get<Label>(d.shapes[0].geometry).text, surface.title);
    }
    EXPECT_EQ(run.press("Form40d.Command15").effects,
              (std::vector<ScreenEffect>{{EffectKind::SavePicture, "Form40d.Picture1"}}));
    EXPECT_EQ(run.press("Form40d.Command1").effects,
              (std::vector<ScreenEffect>{{EffectKind::PrintPicture, "Form40d.Picture1"}}));
    // New column data close the diagrams until the next "CALCULAR".
    run.press("Form40d.Command2");
    run.press("Command1");
    run.press("Form40b.Command1");
    EXPECT_FALSE(s.enabled("Form40.Command2"));
    EXPECT_FALSE(run.session.module().drawing("Form40c.Picture1", s).empty());
}

TEST(Form40, DeflectionInMillimetresOfTheLongTerm) {
    // No column: 0.00406 pqp a^4 / D with the creep modulus Ecs / (1 + phi).
    BeamRun run = typedSlab({});
    ASSERT_TRUE(run.press("Command3").completed) << run.lastMessage();
    run.press("Command2");
    run.press("Form40d.Command6");
    const Drawing d = run.session.module().drawing("Form40d.Picture1", run.session.state());
    const double d_kNm = 25757e3 / 3.5 * 0.008 / 11.52;
    const double w = 0.00406 * (5 + 0.3 * 3) * 1296 / d_kNm * 1000;
    std::string maximum;
    for (const Shape& shape : d.shapes)
        if (const auto* l = std::get_if<Label>(&shape.geometry); l && l->text.rfind("Máximo = ", 0) == 0)
            maximum = l->text.substr(std::string("Máximo = ").size());
    EXPECT_NEAR(readNumber(maximum), w, 0.01 * w);
}

}  // namespace
