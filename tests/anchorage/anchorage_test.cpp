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

// Hand values, MPa and cm, CA-50 (fyd = 434.78), 16 mm bars:
//  fck 25: fc = 17.857, f0 = 0.42 x 17.857^(2/3) = 2.8695; lb = 1.6 x 434.78 / 11.478
//          = 60.6 cm = 37.9 phi, held to 25 phi = 40 cm.
//  fck 50: f0 = 0.42 x 35.714^(2/3) = 4.555; lb = 695.65 / 18.22 = 38.18 cm.
//  fck 60: f0 = 2.4 ln(1 + 0.15 x 42.857) = 4.8128; lb = 695.65 / 19.251 = 36.14 cm.
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
    // lb = 40 (cap); minimum max(12, 16, 10) = 16.
    {"span, As,cal = Ase: the cap itself", "Form36", span(), "40", "28"},
    {"span, plain bar is held to the same cap", "Form36", span({{"List1", "Liso"}}), "40", "28"},
    // fck 50, ratio 0.5: 19.09 and max(13.4, 16).
    {"span, below the cap, half the steel", "Form36", span({{"Text1", "50"}, {"Text4", "4"}}), "19", "16"},
    {"span, logarithmic bond above 50 MPa", "Form36", span({{"Text1", "60"}}), "36", "25"},
    // Poor bond at fck 50: fbd = 3.189, lb = 54.5 -> 40.
    {"span, poor bond", "Form36", with(span({{"Text1", "50"}}), kPoorBond), "40", "28"},
    // Ase ten times As,cal: 4 against the minimum 16 (10 phi).
    {"span, minimum decides", "Form36", span({{"Text4", "20"}}), "16", "16"},
    // Vd 100: As,cal = 100/43.478 = 2.3, ratio 0.5: 20; hook r = 2.5 phi = 4,
    // minimum 4 + 8.8 = 12.8 against 14.
    {"support, 16 mm CA-50", "Form37", support(), "20", "14"},
    // Vd 100 needs exactly the 2.3 cm2 there are: it passes, at lb itself.
    {"support, As,cal = Ase exactly", "Form37", support({{"Text3", "2.3"}}), "40", "28"},
    // 20 mm: lb 50, 25; r = 4 phi = 8, minimum 8 + 11 = 19 above 17.5.
    {"support, 20 mm: hook minimum of the support", "Form37", support({{"List2", "20"}}), "25", "19"},
    // CA-60: As,cal = 100/52.174 = 1.917, ratio 0.4167: 16.7 against 16; r = 3 phi,
    // 4.8 + 8.8 = 13.6 above 11.7.
    {"support, CA-60", "Form37", support({{"Text2", "600"}}), "17", "14"},
    // a0 1.8: 72, 50.4; minimum max(24, 20, 21.6) = 24.
    {"lap in tension, 50%", "Form38", splice(), "72", "50"},
    {"lap in tension, over 50%", "Form38", splice({{"List3", ">50%"}}), "80", "56"},
    {"lap in tension, up to 20%", "Form38", splice({{"List3", "<=20%"}}), "48", "34"},
    // Compression: a0 = 1 and no share needed; minimum max(24, 0.6 x 40 = 24).
    {"lap in compression", "Form38", with(splice({{"List3", ""}}), kCompression), "40", "28"},
    // As,cal 1, Ase 10: 7.2 and 5.04 against 24.
    {"lap minimum decides", "Form38", splice({{"Text3", "1"}, {"Text4", "10"}}), "24", "24"},
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
                                        " ", "SOLUÇÃO:", " ", "Comprimento de ancoragem reta: lb,nec= 19 cm",
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
    EXPECT_EQ(lines38[15], "Comprimento de emenda com extremidade em gancho: lo= 50 cm");
}

}  // namespace
}  // namespace morve
