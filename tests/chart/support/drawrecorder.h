#pragma once

#include <QLine>
#include <QPaintDevice>
#include <QPaintEngine>
#include <QSize>
#include <QStringList>
#include <QVector>

/// A paint device that notes what is drawn on it, texts and lines, in order.
class DrawRecorder : public QPaintDevice
{
public:
    explicit DrawRecorder(const QSize& size);

    QPaintEngine* paintEngine() const override { return &engine; }

    QStringList texts() const { return engine.texts; }
    /// The rectangles of the texts' glyph runs: left end and base line.
    QVector<QPointF> places() const { return engine.places; }
    /// Lines drawn with a black pen of width 1: frame and grid.
    QVector<QLine> blackLines() const { return engine.blackLines; }

protected:
    int metric(PaintDeviceMetric metric) const override;

private:
    class Engine : public QPaintEngine
    {
    public:
        Engine();
        bool begin(QPaintDevice*) override { return true; }
        bool end() override { return true; }
        void updateState(const QPaintEngineState& state) override;
        void drawPixmap(const QRectF&, const QPixmap&, const QRectF&) override { }
        void drawLines(const QLine* lines, int count) override;
        void drawTextItem(const QPointF& place, const QTextItem& item) override;
        void drawPolygon(const QPointF*, int, PolygonDrawMode) override { }
        void drawRects(const QRectF*, int) override { }
        Type type() const override { return User; }

        QStringList texts;
        QVector<QPointF> places;
        QVector<QLine> blackLines;
        bool isBlack = false;
    };

    QSize extent;
    mutable Engine engine;
};
