// What the chart shows: lines, grid, labels and units.

#include "chart/support/drawrecorder.h"
#include "chart/support/hand.h"
#include "chart/tshowview.h"
#include "support/testmain.h"
#include "support/ticks.h"

class PaintingTest : public QObject
{
    Q_OBJECT

private slots:
    void theDefaultViewShowsFiveMinutesAndAThousandDegrees();
    void labelsByTimeSpan_data();
    void labelsByTimeSpan();
    void theSmallestTemperatureSpanHasDegrees();
    void belowZeroQuotientsAreTruncatedTowardZero();
    void aViewOfThePastCountsFromNow();
    void aSecondThreeHoursBackHasItsGrid();
    void whileDraggedIntoTheFutureTheLabelsStayAges();
    void aChannelBeforeOrAfterTheWindowDrawsNothing();
    void theLineIsClippedOnePixelOutsideTheFrame();
    void aLineFollowsTheClockWhenItStepsBack();
};

namespace {

constexpr qint64 startMs = 1700000000000;

/// 100000 s after the start; the plot is 870 pixels wide from x = 100 and 348 high from y = 20 to y = 368.
class Chart
{
public:
    Chart()
        : clock(startMs + 100000000)
    {
        view.resize(1000, 400);
        view.setStartTime(startMs);
        view.setStyleSheet(QStringLiteral("background-color: rgb(255, 255, 255);"));
        view.ensurePolished();
    }

    Drawn drawn()
    {
        DrawRecorder recorder(view.size());
        view.render(&recorder);
        return recorder.drawn();
    }

    QImage picture() { return view.grab().toImage(); }

    DrivenClock clock;
    TShowView view;
};

QStringList degrees(int from, int to)
{
    QStringList labels;
    for (int degree = from; degree <= to; degree += 100) {
        labels.append(QString::number(degree));
    }
    return labels;
}

// The x of the lines that run from the top to the bottom of the plot, after the frame.
QVector<int> timeLines(const QVector<QLine>& lines)
{
    QVector<int> found;
    for (const QLine& line : lines.mid(4)) {
        if (line.x1() == line.x2()) {
            found.append(line.x1());
        }
    }
    return found;
}

QVector<int> temperatureLines(const QVector<QLine>& lines)
{
    QVector<int> found;
    for (const QLine& line : lines.mid(4)) {
        if (line.y1() == line.y2()) {
            found.append(line.y1());
        }
    }
    return found;
}

} // namespace

void PaintingTest::theDefaultViewShowsFiveMinutesAndAThousandDegrees()
{
    Chart chart;
    const Drawn drawn = chart.drawn();
    QCOMPARE(
        drawn.texts, degrees(0, 1000) + QString::fromLatin1("0 1 2 3 4 5 [min]").split(QLatin1Char(' ')));
    QCOMPARE(drawn.blackLines.mid(0, 4),
        (QVector<QLine>{{100, 20, 970, 20}, {970, 20, 970, 368}, {100, 368, 970, 368}, {100, 20, 100, 368}}));
    QCOMPARE(timeLines(drawn.blackLines), (QVector<int>{970, 796, 622, 448, 274, 100}));
    QCOMPARE(temperatureLines(drawn.blackLines),
        (QVector<int>{368, 333, 298, 263, 228, 194, 159, 124, 89, 54, 20}));
    // Temperatures stand left of the plot, ages below it, the unit below the ages.
    for (int i = 0; i < 11; ++i) {
        QVERIFY(drawn.places.at(i).x() < 100.0);
    }
    QVERIFY(drawn.places.at(11).y() > 368.0);
    QVERIFY(drawn.places.at(17).y() > drawn.places.at(16).y());
}

void PaintingTest::labelsByTimeSpan_data()
{
    QTest::addColumn<int>("notches");
    QTest::addColumn<QString>("labels");
    QTest::newRow("270 s") << 1
                           << "0 10 20 30 40 50 60 70 80 90 100 110 120 130 140 150 160 170 180 190 200 210 "
                              "220 230 240 250 260 270 [sec]";
    QTest::newRow("1 s") << 100 << "0 1 [sec]";
    QTest::newRow("1.8 h") << -29 << "0 10 20 30 40 50 60 70 80 90 100 [min]";
    QTest::newRow("2.0 h") << -31 << "0 0.5 1 1.5 2 [hour]";
    QTest::newRow("30 days") << -200 << "0 5 10 15 20 25 30 [day]";
}

void PaintingTest::labelsByTimeSpan()
{
    QFETCH(int, notches);
    Chart chart;
    Hand::notches(chart.view, notches);
    QTEST(chart.drawn().texts.mid(11).join(QLatin1Char(' ')), "labels");
}

void PaintingTest::theSmallestTemperatureSpanHasDegrees()
{
    Chart chart;
    chart.picture();
    Hand::press(chart.view, QPointF(500, 368), Qt::RightButton); // at 0 deg C
    for (int notch = 0; notch < 80; ++notch) {
        Hand::notches(chart.view, 1);
    }
    QCOMPARE(chart.view.chartView().ySpan, 1.0);
    QCOMPARE(chart.drawn().texts.mid(0, 2), degrees(0, 0) + QStringList(QStringLiteral("1")));
}

void PaintingTest::belowZeroQuotientsAreTruncatedTowardZero()
{
    Chart chart;
    chart.picture();
    Hand::drag(chart.view, QPointF(500, 300), QPointF(500, 178), Qt::RightButton); // -350.57 to 649.43
    const Drawn drawn = chart.drawn();
    QCOMPARE(drawn.texts.mid(0, 10), degrees(-300, 600));
    QCOMPARE(temperatureLines(drawn.blackLines).size(), 10);
}

void PaintingTest::aViewOfThePastCountsFromNow()
{
    Chart chart;
    chart.picture();
    for (int i = 0; i < 12; ++i) {
        Hand::drag(chart.view, QPointF(100, 100), QPointF(970, 100), Qt::LeftButton); // 300 s each
    }
    QCOMPARE(chart.view.chartView().xOffset, 3600.0);
    const Drawn drawn = chart.drawn();
    QCOMPARE(drawn.texts.mid(11).join(QLatin1Char(' ')), QStringLiteral("60 61 62 63 64 65 [min]"));
    QCOMPARE(timeLines(drawn.blackLines), (QVector<int>{970, 796, 622, 448, 274, 100}));
}

// Far from now the step is still one of the span, and the lines are counted from now.
void PaintingTest::aSecondThreeHoursBackHasItsGrid()
{
    Chart chart;
    chart.picture();
    for (int i = 0; i < 36; ++i) {
        Hand::drag(chart.view, QPointF(100, 100), QPointF(970, 100), Qt::LeftButton);
    }
    Hand::notches(chart.view, 100);
    QCOMPARE(chart.view.chartView().xSpan, 1.0);
    QCOMPARE(chart.view.chartView().xOffset, 10800.0);
    const Drawn drawn = chart.drawn();
    QCOMPARE(drawn.texts.mid(11).join(QLatin1Char(' ')), QStringLiteral("10800 10801 [sec]"));
    QCOMPARE(timeLines(drawn.blackLines), (QVector<int>{970, 100}));
}

void PaintingTest::whileDraggedIntoTheFutureTheLabelsStayAges()
{
    Chart chart;
    chart.picture();
    Hand::press(chart.view, QPointF(535, 100), Qt::LeftButton);
    Hand::move(chart.view, QPointF(100, 100), Qt::LeftButton); // 150 s ahead
    const Drawn drawn = chart.drawn();
    QCOMPARE(drawn.texts.mid(11).join(QLatin1Char(' ')), QStringLiteral("-2 -1 0 1 2 [min]"));
    QCOMPARE(timeLines(drawn.blackLines), (QVector<int>{883, 709, 535, 361, 187}));
}

void PaintingTest::aChannelBeforeOrAfterTheWindowDrawsNothing()
{
    Chart chart;
    const QImage empty = chart.picture();
    for (int i = 0; i < 100; ++i) {
        chart.view.addPoint(1, 99000.0 + i, 333.0); // all before
        chart.view.addPoint(2, 100100.0 + i, 444.0); // all after
    }
    QCOMPARE(chart.picture(), empty);
    chart.view.addPoint(3, 99700.0, 555.0); // exactly at the left edge
    chart.view.addPoint(3, 99800.0, 555.0);
    const QImage line = chart.picture();
    const int y = static_cast<int>(368.0 - 348.0 / 1000.0 * 555.0);
    QCOMPARE(line.pixel(150, y), qRgb(0, 0, 255));
    QCOMPARE(line.pixel(101, y), qRgb(0, 0, 255));
    QCOMPARE(line.pixel(98, y), qRgb(255, 255, 255));
}

void PaintingTest::theLineIsClippedOnePixelOutsideTheFrame()
{
    Chart chart;
    chart.view.select(1);
    for (int i = 0; i < 600; ++i) {
        chart.view.addPoint(1, 99500.0 + i, i % 2 == 0 ? -500.0 : 1500.0);
    }
    const QImage image = chart.picture();
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const bool mayBeRed = x >= 99 && x <= 970 && y >= 19 && y <= 368;
            QVERIFY2(mayBeRed || image.pixel(x, y) != qRgb(255, 0, 0),
                qPrintable(QStringLiteral("%1, %2").arg(x).arg(y)));
        }
    }
    int onTheRim = 0;
    for (int x = 99; x <= 970; ++x) {
        onTheRim += image.pixel(x, 19) == qRgb(255, 0, 0) ? 1 : 0;
    }
    QVERIFY(onTheRim > 300);
}

void PaintingTest::aLineFollowsTheClockWhenItStepsBack()
{
    Chart chart;
    chart.view.addPoint(1, 99800.0, 250.0);
    chart.view.addPoint(1, 99900.0, 250.0);
    chart.view.addPoint(1, 99850.0, 550.0); // back by 50 s
    chart.view.addPoint(1, 99950.0, 550.0);
    const QImage image = chart.picture();
    const auto x = [](double sec) { return static_cast<int>(100.0 + 870.0 / 300.0 * (sec - 99700.0)); };
    const auto y = [](double degC) { return static_cast<int>(368.0 - 348.0 / 1000.0 * degC); };
    QCOMPARE(image.pixel(x(99830.0), y(250.0)), qRgb(255, 0, 0));
    QCOMPARE(image.pixel(x(99930.0), y(550.0)), qRgb(255, 0, 0));
    // Three quarters of the way back.
    int red = 0;
    for (int row = y(475.0) - 2; row <= y(475.0) + 2; ++row) {
        red += image.pixel(x(99862.5), row) == qRgb(255, 0, 0) ? 1 : 0;
    }
    QVERIFY(red > 0);
}

NELVO_TEST_MAIN(PaintingTest)
#include "painting.moc"
