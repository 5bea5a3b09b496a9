// Anchorage along the span (Form36), at an end support (Form37) and lap splices
// (Form38): the checks in their order with their words and focus, and the reports
// line by line. Their lengths against hand arithmetic are cases in tests/cases/anchorage.
#include <gtest/gtest.h>

#include "../beams/shear_support.h"
#include "basis/messages.h"

namespace morve {
namespace {

using namespace shear_test;
using K = MessageKind;

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

Inputs with(Inputs base, const Inputs& more) { return changed(std::move(base), more); }

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
