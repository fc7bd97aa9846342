// The chart's picture against the plain reference painter, pixel for pixel.

#include "chart/support/chartdata.h"
#include "chart/support/hand.h"
#include "chart/support/picturepair.h"
#include "support/testmain.h"

class PictureTest : public QObject
{
    Q_OBJECT

private slots:
    void theScaleAskedForIsInEffect();
    void everyKindAtEverySizeAndView_data();
    void everyKindAtEverySizeAndView();
    void pointsThatShareThePicturesEnds();
    void oneAndTwoPoints();
    void manyPointsInAColumn();
    void denseHistoriesOverTheEdges_data();
    void denseHistoriesOverTheEdges();
    void aPartOfThePicture();
    void hiddenSelectedAndFourteenthChannel();
};

namespace {

constexpr double lengthSec = 3000.0;

// A view as the operator reaches it: wheel notches and drags, in pixels.
struct Gesture
{
    int notchesX;
    int dragX;
    int notchesY;
    int dragY;
};

const QVector<Gesture>& gestures()
{
    static const QVector<Gesture> table{{0, 0, 0, 0}, {-10, 0, 0, 0}, {-22, 0, 0, 0}, {-40, 0, 0, 0},
        {-85, 0, 0, 0}, {10, 0, 0, 0}, {25, 0, 0, 0}, {55, 0, 0, 0}, {-22, 17, 0, 0}, {-22, 60, 5, 31},
        {-15, 33, 10, -20}, {-22, 0, 20, 40}, {-22, 0, 64, 3}, {-22, 0, -12, 5}, {-22, 0, -30, 0},
        {0, 45, 30, 77}, {-5, 0, 0, 90}, {-30, 5, 0, -90}, {30, 2, 8, 8}, {-24, 11, 3, -7}};
    return table;
}

const QVector<QSize>& sizes()
{
    static const QVector<QSize> table{{1000, 560}, {914, 480}, {640, 480}, {333, 222}, {201, 377}, {100, 100},
        {99, 61}, {50, 50}, {41, 300}, {33, 20}, {20, 33}, {10, 10}, {7, 5}, {3, 3}, {2, 9}, {1, 1},
        {160, 31}, {1, 90}, {500, 12}, {271, 183}};
    return table;
}

// Every size meets this many of the views, and every view as many sizes; 20 are all of them.
int rounds()
{
    return qEnvironmentVariable("NELVO_PICTURE_ROUNDS", QStringLiteral("1")).toInt();
}

void make(TShowView& chart, const Gesture& gesture)
{
    const QPointF middle(chart.width() / 2, chart.height() / 2);
    Hand::doubleClick(chart, middle);
    Hand::release(chart, middle, Qt::LeftButton);
    Hand::notches(chart, gesture.notchesX);
    chart.grab();
    Hand::drag(chart, middle, middle + QPointF(gesture.dragX, 0), Qt::LeftButton);
    Hand::press(chart, middle, Qt::RightButton);
    Hand::notches(chart, gesture.notchesY);
    chart.grab();
    Hand::move(chart, middle + QPointF(0, gesture.dragY), Qt::RightButton);
    Hand::release(chart, middle + QPointF(0, gesture.dragY), Qt::RightButton);
}

} // namespace

void PictureTest::theScaleAskedForIsInEffect()
{
    const double asked = qEnvironmentVariable("QT_SCALE_FACTOR", QStringLiteral("1")).toDouble();
    PicturePair pair(100.0);
    pair.resize(QSize(200, 100));
    QCOMPARE(pair.chart.devicePixelRatioF(), asked);
    QCOMPARE(pair.chartPicture().width(), qRound(200 * asked));
}

void PictureTest::everyKindAtEverySizeAndView_data()
{
    QTest::addColumn<QString>("kind");
    const QStringList kinds = ChartData::kinds();
    for (const QString& kind : kinds) {
        QTest::newRow(qPrintable(kind)) << kind;
    }
}

void PictureTest::everyKindAtEverySizeAndView()
{
    QFETCH(QString, kind);
    PicturePair pair(lengthSec - 40.0);
    for (int channel = 0; channel < 3; ++channel) {
        pair.add(channel, ChartData::points(kind, channel, 1500 + 900 * channel, lengthSec));
    }
    for (int s = 0; s < sizes().size(); ++s) {
        pair.resize(sizes().at(s));
        pair.chart.select(s % 3);
        for (int round = 0; round < rounds(); ++round) {
            const int v = (s + round + 7 * ChartData::kinds().indexOf(kind)) % gestures().size();
            make(pair.chart, gestures().at(v));
            QVERIFY2(pair.isSame(), qPrintable(QStringLiteral("size %1, view %2").arg(s).arg(v)));
        }
    }
}

void PictureTest::pointsThatShareThePicturesEnds()
{
    PicturePair pair(1000.0);
    pair.resize(QSize(400, 300));
    pair.add(0, {{690.0, 100.0}, {700.0, 200.0}, {1000.0, 900.0}, {1010.0, 100.0}, {1020.0, 500.0}});
    pair.add(1, {{100.0, 0.0}, {200.0, 1000.0}});
    pair.add(2, {{1100.0, 0.0}, {1200.0, 1000.0}});
    QVERIFY(pair.isSame());
}

void PictureTest::oneAndTwoPoints()
{
    PicturePair pair(1000.0);
    pair.resize(QSize(400, 300));
    const QImage empty = pair.chartPicture();
    pair.add(1, {{910.0, 450.0}});
    QCOMPARE(pair.chartPicture(), empty);
    QVERIFY(pair.isSame());
    pair.add(1, {{910.0, 450.0}});
    QVERIFY(pair.isSame());
    QVERIFY(pair.chartPicture() != empty);
    pair.chart.select(1);
    QVERIFY(pair.isSame());
}

void PictureTest::manyPointsInAColumn()
{
    PicturePair pair(40000.0);
    pair.resize(QSize(300, 200));
    pair.add(0, ChartData::points(QStringLiteral("waveform"), 0, 30000, 40000.0));
    pair.add(1, ChartData::points(QStringLiteral("noise"), 1, 30000, 40000.0));
    pair.add(2, ChartData::points(QStringLiteral("slow"), 2, 30000, 40000.0));
    for (int notches = 0; notches < 60; notches += 5) {
        QVERIFY2(pair.isSame(), qPrintable(QString::number(notches)));
        Hand::notches(pair.chart, -5);
    }
}

void PictureTest::denseHistoriesOverTheEdges_data()
{
    everyKindAtEverySizeAndView_data();
}

// Many points in each pixel column, and Y so near that the lines leave the plot.
void PictureTest::denseHistoriesOverTheEdges()
{
    QFETCH(QString, kind);
    PicturePair pair(40000.0);
    pair.resize(QSize(560, 520));
    pair.add(0, ChartData::points(kind, 0, 4000, 40000.0));
    pair.add(1, ChartData::points(kind, 1, 4000, 40000.0));
    Hand::notches(pair.chart, -46);
    pair.chart.grab();
    Hand::press(pair.chart, QPointF(280, 260), Qt::RightButton);
    for (int view = 0; view < 4; ++view) {
        pair.chart.select(view % 3);
        QVERIFY2(pair.isSame(), qPrintable(QString::number(view)));
        Hand::notches(pair.chart, 14);
    }
}

// As after another window has moved away: only a part is painted.
void PictureTest::aPartOfThePicture()
{
    PicturePair pair(lengthSec);
    pair.resize(QSize(500, 400));
    for (const QString& kind :
        {QStringLiteral("waveform"), QStringLiteral("noise"), QStringLiteral("slow")}) {
        pair.add(pair.reference.series.size(), ChartData::points(kind, 1, 6000, lengthSec));
    }
    Hand::notches(pair.chart, -22);
    for (const QRect& part : {QRect(0, 0, 120, 400), QRect(77, 31, 200, 111), QRect(300, 101, 7, 90),
             QRect(480, 380, 20, 20), QRect(51, 200, 449, 1)}) {
        for (int channel = 0; channel < 3; ++channel) {
            pair.chart.select(channel);
            pair.follow();
            QCOMPARE(pair.chart.grab(part).toImage(), pair.reference.grab(part).toImage());
        }
    }
}

void PictureTest::hiddenSelectedAndFourteenthChannel()
{
    PicturePair pair(lengthSec);
    pair.resize(QSize(500, 400));
    for (int channel = 0; channel < 14; ++channel) {
        pair.add(channel, ChartData::points(QStringLiteral("waveform"), channel, 3000, lengthSec));
    }
    for (int channel = 0; channel < 14; ++channel) {
        pair.chart.select(channel);
        QVERIFY2(pair.isSame(), qPrintable(QString::number(channel)));
    }
    pair.chart.setShown(4, false);
    pair.reference.shown = {true, true, true, true, false};
    QVERIFY(pair.isSame());
    pair.chart.setShown(4, true);
    pair.reference.shown.clear();
    QVERIFY(pair.isSame());
}

NELVO_TEST_MAIN(PictureTest)
#include "picture.moc"
