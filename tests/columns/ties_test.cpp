// The tie modules under flexo-tension: the symmetric design checked by recomputing
// the forces of the strain plane it found, the edges of the asymmetric design, the
// captions and the sketch. Hand-calculated designs, the checks in order and the
// report lines are cases in tests/cases/columns.
#include <cmath>

#include "../module_run.h"
#include "column_case.h"
#include "columns/tie_design.h"
#include "columns/tie_module.h"

using namespace morve;
using morve::testing::labels;

namespace {

// b 20, h 40, d 36 of the window's defaults, d' 4, fck 20, CA-50, Es 200, and the
// forces by name: Form18 has Mk in Text8 and Nk in Text9, Form19 the other way.
std::unique_ptr<morve::testing::Run> calculate(const std::string& key, const std::string& mk, const std::string& nk,
                                        const std::map<std::string, std::string>& set = {},
                                        std::vector<std::string> answers = {}) {
    const bool f18 = key == "Form18";
    const auto boxes =
        morve::testing::with({{"Text7", "4"}, {f18 ? "Text8" : "Text9", mk}, {f18 ? "Text9" : "Text8", nk}}, set);
    return morve::testing::pressWith(key, "Command6", boxes, std::move(answers));
}

// fck 20, gamma 1.4 and 1.15: sigma_cd = 0.85 x 2 / 1.4, fyd = 50 / 1.15 (kN/cm2).
const double kSigmaCd = 0.85 * 2 / 1.4, kFyd = 50 / 1.15;

}  // namespace

TEST(Form18Design, CompressedSteelStrainAboveAndBelowTheStartOfDomain3) {
    EXPECT_NEAR(compressedSteelStrain(0.15, 4.0 / 36, 3.5), 0.4575163, 1e-6);
    // Above the start of domain 3 the concrete is at 3.5: (0.45 - 0.1) 3.5 / 0.45.
    EXPECT_NEAR(compressedSteelStrain(0.45, 0.1, 3.5), 2.7222222, 1e-6);
}

TEST(Form18Design, MomentExactlyAtTheTieMomentStaysATie) {
    TieSection t;
    t.delta = 0.25;
    t.nu = 0.4;
    t.mu = 0.5 * (1 - t.delta) * t.nu;  // the resultant on the layer at d
    t.block = StressBlockParameters(20);
    t.es = 20000;
    t.fyd = kFyd;
    AsymmetricTie r = designAsymmetricTie(t, 0.45);
    EXPECT_EQ(r.kind, TieCase::SmallEccentricity);
    EXPECT_EQ(r.omegaPrime, 0);
    EXPECT_NEAR(r.omega, 0.4, 1e-15);  // all the tie on one layer
}

namespace {

// Forces of the ultimate strain plane with the neutral axis at x (cm), equal layers
// As at d and d', worked out in centimetres and kN: tension positive; the moment is
// taken about the mid-plane of the layers, sagging positive.
struct PlaneForces {
    double n, m;
};
PlaneForces planeForces(double as, double x, double b, double d, double dp) {
    auto strain = [&](double y) {
        return x <= 3.5 / 13.5 * d ? 0.010 * (y - x) / (d - x) : 0.0035 * (y - x) / x;
    };
    auto stress = [&](double e) { return std::clamp(e * 20000, -kFyd, kFyd); };
    const double s1 = stress(strain(d)), s2 = stress(strain(dp));
    const double rc = kSigmaCd * b * 0.8 * x, mid = (d + dp) / 2;
    return {as * (s1 + s2) - rc, as * s1 * (d - mid) - as * s2 * (mid - dp) + rc * (mid - 0.4 * x)};
}

TieSection section20x36(double mk, double nk) {
    TieSection t;
    t.mu = 140 * mk / (20 * 36 * 36 * kSigmaCd);
    t.nu = 1.4 * nk / (20 * 36 * kSigmaCd);
    t.delta = 4.0 / 36;
    t.block = StressBlockParameters(20);
    t.es = 20000;
    t.fyd = kFyd;
    return t;
}

}  // namespace

TEST(Form19Design, SymmetricSteelBalancesTheForcesOfItsStrainPlane) {
    const double unit = 20 * 36 * kSigmaCd / kFyd;
    for (double mk : {15.0, 40.0, 60.0, 120.0}) {
        SymmetricTie r = designSymmetricTie(section20x36(mk, 100));
        ASSERT_EQ(r.stop, TieStop::None) << mk;
        ASSERT_FALSE(r.tieCase) << mk;
        const double as = r.omega * unit;
        PlaneForces f = planeForces(as, r.xi * 36, 20, 36, 4);
        EXPECT_NEAR(f.n, 140, 1e-9) << mk;
        EXPECT_NEAR(f.m, 140 * mk, 0.004 * 140 * mk) << mk;  // the search stops at |f| <= 0.001
        auto run = calculate("Form19", std::to_string(mk), "100");
        EXPECT_NEAR(std::stod(run->text("Text10")), as, 0.005) << mk;
    }
}

TEST(Form19Design, WholeSectionInTensionByTheLeverRule) {
    // Nk 200 with Mk 5 is still a tie; its steel by hand is a case in tests/cases/columns.
    EXPECT_TRUE(designSymmetricTie(section20x36(5, 200)).tieCase);
}

TEST(TieModules, CaptionsAndEffectsOfEachModule) {
    auto r18 = calculate("Form18", "1", "1");
    const FormState& s18 = r18->session->state();
    EXPECT_EQ(s18.declaration("Text8")->caption, "Mk(kNm)=");
    EXPECT_EQ(s18.declaration("Text11")->caption, " A's (cm2)=");
    auto run = calculate("Form19", "1", "1");
    EXPECT_EQ(run->session->state().declaration("Text8")->caption, "Nk(kN)=");
    EXPECT_FALSE(run->session->state().has("Text11"));
    EXPECT_EQ(run->outcome.effects,
              (std::vector<ScreenEffect>{{EffectKind::EnableControl, "Form19.Toolbar1.Imprimir"}}));
}

TEST(TieSketch, LabelsBothFacesAndTheForces) {
    auto asym = labels(ModuleRegistry::find("Form18")->drawing("Form18.Picture1", FormState{}));
    auto sym = labels(ModuleRegistry::find("Form19")->drawing("Picture1", FormState{}));
    EXPECT_EQ(asym.count("A's"), 1u);
    EXPECT_EQ(sym.count("As"), 2u);
    EXPECT_EQ(sym.count("A's"), 0u);
    for (const auto* set : {&asym, &sym}) {
        EXPECT_EQ(set->count("Nk"), 1u);
        EXPECT_EQ(set->count("Mk"), 1u);
    }
}
