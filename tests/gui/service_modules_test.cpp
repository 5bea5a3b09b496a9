// Anchorage, splices and the service beam driven through their windows: a run of
// each module with the values of its help page, the service beam through its load
// tables, their drawing and the result screen.
#include <QTest>

#include "module_user.h"

using namespace morve;

class ServiceModulesTest : public QObject {
    Q_OBJECT
    std::unique_ptr<ModuleUser> user;

private slots:
    void init() { user = std::make_unique<ModuleUser>(); }
    void cleanup() { user.reset(); }

    void anchorageAndSplicesRunWithTheirHelpExamples() {
        struct Run {
            const char* key;
            std::vector<std::pair<const char*, const char*>> boxes;
            const char* straight;
            const char* hooked;
        };
        const Run runs[] = {
            {"Form36", {{"Text1", "50"}, {"Text3", "2"}, {"Text4", "4"}}, "20", "16"},
            {"Form37", {{"Text1", "25"}, {"Text3", "4.6"}, {"Text5", "100"}}, "30", "21"},
            {"Form38", {{"Text1", "25"}, {"Text3", "2"}, {"Text4", "2"}}, "109", "76"},
        };
        for (const Run& r : runs) {
            QVERIFY(user->open(r.key));
            for (const auto& [box, text] : r.boxes) user->type(r.key, box, text);
            user->pick(r.key, "List1", "Nervurado");
            user->pick(r.key, "List2", "16");
            if (std::string(r.key) == "Form38") user->pick(r.key, "List3", "50%");
            user->click(r.key, "Command1");
            QVERIFY(user->told().messages().empty());
            QCOMPARE(user->text(r.key, "Text6"), QString(r.straight));
            QCOMPARE(user->text(r.key, "Text7"), QString(r.hooked));
            QVERIFY(user->printEnabled(r.key));
            user->app().returnToMenu();
            settle();
        }
    }

    void serviceBeamThroughItsLoadTablesToTheResults() {
        QVERIFY(user->open("Form39"));
        QVERIFY(!user->control("Form39", "Text15")->isVisible());
        auto option = [&](const char* name) {
            qobject_cast<QAbstractButton*>(user->control("Form39", name))->click();
            settle();
        };
        option("Option2");  // the T frame takes the place of the rectangle's
        QVERIFY(user->control("Form39", "Text15")->isVisible() && !user->control("Form39", "Text9")->isVisible());
        option("Option1");
        for (auto [box, text] : {std::pair{"Text6", "6"}, {"Text7", "1"}, {"Text8", "0"}, {"Text9", "20"},
                                 {"Text10", "50"}, {"Text11", "5"}, {"Text12", "4"}, {"Text13", "6"}, {"Text14", "0"}})
            user->type("Form39", box, text);
        user->pick("Form39", "List1", "12.5");
        user->click("Form39", "Command8");
        QVERIFY(user->shown("Form39b"));
        user->typeCell("Form39b", "Grade2", 0, "0", 1);
        user->typeCell("Form39b", "Grade2", 0, "6", 2);
        user->typeCell("Form39b", "Grade2", 0, "20", 3);
        user->click("Form39b", "Command1");
        QVERIFY(user->shown("Form39b2"));
        user->click("Form39b2", "Command1");
        user->click("Form39b", "Command2");
        QVERIFY(!user->shown("Form39b"));
        user->click("Form39", "Command3");
        QVERIFY(user->told().messages().empty());
        QVERIFY(user->shown("Form39c"));
        // The help page's example: Branson gives Wo 19.72 mm and Wtot 45.74 mm.
        QCOMPARE(user->text("Form39c", "Text3"), QString("19.72"));
        QCOMPARE(user->text("Form39c", "Text7"), QString("45.74"));
        QCOMPARE(user->text("Form39c", "Text4"), QString("24"));
        QVERIFY(user->printEnabled("Form39"));
        user->click("Form39c", "Command2");
        QVERIFY(!user->shown("Form39c"));
        QVERIFY(user->screen("Form39")->isEnabled());
    }
};

QTEST_MAIN(ServiceModulesTest)
#include "service_modules_test.moc"
