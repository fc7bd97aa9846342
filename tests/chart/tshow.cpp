// The chart as the main window uses it: channels, selectors, points and repaints.

#include "chart/tshow.h"
#include "chart/lineselect.h"
#include "chart/support/hand.h"
#include "support/messagecapture.h"
#include "support/paintcount.h"
#include "support/testmain.h"
#include "support/ticks.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QWindow>

#include <cmath>

class TShowTest : public QObject
{
    Q_OBJECT

private slots:
    void selectorsStandInOrder();
    void swatchesTakeTheTablesColours();
    void aColourOfItsOwnReachesTheSwatchAlone();
    void theFourteenthLineTakesTheFirstColour();
    void pointsWithoutASelectorAreIgnored();
    void aLaterChannelBringsTheEarlierOnesWithIt();
    void uncheckingHidesTheLineAtOnceAndKeepsItsHistory();
    void aLineAddedHiddenStaysHidden();
    void hoveringSelectsAtTheNextRepaint();
    void hoveringOverEachPartOfASelectorCounts();
    void updateOfTheFrameRepaintsTheChart();
    void settingAColourRepaints();
    void aPointTenSecondsOldStandsWhereItShould();
    void paintsAtEverySizeWithoutAWarning();
};

namespace {

constexpr qint64 startMs = 1700000000000;

/// A chart with nine lines in a window, 1000 s after the start.
class Chart
{
public:
    explicit Chart(int lines = 9)
        : clock(startMs + 1000000)
    {
        show.setStartTime(startMs);
        for (int i = 0; i < lines; ++i) {
            selectors.append(show.addLine(QStringLiteral("line %1").arg(i), true, -1, -1, -1));
        }
        view = show.findChild<TShowView*>(QStringLiteral("TSView"));
        host.resize(1100, 600);
        show.resize(1100, 600);
        host.show();
        QCoreApplication::processEvents();
    }

    // Steep and within the plot, a height for each channel.
    void feed(int channel)
    {
        for (int i = 0; i <= 300; ++i) {
            show.newT(channel, 700.0 + i, 55.0 + 100.0 * channel + (i % 2));
        }
    }

    bool isDrawn(const QColor& color) { return pixelsOf(color) > 0; }

    int pixelsOf(const QColor& color)
    {
        const QImage image = view->grab().toImage();
        int count = 0;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                count += image.pixel(x, y) == color.rgb() ? 1 : 0;
            }
        }
        return count;
    }

    DrivenClock clock;
    QWidget host;
    TShow show{&host};
    QList<LineSelect*> selectors;
    TShowView* view = nullptr;
};

QString styleOf(const LineSelect& selector)
{
    return selector.findChild<QLabel*>(QStringLiteral("LineColor"))->styleSheet();
}

QCheckBox& boxOf(const LineSelect& selector)
{
    return *selector.findChild<QCheckBox*>(QStringLiteral("LineSel"));
}

const QColor red(255, 0, 0);
const QColor green(0, 255, 0);

} // namespace

void TShowTest::selectorsStandInOrder()
{
    Chart chart;
    auto* row = chart.show.findChild<QHBoxLayout*>(QStringLiteral("LSLine"));
    QCOMPARE(row->count(), 9);
    for (int i = 0; i < 9; ++i) {
        QCOMPARE(row->itemAt(i)->widget(), chart.selectors.at(i));
        QCOMPARE(boxOf(*chart.selectors.at(i)).text(), QStringLiteral("line %1").arg(i));
        QVERIFY(boxOf(*chart.selectors.at(i)).isChecked());
    }
}

void TShowTest::swatchesTakeTheTablesColours()
{
    Chart chart;
    const QStringList colours{QStringLiteral("0, 0, 0"), QStringLiteral("255, 0, 0"),
        QStringLiteral("0, 255, 0"), QStringLiteral("0, 0, 255"), QStringLiteral("230, 230, 0"),
        QStringLiteral("230, 0, 230"), QStringLiteral("0, 230, 230"), QStringLiteral("180, 230, 0"),
        QStringLiteral("180, 0, 230")};
    for (int i = 0; i < 9; ++i) {
        QCOMPARE(
            styleOf(*chart.selectors.at(i)), QStringLiteral("background-color: rgb(%1);").arg(colours.at(i)));
    }
}

void TShowTest::aColourOfItsOwnReachesTheSwatchAlone()
{
    Chart chart(1);
    const LineSelect* selector = chart.show.addLine(QStringLiteral("own"), true, 1, 22, 133);
    QCOMPARE(styleOf(*selector), QStringLiteral("background-color: rgb(1, 22, 133);"));
    chart.feed(1);
    QVERIFY(chart.isDrawn(red));
    QVERIFY(!chart.isDrawn(QColor(1, 22, 133)));
}

void TShowTest::theFourteenthLineTakesTheFirstColour()
{
    Chart chart(14);
    QCOMPARE(styleOf(*chart.selectors.at(12)), QStringLiteral("background-color: rgb(0, 230, 180);"));
    QCOMPARE(styleOf(*chart.selectors.at(13)), QStringLiteral("background-color: rgb(0, 0, 0);"));
    QCOMPARE(chart.view->colorOf(13), QColor(0, 0, 0));
}

void TShowTest::pointsWithoutASelectorAreIgnored()
{
    Chart chart(3);
    chart.show.newT(3, 1.0, 2.0);
    chart.show.newT(99, 1.0, 2.0);
    chart.show.newT(-1, 1.0, 2.0);
    QCOMPARE(chart.view->channels().size(), 0);
}

void TShowTest::aLaterChannelBringsTheEarlierOnesWithIt()
{
    Chart chart;
    const QImage empty = chart.view->grab().toImage();
    chart.show.newT(3, 900.0, 500.0);
    QCOMPARE(chart.view->channels().size(), 4);
    for (int channel = 0; channel < 3; ++channel) {
        QCOMPARE(chart.view->channels().at(channel).size(), 0);
        QCOMPARE(chart.view->firstIndex(channel, 900.0), 0);
    }
    QCOMPARE(chart.view->channels().at(3).size(), 1);
    QCOMPARE(chart.view->firstIndex(77, 900.0), 0);
    QCOMPARE(chart.view->grab().toImage(), empty); // a single point draws nothing
}

void TShowTest::uncheckingHidesTheLineAtOnceAndKeepsItsHistory()
{
    Chart chart;
    chart.feed(1);
    chart.feed(2);
    PaintCount paints(*chart.view);
    const QImage before = chart.view->grab().toImage();
    QVERIFY(chart.isDrawn(red) && chart.isDrawn(green));
    paints.take();

    QTest::mouseClick(&boxOf(*chart.selectors.at(1)), Qt::LeftButton, Qt::NoModifier, QPoint(8, 8));
    QVERIFY(!boxOf(*chart.selectors.at(1)).isChecked());
    QVERIFY(paints.take() >= 1);
    QVERIFY(!chart.isDrawn(red));
    QVERIFY(chart.isDrawn(green));

    boxOf(*chart.selectors.at(1)).setChecked(true);
    QCOMPARE(chart.view->grab().toImage(), before);
}

void TShowTest::aLineAddedHiddenStaysHidden()
{
    Chart chart(1);
    const LineSelect* selector = chart.show.addLine(QStringLiteral("hidden"), false, -1, -1, -1);
    QVERIFY(!boxOf(*selector).isChecked());
    chart.feed(1);
    QVERIFY(!chart.isDrawn(red));
    boxOf(*selector).setChecked(true);
    QVERIFY(chart.isDrawn(red));
}

void TShowTest::hoveringSelectsAtTheNextRepaint()
{
    Chart chart;
    chart.feed(2);
    QCOMPARE(chart.view->selectedChannel(), 0);
    const int thin = chart.pixelsOf(green);
    PaintCount paints(*chart.view);
    paints.take();
    Hand::move(*chart.selectors.at(2), QPointF(1, 1), Qt::NoButton);
    QCOMPARE(chart.view->selectedChannel(), 2);
    QCOMPARE(paints.take(), 0);
    QVERIFY(chart.pixelsOf(green) > 3 * thin / 2);
    Hand::move(*chart.selectors.at(4), QPointF(1, 1), Qt::LeftButton);
    QCOMPARE(chart.view->selectedChannel(), 4);
    QCOMPARE(chart.pixelsOf(green), thin);
}

void TShowTest::hoveringOverEachPartOfASelectorCounts()
{
    Chart chart;
    QWindow* window = chart.host.windowHandle();
    const auto hover = [&](QWidget& part) {
        const QPoint middle = part.rect().center();
        QTest::mouseMove(window, part.mapTo(&chart.host, middle));
        QCoreApplication::processEvents();
    };
    hover(boxOf(*chart.selectors.at(3)));
    QCOMPARE(chart.view->selectedChannel(), 3);
    hover(*chart.selectors.at(5)->findChild<QLabel*>(QStringLiteral("LineColor")));
    QCOMPARE(chart.view->selectedChannel(), 5);
}

void TShowTest::updateOfTheFrameRepaintsTheChart()
{
    Chart chart;
    PaintCount paints(*chart.view);
    paints.take();
    chart.feed(1);
    QCOMPARE(paints.take(), 0); // points alone do not
    chart.show.update();
    QCOMPARE(paints.take(), 1);
}

void TShowTest::settingAColourRepaints()
{
    Chart chart;
    chart.feed(1);
    PaintCount paints(*chart.view);
    paints.take();
    chart.view->setColor(1, QColor(9, 99, 199));
    QCOMPARE(paints.take(), 1);
    QVERIFY(chart.isDrawn(QColor(9, 99, 199)));
    chart.view->setColor(15, QColor(1, 2, 3));
    QCOMPARE(chart.view->colorOf(13), QColor(0, 0, 0));
    QCOMPARE(chart.view->colorOf(15), QColor(1, 2, 3));
    QCOMPARE(chart.view->colorOf(16), QColor(0, 0, 0)); // the table has 16 entries now
}

void TShowTest::aPointTenSecondsOldStandsWhereItShould()
{
    Chart chart;
    chart.view->grab();
    const PlotMapping& map = chart.view->coordinates().mapping();
    QCOMPARE(map.xMin, 700.0);
    QCOMPARE(map.xMax, 1000.0);
    QCOMPARE(map.left, std::trunc(0.1 * chart.view->width()));
    QCOMPARE(chart.view->coordinates().pixelX(990.0), map.left + 290.0 / 300.0 * (map.right - map.left));
    DrivenClock::advance(60000);
    chart.view->grab();
    QCOMPARE(map.xMax, 1060.0); // the right edge follows the clock
}

void TShowTest::paintsAtEverySizeWithoutAWarning()
{
    Chart chart;
    for (int channel = 0; channel < 9; ++channel) {
        chart.feed(channel);
    }
    const MessageCapture capture;
    TShowView alone;
    for (int i = 0; i < 300; ++i) {
        alone.addPoint(0, 700.0 + i, 3.0 * i);
    }
    alone.setStartTime(startMs);
    for (const QSize& size : {QSize(0, 0), QSize(1, 1), QSize(2, 1), QSize(1, 40), QSize(40, 1),
             QSize(13, 13), QSize(30, 30), QSize(50, 49), QSize(4000, 3000)}) {
        alone.resize(size);
        QImage image(qMax(size.width(), 1), qMax(size.height(), 1), QImage::Format_RGB32);
        alone.render(&image);
    }
    chart.show.resize(40, 60);
    chart.show.grab();
    QCOMPARE(MessageCapture::texts(), QStringList());
}

NELVO_TEST_MAIN(TShowTest)
#include "tshow.moc"
