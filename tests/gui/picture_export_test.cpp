// Pictures to files: the GIF read back by giflib's own decoder (size and colours),
// the name rule of the save dialog, its captions, and a file written twice.
#include <QApplication>
#include <QFile>
#include <QFileDialog>
#include <QTemporaryDir>
#include <QTest>

#include <QPrinter>
#include <QProcess>
#include <QRegularExpression>
#include <QStandardPaths>

#include <gif_lib.h>

#include "app/module.h"
#include "gui/save_picture_dialog.h"
#include "render/drawing_export.h"

using namespace morve;

namespace {

struct DecodedGif {
    int width = 0, height = 0;
    std::vector<QColor> pixels;
    QColor at(int x, int y) const { return pixels[static_cast<std::size_t>(y * width + x)]; }
};

// The first image of the file through giflib's decoder, as colours.
DecodedGif decode(const QString& path) {
    DecodedGif out;
    int error = 0;
    GifFileType* gif = DGifOpenFileName(path.toLocal8Bit().constData(), &error);
    if (!gif) return out;
    if (DGifSlurp(gif) == GIF_OK && gif->ImageCount > 0) {
        const SavedImage& image = gif->SavedImages[0];
        const ColorMapObject* map = image.ImageDesc.ColorMap ? image.ImageDesc.ColorMap : gif->SColorMap;
        out.width = gif->SWidth;
        out.height = gif->SHeight;
        for (int i = 0; i < image.ImageDesc.Width * image.ImageDesc.Height; ++i) {
            const GifColorType c = map->Colors[image.RasterBits[i]];
            out.pixels.emplace_back(c.Red, c.Green, c.Blue);
        }
    }
    DGifCloseFile(gif, &error);
    return out;
}

// Red on the left half, blue on the right, a white band at the top.
Drawing halves() {
    Drawing d;
    d.left = 0;
    d.top = 0;
    d.right = 20;
    d.bottom = 10;
    d.rectangle({0, 2}, {10, 10}, colours::red, 1, true);
    d.rectangle({10, 2}, {20, 10}, colours::blue, 1, true);
    return d;
}

}  // namespace

class PictureExportTest : public QObject {
    Q_OBJECT

private slots:
    void gifDecodesToTheDrawing() {
        QTemporaryDir dir;
        const QString path = dir.filePath("metades.gif");
        QCOMPARE(exportDrawing(halves(), path, QSize(200, 100)), std::string());
        // Readable by others as any file the user saves (a PDF, say), whatever the umask.
        QFile other(dir.filePath("outro.pdf"));
        QVERIFY(other.open(QIODevice::WriteOnly));
        other.close();
        QCOMPARE(QFileInfo(path).permissions(), QFileInfo(other.fileName()).permissions());
        const DecodedGif gif = decode(path);
        QCOMPARE(gif.width, 200);
        QCOMPARE(gif.height, 100);
        QCOMPARE(gif.at(50, 60), QColor(200, 0, 0));
        QCOMPARE(gif.at(150, 60), QColor(0, 0, 200));
        QCOMPARE(gif.at(100, 5), QColor(Qt::white));
        // Written again under the same name, smaller: replaced without a word.
        QCOMPARE(exportDrawing(halves(), path, QSize(60, 30)), std::string());
        QCOMPARE(decode(path).width, 60);
    }

    void flatSlabSurfaceAsGif() {
        // The deflection surface of a plain flat slab, as "&Salvar" writes it.
        ModuleSession session(*ModuleRegistry::find("Form40"), StartDefaults{});
        ScriptedPrompter quiet;
        for (auto [box, text] : {std::pair{"Text4", "20"}, {"Text5", "6"}, {"Text6", "8"}, {"Text8", "5"}, {"Text9", "3"}})
            session.state().setText(box, text);
        QVERIFY(session.press("Command3", quiet).completed);
        session.press("Form40d.Command6", quiet);
        const Drawing d = session.module().drawing("Form40d.Picture1", session.state());
        QTemporaryDir dir;
        const QString path = dir.filePath("flechas.gif");
        QCOMPARE(exportDrawing(d, path, QSize(640, 480)), std::string());
        const DecodedGif gif = decode(path);
        QCOMPARE(gif.width, 640);
        QCOMPARE(gif.height, 480);
        int dark = 0;
        for (const QColor& c : gif.pixels) dark += c.lightness() < 128;
        QVERIFY(dark > 1000);  // the mesh of the surface is there
    }

    void namesFollowTheProgramsRule() {
        QTemporaryDir dir;
        const QString gifFilter = pictureNameFilters().first();
        QVERIFY(gifFilter.contains("*.gif"));
        // A typed name: its points become "_" and the kind's extension follows.
        QCOMPARE(picturePath(dir.filePath("laje.1"), gifFilter), dir.filePath("laje_1.gif"));
        QCOMPARE(picturePath(dir.filePath("laje"), pictureNameFilters()[2]), dir.filePath("laje.svg"));
        QCOMPARE(picturePath(dir.filePath("laje.gif"), gifFilter), dir.filePath("laje_gif.gif"));
        // A file picked from the list stays as it is.
        QFile picked(dir.filePath("antiga.gif"));
        QVERIFY(picked.open(QIODevice::WriteOnly));
        picked.close();
        QCOMPARE(picturePath(dir.filePath("antiga.gif"), gifFilter), dir.filePath("antiga.gif"));

        std::unique_ptr<QFileDialog> dialog(pictureDialog(nullptr));
        QCOMPARE(dialog->windowTitle(), QString(" Salvar desenho"));
        QCOMPARE(dialog->nameFilters(), pictureNameFilters());
        QVERIFY(dialog->testOption(QFileDialog::DontConfirmOverwrite));
        QCOMPARE(dialog->labelText(QFileDialog::FileType), QString("Arquivo do tipo:"));
    }

    // On paper a label of the drawing is as many points high as it is pixels on
    // the screen; poppler measures the words of the PDF.
    void printedLabelsKeepAReadableSize() {
        if (QStandardPaths::findExecutable("pdftotext").isEmpty()) QSKIP("poppler-utils missing");
        QTemporaryDir dir;
        Drawing d = halves();
        d.text({1, 1}, "Máximo", 9);
        d.text({12, 1}, "12", 7);
        QPrinter printer(QPrinter::HighResolution);
        printer.setOutputFormat(QPrinter::PdfFormat);
        printer.setOutputFileName(dir.filePath("desenho.pdf"));
        printer.setPageSize(QPageSize(QPageSize::A4));
        printDrawing(printer, d);
        QProcess words;
        words.start("pdftotext", {"-bbox", printer.outputFileName(), "-"});
        QVERIFY(words.waitForFinished(10000));
        const QString html = QString::fromUtf8(words.readAllStandardOutput());
        const QRegularExpression word("yMin=\"([\\d.]+)\" xMax=\"[\\d.]+\" yMax=\"([\\d.]+)\">([^<]+)<");
        int seen = 0;
        for (auto m = word.globalMatch(html); m.hasNext(); ++seen) {
            const auto w = m.next();
            const double height = w.captured(2).toDouble() - w.captured(1).toDouble();  // points
            QVERIFY2(height >= 7, qPrintable(w.captured(3) + " " + QString::number(height)));
        }
        QCOMPARE(seen, 2);
    }
};

QTEST_MAIN(PictureExportTest)
#include "picture_export_test.moc"
