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

constexpr double kSmallestDot = 2.5;  // radius in screen pixels

QColor qcolour(Colour c) { return QColor(c.r, c.g, c.b); }

struct Fit {
    double scale = 1, dx = 0, dy = 0;
    QPointF operator()(Point p) const { return {dx + p.x * scale, dy + p.y * scale}; }
};

Fit fitRegion(double left, double top, double right, double bottom, const QRectF& target) {
    const double w = right - left, h = bottom - top;
    Fit f;
    if (!(w > 0) || !(h > 0) || !std::isfinite(w) || !std::isfinite(h)) return f;
    f.scale = std::min(target.width() / w, target.height() / h);
    // Centre the region in the rectangle.
    f.dx = target.left() + (target.width() - w * f.scale) / 2 - left * f.scale;
    f.dy = target.top() + (target.height() - h * f.scale) / 2 - top * f.scale;
    return f;
}

QFont labelFont(const Label& t, double pixelScale) {
    QFont font(QStringLiteral("DejaVu Sans"));
    font.setPixelSize(std::max(1, static_cast<int>(std::lround(t.size * 96.0 / 72.0 * pixelScale))));
    return font;
}

// The extent of a label in device units, about its anchor.
QRectF labelBox(const Label& t, double pixelScale, const QPaintDevice* device) {
    const QFontMetricsF metrics(labelFont(t, pixelScale), device);
    const double width = metrics.horizontalAdvance(QString::fromStdString(t.text));
    const double left = t.align == TextAlign::Left ? 0 : t.align == TextAlign::Centre ? -width / 2 : -width;
    return QRectF(left, -metrics.height() / 2, width, metrics.height());
}

// The region to show: the drawing's own, or the bounds of its shapes. Labels keep
// their size in pixels whatever the scale, so their room in drawing units is
// found with the scale it gives, twice over to settle.
Fit fitDrawing(const Drawing& d, const QRectF& target, double pixelScale, const QPaintDevice* device) {
    if (!d.fitContent) return fitRegion(d.left, d.top, d.right, d.bottom, target);
    double l = INFINITY, t = INFINITY, r = -INFINITY, b = -INFINITY;
    auto take = [&](Point p, double reach = 0) {
        l = std::min(l, p.x - reach);
        r = std::max(r, p.x + reach);
        t = std::min(t, p.y - reach);
        b = std::max(b, p.y + reach);
    };
    for (const Shape& s : d.shapes) {
        if (const auto* line = std::get_if<Line>(&s.geometry)) {
            take(line->from);
            take(line->to);
        } else if (const auto* p = std::get_if<Polyline>(&s.geometry)) {
            for (const Point& pt : p->points) take(pt);
        } else if (const auto* c = std::get_if<Circle>(&s.geometry)) {
            take(c->centre, c->radius);
        }
    }
    if (!(l < r) || !(t < b)) return fitRegion(d.left, d.top, d.right, d.bottom, target);
    const double margin = 6 * pixelScale;  // device units kept clear at the edges
    const QRectF inner = target.adjusted(margin, margin, -margin, -margin);
    Fit fit = fitRegion(l, t, r, b, inner);
    for (int round = 0; round < 2; ++round) {
        double L = l, T = t, R = r, B = b;
        for (const Shape& s : d.shapes)
            if (const auto* label = std::get_if<Label>(&s.geometry)) {
                const QRectF box = labelBox(*label, pixelScale, device);
                L = std::min(L, label->at.x + box.left() / fit.scale);
                R = std::max(R, label->at.x + box.right() / fit.scale);
                T = std::min(T, label->at.y + box.top() / fit.scale);
                B = std::max(B, label->at.y + box.bottom() / fit.scale);
            }
        fit = fitRegion(L, T, R, B, inner);
    }
    return fit;
}

}  // namespace

void paintDrawing(QPainter& painter, const Drawing& drawing, const QRectF& target, double pixelScale) {
    if (drawing.empty()) return;
    const Fit fit = fitDrawing(drawing, target, pixelScale, painter.device());
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
            double r = c->radius * fit.scale;
            if (c->filled) {
                // A bar drawn to scale, but never smaller than a visible dot.
                r = std::max(r, kSmallestDot * pixelScale);
                painter.setPen(Qt::NoPen);
                painter.setBrush(colour);
            }
            painter.drawEllipse(fit(c->centre), r, r);
        } else if (const auto* t = std::get_if<Label>(&shape.geometry)) {
            const QFont font = labelFont(*t, pixelScale);
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
            // A label near the edge of the picture (a dimension on the left of a
            // floor) moves in rather than losing its first letters to the edge.
            at.setX(std::clamp(at.x(), target.left(), std::max(target.left(), target.right() - width)));
            at.setY(std::clamp(at.y(), target.top() + metrics.ascent(),
                               std::max(target.top() + metrics.ascent(), target.bottom() - metrics.descent())));
            painter.drawText(at, text);
        }
    }
    painter.restore();
}

}  // namespace morve
