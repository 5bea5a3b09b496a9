#include "render/drawing_export.h"

#include <QImage>
#include <QPainter>
#include <QSvgGenerator>

#include "render/drawing_painter.h"

namespace morve {

std::string exportDrawing(const Drawing& drawing, const QString& path, QSize size) {
    const std::string failed = "não foi possível gravar " + path.toStdString();
    if (size.isEmpty()) return failed;
    const QRectF area(QPointF(0, 0), QSizeF(size));
    if (path.endsWith(QStringLiteral(".svg"), Qt::CaseInsensitive)) {
        QSvgGenerator svg;
        svg.setFileName(path);
        svg.setSize(size);
        svg.setViewBox(area);
        svg.setTitle(QStringLiteral("MORVE"));
        QPainter painter;
        if (!painter.begin(&svg)) return failed;
        painter.fillRect(area, Qt::white);
        paintDrawing(painter, drawing, area);
        return painter.end() ? "" : failed;
    }
    QImage image(size, QImage::Format_RGB32);
    image.fill(Qt::white);
    {
        QPainter painter(&image);
        paintDrawing(painter, drawing, area);
    }
    return image.save(path) ? "" : failed;
}

}  // namespace morve
