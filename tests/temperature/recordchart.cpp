// The chart of the station's window: its lines from the start on, and what a record brings.

#include "base/wallclock.h"
#include "chart/lineselect.h"
#include "chart/tshowview.h"
#include "support/files.h"
#include "support/paintcount.h"
#include "support/stationtest.h"
#include "support/testmain.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QLabel>

using namespace TestText;

namespace {

const QList<QColor> lineColors{QColor(0, 0, 0), QColor(255, 0, 0), QColor(0, 255, 0), QColor(0, 0, 255),
    QColor(230, 230, 0), QColor(230, 0, 230), QColor(0, 230, 230), QColor(180, 230, 0), QColor(180, 0, 230)};

int pixelsOf(const QColor& color, const QImage& image)
{
    int count = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            count += image.pixel(x, y) == color.rgb() ? 1 : 0;
        }
    }
    return count;
}

qint64 waitedMs = 0;

// A clock that goes on while a window is built.
qint64 countWidgets()
{
    return 1700000000000 + QApplication::allWidgets().size() + waitedMs;
}

} // namespace

class RecordChartTest : public StationTest
{
    Q_OBJECT

    TShowView& chart() const { return station->find<TShowView>("TSView"_s); }

private slots:
    void init()
    {
        StationTest::init();
        Station::storeInUse({});
    }

    void everyLineIsThereFromTheStart()
    {
        QVERIFY(station->open());
        const auto* row = station->window().findChild<QHBoxLayout*>("LSLine"_s);
        QCOMPARE(row->count(), lineColors.size());
        for (int channel = 0; channel < Channels::count; ++channel) {
            const QWidget* selector = row->itemAt(channel)->widget();
            const auto* box = selector->findChild<QCheckBox*>("LineSel"_s);
            QCOMPARE(box->text(), station->text(cell("CName", channel)));
            QVERIFY(box->isChecked());
            const QColor& color = lineColors[channel];
            QCOMPARE(selector->findChild<QLabel*>("LineColor"_s)->styleSheet(),
                "background-color: rgb(%1, %2, %3);"_s.arg(color.red()).arg(color.green()).arg(color.blue()));
        }
    }

    void everyLineIsDrawnInItsColour()
    {
        QVERIFY(station->open());
        station->tick(Station::emptyRound);
        DrivenClock::advance(60000);
        station->tick(Station::emptyRound);
        const QImage picture = chart().grab().toImage();
        for (int channel = 1; channel < Channels::count; ++channel) {
            QVERIFY2(pixelsOf(lineColors[channel], picture) > 20, qPrintable(QString::number(channel)));
        }
    }

    void aRecordRepaintsTheChart()
    {
        QVERIFY(station->open());
        station->window().show();
        QVERIFY(QTest::qWaitForWindowExposed(&station->window()));
        // The first round changes what the panel shows, and with it the room that the chart has.
        station->tick(Station::emptyRound);
        QCoreApplication::processEvents();
        PaintCount paints(chart());
        station->tick(Station::emptyRound - 1);
        QCOMPARE(paints.take(), 0);
        station->tick();
        QCOMPARE(paints.take(), 1);
    }

    void theChartsTimeBeginsWithTheRecords()
    {
        waitedMs = 0;
        WallClock::source = &countWidgets;
        QVERIFY(station->open());
        waitedMs = 90500;
        chart().grab();
        QCOMPARE(chart().coordinates().mapping().xMax, 90.5);
        station->tick(Station::emptyRound);
        QVERIFY2(fileText(recordFile).startsWith("90.5\t"), fileText(recordFile));
    }
};

NELVO_TEST_MAIN(RecordChartTest)
#include "recordchart.moc"
