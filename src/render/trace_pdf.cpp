#include "render/trace_pdf.h"

#include <QFile>
#include <QPageLayout>
#include <QPageSize>
#include <QPdfWriter>
#include <QTextDocument>

namespace morve {

void printHtml(const std::string& html, QPagedPaintDevice& device) {
    QTextDocument document;
    document.setHtml(QString::fromStdString(html));
    device.setPageSize(QPageSize(QPageSize::A4));
    // QTextDocument keeps a margin of its own, 2 cm inside the page, when it prints.
    device.setPageMargins(QMarginsF(0, 0, 0, 0), QPageLayout::Millimeter);
    document.print(&device);
}

std::string writeHtmlPdf(const std::string& html, const QString& path) {
    QFile probe(path);
    if (!probe.open(QIODevice::WriteOnly)) return "não foi possível gravar " + path.toStdString();
    probe.close();
    QPdfWriter writer(path);
    writer.setTitle(QStringLiteral("MORVE — Passo a passo"));
    writer.setCreator(QStringLiteral("MORVE"));
    printHtml(html, writer);
    return "";
}

}  // namespace morve
