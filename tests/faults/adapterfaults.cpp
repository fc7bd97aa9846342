// An adapter that is not there, says nonsense, says too much, or breaks off: the station lives on, and what
// it sends stays whole.

#include "support/files.h"
#include "support/journalevents.h"
#include "support/processfigures.h"
#include "support/stationtest.h"
#include "support/testmain.h"

#include <QFile>

using namespace TestText;

namespace {

// Of the processor, the far end's work and the polling rounds behind the nonsense included.
#ifdef __SANITIZE_ADDRESS__
constexpr double mostMs = 10000.0;
#else
constexpr double mostMs = 1000.0;
#endif

} // namespace

class AdapterFaultsTest : public OpenStationTest
{
    Q_OBJECT

    // The window does what a click asks for.
    void expectAnAnsweredClick()
    {
        const QString before = station->text(cell("NS", 3));
        station->click(cell("NS", 3));
        QVERIFY(station->text(cell("NS", 3)) != before);
    }

    // The polling goes its way, channel after channel.
    void expectReadings()
    {
        station->reads.clear();
        QVERIFY(station->round());
        QVERIFY(station->round());
        QVERIFY(station->reads.size() >= Channels::count);
        for (int i = 1; i < station->reads.size(); ++i) {
            QCOMPARE(station->reads[i], (station->reads[i - 1] + 1) % Channels::count);
        }
    }

    // A shutter command gets through, and no other than this one.
    void expectShutters()
    {
        station->click(cell("CS", 2));
        QVERIFY(station->tickUntil([this] {
            callSlot(&station->window(), "ActionShutter");
            return !station->masks().isEmpty();
        }));
        QCOMPARE(station->masks().count('\x04'), station->masks().size());
    }

    // It is told, and the station lives on without.
    void expectALostLink()
    {
        QTRY_VERIFY(fileText(journalFile).contains("\tlost\t"));
        station->tick(1000);
        station->click("AllCloseB"_s);
        expectAnAnsweredClick();
        QVERIFY(!station->adapter.isConnected()); // it does not come back by itself
    }

private slots:
    void init()
    {
        QFile::remove(journalFile);
        journalEvents();
        OpenStationTest::init();
    }

    void nonsenseIsPassedOver_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::newRow("10 MB without an end") << QByteArray(10000000, 'x');
        QTest::newRow("100,000 empty lines") << QByteArray(100000, '\n');
        QTest::newRow("100,000 empty lines of another system") << QByteArray("\r\n").repeated(100000);
        QTest::newRow("NUL") << QByteArray(11, '\0') + '\n' + QByteArray(5000, '\0');
        QTest::newRow("8-bit bytes")
            << QByteArray("\xFF\xFE\x80\xC3\x28\xF0\x9F\x92\xA9\xED\xA0\n").repeated(500);
        QTest::newRow("escapes") << QByteArray("\x1B\x7F\n\x04\x30\x31M1\x05\n++addr 3\n").repeated(500);
        QTest::newRow("a reading of no number") << QByteArray("01M*******C\r\n").repeated(500);
    }

    void nonsenseIsPassedOver()
    {
        QFETCH(QByteArray, bytes);
        const Stopwatch time;
        station->adapter.send("1\r\n1\r\n"); // what the station asked at its start
        station->tick(); // a reading is awaited
        station->adapter.send(bytes);
        station->tick(3);
        expectAnAnsweredClick();
        station->adapter.send("\n"); // the end of what had none
        expectReadings();
        expectShutters();
        QVERIFY(!journalEvents().filter("unasked-line line="_s).isEmpty());
        qInfo("%.0f ms of the processor", time.processorMs());
        QVERIFY(time.processorMs() < mostMs);
    }

    void anAdapterThatTakesNothingCostsNothing()
    {
        const MessageCapture manyLines;
        station->togglePolling();
        station->adapter.stopTaking();
        for (int i = 0; i < 2000; ++i) {
            station->click(cell("CS", i % Channels::shutterCount));
        }
        expectAnAnsweredClick();
        QCOMPARE(station->states("CS", "Open"_s, "Close"_s), "xxxxxoo"_s);
    }

    void anAdapterThatTakesNothingHoldsTheBus()
    {
        station->adapter.stopTaking();
        station->tick();
        DrivenClock::advance(1001);
        station->tick();
        QVERIFY(!journalEvents().filter("bus-held"_s).isEmpty());
        station->click(cell("CS", 2));
        QCOMPARE(journalEvents(), QStringList({"shutters-wait open=xxoxxxx"_s}));
        expectAnAnsweredClick();
    }

    void aLinkThatIsCutIsTold_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::newRow("between lines") << QByteArray();
        QTest::newRow("in a line") << QByteArray("01M00");
        QTest::newRow("behind a carriage return") << QByteArray("01M0025.00C\r");
    }

    void aLinkThatIsCutIsTold()
    {
        QFETCH(QByteArray, bytes);
        station->tick();
        station->adapter.send(bytes);
        station->adapter.cut();
        expectALostLink();
    }

    void aLinkThatIsCutInACommandIsTold()
    {
        station->adapter.stopTaking();
        station->tick();
        QTRY_VERIFY(station->adapter.hasFirstByte());
        station->adapter.cut();
        expectALostLink();
    }
};

NELVO_TEST_MAIN(AdapterFaultsTest)
#include "adapterfaults.moc"
