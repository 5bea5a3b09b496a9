// morve-calc --check: a case that meets its expectations passes; one that falls
// short is named on one line with every shortfall, and only then is the status 1.
#include <gtest/gtest.h>

#include "calc_run.h"

namespace {

// Form7 at Mk 50 kNm, class II, with the program's defaults: As 5.13 cm2 by hand.
const char* kForm7 = R"("module": "Form7", "set": {"Text10": "4", "Text6": "50", "List6": "1"})";

std::string form7Case(const std::string& name, const std::string& expect) {
    return writeCase(name, std::string("{") + kForm7 + R"(, "expect": )" + expect + "}");
}

}  // namespace

TEST(CaseCheck, EveryKindOfExpectationMetPasses) {
    std::string met = form7Case("check-met", R"({"completed": true, "message": null, "focus": null,
        "fields": {"Text7": "5.13", "Form7.Text8": "0"},
        "contains": {"Form7": ["5.13", "Balanceada"]},
        "report": {"Form7": {"11": "Momento fletor de serviço Mk= 50 kNm",
                             "title": "Dimensionamento à Flexão Simples de Seções Retangulares"}}})");
    std::string stop = writeCase("check-stop", R"({"module": "Form7", "set": {"Text6": "50"},
        "expect": {"completed": false, "focus": "List6",
                   "message": "Escolha a classe de agressividade ambiental."}})");
    // Variants over one case, one of them typing between two presses: Mk 100 after
    // the first calculation gives As 10.62 and As' 3.38 (doubly reinforced, by hand).
    std::string variants = writeCase("check-variants", std::string("{") + kForm7 + R"(,
        "expect": {"completed": true, "title": null},
        "cases": [{"expect": {"fields": {"Text7": "5.13"}}},
                  {"press": ["Command1", {"set": {"Text6": "100"}}, "Command1"],
                   "expect": {"messages": [], "fields": {"Text7": "10.62", "Text8": "3.38"}}}]})");
    CalcResult r = runCalc("--check " + met + " " + stop + " " + variants);
    EXPECT_EQ(r.status, 0) << r.out;
    EXPECT_EQ(r.out, "4 passed, 0 failed\n");
}

TEST(CaseCheck, ShortfallsAreNamedOnOneLinePerCase) {
    std::string missed = form7Case("check-missed", R"({"completed": false, "message": "Pronto",
        "fields": {"Text7": "5.14"}, "contains": {"Form7": ["9.99"]},
        "report": {"Form7": {"99": "x"}}})");
    std::string unusable = writeCase("check-unusable",
                                     R"({"module": "Form7", "cases": [{"expect": {"colour": 1}}, {"set": {"Text99": ""}}]})");
    CalcResult r = runCalc("--check " + missed + " " + unusable);
    EXPECT_EQ(r.status, 1);
    EXPECT_EQ(r.out, missed + ": completed: esperado false, veio true; contains Form7: esperado \"9.99\", veio ausente; "
                              "Form7.Text7: esperado \"5.14\", veio \"5.13\"; message: esperado \"Pronto\", veio null; "
                              "report Form7 linha 99: esperado \"x\", veio nenhuma linha\n" +
                         unusable + " #1: expectativa desconhecida: colour\n" + unusable +
                         " #2: controle desconhecido: Text99\n0 passed, 3 failed\n");
}
