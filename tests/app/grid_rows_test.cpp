// A grid whose count changes: the typed cells of the rows that stay are kept.
#include <gtest/gtest.h>

#include "../reports/file_module.h"

using namespace morve;

TEST(GridRows, ACountThatGrowsOrShrinksKeepsTheTypedCells) {
    const FileModule module;
    FormState s = ModuleSession(module, StartDefaults{}).state();
    // A numbered grid with a short row typed in it, and a free grid.
    s.grid("Form90b.Grade1") = {{"Vão", "L (m)", "q (kN/m)"}, {"1", "5", "10"}, {"2", "6"}};
    s.resizeGrid("Form90b.Grade1", 4);
    EXPECT_EQ(s.grid("Form90b.Grade1"), (GridRows{{"Vão", "L (m)", "q (kN/m)"},
                                                 {"1", "5", "10"},
                                                 {"2", "6", ""},
                                                 {"3", "", ""},
                                                 {"4", "", ""}}));
    s.resizeGrid("Form90b.Grade1", 1);
    s.resizeGrid("Form90b.Grade1", 2);
    EXPECT_EQ(s.grid("Form90b.Grade1")[2], (std::vector<std::string>{"2", "", ""})) << "a dropped row comes back empty";

    s.grid("Form90b.Grade2")[1] = {"A", "-1"};
    s.resizeGrid("Form90b.Grade2", 2);
    EXPECT_EQ(s.grid("Form90b.Grade2"), (GridRows{{"Nó", "Restrição"}, {"A", "-1"}, {"", ""}}));
}
