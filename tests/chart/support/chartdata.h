#pragma once

#include <QPointF>
#include <QString>
#include <QStringList>
#include <QVector>

/// Histories of every kind, for comparing pictures and for measuring. The same arguments give the same
/// points.
namespace ChartData {

/// The kinds that points() knows.
QStringList kinds();

/// `count` points of `kind` for `channel`, spread over 0 to `lengthSec`: elapsed seconds and deg C.
QVector<QPointF> points(const QString& kind, int channel, int count, double lengthSec);

} // namespace ChartData
