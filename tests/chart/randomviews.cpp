// The chart's picture against the plain reference painter in views by chance: any size from 200 x 120 up, any
// place in a window, any part of it. NELVO_PICTURE_VIEWS says how many, NELVO_PICTURE_SEED which the first
// is.

#include "chart/support/chartdata.h"
#include "chart/support/hand.h"
#include "chart/support/picturepair.h"
#include "support/testmain.h"

#include <cmath>
#include <limits>
#include <random>

class RandomViewsTest : public QObject
{
    Q_OBJECT

private slots:
    void everyPixelIsThatOfEverySegment();
};

namespace {

constexpr double lengthSec = 40000.0;
constexpr QSize hostSize(1200, 800);

class Chance
{
public:
    explicit Chance(int seed)
        : engine(static_cast<unsigned>(seed))
    {
    }

    double within(double low, double high) { return low + (high - low) * (engine() / 4294967296.0); }
    int within(int low, int high)
    {
        return low + static_cast<int>(engine() % static_cast<unsigned>(high - low + 1));
    }
    bool oneIn(int count) { return within(1, count) == 1; }

private:
    std::mt19937 engine;
};

QVector<QPointF> history(Chance& chance, int channel)
{
    const QString kind = ChartData::kinds().at(chance.within(0, ChartData::kinds().size() - 1));
    const int count = static_cast<int>(std::exp(chance.within(5.0, 10.0))); // up to 22,000
    QVector<QPointF> points = ChartData::points(kind, channel, count, lengthSec);
    while (chance.oneIn(3)) {
        points[chance.within(0, count - 1)].setY(std::numeric_limits<double>::quiet_NaN());
    }
    return points;
}

void changeView(Chance& chance, TShowView& chart)
{
    const QPointF middle(chart.width() / 2, chart.height() / 2);
    Hand::notches(chart, chance.within(-55, 30));
    chart.grab();
    Hand::drag(chart, middle, middle + QPointF(chance.within(-30, 90), 0), Qt::LeftButton);
    Hand::press(chart, middle, Qt::RightButton);
    Hand::notches(chart, chance.within(-10, 40));
    chart.grab();
    const QPointF end = middle + QPointF(0, chance.within(-80, 80));
    Hand::move(chart, end, Qt::RightButton);
    Hand::release(chart, end, Qt::RightButton);
}

// A widget of its own size at its own place, alone in the window.
QImage pictureIn(QWidget& host, QWidget& widget, const QPoint& place, const QRect& part)
{
    widget.setParent(&host);
    widget.move(place);
    widget.show();
    const QImage picture = host.grab(part).toImage();
    widget.hide();
    return picture;
}

int differences(const QImage& a, const QImage& b)
{
    int count = 0;
    for (int y = 0; y < a.height(); ++y) {
        for (int x = 0; x < a.width(); ++x) {
            count += a.pixel(x, y) != b.pixel(x, y) ? 1 : 0;
        }
    }
    return count;
}

} // namespace

// All of them at display ratio 1; at most one in 10,000 may differ on scaled displays.
void RandomViewsTest::everyPixelIsThatOfEverySegment()
{
    const int count = qEnvironmentVariable("NELVO_PICTURE_VIEWS", QStringLiteral("30")).toInt();
    const int firstSeed = qEnvironmentVariable("NELVO_PICTURE_SEED", QStringLiteral("1")).toInt();
    int mostInMillion = 0;
    for (int seed = firstSeed; seed < firstSeed + count; ++seed) {
        Chance chance(seed);
        QWidget host; // outlives the widgets in it
        host.resize(hostSize);
        PicturePair pair(chance.within(0.3, 1.1) * lengthSec);
        const int channels = chance.within(1, 4);
        for (int channel = 0; channel < channels; ++channel) {
            pair.add(channel, history(chance, channel));
        }
        pair.resize(QSize(chance.within(200, 900), chance.within(120, 600)));
        pair.chart.select(chance.within(0, channels));
        if (chance.oneIn(4)) {
            pair.chart.setShown(channels - 1, false);
            pair.reference.shown = QVector<bool>(channels, true);
            pair.reference.shown.last() = false;
        }
        changeView(chance, pair.chart);
        pair.follow();

        const QPoint place(chance.within(-60, 300), chance.within(-60, 200));
        const QRect part = chance.oneIn(3) ? QRect(chance.within(0, 300), chance.within(0, 200),
                               chance.within(1, 500), chance.within(1, 400))
                                           : QRect(QPoint(0, 0), hostSize);
        const QImage ours = pictureIn(host, pair.chart, place, part);
        const QImage plain = pictureIn(host, pair.reference, place, part);
        const int differing = ours == plain ? 0 : differences(ours, plain);
        const double ratio = host.devicePixelRatioF();
        const double pixels = ratio * ratio * pair.chart.width() * pair.chart.height();
        mostInMillion = qMax(mostInMillion, qRound(1e6 * differing / pixels));
        QVERIFY2(differing <= (ratio == 1.0 ? 0.0 : 1e-4 * pixels),
            qPrintable(QStringLiteral("seed %1: %2 pixels").arg(seed).arg(differing)));
    }
    qInfo("%d views, at most %d pixels in a million differ", count, mostInMillion);
}

NELVO_TEST_MAIN(RandomViewsTest)
#include "randomviews.moc"
