// What starts a ramp, what refuses it, and what the operator is told.

#include "app/mbemain.h"
#include "support/stationfixture.h"
#include "support/testmain.h"

#include <QElapsedTimer>
#include <QStatusBar>

class RampStartTest : public QObject
{
    Q_OBJECT

private slots:
    void init() { station = std::make_unique<StationFixture>(); }
    void cleanup() { station.reset(); }

    void aDurationThatIsNoneIsRefused_data();
    void aDurationThatIsNoneIsRefused();
    void aRiseTooFastIsRefused_data();
    void aRiseTooFastIsRefused();
    void aWarningStaysTwoSeconds();
    void rampsAtTheLimitAndFallsOfAnySpeedStart_data();
    void rampsAtTheLimitAndFallsOfAnySpeedStart();
    void anUnknownTemperatureCountsAsZero();
    void aStartShowsStopAndSendsNothingAtOnce();
    void aChannelNotInUseDoesNotStart();
    void entriesThatAreNoNumbers_data();
    void entriesThatAreNoNumbers();

private:
    bool openAt(int channel, const QByteArray& answer);
    void press(int channel, const QString& target, const QString& duration);
    QString name(const QString& row, int channel) const
    {
        return QStringLiteral("%1%2").arg(row).arg(channel + 1, 2, 10, QLatin1Char('0'));
    }
    bool isRunning(int channel) const;

    std::unique_ptr<StationFixture> station;
};

namespace {

QString notCorrect(const char* minutes, const char* cell)
{
    return QStringLiteral("Setting time [%1] for the cell [%2] is not correct.")
        .arg(QLatin1String(minutes), QLatin1String(cell));
}

} // namespace

// A station whose one channel in use shows what it measures.
bool RampStartTest::openAt(int channel, const QByteArray& answer)
{
    StationFixture::storeInUse({channel});
    station->answers[channel] = answer;
    return station->open() && station->round();
}

void RampStartTest::press(int channel, const QString& target, const QString& duration)
{
    station->type(name(QStringLiteral("TDeg"), channel), target);
    station->type(name(QStringLiteral("DTime"), channel), duration);
    station->click(name(QStringLiteral("RunT"), channel));
}

bool RampStartTest::isRunning(int channel) const
{
    return station->text(name(QStringLiteral("RunT"), channel)) == QLatin1String("Stop")
        && station->style(name(QStringLiteral("RunT"), channel))
        == QLatin1String("background-color: rgb(255, 255, 15);");
}

void RampStartTest::aDurationThatIsNoneIsRefused_data()
{
    QTest::addColumn<int>("channel");
    QTest::addColumn<QString>("duration");
    QTest::addColumn<QString>("message");
    QTest::newRow("0") << 3 << QStringLiteral("0") << notCorrect("0", "3:As4");
    QTest::newRow("0.0") << 0 << QStringLiteral("0.0") << notCorrect("0", "0:Be");
    QTest::newRow("empty") << 8 << QString() << notCorrect("0", "8:Pre Ch");
    QTest::newRow("no number") << 7 << QStringLiteral("ten") << notCorrect("0", "7:Main Ch");
    QTest::newRow("a comma") << 6 << QStringLiteral("2,5") << notCorrect("0", "6:As7");
    QTest::newRow("negative") << 1 << QStringLiteral("-2.50") << notCorrect("-2.5", "1:Ga");
    QTest::newRow("six digits") << 1 << QStringLiteral("-1234.5678") << notCorrect("-1234.57", "1:Ga");
}

void RampStartTest::aDurationThatIsNoneIsRefused()
{
    QFETCH(int, channel);
    QFETCH(QString, duration);
    QFETCH(QString, message);
    QVERIFY(openAt(channel, reading(100.0)));
    press(channel, QStringLiteral("200"), duration);
    QCOMPARE(station->statusBar(), message);
    QVERIFY(!isRunning(channel));
    QCOMPARE(station->text(name(QStringLiteral("RunT"), channel)), QStringLiteral("Run"));
    DrivenClock::advance(600000);
    QVERIFY(station->round());
    QVERIFY(station->setPoints.isEmpty());
}

void RampStartTest::aRiseTooFastIsRefused_data()
{
    QTest::addColumn<QString>("target");
    QTest::addColumn<QString>("duration");
    QTest::newRow("60 a minute") << QStringLiteral("700") << QStringLiteral("10");
    QTest::newRow("50.1 a minute") << QStringLiteral("150.1") << QStringLiteral("1");
    QTest::newRow("a short time") << QStringLiteral("101") << QStringLiteral("0.01");
}

void RampStartTest::aRiseTooFastIsRefused()
{
    QFETCH(QString, target);
    QFETCH(QString, duration);
    QVERIFY(openAt(5, reading(100.0)));
    press(5, target, duration);
    QCOMPARE(station->statusBar(),
        QStringLiteral(
            "The temperature rise up rate should be less than 50 deg-C per min for the cell [5:In]."));
    QVERIFY(!isRunning(5));
    DrivenClock::advance(600000);
    QVERIFY(station->round());
    QVERIFY(station->setPoints.isEmpty());
}

void RampStartTest::aWarningStaysTwoSeconds()
{
    QVERIFY(openAt(0, reading(100.0)));
    QElapsedTimer timer;
    timer.start();
    press(0, QStringLiteral("200"), QStringLiteral("0"));
    QVERIFY(!station->statusBar().isEmpty());
    QTRY_VERIFY_WITH_TIMEOUT(station->statusBar().isEmpty(), 10000);
    QVERIFY(timer.elapsed() >= 1900);
}

void RampStartTest::rampsAtTheLimitAndFallsOfAnySpeedStart_data()
{
    QTest::addColumn<double>("current");
    QTest::addColumn<QString>("target");
    QTest::addColumn<QString>("duration");
    QTest::addColumn<QByteArray>("firstSetPoint");
    QTest::newRow("at the limit") << 100.0 << QStringLiteral("700") << QStringLiteral("12")
                                  << QByteArray("0150.0");
    QTest::newRow("a fast fall") << 700.0 << QStringLiteral("100") << QStringLiteral("1")
                                 << QByteArray("0100.0");
    QTest::newRow("a faster fall") << 700.0 << QStringLiteral("100") << QStringLiteral("0.1")
                                   << QByteArray("0100.0");
    QTest::newRow("blanks around") << 100.0 << QStringLiteral(" 200 ") << QStringLiteral(" 5 ")
                                   << QByteArray("0120.0");
    QTest::newRow("an exponent") << 100.0 << QStringLiteral("2e2") << QStringLiteral("5")
                                 << QByteArray("0120.0");
}

void RampStartTest::rampsAtTheLimitAndFallsOfAnySpeedStart()
{
    QFETCH(double, current);
    QFETCH(QString, target);
    QFETCH(QString, duration);
    QFETCH(QByteArray, firstSetPoint);
    QVERIFY(openAt(0, reading(current)));
    press(0, target, duration);
    QVERIFY(station->statusBar().isEmpty());
    QVERIFY(isRunning(0));
    DrivenClock::advance(1);
    QVERIFY(station->round());
    QCOMPARE(station->setPoints, QList<QByteArray>{setPointBytes(0, firstSetPoint).chopped(1)});
}

void RampStartTest::anUnknownTemperatureCountsAsZero()
{
    QVERIFY(openAt(0, "ER"));
    QCOMPARE(station->text(QStringLiteral("CDeg01")), QStringLiteral("----.-"));
    press(0, QStringLiteral("40"), QStringLiteral("10"));
    QVERIFY(isRunning(0));
    DrivenClock::advance(1);
    QVERIFY(station->round());
    QCOMPARE(station->setPoints, QList<QByteArray>{setPointBytes(0, "0004.0").chopped(1)});
}

void RampStartTest::aStartShowsStopAndSendsNothingAtOnce()
{
    QVERIFY(openAt(2, reading(100.0)));
    press(2, QStringLiteral("200"), QStringLiteral("5"));
    QVERIFY(isRunning(2));
    QVERIFY(station->adapter.expectNothing());
    QCOMPARE(station->text(QStringLiteral("SDeg03")), QStringLiteral("0.0"));
}

void RampStartTest::aChannelNotInUseDoesNotStart()
{
    QVERIFY(openAt(0, reading(100.0)));
    press(1, QStringLiteral("40"), QStringLiteral("10"));
    QVERIFY(!isRunning(1));
    // Not even a wrong entry is remarked on.
    press(1, QStringLiteral("40"), QStringLiteral("0"));
    QVERIFY(station->statusBar().isEmpty());
}

void RampStartTest::entriesThatAreNoNumbers_data()
{
    QTest::addColumn<QString>("target");
    QTest::newRow("empty") << QString();
    QTest::newRow("a word") << QStringLiteral("hot");
    QTest::newRow("a comma") << QStringLiteral("40,5");
    QTest::newRow("two points") << QStringLiteral("1.2.3");
    QTest::newRow("without an end") << QStringLiteral("inf");
    QTest::newRow("nan") << QStringLiteral("nan");
    QTest::newRow("too large") << QStringLiteral("1e999");
    QTest::newRow("what looks like a place to fill in") << QStringLiteral("%2");
}

// A target that is no number is 0: from 100 deg C, a fall of 10 a minute. The operator is told, at the start and
// with every set point.
void RampStartTest::entriesThatAreNoNumbers()
{
    QFETCH(QString, target);
    const QString told
        = QStringLiteral("The target [%1] of the cell [0:Be] is not a number and counts as 0.").arg(target);
    QVERIFY(openAt(0, reading(100.0)));
    press(0, target, QStringLiteral("10"));
    QVERIFY(isRunning(0));
    QCOMPARE(station->statusBar(), told);
    station->window->statusBar()->clearMessage();
    DrivenClock::advance(1);
    QVERIFY(station->round());
    QCOMPARE(station->statusBar(), told);
    QCOMPARE(station->setPoints, QList<QByteArray>{setPointBytes(0, "0090.0").chopped(1)});
}

NELVO_TEST_MAIN(RampStartTest)

#include "rampstart.moc"
