// Grids typed like a spreadsheet: Tab and Enter through the cells while typing,
// a block pasted from a spreadsheet filling and growing the table, and what the
// module then reads from it.
#include <QApplication>
#include <QClipboard>
#include <QLineEdit>
#include <QTableWidget>
#include <QTest>

#include "app/prompter.h"
#include "gui/gui_prompter.h"
#include "gui/screen_window.h"

using namespace morve;

namespace {

// Spans with their length and load, at most four, and a box after the grid.
ScreenDecl spansScreen() {
    ScreenBuilder s("FormG", " TESTE ");
    s.frame("Frame1", "Vãos", 0, 0)
        .grid("Grade1", GridDecl{{"Vão", "L (m)", "q (kN/m)"}, 2, 4, KeyFilter::PositiveNumber, true})
        .box("Text1", "Observação");
    return s.build();
}

}  // namespace

class GridEditingTest : public QObject {
    Q_OBJECT
    ScreenDecl decl = spansScreen();
    std::unique_ptr<ScreenWindow> w;
    QTableWidget* table = nullptr;
    ScriptedPrompter prompter;
    int beeps = 0;

    QPoint current() const { return {table->currentRow(), table->currentColumn()}; }
    // Key by key to whatever has the focus, as a keyboard does: the first key opens
    // the cell's editor and the others go to it.
    void type(const char* keys) {
        for (const char* k = keys; *k; ++k) QTest::keyClick(QApplication::focusWidget(), *k);
    }
    void press(Qt::Key key, Qt::KeyboardModifiers mods = Qt::NoModifier) {
        QTest::keyClick(QApplication::focusWidget(), key, mods);
    }
    GridRows stored() const {
        FormState state("FormG", {decl});
        w->storeTo(state);
        return state.grid("Grade1");
    }

private slots:
    void init() {
        beeps = 0;
        setBeepHandler([this] { ++beeps; });
        prompter = ScriptedPrompter();
        setGuiPrompter(&prompter);
        w = std::make_unique<ScreenWindow>(decl);
        w->loadFrom(FormState("FormG", {decl}));
        w->show();
        QVERIFY(QTest::qWaitForWindowActive(w.get()));
        table = qobject_cast<QTableWidget*>(w->control("Grade1"));
        table->setFocus();
        table->setCurrentCell(0, 1);
    }
    void cleanup() {
        w.reset();
        setGuiPrompter(nullptr);
        setBeepHandler(nullptr);
    }

    // Typing a table: Tab goes along the row over the numbering column, Enter goes
    // back to where the Tabs began on the next row, the last Tab leaves the grid.
    void tabAndEnterMoveThroughTheCellsWhileTyping() {
        type("6,5");
        press(Qt::Key_Tab);
        QCOMPARE(current(), QPoint(0, 2));
        type("12");
        press(Qt::Key_Return);
        QCOMPARE(current(), QPoint(1, 1));
        type("4");
        press(Qt::Key_Tab);
        press(Qt::Key_Backtab);
        QCOMPARE(current(), QPoint(1, 1));
        press(Qt::Key_Tab);
        type("8");
        press(Qt::Key_Enter);  // the last row: the cell is kept, the cursor stays
        QCOMPARE(current(), QPoint(1, 1));
        QCOMPARE(stored(), (GridRows{{"Vão", "L (m)", "q (kN/m)"}, {"1", "6.5", "12"}, {"2", "4", "8"}}));
        table->setCurrentCell(1, 2);
        press(Qt::Key_Tab);
        QCOMPARE(QApplication::focusWidget(), w->control("Text1"));
        QCOMPARE(beeps, 0);
    }

    // A block from a spreadsheet with decimal commas: it fills from the current
    // cell, grows the table to its limit of four and says what was left out.
    void pastingABlockFillsAndGrowsTheTable() {
        table->setCurrentCell(1, 1);
        QApplication::clipboard()->setText("5,5\t10\r\n6\t-12 \r\n7\t14\t99\r\n8\t16\r\n9\t18\r\n");
        press(Qt::Key_V, Qt::ControlModifier);
        QCOMPARE(stored(), (GridRows{{"Vão", "L (m)", "q (kN/m)"},
                                     {"1", "", ""},
                                     {"2", "5.5", "10"},
                                     {"3", "6", "12"},
                                     {"4", "7", "14"}}));
        QCOMPARE(beeps, 1);  // the minus sign, as if typed
        QCOMPARE(prompter.messages().size(), std::size_t(1));
        QCOMPARE(prompter.messages()[0].text,
                 std::string("A tabela tem no máximo 4 linhas: as linhas coladas além dessas ficaram de fora."));
        QVERIFY(!(table->item(3, 0)->flags() & Qt::ItemIsEditable));

        // Pasted onto the numbering column, a block without it starts beside it;
        // a single value pasted while typing goes into the cell being typed.
        table->setCurrentCell(0, 0);
        QApplication::clipboard()->setText("3\t4\n");
        press(Qt::Key_V, Qt::ControlModifier);
        table->setCurrentCell(3, 2);
        type("1");
        QApplication::clipboard()->setText("2,5");
        press(Qt::Key_V, Qt::ControlModifier);
        press(Qt::Key_Return);
        const GridRows rows = stored();
        QCOMPARE(rows[1], (std::vector<std::string>{"1", "3", "4"}));
        QCOMPARE(rows[4][2], std::string("12.5"));
    }
};

QTEST_MAIN(GridEditingTest)
#include "grid_editing_test.moc"
