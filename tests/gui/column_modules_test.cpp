// The column modules driven through their windows, one run per shape: the solid
// and the hollow rectangle with their layer tables typed cell by cell, the circle,
// the verification with its interaction diagram, and the design situations with
// their table and plot.
#include <QTest>

#include <algorithm>
#include <cmath>

#include "gui/picture_views.h"
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

class ColumnModulesTest : public QObject {
    Q_OBJECT
    std::unique_ptr<ModuleUser> user;

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

private slots:
    void init() { user = std::make_unique<ModuleUser>(); }
    void cleanup() { user.reset(); }

    void solidRectangleDesignWithItsLayersAndSection() {
        QVERIFY(user->open("Form12"));
        // No count of layers: the table does not open and the focus waits on n.
        user->click("Form12", "Command3");
        QCOMPARE(user->told().messages().size(), std::size_t(1));
        QVERIFY(!user->shown("Form12b"));
        QCOMPARE(user->focus("Form12"), user->control("Form12", "Text7"));

        // Centred load on 20 x 40, fck 20, Es 210, d' 4, two layers of 3 (the hand
        // values of the column tests): the concrete takes 0.85 x 2/1.4 x 800 =
        // 971.43 kN of Nd = 1400, the steel at 2 per mille the rest: 428.57/42 = 10.2;
        // minimum 0.15 x 1400/43.48 = 4.83; six bars of 16 (14.7 mm needed) = 12.06.
        user->answer({});
        user->type("Form12", "Text3", "210");
        user->type("Form12", "Text6", "4");
        user->type("Form12", "Text7", "2");
        enterLayers("Form12", "Form12b", {"3", "3"});
        closeLayers("Form12", "Form12b");
        user->type("Form12", "Text8", "1000");
        user->type("Form12", "Text9", "0");
        QVERIFY(!user->printEnabled("Form12"));
        user->click("Form12", "Command4");
        QVERIFY(user->told().messages().empty());
        QCOMPARE(user->text("Form12", "Text10"), QString("10.2"));
        QCOMPARE(user->text("Form12", "Text11"), QString("4.83"));
        QCOMPARE(user->text("Form12", "Text12"), QString("6"));
        QCOMPARE(user->text("Form12", "Text13"), QString("16"));
        QCOMPARE(user->text("Form12", "Text17"), QString("12.06"));
        QVERIFY(user->printEnabled("Form12"));

        // "Ver seção": the section with its six bars, and back.
        user->click("Form12", "Command5");
        QVERIFY(user->shown("Form12c"));
        QVERIFY(!user->shown("Form12"));
        QCOMPARE(filledCircles(picture("Form12c")), 6);
        user->click("Form12c", "Command1");
        QVERIFY(user->shown("Form12"));
        QVERIFY(!user->shown("Form12c"));
    }

    void hollowRectangleWithoutHoleDesignsAsTheSolidOne() {
        QVERIFY(user->open("Form12d"));
        // bw = b/2 and hf = h/2 leave no hole: the centred load of the solid run
        // above gives the same steel.
        for (auto [box, text] : {std::pair{"Text3", "210"}, {"Text4", "20"}, {"Text5", "40"}, {"Text12", "10"},
                                 {"Text6", "20"}, {"Text13", "4"}, {"Text7", "2"}})
            user->type("Form12d", box, text);
        enterLayers("Form12d", "Form12e", {"3", "3"});
        closeLayers("Form12d", "Form12e");
        user->type("Form12d", "Text8", "1000");
        user->type("Form12d", "Text9", "0");
        user->click("Form12d", "Command4");
        QVERIFY(user->told().messages().empty());
        QCOMPARE(user->text("Form12d", "Text10"), QString("10.2"));
        QCOMPARE(user->text("Form12d", "Text11"), QString("4.83"));
        QCOMPARE(user->text("Form12d", "Text17"), QString("6"));
        QCOMPARE(user->text("Form12d", "Text18"), QString("16"));
        QCOMPARE(user->text("Form12d", "Text19"), QString("12.06"));
        QVERIFY(user->printEnabled("Form12d"));
        user->click("Form12d", "Command5");
        QVERIFY(user->shown("Form12c"));
        QCOMPARE(filledCircles(picture("Form12c")), 6);
    }

    void circleDesignUnderCentredLoad() {
        QVERIFY(user->open("Form14"));
        QVERIFY(!user->control("Form14", "Command3"));  // a circle has no layers
        // h 60, d' 5, 12 bars, Nk 3000, Mk 0 (the column tests' hand value): Nd 4200,
        // Ac sigma_cd = 2827.43 x 1.0929 = 3090.0, As = 1110/42 = 26.43; 16.7 mm -> 20.
        for (auto [box, text] : {std::pair{"Text3", "210"}, {"Text4", "60"}, {"Text5", "5"}, {"Text6", "12"},
                                 {"Text7", "3000"}, {"Text8", "0"}})
            user->type("Form14", box, text);
        user->click("Form14", "Command6");
        QVERIFY(user->told().messages().empty());
        QCOMPARE(user->text("Form14", "Text9"), QString("26.43"));
        QCOMPARE(user->text("Form14", "Text13"), QString("20"));
        QVERIFY(user->printEnabled("Form14"));
        user->click("Form14", "Command5");
        QVERIFY(user->shown("Form12c"));
        QCOMPARE(filledCircles(picture("Form12c")), 12);
    }

    void verificationAndItsInteractionDiagram() {
        QVERIFY(user->open("Form13"));
        QVERIFY(!user->enabled("Form13", "Command6"));
        // Pure bending of 20 x 50, d' 5, 5 cm2 at each face, fck 20, CA-50, Es 210:
        // domain 2, tension steel yielded at 10 per mille, compression steel elastic;
        // the neutral axis from 0.8 x 20 sigma_cd x + 5 Es 0.01 (x - 5)/(45 - x) = 5 fyd.
        const double sc = 0.85 * 2.0 / 1.4, fyd = 50 / 1.15;
        auto force = [&](double x) { return 16 * sc * x + 5 * 21000 * 0.01 * (x - 5) / (45 - x) - 5 * fyd; };
        double lo = 5, hi = 20;
        for (int i = 0; i < 100; ++i) ((force(0.5 * (lo + hi)) < 0) ? lo : hi) = 0.5 * (lo + hi);
        const double stress = 21000 * 0.01 * (lo - 5) / (45 - lo);
        const double md = (16 * sc * lo * (25 - 0.4 * lo) + 5 * stress * 20 + 5 * fyd * 20) / 100;

        for (auto [box, text] : {std::pair{"Text3", "210"}, {"Text4", "20"}, {"Text5", "50"}, {"Text6", "5"},
                                 {"Text7", "2"}, {"Text8", "0"}})
            user->type("Form13", box, text);
        enterLayers("Form13", "Form13b", {"2", "2"});
        user->type("Form13b", "Text1", "10");
        closeLayers("Form13", "Form13b");
        user->click("Form13", "Command4");
        QVERIFY(user->told().messages().empty());
        const double got = user->text("Form13", "Text10").toDouble();
        QVERIFY2(std::fabs(got - md) < 0.005 * md, qPrintable(QString("%1 x %2").arg(got).arg(md)));
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
        for (auto [box, text] : {std::pair{"Text5", "25"}, {"Text6", "25"}, {"Text9", "4"}, {"Text14", "1000"},
                                 {"Text10", "30"}, {"Text11", "-10"}, {"Text12", "20"}, {"Text13", "0"}})
            user->type("Form35", box, text);
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
        QCOMPARE(user->text("Form35c", "Text12"), QString("55.43"));
        QCOMPARE(user->text("Form35c", "Text6"), QString("1.97"));
        QCOMPARE(user->text("Form35c", "Text11"), QString("1.81"));
        const char* rows[][3] = {{"1", "4", "2"},    {"2", "3", "3"},       {"3", "2.25", "0"},
                                 {"4", "1", "2.25"}, {"5", "5.92", "1.2"}, {"6", "1.4", "5.6"}};
        auto* table = qobject_cast<QTableWidget*>(user->control("Form35c", "Grade1"));
        QCOMPARE(table->rowCount(), 6);
        for (int r = 0; r < 6; ++r)
            for (int c = 0; c < 3; ++c) QCOMPARE(user->cell("Form35c", "Grade1", r, c), QString(rows[r][c]));

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
};

QTEST_MAIN(ColumnModulesTest)
#include "column_modules_test.moc"
