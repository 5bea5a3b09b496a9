// Project files through morve-calc: --save writes what the case typed, "open"
// gives it back to a case that types nothing, and modules without files or files
// of another module are refused with exit status 2.
#include <gtest/gtest.h>

#include <nlohmann/json.hpp>

#include "app/module.h"
#include "calc_run.h"

namespace fs = std::filesystem;
using nlohmann::json;
using namespace morve;

TEST(MorveCalcProject, AModuleWithoutFilesRefusesOpenAndSave) {
    const std::string plain = writeCase("project-plain", R"({"module": "Form12", "press": []})");
    CalcResult saved = runCalc("--save /tmp/morve-calc-test-plain.mor " + plain);
    EXPECT_EQ(saved.status, 2);
    EXPECT_NE(saved.out.find("o módulo Form12 não guarda arquivos de projeto"), std::string::npos) << saved.out;
    CalcResult opened = runCalc(writeCase("project-plain-open", R"({"module": "Form12", "open": "x.mor"})"));
    EXPECT_EQ(opened.status, 2);
    EXPECT_NE(opened.out.find("não guarda arquivos de projeto"), std::string::npos) << opened.out;
}

TEST(MorveCalcProject, WhatACaseTypedComesBackFromItsSavedFile) {
    const Module* module = nullptr;
    for (const std::string& key : ModuleRegistry::keys())
        if (!module && ModuleRegistry::find(key)->info().files) module = ModuleRegistry::find(key);
    if (!module) GTEST_SKIP() << "no registered module keeps project files yet";

    // Distinct texts in every box of the file and three rows in every grid.
    const FormState blank = ModuleSession(*module, StartDefaults{}).state();
    json set = json::object(), grids = json::object();
    int n = 0;
    for (const std::string& name : module->projectFields()) {
        const ControlDecl* d = blank.declaration(name);
        if (d->kind == ControlKind::TextBox) set[name] = std::to_string(++n) + ".25";
        if (d->kind != ControlKind::Grid) continue;
        const int rows = d->grid.maxRows > 0 ? std::min(3, d->grid.maxRows) : 3;
        for (int r = 1; r <= rows; ++r) {
            json row = json::array({std::to_string(r)});
            for (std::size_t c = 1; c < d->grid.header.size(); ++c) row.push_back(std::to_string(++n));
            grids[name].push_back(row);
        }
    }
    const std::string key = module->info().key;
    const fs::path dir = fs::temp_directory_path();
    const std::string typed =
        writeCase("project-typed", json{{"module", key}, {"set", set}, {"grids", grids}, {"press", json::array()}}.dump());
    CalcResult first = runCalc("--save " + (dir / "morve-calc-test-typed.mor").string() + " " + typed);
    ASSERT_EQ(first.status, 0) << first.out;
    // The case names its project beside it, without a folder.
    CalcResult second = runCalc(writeCase(
        "project-opened", json{{"module", key}, {"open", "morve-calc-test-typed.mor"}, {"press", json::array()}}.dump()));
    ASSERT_EQ(second.status, 0) << second.out;
    const json a = json::parse(first.out), b = json::parse(second.out);
    for (const std::string& name : module->projectFields()) {
        EXPECT_EQ(a["fields"].value(name, json()), b["fields"].value(name, json())) << name;
        EXPECT_EQ(a["grids"].value(name, json()), b["grids"].value(name, json())) << name;
    }

    std::ofstream(dir / "morve-calc-test-other.mor") << "\"Form1\"\r\n";
    CalcResult other = runCalc(writeCase(
        "project-other", json{{"module", key}, {"open", "morve-calc-test-other.mor"}}.dump()));
    EXPECT_EQ(other.status, 2);
    EXPECT_NE(other.out.find("O arquivo selecionado não corresponde ao módulo atual. Escolha outro arquivo."),
              std::string::npos) << other.out;
}
