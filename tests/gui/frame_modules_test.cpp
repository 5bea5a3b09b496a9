// The plane frame driven through its windows: counts, tables typed cell by cell,
// P-delta and infill chosen on their screens, "CALCULAR", and the diagram screens
// of a beam and a column.
#include <QTest>

#include "gui/picture_views.h"
#include "module_user.h"

using namespace morve;

class FrameModulesTest : public QObject {
    Q_OBJECT
    std::unique_ptr<ModuleUser> user;

    // An option chosen as a click on its caption does.
    void choose(const std::string& screen, const char* option) {
        auto* radio = qobject_cast<QAbstractButton*>(user->control(screen, option));
        QVERIFY2(radio && radio->isVisible(), option);
        radio->click();
        settle();
    }

private slots:
    void init() { user = std::make_unique<ModuleUser>(); }
    void cleanup() { user.reset(); }

    void twoBayFrameWithPDeltaAndInfill() {
        QVERIFY(user->open("Form33"));
        user->type("Form33", "Text3", "3");
        user->type("Form33", "Text4", "2");
        user->click("Form33", "Command8");
        QVERIFY(user->shown("Form33b"));
        for (int r = 0; r < 2; ++r) user->typeCell("Form33b", "Grade1", r, "3");
        for (int r = 0; r < 3; ++r) {
            user->typeCell("Form33b", "Grade2", r, "1000");
            user->typeCell("Form33b", "Grade2", r, "208333", 2);
        }
        user->click("Form33b", "Command1");
        user->click("Form33", "Command4");
        for (int r = 0; r < 2; ++r) {
            user->typeCell("Form33c", "Grade1", r, "5");
            user->typeCell("Form33c", "Grade2", r, "1200");
            user->typeCell("Form33c", "Grade2", r, "126000", 2);
        }
        user->click("Form33c", "Command1");
        user->click("Form33", "Command10");
        for (int r = 0; r < 2; ++r) {
            user->typeCell("Form33d", "Grade1", r, "10");
            user->typeCell("Form33d", "Grade2", r, "600");
        }
        choose("Form33d", "Option1");
        user->click("Form33d", "Command1");
        user->click("Form33", "Command1");
        QVERIFY(user->shown("Form33i"));
        QVERIFY(!user->control("Form33i", "Text1")->isVisible());
        choose("Form33i", "Option2");
        QVERIFY(user->control("Form33i", "Text1")->isVisible());
        QVERIFY(!user->control("Form33i", "Grade1")->isVisible());
        user->type("Form33i", "Text1", "3000");
        user->type("Form33i", "Text2", "3");
        user->click("Form33i", "Command1");
        user->click("Form33", "Command3");
        QVERIFY2(user->told().messages().empty(),
                 user->told().messages().empty() ? "" : user->told().messages().back().text.c_str());
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
};

QTEST_MAIN(FrameModulesTest)
#include "frame_modules_test.moc"
