// The temperature record as a file on the disk.

#include "app/mbemain.h"
#include "chart/tshowview.h"
#include "support/files.h"
#include "support/messagecapture.h"
#include "support/stationfixture.h"
#include "support/testmain.h"
#include "support/ticks.h"
#include "temperature/recordline.h"

#include <QDir>
#include <QFile>

class TemperatureRecordTest : public QObject
{
    Q_OBJECT

private slots:
    void init() { station = std::make_unique<StationFixture>(); }
    void cleanup()
    {
        station.reset();
        const QString name = QStringLiteral("TemperatureRec.dat");
        QFile::setPermissions(name, QFile::ReadOwner | QFile::WriteOwner);
        QVERIFY(!QFileInfo::exists(name) || QDir().rmdir(name) || QFile::remove(name));
    }

    void theFirstRecordMakesTheFile();
    void aRecordARound();
    void theValuesAreNotTheMeasuredOnes();
    void aSecondRunAppendsAndStartsAtZero();
    void whatStandsInTheFileStays();
    void aFileThatCannotBeOpenedIsPassedOver();
    void aFullDiskKeepsWhatIsThere();
    void theChartGetsWhatIsRecorded_data();
    void theChartGetsWhatIsRecorded();
    void aSilentControllerStopsTheRecord();
    void switchedOffNothingIsRecorded();

private:
    std::unique_ptr<StationFixture> station;
};

namespace {

const QByteArray atZero = "0\t500\t470\t440\t410\t380\t350\t320\t290\t260\n";
// Three ticks a channel that is not in use.
constexpr int emptyRound = 27;

QByteArray content()
{
    QFile file(QStringLiteral("TemperatureRec.dat"));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("no file");
}

} // namespace

void TemperatureRecordTest::theFirstRecordMakesTheFile()
{
    StationFixture::storeInUse({});
    QVERIFY(station->open());
    station->tick(emptyRound - 1);
    QCOMPARE(content(), QByteArray("no file"));
    station->tick();
    QCOMPARE(content(), atZero);
}

void TemperatureRecordTest::aRecordARound()
{
    StationFixture::storeInUse({});
    QVERIFY(station->open());
    for (int round = 1; round <= 10; ++round) {
        station->tick(emptyRound - 1);
        QCOMPARE(StationFixture::records(), round - 1);
        station->tick();
        QCOMPARE(StationFixture::records(), round);
    }
}

void TemperatureRecordTest::theValuesAreNotTheMeasuredOnes()
{
    for (int channel = 0; channel < 9; ++channel) {
        station->answers[channel] = reading(1000.0 + channel);
    }
    QVERIFY(station->open());
    DrivenClock::advance(90500);
    QVERIFY(station->round());
    QCOMPARE(station->text(QStringLiteral("CDeg09")), QStringLiteral("1008"));
    QCOMPARE(content(),
        QByteArray("90.5\t450.014\t436.132\t463.835\t486.97\t450.481\t345.246\t227.749\t178.174\t227.543\n"));
}

void TemperatureRecordTest::aSecondRunAppendsAndStartsAtZero()
{
    StationFixture::storeInUse({});
    QVERIFY(station->open());
    station->tick(emptyRound);
    DrivenClock::advance(30000);
    station->tick(emptyRound);
    station->close();

    DrivenClock::advance(3600000);
    QVERIFY(station->open());
    station->tick(emptyRound);
    QCOMPARE(content(),
        atZero + "30\t550\t527.081\t496.677\t457.105\t407.934\t350.159\t286.191\t219.651\t154.986\n"
            + atZero);
}

void TemperatureRecordTest::whatStandsInTheFileStays()
{
    QFile file(QStringLiteral("TemperatureRec.dat"));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("an earlier line\n");
    file.close();
    StationFixture::storeInUse({});
    QVERIFY(station->open());
    station->tick(emptyRound);
    QCOMPARE(content(), "an earlier line\n" + atZero);
}

void TemperatureRecordTest::aFileThatCannotBeOpenedIsPassedOver()
{
    const QString name = QStringLiteral("TemperatureRec.dat");
    QVERIFY(QDir().mkdir(name));
    StationFixture::storeInUse({0});
    QVERIFY(station->open());
    const MessageCapture capture;
    // The polling goes on round by round: channel 0 is read again and again.
    QVERIFY(station->tickUntil([this] { return station->reads.size() >= 5; }));
    QCOMPARE(MessageCapture::texts(), QStringList());
    QVERIFY(QFileInfo(name).isDir());
    QVERIFY(station->statusBar().isEmpty());

    // The place free again, the next round records.
    QVERIFY(QDir().rmdir(name));
    QVERIFY(station->round());
    QCOMPARE(content(), atZero);
}

void TemperatureRecordTest::aFullDiskKeepsWhatIsThere()
{
    if (!FullDisk::isPossible()) {
        QSKIP("no way to limit a file's size here");
    }
    StationFixture::storeInUse({});
    QVERIFY(station->open());
    station->tick(emptyRound);
    {
        const FullDisk full(atZero.size());
        station->tick(3 * emptyRound);
    }
    QCOMPARE(content(), atZero);
    station->tick(emptyRound);
    QCOMPARE(content(), atZero + atZero);
}

void TemperatureRecordTest::theChartGetsWhatIsRecorded_data()
{
    QTest::addColumn<QString>("obstacle");
    for (const char* obstacle : {"none", "directory", "read-only file", "full disk"}) {
        QTest::newRow(obstacle) << QString::fromLatin1(obstacle);
    }
}

void TemperatureRecordTest::theChartGetsWhatIsRecorded()
{
    QFETCH(const QString, obstacle);
    const QString name = QStringLiteral("TemperatureRec.dat");
    std::unique_ptr<FullDisk> full;
    StationFixture::storeInUse({});
    QVERIFY(station->open());
    if (obstacle == QStringLiteral("directory")) {
        QVERIFY(QDir().mkdir(name));
    } else if (obstacle == QStringLiteral("read-only file")) {
        putFile(name, "");
        QVERIFY(QFile::setPermissions(name, QFile::ReadOwner));
        if (QFile(name).open(QIODevice::Append)) {
            QSKIP("this user may write to read-only files");
        }
    } else if (obstacle == QStringLiteral("full disk")) {
        if (!FullDisk::isPossible()) {
            QSKIP("no way to limit a file's size here");
        }
        full = std::make_unique<FullDisk>(0);
    }
    const auto* chart = station->window->findChild<TShowView*>(QStringLiteral("TSView"));
    QVERIFY(chart != nullptr);
    station->tick(emptyRound);
    DrivenClock::advance(30000);
    station->tick(emptyRound);
    full.reset();

    QCOMPARE(chart->channels().size(), 9);
    for (int n = 0; n < 9; ++n) {
        const PointBuffer& points = chart->channels().at(n);
        QCOMPARE(points.size(), 2);
        QCOMPARE(points.at(0).sec, 0.0);
        QCOMPARE(points.at(0).degC, 500.0 - 30 * n);
        QCOMPARE(points.at(1).sec, 30.0);
        QCOMPARE(points.at(1).degC, Record::value(n, 30.0));
    }
    QCOMPARE(StationFixture::records(), obstacle == QStringLiteral("none") ? 2 : 0);
}

void TemperatureRecordTest::aSilentControllerStopsTheRecord()
{
    StationFixture::storeInUse({4});
    QVERIFY(station->open());
    // The first round ends with the time-out of the one read; the next read waits for a line.
    station->tick(5000);
    QCOMPARE(StationFixture::records(), 1);
    QVERIFY(station->adapter.expect("++addr 1\n++eos 0\n++eoi 1\n" + readBytes(4)));
    QVERIFY(station->adapter.expectNothing());
    QVERIFY(station->adapter.isConnected());
    station->adapter.send("\n");
    QVERIFY(station->round());
}

void TemperatureRecordTest::switchedOffNothingIsRecorded()
{
    StationFixture::storeInUse({});
    QVERIFY(station->open());
    QTest::keyClick(station->widget(QStringLiteral("TMPCtrlActive")), Qt::Key_Space);
    station->tick(10 * emptyRound);
    QCOMPARE(content(), QByteArray("no file"));
    QTest::keyClick(station->widget(QStringLiteral("TMPCtrlActive")), Qt::Key_Space);
    station->tick(emptyRound);
    QCOMPARE(StationFixture::records(), 1);
}

NELVO_TEST_MAIN(TemperatureRecordTest)

#include "temperaturerecord.moc"
