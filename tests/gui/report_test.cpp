// The report panel on a report longer than a page, the PDF it saves, the same
// PDF from morve-calc, and the fitting of a drawing into a picture.
#include <QApplication>
#include <QDir>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QProcess>
#include <QRegularExpression>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>
#include <QToolButton>

#include "gui/gui_prompter.h"
#include "gui/report_panel.h"
#include "render/drawing_export.h"
#include "gui_test_support.h"
#include "reports/report_writer.h"

using namespace morve;

namespace {

// A report of as many numbered lines as asked, each running to column 100 as the
// widest tables of the detailing do.
class LongReport : public ReportOnly {
public:
    explicit LongReport(int lines)
        : ReportOnly([lines](ReportWriter& out) {
              for (int i = 1; i <= lines; ++i) out.write("Linha ", std::to_string(i), tab(30), "valor", tab(100), "fim");
          }) {}
};

// The right end of the rightmost word of a PDF, in points, as poppler reads it.
double rightmostWord(const QString& pdf);

QString run(const QString& program, const QStringList& args) {
    QProcess p;
    p.start(program, args);
    p.waitForFinished(10000);
    return QString::fromUtf8(p.readAllStandardOutput());
}

double rightmostWord(const QString& pdf) {
    const QString words = run("pdftotext", {"-bbox", pdf, "-"});
    double right = 0;
    const QRegularExpression xMax("xMax=\"([0-9.]+)\"");
    for (auto it = xMax.globalMatch(words); it.hasNext();) right = std::max(right, it.next().captured(1).toDouble());
    return right;
}

// A4 is 595 points wide; the lines keep 2 cm clear on the right as on the left.
constexpr double kRightEdge = 595 - 72 * 2 / 2.54;

}  // namespace

class ReportTest : public QObject {
    Q_OBJECT
    FormState state;
    QWidget caller;

    std::unique_ptr<ReportPanel> panel(const Module& m) {
        auto p = std::make_unique<ReportPanel>(m.info().printKey, m, state, &caller);
        p->setAttribute(Qt::WA_DeleteOnClose, false);
        return p;
    }
    QString text(ReportPanel& p, const char* box) { return qobject_cast<QLineEdit*>(p.control(box))->text(); }
    void click(ReportPanel& p, const char* button) {
        QTest::mouseClick(qobject_cast<QAbstractButton*>(p.control(button)), Qt::LeftButton);
    }

private slots:
    void init() { setBeepHandler([] {}); }

    void previewTurnsPagesWithinTheRange() {
        LongReport fits(31);  // 7 header lines + 31 = 38: one screen page, no next one
        auto one = panel(fits);
        one->preview();
        QVERIFY(text(*one, "Text22") == "1" && !one->control("Command5")->isEnabled());
        one.reset();
        LongReport report(80);  // 87 lines: pages of 38, 38 and 11
        auto p = panel(report);
        QVERIFY(!caller.isEnabled());
        qobject_cast<QLineEdit*>(p->control("Text2"))->setText("Viga V1 'ção'");
        p->show();
        click(*p, "Command1");
        QVERIFY(p->previewing());
        QVERIFY(!p->control("Text1")->isVisible());
        QVERIFY(p->control("Picture1")->isVisible());
        QCOMPARE(text(*p, "Text11"), QString("1"));
        QCOMPARE(text(*p, "Text22"), QString("3"));
        QVERIFY(!p->control("Command4")->isEnabled());

        const auto pages = p->pages(PageRule::Screen);
        QCOMPARE(pages[0].lines[2].text, std::string("RELATÓRIO DE CÁLCULO - MORVE"));
        QCOMPARE(pages[0].lines[4].text, std::string("Denominação: Viga V1 'ção'"));
        QCOMPARE(pages[1].lines.front().text.substr(0, 9), std::string("Linha 32 "));
        QCOMPARE(pages[2].lines.size(), std::size_t(11));

        // The widest line ends inside the page: below the header its last word is
        // painted in the right half of the surface, and nothing in the last centimetre.
        const QImage page = p->control("Picture1")->grab().toImage();
        const int margin = static_cast<int>(p->control("Picture1")->logicalDpiX() / 2.54);
        int rightmostInk = 0;
        for (int x = 0; x < page.width(); ++x)
            for (int y = page.height() / 5; y < page.height(); ++y)
                if (page.pixelColor(x, y) != QColor(Qt::white)) rightmostInk = x;
        QVERIFY(rightmostInk > page.width() / 2);
        QVERIFY(rightmostInk < page.width() - margin);

        click(*p, "Command5");
        QCOMPARE(text(*p, "Text11"), QString("2"));
        QVERIFY(p->control("Command4")->isEnabled());
        click(*p, "Command5");
        click(*p, "Command5");  // at the end a press does nothing
        QCOMPARE(text(*p, "Text11"), QString("3"));
        click(*p, "Command4");
        click(*p, "Command4");
        click(*p, "Command4");  // nor at the start
        QCOMPARE(text(*p, "Text11"), QString("1"));

        // "Imprimir" of the preview brings the panel back at page 1.
        click(*p, "Command5");
        click(*p, "Command6");
        QVERIFY(!p->previewing());
        QVERIFY(p->control("Text1")->isVisible());
        QVERIFY(!p->control("Picture1")->isVisible());
        QCOMPARE(text(*p, "Text11"), QString("1"));

        // The copies box takes digits only, and backspace does not empty it.
        auto* copies = qobject_cast<QLineEdit*>(p->control("Text1"));
        QCOMPARE(copies->text(), QString("1"));
        copies->setFocus();
        copies->end(false);
        QTest::keyClicks(copies, ",2");
        QTest::keyClick(copies, Qt::Key_Backspace);
        QCOMPARE(copies->text(), QString("12"));

        click(*p, "Command3");
        QVERIFY(caller.isEnabled());
    }

    void savedPdfHasThePaperPages() {
        if (QStandardPaths::findExecutable("pdfinfo").isEmpty()) QSKIP("poppler-utils missing");
        LongReport report(60);  // 5 header lines + 60 = 65: pages of 53 and 12
        auto p = panel(report);
        qobject_cast<QLineEdit*>(p->control("Text2"))->setText("Laje L3");
        QTemporaryDir dir;
        const QString path = dir.filePath("relatorio.pdf");
        QCOMPARE(p->saveTo(path), std::string());
        QVERIFY(p->findChild<QLabel*>("LabelSalvo")->text().contains(path));
        QVERIFY(rightmostWord(path) <= kRightEdge);
        QVERIFY(run("pdfinfo", {path}).contains(QRegularExpression("Pages:\\s+2\\b")));
        QVERIFY(run("pdfinfo", {path}).contains("595 x 842"));
        const QString first = run("pdftotext", {"-layout", "-f", "1", "-l", "1", path, "-"});
        QVERIFY(first.contains("RELATÓRIO DE CÁLCULO - MORVE"));
        QVERIFY(first.contains("Módulo: Cálculo de esforços em vigas, rampas e escadas helicoidais"));
        QVERIFY(first.contains("Denominação: Laje L3"));
        QVERIFY(first.contains(QRegularExpression("Linha 48 +valor +fim")));
        QVERIFY(!first.contains("Linha 49 "));
        const QString second = run("pdftotext", {"-layout", "-f", "2", "-l", "2", path, "-"});
        QVERIFY(second.contains("Linha 49 "));
        QVERIFY(second.contains("Linha 60 "));
        // The page number heads each page.
        QCOMPARE(second.trimmed().left(1), QString("2"));
        QVERIFY(!p->saveTo("/nonexistent/folder/x.pdf").empty());
    }

    void morveCalcWritesTheSamePdf() {
        // The detailing report, whose restrictions run to column 55 and beyond.
        const QString calc = QCoreApplication::applicationDirPath() + "/morve-calc";
        const QString example =
            qEnvironmentVariable("MORVE_DATA_DIR") + "/../examples/form8-detalhamento-viga-retangular.json";
        if (!QFile::exists(calc) || !QFile::exists(example)) QSKIP("morve-calc or the example missing");
        QTemporaryDir dir;
        const QString path = dir.filePath("form8b.pdf");
        QProcess p;
        p.setProcessEnvironment(QProcessEnvironment());  // no display, no Qt platform
        p.start(calc, {"--report", path, "--key", "Form8b", "--title", "Viga V1", example});
        QVERIFY(p.waitForFinished(10000));
        QCOMPARE(p.exitCode(), 0);
        const QString text = run("pdftotext", {"-layout", path, "-"});
        QVERIFY(text.contains("Denominação: Viga V1"));
        QVERIFY(text.contains("Espaço livre para o vibrador = 5 cm"));
        QVERIFY(rightmostWord(path) <= kRightEdge);
    }

    void drawingKeepsItsAspectInThePicture() {
        // A square region filled black, in a picture twice as wide as high: the
        // square stands in the middle, 100 x 100, with white on both sides.
        Drawing d;
        d.left = 0;
        d.top = 0;
        d.right = 10;
        d.bottom = 10;
        d.rectangle({0, 0}, {10, 10}, colours::black, 1, true);
        QTemporaryDir dir;
        const QString png = dir.filePath("q.png");
        QCOMPARE(exportDrawing(d, png, QSize(200, 100)), std::string());
        const QImage image(png);
        QCOMPARE(image.size(), QSize(200, 100));
        QCOMPARE(image.pixelColor(20, 50), QColor(Qt::white));
        QCOMPARE(image.pixelColor(100, 50), QColor(Qt::black));
        QCOMPARE(image.pixelColor(60, 5), QColor(Qt::black));
        QCOMPARE(image.pixelColor(180, 50), QColor(Qt::white));
        const QString svg = dir.filePath("q.svg");
        QCOMPARE(exportDrawing(d, svg, QSize(200, 100)), std::string());
        QFile f(svg);
        QVERIFY(f.open(QIODevice::ReadOnly));
        QVERIFY(f.readAll().contains("<svg"));
    }
};

QTEST_MAIN(ReportTest)
#include "report_test.moc"
