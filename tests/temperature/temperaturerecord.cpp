// The temperature record as a file on the disk.

#include "chart/tshowview.h"
#include "support/files.h"
#include "support/messagecapture.h"
#include "support/ordinaryuser.h"
#include "support/stationtest.h"
#include "support/testmain.h"
#include "temperature/recordline.h"

#include <QDir>
#include <QFile>

using namespace TestText;

namespace {

const QByteArray atZero = "0\t500\t470\t440\t410\t380\t350\t320\t290\t260\n";
} // namespace

class TemperatureRecordTest : public StationTest
{
    Q_OBJECT

private slots:
    void cleanup()
    {
        StationTest::cleanup();
        QFile::setPermissions(recordFile, QFile::ReadOwner | QFile::WriteOwner);
        QVERIFY(!QFileInfo::exists(recordFile) || QDir().rmdir(recordFile) || QFile::remove(recordFile));
    }

    void theFirstRecordMakesTheFile()
    {
        Station::storeInUse({});
        QVERIFY(station->open());
        station->tick(Station::emptyRound - 1);
        QCOMPARE(fileText(recordFile), QByteArray("(no file)"));
        station->tick();
        QCOMPARE(fileText(recordFile), atZero);
    }

    void aRecordARound()
    {
        Station::storeInUse({});
        QVERIFY(station->open());
        for (int round = 1; round <= 10; ++round) {
            station->tick(Station::emptyRound - 1);
            QCOMPARE(Station::records(), round - 1);
            station->tick();
            QCOMPARE(Station::records(), round);
        }
    }

    void theValuesAreNotTheMeasuredOnes()
    {
        for (int channel = 0; channel < Channels::count; ++channel) {
            station->answers[channel] = Wire::reading(1000.0 + channel);
        }
        QVERIFY(station->open());
        DrivenClock::advance(90500);
        QVERIFY(station->round());
        QCOMPARE(station->text(cell("CDeg", 8)), "1008"_s);
        QCOMPARE(fileText(recordFile),
            QByteArray(
                "90.5\t450.014\t436.132\t463.835\t486.97\t450.481\t345.246\t227.749\t178.174\t227.543\n"));
    }

    void aSecondRunAppendsAndStartsAtZero()
    {
        Station::storeInUse({});
        QVERIFY(station->open());
        station->tick(Station::emptyRound);
        DrivenClock::advance(30000);
        station->tick(Station::emptyRound);
        station->close();

        DrivenClock::advance(3600000);
        QVERIFY(station->open());
        station->tick(Station::emptyRound);
        QCOMPARE(fileText(recordFile),
            atZero + "30\t550\t527.081\t496.677\t457.105\t407.934\t350.159\t286.191\t219.651\t154.986\n"
                + atZero);
    }

    void whatStandsInTheFileStays()
    {
        putFile(recordFile, "an earlier line\n");
        Station::storeInUse({});
        QVERIFY(station->open());
        station->tick(Station::emptyRound);
        QCOMPARE(fileText(recordFile), "an earlier line\n" + atZero);
    }

    void aFileThatCannotBeOpenedIsPassedOver()
    {
        QVERIFY(QDir().mkdir(recordFile));
        Station::storeInUse({0});
        QVERIFY(station->open());
        const MessageCapture capture;
        // The polling goes on round by round: channel 0 is read again and again.
        QVERIFY(station->tickUntil([this] { return station->reads.size() >= 5; }));
        QCOMPARE(MessageCapture::texts(), QStringList());
        QVERIFY(QFileInfo(recordFile).isDir());
        QVERIFY(station->statusBar().isEmpty());

        // The place free again, the next round records.
        QVERIFY(QDir().rmdir(recordFile));
        QVERIFY(station->round());
        QCOMPARE(fileText(recordFile), atZero);
    }

    void aFullDiskKeepsWhatIsThere()
    {
        if (!FullDisk::isPossible()) {
            QSKIP("no way to limit a file's size here");
        }
        Station::storeInUse({});
        QVERIFY(station->open());
        station->tick(Station::emptyRound);
        {
            const FullDisk full(atZero.size());
            station->tick(3 * Station::emptyRound);
        }
        QCOMPARE(fileText(recordFile), atZero);
        station->tick(Station::emptyRound);
        QCOMPARE(fileText(recordFile), atZero + atZero);
    }

    void theChartGetsWhatIsRecorded_data()
    {
        QTest::addColumn<QString>("obstacle");
        for (const char* obstacle : {"none", "directory", "read-only file", "full disk"}) {
            QTest::newRow(obstacle) << QString::fromLatin1(obstacle);
        }
    }

    void theChartGetsWhatIsRecorded()
    {
        QFETCH(QString, obstacle);
        std::unique_ptr<FullDisk> full;
        Station::storeInUse({});
        QVERIFY(station->open());
        if (obstacle == "directory"_s) {
            QVERIFY(QDir().mkdir(recordFile));
        } else if (obstacle == "read-only file"_s) {
            AS_ORDINARY_USER();
            putFile(recordFile, "");
            QVERIFY(QFile::setPermissions(recordFile, QFile::ReadOwner));
        } else if (obstacle == "full disk"_s) {
            if (!FullDisk::isPossible()) {
                QSKIP("no way to limit a file's size here");
            }
            full = std::make_unique<FullDisk>(0);
        }
        const auto& chart = station->find<TShowView>("TSView"_s);
        station->tick(Station::emptyRound);
        DrivenClock::advance(30000);
        station->tick(Station::emptyRound);
        full.reset();

        QCOMPARE(chart.channels().size(), Channels::count);
        for (int n = 0; n < Channels::count; ++n) {
            const PointBuffer& points = chart.channels().at(n);
            QCOMPARE(points.size(), 2);
            QCOMPARE(points.at(0).sec, 0.0);
            QCOMPARE(points.at(0).degC, 500.0 - 30 * n);
            QCOMPARE(points.at(1).sec, 30.0);
            QCOMPARE(points.at(1).degC, Record::value(n, 30.0));
        }
        QCOMPARE(Station::records(), obstacle == "none"_s ? 2 : 0);
    }

    void aSilentControllerStopsTheRecord()
    {
        Station::storeInUse({4});
        QVERIFY(station->open());
        // The first round ends with the time-out of the one read; the next read waits for a line.
        station->tick(5000);
        QCOMPARE(Station::records(), 1);
        QVERIFY(station->adapter.expect(Wire::toTemperatures + Wire::readRequest(4)));
        QVERIFY(station->adapter.expectNothing());
        QVERIFY(station->adapter.isConnected());
        station->adapter.send("\n");
        QVERIFY(station->round());
    }

    void switchedOffNothingIsRecorded()
    {
        Station::storeInUse({});
        QVERIFY(station->open());
        station->togglePolling();
        station->tick(10 * Station::emptyRound);
        QCOMPARE(fileText(recordFile), QByteArray("(no file)"));
        station->togglePolling();
        station->tick(Station::emptyRound);
        QCOMPARE(Station::records(), 1);
    }
};

NELVO_TEST_MAIN(TemperatureRecordTest)
#include "temperaturerecord.moc"
