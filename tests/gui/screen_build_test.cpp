// Windows built from declarations other than Form7's: options, checks, lists
// without a selection, grids that grow, hidden frames, charts and pictures, and
// the round trip of every text between the widgets and the FormState.
#include <QChart>
#include <QChartView>
#include <QCheckBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QRadioButton>
#include <QTableWidget>
#include <QTest>
#include <QValueAxis>

#include "gui/picture_views.h"
#include "gui/screen_window.h"

using namespace morve;

namespace {

ScreenDecl companion() {
    ScreenBuilder s("Form99b", " RESULTADOS ", false);
    s.frame("Frame1", "Seção", 0, 0)
        .option("Option1", "Retangular", "forma", true)
        .option("Option2", "Circular", "forma")
        .check("Check1", "Considerar fluência")
        .list("List1", "Bitola (mm)", {"10", "12.5", "16"})
        .box("Text1", "N(kN)=", "", "kN", KeyFilter::SignedNumber);
    GridDecl g;
    g.header = {"Nó", "x (m)"};
    g.rows = 1;
    s.frame("Frame2", "", 1, 0).grid("Grade1", g).chart("Chart1", 300, 200).picture("Picture1", 100, 80);
    return s.build();
}

}  // namespace

class ScreenBuildTest : public QObject {
    Q_OBJECT

private slots:
    void everyKindOfControlRoundTrips() {
        const ScreenDecl decl = companion();
        FormState state("Form99", {ScreenBuilder("Form99", "").build(), decl});
        ScreenWindow w(decl);
        w.loadFrom(state);
        QVERIFY(!w.toolbarAction("Novo"));
        QCOMPARE(w.windowTitle(), QString(" MORVE"));
        QVERIFY(qobject_cast<QRadioButton*>(w.control("Option1"))->isChecked());
        QVERIFY(qobject_cast<QListWidget*>(w.control("List1"))->selectedItems().isEmpty());
        QCOMPARE(qobject_cast<QGroupBox*>(w.control("Frame1"))->title(), QString("Seção"));

        // The module writes: another option, a list item, a grid of three rows, a
        // hidden frame, a disabled box.
        state.setOption("Form99b.Option2", true);
        state.setText("Form99b.Check1", "True");
        state.setText("Form99b.List1", "12.5");
        state.setText("Form99b.Text1", "-3.5");
        state.grid("Form99b.Grade1") = {{"Nó", "x (m)"}, {"1", "0"}, {"2", "2.5"}, {"3", "5"}};
        state.setVisible("Form99b.Frame2", false);
        state.setEnabled("Form99b.Text1", false);
        w.loadFrom(state);
        QVERIFY(qobject_cast<QRadioButton*>(w.control("Option2"))->isChecked());
        QVERIFY(!qobject_cast<QRadioButton*>(w.control("Option1"))->isChecked());
        QVERIFY(qobject_cast<QCheckBox*>(w.control("Check1"))->isChecked());
        auto* table = qobject_cast<QTableWidget*>(w.control("Grade1"));
        QCOMPARE(table->rowCount(), 3);
        QCOMPARE(table->item(1, 1)->text(), QString("2.5"));
        QVERIFY(w.control("Frame2")->isHidden());
        QVERIFY(!w.control("Text1")->isEnabled());

        // No option of the group left on: all off, as the state says.
        state.setOption("Form99b.Option2", false);
        w.loadFrom(state);
        QVERIFY(!qobject_cast<QRadioButton*>(w.control("Option1"))->isChecked());
        QVERIFY(!qobject_cast<QRadioButton*>(w.control("Option2"))->isChecked());

        // The user's changes go back to the state.
        qobject_cast<QRadioButton*>(w.control("Option1"))->setChecked(true);
        qobject_cast<QListWidget*>(w.control("List1"))->clearSelection();
        table->item(2, 1)->setText("6");
        FormState back("Form99", {ScreenBuilder("Form99", "").build(), decl});
        w.storeTo(back);
        QCOMPARE(back.text("Form99b.Option1"), std::string("True"));
        QCOMPARE(back.text("Form99b.Option2"), std::string(""));
        QCOMPARE(back.text("Form99b.List1"), std::string(""));
        QCOMPARE(back.text("Form99b.Text1"), std::string("-3.5"));
        QCOMPARE(back.grid("Form99b.Grade1").size(), std::size_t(4));
        QCOMPARE(back.cell("Form99b.Grade1", 3, 1), std::string("6"));
        QCOMPARE(back.cell("Form99b.Grade1", 0, 0), std::string("Nó"));
    }

    void chartShowsTheModulesSeries() {
        const ScreenDecl decl = companion();
        ScreenWindow w(decl);
        Chart c;
        c.title = "Diagrama de interação";
        c.xTitle = "Mx (kNm)";
        c.xMin = -100;
        c.xMax = 100;
        c.series.push_back({"Resistente", {{0, 0}, {50, 800}, {0, 1800}}, true, colours::blue, 5});
        w.setChart("Chart1", c);
        auto* box = dynamic_cast<ChartBox*>(w.control("Chart1"));
        QVERIFY(box);
        QChart* chart = box->view()->chart();
        // Series and points are the interaction diagram's run's business; here the
        // titles and the range.
        QCOMPARE(chart->title(), QString("Diagrama de interação"));
        auto* x = qobject_cast<QValueAxis*>(chart->axes(Qt::Horizontal).front());
        QVERIFY(x->titleText() == "Mx (kNm)" && x->min() == -100.0);

        Drawing d;
        d.circle({0.5, 0.5}, 0.2, colours::red, true);
        w.setDrawing("Picture1", d);
        QCOMPARE(dynamic_cast<DrawingView*>(w.control("Picture1"))->drawing().shapes.size(), std::size_t(1));
    }
};

QTEST_MAIN(ScreenBuildTest)
#include "screen_build_test.moc"
