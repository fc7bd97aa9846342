// A curve on painters of every kind, against every segment drawn by itself on the same painter.

#include "chart/lines/curvepainter.h"
#include "chart/support/chartdata.h"
#include "support/testmain.h"

#include <QImage>
#include <QPainter>
#include <QPicture>

#include <functional>
#include <limits>

class CurvePainterTest : public QObject
{
    Q_OBJECT

private slots:
    void aCurveStandsWhereItBelongsOnAnyPainter_data();
    void aCurveStandsWhereItBelongsOnAnyPainter();
    void theDegreesKeepTheirPlaceOnAStretchedPainter();
    void wideLinesNearTheDevicesEdgeAreThoseOfEverySegment();
    void farEndsKeepTheSlope_data();
    void farEndsKeepTheSlope();
    void whatHasNoPlaceIsHarmless();
};

namespace {

// The plot from (60, 40) to (460, 260), over the last `xSpan` of 40000 seconds and 300 to 700 deg C.
PlotMapping mapping(double xSpan)
{
    PlotMapping map;
    map.left = 60.0;
    map.right = 460.0;
    map.top = 40.0;
    map.bottom = 260.0;
    map.xMin = 40000.0 - xSpan;
    map.xMax = 40000.0;
    map.yMin = 300.0;
    map.yMax = 700.0;
    return map;
}

using Paint = std::function<void(QPainter&)>;

Paint curve(const PointBuffer& points, const PlotMapping& map, double width)
{
    return [=](QPainter& painter) { paintCurve(painter, points, map, QPen(Qt::black, width)); };
}

// The plain way.
Paint everySegment(const PointBuffer& points, const PlotMapping& map, double width)
{
    return [=](QPainter& painter) {
        painter.setPen(QPen(Qt::black, width));
        const int first = points.firstIndex(map.xMin);
        const int last = points.lastIndex(first, map.xMax);
        for (int i = first; i < last; ++i) {
            const TPoint& from = points.at(i);
            const TPoint& to = points.at(i + 1);
            painter.drawLine(pixelOf(map.pixelX(from.sec)), pixelOf(map.pixelY(from.degC)),
                pixelOf(map.pixelX(to.sec)), pixelOf(map.pixelY(to.degC)));
        }
    };
}

PointBuffer history(const QString& kind)
{
    PointBuffer points;
    for (const QPointF& place : ChartData::points(kind, 1, 10000, 40000.0)) {
        points.append({place.x(), place.y()});
    }
    return points;
}

PointBuffer history(const QVector<QPointF>& places)
{
    PointBuffer points;
    for (const QPointF& place : places) {
        points.append({place.x(), place.y()});
    }
    return points;
}

// What is painted through `transform`, clipped to the plot: true where a pixel is not white.
QVector<bool> ink(const QTransform& transform, const Paint& paint)
{
    QImage image(1000, 700, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.setTransform(transform);
    painter.setClipRect(QRect(QPoint(59, 39), QPoint(460, 260)));
    paint(painter);
    QVector<bool> found(image.width() * image.height());
    bool* isInk = found.data();
    for (int y = 0; y < image.height(); ++y) {
        const QRgb* row = reinterpret_cast<const QRgb*>(image.constScanLine(y));
        for (int x = 0; x < image.width(); ++x) {
            *isInk++ = row[x] != qRgb(255, 255, 255);
        }
    }
    return found;
}

int differences(const QVector<bool>& a, const QVector<bool>& b)
{
    const bool* first = a.constData();
    const bool* second = b.constData();
    int count = 0;
    for (int i = 0; i < a.size(); ++i) {
        count += first[i] != second[i] ? 1 : 0;
    }
    return count;
}

} // namespace

void CurvePainterTest::aCurveStandsWhereItBelongsOnAnyPainter_data()
{
    QTest::addColumn<QTransform>("transform");
    QTest::newRow("as it is") << QTransform();
    QTest::newRow("moved by a fraction") << QTransform::fromTranslate(3.5, 7.25);
    QTest::newRow("stretched upwards") << QTransform::fromScale(1.0, 2.0);
    QTest::newRow("stretched sideways") << QTransform::fromScale(2.0, 1.0);
    QTest::newRow("enlarged") << QTransform::fromScale(1.75, 1.75);
    QTest::newRow("reduced") << QTransform::fromScale(0.4, 0.4);
    QTest::newRow("narrowed and stretched") << QTransform::fromScale(0.25, 4.0);
    QTest::newRow("flattened and widened") << QTransform::fromScale(4.0, 0.25);
    QTest::newRow("mirrored sideways") << QTransform(-1, 0, 0, 1, 640, 0);
    QTest::newRow("mirrored upside down") << QTransform(1, 0, 0, -1, 0, 400);
    QTest::newRow("turned") << QTransform(0, 1, -1, 0, 400, 0);
    QTest::newRow("slanting") << QTransform(1, 0.2, -0.2, 1, 100, 0);
}

// All but a few of the pixels that the plain way fills, on the painter itself and by way of a record.
void CurvePainterTest::aCurveStandsWhereItBelongsOnAnyPainter()
{
    QFETCH(QTransform, transform);
    for (const QString& kind : {QStringLiteral("waveform"), QStringLiteral("noise")}) {
        const PointBuffer points = history(kind);
        for (const double xSpan : {300.0, 3000.0, 30000.0}) {
            for (const double width : {1.0, 3.0}) {
                const PlotMapping map = mapping(xSpan);
                const QVector<bool> plain = ink(transform, everySegment(points, map, width));
                const int filled = plain.count(true);
                const int differing = differences(ink(transform, curve(points, map, width)), plain);
                QPicture record;
                QPainter recorder(&record);
                curve(points, map, width)(recorder);
                recorder.end();
                const Paint replay = [&](QPainter& painter) { painter.drawPicture(0, 0, record); };
                const int replayed = differences(ink(transform, replay), plain);
                QVERIFY2(20 * qMax(differing, replayed) < filled,
                    qPrintable(QStringLiteral("%1 over %2 s, %3 wide: %4 and %5 of %6 pixels")
                                   .arg(kind)
                                   .arg(xSpan)
                                   .arg(width)
                                   .arg(differing)
                                   .arg(replayed)
                                   .arg(filled)));
            }
        }
    }
}

void CurvePainterTest::theDegreesKeepTheirPlaceOnAStretchedPainter()
{
    // 450 deg C and a rise to 500, many points a column.
    PointBuffer points;
    for (int i = 0; i < 4000; ++i) {
        points.append({39700.0 + 0.075 * i, i < 2000 ? 450.0 : 500.0});
    }
    const QVector<bool> found = ink(QTransform::fromScale(1.0, 2.0), curve(points, mapping(300.0), 1.0));
    const auto isInk = [&](int x, double degC) {
        const int row = 2 * static_cast<int>(mapping(300.0).row(degC));
        return found.at(1000 * row + x) || found.at(1000 * (row + 1) + x);
    };
    for (int x = 70; x < 250; ++x) {
        QVERIFY(isInk(x, 450.0));
        QVERIFY(!isInk(x, 500.0) && !isInk(x, 600.0) && !isInk(x, 400.0));
        QVERIFY(isInk(x + 200, 500.0));
    }
}

void CurvePainterTest::wideLinesNearTheDevicesEdgeAreThoseOfEverySegment()
{
    for (const QString& kind :
        {QStringLiteral("waveform"), QStringLiteral("noise"), QStringLiteral("slow")}) {
        const PointBuffer points = history(kind);
        const PlotMapping map = mapping(8000.0);
        for (int beside = -3; beside < 12; ++beside) {
            for (const QTransform& near : {QTransform::fromTranslate(beside - 60.0, 0.0),
                     QTransform::fromTranslate(0.0, beside - 100.0)}) {
                QCOMPARE(differences(
                             ink(near, curve(points, map, 3.0)), ink(near, everySegment(points, map, 3.0))),
                    0);
            }
        }
    }
}

void CurvePainterTest::farEndsKeepTheSlope_data()
{
    QTest::addColumn<double>("far");
    for (const double far : {1e4, 1e9, 1e10, 1e12, 1e14}) {
        QTest::addRow("%g pixels away", far) << far;
    }
}

// Through the middle of the plot, one pixel to the right for each one upwards.
void CurvePainterTest::farEndsKeepTheSlope()
{
    QFETCH(double, far);
    const PlotMapping map = mapping(400.0);
    const double middleSec = map.dataX(260.0);
    const double middleDegC = map.dataY(150.0);
    const PointBuffer points
        = history(QVector<QPointF>{{middleSec - far * map.xPerPixel(), middleDegC - far * map.yPerPixel()},
            {middleSec + far * map.xPerPixel(), middleDegC + far * map.yPerPixel()}});
    for (const double width : {1.0, 3.0}) {
        for (const double scale : {1.0, 1.25, 2.0}) {
            const QVector<bool> found = ink(QTransform::fromScale(scale, scale), curve(points, map, width));
            QVERIFY(found.count(true) > 200);
            const bool* isInk = found.constData();
            for (int i = 0; i < found.size(); ++i) {
                if (!isInk[i]) {
                    continue;
                }
                const double fromMiddle = (i % 1000 / scale - 260.0) + (i / 1000 / scale - 150.0);
                QVERIFY(std::abs(fromMiddle) < 1.5 * width + 2.0);
            }
        }
    }
}

void CurvePainterTest::whatHasNoPlaceIsHarmless()
{
    const double nan = std::numeric_limits<double>::quiet_NaN();
    const double infinite = std::numeric_limits<double>::infinity();
    const double huge = std::numeric_limits<double>::max();
    const PointBuffer points
        = history(QVector<QPointF>{{39900.0, 500.0}, {39910.0, nan}, {39920.0, huge}, {39920.1, -huge},
            {39930.0, 500.0}, {39935.0, -infinite}, {39940.0, 400.0}, {39950.0, 400.0}, {huge, huge}});
    for (const double width : {1.0, 3.0}) {
        for (const double scale : {0.5, 1.0, 1.25, 2.0}) {
            const QTransform transform = QTransform::fromScale(scale, scale);
            const QVector<bool> found = ink(transform, curve(points, mapping(100.0), width));
            const auto isInk = [&](double x, double y) {
                const int index = 1000 * static_cast<int>(scale * y) + static_cast<int>(scale * x);
                return found.at(index) || found.at(index + 1000);
            };
            // The finite stretch at the end, and nothing between the first point and the third.
            QVERIFY(isInk(250.0, mapping(100.0).row(400.0)));
            QVERIFY(!isInk(80.0, 150.0) && !isInk(130.0, 100.0));
            QCOMPARE(ink(transform, curve(PointBuffer(), mapping(100.0), width)).count(true), 0);
        }
    }
}

NELVO_TEST_MAIN(CurvePainterTest)
#include "curvepainter.moc"
