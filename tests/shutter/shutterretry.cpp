// A shutter command on a bus that a temperature reply keeps busy. The station's own timers run here.

#include "support/messagecapture.h"
#include "support/stationfixture.h"
#include "support/testmain.h"

class ShutterRetryTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void theBusIsNotReaddressedWhileAReplyIsPending();
    void thePanelShowsTheChangeWhenItIsSent();
    void retriesSayThatTheyDo();
    void retriesStopWithTheReply();
    void theLastChangeWins();
    void allCloseWaitsToo();
    void thereIsNoLimitOnRetries();

private:
    int lines(const QString& text) const { return MessageCapture::texts().count(text); }

    std::unique_ptr<StationFixture> station;
    std::unique_ptr<MessageCapture> capture;
};

namespace {

const QString retrying = QStringLiteral("Shutter retrying");
const QString sent = QStringLiteral("Shutter Ok");
const QByteArray toTemperatures = "++addr 1\n++eos 0\n++eoi 1\n";
const QByteArray toShutters = "++addr 3\n++eos 3\n++eoi 0\n";

} // namespace

void ShutterRetryTest::init()
{
    // One channel in use: its read is on the bus and stays there until the test answers it.
    StationFixture::storeInUse({0});
    station = std::make_unique<StationFixture>(StationFixture::Ticks::Running);
    QVERIFY(station->open());
    QVERIFY(station->adapter.expect(toTemperatures + readBytes(0)));
    capture = std::make_unique<MessageCapture>();
}

void ShutterRetryTest::cleanup()
{
    capture.reset();
    station.reset();
}

void ShutterRetryTest::theBusIsNotReaddressedWhileAReplyIsPending()
{
    station->click(QStringLiteral("CS01"));
    QTRY_VERIFY(lines(retrying) >= 3);
    QVERIFY(station->adapter.expectNothing());
    station->adapter.send(reading(25.0) + '\n');
    QVERIFY(station->adapter.expect(toShutters + "\x1B\x01\n"));
}

void ShutterRetryTest::thePanelShowsTheChangeWhenItIsSent()
{
    const QString before = station->style(QStringLiteral("CS01"));
    station->click(QStringLiteral("CS01"));
    QTRY_VERIFY(lines(retrying) >= 2);
    QCOMPARE(station->text(QStringLiteral("CS01")), QStringLiteral("Close"));
    QCOMPARE(station->style(QStringLiteral("CS01")), before);

    station->adapter.send(reading(25.0) + '\n');
    QTRY_COMPARE(lines(sent), 1);
    QCOMPARE(station->text(QStringLiteral("CS01")), QStringLiteral("Open"));
    QCOMPARE(station->style(QStringLiteral("CS01")), QStringLiteral("background-color: rgb(255, 255, 15);"));
}

void ShutterRetryTest::retriesSayThatTheyDo()
{
    station->click(QStringLiteral("CS01"));
    // The first line comes with the click, before any timer.
    QCOMPARE(MessageCapture::texts(), QStringList{retrying});
    const LoggedMessage first = MessageCapture::messages().first();
    QCOMPARE(first.unit, QStringLiteral("shutter"));
    QCOMPARE(first.function, QStringLiteral("void MBEMain::ActionShutter()"));
    QCOMPARE(first.category, QStringLiteral("default"));
    QTRY_VERIFY(lines(retrying) >= 3);
    QCOMPARE(lines(retrying), MessageCapture::texts().size());
}

void ShutterRetryTest::retriesStopWithTheReply()
{
    station->click(QStringLiteral("CS01"));
    QTRY_VERIFY(lines(retrying) >= 2);
    station->adapter.send(reading(25.0) + '\n');
    QTRY_COMPARE(lines(sent), 1);
    const int retries = lines(retrying);

    // A whole polling round later, with the next read pending, nothing was tried again.
    QVERIFY(station->adapter.expect(toShutters + "\x1B\x01\n" + toTemperatures + readBytes(0)));
    QTRY_COMPARE(StationFixture::records(), 1);
    QCOMPARE(lines(retrying), retries);
    QCOMPARE(lines(sent), 1);
    QVERIFY(station->adapter.expectNothing());
}

void ShutterRetryTest::theLastChangeWins()
{
    station->click(QStringLiteral("CS01"));
    station->click(QStringLiteral("CS02"));
    QTRY_VERIFY(lines(retrying) >= 4);
    station->click(QStringLiteral("CS01"));
    station->click(QStringLiteral("CS07"));
    station->adapter.send(reading(25.0) + '\n');
    // One command for all four clicks, and it is the last state.
    QVERIFY(station->adapter.expect(toShutters + "\x1B\x42\n" + toTemperatures + readBytes(0)));
    QCOMPARE(lines(sent), 1);
    QCOMPARE(lines(QStringLiteral("\"GPIB shutter controll [xoxxxxo]\"")), 1);
}

void ShutterRetryTest::allCloseWaitsToo()
{
    station->click(QStringLiteral("NS03"));
    station->click(QStringLiteral("ChangeShutterB"));
    station->click(QStringLiteral("AllCloseB"));
    QCOMPARE(
        MessageCapture::texts().mid(0, 3), (QStringList{retrying, QStringLiteral("All Close 7"), retrying}));
    QVERIFY(station->adapter.expectNothing());
    station->adapter.send("ER\n");
    QVERIFY(station->adapter.expect(toShutters + QByteArray("\x1B\x00\n", 3)));
    QCOMPARE(station->text(QStringLiteral("NS03")), QStringLiteral("Open"));
}

void ShutterRetryTest::thereIsNoLimitOnRetries()
{
    station->click(QStringLiteral("CS05"));
    // A hundred and more: longer than any reasonable reply takes.
    QTRY_VERIFY_WITH_TIMEOUT(lines(retrying) >= 120, 10000);
    QVERIFY(station->adapter.expectNothing());
    station->adapter.send(reading(25.0) + '\n');
    QVERIFY(station->adapter.expect(toShutters + "\x1B\x10\n"));
}

NELVO_TEST_MAIN(ShutterRetryTest)

#include "shutterretry.moc"
