// The two-flight stair: the statics of the whole, the symmetry of a stair turned
// end for end about the landing's middle, and "Autoportantes" as a user drives it.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

#include "../beams/beam_session.h"
#include "../stop_expectations.h"
#include "app/numbers.h"
#include "stairs/two_flights.h"

namespace morve {
namespace {

using testing::BeamRun;

TwoFlights stair(bool fixed, bool clockwise) {
    TwoFlights t;
    t.run = 2.7;
    t.flightWidth = 1.2;
    t.landingLength = 1.3;
    t.landingWidth = 2.6;
    t.rise = 2.88;
    t.landingThickness = 0.15;
    t.flightThickness = 0.14;
    t.modulus = 2.6e7;
    t.creep = 2.5;
    t.gFlight = 2;
    t.gLanding = 1;
    t.qFlight = t.qLanding = 3;
    t.fixedEnds = fixed;
    t.clockwise = clockwise;
    return t;
}

// Loads by hand: each flight's weight along its slope plus g and q on its plan, at
// its middle; the landing's on its area, at its centre.
TEST(TwoFlights, SupportsBalanceTheLoad) {
    for (bool fixed : {true, false})
        for (bool clockwise : {false, true}) {
            const TwoFlights t = stair(fixed, clockwise);
            const TwoFlightResults r = analyseTwoFlights(t);
            ASSERT_TRUE(r.solved);
            const double half = t.rise / 2, slope = std::hypot(t.run, half);
            const double flight = 25 * 0.14 * 1.2 * slope + (2 + 3) * 1.2 * t.run;
            const double landing = (25 * 0.15 + 1 + 3) * 1.3 * 2.6;
            EXPECT_NEAR(r.totalLoad, 2 * flight + landing, 1e-9 * r.totalLoad);
            const Vec3 force = r.baseForce + r.topForce;
            EXPECT_NEAR(force[0], 0, 1e-6 * r.totalLoad);
            EXPECT_NEAR(force[1], 0, 1e-6 * r.totalLoad);
            EXPECT_NEAR(force[2], r.totalLoad, 1e-6 * r.totalLoad);
            const double e = (clockwise ? -1 : 1) * 0.7;
            const Vec3 base{0, -e, 0}, top{0, e, t.rise};
            const Vec3 load = cross({t.run / 2, -e, half / 2}, {0, 0, -flight}) +
                              cross({t.run / 2, e, 1.5 * half}, {0, 0, -flight}) +
                              cross({t.run + 0.65, 0, half}, {0, 0, -landing});
            const Vec3 moment = r.baseMoment + r.topMoment + cross(base, r.baseForce) + cross(top, r.topForce) + load;
            for (double m : moment) EXPECT_NEAR(m, 0, 1e-6 * r.totalLoad * t.run);
        }
}

// Turned half round about the landing's middle line, the stair is itself with
// the load upside down: L2 answers L1 with N, Vz, T and Mz reversed (the flight
// runs the other way and the part above becomes the part below), Vy and My kept.
TEST(TwoFlights, SymmetricStairGivesSymmetricResults) {
    const TwoFlightResults r = analyseTwoFlights(stair(true, false));
    ASSERT_TRUE(r.solved);
    const double sign[6] = {-1, 1, -1, -1, 1, -1};
    for (int i = 0; i < 6; ++i) {
        EXPECT_NEAR(r.top[i], sign[i] * r.base[i], 1e-6 * (1 + std::abs(r.base[i]))) << i;
        EXPECT_NEAR(r.flight2Joint[i], sign[i] * r.flight1Joint[i], 1e-6 * (1 + std::abs(r.flight1Joint[i]))) << i;
        EXPECT_NEAR(r.flight2Max[i], sign[i] * r.flight1Max[i], 1e-6 * (1 + std::abs(r.flight1Max[i]))) << i;
    }
    EXPECT_NEAR(r.flight1MaxAt, r.flight2MaxAt, 1e-9);
    EXPECT_NEAR(r.baseForce[2], r.topForce[2], 1e-6 * r.totalLoad);
    // One flight pushes up on the landing, the other hangs it: opposite normal forces.
    EXPECT_LT(r.flight1Joint[0] * r.flight2Joint[0], 0);
    EXPECT_GT(r.deflection, 0);
}

const std::map<std::string, std::string> kStair = {
    {"Text4", "2.7"},  {"Text5", "1.2"}, {"Text6", "1.3"},  {"Text7", "2.6"},  {"Text8", "2.88"},
    {"Text9", "15"},   {"Text10", "14"}, {"Text11", "2"},   {"Text12", "1"},   {"Text13", "3"},
    {"Text14", "3"}};

TEST(Form42, ChecksReportAndTables) {
    struct Case {
        std::map<std::string, std::string> set;
        std::string message, focus;
    } cases[] = {
        {{{"Text4", "0"}}, "Forneça um valor positivo para a projeção horizontal do lance a.", "Form42.Text4"},
        {{{"Text6", "abc"}}, "Forneça um valor positivo para o comprimento do patamar c.", "Form42.Text6"},
        {{{"Text7", "2.3"}}, "O patamar deve ter pelo menos a largura dos dois lances juntos: b não pode ser menor que 2L.", "Form42.Text7"},
        {{{"Text8", "-0"}}, "Forneça um valor positivo para a altura de piso a piso H.", "Form42.Text8"},
        {{{"Text10", ""}}, "Forneça um valor positivo para a espessura do lance h.", "Form42.Text10"},
        {{{"Text14", "-1"}}, "A carga acidental no patamar não pode ser negativa.", "Form42.Text14"},
        {{{"Text6", "0.01"}}, "A escada resulta quase instável mesmo com as extremidades engastadas: aumente o comprimento do patamar c.", "Form42.Text6"},
        {{{"Text10", "0.01"}}, "A escada resulta quase instável mesmo com as extremidades engastadas: aumente a espessura h no lance.", "Form42.Text10"},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.message);
        BeamRun run("Form42");
        run.set(kStair).set(c.set);
        expectStop(run.prompter, run.press("Command1"), c.message, MessageKind::Warning, c.focus);
    }
    BeamRun run("Form42");
    run.set(kStair);
    ASSERT_TRUE(run.press("Command1").completed);
    EXPECT_TRUE(run.prompter.messages().empty());
    const GridRows& reactions = run.session.state().grid("Form42.Grade2");
    ASSERT_EQ(reactions.size(), 3u);
    EXPECT_EQ(reactions[1][3], reactions[2][3]);  // each support carries half
    const std::vector<std::string> lines = run.report("Form42");
    for (const char* text : {"Esforços no lance L1, onde My é máximo:", "Esforços na ligação do lance L2 com o patamar:",
                             "Esforços no centro do patamar:", "Largura total do patamar b = 2.6 m",
                             "fi= 2.5", "No patamar h = 15 cm", "No lance h = 14 cm"})
        EXPECT_NE(std::find(lines.begin(), lines.end(), text), lines.end()) << text;
    EXPECT_EQ(lines.back(), "[figura]");
}

}  // namespace
}  // namespace morve
