// Properties of the slab modules that tables of cases cannot say: the free-edge
// ratio held at its limits gives the values at the limit, and every result the
// screen shows reaches the report. The checks in order and the report lines are
// cases in tests/cases/slabs.
#include <gtest/gtest.h>

#include "../beams/beam_session.h"

namespace morve::testing {
namespace {

TEST(SlabChecks, FreeEdgeRatioOutOfRangeTakesTheValuesAtTheLimit) {
    auto run = [](const std::string& ly) {
        auto r = std::make_unique<BeamRun>("Form24");
        r->set({{"Text4", "5"}, {"Text5", "2"}, {"Text6", "4"}, {"Text7", ly}, {"Text8", "12"}});
        EXPECT_TRUE(r->press("Command1").completed);
        return r;
    };
    EXPECT_EQ(run("1")->text("Form24b.Text1"), run("1.2")->text("Form24b.Text1"));
    EXPECT_EQ(run("9")->text("Form24b.Text1"), run("8")->text("Form24b.Text1"));
}

TEST(SlabReports, EveryResultOfTheScreenReachesTheReport) {
    for (const auto& [module, key, set] :
         std::vector<std::tuple<std::string, std::string, std::map<std::string, std::string>>>{
             {"Form20", "Form20", {{"Text4", "10"}, {"Text5", "7"}, {"Text6", "10"}, {"List6", "1"}, {"List1", "8.0"}}},
             {"Form23", "Form23b", {{"Text4", "4"}, {"Text5", "5"}, {"Text6", "10"}, {"Text12", "10"}, {"Text13", "2"},
                                    {"Text14", "2"}, {"Text15", "1"}, {"Text16", "1"}, {"Option3", "True"}, {"Option1", ""}}},
             {"Form24", "Form24b", {{"Text4", "5"}, {"Text5", "2"}, {"Text6", "4"}, {"Text7", "3.2"}, {"Text8", "12"},
                                    {"Option3", "True"}, {"Option1", ""}}}}) {
        BeamRun run(module);
        run.set(set);
        ASSERT_TRUE(run.press("Command1").completed) << module;
        std::string all;
        for (const auto& l : run.report(key)) all += l + "\n";
        for (const auto& [name, text] : run.session.state().texts())
            if (name.rfind(key + ".Text", 0) == 0 && !text.empty() &&
                run.session.state().declaration(name)->kind == ControlKind::ResultBox) {
                EXPECT_NE(all.find("= " + text + " "), std::string::npos) << name << " " << text;
            }
    }
}

}  // namespace
}  // namespace morve::testing
