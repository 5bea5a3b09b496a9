// Torção com flexão (Form6 and its results Form6b): the design against hand
// calculations, the checks in order with their words and focus, the screens it
// shows, and the two fixed pages of the report.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "app/module.h"
#include "basis/messages.h"
#include "beams/shear_common.h"
#include "shear_support.h"

namespace morve {
namespace {

using namespace shear_test;

ModuleRun calculate(const Inputs& inputs, std::vector<std::string> answers = {}) {
    return runModule("Form6", inputs, std::move(answers));
}

// Defaults: fck 20, fyk 500, Es 200, b 25, h 40, CEB/90, Beta 1.00.
Inputs with(const Inputs& changes) {
    return changed({{"Text9", "4"}, {"Text10", "50"}, {"Text11", "50"}, {"Text12", "10"}, {"List1", "6.3"}},
                   changes);
}

const char* const kResultBoxes[] = {"Text1", "Text2", "Text3", "Text4", "Text5", "Text6",
                                    "Text7", "Text8", "Text9", "Text10", "Text11"};

struct DesignCase {
    const char* what;
    Inputs in;
    // As, As', Asl, As1, As2, As3, Asw,V, Asw,T, diameter, spacing, legs
    std::vector<std::string> results;
};

// Hand calculations in kN and cm: fyd = 43.48, rhomin 0.0015, rhow = 0.000884.
const DesignCase kDesignCases[] = {
    // mu = 0.1744, As = 7.75; te = 8.33, Ae = 694.4, ue = 118: Asw,T = 3.48, Asl = 4.10;
    // tauwd/tauwu + tautd/tautu = 0.676 > 0.67 -> smax 13.8; At = 8.26, s = 100.5/8.26 = 12.2.
    {"per perimeter, h 50",
     {{"Text1", "25"}, {"Text3", "210"}, {"Text7", "25"}, {"Text8", "50"}, {"Text9", "4"},
      {"Text10", "100"}, {"Text11", "80"}, {"Text12", "15"}, {"List1", "8.0"}},
     {"7.75", "0", "4.1", "8.33", "0.58", "1.45", "1.3", "3.48", "8", "12", "2"}},
    // Ae = 900, ue = 128, tauwd < tauc: Asw,T = 1.79, Asl = 2.29 half to each face.
    {"40 x 40 splits Asl in halves", with({{"Text7", "40"}, {"Text8", "40"}}),
     {"4.75", "0", "2.29", "5.9", "1.14", "0", "0", "1.79", "6.3", "17", "2"}},
    // Ae = 922.5, ue = 130, Asl = 2.356 at q = 0.018125 per cm of wall.
    {"41 wide spreads Asl", with({{"Text7", "41"}, {"Text8", "40"}}),
     {"4.75", "0", "2.36", "5.31", "0.56", "0.54", "0", "1.75", "6.3", "17", "2"}},
    {"41 high spreads Asl", with({{"Text7", "40"}, {"Text8", "41"}}),
     {"4.61", "0", "2.3", "5.14", "0.53", "0.55", "0", "1.75", "6.3", "17", "2"}},
    // he = 7.69 < 2d': Ae = 32 x 17 = 544, ue = 98: Asw,T = 2.96, Asl = 2.90, s = 10.5.
    {"pure torsion", with({{"Text10", "0"}, {"Text11", ""}}),
     {"1.5", "0", "2.9", "2.95", "1.45", "0", "0", "2.96", "6.3", "10", "2"}},
    // Asl,min = 0.5 x 0.000884 x 98 x 25 = 1.083; At,min = 2.21, s held to 0.6 x 36.
    {"minimum torsion steel", with({{"Text10", "0"}, {"Text11", "0"}, {"Text12", "1"}}),
     {"1.5", "0", "1.08", "2.04", "0.54", "0", "0", "0.3", "6.3", "21", "2"}},
    // Tk -10: the signs go through; Asl < 0 takes no minimum, At falls back on 2.21.
    {"negative torque", with({{"Text10", "0"}, {"Text11", "0"}, {"Text12", "-10"}}),
     {"1.5", "0", "-2.9", "0.05", "-1.45", "0", "0", "-2.96", "6.3", "21", "2"}},
    // As,min = 0.078 x 60^(2/3)/434.8 x 1000 = 2.75 (not the high-strength 2.57); Asw,V = 1.70.
    {"fck 60", with({{"Text1", "60"}, {"Text10", "10"}, {"Text11", "100"}, {"List1", "8.0"}}),
     {"2.75", "0", "2.9", "4.2", "1.45", "0", "1.7", "2.96", "8", "13", "2"}},
    // he = 6.32 < 2d': te = b - 2d' = 6, Ae = 300, ue = 112: Asw,T = 1.61, Asl = 1.80.
    {"wall held to b - 2d'",
     {{"Text1", "25"}, {"Text7", "16"}, {"Text8", "60"}, {"Text9", "5"}, {"Text10", "30"},
      {"Text11", "30"}, {"Text12", "3"}, {"List1", "5.0"}},
     {"1.81", "0", "1.8", "1.97", "0.16", "0.87", "0", "1.61", "5", "12", "2"}},
};

TEST(Form6Design, MatchesTheHandCalculations) {
    for (const auto& c : kDesignCases) {
        SCOPED_TRACE(c.what);
        ModuleRun run = calculate(c.in);
        ASSERT_TRUE(run.outcome.completed);
        EXPECT_TRUE(run.messages.empty());
        std::vector<std::string> got;
        for (const char* box : kResultBoxes)
            got.push_back(run.session.state().text(std::string("Form6b.") + box));
        EXPECT_EQ(got, c.results);
    }
}

TEST(Form6Screens, SuccessShowsTheResultsAndTheirButtonsActOnThem) {
    ModuleRun run = calculate(with({}));
    ASSERT_TRUE(run.outcome.completed);
    const std::vector<ScreenEffect> shown{{EffectKind::HideScreen, "Form6"},
                                          {EffectKind::ShowScreen, "Form0b"},
                                          {EffectKind::ShowScreen, "Form6b"}};
    EXPECT_EQ(run.outcome.effects, shown);
    EXPECT_TRUE(run.session.screenShown("Form6b"));
    EXPECT_FALSE(run.session.screenShown("Form6"));
    // The toolbar of Form6 prints nothing; the report is Form6b's.
    EXPECT_FALSE(run.session.state().enabled(printButton("Form6")));

    ScriptedPrompter quiet;
    Outcome print = run.session.press("Form6b.Command7", quiet);
    const std::vector<ScreenEffect> report{{EffectKind::StartReport, "Form6b"},
                                           {EffectKind::DisableScreen, "Form6b"}};
    EXPECT_EQ(print.effects, report);
    Outcome back = run.session.press("Form6b.Command2", quiet);
    EXPECT_TRUE(run.session.screenShown("Form6"));
    EXPECT_FALSE(run.session.screenShown("Form6b"));
    EXPECT_EQ(back.effects.front(), (ScreenEffect{EffectKind::ShowScreen, "Form0b"}));
}

using K = MessageKind;
const CheckCase kChecks[] = {
    {"low fck", with({{"Text1", "19"}, {"Text2", "0"}}), {}, msg::kLowFck, K::Warning, ""},
    {"steel class before Es", with({{"Text2", "550"}, {"Text3", "0"}}), {"yes"}, msg::kSteelClass, K::YesNo, "Form6.Text2"},
    {"Gamac before b", with({{"Text4", "0.9"}, {"Text7", "0"}}), {}, msg::kPartialCoefficient, K::Warning, "Form6.Text4"},
    {"b", with({{"Text7", "0"}, {"Text8", "0"}}), {}, "Forneça um valor positivo para b.", K::Warning, "Form6.Text7"},
    {"narrow", with({{"Text7", "10"}, {"Text8", "0"}}), {"yes"}, msg::kBeamWidth, K::YesNo, "Form6.Text7"},
    {"h", with({{"Text8", "0"}}), {}, msg::kPositiveH, K::Warning, "Form6.Text8"},
    {"d'", with({{"Text9", ""}, {"List1", ""}}), {}, "Forneça um valor positivo para a distância d'.", K::Warning, "Form6.Text9"},
    {"d' at h/2", with({{"Text9", "20"}, {"List1", ""}}), {}, "A distância d' tem que ser menor que h/2.", K::Warning, "Form6.Text9"},
    {"stirrup", with({{"List1", ""}, {"Text12", "0"}}), {}, msg::kChooseStirrup, K::Warning, "Form6.List1"},
    {"torque", with({{"Text12", ""}}), {}, "O momento torçor tem que ser diferente de zero.", K::Warning, "Form6.Text12"},
    {"balanced", with({{"List2", "Balanceada"}, {"List3", "0.90"}}), {}, msg::kBalancedBeta, K::Warning, "Form6.List2"},
    // d' 19.9: delta = 19.9/20.1 = 0.99 > xlim 0.45, and Mk 100 needs compression steel
    // (mu = 14000/(25 x 404 x 1.214) = 1.14). The focus goes to Form7's height box.
    {"d' beyond xlim", with({{"Text9", "19.9"}, {"Text10", "100"}}), {}, msg::kEnlargeSection, K::Warning, "Form7.Text4"},
    // fck 90, NBR-6118, Beta 0.75: xlim = 0.15 < 2.6/12.6; Mk 200 needs compression steel.
    {"domain 2", with({{"Text1", "90"}, {"List2", "NBR-6118"}, {"List3", "0.75"}, {"Text10", "200"}}), {}, msg::kDomain2,
     K::Warning, "Form7.Text4"},
    // b 25, h 60, d' 12.5: he = 9.375 < 25 and b - 2d' = 0 leaves a wall of nothing.
    {"no wall", with({{"Text8", "60"}, {"Text9", "12.5"}}), {}, "A distância d' tem que ser diferente de b/2.", K::Warning, "Form6.Text9"},
    // Tk 40: tautd = 10 x 5600/(2 x 544 x 7.69) = 6.69 MPa > 0.25 x 0.92 x 14.29 = 3.29.
    {"strut", with({{"Text12", "40"}}), {}, msg::kCrushedStrut, K::Warning, ""},
    // 15 x 30, d' 3, Mk 90: mu = 12600/(15 x 729 x 1.214) = 0.949; As 12.4 + As' 8.3 = 4.6%.
    {"rate", with({{"Text7", "15"}, {"Text8", "30"}, {"Text9", "3"}, {"Text10", "90"}, {"Text11", "0"}, {"Text12", "1"}}), {},
     msg::kSteelRateAbove4, K::Warning, ""},
};

TEST(Form6Checks, EachStopsWithItsWordsAndFocusAndLeavesTheResultsAlone) {
    for (const auto& c : kChecks) {
        SCOPED_TRACE(c.what);
        ModuleRun run = calculate(c.in, c.answers);
        expectStop(run, c);
        EXPECT_EQ(run.session.state().text("Form6b.Text1"), "");
    }
}

TEST(Form6Checks, AStopAfterASuccessLeavesTheEarlierResultsShown) {
    ModuleRun run = calculate(with({}));
    ASSERT_TRUE(run.outcome.completed);
    const std::string as = run.session.state().text("Form6b.Text1");
    run.session.state().setText("Form6.Text12", "0");
    ScriptedPrompter prompter;
    EXPECT_FALSE(run.session.press("Command1", prompter).completed);
    EXPECT_EQ(run.session.state().text("Form6b.Text1"), as);
}

TEST(Form6Checks, NoToTheQuestionsGoesOn) {
    ModuleRun run = calculate(with({{"Text2", "550"}, {"Text3", "205"}, {"Text7", "11.9"},
                                     {"Text10", "10"}, {"Text12", "1"}}),
                               {"no", "no", "no"});
    EXPECT_TRUE(run.outcome.completed);
    EXPECT_EQ(run.messages.size(), 3u);
}

TEST(Form6Report, TwoFixedPagesFromTheBoxesOfBothScreens) {
    ModuleRun run = calculate(kDesignCases[0].in);
    ASSERT_TRUE(run.outcome.completed);
    const std::vector<std::string> expected{
        "Propriedades dos materiais:", "Concreto: fck= 25 MPa", "Aço: fyk= 500 MPa     Es= 210 GPa", " ",
        "Coeficientes parciais de segurança:", "Gamac= 1.4     Gamas= 1.15     Gamaf= 1.4", " ",
        "Dimensões da seção transversal:", "Largura b= 25 cm                       Altura h= 50 cm",
        "Altura útil d= 46 cm", "Distância d'= 4 cm", " ", "Esforços solicitantes de serviço:",
        "Momento fletor:              Mk= 100 kNm", "Esforço cortante:            Vk= 80 kN",
        "Momento torçor:              Tk= 15 kNm", " ", "Coeficiente de redistribuição de momentos: Beta = 1.00",
        "Critério de ductilidade: CEB/90.  xlim/d = 0.45", " ", "... Continua", "<page>",
        "SOLUÇÃO:", "A)ARMADURA LONGITUDINAL", "Para o momento fletor Md:",
        "Armadura tracionada As= 7.75 cm2     Armadura comprimida As'= 0 cm2", "Para o momento torçor Td:",
        "Asl= 4.1 cm2", "ARRANJO SUGERIDO:", "Na face inferior:            As1= 8.33 cm2",
        "Na face superior:            As2= 0.58 cm2", "Em cada face lateral:        As3= 1.45 cm2",
        "B)ESTRIBOS VERTICAIS", "Para o esforço cortante Vd:  Asw,V= 1.3 cm2/m",
        "Para o momento torçor Td:    Asw,T= 3.48 cm2/m", "Estribos de 8 mm     Espaçamento = 12 cm(2 ramos)"};
    EXPECT_EQ(reportLines(run.session, "Form6b"), expected);

    // Page 1 holds the header and the data, page 2 the solution.
    ReportWriter out;
    generateReport("Form6b", run.session.module(), run.session.state(), out);
    const auto pages = paginate(out.document(), "", PageRule::Screen);
    ASSERT_EQ(pages.size(), 2u);
    EXPECT_EQ(pages[0].lines.back().text, "... Continua");
    EXPECT_EQ(pages[1].lines.front().text, "SOLUÇÃO:");
}

TEST(Form6Report, DuctilityWithThreeDecimalsForEveryCriterion) {
    // Balanced, CA-50, Es 200: eyd = 43.478/20000 = 0.0021739; xlim = 3.5/5.6739 = 0.61686.
    // NBR-6118 at Beta 0.85, fck 20: 0.68 - 0.35 = 0.33 (0.33000000000000007 unrounded).
    ModuleRun balanced = calculate(with({{"List2", "Balanceada"}}));
    EXPECT_EQ(reportLines(balanced.session, "Form6b")[18],
              "Critério de ductilidade: Condição balanceada. xlim / d = 0.617");
    ModuleRun nbr = calculate(with({{"List2", "NBR-6118"}, {"List3", "0.85"}}));
    EXPECT_EQ(reportLines(nbr.session, "Form6b")[18], "Critério de ductilidade: NBR-6118.  xlim/d = 0.33");
    EXPECT_EQ(reportLines(nbr.session, "Form6b")[17], "Coeficiente de redistribuição de momentos: Beta = 0.85");
}

}  // namespace
}  // namespace morve
