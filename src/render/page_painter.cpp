#include "render/page_painter.h"

#include <QFile>
#include <QFontMetricsF>
#include <QPageLayout>
#include <QPageSize>
#include <QPagedPaintDevice>
#include <QPainter>
#include <QPdfWriter>

#include "render/drawing_painter.h"

namespace morve {

namespace {

double perCentimetre(const QPaintDevice& device, bool vertical) {
    return (vertical ? device.logicalDpiY() : device.logicalDpiX()) / 2.54;
}

}  // namespace

QFont reportFont(double pointSize) {
    QFont font(QStringLiteral("DejaVu Sans Mono"));
    font.setStyleHint(QFont::Monospace);
    font.setPointSizeF(pointSize);
    return font;
}

PageGeometry screenGeometry(const QPaintDevice& device, double width) {
    PageGeometry g;
    g.font = reportFont(8);
    const QFontMetricsF metrics(g.font, &device);
    g.left = perCentimetre(device, false);
    g.lineHeight = metrics.lineSpacing();
    g.top = metrics.ascent();
    g.pictureWidth = std::max(0.0, width - 2 * g.left);
    g.textWidth = g.pictureWidth;
    g.pixelScale = device.logicalDpiX() / 96.0;
    return g;
}

PageGeometry paperGeometry(const QPaintDevice& device) {
    PageGeometry g;
    const double cmX = perCentimetre(device, false), cmY = perCentimetre(device, true);
    g.font = reportFont(12);
    g.left = 2 * cmX;
    g.top = 2 * cmY;
    g.lineHeight = 0.5 * cmY;
    g.pictureWidth = 17 * cmX;
    g.textWidth = 17 * cmX;  // two centimetres of margin on the right as on the left
    g.pixelScale = device.logicalDpiX() / 96.0;
    g.pageNumberAt = QPointF(10 * cmX, 1 * cmY);
    g.pageNumberFont = reportFont(10);
    return g;
}

double widestLine(const PageGeometry& g, const QPaintDevice& device, const std::vector<ReportPage>& pages) {
    QFont bold = g.font;
    bold.setBold(true);
    const QFontMetricsF plain(g.font, &device), strong(bold, &device);
    double widest = 0;
    for (const ReportPage& page : pages)
        for (const PageLine& line : page.lines)
            if (!line.picture)
                widest = std::max(widest, (line.bold ? strong : plain)
                                              .horizontalAdvance(QString::fromStdString(line.text)));
    return widest;
}

void fitWidestLine(PageGeometry& g, const QPaintDevice& device, const std::vector<ReportPage>& pages) {
    constexpr double kSmallest = 4;  // points; below this a line is better cut than unreadable
    const double widest = widestLine(g, device, pages);
    if (!(g.textWidth > 0) || widest <= g.textWidth) return;
    double size = std::max(kSmallest, g.font.pointSizeF() * g.textWidth / widest);
    g.font.setPointSizeF(size);
    // Hinting keeps the advance from shrinking quite in proportion.
    while (size > kSmallest && widestLine(g, device, pages) > g.textWidth) {
        size = std::max(kSmallest, size - 0.25);
        g.font.setPointSizeF(size);
    }
}

void paintReportPage(QPainter& painter, const ReportPage& page, const PageGeometry& g) {
    painter.save();
    painter.setPen(Qt::black);
    if (g.pageNumberAt) {
        painter.setFont(g.pageNumberFont);
        painter.drawText(*g.pageNumberAt, QString::number(page.number));
    }
    QFont bold = g.font;
    bold.setBold(true);
    double baseline = g.top;
    for (const PageLine& line : page.lines) {
        if (line.picture) {
            const int lines = line.pictureLines > 0 ? line.pictureLines : 1;
            // The picture takes its lines from the top of the line it starts on.
            const double top = baseline - g.lineHeight * 0.8;
            const QRectF area(g.left, top, g.pictureWidth, lines * g.lineHeight);
            paintDrawing(painter, *line.picture, area, g.pixelScale);
            baseline += lines * g.lineHeight;
            continue;
        }
        painter.setFont(line.bold ? bold : g.font);
        painter.setPen(Qt::black);
        painter.drawText(QPointF(g.left, baseline), QString::fromStdString(line.text));
        baseline += g.lineHeight;
    }
    painter.restore();
}

bool paintReportPages(QPagedPaintDevice& device, const std::vector<ReportPage>& pages) {
    device.setPageLayout(QPageLayout(QPageSize(QPageSize::A4), QPageLayout::Portrait, QMarginsF()));
    QPainter painter;
    if (!painter.begin(&device)) return false;
    PageGeometry geometry = paperGeometry(device);
    fitWidestLine(geometry, device, pages);
    for (std::size_t i = 0; i < pages.size(); ++i) {
        if (i > 0) device.newPage();
        paintReportPage(painter, pages[i], geometry);
    }
    painter.end();
    return true;
}

std::string writeReportPdf(const std::vector<ReportPage>& pages, const QString& path) {
    {
        QFile probe(path);
        if (!probe.open(QIODevice::WriteOnly)) return "não foi possível gravar " + path.toStdString();
    }
    QPdfWriter pdf(path);
    pdf.setResolution(600);
    pdf.setCreator(QStringLiteral("MORVE"));
    pdf.setTitle(QStringLiteral("Relatório de cálculo - MORVE"));
    if (!paintReportPages(pdf, pages)) return "não foi possível gravar " + path.toStdString();
    return "";
}

}  // namespace morve
