#pragma once

#include <QPointF>
#include <QSize>
#include <QString>
#include <QVector>

#include <memory>

/// One way of drawing nine histories, measured by whole repaints into a picture.
class Subject
{
public:
    Subject() = default;
    virtual ~Subject() = default;
    Subject(const Subject&) = delete;
    Subject& operator=(const Subject&) = delete;

    /// Draws everything once: lines, grid and labels.
    virtual void repaint() = 0;
};

/// What is drawn: everything visible, channel 0 selected.
struct Scene
{
    QVector<QVector<QPointF>> series; ///< seconds and deg C
    double lengthSec = 0.0;
    QSize size{1000, 560};
};

constexpr int channelCount = 9;
constexpr int fullHistory = 200000; // points a channel

/// Nine histories of `count` points: see ChartData::points().
Scene makeScene(const QString& kind, int count);

/// The station's chart, every segment drawn by itself, and what is installed of the peers (else null).
std::unique_ptr<Subject> makeOurs(const Scene& scene);
std::unique_ptr<Subject> makeEverySegment(const Scene& scene);
std::unique_ptr<Subject> makeQCustomPlot(const Scene& scene);
std::unique_ptr<Subject> makeQwt(const Scene& scene);
