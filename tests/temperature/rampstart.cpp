// What starts a ramp, what refuses it, and what the operator is told.

#include "app/mbemain.h"
#include "support/stationtest.h"
#include "support/testmain.h"

#include <QStatusBar>
#include <QTimer>

using namespace TestText;

namespace {

QString notCorrect(const char* minutes, const char* channel)
{
    return "Setting time [%1] for the cell [%2] is not correct."_s.arg(
        QLatin1String(minutes), QLatin1String(channel));
}

} // namespace

class RampStartTest : public StationTest
{
    Q_OBJECT

    // A station whose one channel in use shows what it measures.
    bool openAt(int channel, const QByteArray& answer)
    {
        Station::storeInUse({channel});
        station->answers[channel] = answer;
        return station->open() && station->round();
    }

private slots:
    void aDurationThatIsNoneIsRefused_data()
    {
        QTest::addColumn<int>("channel");
        QTest::addColumn<QString>("duration");
        QTest::addColumn<QString>("message");
        QTest::newRow("0") << 3 << "0"_s << notCorrect("0", "3:As4");
        QTest::newRow("0.0") << 0 << "0.0"_s << notCorrect("0", "0:Be");
        QTest::newRow("empty") << 8 << QString() << notCorrect("0", "8:Pre Ch");
        QTest::newRow("no number") << 7 << "ten"_s << notCorrect("0", "7:Main Ch");
        QTest::newRow("a comma") << 6 << "2,5"_s << notCorrect("0", "6:As7");
        QTest::newRow("negative") << 1 << "-2.50"_s << notCorrect("-2.5", "1:Ga");
        QTest::newRow("six digits") << 1 << "-1234.5678"_s << notCorrect("-1234.57", "1:Ga");
    }

    void aDurationThatIsNoneIsRefused()
    {
        QFETCH(int, channel);
        QFETCH(QString, duration);
        QFETCH(QString, message);
        QVERIFY(openAt(channel, Wire::reading(100.0)));
        station->pressRun(channel, "200"_s, duration);
        QCOMPARE(station->statusBar(), message);
        QVERIFY(!station->isRamping(channel));
        DrivenClock::advance(600000);
        QVERIFY(station->round());
        QVERIFY(station->setPoints.isEmpty());
    }

    void aRiseTooFastIsRefused_data()
    {
        QTest::addColumn<QString>("target");
        QTest::addColumn<QString>("duration");
        const auto row = [](const char* name, const QString& target, const QString& duration) {
            QTest::newRow(name) << target << duration;
        };
        row("60 a minute", "700"_s, "10"_s);
        row("50.1 a minute", "150.1"_s, "1"_s);
        row("a short time", "101"_s, "0.01"_s);
    }

    void aRiseTooFastIsRefused()
    {
        QFETCH(QString, target);
        QFETCH(QString, duration);
        QVERIFY(openAt(5, Wire::reading(100.0)));
        station->pressRun(5, target, duration);
        QCOMPARE(station->statusBar(),
            "The temperature rise up rate should be less than 50 deg-C per min for the cell [5:In]."_s);
        QVERIFY(!station->isRamping(5));
        DrivenClock::advance(600000);
        QVERIFY(station->round());
        QVERIFY(station->setPoints.isEmpty());
    }

    void aWarningStaysTwoSeconds_data()
    {
        QTest::addColumn<QString>("target");
        QTest::addColumn<QString>("duration");
        QTest::newRow("a wrong time") << "200"_s
                                      << "0"_s;
        QTest::newRow("a rise too fast") << "200"_s
                                         << "1"_s;
        QTest::newRow("a target that is no number") << "hot"_s
                                                    << "10"_s;
    }

    // The status bar's timer takes the message away; to see it go is left to the eye.
    void aWarningStaysTwoSeconds()
    {
        QFETCH(QString, target);
        QFETCH(QString, duration);
        QVERIFY(openAt(0, Wire::reading(100.0)));
        station->pressRun(0, target, duration);
        QVERIFY(!station->statusBar().isEmpty());
        const auto* timer = station->window().statusBar()->findChild<QTimer*>();
        QVERIFY(timer != nullptr && timer->isActive());
        QCOMPARE(timer->interval(), 2000);
    }

    void rampsAtTheLimitAndFallsOfAnySpeedStart_data()
    {
        QTest::addColumn<QString>("target");
        QTest::addColumn<double>("current");
        QTest::addColumn<QString>("duration");
        QTest::addColumn<QByteArray>("firstSetPoint");
        QTest::newRow("at the limit") << "700"_s << 100.0 << "12"_s << QByteArray("0150.0");
        QTest::newRow("a fast fall") << "100"_s << 700.0 << "1"_s << QByteArray("0100.0");
        QTest::newRow("a faster fall") << "100"_s << 700.0 << "0.1"_s << QByteArray("0100.0");
        QTest::newRow("blanks around") << " 200 "_s << 100.0 << " 5 "_s << QByteArray("0120.0");
        QTest::newRow("an exponent") << "2e2"_s << 100.0 << "5"_s << QByteArray("0120.0");
    }

    void rampsAtTheLimitAndFallsOfAnySpeedStart()
    {
        QFETCH(QString, target);
        QFETCH(double, current);
        QFETCH(QString, duration);
        QFETCH(QByteArray, firstSetPoint);
        QVERIFY(openAt(0, Wire::reading(current)));
        station->pressRun(0, target, duration);
        QVERIFY(station->statusBar().isEmpty());
        QVERIFY(station->isRamping(0));
        DrivenClock::advance(1);
        QVERIFY(station->round());
        QCOMPARE(station->setPoints, QList<QByteArray>{Wire::setPoint(0, firstSetPoint)});
    }

    void anUnknownTemperatureCountsAsZero()
    {
        QVERIFY(openAt(0, "ER"));
        QCOMPARE(station->text(cell("CDeg", 0)), "----.-"_s);
        station->pressRun(0, "40"_s, "10"_s);
        QVERIFY(station->isRamping(0));
        DrivenClock::advance(1);
        QVERIFY(station->round());
        QCOMPARE(station->setPoints, QList<QByteArray>{Wire::setPoint(0, "0004.0")});
    }

    void aStartShowsStopAndSendsNothingAtOnce()
    {
        QVERIFY(openAt(2, Wire::reading(100.0)));
        station->pressRun(2, "200"_s, "5"_s);
        QVERIFY(station->isRamping(2));
        QVERIFY(station->adapter.expectNothing());
        QCOMPARE(station->text(cell("SDeg", 2)), "0.0"_s);
    }

    void aChannelNotInUseDoesNotStart()
    {
        QVERIFY(openAt(0, Wire::reading(100.0)));
        station->pressRun(1, "40"_s, "10"_s);
        QVERIFY(!station->isRamping(1));
        // Not even a wrong entry is remarked on.
        station->pressRun(1, "40"_s, "0"_s);
        QVERIFY(station->statusBar().isEmpty());
    }

    void entriesThatAreNoNumbers_data()
    {
        QTest::addColumn<QString>("target");
        QTest::newRow("empty") << QString();
        QTest::newRow("a word") << "hot"_s;
        QTest::newRow("a comma") << "40,5"_s;
        QTest::newRow("two points") << "1.2.3"_s;
        QTest::newRow("without an end") << "inf"_s;
        QTest::newRow("nan") << "nan"_s;
        QTest::newRow("too large") << "1e999"_s;
        QTest::newRow("what looks like a place to fill in") << "%2"_s;
    }

    // A target that is no number is 0: from 100 deg C, a fall of 10 a minute. The operator is told, at the
    // start and with every set point.
    void entriesThatAreNoNumbers()
    {
        QFETCH(QString, target);
        const QString told
            = "The target [%1] of the cell [0:Be] is not a number and counts as 0."_s.arg(target);
        QVERIFY(openAt(0, Wire::reading(100.0)));
        station->pressRun(0, target, "10"_s);
        QVERIFY(station->isRamping(0));
        QCOMPARE(station->statusBar(), told);
        station->window().statusBar()->clearMessage();
        DrivenClock::advance(1);
        QVERIFY(station->round());
        QCOMPARE(station->statusBar(), told);
        QCOMPARE(station->setPoints, QList<QByteArray>{Wire::setPoint(0, "0090.0")});
    }
};

NELVO_TEST_MAIN(RampStartTest)
#include "rampstart.moc"
