// The key filters on real widgets: what a user typing into a box or a grid cell
// actually gets.
#include <QLineEdit>
#include <QTableWidget>
#include <QTest>

#include "app/module.h"
#include "app/screen.h"
#include "beams/form7.h"
#include "gui/gui_prompter.h"
#include "gui/screen_window.h"

using namespace morve;

class KeyFiltersTest : public QObject {
    Q_OBJECT
    int beeps = 0;

    QLineEdit* box(ScreenWindow& w, const char* name) {
        auto* edit = qobject_cast<QLineEdit*>(w.control(name));
        edit->setFocus();
        return edit;
    }

private slots:
    void init() {
        beeps = 0;
        setBeepHandler([this] { ++beeps; });
    }
    void cleanup() { setBeepHandler(nullptr); }

    // What reaches the boxes of Form7, and a beep for each key refused.
    void boxesFilterTheirKeysWithABeep() {
        ScreenWindow w(Form7::mainScreen());
        QLineEdit* fck = box(w, "Text1");
        fck->clear();
        QTest::keyClicks(fck, "2,5a/ x.3");  // a second point passes: the box reads its longest number
        QCOMPARE(fck->text(), QString("2.5.3"));
        QCOMPARE(beeps, 4);
        QLineEdit* mk = box(w, "Text6");  // signed
        QTest::keyClicks(mk, "-12,5");
        QCOMPARE(mk->text(), QString("-12.5"));
        QCOMPARE(beeps, 4);
        QLineEdit* b = box(w, "Text3");
        b->setText("2");
        QTest::keyClicks(b, "-0");
        QCOMPARE(b->text(), QString("20"));
        QCOMPARE(beeps, 5);
        // Backspace, Enter and Escape are swallowed with a beep; Delete and arrows work.
        for (auto key : {Qt::Key_Backspace, Qt::Key_Return, Qt::Key_Escape}) QTest::keyClick(b, key);
        QCOMPARE(b->text(), QString("20"));
        QCOMPARE(beeps, 8);
        QTest::keyClick(b, Qt::Key_Left);
        QTest::keyClick(b, Qt::Key_Delete);
        QCOMPARE(b->text(), QString("2"));
        QCOMPARE(beeps, 8);
        QVERIFY(qobject_cast<QLineEdit*>(w.control("Text7"))->isReadOnly());  // results take no typing
    }

    // Counts take digits only (a comma refused with a beep); lengths and
    // stiffnesses take a decimal point, and a comma comes as the point: a span
    // typed 4,5 is 4.5 m, never 45 m.
    void beamTablesFilterByColumn() {
        const Module* form34 = ModuleRegistry::find("Form34");
        QVERIFY(form34);
        ScreenDecl bars;
        for (const ScreenDecl& screen : form34->screens())
            if (screen.name == "Form34b") bars = screen;
        ScreenWindow w(bars);
        FormState state("Form34", form34->screens());
        state.grid("Form34b.Grade1") = {{"Vão", "L (m)", "I (cm4)"}, {"1", "", ""}};
        state.grid("Form34b.Grade2") = {{"Nó", "Tipo", "Ig (cm3)"}, {"", "", ""}};
        w.loadFrom(state);
        w.show();
        QVERIFY(QTest::qWaitForWindowExposed(&w));
        const struct {
            const char* grid;
            int column;
            const char* typed;
            const char* kept;
            int beeps;
        } cells[] = {{"Grade1", 1, "4,5", "4.5", 0}, {"Grade1", 2, "208333.5", "208333.5", 0},
                     {"Grade2", 0, "2,", "2", 1},    {"Grade2", 1, "1.", "1", 1},
                     {"Grade2", 2, "12,5", "12.5", 0}};
        for (const auto& c : cells) {
            beeps = 0;
            auto* table = qobject_cast<QTableWidget*>(w.control(c.grid));
            table->setFocus();
            table->setCurrentCell(0, c.column);
            // The first key opens the cell's editor, which takes the rest.
            QTest::keyClick(table, c.typed[0]);
            QTest::keyClicks(QApplication::focusWidget(), c.typed + 1);
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
            QCOMPARE(table->item(0, c.column)->text(), QString(c.kept));
            QCOMPARE(beeps, c.beeps);
        }
    }
};

QTEST_MAIN(KeyFiltersTest)
#include "key_filters_test.moc"
