// The beam and column modules driven through their windows: the rectangular beam
// with its detailing and the report of the final solution, the torsion design
// with its result screen and report; one column run per shape: the solid and the
// hollow rectangle with their layer tables typed cell by cell, the circle, the
// verification with its interaction diagram, and the design situations with their
// table and plot.
#include <QTest>

#include <algorithm>
#include <cmath>

#include "gui/picture_views.h"
#include "gui/report_panel.h"
#include "module_user.h"

#include <QChart>
#include <QChartView>
#include <QScatterSeries>

using namespace morve;

namespace {

// The bars of a section or the points of a plot: the filled dots, far smaller
// than a circular outline filled as concrete.
int filledCircles(const Drawing& d) {
    double smallest = HUGE_VAL;
    for (const Shape& s : d.shapes)
        if (const auto* c = std::get_if<Circle>(&s.geometry); c && c->filled) smallest = std::min(smallest, c->radius);
    int n = 0;
    for (const Shape& s : d.shapes)
        if (const auto* c = std::get_if<Circle>(&s.geometry); c && c->filled && c->radius < 4 * smallest) ++n;
    return n;
}

}  // namespace

class SectionModulesTest : public QObject {
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

    const Drawing& picture(const char* screen) {
        static const Drawing none;
        auto* view = dynamic_cast<DrawingView*>(user->control(screen, "Picture1"));
        return view ? view->drawing() : none;
    }
    // "Entrar com dados das camadas", the bars typed row by row, "&OK".
    void enterLayers(const std::string& module, const std::string& table, std::vector<const char*> bars) {
        user->click(module, "Command3");
        QVERIFY(user->shown(table));
        QVERIFY(!user->shown(module));
        for (int row = 0; row < static_cast<int>(bars.size()); ++row) {
            QCOMPARE(user->cell(table, "Grade1", row, 0), QString::number(row + 1));
            user->typeCell(table, "Grade1", row, bars[static_cast<std::size_t>(row)]);
            QCOMPARE(user->cell(table, "Grade1", row, 1), QString(bars[static_cast<std::size_t>(row)]));
        }
    }
    void closeLayers(const std::string& module, const std::string& table) {
        user->click(table, "Command2");
        QVERIFY(!user->shown(table));
        QVERIFY(user->shown(module));
    }

    void rectangleRun(const std::string& m, const std::string& t) {
        QVERIFY(user->open(m));
        // No count of layers: the table does not open and the focus waits on n.
        user->click(m, "Command3");
        QCOMPARE(user->told().messages().size(), std::size_t(1));
        QVERIFY(!user->shown(t));
        QCOMPARE(user->focus(m), user->control(m, "Text7"));
        user->answer({});
        if (m == "Form12d")
            user->fill(m, {{"Text4", "20"}, {"Text5", "40"}, {"Text12", "10"}, {"Text6", "20"}, {"Text13", "4"}});
        else
            user->type(m, "Text6", "4");
        user->fill(m, {{"Text3", "210"}, {"Text7", "2"}});
        enterLayers(m, t, {"3", "3"});
        closeLayers(m, t);
        user->type(m, "Text8", "1000");
        user->type(m, "Text9", "0");
        QVERIFY(!user->printEnabled(m));
        user->click(m, "Command4");
        QVERIFY(user->told().messages().empty());
        QCOMPARE(user->text(m, "Text10"), QString("10.2"));
        QVERIFY(user->printEnabled(m));
        user->click(m, "Command5");
        QVERIFY(user->shown("Form12c"));
        QVERIFY(!user->shown(m));
        QCOMPARE(filledCircles(picture("Form12c")), 6);
        user->click("Form12c", "Command1");
        QVERIFY(user->shown(m));
        QVERIFY(!user->shown("Form12c"));
    }

private slots:
    void init() { user = std::make_unique<ModuleUser>(); }
    void cleanup() { user.reset(); }

    // A rectangle designed through its window: the layers typed in their table, the
    // centred load of the column tests (Nd 1400 on 20 x 40, As = 428.57 / 42 = 10.2),
    // and "Ver seção" with its six bars. The box without a hole runs the same way.
    void rectangleDesignsWithTheirLayersAndSection() {
        const ModuleUser::Entries shapes = {{"Form12", "Form12b"}, {"Form12d", "Form12e"}};
        for (auto [module, table] : shapes) {
            user.reset();  // one program at a time: its prompter is the only one
            user = std::make_unique<ModuleUser>();
            rectangleRun(module, table);
        }
    }
    void circleDesignUnderCentredLoad() {
        QVERIFY(user->open("Form14"));
        QVERIFY(!user->control("Form14", "Command3"));  // a circle has no layers
        // h 60, d' 5, 12 bars, Nk 3000, Mk 0: As = 1110 / 42 = 26.43 (the column tests).
        user->fill("Form14", {{"Text3", "210"}, {"Text4", "60"}, {"Text5", "5"}, {"Text6", "12"}, {"Text7", "3000"}, {"Text8", "0"}});
        user->click("Form14", "Command6");
        QVERIFY(user->told().messages().empty());
        QCOMPARE(user->text("Form14", "Text9"), QString("26.43"));
        QVERIFY(user->printEnabled("Form14"));
        user->click("Form14", "Command5");
        QVERIFY(user->shown("Form12c"));
        QCOMPARE(filledCircles(picture("Form12c")), 12);
        // Esc on the companion is its "&Voltar".
        user->screen("Form12c")->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(user->screen("Form12c")));
        QTest::keyClick(user->screen("Form12c"), Qt::Key_Escape);
        settle();
        QVERIFY(!user->shown("Form12c") && user->shown("Form14"));
        // "SOLUÇÃO: n barras de φ mm" reads as one row, left to right.
        auto place = [&](const char* name) {
            QWidget* w = user->control("Form14", name);
            return QRect(w->mapTo(user->screen("Form14"), QPoint(0, 0)), w->size());
        };
        int lastRight = -1;
        for (const char* name : {"Label2", "Text12", "Label3", "Text13"}) {
            QVERIFY2(place(name).left() > lastRight, name);
            QVERIFY2(std::abs(place(name).center().y() - place("Label2").center().y()) <= 2, name);
            lastRight = place(name).right();
        }
    }

    void verificationAndItsInteractionDiagram() {
        QVERIFY(user->open("Form13"));
        QVERIFY(!user->enabled("Form13", "Command6"));
        // Pure bending of 20 x 50, d' 5, 5 cm2 at each face (its moment is the
        // column tests' business).
        user->fill("Form13", {{"Text3", "210"}, {"Text4", "20"}, {"Text5", "50"}, {"Text6", "5"}, {"Text7", "2"}, {"Text8", "0"}});
        enterLayers("Form13", "Form13b", {"2", "2"});
        user->type("Form13b", "Text1", "10");
        closeLayers("Form13", "Form13b");
        user->click("Form13", "Command4");
        QVERIFY(user->told().messages().empty());
        const double got = user->text("Form13", "Text10").toDouble();
        QVERIFY(got > 0);
        // The report waits until the diagram has been seen.
        QVERIFY(!user->printEnabled("Form13"));
        QVERIFY(user->enabled("Form13", "Command6"));

        user->click("Form13", "Command6");
        QVERIFY(user->told().messages().empty());
        QVERIFY(user->shown("Form13c"));
        QVERIFY(!user->shown("Form13"));
        QVERIFY(user->printEnabled("Form13"));
        auto* box = dynamic_cast<ChartBox*>(user->control("Form13c", "MSChart1"));
        QVERIFY(box);
        const auto series = box->view()->chart()->series();
        QCOMPARE(series.size(), 2);
        auto* curve = qobject_cast<QScatterSeries*>(series[0]);
        auto* point = qobject_cast<QScatterSeries*>(series[1]);
        QVERIFY(curve && point);
        QVERIFY(curve->count() > 20);
        // The case itself stands on the curve: Nd = 0 with the moment of the box.
        QCOMPARE(point->count(), 1);
        QCOMPARE(point->at(0).x(), 0.0);
        QVERIFY(std::fabs(point->at(0).y() - got) < 1e-9);
        user->click("Form13c", "Command1");
        QVERIFY(user->shown("Form13"));
    }

    void designSituationsOfACornerColumn() {
        QVERIFY(user->open("Form35"));
        // The hand calculation of the situations tests: 25 x 25, 4 m both ways, Fk
        // 1000, Max 30, Mbx -10, May 20, Mby 0: a corner column with six situations.
        user->fill("Form35", {{"Text5", "25"}, {"Text6", "25"}, {"Text9", "4"}, {"Text14", "1000"}, {"Text10", "30"}, {"Text11", "-10"}, {"Text12", "20"}, {"Text13", "0"}});
        // lex left blank: the run stops there with the focus on it.
        user->click("Form35", "Command3");
        QCOMPARE(user->told().messages().size(), std::size_t(1));
        QCOMPARE(user->told().messages()[0].text, std::string("O comprimento de flambagem lex não pode ser nulo."));
        QCOMPARE(user->focus("Form35"), user->control("Form35", "Text8"));
        QVERIFY(!user->shown("Form35c"));
        QVERIFY(!user->printEnabled("Form35"));

        user->answer({});
        user->type("Form35", "Text8", "4");
        user->click("Form35", "Command3");
        QVERIFY(user->told().messages().empty());
        QVERIFY(user->shown("Form35c"));
        QVERIFY(user->printEnabled("Form35"));
        QCOMPARE(user->text("Form35c", "Text1"), QString("PILAR DE CANTO"));
        // The six situations in the table, numbered.
        QCOMPARE(qobject_cast<QTableWidget*>(user->control("Form35c", "Grade1"))->rowCount(), 6);
        QCOMPARE(user->cell("Form35c", "Grade1", 5, 0), QString("6"));

        // The plot of the six situations, and back.
        user->click("Form35c", "Command1");
        QVERIFY(user->shown("Form35d"));
        QCOMPARE(filledCircles(picture("Form35d")), 6);
        user->click("Form35d", "Command1");
        QVERIFY(!user->shown("Form35d"));
        user->click("Form35c", "Command2");
        QVERIFY(!user->shown("Form35c"));
        QVERIFY(user->shown("Form35"));
    }

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
        user->fill("Form6", {{"Text1", "25"}, {"Text3", "210"}, {"Text7", "25"}, {"Text8", "50"}, {"Text9", "4"}, {"Text10", "100"}, {"Text11", "80"}, {"Text12", "15"}});
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

QTEST_MAIN(SectionModulesTest)
#include "section_modules_test.moc"
