// The peers' own headers use the toolkit's foreach.
#undef QT_NO_FOREACH

#include "benchmarks/chart/peers.h"

#include <QPainter>
#include <QPixmap>

#ifdef NELVO_WITH_QCUSTOMPLOT
#include <qcustomplot.h>
#endif
#ifdef NELVO_WITH_QWT
#include <qwt_plot.h>
#include <qwt_plot_canvas.h>
#include <qwt_plot_curve.h>
#include <qwt_plot_grid.h>
#endif

namespace {

QColor colorOf(int channel)
{
    return QColor::fromHsv(channel * 40, 255, 200);
}

QPen penOf(int channel)
{
    return {colorOf(channel), channel == 0 ? 3.0 : 1.0};
}

#ifdef NELVO_WITH_QCUSTOMPLOT
class CustomPlot : public Subject
{
public:
    explicit CustomPlot(const Scene& scene)
        : picture(plot.devicePixelRatioF() * scene.size)
    {
        picture.setDevicePixelRatio(plot.devicePixelRatioF());
        plot.resize(scene.size);
        plot.setAntialiasedElements(QCP::aeNone);
        plot.setNotAntialiasedElements(QCP::aeAll);
        plot.setPlottingHint(QCP::phFastPolylines);
        for (int channel = 0; channel < scene.series.size(); ++channel) {
            QVector<double> x;
            QVector<double> y;
            for (const QPointF& point : scene.series.at(channel)) {
                x.append(point.x());
                y.append(point.y());
            }
            QCPGraph* graph = plot.addGraph();
            graph->setPen(penOf(channel));
            graph->setAdaptiveSampling(true);
            graph->setData(x, y, true);
        }
        plot.xAxis->setRange(0.0, scene.lengthSec);
        plot.yAxis->setRange(0.0, 1000.0);
        plot.setViewport(QRect(QPoint(0, 0), scene.size));
    }

    void repaint() override
    {
        plot.replot(QCustomPlot::rpImmediateRefresh);
        plot.render(&picture);
    }

private:
    QCustomPlot plot;
    QPixmap picture;
};
#endif

#ifdef NELVO_WITH_QWT
class Qwt : public Subject
{
public:
    explicit Qwt(const Scene& scene)
        : picture(plot.devicePixelRatioF() * scene.size)
    {
        picture.setDevicePixelRatio(plot.devicePixelRatioF());
        plot.resize(scene.size);
        auto* canvas = qobject_cast<QwtPlotCanvas*>(plot.canvas());
        canvas->setPaintAttribute(QwtPlotCanvas::BackingStore, false);
        auto* grid = new QwtPlotGrid();
        grid->attach(&plot);
        for (int channel = 0; channel < scene.series.size(); ++channel) {
            auto* curve = new QwtPlotCurve();
            curve->setPen(penOf(channel));
            curve->setPaintAttribute(QwtPlotCurve::FilterPoints, true);
            curve->setSamples(scene.series.at(channel));
            curve->attach(&plot);
        }
        plot.setAxisScale(QwtPlot::xBottom, 0.0, scene.lengthSec);
        plot.setAxisScale(QwtPlot::yLeft, 0.0, 1000.0);
        plot.replot();
    }

    void repaint() override { plot.render(&picture); }

private:
    QwtPlot plot;
    QPixmap picture;
};
#endif

} // namespace

#ifdef NELVO_WITH_QCUSTOMPLOT
bool hasQCustomPlot()
{
    return true;
}

std::unique_ptr<Subject> makeQCustomPlot(const Scene& scene)
{
    return std::make_unique<CustomPlot>(scene);
}
#else
bool hasQCustomPlot()
{
    return false;
}

std::unique_ptr<Subject> makeQCustomPlot(const Scene&)
{
    return nullptr;
}
#endif

#ifdef NELVO_WITH_QWT
bool hasQwt()
{
    return true;
}

std::unique_ptr<Subject> makeQwt(const Scene& scene)
{
    return std::make_unique<Qwt>(scene);
}
#else
bool hasQwt()
{
    return false;
}

std::unique_ptr<Subject> makeQwt(const Scene&)
{
    return nullptr;
}
#endif
