// Project files through morve-calc: --save and "open" of every example, and a file
// of another module refused with exit status 2.
#include <gtest/gtest.h>

#include <fstream>
#include <sstream>

#include <nlohmann/json.hpp>

#include "calc_run.h"

using nlohmann::json;

namespace {

std::string projectModule(const std::string& path) {
    std::string tag;
    std::getline(std::ifstream(path), tag);
    return tag.substr(1, tag.find('"', 1) - 1);
}

}  // namespace

// Every example, saved after its presses, opens in a case of its own and saves to
// the same bytes; a file opened by another module stops the case with status 2.
TEST(MorveCalcProject, EveryExampleSavesAndOpensToTheSameFile) {
    namespace fs = std::filesystem;
    const fs::path dir = fs::temp_directory_path() / "morve-calc-project-walk";
    fs::remove_all(dir);
    fs::create_directories(dir);
    std::string previous;
    for (const auto& entry : fs::directory_iterator(MORVE_EXAMPLES)) {
        if (entry.path().extension() != ".json") continue;
        const std::string stem = entry.path().stem().string(), first = (dir / (stem + ".mor")).string();
        const std::string module = json::parse(std::ifstream(entry.path())).value("module", "");
        CalcResult saved = runCalc("--save " + first + " " + entry.path().string());
        ASSERT_EQ(saved.status, 0) << stem << saved.out;
        const std::string again = (dir / (stem + "-2.mor")).string();
        CalcResult reopened = runCalc("--save " + again + " " +
                                      writeCase("walk", json{{"module", module}, {"open", first}}.dump()));
        ASSERT_EQ(reopened.status, 0) << stem << reopened.out;
        std::stringstream a, b;
        a << std::ifstream(first, std::ios::binary).rdbuf();
        b << std::ifstream(again, std::ios::binary).rdbuf();
        EXPECT_EQ(a.str(), b.str()) << stem;
        if (!previous.empty() && projectModule(previous) != module) {
            CalcResult refused = runCalc(writeCase("walk", json{{"module", module}, {"open", previous}}.dump()));
            EXPECT_EQ(refused.status, 2) << stem;
            EXPECT_NE(refused.out.find("não corresponde ao módulo atual"), std::string::npos) << refused.out;
        }
        previous = first;
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
