#pragma once

#include "chart/axisticks.h"
#include "chart/plotmapping.h"

#include <QColor>
#include <QFont>
#include <QObject>
#include <QRectF>
#include <QString>
#include <QVariantList>

class QPainter;

/// The plotting helper: turns data values into pixel positions and back, between a pixel rectangle and a data
/// rectangle, and draws text that fits a box. x pixels grow to the right, y pixels downwards.
class ChCoord : public QObject
{
    Q_OBJECT

public:
    explicit ChCoord(QObject* parent = nullptr);

    void setPixelRect(double left, double top, double right, double bottom);
    void setDataRect(double xMin, double yMin, double xMax, double yMax);
    const PlotMapping& mapping() const { return map; }

    void setSavedRect(double xMin, double yMin, double xMax, double yMax);
    void setSavedX(double xMin, double xMax);
    void setSavedY(double yMin, double yMax);
    /// Copies the saved rectangle, or one pair of it, into the data rectangle.
    void restoreRect();
    void restoreX();
    void restoreY();

    double pixelX(double x) const { return map.pixelX(x); }
    double pixelY(double y) const { return map.pixelY(y); }
    double dataX(double pixel) const { return map.dataX(pixel); }
    double dataY(double pixel) const { return map.dataY(pixel); }
    double pixelLengthX(double length) const { return map.pixelsPerX() * length; }
    double pixelLengthY(double length) const { return map.pixelsPerY() * length; }
    double dataLengthX(double pixels) const { return map.xPerPixel() * pixels; }
    double dataLengthY(double pixels) const { return map.yPerPixel() * pixels; }
    /// Limited to the data rectangle, whichever end of it is the larger.
    double dataXClamped(double pixel) const;
    double dataYClamped(double pixel) const;
    /// The pixel row of `value` on a scale from `a` (bottom) to `b` (top).
    double pixelYIn(double value, double a, double b) const;

    /// The data rectangle's y range in ascending order, cut into `n` parts.
    AxisTicks::OrderedRange orderedYRange(int n) const;
    /// See AxisTicks::niceStep().
    static AxisTicks::FirstTick niceStep(double a, double b, int n) { return AxisTicks::niceStep(a, b, n); }

    /// Whether fitted text is scaled to its box.
    enum FitMode { AsIs = 0, FitBox = 1 };

    /// Draws `text` in `box`, aligned by `flags` (Qt::Alignment and Qt::TextFlag), in the largest whole point
    /// size (FitBox) with which it fits the box. A box so small that the size would be 0 stays empty. The
    /// painter measures with the font it has; afterwards `font` and the painter have the point size that
    /// `font` came with.
    static void drawFitted(
        QPainter& painter, const QRectF& box, int flags, FitMode mode, const QString& text, QFont& font);
    /// The rectangle that drawFitted() would cover; nothing is drawn. Null when it would draw nothing.
    static QRectF measureFitted(
        QPainter& painter, const QRectF& box, int flags, FitMode mode, const QString& text, QFont& font);

    /// Settings that the time chart has no use for.
    QColor colors[4];

private:
    PlotMapping map;
    PlotMapping saved; // its data rectangle only
    QVariantList unused; // stays empty here
};
