// The modules of slabs, wind, continuous beams, frames, oblique bending,
// anchorage and serviceability driven through their windows: boxes typed, tables
// typed cell by cell, options and lists chosen, the button clicked, a result read
// where it shows (worked out by hand or in the help page of the module), and the
// way back.
#include <QChart>
#include <QChartView>
#include <QLineSeries>
#include <QTest>

#include "gui/picture_views.h"
#include "module_user.h"

using namespace morve;

class ModuleWindowsTest : public QObject {
    Q_OBJECT
    std::unique_ptr<ModuleUser> user;

    int bars(const char* screen) {
        auto* view = dynamic_cast<DrawingView*>(user->control(screen, "Picture1"));
        int n = 0;
        for (const Shape& s : view ? view->drawing().shapes : std::vector<Shape>{})
            if (const auto* c = std::get_if<Circle>(&s.geometry); c && c->filled) ++n;
        return n;
    }
    // "Entrar com as coordenadas", both tables typed, "&OK".
    void enterTables(const std::string& module, const std::vector<std::vector<const char*>>& vertices,
                     const std::vector<std::vector<const char*>>& bars) {
        const std::string tables = module + "b";
        user->click(module, "Command3");
        QVERIFY(user->shown(tables));
        for (int r = 0; r < int(vertices.size()); ++r) user->typeRow(tables, "Grade1", r, vertices[r], 1);
        for (int r = 0; r < int(bars.size()); ++r) user->typeRow(tables, "Grade2", r, bars[r], 1);
        user->click(tables, "Command2");
        QVERIFY(user->shown(module));
    }

private slots:
    void init() { user = std::make_unique<ModuleUser>(); }
    void cleanup() { user.reset(); }

    // Slabs and anchorage, one run each: the case chosen by its option or lists,
    // the button clicked, one result read on the screen that shows it.
    void slabAndAnchorageModulesRunFromTheirWindows() {
        struct Run {
            const char* module;
            ModuleUser::Entries boxes;
            const char* option;          // "" for the default
            ModuleUser::Entries lists;   // list and item
            const char* results;         // the screen of the results
            ModuleUser::Entries values;  // box and value
        };
        const Run runs[] = {
            {"Form20", {{"Text4", "10"}, {"Text5", "7"}, {"Text6", "10"}}, "", {{"List1", "8.0"}, {"List6", "1"}}, "Form20", {{"Text7", "4.44"}}},
            {"Form21", {{"Text2", "30"}, {"Text3", "7"}, {"Text5", "3"}}, "", {{"List1", "maior ou igual a 50%"}}, "Form21", {{"Text6", "0.58"}}},
            {"Form22", {{"Text4", "5"}, {"Text5", "2"}, {"Text6", "4"}, {"Text7", "5"}, {"Text8", "10"}}, "Option4", {}, "Form22c", {{"Text5", "6.93"}}},
            {"Form23", {{"Text4", "4"}, {"Text5", "4"}, {"Text6", "10"}, {"Text7", "10"}, {"Text8", "2"}, {"Text9", "2"}}, "", {}, "Form23b", {{"Text1", "2.91"}}},
            {"Form24", {{"Text4", "5"}, {"Text5", "2"}, {"Text6", "4"}, {"Text7", "3.2"}, {"Text8", "12"}}, "Option3", {}, "Form24b", {{"Text18", "-10.34"}}},
            {"Form24d", {{"Text4", "5"}, {"Text5", "2"}, {"Text6", "3"}, {"Text8", "12"}}, "Option2", {}, "Form24e", {{"Text6", "-7.88"}}},
            {"Form36", {{"Text1", "50"}, {"Text3", "2"}, {"Text4", "4"}}, "", {{"List1", "Nervurado"}, {"List2", "16"}}, "Form36", {{"Text6", "20"}, {"Text7", "16"}}},
            {"Form37", {{"Text1", "25"}, {"Text3", "4.6"}, {"Text5", "100"}}, "", {{"List1", "Nervurado"}, {"List2", "16"}}, "Form37", {{"Text6", "30"}, {"Text7", "21"}}},
            {"Form38", {{"Text1", "25"}, {"Text3", "2"}, {"Text4", "2"}}, "", {{"List1", "Nervurado"}, {"List2", "16"}, {"List3", "50%"}}, "Form38", {{"Text6", "109"}, {"Text7", "76"}}},
        };
        for (const Run& r : runs) {
            QVERIFY2(user->open(r.module), r.module);
            if (std::string(r.module) == "Form23") {  // only the boxes of the load selected are in view
                QVERIFY(user->control("Form23", "Frame5")->isVisible() && !user->control("Form23", "Frame6")->isVisible());
                QVERIFY(!user->control("Form23", "Frame7")->isVisible());
                user->click("Form23", "Option3");
                QVERIFY(user->control("Form23", "Frame7")->isVisible() && !user->control("Form23", "Frame5")->isVisible());
                user->click("Form23", "Option1");
            }
            user->fill(r.module, r.boxes);
            if (*r.option) user->click(r.module, r.option);
            for (auto [list, item] : r.lists) user->pick(r.module, list, item);
            user->click(r.module, "Command1");
            user->quiet();
            QVERIFY2(user->shown(r.results), r.results);
            for (auto [box, value] : r.values) QCOMPARE(user->text(r.results, box), QString(value));
            if (std::string(r.results) == r.module) {
                QVERIFY2(user->printEnabled(r.module), r.module);
            } else {
                user->click(r.results, "Command1");
                QVERIFY2(user->shown(r.module) && !user->shown(r.results), r.module);
            }
            user->app().returnToMenu();
            settle();
        }
    }

    // The shares of an eccentric wind on five panels, worked out by hand in the
    // help page's example.
    void eccentricWindOnFivePanels() {
        QVERIFY(user->open("Form32"));
        user->fill("Form32", {{"Text1", "20"}, {"Text3", "10"}, {"Text4", "30"}, {"Text2", "5"}});
        user->click("Form32", "Command8");
        QVERIFY(user->shown("Form32b"));
        const std::vector<const char*> panels[5] = {{"10", "2", "0", "1000"}, {"10", "8", "0", "1000"},
                                                    {"10", "5", "0", "2000"}, {"0", "5", "90", "500"},
                                                    {"20", "5", "90", "500"}};
        for (int r = 0; r < 5; ++r) user->typeRow("Form32b", "Grade1", r, panels[r], 1);
        user->fill("Form32b", {{"Text1", "10"}, {"Text2", "3"}, {"Text3", "3"}});
        user->click("Form32b", "Command1");
        QVERIFY(user->shown("Form32"));
        user->click("Form32", "Command4");
        QVERIFY(user->shown("Form32c"));
        user->type("Form32c", "Text1", "40");
        user->pick("Form32c", "List1", "II");
        user->pick("Form32c", "List2", "A");
        user->click("Form32c", "Option3");
        user->fill("Form32c", {{"Text5", "1.2"}, {"Text6", "1"}});
        user->pick("Form32c", "List4", "+10.0");
        user->click("Form32c", "Command1");
        QVERIFY(!user->printEnabled("Form32"));
        user->click("Form32", "Command3");
        user->quiet();
        const char* shares[] = {"7.93", "9.72", "17.65", "1.5", "-1.5"};
        for (int r = 0; r < 5; ++r) QCOMPARE(user->cell("Form32", "Grade1", r, 1), QString(shares[r]));
        QCOMPARE(user->text("Form32", "Text5"), QString("10"));
        QVERIFY(user->printEnabled("Form32"));
    }

    // Two equal spans under a uniform load, against the closed form; then the
    // diagrams and the deformed shape.
    void continuousBeamOfTwoEqualSpans() {
        QVERIFY(user->open("Form34"));
        user->fill("Form34", {{"Text3", "2"}, {"Text4", "3"}, {"Text7", "2"}});
        user->click("Form34", "Command8");
        QVERIFY(user->shown("Form34b"));
        for (int r = 0; r < 2; ++r) user->typeRow("Form34b", "Grade1", r, {"5", "100000"}, 1);
        for (int r = 0; r < 3; ++r) user->typeRow("Form34b", "Grade2", r, {r == 0 ? "1" : r == 1 ? "2" : "3", "1", "0"}, 0);
        user->click("Form34b", "Command2");
        QVERIFY(user->shown("Form34"));
        user->click("Form34", "Command4");
        QVERIFY(user->shown("Form34c"));
        user->typeRow("Form34c", "Grade3", 0, {"1", "0", "5", "10"}, 0);
        user->typeRow("Form34c", "Grade3", 1, {"2", "0", "5", "10"}, 0);
        user->click("Form34c", "Command2");
        QVERIFY(!user->enabled("Form34", "Command10"));
        user->click("Form34", "Command3");
        user->quiet();
        QVERIFY(user->shown("Form34d"));
        // 3wL/8, 10wL/8, 3wL/8; -wL^2/8 over the middle support.
        QCOMPARE(user->cell("Form34d", "Grade1", 0, 1), QString("18.75"));
        QCOMPARE(user->cell("Form34d", "Grade1", 1, 1), QString("62.5"));
        QCOMPARE(user->cell("Form34d", "Grade3", 0, 2), QString("-31.25"));
        QVERIFY(user->printEnabled("Form34"));
        user->click("Form34d", "Command2");
        user->click("Form34", "Command10");
        QVERIFY(user->shown("Form34e"));
        QCOMPARE(user->cell("Form34e", "Grade1", 1, 1), QString("1.25"));
        user->click("Form34e", "Command1");
        user->click("Form34", "Command1");
        QVERIFY(user->shown("Form34g"));
    }

    // A plane frame of two bays with P-delta and infill chosen on their screens,
    // and the diagram screens of a beam and a column.
    void twoBayFrameWithPDeltaAndInfill() {
        QVERIFY(user->open("Form33"));
        user->fill("Form33", {{"Text3", "3"}, {"Text4", "2"}});
        user->click("Form33", "Command8");
        QVERIFY(user->shown("Form33b"));
        for (int r = 0; r < 2; ++r) user->typeCell("Form33b", "Grade1", r, "3");
        for (int r = 0; r < 3; ++r) user->typeRow("Form33b", "Grade2", r, {"1000", "208333"}, 1);
        user->click("Form33b", "Command1");
        user->click("Form33", "Command4");
        for (int r = 0; r < 2; ++r) {
            user->typeCell("Form33c", "Grade1", r, "5");
            user->typeRow("Form33c", "Grade2", r, {"1200", "126000"}, 1);
        }
        user->click("Form33c", "Command1");
        user->click("Form33", "Command10");
        for (int r = 0; r < 2; ++r) {
            user->typeCell("Form33d", "Grade1", r, "10");
            user->typeCell("Form33d", "Grade2", r, "600");
        }
        user->choose("Form33d", "Option1");
        user->click("Form33d", "Command1");
        user->click("Form33", "Command1");
        QVERIFY(user->shown("Form33i"));
        QVERIFY(!user->control("Form33i", "Text1")->isVisible());
        user->choose("Form33i", "Option2");
        QVERIFY(user->control("Form33i", "Text1")->isVisible());
        QVERIFY(!user->control("Form33i", "Grade1")->isVisible());
        user->fill("Form33i", {{"Text1", "3000"}, {"Text2", "3"}});
        user->click("Form33i", "Command1");
        user->click("Form33", "Command3");
        user->quiet();
        QVERIFY(user->shown("Form33e"));
        QVERIFY(user->printEnabled("Form33"));
        const QString top = user->cell("Form33e", "Grade5", 1, 1);
        QVERIFY(!top.isEmpty() && !top.contains("nan") && !top.contains("inf"));

        // The bars are listed once calculated; a pick on a diagram screen redraws
        // it at once, without its button.
        user->pick("Form33e", "List1", "Nível 1 - Vão 2");
        user->click("Form33e", "Command1");
        QVERIFY(user->shown("Form33g"));
        auto* beams = qobject_cast<QListWidget*>(user->control("Form33g", "List1"));
        QCOMPARE(beams->count(), 4);
        QCOMPARE(beams->currentItem()->text(), QStringLiteral("Nível 1 - Vão 2"));
        user->pick("Form33g", "List1", "Nível 2 - Vão 1");
        bool titled = false;
        for (const Shape& shape : static_cast<DrawingView*>(user->control("Form33g", "Picture1"))->drawing().shapes)
            if (const auto* l = std::get_if<Label>(&shape.geometry)) titled = titled || l->text == "Nível 2 - Vão 1";
        QVERIFY(titled);
        user->click("Form33g", "Command2");
        user->pick("Form33e", "List2", "Andar 2 - Pilar 3");
        user->click("Form33e", "Command3");
        QVERIFY(user->shown("Form33h"));
        QCOMPARE(qobject_cast<QListWidget*>(user->control("Form33h", "List1"))->count(), 6);
    }

    // Oblique bending: the centred load of 4.42 cm2 on 20 x 50 through the
    // symmetric section's tables, and the L of the example with both answers, its
    // section and its moment contour.
    void polygonalSectionsThroughTheirTables() {
        QVERIFY(user->open("Form16"));
        user->fill("Form16", {{"Text3", "210"}, {"Text4", "4"}, {"Text5", "4"}, {"Text6", "1000"}, {"Text7", "0"}, {"Text8", "0"}});
        enterTables("Form16", {{"-10", "-25"}, {"10", "-25"}, {"10", "25"}, {"-10", "25"}},
                    {{"-6", "-21"}, {"6", "-21"}, {"6", "21"}, {"-6", "21"}});
        user->click("Form16", "Command4");
        user->quiet();
        QCOMPARE(user->text("Form16", "Text9"), QString("4.42"));
        QVERIFY(user->printEnabled("Form16"));
        user->click("Form16", "Command5");
        QVERIFY(user->shown("Form12c"));
        QCOMPARE(bars("Form12c"), 4);
        user->click("Form12c", "Command1");
        QVERIFY(user->shown("Form16"));

        user->app().returnToMenu();
        settle();
        QVERIFY(user->open("Form17"));
        QVERIFY(!user->enabled("Form17", "Command6"));
        user->fill("Form17", {{"Text1", "25"}, {"Text3", "210"}, {"Text4", "6"}, {"Text5", "3"}, {"Text7", "900"}, {"Text8", "60"}, {"Text9", "-40"}});
        enterTables("Form17", {{"0", "0"}, {"60", "0"}, {"60", "20"}, {"20", "20"}, {"20", "60"}, {"0", "60"}},
                    {{"4", "4", "3"}, {"56", "4", "3"}, {"4", "56", "3"}});
        user->click("Form17", "Command4");
        user->quiet();
        QCOMPARE(user->text("Form17", "Text6"), QString("9"));
        user->click("Form17", "Command5");
        QCOMPARE(bars("Form12c"), 3);
        user->click("Form12c", "Command1");
        user->click("Form17", "Command6");
        auto* box = dynamic_cast<ChartBox*>(user->control("Form17c", "MSChart1"));
        QVERIFY(user->shown("Form17c") && box && box->view()->chart()->series().size() == 2);
        auto* contour = qobject_cast<QXYSeries*>(box->view()->chart()->series()[0]);
        QVERIFY(contour && contour->count() == 73);
        user->click("Form17c", "Command1");
        QVERIFY(user->shown("Form17"));
    }

    // The service beam through its load tables, their drawing and the results:
    // Branson gives Wo 19.72 mm and Wtot 45.74 mm in the help page's example.
    void serviceBeamThroughItsLoadTablesToTheResults() {
        QVERIFY(user->open("Form39"));
        QVERIFY(!user->control("Form39", "Text15")->isVisible());
        user->choose("Form39", "Option2");  // the T frame takes the place of the rectangle's
        QVERIFY(user->control("Form39", "Text15")->isVisible() && !user->control("Form39", "Text9")->isVisible());
        user->choose("Form39", "Option1");
        user->fill("Form39", {{"Text6", "6"}, {"Text7", "1"}, {"Text8", "0"}, {"Text9", "20"}, {"Text10", "50"},
                              {"Text11", "5"}, {"Text12", "4"}, {"Text13", "6"}, {"Text14", "0"}});
        user->pick("Form39", "List1", "12.5");
        user->click("Form39", "Command8");
        QVERIFY(user->shown("Form39b"));
        user->typeRow("Form39b", "Grade2", 0, {"0", "6", "20"}, 1);
        user->click("Form39b", "Command1");
        QVERIFY(user->shown("Form39b2"));
        user->click("Form39b2", "Command1");
        user->click("Form39b", "Command2");
        QVERIFY(!user->shown("Form39b"));
        user->click("Form39", "Command3");
        user->quiet();
        QVERIFY(user->shown("Form39c"));
        QCOMPARE(user->text("Form39c", "Text3"), QString("19.72"));
        QCOMPARE(user->text("Form39c", "Text7"), QString("45.74"));
        QCOMPARE(user->text("Form39c", "Text4"), QString("24"));
        QVERIFY(user->printEnabled("Form39"));
        user->click("Form39c", "Command2");
        QVERIFY(!user->shown("Form39c"));
        QVERIFY(user->screen("Form39")->isEnabled());
    }
};

QTEST_MAIN(ModuleWindowsTest)
#include "module_windows_test.moc"
