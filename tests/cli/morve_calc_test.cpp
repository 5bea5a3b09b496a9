// morve-calc end to end: the example cases, the report file, and the refusals of
// unusable cases with exit status 2.
#include <gtest/gtest.h>

#include <nlohmann/json.hpp>

#include "calc_run.h"

namespace fs = std::filesystem;
using nlohmann::json;
using Result = CalcResult;

namespace {

std::string example(const std::string& name) { return std::string(MORVE_EXAMPLES) + "/" + name; }

}  // namespace

TEST(MorveCalc, EveryExampleRunsWithNoRefusedPress) {
    int count = 0;
    for (const auto& entry : fs::directory_iterator(MORVE_EXAMPLES)) {
        if (entry.path().extension() != ".json") continue;
        Result r = runCalc(entry.path().string());
        EXPECT_EQ(r.status, 0) << entry.path() << "\n" << r.out;
        EXPECT_EQ(r.out.find("nan"), std::string::npos) << entry.path();
        // An example presses only what the screens offer at that moment.
        for (const json& step : r.status ? json::array() : json::parse(r.out).value("steps", json::array()))
                EXPECT_FALSE(step.contains("refused")) << entry.path() << " " << step.dump();
        ++count;
    }
    EXPECT_GT(count, 0);
}

TEST(MorveCalc, QuestionsTakeTheGivenAnswersThenNo) {
    std::string path = writeCase("answers", R"({"module": "Form7",
        "startup": {"fck": "25", "bars": "CA-50", "es": "CEB/90"},
        "set": {"Text2": "450", "Text9": "205", "Text10": "4", "Text6": "50", "List6": "2"},
        "answers": ["no"]})");
    Result r = runCalc(path);
    ASSERT_EQ(r.status, 0) << r.out;
    json j = json::parse(r.out);
    const json& messages = j["steps"][0]["messages"];
    ASSERT_EQ(messages.size(), 2u);
    EXPECT_EQ(messages[0]["kind"], "yesno");
    EXPECT_EQ(messages[0]["answer"], "no");
    EXPECT_EQ(messages[1]["answer"], "no");  // the answers ran out
    EXPECT_EQ(j["fields"]["Form7.Text1"], "25");
    EXPECT_EQ(j["steps"][0]["completed"], true);
}

TEST(MorveCalc, ButtonsTheScreenDoesNotOfferAreRefusedAndChangeNothing) {
    // Form7's "Detalhamento" after a failed "&CALCULAR", and the OK of a layer table
    // never opened, holding a cell the desktop could not have cut mid-character.
    Result r = runCalc(writeCase("refused", R"({"module": "Form7", "press": ["Command1", "Command3"]})"));
    ASSERT_EQ(r.status, 0) << r.out;
    json j = json::parse(r.out);
    EXPECT_EQ(j["steps"][1]["refused"], "disabled");
    EXPECT_TRUE(j["steps"][1]["effects"].empty());
    r = runCalc(writeCase("hidden", R"({"module": "Form12", "grids": {"Form12b.Grade1": [["1", "çãé€"]]},
        "press": ["Form12b.Command2"]})"));
    ASSERT_EQ(r.status, 0) << r.out;
    j = json::parse(r.out);
    EXPECT_EQ(j["steps"][0]["refused"], "hidden");
    EXPECT_EQ(j["grids"]["Form12b.Grade1"][1][1], "çãé€");
}

TEST(MorveCalc, WritesTheReportAsText) {
    fs::path out = fs::temp_directory_path() / "morve-calc-test-report.txt";
    Result r = runCalc("--report " + out.string() + " --title 'Viga V1' " +
                       example("form7-armadura-simples.json"));
    ASSERT_EQ(r.status, 0) << r.out;
    std::ifstream in(out);
    std::string text((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>());
    EXPECT_NE(text.find("Módulo: Dimensionamento à Flexão Simples de Seções Retangulares\n"), std::string::npos);
    EXPECT_NE(text.find("Denominação: Viga V1\n"), std::string::npos);
    EXPECT_NE(text.find("Armadura tracionada As= 5.13 cm2\n"), std::string::npos);
}

TEST(MorveCalc, WritesAPictureByItsExtensionAndRefusesWhatIsNoPicture) {
    fs::path gif = fs::temp_directory_path() / "morve-calc-test-picture.gif";
    fs::remove(gif);
    Result r = runCalc("--picture Form40d.Picture1 " + gif.string() + " " + example("form40-quatro-pilares.json"));
    ASSERT_EQ(r.status, 0) << r.out;
    std::ifstream in(gif, std::ios::binary);
    std::string head(6, '\0');
    in.read(head.data(), 6);
    EXPECT_EQ(head.substr(0, 4), "GIF8");
    r = runCalc("--picture Form7.Text1 x.png " + example("form7-armadura-simples.json"));
    EXPECT_EQ(r.status, 2);
    EXPECT_NE(r.out.find("não tem o desenho"), std::string::npos) << r.out;
}

TEST(MorveCalc, ListsTheRegisteredModules) {
    Result r = runCalc("--list");
    ASSERT_EQ(r.status, 0);
    EXPECT_NE(r.out.find("Form7\tDimensionamento à Flexão Simples de Seções Retangulares\tForm7 Form8b"),
              std::string::npos);
}

TEST(MorveCalc, UnusableCasesExitWithTwoAndSayWhy) {
    struct Bad {
        const char* body;
        const char* says;
    };
    const Bad cases[] = {
        {"{not json", "JSON"},
        {R"({"set": {}})", "módulo"},
        {R"({"module": "Form99"})", "módulo desconhecido: Form99"},
        {R"({"module": "Form7", "set": {"Text99": "1"}})", "controle desconhecido: Text99"},
        {R"({"module": "Form7", "set": {"List6": "7"}})", "item inexistente na lista List6: 7"},
        {R"({"module": "Form7", "press": ["Command9"]})", "botão desconhecido: Command9"},
        {R"({"module": "Form7", "startup": {"fck": "22"}})", "valor de início inexistente para fck: 22"},
        {R"({"module": "Form7", "grids": {"Grade1": []}})", "grade desconhecida: Grade1"},
        {R"({"module": "Form7", "set": {"Text6": 1e999}})", "número fora do alcance"},
        {R"({"module": "Form7", "set": {"Text7": "5"}})", "Text7 mostra um resultado"},
    };
    int i = 0;
    for (const auto& c : cases) {
        Result r = runCalc(writeCase("bad" + std::to_string(i++), c.body));
        EXPECT_EQ(r.status, 2) << c.body;
        EXPECT_NE(r.out.find(c.says), std::string::npos) << c.body << "\n" << r.out;
    }
    // Nesting deep enough to exhaust a recursive reader, and a name too long to
    // quote in full.
    const std::string deep = std::string(150000, '[') + std::string(150000, ']');
    Result r = runCalc(writeCase("deep", R"({"module": "Form7", "set": {"Text6": )" + deep + "}}"));
    EXPECT_EQ(r.status, 2);
    EXPECT_NE(r.out.find("aninhados demais"), std::string::npos) << r.out.substr(0, 200);
    r = runCalc(writeCase("long", R"({"module": "Form7", "set": {")" + std::string(5000, 'x') + R"(": 1}})"));
    EXPECT_EQ(r.status, 2);
    EXPECT_LT(r.out.size(), 200u);
    EXPECT_EQ(runCalc("/nonexistent/case.json").status, 2);
    EXPECT_EQ(runCalc("").status, 2);
}
