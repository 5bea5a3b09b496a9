// The tie modules under flexo-tension: the asymmetric design against lever-rule and
// block hand calculations, the symmetric design checked by recomputing the forces
// of the strain plane it found, the checks of both in order, and their reports.
#include <cmath>

#include "../module_run.h"
#include "../stop_expectations.h"
#include "basis/messages.h"
#include "column_case.h"
#include "columns/tie_design.h"
#include "columns/tie_module.h"

using namespace morve;
using morve::testing::labels;
using morve::testing::reportLines;

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

TEST(Form18Design, MatchesTheHandCalculations) {
    struct Case {
        const char *mk, *nk;
        std::map<std::string, std::string> set;
        const char *as, *asPrime;
    };
    const Case cases[] = {
        // Nd 280 kN between layers 32 cm apart, Md 1400: As fyd = 140 + 43.75, As' fyd = 140 - 43.75.
        {"10", "200", {}, "4.23", "2.21"},
        {"0", "200", {}, "3.22", "3.22"},  // half the tie each: 140 / 43.478
        // About d: 7000 - 140 x 16 = 4760 kNcm; x^2 - 90 x + 612.5 = 0, x = 7.417,
        // Rc = 1.214286 x 20 x 0.8 x 7.417 = 144.1 kN; As = (144.1 + 140) / 43.478.
        {"50", "100", {}, "6.53", "0"},
        // 18760 kNcm about d; x = 0.45 d: block 314.74 kN x 29.52 cm = 9291.2; the rest
        // over 32 cm, es' 2.636 per mille yields: As' 6.8057, As = (314.74 + 295.90 + 140) / fyd.
        {"150", "100", {}, "17.26", "6.81"},
        // fck 40, Beta 0.75: xlim = 0.15 d = 5.4 cm in domain 2; at d' 10 x 1.4 / 30.6 =
        // 0.4575 per mille, 9.150 kN/cm2; Rc = 209.83 kN x 33.84 cm = 7100.6 kNcm;
        // As' = (18760 - 7100.6) / (32 x 9.150).
        {"150", "100", {{"Text1", "40"}, {"List3", "0.75"}}, "16.43", "39.82"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(std::string(c.mk) + " " + c.nk);
        auto run = calculate("Form18", c.mk, c.nk, c.set);
        EXPECT_TRUE(run->outcome.completed);
        EXPECT_EQ(run->text("Text10"), c.as);
        EXPECT_EQ(run->text("Text11"), c.asPrime);
    }
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
    // Mk 0: half the tie on each face; Mk 5: the more tensioned face carries
    // 140 + 700 / 32 = 161.875 kN -> 3.723 cm2, and so both faces.
    EXPECT_EQ(calculate("Form19", "0", "200")->text("Text10"), "3.22");
    EXPECT_EQ(calculate("Form19", "5", "200")->text("Text10"), "3.72");
    SymmetricTie r = designSymmetricTie(section20x36(5, 200));
    EXPECT_TRUE(r.tieCase);
}

TEST(TieChecks, StopInOrderWithTheirTextAndFocus) {
    struct Check {
        std::map<std::string, std::string> set;  // "Mk" and "Nk" stand for their boxes
        std::vector<std::string> answers;
        std::string message;
        MessageKind kind;
        std::string focus;  // unqualified; "Mk" and "Nk" stand for their boxes
    };
    using K = MessageKind;
    const Check checks[] = {
        {{{"Text1", "19"}, {"Text2", "0"}}, {}, msg::kLowFck, K::Warning, ""},
        {{{"Text2", "450"}}, {"yes"}, msg::kSteelClass, K::YesNo, "Text2"},
        {{{"Text4", "0"}, {"Text5", "0"}}, {}, "Forneça um valor positivo para b.", K::Warning, "Text4"},
        {{{"Text5", ""}}, {}, msg::kPositiveH, K::Warning, "Text5"},
        {{{"Text6", "0"}}, {}, msg::kPositiveD, K::Warning, "Text6"},
        {{{"Text6", "40"}}, {}, msg::kDBelowH, K::Warning, "Text6"},
        {{{"Text7", "0"}}, {}, msg::kPositiveDPrime, K::Warning, "Text7"},
        {{{"Text7", "36"}}, {}, msg::kDPrimeBelowD, K::Warning, "Text7"},
        {{{"Mk", "-1"}, {"Nk", "0"}}, {}, "Forneça um valor positivo (ou nulo) para Mk.", K::Warning, "Mk"},
        {{{"Nk", "0"}, {"Text13", "0"}}, {}, "Forneça um valor positivo para Nk.", K::Warning, "Nk"},
        {{{"Text13", "0.9"}, {"Text14", "0.9"}}, {}, msg::kPartialCoefficient, K::Warning, "Text13"},
    };
    for (const std::string key : {"Form18", "Form19"})
        for (const auto& c : checks) {
            SCOPED_TRACE(key + " " + c.message);
            const bool f18 = key == "Form18";
            std::map<std::string, std::string> set = c.set;
            const std::string mk = set.count("Mk") ? set["Mk"] : "50", nk = set.count("Nk") ? set["Nk"] : "100";
            set.erase("Mk");
            set.erase("Nk");
            auto run = calculate(key, mk, nk, set, c.answers);
            std::string focus = c.focus;
            if (focus == "Mk") focus = f18 ? "Text8" : "Text9";
            if (focus == "Nk") focus = f18 ? "Text9" : "Text8";
            expectStop(run->prompter, run->outcome, c.message, c.kind, focus.empty() ? "" : key + "." + focus);
            EXPECT_EQ(run->text("Text10"), " ");
        }
}

TEST(Form18Checks, BalancedWithoutRedistributionAndALimitAboveTheCompressedLayer) {
    auto balanced = calculate("Form18", "50", "100", {{"List2", "Balanceada"}, {"List3", "0.95"}});
    EXPECT_EQ(balanced->prompter.messages().back().text, msg::kBalancedBeta);
    EXPECT_EQ(balanced->outcome.focus, "Form18.List2");
    // xlim = 0.15 d = 5.4 cm with d' = 6 cm: the layer at d' is not compressed.
    auto small = calculate("Form18", "150", "100", {{"Text1", "40"}, {"List3", "0.75"}, {"Text7", "6"}});
    EXPECT_EQ(small->prompter.messages().back().text, msg::kEnlargeSection);
    EXPECT_EQ(small->outcome.focus, "Form18.Text5");
    EXPECT_EQ(small->text("Text11"), " ");
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

TEST(TieReports, LineByLine) {
    const std::vector<std::string> head{
        "Propriedades dos materiais:", "Concreto: fck= 20 MPa", "Aço: fyk= 500 MPa     Es= 200 GPa", " ",
        "Coeficientes parciais de segurança:", "Gamac= 1.4     Gamas= 1.15     Gamaf= 1.4", " ",
        "Dimensões da seção transversal:", "Largura b= 20 cm                       Altura h= 40 cm",
        "Altura útil d= 36 cm                   Distância d'= 4 cm", " "};
    auto f18 = calculate("Form18", "150", "100");
    std::vector<std::string> expected = head;
    for (const char* line :
         {"Momento fletor de serviço Mk= 150 kNm", "Esforço normal de serviço Nk= 100 kN", " ",
          "Coeficiente de redistribuição de momentos: Beta = 1",
          "Critério de ductilidade: CEB/90.  xlim/d = 0.45", " ", "SOLUÇÃO:", " ",
          "Armadura tracionada exclusivamente pelo momento: As= 17.26 cm2",
          "Armadura comprimida exclusivamente pelo momento: As'= 6.81 cm2"})
        expected.push_back(line);
    EXPECT_EQ(reportLines(*f18->session, "Form18"), expected);

    auto tie = calculate("Form18", "10", "200");
    auto lines = reportLines(*tie->session, "Form18");
    EXPECT_EQ(std::vector<std::string>(lines.end() - 3, lines.end()),
              (std::vector<std::string>{"Tração com pequena excentricidade: as duas armaduras estão tracionadas.",
                                        "Armadura mais tracionada: As= 4.23 cm2",
                                        "Armadura menos tracionada: As'= 2.21 cm2"}));

    auto f19 = calculate("Form19", "0", "200");
    expected = head;
    for (const char* line : {"Momento fletor de serviço Mk= 0 kNm", "Esforço normal de serviço Nk= 200 kN", " ",
                             "SOLUÇÃO:", " ", "Armadura por face: As= 3.22 cm2"})
        expected.push_back(line);
    EXPECT_EQ(reportLines(*f19->session, "Form19"), expected);
    ReportWriter w;
    generateReport("Form19", f19->session->module(), f19->session->state(), w);
    EXPECT_EQ(w.document().title, "Dimensionamento à Flexo-Tração com Armadura Simétrica");
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
