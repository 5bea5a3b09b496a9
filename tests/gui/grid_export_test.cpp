// "Exportar para planilha..." of a grid: the table as shown goes to a workbook
// that a second reader opens with numbers as numbers; a folder that cannot be
// written gives a message and leaves the old file whole.
#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTableWidget>
#include <QTemporaryDir>
#include <QTest>

#include <unistd.h>

#include "gui/grid_export.h"

using namespace morve;

class GridExportTest : public QObject {
    Q_OBJECT

private slots:
    void theTableAsShownOpensInASecondReader() {
        QTableWidget table(2, 3);
        table.setHorizontalHeaderLabels({"Vão", "Ma (kNm)", "Mb (kNm)"});
        const char* cells[2][3] = {{"1", "-12.50", " 3e2 "}, {"2", "1,5", ""}};
        for (int r = 0; r < 2; ++r)
            for (int c = 0; c < 3; ++c) table.setItem(r, c, new QTableWidgetItem(cells[r][c]));
        QTemporaryDir dir;
        const QString path = QDir(dir.path()).filePath("momentos.xlsx");
        QCOMPARE(exportTable(&table, "Form34f.Grade1", path), std::string());
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
        table.item(0, 1)->setText("99");
        const std::string failed = exportTable(&table, "x", path);
        QFile::setPermissions(dir.path(), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        if (::geteuid() == 0) QSKIP("root writes into a read-only folder");
        QVERIFY2(failed.starts_with("Não foi possível salvar a planilha " + path.toStdString() + ": "), failed.c_str());
        QFile f(path);
        QVERIFY(f.open(QIODevice::ReadOnly));
        QCOMPARE(f.readAll(), before);
        QCOMPARE(QDir(dir.path()).entryList(QDir::Files | QDir::Hidden).size(), 1);
    }
};

QTEST_MAIN(GridExportTest)
#include "grid_export_test.moc"
