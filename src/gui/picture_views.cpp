#include "gui/picture_views.h"

#include <QChart>
#include <QChartView>
#include <QContextMenuEvent>
#include <QMenu>
#include <QLineSeries>
#include <QPainter>
#include <QScatterSeries>
#include <QVBoxLayout>
#include <QValueAxis>

#include <cmath>
#include <tuple>

#include "gui/gui_prompter.h"
#include "gui/save_picture_dialog.h"
#include "render/drawing_painter.h"

namespace morve {

namespace {

// Ticks at round values (1, 2 or 5 times a power of ten, about five of them,
// counted from zero) over the module's own range, so the labels read as numbers
// a user would write rather than fractions of the range.
void roundTicks(QValueAxis* axis, double low, double high) {
    const double span = high - low;
    if (!(span > 0) || !std::isfinite(span)) return;
    const double rough = span / 5;
    const double power = std::pow(10.0, std::floor(std::log10(rough)));
    double step = power;
    for (double m : {2.0, 5.0, 10.0})
        if (rough > step * 1.5) step = power * m;
    axis->setTickType(QValueAxis::TicksDynamic);
    axis->setTickAnchor(0);
    axis->setTickInterval(step);
    axis->setLabelFormat(QStringLiteral("%g"));
}

}  // namespace

DrawingView::DrawingView(QSize size, QWidget* parent) : QWidget(parent) {
    setMinimumSize(size.isEmpty() ? QSize(200, 200) : size);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    setAutoFillBackground(false);
}

void DrawingView::setDrawing(Drawing drawing) {
    drawing_ = std::move(drawing);
    update();
}

void DrawingView::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.fillRect(rect(), Qt::white);
    painter.setPen(QColor(160, 160, 160));
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
    paintDrawing(painter, drawing_, QRectF(rect()).adjusted(4, 4, -4, -4));
}

void DrawingView::contextMenuEvent(QContextMenuEvent* event) {
    if (drawing_.empty()) return;
    QMenu menu(this);
    QAction* save = menu.addAction(QStringLiteral("Salvar desenho..."));
    QAction* print = menu.addAction(QStringLiteral("Imprimir desenho..."));
    QAction* chosen = menu.exec(event->globalPos());
    if (chosen == save) {
        const std::string failed = savePicture(this, drawing_, size());
        if (!failed.empty()) guiPrompter().warn(failed);
    } else if (chosen == print) {
        printPicture(this, drawing_);
    }
}

ChartBox::ChartBox(QSize size, QWidget* parent) : QWidget(parent), view_(new QChartView(this)) {
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(view_);
    view_->setRenderHint(QPainter::Antialiasing);
    setMinimumSize(size.isEmpty() ? QSize(320, 260) : size);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    setChart(Chart{});
}

void ChartBox::setChart(const Chart& data) {
    auto* chart = new QChart();
    chart->setTitle(QString::fromStdString(data.title));
    chart->legend()->setVisible(data.series.size() > 1);
    auto* x = new QValueAxis();
    auto* y = new QValueAxis();
    x->setTitleText(QString::fromStdString(data.xTitle));
    y->setTitleText(QString::fromStdString(data.yTitle));
    for (auto [axis, low, high] : {std::tuple{x, data.xMin, data.xMax}, std::tuple{y, data.yMin, data.yMax}}) {
        axis->setRange(low, high);
        roundTicks(axis, low, high);
    }
    chart->addAxis(x, Qt::AlignBottom);
    chart->addAxis(y, Qt::AlignLeft);
    for (const ChartSeries& s : data.series) {
        QXYSeries* series = nullptr;
        if (s.scatter) {
            auto* scatter = new QScatterSeries();
            scatter->setMarkerSize(s.markerSize);
            series = scatter;
        } else {
            series = new QLineSeries();
        }
        series->setName(QString::fromStdString(s.name));
        series->setColor(QColor(s.colour.r, s.colour.g, s.colour.b));
        for (const Point& p : s.points) series->append(p.x, p.y);
        chart->addSeries(series);
        series->attachAxis(x);
        series->attachAxis(y);
    }
    QChart* old = view_->chart();
    view_->setChart(chart);
    delete old;
}

}  // namespace morve
