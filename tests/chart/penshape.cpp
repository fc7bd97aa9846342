#include "chart/penshape.h"
#include "support/testmain.h"

#include <QImage>
#include <QPainter>

#include <random>

class PenShapeTest : public QObject
{
    Q_OBJECT

private slots:
    void theToolkitDrawsThatRectangle_data();
    void theToolkitDrawsThatRectangle();
    void anEdgeOnAPixelsCentreIsCertainOnlyFarFromTheOrigin();
    void whatIsOutOfSightNeedNotBeCertain();
    void narrowerThanAPixelNothingIsCertain();
    void rowsWithinAreThoseWhoseDotsLieWithin();
    void dotsAreWiderOnScaledDisplaysOnly();
    void placesFarAwayStayNumbers();
};

namespace {

constexpr QSize widgetSize(210, 150);

// The pixels drawn on a white picture, all of them.
QRect drawnPixels(const QImage& picture, int& count)
{
    QRect drawn;
    count = 0;
    for (int y = 0; y < picture.height(); ++y) {
        const QRgb* row = reinterpret_cast<const QRgb*>(picture.constScanLine(y));
        for (int x = 0; x < picture.width(); ++x) {
            if (row[x] != qRgb(255, 255, 255)) {
                drawn |= QRect(x, y, 1, 1);
                ++count;
            }
        }
    }
    return drawn;
}

QRect rectangle(const PixelSpan& columns, const PixelSpan& rows)
{
    return QRect(QPoint(columns.first, rows.first), QPoint(columns.last, rows.last));
}

} // namespace

void PenShapeTest::theToolkitDrawsThatRectangle_data()
{
    QTest::addColumn<double>("scale");
    QTest::addColumn<int>("width");
    for (const double scale : {1.0, 1.1, 1.25, 1.5, 1.75, 2.0, 3.0}) {
        for (const int width : {1, 3}) {
            QTest::addRow("%g, %d wide", scale, width) << scale << width;
        }
    }
}

void PenShapeTest::theToolkitDrawsThatRectangle()
{
    QFETCH(double, scale);
    QFETCH(int, width);
    std::mt19937 random(11);
    const auto within
        = [&](int low, int high) { return low + static_cast<int>(random() % (high - low + 1)); };
    int compared = 0;
    for (int i = 0; i < 300; ++i) {
        const QPoint origin = i % 2 == 0 ? QPoint(0, 0) : QPoint(within(0, 30), within(0, 30));
        QImage picture(scale * widgetSize + QSize(100, 100), QImage::Format_RGB32);
        picture.fill(Qt::white);
        QPainter painter(&picture);
        painter.scale(scale, scale);
        painter.translate(origin);
        const QTransform device = painter.deviceTransform();
        const PenShape pen(width, device.m11(), device.dx(), device.dy());
        const QRect clip(QPoint(41, 14), QPoint(197, 136));
        const QRect sight = pen.area(41, 14, 197, 136);
        painter.setClipRect(clip);
        painter.setPen(QPen(Qt::black, width));

        // Within the clip, over its edges, and of lengths at which rounding errors grow.
        const int x = i % 5 == 0 ? within(38, 44) : within(35, 202);
        const int top = i % 4 == 0 ? -within(0, 2000000) : within(0, 150);
        const int bottom = i % 3 == 0 ? top : std::max(top, i % 7 == 0 ? within(0, 2000000) : within(0, 170));
        painter.drawLine(x, top, x, bottom);
        painter.end();

        const PixelSpan rowsInSight{sight.top(), sight.bottom()};
        if (!pen.isCertainColumn(x, {sight.left(), sight.right()}) || !pen.isCertainRow(top, rowsInSight)
            || !pen.isCertainRow(bottom, rowsInSight)) {
            continue;
        }
        ++compared;
        const PixelSpan columns = top == bottom ? pen.dotColumns(x) : pen.columns(x);
        const QRectF seen = device.mapRect(QRectF(clip));
        const QRect expected = rectangle(columns, pen.rows(top, bottom))
            & QRect(QPoint(qRound(seen.left()), qRound(seen.top())),
                QPoint(qRound(seen.right()) - 1, qRound(seen.bottom()) - 1));
        int count = 0;
        const QRect drawn = drawnPixels(picture, count);
        QVERIFY2(drawn == expected || (drawn.isEmpty() && expected.isEmpty()),
            qPrintable(QStringLiteral("x %1, rows %2 to %3").arg(x).arg(top).arg(bottom)));
        QCOMPARE(count, expected.isEmpty() ? 0 : expected.width() * expected.height());
    }
    QVERIFY2(compared > 100, qPrintable(QString::number(compared)));
}

void PenShapeTest::anEdgeOnAPixelsCentreIsCertainOnlyFarFromTheOrigin()
{
    const PixelSpan everything{0, 4000};
    const PenShape wide(3, 1.0);
    QVERIFY(!wide.isCertainColumn(5.0, everything));
    QVERIFY(!wide.isCertainRow(20.0, everything));
    QVERIFY(wide.isCertainColumn(100.0, everything));
    QVERIFY(wide.isCertainRow(100.0, everything));
    // Elsewhere on the device.
    QVERIFY(PenShape(3, 1.0, 300.0, 300.0).isCertainColumn(5.0, everything));
    // No edge of these lies on a centre.
    for (const double scale : {1.25, 1.5, 2.0}) {
        QVERIFY(PenShape(1, scale).isCertainColumn(5.0, everything));
        QVERIFY(PenShape(3, scale).isCertainRow(5.0, everything));
    }
    // 1.4 x 3 - 0.7 lies on one, and 1.4 is no binary number.
    QVERIFY(!PenShape(1, 1.4, 400.0).isCertainColumn(3.0, everything));
    QVERIFY(PenShape(1, 1.4, 400.0).isCertainColumn(0.0, everything));
    QVERIFY(PenShape(1, 1.0).isCertainColumn(0.0, everything));
}

void PenShapeTest::whatIsOutOfSightNeedNotBeCertain()
{
    const PenShape wide(3, 1.0);
    QVERIFY(!wide.isCertainRow(10.0, {0, 500}));
    QVERIFY(wide.isCertainRow(10.0, {28, 500}));
    QVERIFY(wide.isCertainRow(-1e9, {0, 500}));
    QVERIFY(wide.isCertainRow(1e9, {0, 500}));
}

void PenShapeTest::narrowerThanAPixelNothingIsCertain()
{
    const PenShape pen(1, 0.5);
    QVERIFY(!pen.isCertainColumn(100.0, {0, 500}));
    QVERIFY(!pen.isCertainRow(100.0, {0, 500}));
}

void PenShapeTest::rowsWithinAreThoseWhoseDotsLieWithin()
{
    for (const double scale : {1.0, 1.1, 1.25, 1.4, 1.5, 1.75, 2.0, 3.0}) {
        for (const int width : {1, 3}) {
            const PenShape pen(width, scale, 0.0, 7.25);
            for (int first = 100; first < 130; ++first) {
                const PixelSpan rows{first, first + 41};
                const PixelSpan within = pen.rowsWithin(rows);
                QVERIFY(!within.isEmpty());
                for (int row = within.first; row <= within.last; ++row) {
                    QVERIFY(rows.contains(pen.rows(row, row)));
                }
                // At most the rows at the ends are left out, where an edge may lie on a pixel's centre.
                QVERIFY(!rows.contains(pen.rows(within.first - 2, within.first - 2)));
                QVERIFY(!rows.contains(pen.rows(within.last + 2, within.last + 2)));
            }
        }
    }
}

void PenShapeTest::dotsAreWiderOnScaledDisplaysOnly()
{
    QVERIFY(!PenShape(1, 1.0).hasWideDots());
    QVERIFY(!PenShape(3, 1.0).hasWideDots());
    QVERIFY(PenShape(1, 1.25).hasWideDots());
    const PenShape pen(1, 2.0);
    QCOMPARE(rectangle(pen.columns(100.0), pen.rows(50.0, 50.0)), QRect(199, 99, 2, 2));
    QCOMPARE(rectangle(pen.dotColumns(100.0), pen.rows(50.0, 50.0)), QRect(198, 99, 4, 2));
}

void PenShapeTest::placesFarAwayStayNumbers()
{
    const PenShape pen(3, 2.0);
    for (const double far : {1e9, 1e18, -1e9, -1e18}) {
        const PixelSpan columns = pen.columns(far);
        const PixelSpan rows = pen.rows(far, far);
        QVERIFY(far > 0.0 ? columns.first > 1000000 : columns.last < -1000000);
        QVERIFY(far > 0.0 ? rows.first > 1000000 : rows.last < -1000000);
    }
}

NELVO_TEST_MAIN(PenShapeTest)
#include "penshape.moc"
