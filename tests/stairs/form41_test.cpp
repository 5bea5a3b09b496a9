// "Helicoidais" as a user drives it: the tables it fills against the statics of
// the stair. Its checks and report are in tests/cases/stairs/form41-*.json.
#include <gtest/gtest.h>

#include <cmath>

#include "../beams/beam_session.h"
#include "app/numbers.h"

namespace morve {
namespace {

using testing::BeamRun;

const std::map<std::string, std::string> kStair = {{"Text4", "180"}, {"Text5", "2"}, {"Text6", "3"},
                                                   {"Text9", "15"},  {"Text10", "1.2"}, {"Text7", "1.5"},
                                                   {"Text8", "3"}};

double cell(const BeamRun& run, const std::string& grid, int row, int column) {
    return readNumber(run.session.state().grid(grid)[static_cast<std::size_t>(row)][static_cast<std::size_t>(column)]);
}

// The half-turn stair is symmetric about its centre's radius turned upside down:
// each support carries half the load, worked out here from the slab's true length
// and its plan.
TEST(Form41, TablesCarryTheLoad) {
    for (const char* ends : {"Option3", "Option4"}) {
        BeamRun run("Form41");
        run.set(kStair);
        run.session.state().setOption(ends, true);
        ASSERT_TRUE(run.press("Command1").completed);
        EXPECT_TRUE(run.prompter.messages().empty());
        const double pi = std::acos(-1.0), c = 3 / pi;
        const double load = 25 * 0.15 * 1.2 * std::sqrt(4 + c * c) * pi + 4.5 * 1.2 * 2 * pi;
        EXPECT_NEAR(cell(run, "Form41.Grade2", 1, 3), load / 2, 0.01);
        EXPECT_NEAR(cell(run, "Form41.Grade2", 2, 3), load / 2, 0.01);
        // The base pushes as the top pulls: the horizontal reactions balance.
        EXPECT_NEAR(cell(run, "Form41.Grade2", 1, 1), -cell(run, "Form41.Grade2", 2, 1), 0.011);
        EXPECT_NEAR(cell(run, "Form41.Grade2", 1, 2), -cell(run, "Form41.Grade2", 2, 2), 0.011);
        EXPECT_GT(run.number("Text13"), 0);
    }
}

}  // namespace
}  // namespace morve
