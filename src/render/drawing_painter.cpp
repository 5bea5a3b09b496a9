#include "render/drawing_painter.h"

#include <QFont>
#include <QFontMetricsF>
#include <QPainter>
#include <QPainterPath>
#include <QPolygonF>

#include <algorithm>
#include <cmath>

namespace morve {

namespace {

QColor qcolour(Colour c) { return QColor(c.r, c.g, c.b); }

struct Fit {
    double scale = 1, dx = 0, dy = 0;
    QPointF operator()(Point p) const { return {dx + p.x * scale, dy + p.y * scale}; }
};

Fit fitRegion(const Drawing& d, const QRectF& target) {
    const double w = d.right - d.left, h = d.bottom - d.top;
    Fit f;
    if (!(w > 0) || !(h > 0) || !std::isfinite(w) || !std::isfinite(h)) return f;
    f.scale = std::min(target.width() / w, target.height() / h);
    // Centre the region in the rectangle.
    f.dx = target.left() + (target.width() - w * f.scale) / 2 - d.left * f.scale;
    f.dy = target.top() + (target.height() - h * f.scale) / 2 - d.top * f.scale;
    return f;
}

}  // namespace

void paintDrawing(QPainter& painter, const Drawing& drawing, const QRectF& target, double pixelScale) {
    if (drawing.empty()) return;
    const Fit fit = fitRegion(drawing, target);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing, true);
    painter.setClipRect(target);
    for (const Shape& shape : drawing.shapes) {
        const QColor colour = qcolour(shape.colour);
        QPen pen(colour, std::max(0.5, shape.width) * pixelScale);
        pen.setCapStyle(Qt::FlatCap);
        painter.setPen(pen);
        painter.setBrush(Qt::NoBrush);
        if (const auto* l = std::get_if<Line>(&shape.geometry)) {
            painter.drawLine(fit(l->from), fit(l->to));
        } else if (const auto* p = std::get_if<Polyline>(&shape.geometry)) {
            QPolygonF poly;
            for (const Point& pt : p->points) poly << fit(pt);
            if (p->filled) {
                painter.setPen(Qt::NoPen);
                painter.setBrush(colour);
                painter.drawPolygon(poly);
            } else if (p->closed) {
                painter.drawPolygon(poly);
            } else {
                painter.drawPolyline(poly);
            }
        } else if (const auto* c = std::get_if<Circle>(&shape.geometry)) {
            const double r = c->radius * fit.scale;
            if (c->filled) {
                painter.setPen(Qt::NoPen);
                painter.setBrush(colour);
            }
            painter.drawEllipse(fit(c->centre), r, r);
        } else if (const auto* t = std::get_if<Label>(&shape.geometry)) {
            QFont font(QStringLiteral("DejaVu Sans"));
            font.setPixelSize(std::max(1, static_cast<int>(std::lround(t->size * 96.0 / 72.0 * pixelScale))));
            painter.setFont(font);
            const QString text = QString::fromStdString(t->text);
            const QFontMetricsF metrics(font, painter.device());
            const double width = metrics.horizontalAdvance(text);
            QPointF at = fit(t->at);
            if (t->align == TextAlign::Centre) at.rx() -= width / 2;
            if (t->align == TextAlign::Right) at.rx() -= width;
            // The anchor is the middle of the text's height, as the labels of a
            // sketch sit beside what they name.
            at.ry() += (metrics.ascent() - metrics.descent()) / 2;
            painter.drawText(at, text);
        }
    }
    painter.restore();
}

}  // namespace morve
