// Project files: what is saved comes back byte for byte, the format reads as it
// is written by hand, every malformed file is refused with the module's data
// untouched, the save replaces its target in one step, and the typed name filter.
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>

#include "file_module.h"
#include "reports/project_file.h"

using namespace morve;
namespace fs = std::filesystem;

namespace {

const FileModule kModule;

FormState fresh() { return ModuleSession(kModule, StartDefaults{}).state(); }

// Texts that break naive writers (quotes, commas, line breaks, accents, the
// file's own markers, blanks at the ends) and 25 rows of a grid.
FormState awkwardCase() {
    FormState s = fresh();
    s.setText("Text1", "Viga \"V1\", eixo A\r\nsegunda linha ção");
    s.setText("Text2", " 20 ");
    s.setText("List1", "C30");
    s.setOption("Option2", true);
    s.setOption("Check1", true);
    s.resizeGrid("Form90b.Grade1", 25);
    for (int r = 1; r <= 25; ++r)
        s.grid("Form90b.Grade1")[r] = {std::to_string(r), std::to_string(r) + ".5", r % 2 ? "#TRUE#" : "1,5\"\""};
    s.grid("Form90b.Grade2") = {{"Nó", "Restrição"}, {"A", ""}, {"", "-1e308"}};
    return s;
}

bool sameInputs(const FormState& a, const FormState& b) {
    return std::ranges::all_of(kModule.projectFields(), [&](const std::string& name) {
        return a.text(name) == b.text(name) && a.grid(name) == b.grid(name);
    });
}

}  // namespace

TEST(ProjectFile, EveryInputComesBackByteForByteThroughAFile) {
    const FormState saved = awkwardCase();
    const fs::path dir = fs::temp_directory_path() / "morve-project-test";
    fs::remove_all(dir);
    fs::create_directories(dir);
    const std::string path = (dir / "viga.mor").string();
    std::ofstream(path) << "an older project";
    ASSERT_TRUE(saveProjectFile(kModule, saved, path).ok());

    FormState opened = fresh();
    opened.setText("Text3", "kept");
    ASSERT_EQ(openProjectFile(kModule, path, opened).message, "");
    EXPECT_TRUE(sameInputs(saved, opened));
    EXPECT_EQ(opened.text("Text3"), "") << "a result box keeps the case before the file";
    EXPECT_EQ(projectFileTag(path), "Form90");
    // The save replaced the old file and left no temporary beside it; a save that
    // cannot be written says why.
    EXPECT_EQ(std::distance(fs::directory_iterator(dir), fs::directory_iterator()), 1);
    const std::string lost = (dir / "falta" / "viga.mor").string();
    EXPECT_EQ(saveProjectFile(kModule, saved, lost).message,
              "Não foi possível salvar o arquivo " + lost + ": a pasta não existe.");
    EXPECT_EQ(openProjectFile(kModule, lost, opened).message, "Não foi possível abrir o arquivo " + lost + ".");
}

TEST(ProjectFile, TheFormatIsTheOneWrittenByHand) {
    // Tag, Text1, Text2, List1 (index), Option1, Option2, Check1, Grade1 (count,
    // rows without the numbering), Grade2 (every column).
    const std::string text =
        "\"Form90\"\r\n\"a \"\"b\"\", c\"\r\n\"3\"\r\n0\r\n#FALSE#\r\n#TRUE#\r\n#FALSE#\r\n"
        "2\r\n\"5\",\"10\"\r\n\"6\",\"\"\r\n0\r\n";
    FormState s = fresh();
    ASSERT_EQ(readProjectText(kModule, text, s).message, "");
    EXPECT_EQ(s.text("Text1"), "a \"b\", c");
    EXPECT_EQ(s.text("List1"), "C20");
    EXPECT_TRUE(s.option("Option2") && !s.option("Option1"));
    EXPECT_EQ(s.grid("Form90b.Grade1"), (GridRows{{"Vão", "L (m)", "q (kN/m)"}, {"1", "5", "10"}, {"2", "6", ""}}));
    EXPECT_EQ(s.grid("Form90b.Grade2").size(), 1u);
    EXPECT_EQ(writeProjectText(kModule, s), text);
    // Lines may end the Unix way, with blanks around the fields and blank lines between.
    FormState u = fresh();
    const std::string unix = "\"Form90\"\n \"a \"\"b\"\", c\" \n\n\"3\"\n0\n#false#\n#TRUE#\n#FALSE#\n2\n\"5\" , \"10\"\n\"6\",\"\"\n0\n";
    ASSERT_EQ(readProjectText(kModule, unix, u).message, "");
    EXPECT_TRUE(sameInputs(s, u));
}

TEST(ProjectFile, AFaultyFileIsRefusedAndTheModuleKeepsItsData) {
    const std::string good = writeProjectText(kModule, awkwardCase());
    auto replaced = [&](const std::string& from, const std::string& to) {
        std::string t = good;
        return t.replace(t.find(from), from.size(), to);
    };
    const std::string kept = " Os dados do módulo não foram alterados.";
    const std::string wrongModule = "O arquivo selecionado não corresponde ao módulo atual. Escolha outro arquivo.";
    struct Case {
        const char* what;
        std::string text;
        std::string message;  // the whole text, or a part of it before the closing sentence
    } cases[] = {
        {"another module's file", replaced("\"Form90\"", "\"Form30\""), wrongModule},
        {"not a project at all", "\x89PNG\r\n\x1a\n\0\0", wrongModule},
        {"cut in the middle of the grid", good.substr(0, good.find("\"14.5\"")), "está incompleto: termina na linha 22"},
        {"cut inside a quoted text", good.substr(0, good.rfind("-1e3")), "está incompleto: termina na linha 37"},
        {"a grid counting one row too many", replaced("\r\n25\r\n", "\r\n26\r\n"), "linha 9 do arquivo selecionado indica 26 linhas"},
        {"a grid counting one row too few", replaced("\r\n25\r\n", "\r\n24\r\n"), "linha 9 do arquivo selecionado indica 24 linhas"},
        {"a last grid counting too few", replaced("\r\n2\r\n\"A\"", "\r\n1\r\n\"A\""), "dados a mais a partir da linha 37"},
        {"more rows than the grid takes", replaced("\r\n25\r\n", "\r\n31\r\n"), "tem 31 linhas, mais do que as 30 que o módulo admite"},
        {"a row with a cell missing", replaced("\"3.5\",\"#TRUE#\"", "\"3.5\""), "indica 25 linhas"},
        {"a list item that is not there", replaced("\r\n2\r\n#FALSE#", "\r\n3\r\n#FALSE#"), "a lista não tem o item 3"},
        {"an option that is no option", replaced("#TRUE#\r\n#TRUE#", "#TRUE#\r\n\"sim\""), "esperava-se #TRUE# ou #FALSE#"},
        {"a box without quotes", replaced("\" 20 \"", "20"), "esperava-se um texto entre aspas"},
        {"a huge row count", replaced("\r\n25\r\n", "\r\n99999999999\r\n"), "esperava-se o número de linhas"},
        {"text after a closing quote", replaced("\" 20 \"", "\" 20 \"x"), "a linha 4 tem um texto entre aspas seguido"},
    };
    for (const Case& c : cases) {
        FormState s = awkwardCase();
        const FormState before = s;
        const ProjectResult r = readProjectText(kModule, c.text, s);
        EXPECT_NE(r.message.find(c.message), std::string::npos) << c.what << ": " << r.message;
        EXPECT_TRUE(c.message == wrongModule || r.message.ends_with(kept)) << c.what;
        EXPECT_EQ(s.texts(), before.texts()) << c.what;
        EXPECT_EQ(s.grids(), before.grids()) << c.what;
    }
}

TEST(ProjectFile, TypedNamesLoseTheCharactersOfPathsAndExtensions) {
    const std::pair<std::string, std::string> cases[] = {
        {"viga.mor", "viga_mor.mor"}, {"../casa/v1", "___casa_v1.mor"}, {"a\\b*c+d,e`f|g\"h", "a_b_c_d_e_f_g_h.mor"},
        {std::string("tab\there\x7f") + '\x01', "tab_here__.mor"}, {"Viga (V-12) #3 ção", "Viga (V-12) #3 ção.mor"}};
    for (const auto& [typed, saved] : cases) EXPECT_EQ(projectFileName(typed), saved) << typed;
}

// Every registered module keeps its inputs: a distinct text in every box and cell,
// the last item of every list and every option and check turned on come back from
// the file, the file written again is the same byte for byte, and the results of
// the case before it are gone from the screen with "Imprimir" disabled.
TEST(ProjectFile, EveryModuleReadsBackItsOwnFileOfTwentyRowTables) {
    for (const std::string& key : ModuleRegistry::keys()) {
        const Module& m = *ModuleRegistry::find(key);
        FormState s = ModuleSession(m, StartDefaults{}).state();
        int n = 0;
        for (const std::string& name : m.projectFields()) {
            const ControlDecl* d = s.declaration(name);
            ASSERT_TRUE(d) << key << " keeps an undeclared " << name;
            if (d->kind == ControlKind::TextBox) s.setText(name, std::to_string(++n) + ".5");
            if (d->kind == ControlKind::List && !s.items(name).empty()) s.setText(name, s.items(name).back());
            if (d->kind == ControlKind::Check || d->kind == ControlKind::Option) s.setOption(name, true);
            if (d->kind != ControlKind::Grid) continue;
            s.resizeGrid(name, d->grid.maxRows > 0 ? std::min(20, d->grid.maxRows) : 20);
            for (std::size_t r = 1; r < s.grid(name).size(); ++r)
                for (std::size_t c = d->grid.firstColumnLocked ? 1 : 0; c < s.grid(name)[r].size(); ++c)
                    s.grid(name)[r][c] = std::to_string(++n);
        }
        EXPECT_GT(n, 0) << key << " keeps nothing typed";
        FormState opened = ModuleSession(m, StartDefaults{}).state();
        std::string result;
        for (const auto& screen : opened.screens())
            for (const auto& c : screen.controls)
                if (c.kind == ControlKind::ResultBox) opened.setText(result = screen.name + "." + c.name, "9.99");
        opened.setEnabled(key + ".Toolbar1.Imprimir", true);
        const std::string file = writeProjectText(m, s);
        ASSERT_TRUE(readProjectText(m, file, opened).ok()) << key;
        EXPECT_EQ(writeProjectText(m, opened), file) << key;
        for (const std::string& name : m.projectFields()) {
            EXPECT_EQ(opened.text(name), s.text(name)) << name;
            EXPECT_EQ(opened.grid(name), s.grid(name)) << name;
        }
        if (!result.empty()) { EXPECT_EQ(opened.text(result), "") << result << " still shows the last case"; }
        EXPECT_FALSE(opened.enabled(key + ".Toolbar1.Imprimir")) << key;
    }
}
