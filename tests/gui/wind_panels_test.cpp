// The bracing panels driven through their windows: the plan typed box by box and
// cell by cell, the wind chosen in its lists and options, "CALCULAR", and the
// shares of an eccentric wind worked out by hand in the help page's example.
#include <QTest>

#include "module_user.h"

using namespace morve;

class WindPanelsTest : public QObject {
    Q_OBJECT
    std::unique_ptr<ModuleUser> user;

private slots:
    void init() { user = std::make_unique<ModuleUser>(); }
    void cleanup() { user.reset(); }

    void eccentricWindOnFivePanels() {
        QVERIFY(user->open("Form32"));
        user->type("Form32", "Text1", "20");
        user->type("Form32", "Text3", "10");
        user->type("Form32", "Text4", "30");
        user->type("Form32", "Text2", "5");
        user->click("Form32", "Command8");
        QVERIFY(user->shown("Form32b"));
        const char* panels[5][4] = {{"10", "2", "0", "1000"}, {"10", "8", "0", "1000"}, {"10", "5", "0", "2000"},
                                    {"0", "5", "90", "500"},  {"20", "5", "90", "500"}};
        for (int r = 0; r < 5; ++r)
            for (int c = 0; c < 4; ++c) user->typeCell("Form32b", "Grade1", r, panels[r][c], c + 1);
        user->type("Form32b", "Text1", "10");
        user->type("Form32b", "Text2", "3");
        user->type("Form32b", "Text3", "3");
        user->click("Form32b", "Command1");
        QVERIFY(user->shown("Form32"));
        user->click("Form32", "Command4");
        QVERIFY(user->shown("Form32c"));
        user->type("Form32c", "Text1", "40");
        user->pick("Form32c", "List1", "II");
        user->pick("Form32c", "List2", "A");
        user->click("Form32c", "Option3");
        user->type("Form32c", "Text5", "1.2");
        user->type("Form32c", "Text6", "1");
        user->pick("Form32c", "List4", "+10.0");
        user->click("Form32c", "Command1");
        QVERIFY(!user->printEnabled("Form32"));
        user->click("Form32", "Command3");
        QVERIFY2(user->told().messages().empty(),
                 user->told().messages().empty() ? "" : user->told().messages().back().text.c_str());
        const char* shares[] = {"7.93", "9.72", "17.65", "1.5", "-1.5"};
        for (int r = 0; r < 5; ++r) QCOMPARE(user->cell("Form32", "Grade1", r, 1), QString(shares[r]));
        QCOMPARE(user->text("Form32", "Text5"), QString("10"));
        QVERIFY(user->printEnabled("Form32"));
    }
};

QTEST_MAIN(WindPanelsTest)
#include "wind_panels_test.moc"
