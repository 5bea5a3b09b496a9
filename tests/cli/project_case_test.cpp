// Project files through morve-calc: --save writes what the case typed, "open"
// gives it back to a case that types nothing; modules without files and files of
// another module are refused with exit status 2.
#include <gtest/gtest.h>

#include <nlohmann/json.hpp>

#include "app/module.h"
#include "calc_run.h"

using nlohmann::json;
using namespace morve;

TEST(MorveCalcProject, AModuleWithoutFilesRefusesOpenAndSave) {
    for (const std::string& args : {"--save /tmp/morve-calc-test.mor " + writeCase("plain", R"({"module": "Form12"})"),
                                    writeCase("plain-open", R"({"module": "Form12", "open": "x.mor"})")}) {
        CalcResult r = runCalc(args);
        EXPECT_EQ(r.status, 2);
        EXPECT_NE(r.out.find("o módulo Form12 não guarda arquivos de projeto"), std::string::npos) << r.out;
    }
}

TEST(MorveCalcProject, WhatACaseTypedComesBackFromItsSavedFile) {
    const Module* module = nullptr;
    for (const std::string& key : ModuleRegistry::keys())
        if (!module && ModuleRegistry::find(key)->info().files) module = ModuleRegistry::find(key);
    if (!module) GTEST_SKIP() << "no registered module keeps project files yet";

    // Distinct texts in every box the file keeps (the grids are the core's tests').
    const FormState blank = ModuleSession(*module, StartDefaults{}).state();
    const std::string key = module->info().key;
    json typed = {{"module", key}, {"set", json::object()}, {"press", json::array()}};
    int n = 0;
    for (const std::string& name : module->projectFields())
        if (blank.declaration(name)->kind == ControlKind::TextBox) typed["set"][name] = std::to_string(++n) + ".25";
    const std::string folder = std::filesystem::temp_directory_path().string() + "/";
    CalcResult first = runCalc("--save " + folder + "morve-calc-test-typed.mor " + writeCase("typed", typed.dump()));
    ASSERT_EQ(first.status, 0) << first.out;
    // The case names its project beside it, without a folder.
    CalcResult second = runCalc(
        writeCase("opened", json{{"module", key}, {"open", "morve-calc-test-typed.mor"}, {"press", json::array()}}.dump()));
    ASSERT_EQ(second.status, 0) << second.out;
    const json a = json::parse(first.out), b = json::parse(second.out);
    EXPECT_EQ(a["fields"], b["fields"]);

    std::ofstream(folder + "morve-calc-test-other.mor") << "\"Form1\"\r\n";
    CalcResult other = runCalc(writeCase("other", json{{"module", key}, {"open", "morve-calc-test-other.mor"}}.dump()));
    EXPECT_EQ(other.status, 2);
    EXPECT_NE(other.out.find("O arquivo selecionado não corresponde ao módulo atual. Escolha outro arquivo."),
              std::string::npos) << other.out;
}
