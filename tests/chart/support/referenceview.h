#pragma once

#include <QColor>
#include <QFont>
#include <QFrame>
#include <QPointF>
#include <QRectF>
#include <QStringList>
#include <QVector>

/// The chart as a plain reading of its painting rules: every segment of every channel is drawn, one by one,
/// nothing is gathered or left out. What the chart shows is compared with this, pixel for pixel.
///
/// Everything is set by hand. The pixels of points must fit an int; a point that is not finite has no
/// segments.
class ReferenceView : public QFrame
{
public:
    explicit ReferenceView(QWidget* parent = nullptr);

    double now = 0.0; ///< seconds
    double xSpan = 300.0;
    double xOffset = 0.0; ///< drag shift included
    double ySpan = 1000.0;
    double yOffset = 0.0;
    int selected = 0;
    QVector<QVector<QPointF>> series; ///< seconds and deg C
    QVector<bool> shown;
    QVector<QColor> colors;
    QStringList unitNames{
        QStringLiteral("sec"), QStringLiteral("min"), QStringLiteral("hour"), QStringLiteral("day")};
    bool withLabels = true;

protected:
    void paintEvent(QPaintEvent* ev) override;

private:
    double px(double x) const;
    double py(double y) const;
    int firstIndex(const QVector<QPointF>& points, double sec) const;
    void drawSeries(QPainter& painter) const;
    static void fittedText(QPainter& painter, double x, double y, double w, double h, int flags,
        const QString& text, QFont& font);

    double left = 0.0;
    double right = 0.0;
    double top = 0.0;
    double bottom = 0.0;
    double xMin = 0.0;
    double xMax = 0.0;
    double yMin = 0.0;
    double yMax = 0.0;
};
