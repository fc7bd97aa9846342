#pragma once

#include "chart/penshape.h"

#include <QLine>
#include <QRect>
#include <QVector>

/// Upright lines of one device pixel's width, and rectangles, in device pixels.
struct DeviceStrokes
{
    QVector<QLine> lines;
    QVector<QRect> fills;
};

/// What of one chart line is filled for certain: for each device column in sight a run of rows. Rectangles
/// are added and let the runs grow; what does not touch its column's run is kept aside.
class DeviceColumns
{
public:
    /// `sight` is all that can be seen; nothing outside of it is kept.
    explicit DeviceColumns(const QRect& sight);

    void add(const PixelSpan& columns, const PixelSpan& rows);
    /// Whether every pixel in sight of a rectangle is in its column's run.
    bool covers(const PixelSpan& columns, const PixelSpan& rows) const;
    /// The rows that the runs of all the columns share; those out of sight count as shared when the rows at
    /// the edge of sight are.
    PixelSpan sharedRows(const PixelSpan& columns) const;
    /// Lines and fills that fill just what was added, few of them.
    DeviceStrokes strokes() const;

private:
    void addTo(int column, const PixelSpan& rows);
    int addBand(int from, DeviceStrokes& strokes) const;

    PixelSpan sightColumns;
    PixelSpan sightRows;
    QVector<PixelSpan> runs; // of the columns in sight
    QVector<PixelSpan> others; // a second run in each column, which does not touch the first
    QVector<QLine> apart; // what touches neither
};
