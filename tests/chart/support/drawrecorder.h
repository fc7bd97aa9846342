#pragma once

#include <QLine>
#include <QPaintDevice>
#include <QPaintEngine>
#include <QSize>
#include <QStringList>
#include <QVector>

/// What was drawn, in order.
struct Drawn
{
    QStringList texts;
    QVector<QPointF> places; ///< of the texts: left end and base line
    QVector<QLine> blackLines; ///< by a black pen of width 1: frame and grid
};

/// A paint device that notes what is drawn on it.
class DrawRecorder : public QPaintDevice
{
public:
    explicit DrawRecorder(const QSize& size);

    QPaintEngine* paintEngine() const override { return &engine; }

    const Drawn& drawn() const { return engine.drawn; }

protected:
    int metric(PaintDeviceMetric metric) const override;

private:
    class Engine : public QPaintEngine
    {
    public:
        Engine();
        bool begin(QPaintDevice*) override { return true; }
        bool end() override { return true; }
        void updateState(const QPaintEngineState& update) override;
        void drawPixmap(const QRectF&, const QPixmap&, const QRectF&) override { }
        void drawLines(const QLine* lines, int count) override;
        void drawTextItem(const QPointF& place, const QTextItem& item) override;
        void drawPolygon(const QPointF*, int, PolygonDrawMode) override { }
        void drawRects(const QRectF*, int) override { }
        Type type() const override { return User; }

        Drawn drawn;
        bool isBlack = false;
    };

    QSize extent;
    mutable Engine engine;
};
