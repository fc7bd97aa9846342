// The shutter panel under an operator's hand, on a bus that is free.

#include "support/messagecapture.h"
#include "support/stationfixture.h"
#include "support/testmain.h"

class ShutterPanelTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void startShowsAndCommandsAllClosed();
    void startSaysWhatItDoes();
    void newButtonsPrepareAndSendNothing();
    void newClickedTwiceIsAsBefore();
    void nowButtonsSendAtOnce();
    void everyShutterHasItsBit();
    void changeSendsThePreparedCombination();
    void changeSendsEvenWhenNothingChanges();
    void changeLeavesThePreparedCombination();
    void allCloseKeepsThePreparedCombination();
    void nowLeavesNewAlone();
    void masksThatLookLikeControlBytesArrive();
    void debugLinesNameTheUnit();

private:
    QString shown(const QString& row) const;

    std::unique_ptr<StationFixture> station;
};

namespace {

const QString yellow = QStringLiteral("background-color: rgb(255, 255, 15);");
const QString olive = QStringLiteral("background-color: rgb(185, 185, 105);");

QByteArray command(int mask)
{
    return QByteArray("\x1B") + static_cast<char>(mask) + '\n';
}

QString button(const QString& row, int shutter)
{
    return QStringLiteral("%1%2").arg(row).arg(shutter, 2, 10, QLatin1Char('0'));
}

} // namespace

void ShutterPanelTest::init()
{
    station = std::make_unique<StationFixture>();
    QVERIFY(station->open());
}

void ShutterPanelTest::cleanup()
{
    const bool isQuiet = QTest::currentTestFailed() || station->adapter.expectNothing();
    station.reset();
    QVERIFY(isQuiet);
}

// The states of a row of buttons as letters: "o" yellow and "Open", "x" olive and "Close", "?" anything else.
QString ShutterPanelTest::shown(const QString& row) const
{
    QString letters;
    for (int shutter = 1; shutter <= 7; ++shutter) {
        const QString text = station->text(button(row, shutter));
        const QString style = station->style(button(row, shutter));
        if (text == QLatin1String("Open") && style == yellow) {
            letters += QLatin1Char('o');
        } else if (text == QLatin1String("Close") && style == olive) {
            letters += QLatin1Char('x');
        } else {
            letters += QLatin1Char('?');
        }
    }
    return letters;
}

void ShutterPanelTest::startShowsAndCommandsAllClosed()
{
    // open() has seen the command, the last of the opening bytes.
    QCOMPARE(shown(QStringLiteral("CS")), QStringLiteral("xxxxxxx"));
    QCOMPARE(shown(QStringLiteral("NS")), QStringLiteral("xxxxxxx"));
    QStringList names;
    for (int shutter = 1; shutter <= 7; ++shutter) {
        names += station->text(button(QStringLiteral("SName"), shutter));
    }
    QCOMPARE(names.join(QLatin1Char(' ')), QStringLiteral("Be Ga Si As4 Al In As7"));
}

void ShutterPanelTest::startSaysWhatItDoes()
{
    station->close();
    const MessageCapture capture;
    QVERIFY(station->open());
    QCOMPARE(MessageCapture::texts(),
        (QStringList{QStringLiteral("All Close 7"), QStringLiteral("Shutter Ok"),
            QStringLiteral("\"GPIB shutter controll [xxxxxxx]\"")}));
}

void ShutterPanelTest::newButtonsPrepareAndSendNothing()
{
    const MessageCapture capture;
    station->click(QStringLiteral("NS01"));
    station->click(QStringLiteral("NS04"));
    QCOMPARE(shown(QStringLiteral("NS")), QStringLiteral("oxxoxxx"));
    QCOMPARE(shown(QStringLiteral("CS")), QStringLiteral("xxxxxxx"));
    QVERIFY(station->adapter.expectNothing());
    QCOMPARE(MessageCapture::texts(), QStringList());
}

void ShutterPanelTest::newClickedTwiceIsAsBefore()
{
    for (int shutter = 1; shutter <= 7; ++shutter) {
        station->click(button(QStringLiteral("NS"), shutter));
        station->click(button(QStringLiteral("NS"), shutter));
        QCOMPARE(shown(QStringLiteral("NS")), QStringLiteral("xxxxxxx"));
    }
    QVERIFY(station->adapter.expectNothing());
}

void ShutterPanelTest::nowButtonsSendAtOnce()
{
    station->click(QStringLiteral("CS03"));
    QVERIFY(station->adapter.expect(command(0x04)));
    QCOMPARE(shown(QStringLiteral("CS")), QStringLiteral("xxoxxxx"));
    station->click(QStringLiteral("CS03"));
    QVERIFY(station->adapter.expect(command(0x00)));
    QCOMPARE(shown(QStringLiteral("CS")), QStringLiteral("xxxxxxx"));
}

void ShutterPanelTest::everyShutterHasItsBit()
{
    int mask = 0;
    for (int shutter = 1; shutter <= 7; ++shutter) {
        station->click(button(QStringLiteral("CS"), shutter));
        mask |= 1 << (shutter - 1);
        QVERIFY(station->adapter.expect(command(mask)));
    }
    QCOMPARE(mask, 0x7F);
    QCOMPARE(shown(QStringLiteral("CS")), QStringLiteral("ooooooo"));
}

void ShutterPanelTest::changeSendsThePreparedCombination()
{
    station->click(QStringLiteral("NS01"));
    station->click(QStringLiteral("NS07"));
    station->click(QStringLiteral("ChangeShutterB"));
    QVERIFY(station->adapter.expect(command(0x41)));
    QCOMPARE(shown(QStringLiteral("CS")), QStringLiteral("oxxxxxo"));
}

void ShutterPanelTest::changeSendsEvenWhenNothingChanges()
{
    station->click(QStringLiteral("ChangeShutterB"));
    QVERIFY(station->adapter.expect(command(0x00)));
    station->click(QStringLiteral("ChangeShutterB"));
    QVERIFY(station->adapter.expect(command(0x00)));
}

void ShutterPanelTest::changeLeavesThePreparedCombination()
{
    station->click(QStringLiteral("NS02"));
    station->click(QStringLiteral("ChangeShutterB"));
    QCOMPARE(shown(QStringLiteral("NS")), QStringLiteral("xoxxxxx"));
    station->click(QStringLiteral("NS03"));
    QCOMPARE(shown(QStringLiteral("CS")), QStringLiteral("xoxxxxx"));
    station->click(QStringLiteral("ChangeShutterB"));
    QVERIFY(station->adapter.expect(command(0x02) + command(0x06)));
}

void ShutterPanelTest::allCloseKeepsThePreparedCombination()
{
    station->click(QStringLiteral("NS02"));
    station->click(QStringLiteral("NS05"));
    station->click(QStringLiteral("ChangeShutterB"));
    QVERIFY(station->adapter.expect(command(0x12)));

    station->click(QStringLiteral("AllCloseB"));
    QVERIFY(station->adapter.expect(command(0x00)));
    QCOMPARE(shown(QStringLiteral("CS")), QStringLiteral("xxxxxxx"));
    QCOMPARE(shown(QStringLiteral("NS")), QStringLiteral("xoxxoxx"));

    station->click(QStringLiteral("ChangeShutterB"));
    QVERIFY(station->adapter.expect(command(0x12)));
    QCOMPARE(shown(QStringLiteral("CS")), QStringLiteral("xoxxoxx"));
}

void ShutterPanelTest::nowLeavesNewAlone()
{
    station->click(QStringLiteral("NS01"));
    station->click(QStringLiteral("CS02"));
    QVERIFY(station->adapter.expect(command(0x02)));
    QCOMPARE(shown(QStringLiteral("NS")), QStringLiteral("oxxxxxx"));
    // What was opened by hand and is not in the prepared combination is closed by it.
    station->click(QStringLiteral("ChangeShutterB"));
    QVERIFY(station->adapter.expect(command(0x01)));
    QCOMPARE(shown(QStringLiteral("CS")), QStringLiteral("oxxxxxx"));
}

void ShutterPanelTest::masksThatLookLikeControlBytesArrive()
{
    for (const int mask : {0x0A, 0x0D, 0x1B, 0x2B}) {
        const QString before = shown(QStringLiteral("NS"));
        for (int n = 0; n < 7; ++n) {
            const bool wanted = (mask & (1 << n)) != 0;
            if (wanted != (before[n] == QLatin1Char('o'))) {
                station->click(button(QStringLiteral("NS"), n + 1));
            }
        }
        station->click(QStringLiteral("ChangeShutterB"));
        QVERIFY(station->adapter.expect(command(mask)));
    }
}

void ShutterPanelTest::debugLinesNameTheUnit()
{
    const MessageCapture capture;
    station->click(QStringLiteral("CS01"));
    station->click(QStringLiteral("CS04"));
    station->click(QStringLiteral("AllCloseB"));
    QVERIFY(station->adapter.expect(command(0x01) + command(0x09) + command(0x00)));

    QCOMPARE(MessageCapture::texts(),
        (QStringList{QStringLiteral("Shutter Ok"), QStringLiteral("\"GPIB shutter controll [oxxxxxx]\""),
            QStringLiteral("Shutter Ok"), QStringLiteral("\"GPIB shutter controll [oxxoxxx]\""),
            QStringLiteral("All Close 7"), QStringLiteral("Shutter Ok"),
            QStringLiteral("\"GPIB shutter controll [xxxxxxx]\"")}));
    for (const LoggedMessage& message : MessageCapture::messages()) {
        QCOMPARE(message.type, QtDebugMsg);
        QCOMPARE(message.unit, QStringLiteral("shutter"));
        QCOMPARE(message.category, QStringLiteral("default"));
        QVERIFY(message.line > 0);
        const QString slot = message.text.startsWith(QLatin1String("All Close"))
            ? QStringLiteral("void MBEMain::AllClose()")
            : QStringLiteral("void MBEMain::ActionShutter()");
        QCOMPARE(message.function, slot);
    }
}

NELVO_TEST_MAIN(ShutterPanelTest)

#include "shutterpanel.moc"
