#pragma once

#include "growthcheck/comparison/comparison.h"
#include "growthcheck/rehearsal/timeline.h"

#include <QPair>
#include <QVector>

namespace GrowthCheck {

/// What the page draws over time: shutters as bars, temperatures as curves. Times are in ms since Run was
/// pressed, temperatures in deg C.
struct Picture
{
    /// From when to when.
    using Span = QPair<qint64, qint64>;

    struct Point
    {
        qint64 ms = 0;
        double degC = 0.0;
    };

    struct Curve
    {
        enum class Kind {
            Planned, ///< set points, each holds until the next one
            Sent, ///< those of a run
            Measured, ///< once a minute
        };
        int channel = 0;
        Kind kind = Kind::Planned;
        QVector<Point> points;
    };

    struct Mark
    {
        qint64 ms = 0;
        int row = 0;
        int pass = 1;
        int times = 1;
        QString group;
        bool isHold = false;
    };

    qint64 endMs = 0;
    bool isCut = false; ///< not all that is played is in it
    bool isCompared = false;
    QVector<QVector<Span>> planned; ///< when each shutter is open
    QVector<QVector<Span>> sent; ///< the same of a run
    QVector<Curve> curves;
    QVector<Mark> steps; ///< their starts
    QVector<Span> folded; ///< passes that are not drawn one by one
};

Picture pictureOf(const Timeline& timeline);
Picture pictureOf(const Comparison& comparison);

} // namespace GrowthCheck
