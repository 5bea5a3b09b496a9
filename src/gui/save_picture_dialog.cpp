#include "gui/save_picture_dialog.h"

#include <QFileDialog>
#include <QFileInfo>
#include <QPageLayout>
#include <QPainter>
#include <QPrintDialog>
#include <QPrinter>
#include <QRegularExpression>

#include "export/dxf_drawing.h"
#include "render/drawing_export.h"
#include "render/drawing_painter.h"

namespace morve {

QStringList pictureNameFilters() {
    return {QStringLiteral("Desenho GIF (*.gif)"), QStringLiteral("Desenho PNG (*.png)"),
            QStringLiteral("Desenho SVG (*.svg)"), QStringLiteral("Desenho DXF (*.dxf)")};
}

QString picturePath(const QString& chosen, const QString& nameFilter) {
    const QRegularExpressionMatch m = QRegularExpression(QStringLiteral("\\*(\\.\\w+)")).match(nameFilter);
    const QString extension = m.hasMatch() ? m.captured(1).toLower() : QStringLiteral(".gif");
    const QFileInfo info(chosen);
    if (info.exists() && chosen.endsWith(extension, Qt::CaseInsensitive)) return chosen;
    QString name = info.fileName();
    name.replace(QLatin1Char('.'), QLatin1Char('_'));
    return info.dir().filePath(name + extension);
}

QFileDialog* pictureDialog(QWidget* parent) {
    auto* dialog = new QFileDialog(parent, QStringLiteral(" Salvar desenho"));
    dialog->setOption(QFileDialog::DontUseNativeDialog);
    dialog->setOption(QFileDialog::DontConfirmOverwrite);
    dialog->setAcceptMode(QFileDialog::AcceptSave);
    dialog->setFileMode(QFileDialog::AnyFile);
    dialog->setNameFilters(pictureNameFilters());
    dialog->setLabelText(QFileDialog::LookIn, QStringLiteral("Salvar em:"));
    dialog->setLabelText(QFileDialog::FileName, QStringLiteral("Nome do arquivo:"));
    dialog->setLabelText(QFileDialog::FileType, QStringLiteral("Arquivo do tipo:"));
    dialog->setLabelText(QFileDialog::Accept, QStringLiteral("&Salvar"));
    dialog->setLabelText(QFileDialog::Reject, QStringLiteral("Cancelar"));
    return dialog;
}

std::string savePicture(QWidget* parent, const Drawing& drawing, QSize size) {
    QFileDialog* dialog = pictureDialog(parent);
    std::string outcome;
    if (dialog->exec() == QDialog::Accepted && !dialog->selectedFiles().isEmpty()) {
        const QString path = picturePath(dialog->selectedFiles().first(), dialog->selectedNameFilter());
        // A CAD file is vectors on layers in real units, not a painted picture.
        outcome = path.endsWith(QStringLiteral(".dxf")) ? writeDxf(drawing, QFile::encodeName(path).toStdString())
                                                        : exportDrawing(drawing, path, size);
    }
    dialog->deleteLater();
    return outcome;
}

void printPicture(QWidget* parent, const Drawing& drawing) {
    QPrinter printer(QPrinter::HighResolution);
    printer.setPageOrientation(QPageLayout::Portrait);
    printer.setPageSize(QPageSize(QPageSize::A4));
    QPrintDialog dialog(&printer, parent);
    if (dialog.exec() != QDialog::Accepted) return;
    printDrawing(printer, drawing);
}

void printDrawing(QPrinter& printer, const Drawing& drawing) {
    QPainter painter(&printer);
    const QRectF page = printer.pageLayout().paintRectPixels(printer.resolution());
    // The drawing's own proportions, across the page's width at the top.
    const double w = drawing.right - drawing.left, h = drawing.bottom - drawing.top;
    const double height = w > 0 ? page.width() * h / w : page.height();
    // Texts and lines keep the size they have on a screen at 96 dots per inch, as
    // in a printed report: a label of 9 is 9 points high on paper.
    paintDrawing(painter, drawing, QRectF(0, 0, page.width(), std::min(height, page.height())),
                 printer.resolution() / 96.0);
}

}  // namespace morve
