// The polygonal slab's grillage against a second method: the Navier series of the
// plate it converges to. Bars of bending stiffness D and torsional stiffness
// (1 - nu) D per unit width make, in the limit, a Huber plate
//   D w,xxxx + 2 (1 - nu) D w,xxyy + D w,yyyy = q
// with Mx = -D w,xx (no Poisson coupling). The help page quotes the errors of the
// meshes against this limit; the test holds them.
#include <gtest/gtest.h>

#include <cmath>
#include <numbers>

#include "../beams/beam_session.h"
#include "app/numbers.h"

namespace morve::testing {
namespace {

struct Centre {
    double w, mx;
};

// Deflection and moment at the centre of a simply supported square of side a.
Centre huberSeries(double a, double q, double d, double twoH) {
    const double pi = std::numbers::pi;
    Centre c{0, 0};
    for (int m = 1; m < 400; m += 2)
        for (int n = 1; n < 400; n += 2) {
            const double sign = ((m + n) / 2) % 2 == 1 ? 1 : -1;  // sin(m pi/2) sin(n pi/2)
            const double load = 16 * q / (pi * pi * m * n);
            const double amplitude =
                load / (std::pow(pi / a, 4) * (d * std::pow(m, 4) + twoH * m * m * n * n + d * std::pow(n, 4)));
            c.w += sign * amplitude;
            c.mx += sign * amplitude * d * std::pow(m * pi / a, 2);
        }
    return c;
}

TEST(GrillageAgainstPlateSeries, MeshErrorsAreThoseTheHelpStates) {
    // A 10 m square, h = 20 cm, Ecs = 28000 MPa, nu = 0.2, g = q = 10 kN/m2: moments
    // under g + q = 20, deflection under g + 0.3 q = 13, no creep.
    const double d = 28e6 * 0.2 * 0.2 * 0.2 / (12 * (1 - 0.04));
    const double mx = huberSeries(10, 20, d, 1.6 * d).mx, w = huberSeries(10, 13, d, 1.6 * d).w * 1000;
    // Divisions, and the measured shortfall of the largest moment and of the
    // deflection: even meshes lie below the limit, odd ones (a line through the
    // centre) above it.
    const struct {
        int divisions;
        double moment, deflection;
    } meshes[] = {{4, 0.019, 0.079}, {5, -0.063, -0.042}, {6, 0.006, 0.035}, {8, 0.003, 0.019},
                  {12, 0.0013, 0.0085}, {13, -0.0094, -0.0061}};
    BeamRun run("Form24f");
    run.set({{"Text1", "25"}, {"Text2", "28000"}, {"Text3", "0"}, {"Text4", "10"}, {"Text5", "10"}, {"Text7", "20"},
             {"Text8", "1"}, {"Text6", "4"}, {"List1", "Grossa"}});
    run.session.state().grid("Form24g.Grade1") = {{"Vértice", "X", "Y"}, {"1", "0", "0"}, {"2", "10", "0"},
                                                  {"3", "10", "10"}, {"4", "0", "10"}};
    run.session.state().grid("Form24g.Grade2") = {{"Lado", "Tipo"}, {"1", "0"}, {"2", "0"}, {"3", "0"}, {"4", "0"}};
    run.press("Command4");
    run.press("Form24g.Command2");
    for (const auto& mesh : meshes) {
        SCOPED_TRACE(mesh.divisions);
        // "Grossa", "Média" and "Fina" are 4, 5 and 6 divisions; each "Refinar mais!"
        // adds one.
        run.set({{"List1", mesh.divisions == 4 ? "Grossa" : mesh.divisions == 5 ? "Média" : "Fina"}});
        ASSERT_TRUE(run.press("Command7").completed);
        for (int n = 7; n <= mesh.divisions; ++n) {
            run.set({{"List1", "Refinar mais!"}});
            ASSERT_TRUE(run.press("Command7").completed);
        }
        ASSERT_TRUE(run.press("Command1").completed);
        const double largest = readNumber(run.session.state().grid("Form24f.Grade1")[1][1]);
        EXPECT_NEAR(1 - largest / mx, mesh.moment, 0.001);
        EXPECT_NEAR(1 - run.number("Text9") / w, mesh.deflection, 0.002);
    }
}

}  // namespace
}  // namespace morve::testing
