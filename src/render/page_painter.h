#pragma once
// Report pages on a Qt surface. The preview, the printer and the PDF file all go
// through paintReportPage; only the geometry differs: on the screen the lines sit
// at one centimetre from the left in a size 8 font, one after another; on paper a
// page number heads each page and the lines run at half a centimetre from y = 2 cm.
#include <QFont>
#include <QPointF>
#include <QString>

#include <optional>
#include <string>
#include <vector>

#include "reports/report_writer.h"

class QPainter;
class QPaintDevice;
class QPagedPaintDevice;

namespace morve {

struct PageGeometry {
    double left = 0;        // x of the text lines, device units
    double top = 0;         // baseline of the first line
    double lineHeight = 0;  // distance of two baselines
    double pictureWidth = 0;
    double textWidth = 0;   // from the left of the lines to the right margin
    double pixelScale = 1;  // device pixels per screen pixel, for drawings
    QFont font;             // body lines; bold lines use it in bold
    std::optional<QPointF> pageNumberAt;
    QFont pageNumberFont;
};

// Size 8 lines from one centimetre at the left, as the preview shows them.
PageGeometry screenGeometry(const QPaintDevice& device, double width);
// A4 portrait: page number at (10 cm, 1 cm) in size 10; lines at x = 2 cm from
// y = 2 cm, size 12, half a centimetre apart (53 lines fill the page).
PageGeometry paperGeometry(const QPaintDevice& device);

// The report's font face: fixed pitch, so that the columns of its tables line up.
QFont reportFont(double pointSize);

// The font made smaller, when need be, so that the widest line of the report ends
// inside the text width: the tables of a report run to column 55 and beyond, and a
// line cut at the margin loses its number. One size serves every page.
void fitWidestLine(PageGeometry& geometry, const QPaintDevice& device, const std::vector<ReportPage>& pages);
double widestLine(const PageGeometry& geometry, const QPaintDevice& device, const std::vector<ReportPage>& pages);

void paintReportPage(QPainter& painter, const ReportPage& page, const PageGeometry& geometry);

// Every page on a paged device (printer or PDF), one after another, with the paper
// geometry. False when the device cannot be painted on.
bool paintReportPages(QPagedPaintDevice& device, const std::vector<ReportPage>& pages);

// The report as an A4 PDF file; "" on success, otherwise what went wrong.
std::string writeReportPdf(const std::vector<ReportPage>& pages, const QString& path);

}  // namespace morve
