// Grids typed like a spreadsheet: Tab and Enter through the cells while typing,
// and a block pasted from a spreadsheet filling and growing the table. And back
// out: "Exportar para planilha..." writes the table as shown to a workbook that a
// second reader opens with numbers as numbers; a folder that cannot be written
// gives a message and leaves the old file whole.
#include <QApplication>
#include <QClipboard>
#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTableWidget>
#include <QTemporaryDir>
#include <QTest>

#include <unistd.h>

#include "gui/grid_export.h"

#include "gui/gui_prompter.h"
#include "gui/screen_window.h"

using namespace morve;

class GridEditingTest : public QObject {
    Q_OBJECT
    // Spans with their length and load, at most four, and a box after the grid.
    ScreenDecl decl = ScreenBuilder("FormG", "")
                          .grid("Grade1", GridDecl{{"Vão", "L (m)", "q (kN/m)"}, 2, 4, KeyFilter::PositiveNumber, true, false, {}})
                          .box("Text1", "Observação")
                          .build();
    std::unique_ptr<ScreenWindow> w;
    QTableWidget* table = nullptr;
    ScriptedPrompter prompter;
    int beeps = 0;

    QPoint current() const { return {table->currentRow(), table->currentColumn()}; }
    // Key by key to whatever has the focus: the first key opens the cell's editor.
    void type(const char* keys, Qt::KeyboardModifiers mods = Qt::NoModifier) {
        for (const char* k = keys; *k; ++k) QTest::keyClick(QApplication::focusWidget(), *k, mods);
    }
    void press(Qt::Key key) { QTest::keyClick(QApplication::focusWidget(), key); }
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

    // Tab goes along the row over the numbering column, Enter back to where the
    // Tabs began on the next row (or stays on the last), the last Tab leaves.
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
        press(Qt::Key_Tab);
        type("8");
        press(Qt::Key_Enter);
        QCOMPARE(current(), QPoint(1, 1));
        QCOMPARE(stored(), (GridRows{{"Vão", "L (m)", "q (kN/m)"}, {"1", "6.5", "12"}, {"2", "4", "8"}}));
        table->setCurrentCell(1, 2);
        press(Qt::Key_Tab);
        QCOMPARE(QApplication::focusWidget(), w->control("Text1"));
        QCOMPARE(beeps, 0);
    }

    // Decimal commas and a minus sign arrive as typed; the table grows to its
    // limit of four and says what was left out. A block without the numbering
    // column pasted on it starts beside it; a single value goes into the cell
    // being typed.
    void pastingABlockFillsAndGrowsTheTable() {
        table->setCurrentCell(1, 1);
        QApplication::clipboard()->setText("5,5\t10\r\n6\t-12 \r\n7\t14\t99\r\n8\t16\r\n");
        type("v", Qt::ControlModifier);
        table->setCurrentCell(0, 0);
        QApplication::clipboard()->setText("3\t4\n");
        type("v", Qt::ControlModifier);
        table->setCurrentCell(3, 2);
        type("1");
        QApplication::clipboard()->setText("2,5");
        type("v", Qt::ControlModifier);
        press(Qt::Key_Return);
        QCOMPARE(stored(), (GridRows{{"Vão", "L (m)", "q (kN/m)"},
                                     {"1", "3", "4"},
                                     {"2", "5.5", "10"},
                                     {"3", "6", "12"},
                                     {"4", "7", "12.5"}}));
        QCOMPARE(beeps, 1);
        QCOMPARE(prompter.messages().at(0).text,
                 std::string("A tabela tem no máximo 4 linhas: as linhas coladas além dessas ficaram de fora."));
        QVERIFY(!(table->item(3, 0)->flags() & Qt::ItemIsEditable));
    }

    void theTableAsShownOpensInASecondReader() {
        QTableWidget sheet(2, 3);
        sheet.setHorizontalHeaderLabels({"Vão", "Ma (kNm)", "Mb (kNm)"});
        const char* cells[2][3] = {{"1", "-12.50", " 3e2 "}, {"2", "1,5", ""}};
        for (int r = 0; r < 2; ++r)
            for (int c = 0; c < 3; ++c) sheet.setItem(r, c, new QTableWidgetItem(cells[r][c]));
        QTemporaryDir dir;
        const QString path = QDir(dir.path()).filePath("momentos.xlsx");
        QCOMPARE(exportTable(&sheet, "Form34f.Grade1", path), std::string());
        QProcess reader;
        reader.start("/usr/bin/python3", {"-c", "import openpyxl,sys; s=openpyxl.load_workbook(sys.argv[1]).active;"
                                                "print(s.title, [c for r in s.iter_rows(values_only=True) for c in r])",
                                          path});
        QVERIFY(reader.waitForFinished());
        QCOMPARE(QString(reader.readAllStandardOutput()).trimmed(),
                 QString("Form34f.Grade1 ['Vão', 'Ma (kNm)', 'Mb (kNm)', 1, -12.5, 300, 2, '1,5', None]"));

        // A read-only folder: the message, the old file untouched, no temporary left.
        QFile::setPermissions(dir.path(), QFile::ReadOwner | QFile::ExeOwner);
        const QByteArray before = [&] { QFile f(path); f.open(QIODevice::ReadOnly); return f.readAll(); }();
        sheet.item(0, 1)->setText("99");
        const std::string failed = exportTable(&sheet, "x", path);
        QFile::setPermissions(dir.path(), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        if (::geteuid() == 0) QSKIP("root writes into a read-only folder");
        QVERIFY2(failed.starts_with("Não foi possível salvar a planilha " + path.toStdString() + ": "), failed.c_str());
        QFile f(path);
        QVERIFY(f.open(QIODevice::ReadOnly));
        QCOMPARE(f.readAll(), before);
        QCOMPARE(QDir(dir.path()).entryList(QDir::Files | QDir::Hidden).size(), 1);
    }
};

QTEST_MAIN(GridEditingTest)
#include "grid_editing_test.moc"
