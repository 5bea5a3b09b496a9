// Anchorage along the span (Form36), at an end support (Form37) and lap splices
// (Form38): lengths against hand calculations, the checks in their order with their
// words and focus, and the reports line by line.
#include <gtest/gtest.h>

#include "../beams/shear_support.h"
#include "basis/messages.h"

namespace morve {
namespace {

using namespace shear_test;
using K = MessageKind;

// Hand values, MPa and cm. fbd = e1 e2 f0 with fc = fck/1.4, f0 = 0.42 fc^(2/3) up
// to fck 50 and 2.4 ln(1 + 0.15 fc) above; lb = phi fyd / (4 fbd), never below 25 phi;
// fyd = 434.78 (CA-50) or 521.74 (CA-60). Each row's arithmetic is in its comment.
Inputs span(const Inputs& changes = {}) {
    return changed({{"Text1", "25"}, {"List1", "Nervurado"}, {"List2", "16"}, {"Text3", "2"}, {"Text4", "2"}},
                   changes);
}
Inputs support(const Inputs& changes = {}) {
    return changed({{"Text1", "25"}, {"List1", "Nervurado"}, {"List2", "16"}, {"Text3", "4.6"}, {"Text5", "100"}},
                   changes);
}
Inputs splice(const Inputs& changes = {}) {
    return changed({{"Text1", "25"}, {"List1", "Nervurado"}, {"List2", "16"}, {"List3", "50%"}, {"Text3", "2"},
                    {"Text4", "2"}},
                   changes);
}
const Inputs kPoorBond{{"Option1", ""}, {"Option2", "True"}};
const Inputs kCompression{{"Option3", ""}, {"Option4", "True"}};

struct LengthCase {
    const char* what;
    const char* key;
    Inputs in;
    const char* straight;
    const char* hooked;
};

Inputs with(Inputs base, const Inputs& more) { return changed(std::move(base), more); }

const LengthCase kLengths[] = {
    // f0 = 0.42 x 17.857^(2/3) = 2.8694; lb = 1.6 x 434.78 / 11.478 = 60.61 (37.9 phi);
    // minimum max(18.2, 16, 10); hook 0.7 x 60.61 = 42.43.
    {"ribbed, good bond, fck 25", "Form36", span(), "61", "42"},
    // f0 = 0.42 x 21.429^(2/3) = 3.2402, fbd x 0.62 x 0.7 = 1.4063;
    // lb = 1.25 x 434.78 / 5.625 = 96.62; hook 67.63.
    {"notched, poor bond, fck 30", "Form36", with(span({{"Text1", "30"}, {"List1", "Entalhado"}, {"List2", "12.5"}}),
                                                   kPoorBond), "97", "68"},
    // f0 = 0.42 x 14.286^(2/3) = 2.4728, fbd x 0.44 = 1.0880; lb = 521.74 / 4.352
    // = 119.88; half the steel: 59.94 and 41.96 against 0.3 lb = 35.96.
    {"plain CA-60, fck 20", "Form36", span({{"Text1", "20"}, {"Text2", "600"}, {"List1", "Liso"}, {"List2", "10"},
                                            {"Text4", "4"}}), "60", "42"},
    // f0 = 2.4 ln(1 + 0.15 x 50) = 5.1362, fbd x 0.7 = 3.5953;
    // lb = 2 x 521.74 / 14.381 = 72.56; hook 50.79.
    {"ribbed CA-60, poor bond, fck 70", "Form36", with(span({{"Text1", "70"}, {"Text2", "600"}, {"List2", "20"}}),
                                                        kPoorBond), "73", "51"},
    // f0 = 2.4 ln(1 + 0.15 x 64.29) = 5.6757; 521.74 / 22.70 = 22.98 phi < 25 phi:
    // lb = 62.5, to the even 62; hook 43.75.
    {"25 phi governs, fck 90", "Form36", span({{"Text1", "90"}, {"Text2", "600"}, {"List2", "25"}}), "62", "44"},
    // fbd = 0.44 x 0.7 x 2.4728 = 0.7616; lb = 1.6 x 434.78 / 3.0465 = 228.35;
    // a tenth of the steel: 22.8 and 16.0 against 0.3 lb = 68.50.
    {"0.3 lb governs", "Form36", with(span({{"Text1", "20"}, {"List1", "Liso"}, {"Text3", "1"}, {"Text4", "10"}}),
                                       kPoorBond), "69", "69"},
    // f0 = 0.42 x 28.571^(2/3) = 3.9253; lb = 1.6 x 434.78 / 15.70 = 44.31;
    // 4.43 against max(13.29, 16, 10).
    {"10 phi governs", "Form36", span({{"Text1", "40"}, {"Text3", "1"}, {"Text4", "10"}}), "16", "16"},
    // f0 = 4.5549: 23.9 phi, so lb = 25 phi = 20; 2 against max(6, 8, 10).
    {"10 cm governs", "Form36", span({{"Text1", "50"}, {"List2", "8.0"}, {"Text3", "1"}, {"Text4", "10"}}), "10", "10"},
    // lb 60.61; Vd 100: As,cal = 100/43.478 = 2.3, ratio 0.5: 30.30 and 21.21;
    // hook r = 2.5 phi, minimum 4 + 8.8 = 12.8.
    {"support, 16 mm CA-50", "Form37", support(), "30", "21"},
    // Vd 100 needs exactly the 2.3 cm2 there are: lb itself.
    {"support, As,cal = Ase exactly", "Form37", support({{"Text3", "2.3"}}), "61", "42"},
    // f0 = 0.42 x 25^(2/3) = 3.5909, fbd x 0.62 = 2.2264; lb = 2 x 434.78 / 8.906
    // = 97.64; As,cal = 150/43.478 = 3.45, ratio 0.69: 67.37, 47.16 (hook minimum 8 + 11).
    {"support, notched 20 mm", "Form37", support({{"Text1", "35"}, {"List1", "Entalhado"}, {"List2", "20"},
                                                  {"Text3", "5"}, {"Text5", "150"}}), "67", "47"},
    // f0 = 2.4 ln(1 + 0.15 x 42.857) = 4.8128, fbd x 0.44 = 2.1176; lb = 1.25 x 521.74
    // / 8.470 = 76.99; As,cal = 100/52.174 = 1.9167, ratio 0.6389: 49.19, 34.43.
    {"support, plain CA-60", "Form37", support({{"Text1", "60"}, {"Text2", "600"}, {"List1", "Liso"},
                                                {"List2", "12.5"}, {"Text3", "3"}}), "49", "34"},
    // lb 60.61, a0 1.8: 109.10, 76.37 above max(24, 20, 32.7).
    {"lap in tension, 50%", "Form38", splice(), "109", "76"},
    // f0 = 0.42 x 32.143^(2/3) = 4.2459, fbd x 0.44 x 0.7 = 1.3077; lb = 434.78 / 5.231
    // = 83.12; a0 1.6: 132.99, 93.09.
    {"lap, plain, poor bond, 33%", "Form38", with(splice({{"Text1", "45"}, {"List1", "Liso"}, {"List2", "10"},
                                                          {"List3", "33%"}}), kPoorBond), "133", "93"},
    // f0 = 2.4 ln(1 + 0.15 x 57.14) = 5.4211, fbd x 0.62 = 3.3611; lb = 2.5 x 521.74
    // / 13.444 = 97.02; a0 1.4, ratio 0.75: 101.87, 71.31.
    {"lap, notched CA-60, 25%", "Form38", splice({{"Text1", "80"}, {"Text2", "600"}, {"List1", "Entalhado"},
                                                  {"List2", "25"}, {"List3", "25%"}, {"Text3", "3"}, {"Text4", "4"}}),
     "102", "71"},
    // Compression, a0 1: half the steel, 30.30 and 21.21 against max(24, 20, 0.6 x 60.61 = 36.37).
    {"0.6 lb governs a lap in compression", "Form38", with(splice({{"List3", ""}, {"Text3", "1"}}), kCompression),
     "36", "36"},
    // 22.98 phi, so lb = 25 phi = 31.25; a tenth: 3.75 against max(18.75, 20, 11.25).
    {"20 cm governs a lap", "Form38", splice({{"Text1", "90"}, {"Text2", "600"}, {"List2", "12.5"},
                                              {"List3", "<=20%"}, {"Text3", "1"}, {"Text4", "10"}}), "20", "20"},
};

TEST(AnchorageLengths, MatchTheHandCalculations) {
    for (const auto& c : kLengths) {
        SCOPED_TRACE(c.what);
        ModuleRun run = runModule(c.key, c.in);
        ASSERT_TRUE(run.outcome.completed) << (run.messages.empty() ? "" : run.messages[0].text);
        EXPECT_EQ(run.session.state().text("Text6"), c.straight);
        EXPECT_EQ(run.session.state().text("Text7"), c.hooked);
        EXPECT_TRUE(run.session.state().enabled(printButton(c.key)));
    }
}

struct KeyedCheck {
    const char* key;
    CheckCase check;
};

const KeyedCheck kChecks[] = {
    {"Form36", {"low fck", span({{"Text1", "19.9"}, {"Text2", "0"}}), {}, msg::kLowFck, K::Warning, ""}},
    {"Form36", {"high fck", span({{"Text1", "90.1"}}), {}, msg::kHighFck, K::Warning, "Form36.Text1"}},
    {"Form36", {"fyk", span({{"Text2", "-0"}, {"List1", ""}}), {}, msg::kPositiveFykNoStop, K::Warning, "Form36.Text2"}},
    {"Form36", {"steel class", span({{"Text2", "450"}, {"List1", ""}}), {"yes"}, msg::kSteelClass, K::YesNo, "Form36.Text2"}},
    {"Form36", {"type", span({{"List1", ""}, {"List2", ""}}), {}, "Escolha o tipo de aço.", K::Warning, "Form36.List1"}},
    {"Form36", {"diameter", span({{"List2", ""}, {"Text3", ""}}), {}, "Escolha o diâmetro da barra de aço.", K::Warning, "Form36.List2"}},
    {"Form36", {"As,cal", span({{"Text3", "abc"}, {"Text4", ""}}), {}, "Forneça a área de aço calculada.", K::Warning, "Form36.Text3"}},
    {"Form36", {"Ase", span({{"Text4", ""}}), {}, "Forneça a área de aço existente.", K::Warning, "Form36.Text4"}},
    {"Form36", {"Ase below As,cal", span({{"Text4", "1.99"}}), {}, "A área de aço existente não pode ser menor que a área calculada.", K::Warning, "Form36.Text4"}},
    {"Form37", {"Ase", support({{"Text3", "0"}, {"Text5", "0"}}), {}, "Forneça a área de aço existente no apoio.", K::Warning, "Form37.Text3"}},
    {"Form37", {"Vd", support({{"Text5", ""}}), {}, "Forneça o valor de cálculo da reação de apoio.", K::Warning, "Form37.Text5"}},
    // Vd 100 needs 2.3 cm2.
    {"Form37", {"support steel short", support({{"Text3", "2.29"}}), {}, "A área de aço existente no apoio é insuficiente para ancorar a força Rsd=Vd.", K::Warning, "Form37.Text3"}},
    {"Form38", {"share of bars", splice({{"List3", ""}, {"Text3", ""}}), {}, "Escolha a porcentagem de barras emendadas na mesma seção.", K::Warning, "Form38.List3"}},
    {"Form38", {"As,cal", splice({{"Text3", ""}, {"Text4", ""}}), {}, "Forneça a área de aço calculada.", K::Warning, "Form38.Text3"}},
    {"Form38", {"Ase below As,cal", splice({{"Text4", "1"}}), {}, "A área de aço existente não pode ser menor que a área calculada.", K::Warning, "Form38.Text4"}},
};

TEST(AnchorageChecks, EachStopsWithItsWordsAndFocusBeforeTheNextCheck) {
    for (const auto& [key, c] : kChecks) {
        SCOPED_TRACE(std::string(key) + " " + c.what);
        ModuleRun run = runModule(key, c.in, c.answers);
        expectStop(run, c);
        EXPECT_EQ(run.session.state().text("Text6"), " ");
        EXPECT_FALSE(run.session.state().enabled(printButton(key)));
    }
}

TEST(AnchorageReports, ReadTheBoxesLineByLine) {
    ModuleRun span36 = runModule("Form36", span({{"Text1", "50"}, {"Text4", "4"}}));
    EXPECT_EQ(reportLines(span36.session, "Form36"),
              (std::vector<std::string>{"Resistências dos materiais:", "Concreto: fck= 50 MPa", "Aço: fyk= 500 MPa", " ",
                                        "Conformação superficial: Aço Nervurado", "Diâmetro das barras= 16 mm",
                                        "Área da armadura calculada: As,cal= 2 cm2",
                                        "Área da armadura existente: Ase= 4 cm2", "Armadura em zona de boa aderência",
                                        " ", "SOLUÇÃO:", " ", "Comprimento de ancoragem reta: lb,nec= 20 cm",
                                        "Comprimento de ancoragem com gancho: lb,nec= 16 cm"}));
    const auto lines37 = reportLines(runModule("Form37", support()).session, "Form37");
    const auto lines38 = reportLines(runModule("Form38", with(splice(), kPoorBond)).session, "Form38");
    ASSERT_EQ(lines37.size(), 13u);
    ASSERT_EQ(lines38.size(), 16u);
    EXPECT_EQ(lines37[6] + "|" + lines37[7], "Área da armadura existente no apoio: Ase= 4.6 cm2|"
                                            "Esforço cortante de cálculo no apoio: Vd= 100 kN");
    EXPECT_EQ(lines38[6] + "|" + lines38[7] + "|" + lines38[8],
              "Tipo de solicitação: Tração|Porcentagem de barras emendadas na mesma seção: 50%|"
              "Armadura em zona de má aderência");
    EXPECT_EQ(lines38[15], "Comprimento de emenda com extremidade em gancho: lo= 109 cm");
}

}  // namespace
}  // namespace morve
