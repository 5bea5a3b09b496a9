#pragma once
// The picture boxes and charts of module screens: a Drawing painted by the shared
// renderer, and a Chart shown as an XY scatter of Qt Charts.
#include <QWidget>

#include "draw/chart.h"
#include "draw/drawing.h"

class QChartView;

namespace morve {

class DrawingView : public QWidget {
public:
    DrawingView(QSize size, QWidget* parent = nullptr);
    void setDrawing(Drawing drawing);
    const Drawing& drawing() const { return drawing_; }

protected:
    void paintEvent(QPaintEvent*) override;
    // "Salvar desenho..." and "Imprimir desenho...": every picture of the program
    // goes to a file or to paper the way the flat slab's diagrams do.
    void contextMenuEvent(QContextMenuEvent* event) override;

private:
    Drawing drawing_;
};

class ChartBox : public QWidget {
public:
    ChartBox(QSize size, QWidget* parent = nullptr);
    void setChart(const Chart& chart);
    QChartView* view() const { return view_; }

private:
    QChartView* view_;
};

}  // namespace morve
