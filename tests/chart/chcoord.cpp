#include "chart/chcoord.h"
#include "support/messagecapture.h"
#include "support/testmain.h"

#include <QImage>
#include <QPainter>

class ChCoordTest : public QObject
{
    Q_OBJECT

private slots:
    void startsWithItsColoursAndZeros();
    void mapsDataToPixelsAndBack();
    void mapsLengths();
    void clampsToTheDataRectangle();
    void clampsWhicheverEndIsLarger();
    void mapsAValueOnAScaleOfItsOwn();
    void restoresWhatWasSaved();
    void ordersTheYRange();
    void fitsTextToItsBox_data();
    void fitsTextToItsBox();
    void textInNoBoxStaysAway();
    void measuringDrawsNothing();
    void textAsItIsKeepsItsSize();
};

namespace {

constexpr int centred = Qt::AlignCenter;

ChCoord& prepare(ChCoord& coord)
{
    coord.setPixelRect(100.0, 20.0, 500.0, 220.0);
    coord.setDataRect(1000.0, -50.0, 1300.0, 150.0);
    return coord;
}

int inkIn(const QImage& image)
{
    int count = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            count += image.pixel(x, y) != qRgb(255, 255, 255) ? 1 : 0;
        }
    }
    return count;
}

QImage whitePicture()
{
    QImage image(400, 300, QImage::Format_RGB32);
    image.fill(Qt::white);
    return image;
}

} // namespace

void ChCoordTest::startsWithItsColoursAndZeros()
{
    const ChCoord coord;
    QCOMPARE(coord.colors[0], QColor(0, 220, 220));
    QCOMPARE(coord.colors[1], QColor(170, 255, 170));
    QCOMPARE(coord.colors[2], QColor(140, 180, 140));
    QCOMPARE(coord.colors[3], QColor(0, 0, 0));
    const PlotMapping& map = coord.mapping();
    for (const double value :
        {map.left, map.right, map.top, map.bottom, map.xMin, map.xMax, map.yMin, map.yMax}) {
        QCOMPARE(value, 0.0);
    }
}

void ChCoordTest::mapsDataToPixelsAndBack()
{
    ChCoord coord;
    prepare(coord);
    QCOMPARE(coord.pixelX(1000.0), 100.0);
    QCOMPARE(coord.pixelX(1300.0), 500.0);
    QCOMPARE(coord.pixelX(1075.0), 200.0);
    QCOMPARE(coord.pixelY(-50.0), 220.0); // upwards is less
    QCOMPARE(coord.pixelY(150.0), 20.0);
    QCOMPARE(coord.pixelY(0.0), 170.0);
    QCOMPARE(coord.dataX(200.0), 1075.0);
    QCOMPARE(coord.dataY(170.0), 0.0);
    for (double pixel = -500.0; pixel < 1000.0; pixel += 37.5) {
        QCOMPARE(coord.pixelX(coord.dataX(pixel)), pixel);
        QCOMPARE(coord.pixelY(coord.dataY(pixel)), pixel);
    }
}

void ChCoordTest::mapsLengths()
{
    ChCoord coord;
    prepare(coord);
    QCOMPARE(coord.pixelLengthX(75.0), 100.0);
    QCOMPARE(coord.pixelLengthY(50.0), 50.0);
    QCOMPARE(coord.dataLengthX(100.0), 75.0);
    QCOMPARE(coord.dataLengthY(-20.0), -20.0);
}

void ChCoordTest::clampsToTheDataRectangle()
{
    ChCoord coord;
    prepare(coord);
    QCOMPARE(coord.dataXClamped(0.0), 1000.0);
    QCOMPARE(coord.dataXClamped(200.0), 1075.0);
    QCOMPARE(coord.dataXClamped(9000.0), 1300.0);
    QCOMPARE(coord.dataYClamped(0.0), 150.0);
    QCOMPARE(coord.dataYClamped(170.0), 0.0);
    QCOMPARE(coord.dataYClamped(9000.0), -50.0);
}

void ChCoordTest::clampsWhicheverEndIsLarger()
{
    ChCoord coord;
    prepare(coord);
    coord.setDataRect(1300.0, 150.0, 1000.0, -50.0);
    QCOMPARE(coord.dataXClamped(0.0), 1300.0);
    QCOMPARE(coord.dataXClamped(9000.0), 1000.0);
    QCOMPARE(coord.dataYClamped(0.0), -50.0);
    QCOMPARE(coord.dataYClamped(9000.0), 150.0);
}

void ChCoordTest::mapsAValueOnAScaleOfItsOwn()
{
    ChCoord coord;
    prepare(coord);
    QCOMPARE(coord.pixelYIn(3.0, 3.0, 7.0), 220.0);
    QCOMPARE(coord.pixelYIn(7.0, 3.0, 7.0), 20.0);
    QCOMPARE(coord.pixelYIn(4.0, 3.0, 7.0), 170.0);
}

void ChCoordTest::restoresWhatWasSaved()
{
    ChCoord coord;
    prepare(coord);
    coord.setSavedRect(1.0, 2.0, 3.0, 4.0);
    coord.restoreX();
    QCOMPARE(coord.mapping().xMin, 1.0);
    QCOMPARE(coord.mapping().xMax, 3.0);
    QCOMPARE(coord.mapping().yMin, -50.0);
    coord.restoreY();
    QCOMPARE(coord.mapping().yMin, 2.0);
    QCOMPARE(coord.mapping().yMax, 4.0);
    coord.setSavedX(10.0, 30.0);
    coord.setSavedY(20.0, 40.0);
    coord.restoreRect();
    QCOMPARE(coord.mapping().xMin, 10.0);
    QCOMPARE(coord.mapping().yMin, 20.0);
    QCOMPARE(coord.mapping().xMax, 30.0);
    QCOMPARE(coord.mapping().yMax, 40.0);
    QCOMPARE(coord.mapping().left, 100.0);
}

void ChCoordTest::ordersTheYRange()
{
    ChCoord coord;
    QCOMPARE(coord.orderedYRange(4).upper, 1.0);
    coord.setDataRect(0.0, 30.0, 1.0, 10.0);
    const AxisTicks::OrderedRange range = coord.orderedYRange(4);
    QCOMPARE(range.lower, 10.0);
    QCOMPARE(range.upper, 30.0);
    QCOMPARE(range.step, 5.0);
    QCOMPARE(ChCoord::niceStep(0.0, 80.0, 10).step, 10.0);
}

void ChCoordTest::fitsTextToItsBox_data()
{
    QTest::addColumn<QRectF>("box");
    QTest::newRow("shrinks") << QRectF(20, 20, 30, 12);
    QTest::newRow("grows") << QRectF(20, 20, 300, 80);
    QTest::newRow("narrow") << QRectF(20, 20, 25, 200);
    QTest::newRow("flat") << QRectF(20, 20, 300, 14);
}

void ChCoordTest::fitsTextToItsBox()
{
    QFETCH(QRectF, box);
    QImage image = whitePicture();
    QPainter painter(&image);
    QFont font;
    const double before = font.pointSizeF();
    const QRectF covered
        = ChCoord::measureFitted(painter, box, centred, ChCoord::FitBox, QStringLiteral("500"), font);
    // The point size is a whole number and a font's height grows a pixel at a time.
    QVERIFY2(covered.width() <= box.width() + 4 && covered.height() <= box.height() + 4,
        qPrintable(QStringLiteral("%1 x %2").arg(covered.width()).arg(covered.height())));
    QVERIFY(covered.width() > 0.5 * box.width() || covered.height() > 0.5 * box.height());
    ChCoord::drawFitted(painter, box, centred, ChCoord::FitBox, QStringLiteral("500"), font);
    painter.end();
    QVERIFY(inkIn(image) > 0);
    QCOMPARE(font.pointSizeF(), before);
}

void ChCoordTest::textInNoBoxStaysAway()
{
    const MessageCapture capture;
    QImage image = whitePicture();
    QPainter painter(&image);
    QFont font;
    const QString text = QStringLiteral("1000");
    for (const QRectF& box : {QRectF(50, 50, 1, 1), QRectF(50, 50, 100, 0.5), QRectF(50, 50, 0.5, 100),
             QRectF(50, 50, -3, -3), QRectF(50, 50, 1, 0)}) {
        ChCoord::drawFitted(painter, box, centred, ChCoord::FitBox, text, font);
        QVERIFY(ChCoord::measureFitted(painter, box, centred, ChCoord::FitBox, text, font).isNull());
    }
    ChCoord::drawFitted(painter, QRectF(50, 50, 30, 30), centred, ChCoord::FitBox, QString(), font);
    painter.end();
    QCOMPARE(inkIn(image), 0);
    QCOMPARE(MessageCapture::texts(), QStringList());
}

void ChCoordTest::measuringDrawsNothing()
{
    QImage image = whitePicture();
    QPainter painter(&image);
    QFont font;
    const QRectF box(50, 50, 100, 40);
    const QRectF covered
        = ChCoord::measureFitted(painter, box, centred, ChCoord::FitBox, QStringLiteral("42"), font);
    painter.end();
    QVERIFY(covered.isValid());
    QCOMPARE(inkIn(image), 0);
}

void ChCoordTest::textAsItIsKeepsItsSize()
{
    QImage image = whitePicture();
    QPainter painter(&image);
    QFont font;
    font.setPointSizeF(9.9);
    painter.setFont(font);
    const QRectF natural = painter.boundingRect(QRectF(0, 0, 1000, 1000), 0, QStringLiteral("a longer text"));
    const QRectF covered = ChCoord::measureFitted(
        painter, QRectF(50, 50, 300, 200), centred, ChCoord::AsIs, QStringLiteral("a longer text"), font);
    QCOMPARE(covered.size(), natural.size());
}

NELVO_TEST_MAIN(ChCoordTest)
#include "chcoord.moc"
