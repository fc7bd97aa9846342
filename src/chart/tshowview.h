#pragma once

#include "chart/chartview.h"
#include "chart/chcoord.h"
#include "chart/lines/pointbuffer.h"
#include "chart/mousec.h"

#include <QColor>
#include <QFrame>
#include <QStringList>
#include <QVector>

/// The chart's drawing area: the histories, what part of them is shown, the painting and the mouse. The right
/// edge is now, less the offset; the time labels are ages.
class TShowView : public QFrame
{
    Q_OBJECT

public:
    explicit TShowView(QWidget* parent = nullptr);

    /// Time zero of the points' seconds, in ms since the epoch.
    void setStartTime(qint64 ms) { startTimeMs = ms; }
    /// Appends a point (elapsed seconds, deg C); a channel that is not there yet comes into being with those
    /// before it. No repaint.
    void addPoint(int channel, double sec, double degC);
    /// Shows or hides a channel and repaints.
    void setShown(int channel, bool shown);
    /// Sets a colour of the table and repaints. The table grows with black entries.
    void setColor(int channel, const QColor& color);
    /// Makes a channel the selected one, drawn wide at the next repaint.
    void select(int channel) { selected = channel; }
    /// The point at which drawing begins for a window from `sec` on: see PointBuffer::firstIndex(). 0 for a
    /// channel that is not there.
    int firstIndex(int channel, double sec) const;

    /// The colour of a channel's line; the table wraps round.
    QColor colorOf(int channel) const { return colors.at(channel % colors.size()); }
    /// False for a hidden channel only.
    bool isShown(int channel) const { return shownFlags.value(channel, true); }
    int selectedChannel() const { return selected; }
    const QVector<PointBuffer>& channels() const { return series; }
    const ChartView& chartView() const { return view; }
    const ChCoord& coordinates() const { return coord; }
    const MouseC& mouseState() const { return mouse; }

protected:
    void paintEvent(QPaintEvent* ev) override;
    void mousePressEvent(QMouseEvent* ev) override;
    void mouseMoveEvent(QMouseEvent* ev) override;
    void mouseReleaseEvent(QMouseEvent* ev) override;
    void mouseDoubleClickEvent(QMouseEvent* ev) override;
    void wheelEvent(QWheelEvent* ev) override;

private:
    double nowSec() const;
    void paintCurves(QPainter& painter) const;

    ChCoord coord; // holds the last paint's rectangles, which the mouse handling relies on
    MouseC mouse;
    qint64 startTimeMs = 0;
    QVector<QColor> colors;
    QVector<PointBuffer> series;
    QVector<bool> shownFlags;
    int selected = 0;
    ChartView view;
    QStringList unitNames;
};
