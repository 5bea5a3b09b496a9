// Tables keep what was typed: in every module, a command that opens a companion
// table, pressed again after the counts change, keeps the rows already typed, adds
// blank rows or drops only the rows past the new count.
#include <gtest/gtest.h>

#include <algorithm>

#include "app/module.h"

using namespace morve;

namespace {

void setEveryBox(FormState& s, const std::string& value) {
    for (const auto& screen : s.screens())
        for (const auto& c : screen.controls)
            if (c.kind == ControlKind::TextBox) s.setText(screen.name + "." + c.name, value);
}

bool blank(const std::string& cell) { return cell.find_first_not_of(' ') == std::string::npos; }

}  // namespace

TEST(TypedTables, EveryCountChangeKeepsTheRowsAlreadyTyped) {
    int tables = 0;
    for (const std::string& key : ModuleRegistry::keys()) {
        const Module& m = *ModuleRegistry::find(key);
        const ModuleInfo info = m.info();
        const FormState fresh = ModuleSession(m, {}).state();
        std::vector<std::string> grids;
        for (const std::string& f : m.projectFields())
            if (fresh.declaration(f)->kind == ControlKind::Grid) grids.push_back(f);
        for (const auto& screen : fresh.screens()) {
            for (const auto& c : screen.controls) {
                const std::string command = screen.name + "." + c.name;
                if (c.kind != ControlKind::Command || command == key + "." + info.calculate || info.busy.count(command))
                    continue;
                FormState s = fresh;
                ScriptedPrompter quiet;
                setEveryBox(s, "3");
                const FormState before = s;
                m.press(command, s, quiet);
                // The tables this command sized, typed in full.
                std::vector<std::string> sized;
                int n = 0;
                for (const std::string& g : grids) {
                    if (s.grid(g).size() == before.grid(g).size() || s.grid(g).size() < 2) continue;
                    sized.push_back(g);
                    const std::size_t first = s.declaration(g)->grid.firstColumnLocked ? 1 : 0;
                    for (std::size_t r = 1; r < s.grid(g).size(); ++r)
                        for (std::size_t k = first; k < s.grid(g)[r].size(); ++k) s.grid(g)[r][k] = std::to_string(++n);
                }
                if (sized.empty()) continue;
                ++tables;
                for (const char* count : {"5", "2"}) {
                    const FormState typed = s;
                    setEveryBox(s, count);
                    m.press(command, s, quiet);
                    for (const std::string& g : sized) {
                        const GridRows &was = typed.grid(g), &now = s.grid(g);
                        for (std::size_t r = 1; r < now.size(); ++r) {
                            if (r < was.size())
                                EXPECT_EQ(now[r], was[r]) << command << " lost row " << r << " of " << g;
                            else
                                EXPECT_TRUE(std::all_of(now[r].begin() + 1, now[r].end(), blank))
                                    << command << " filled the new row " << r << " of " << g;
                        }
                    }
                }
            }
        }
    }
    EXPECT_GE(tables, 14) << "commands that open a companion table";
}
