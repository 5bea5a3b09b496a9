// The beam modules driven through their windows: the rectangular design with its
// detailing and the report of the final solution, and the torsion design with its
// result screen and report.
#include <QTest>

#include "gui/report_panel.h"
#include "module_user.h"

using namespace morve;

class BeamModulesTest : public QObject {
    Q_OBJECT
    std::unique_ptr<ModuleUser> user;

    ReportPanel* panel() { return user->app().reportPanel(); }
    void clickPanel(const char* button) {
        auto* b = qobject_cast<QAbstractButton*>(panel()->control(button));
        QVERIFY2(b && b->isEnabled(), button);
        QTest::mouseClick(b, Qt::LeftButton);
        settle();
    }
    static bool holdsPicture(const ReportPage& page) {
        for (const PageLine& line : page.lines)
            if (line.picture && !line.picture->empty()) return true;
        return false;
    }

private slots:
    void init() { user = std::make_unique<ModuleUser>(); }
    void cleanup() { user.reset(); }

    void detailingRoundTripEndsInTheReportOfTheSection() {
        QVERIFY(user->open("Form7"));
        user->type("Form7", "Text1", "25");
        user->type("Form7", "Text10", "4");
        user->type("Form7", "Text6", "40");
        user->pick("Form7", "List6", "2");
        QVERIFY(!user->printEnabled("Form7"));
        user->click("Form7", "Command1");
        QVERIFY(user->told().messages().empty());
        QCOMPARE(user->text("Form7", "Text7"), QString("3.88"));
        QVERIFY(user->printEnabled("Form7"));

        user->click("Form7", "Command3");
        QVERIFY(user->shown("Form8"));
        QVERIFY(!user->shown("Form7"));
        QCOMPARE(user->text("Form8", "Text1"), user->text("Form7", "Text7"));  // the area goes along
        QVERIFY(!user->enabled("Form8", "Command3"));  // "Ver seção" waits for the bars

        // 16 mm below, 10 mm hangers on top, 6.3 mm stirrups, cover 3, aggregate 19, vibrator 5.
        for (auto [list, item] : {std::pair{"List1", "16"}, {"List2", "10"}, {"List3", "6.3"},
                                  {"List4", "3"}, {"List5", "19"}, {"List6", "5"}})
            user->pick("Form8", list, item);
        user->click("Form8", "Command2");
        QVERIFY(user->told().messages().empty());
        QVERIFY(!user->text("Form8", "Text3").trimmed().isEmpty());

        user->click("Form8", "Command3");
        QVERIFY(user->shown("Form8b"));
        QVERIFY(!user->screen("Form8")->isEnabled());
        QVERIFY(!user->text("Form8b", "Text12").trimmed().isEmpty());

        user->click("Form8b", "Command2");
        QVERIFY(panel() && panel()->isVisible());
        QCOMPARE(panel()->key(), std::string("Form8b"));
        QVERIFY(!user->screen("Form8b")->isEnabled());
        clickPanel("Command1");
        QVERIFY(panel()->previewing());
        QCOMPARE(panel()->pageCount(), 2);
        const auto pages = panel()->pages(PageRule::Screen);
        QVERIFY(!holdsPicture(pages[0]));
        QVERIFY(holdsPicture(pages[1]));
        clickPanel("Command5");
        QCOMPARE(panel()->selectedPage(), 2);

        clickPanel("Command3");
        QVERIFY(!panel());
        QVERIFY(user->screen("Form8b")->isEnabled());
        QVERIFY(user->shown("Form8b"));
    }

    void torsionResultsPrintTheirTwoPagesAndGoBack() {
        QVERIFY(user->open("Form6"));
        QVERIFY(user->screen("Form6")->toolbarAction("Imprimir"));
        // The first hand calculation of the torsion tests: As 7.75, 8 mm every 12 cm.
        for (auto [box, text] : {std::pair{"Text1", "25"}, {"Text3", "210"}, {"Text7", "25"}, {"Text8", "50"},
                                 {"Text9", "4"}, {"Text10", "100"}, {"Text11", "80"}, {"Text12", "15"}})
            user->type("Form6", box, text);
        user->pick("Form6", "List1", "8.0");
        user->click("Form6", "Command1");
        QVERIFY(user->told().messages().empty());
        QVERIFY(user->shown("Form6b"));
        QVERIFY(!user->shown("Form6"));
        QCOMPARE(user->text("Form6b", "Text10"), QString("12"));

        user->click("Form6b", "Command7");
        QVERIFY(panel() && panel()->isVisible());
        QCOMPARE(panel()->key(), std::string("Form6b"));
        QVERIFY(!user->screen("Form6b")->isEnabled());
        clickPanel("Command1");
        QCOMPARE(panel()->pageCount(), 2);  // the fixed layout: "... Continua" closes page 1
        clickPanel("Command3");
        QVERIFY(user->screen("Form6b")->isEnabled());

        user->click("Form6b", "Command2");
        QVERIFY(!user->shown("Form6b"));
        QVERIFY(user->shown("Form6"));
        QVERIFY(user->app().backdrop()->isVisible());
        // The boxes typed are still there for another try.
        QCOMPARE(user->text("Form6", "Text12"), QString("15"));
    }

    void detailingStopsOnTheFirstUnchosenListAndGoesBack() {
        QVERIFY(user->open("Form7"));
        user->type("Form7", "Text10", "4");
        user->type("Form7", "Text6", "40");
        user->pick("Form7", "List6", "1");
        user->click("Form7", "Command1");
        user->click("Form7", "Command3");
        QVERIFY(user->shown("Form8"));
        // The tension bars chosen, the compression bars not: the warning names them
        // and the focus waits on their list.
        user->pick("Form8", "List1", "16");
        user->click("Form8", "Command2");
        QCOMPARE(user->told().messages().size(), std::size_t(1));
        QCOMPARE(user->told().messages()[0].text, std::string("Escolha o diâmetro da armadura comprimida."));
        QCOMPARE(user->focus("Form8"), user->control("Form8", "List2"));
        QVERIFY(!user->enabled("Form8", "Command3"));
        // "&Voltar" brings the design back with its results.
        user->click("Form8", "Command1");
        QVERIFY(!user->shown("Form8"));
        QVERIFY(user->shown("Form7"));
        QVERIFY(!user->text("Form7", "Text7").trimmed().isEmpty());
    }
};

QTEST_MAIN(BeamModulesTest)
#include "beam_modules_test.moc"
