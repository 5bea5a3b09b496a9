// Project files through morve-calc: --save and "open" of a continuous beam, and
// modules without files refused with exit status 2.
#include <gtest/gtest.h>

#include <nlohmann/json.hpp>

#include "calc_run.h"

using nlohmann::json;

TEST(MorveCalcProject, AModuleWithoutFilesRefusesOpenAndSave) {
    for (const std::string& args : {"--save /tmp/morve-calc-test.mor " + writeCase("plain", R"({"module": "Form12"})"),
                                    writeCase("plain-open", R"({"module": "Form12", "open": "x.mor"})")}) {
        CalcResult r = runCalc(args);
        EXPECT_EQ(r.status, 2);
        EXPECT_NE(r.out.find("o módulo Form12 não guarda arquivos de projeto"), std::string::npos) << r.out;
    }
}

// The three-span beam saved after its presses and opened by a case that only
// calculates gives the same results: the file held every input they depend on.
TEST(MorveCalcProject, ASavedBeamOpensToTheSameResults) {
    const std::string saved = std::filesystem::temp_directory_path().string() + "/morve-calc-test-beam.mor";
    CalcResult first = runCalc("--save " + saved + " " + std::string(MORVE_EXAMPLES) + "/form34-tres-vaos.json");
    ASSERT_EQ(first.status, 0) << first.out;
    CalcResult second = runCalc(writeCase("opened", json{{"module", "Form34"}, {"open", saved}}.dump()));
    ASSERT_EQ(second.status, 0) << second.out;
    const json a = json::parse(first.out), b = json::parse(second.out);
    EXPECT_EQ(a["fields"], b["fields"]);
    EXPECT_EQ(a["grids"], b["grids"]);
    EXPECT_EQ(b["steps"][0]["completed"], true);
}
