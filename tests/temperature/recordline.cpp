// The waveform and the text of the temperature record.

#include "temperature/recordline.h"

#include "base/channels.h"
#include "support/testmain.h"

namespace {

QByteArray lineAt(double elapsedSec)
{
    QVector<double> values;
    for (int channel = 0; channel < Channels::count; ++channel) {
        values.append(Record::value(channel, elapsedSec));
    }
    return Record::line(elapsedSec, values);
}

} // namespace

class RecordLineTest : public QObject
{
    Q_OBJECT

private slots:
    void atZeroEveryValueIsItsCentre()
    {
        QCOMPARE(lineAt(0.0), QByteArray("0\t500\t470\t440\t410\t380\t350\t320\t290\t260\n"));
    }

    // Worked out apart from the program, from the formula.
    void valuesInTime_data()
    {
        QTest::addColumn<double>("elapsedSec");
        QTest::addColumn<QByteArray>("line");
        QTest::newRow("half a minute")
            << 30.0
            << QByteArray("30\t550\t527.081\t496.677\t457.105\t407.934\t350.159\t286.191\t"
                          "219.651\t154.986\n");
        QTest::newRow("a minute and a half")
            << 90.5
            << QByteArray(
                   "90.5\t450.014\t436.132\t463.835\t486.97\t450.481\t345.246\t227.749\t178.174\t227.543\n");
        QTest::newRow("elapsed time rounded to six digits")
            << 1234.5678
            << QByteArray("1234.57\t548.939\t520.777\t482.559\t433.495\t374.841\t309.883\t243.564\t181."
                          "797\t130.546\n");
        QTest::newRow("a day")
            << 86400.0
            << QByteArray(
                   "86400\t462.496\t447.217\t444.84\t450.296\t455.072\t449.213\t423.952\t374.306\t300.929\n");
        QTest::newRow("a fortnight")
            << 1234567.0
            << QByteArray("1.23457e+06\t458.249\t501.744\t431.147\t386.063\t440.323\t258.112\t"
                          "429.965\t182.251\t342.178\n");
    }

    void valuesInTime()
    {
        QFETCH(double, elapsedSec);
        QFETCH(QByteArray, line);
        QCOMPARE(lineAt(elapsedSec), line);
    }

    void valuesStayWithinTheirAmplitude()
    {
        for (int channel = 0; channel < Channels::count; ++channel) {
            double lowest = 1e9;
            double highest = -1e9;
            for (int tenths = 0; tenths < 36000; ++tenths) {
                const double value = Record::value(channel, tenths / 10.0);
                lowest = qMin(lowest, value);
                highest = qMax(highest, value);
            }
            const double centre = 500 - 30 * channel;
            const double amplitude = 50 + 10 * channel;
            QVERIFY(lowest >= centre - amplitude && lowest < centre - amplitude + 0.1);
            QVERIFY(highest <= centre + amplitude && highest > centre + amplitude - 0.1);
        }
    }

    void numbers_data()
    {
        QTest::addColumn<double>("number");
        QTest::addColumn<QByteArray>("written");
        QTest::newRow("no trailing zeros") << 500.0 << QByteArray("500");
        QTest::newRow("six digits") << 1234.5678 << QByteArray("1234.57");
        QTest::newRow("exponent") << 1234567.0 << QByteArray("1.23457e+06");
        QTest::newRow("before the exponent") << 999999.0 << QByteArray("999999");
        QTest::newRow("small") << 0.01 << QByteArray("0.01");
        QTest::newRow("negative") << -0.25 << QByteArray("-0.25");
    }

    void numbers()
    {
        QFETCH(double, number);
        QFETCH(QByteArray, written);
        QCOMPARE(Record::line(number, {number}), written + '\t' + written + '\n');
    }

    void aLineOfNoValues() { QCOMPARE(Record::line(1.5, {}), QByteArray("1.5\n")); }
};

NELVO_TEST_MAIN(RecordLineTest)
#include "recordline.moc"
