#include "benchmarks/chart/subjects.h"

#include "chart/support/chartdata.h"
#include "chart/support/hand.h"
#include "chart/support/picturepair.h"

#include <QPixmap>

namespace {

// Wheel notches until the whole history is in sight.
void showAll(TShowView& chart, double lengthSec)
{
    while (chart.chartView().xSpan < lengthSec) {
        Hand::wheel(chart, -120);
    }
}

class Ours : public Subject
{
public:
    explicit Ours(const Scene& scene)
        : pair(scene.lengthSec)
        , picture(pair.chart.devicePixelRatioF() * scene.size)
    {
        picture.setDevicePixelRatio(pair.chart.devicePixelRatioF());
        pair.resize(scene.size);
        for (int channel = 0; channel < scene.series.size(); ++channel) {
            for (const QPointF& point : scene.series.at(channel)) {
                pair.chart.addPoint(channel, point.x(), point.y());
            }
        }
        showAll(pair.chart, scene.lengthSec);
    }

    void repaint() override { pair.chart.render(&picture); }

private:
    PicturePair pair;
    QPixmap picture;
};

class EverySegment : public Subject
{
public:
    explicit EverySegment(const Scene& scene)
        : pair(scene.lengthSec)
        , picture(pair.chart.devicePixelRatioF() * scene.size)
    {
        picture.setDevicePixelRatio(pair.chart.devicePixelRatioF());
        pair.resize(scene.size);
        showAll(pair.chart, scene.lengthSec);
        pair.follow();
        pair.reference.series = scene.series;
    }

    void repaint() override { pair.reference.render(&picture); }

private:
    PicturePair pair;
    QPixmap picture;
};

} // namespace

Scene makeScene(const QString& kind, int count)
{
    Scene scene;
    scene.lengthSec = count * 1.0; // one record a second
    for (int channel = 0; channel < channelCount; ++channel) {
        scene.series.append(ChartData::points(kind, channel, count, scene.lengthSec));
    }
    return scene;
}

std::unique_ptr<Subject> makeOurs(const Scene& scene)
{
    return std::make_unique<Ours>(scene);
}

std::unique_ptr<Subject> makeEverySegment(const Scene& scene)
{
    return std::make_unique<EverySegment>(scene);
}
