// The screen contract: key filters, start-up defaults, the module catalogue.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <set>

#include "app/catalogue.h"
#include "app/form_state.h"
#include "app/key_filters.h"
#include "app/module.h"
#include "app/start_defaults.h"
#include "reports/project_file.h"
#include "../reports/file_module.h"

using namespace morve;

// What each filter does with the keys a user may type: passes it, turns the comma
// into a point, or swallows it with a beep (backspace and Enter included).
TEST(KeyFilters, PassTurnOrSwallowWithABeep) {
    const struct {
        KeyFilter filter;
        std::string passed, swallowed;
        bool commaToPoint;
    } filters[] = {{KeyFilter::PositiveNumber, "0123456789.", "-/+ae \x08\r\x1b\xe9", true},
                   {KeyFilter::SignedNumber, "0123456789.-", "/+\x08", true},
                   {KeyFilter::Digit, "0123456789", ".-x,\x08", false},
                   {KeyFilter::None, ",", "", false}};
    for (const auto& f : filters) {
        for (unsigned char c : f.passed) EXPECT_EQ(applyKeyFilter(f.filter, c).code, c) << int(f.filter) << c;
        for (unsigned char c : f.swallowed) {
            EXPECT_EQ(applyKeyFilter(f.filter, c).code, 0) << int(f.filter) << ' ' << int(c);
            EXPECT_TRUE(applyKeyFilter(f.filter, c).beep) << int(f.filter) << ' ' << int(c);
        }
        if (f.commaToPoint) { EXPECT_EQ(applyKeyFilter(f.filter, ',').code, '.'); EXPECT_FALSE(applyKeyFilter(f.filter, ',').beep); }
    }
}

TEST(StartDefaults, InitialSelectionsAndEcsByBothCodes) {
    StartDefaults d;
    int list = 0;
    for (const char* selected : {"20", "CA-60", "CA-50", "CEB/90", "CEB/90"}) EXPECT_EQ(d.list(++list), selected);
    d.confirm();
    EXPECT_NEAR(d.ecs, 18275 * std::cbrt(2.8), 1e-9);
    EXPECT_NEAR(d.ecs, 25757.88, 0.01);  // 18275 x 1.409459

    // NBR-6118: alpha = 0.8 + 0.2 fck / 80, at most 1; 5600 sqrt(fck) up to 50 MPa.
    EXPECT_NEAR(computeEcs(20, "NBR-6118"), 0.85 * 5600 * std::sqrt(20.0), 1e-9);    // 21287.37
    EXPECT_NEAR(computeEcs(50, "NBR-6118"), 0.925 * 5600 * std::sqrt(50.0), 1e-9);   // 36628.13
    EXPECT_NEAR(computeEcs(55, "NBR-6118"), 0.9375 * 21500 * std::cbrt(6.75), 1e-9); // 38092.93
    EXPECT_NEAR(computeEcs(80, "NBR-6118"), 1.0 * 21500 * std::cbrt(9.25), 1e-9);    // alpha reaches 1
    EXPECT_NEAR(computeEcs(90, "NBR-6118"), 1.0 * 21500 * std::cbrt(10.25), 1e-9);   // and stays there
    EXPECT_NEAR(computeEcs(50, "CEB/90"), 18275 * std::cbrt(5.8), 1e-9);
    EXPECT_NEAR(computeEcs(90, "CEB/90"), 18275 * std::cbrt(9.8), 1e-9);
}

TEST(StartDefaults, SelectingByTextRecomputesEcsAndRefusesUnknownItems) {
    StartDefaults d;
    EXPECT_TRUE(d.select(4, "NBR-6118"));
    EXPECT_NEAR(d.ecs, 0.85 * 5600 * std::sqrt(20.0), 1e-9);
    EXPECT_TRUE(d.select(1, "55"));
    EXPECT_NEAR(d.ecs, 0.9375 * 21500 * std::cbrt(6.75), 1e-9);
    EXPECT_FALSE(d.select(1, "22"));
    EXPECT_FALSE(d.select(3, "CA-25"));
    EXPECT_FALSE(d.select(6, "CEB/90"));
    EXPECT_EQ(d.list(1), "55");
}

TEST(ModuleCatalogue, MenuRowsAreCompleteAndConsistent) {
    const auto& rows = ModuleCatalogue::rows();
    EXPECT_EQ(rows.size(), 38u);
    std::set<std::string> commands, modules;
    for (const auto& r : rows) {
        EXPECT_TRUE(commands.insert(r.command).second) << r.command;
        EXPECT_TRUE(modules.insert(r.module).second) << r.module;
        EXPECT_FALSE(r.reportKeys.empty()) << r.module;
        EXPECT_FALSE(r.path.empty()) << r.module;
        for (const auto& m : r.path) {
            bool known = false;
            for (const auto& node : ModuleCatalogue::menus()) known = known || node.name == m;
            EXPECT_TRUE(known) << m;
        }
    }
}

TEST(ModuleCatalogue, EveryReportKeyHasItsTitleAndOwnerInDispatchOrder) {
    const auto& keys = ModuleCatalogue::reportKeys();
    EXPECT_EQ(keys.size(), 43u);
    // Every key's owner lists it among its report keys.
    for (const auto& k : keys) {
        const CatalogueRow* owner = ModuleCatalogue::byModule(k.module);
        ASSERT_NE(owner, nullptr) << k.key;
        EXPECT_NE(std::find(owner->reportKeys.begin(), owner->reportKeys.end(), k.key), owner->reportKeys.end()) << k.key;
    }
    EXPECT_EQ(ModuleCatalogue::reportKey("Form99"), nullptr);
}

TEST(FormState, QualifiesNamesAndKeepsGroupsListsAndGrids) {
    ScreenBuilder a("FormA", "A");
    a.frame("Frame1", "", 0, 0)
        .box("Text1", "x=", "5")
        .list("List1", "l", {"a", "b"}, "b")
        .option("Option1", "one", "g", true)
        .option("Option2", "two", "g")
        .command("Command1", "&OK")
        .disabled();
    ScreenBuilder b("FormAb", "B", false);
    b.grid("Grade1", GridDecl{{"Camada", "Barras"}, 2, 300, KeyFilter::Digit, true, false, {}});
    FormState s("FormA", {a.build(), b.build()});

    EXPECT_EQ(s.qualify("Text1"), "FormA.Text1");
    EXPECT_EQ(s.qualify("FormAb.Grade1"), "FormAb.Grade1");
    EXPECT_EQ(s.number("Text1"), 5);
    EXPECT_EQ(s.text("List1"), "b");
    EXPECT_TRUE(s.option("Option1"));
    s.setOption("Option2", true);
    EXPECT_FALSE(s.option("Option1"));
    EXPECT_TRUE(s.option("Option2"));
    EXPECT_FALSE(s.enabled("Command1"));
    EXPECT_TRUE(s.has("FormAb.Grade1"));
    EXPECT_FALSE(s.has("Text9"));
    const GridRows& g = s.grid("FormAb.Grade1");
    ASSERT_EQ(g.size(), 3u);
    EXPECT_EQ(g[0][0], "Camada");
    EXPECT_EQ(g[2][0], "2");
    EXPECT_EQ(s.cell("FormAb.Grade1", 9, 9), "");  // outside the grid reads as blank
    EXPECT_EQ(s.cellNumber("FormAb.Grade1", 1, 0), 1);
}

// A list the module fills at run time: a pick survives new items that still hold
// it and is dropped otherwise, and a project file keeps the pick by its place
// among the items shown.
TEST(FormState, ListsTakeTheItemsTheModuleGivesThem) {
    const FileModule module;
    FormState s = ModuleSession(module, StartDefaults{}).state();
    EXPECT_EQ(s.selectedIndex("List1"), 1);  // "C25" declared
    s.setItems("List1", {"V1", "V2", "V3"});
    EXPECT_EQ(s.selectedIndex("List1"), -1);
    s.setText("List1", "V3");
    s.setItems("List1", {"V0", "V3"});
    EXPECT_EQ(s.selectedIndex("List1"), 1);

    const std::string file = writeProjectText(module, s);
    FormState opened = ModuleSession(module, StartDefaults{}).state();
    opened.setItems("List1", {"Q1", "Q2"});
    ASSERT_EQ(readProjectText(module, file, opened).message, "");
    EXPECT_EQ(opened.text("List1"), "Q2");
    opened.setItems("List1", {"Q1"});
    EXPECT_NE(readProjectText(module, file, opened).message, "") << "the saved place is no item now";
}

TEST(ModuleSession, RefusesWhatTheScreensDoNotOffer) {
    ModuleSession session(*ModuleRegistry::find("Form9"), StartDefaults{});
    ScriptedPrompter quiet;
    session.state().setText("Text6", "2");
    EXPECT_EQ(session.press("Form9b.Command2", quiet).refused, "hidden");  // the table is not up
    ASSERT_TRUE(session.press("Command3", quiet).completed);                 // it is now, over Form9
    const Outcome behind = session.press("Command4", quiet);
    EXPECT_EQ(behind.refused, "disabled");
    EXPECT_TRUE(behind.effects.empty());
    EXPECT_TRUE(quiet.messages().empty());
    ASSERT_TRUE(session.press("Form9b.Command2", quiet).completed);
    EXPECT_EQ(session.refusal("Command4"), "");
}
