// Esforço cortante (Form5): stirrups against hand calculations, the checks in their
// order with their words and focus, and the report.
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
    return runModule("Form5", inputs, std::move(answers));
}

// A good case to spoil one box at a time: defaults fck 20, fyk 600, bw 20, d 36.
Inputs good(const Inputs& changes = {}) {
    return changed({{"Text5", "100"}, {"List1", "6.3"}}, changes);
}

struct DesignCase {
    const char* what;
    Inputs in;
    const char* asw;
    const char* diameter;
    const char* spacing;
    const char* legs;
};

// Hand calculations, MPa and cm: tauwu = 3.549, tauc = 0.6631, fyd held to 435,
// Asw,min = 1.768; two legs of 5 mm hold 0.3927 cm2, of 6.3 mm 0.6234 cm2.
const DesignCase kDesignCases[] = {
    // tauwd = 1.944 < 0.67 tauwu: smax 21.6; Asw = 2000 x 1.11 x 1.281/435 = 6.539, s = 9.53.
    {"ordinary shear", good(), "6.54", "6.3", "9", "2"},
    // Vk 10: tauwd 0.194 < tauc, Asw = minimum 1.768; s = 39.27/1.768 = 22.2 -> smax 21.6.
    {"minimum stirrups", good({{"Text5", "10"}, {"List1", "5.0"}}), "1.77", "5", "21", "2"},
    // Vk 90: tauwd 1.75, Asw 5.547; 5.547 x 7/39.27 = 0.989 -> 2 legs, s = 7.08.
    {"two legs", good({{"Text5", "90"}, {"List1", "5.0"}}), "5.55", "5", "7", "2"},
    // Vk 95.4: tauwd 1.855, Asw 6.083; 1.084 -> 4 legs; s = 2 x 39.27/6.083 = 12.91.
    {"four legs, 12.9 shows as 12", good({{"Text5", "95.4"}, {"List1", "5.0"}}), "6.08", "5", "12",
     "4"},
    // Vk 150: tauwd 2.917 > 0.67 tauwu: smax 10.8; Asw 11.50 -> 6 legs, s = 10.24.
    {"six legs", good({{"Text5", "150"}, {"List1", "5.0"}}), "11.5", "5", "10", "6"},
    // d 20, Vk 70: smax = 0.3 x 20 = 6; Asw 9.119 -> 4 legs, s = 8.6 held to 6.
    {"spacing held to 0.3 d", good({{"Text4", "20"}, {"Text5", "70"}, {"List1", "5.0"}}), "9.12", "5",
     "6", "4"},
    // fck 60: tauc = 0.8904 ln(7.6)/1.4 = 1.290, Asw = 2000 x 1.11 x 1.627/434.8 = 8.306, s = 12.10.
    {"high-strength concrete", good({{"Text1", "60"}, {"Text2", "500"}, {"Text5", "150"}, {"List1", "8.0"}}),
     "8.31", "8", "12", "2"},
    // bw 12 goes on after Cancel: Asw 0.947 < minimum 0.2 x 2.210/500 x 1200 = 1.061.
    {"narrow web, minimum", good({{"Text2", "500"}, {"Text3", "12"}, {"Text5", "30"}, {"List1", "6.0"}}),
     "1.06", "6", "21", "2"},
};

TEST(Form5Design, MatchesTheHandCalculations) {
    for (const auto& c : kDesignCases) {
        SCOPED_TRACE(c.what);
        ModuleRun run = calculate(c.in);
        ASSERT_TRUE(run.outcome.completed);
        const FormState& s = run.session.state();
        EXPECT_EQ(s.text("Text6"), c.asw);
        EXPECT_EQ(s.text("Text7"), c.diameter);
        EXPECT_EQ(s.text("Text8"), c.spacing);
        EXPECT_EQ(s.text("Text9"), c.legs);
        EXPECT_TRUE(s.enabled(printButton("Form5")));
    }
}

TEST(Form5Design, MinimumTakesFykAt500AndStirrupsFydAt435) {
    // fyk 600 and fyk 500 give the same minimum (fyk is held to 500) and nearly the
    // same design (fyd 435 against 434.78): Vk 10 is all minimum, 1.77 in both.
    EXPECT_EQ(calculate(good({{"Text5", "10"}})).session.state().text("Text6"), "1.77");
    EXPECT_EQ(calculate(good({{"Text5", "10"}, {"Text2", "500"}})).session.state().text("Text6"),
              "1.77");
    // A fyk of 450 kept after No: fyd = 391.3, Asw = 2000 x 1.11 x 1.2813/391.3 = 7.269;
    // the minimum divides by 450: 1.965.
    ModuleRun run = calculate(good({{"Text2", "450"}}), {"no"});
    ASSERT_TRUE(run.outcome.completed);
    EXPECT_EQ(run.session.state().text("Text6"), "7.27");
    EXPECT_EQ(calculate(good({{"Text2", "450"}, {"Text5", "10"}}), {"no"}).session.state().text("Text6"),
              "1.96");
}

TEST(Form5Design, ProposalOfStirrupsStepsAtWholeSetsOfTwoLegs) {
    // Two legs of 5 mm hold 0.3927 cm2; at 7 cm that is 5.61 cm2/m per set.
    const double twoLegs = 0.5 * 0.5 * 3.14159265 / 2;
    const double perSet = twoLegs * 100 / 7;
    EXPECT_EQ(proposeStirrups(perSet * 0.999, 5.0, 30).legs, 2);
    EXPECT_EQ(proposeStirrups(perSet * 1.001, 5.0, 30).legs, 4);
    EXPECT_EQ(proposeStirrups(perSet * 2.001, 5.0, 30).legs, 6);
    // Just past a step the spacing falls back to about 14 cm, never below 7.
    EXPECT_EQ(proposeStirrups(perSet * 1.001, 5.0, 30).spacing, 13);
    EXPECT_EQ(proposeStirrups(perSet * 0.999, 5.0, 30).spacing, 7);
    EXPECT_EQ(maximumStirrupSpacing(false, 60), 30);
    EXPECT_EQ(maximumStirrupSpacing(true, 80), 20);
}

using K = MessageKind;
const CheckCase kChecks[] = {
    {"low fck", good({{"Text1", "19.9"}, {"Text2", "0"}}), {}, msg::kLowFck, K::Warning, ""},
    {"fyk", good({{"Text2", "0"}, {"Text3", "0"}}), {}, "Forneça um valor positivo para fyk", K::Warning, "Form5.Text2"},
    {"steel class", good({{"Text2", "450"}, {"Text3", "0"}}), {"yes"}, msg::kSteelClass, K::YesNo, "Form5.Text2"},
    {"bw", good({{"Text3", "0"}, {"Text4", "0"}}), {}, "Forneça um valor positivo para bw", K::Warning, "Form5.Text3"},
    {"narrow web", good({{"Text3", "11.9"}, {"Text4", "0"}}), {"ok"}, msg::kBeamWidthOkCancel, K::OkCancel, "Form5.Text3"},
    {"d", good({{"Text4", "-1"}, {"Text5", "0"}}), {}, "Forneça um valor positivo para d", K::Warning, "Form5.Text4"},
    {"Vk", good({{"Text5", "-5"}, {"List1", ""}}), {}, "Forneça um valor positivo para Vk", K::Warning, "Form5.Text5"},
    {"stirrup", good({{"List1", ""}, {"Text13", "0.9"}}), {}, msg::kChooseStirrup, K::Warning, "Form5.List1"},
    {"Gamac", good({{"Text13", "0.9"}, {"Text14", "0.9"}}), {}, msg::kPartialCoefficient, K::Warning, "Form5.Text13"},
    // Vk 300: tauwd = 4200/720 = 5.83 > 3.549.
    {"strut", good({{"Text5", "300"}}), {}, msg::kCrushedStrut, K::Warning, ""},
};

TEST(Form5Checks, EachStopsWithItsWordsAndFocusBeforeTheNextCheck) {
    for (const auto& c : kChecks) {
        SCOPED_TRACE(c.what);
        ModuleRun run = calculate(c.in, c.answers);
        expectStop(run, c);
        EXPECT_EQ(run.session.state().text("Text6"), " ");
        EXPECT_EQ(run.session.state().text("Text9"), " ");
        EXPECT_FALSE(run.session.state().enabled(printButton("Form5")));
    }
}

TEST(Form5Checks, NoAndCancelGoOnWithTheValueAsTyped) {
    ModuleRun run = calculate(good({{"Text2", "450"}, {"Text3", "11"}}), {"no", "cancel"});
    EXPECT_TRUE(run.outcome.completed);
    ASSERT_EQ(run.messages.size(), 2u);
    EXPECT_EQ(run.messages[1].kind, MessageKind::OkCancel);
}

TEST(Form5Report, ReadsTheBoxesIntoItsEighteenLines) {
    ModuleRun run = calculate(good({{"Text1", "25"}, {"Text5", "95.4"}, {"List1", "5.0"}}));
    ASSERT_TRUE(run.outcome.completed);
    // tauc = 0.126 x 25^(2/3)/1.4 = 0.7695; tauwd = 1.855;
    // Asw = 2000 x 1.11 x 1.0855/435 = 5.540; 5.54 x 7/39.27 = 0.987 -> 2 legs, s = 7.09.
    const std::vector<std::string> expected{
        "Propriedades dos materiais:", "Concreto: fck= 25 MPa", "Aço: fyk= 600 MPa", " ",
        "Coeficientes parciais de segurança:", "Gamac= 1.4     Gamas= 1.15     Gamaf= 1.4", " ",
        "Largura da seção transversal bw= 20 cm", "Altura útil d= 36 cm", " ", "Esforço cortante de serviço Vk= 95.4 kN",
        " ", " ", "SOLUÇÃO:", " ", "Armadura calculada Asw= 5.54 cm2/m", " ",
        "Estribos de 5 mm     Espaçamento = 7 cm(2 ramos)"};
    EXPECT_EQ(reportLines(run.session, "Form5"), expected);
}

}  // namespace
}  // namespace morve
