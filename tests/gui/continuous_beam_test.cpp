// The continuous beam driven through its windows: counts, the tables typed cell by
// cell, "CALCULAR", the result tables against the two-span closed form, and the
// diagrams and deformed shape screens.
#include <QTest>

#include "module_user.h"

using namespace morve;

class ContinuousBeamTest : public QObject {
    Q_OBJECT
    std::unique_ptr<ModuleUser> user;

    void typeRow(const std::string& screen, const char* grid, int row, std::vector<const char*> cells, int from) {
        for (std::size_t c = 0; c < cells.size(); ++c) user->typeCell(screen, grid, row, cells[c], from + static_cast<int>(c));
    }

private slots:
    void init() { user = std::make_unique<ModuleUser>(); }
    void cleanup() { user.reset(); }

    void twoEqualSpansUnderUniformLoad() {
        QVERIFY(user->open("Form34"));
        user->type("Form34", "Text3", "2");
        user->type("Form34", "Text4", "3");
        user->type("Form34", "Text7", "2");
        user->click("Form34", "Command8");
        QVERIFY(user->shown("Form34b"));
        for (int r = 0; r < 2; ++r) typeRow("Form34b", "Grade1", r, {"5", "100000"}, 1);
        for (int r = 0; r < 3; ++r) typeRow("Form34b", "Grade2", r, {r == 0 ? "1" : r == 1 ? "2" : "3", "1", "0"}, 0);
        user->click("Form34b", "Command2");
        QVERIFY(user->shown("Form34"));
        user->click("Form34", "Command4");
        QVERIFY(user->shown("Form34c"));
        typeRow("Form34c", "Grade3", 0, {"1", "0", "5", "10"}, 0);
        typeRow("Form34c", "Grade3", 1, {"2", "0", "5", "10"}, 0);
        user->click("Form34c", "Command2");
        QVERIFY(!user->enabled("Form34", "Command10"));
        user->click("Form34", "Command3");
        QVERIFY2(user->told().messages().empty(),
                 user->told().messages().empty() ? "" : user->told().messages().back().text.c_str());
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
};

QTEST_MAIN(ContinuousBeamTest)
#include "continuous_beam_test.moc"
