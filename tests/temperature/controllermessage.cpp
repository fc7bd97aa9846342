// The controllers' messages and replies as bytes.

#include "temperature/controllermessage.h"

#include "base/channels.h"
#include "support/testmain.h"

#include <clocale>
#include <cstdio>
#include <cstring>
#include <locale>

using namespace TestText;

namespace {

class CommaPoint : public std::numpunct<char>
{
protected:
    char do_decimal_point() const override { return ','; }
    char do_thousands_sep() const override { return '.'; }
    std::string do_grouping() const override { return "\3"; }
};

QByteArray value(double degC)
{
    return ControllerMessage::setPoint(0, degC).mid(6).chopped(1);
}

char exclusiveOr(const QByteArray& bytes)
{
    char check = 0;
    for (const char byte : bytes) {
        check = static_cast<char>(check ^ byte);
    }
    return check;
}

} // namespace

class ControllerMessageTest : public QObject
{
    Q_OBJECT

private slots:
    void readRequestsOfAllChannels()
    {
        for (int channel = 0; channel < Channels::count; ++channel) {
            const QByteArray expected
                = QByteArray::fromHex("0430") + QByteArray::number(channel + 1) + "M1\x05";
            QCOMPARE(ControllerMessage::readRequest(channel), expected);
        }
        QCOMPARE(ControllerMessage::readRequest(0), QByteArray::fromHex("0430314D3105"));
        QCOMPARE(ControllerMessage::readRequest(2), QByteArray::fromHex("0430334D3105"));
        QCOMPARE(ControllerMessage::readRequest(8), QByteArray::fromHex("0430394D3105"));
    }

    void setPointsOfAllChannels()
    {
        for (int channel = 0; channel < Channels::count; ++channel) {
            const QByteArray expected
                = QByteArray::fromHex("0430") + QByteArray::number(channel + 1) + "\x02S10025.0\x03";
            QCOMPARE(ControllerMessage::setPoint(channel, 25.0), expected);
        }
        QCOMPARE(ControllerMessage::setPoint(4, 120.0), QByteArray::fromHex("043035025331303132302E3003"));
    }

    // Its unit would be ':' or worse, which some other device might take for its own.
    void aChannelThatIsNotThereGetsNoMessage()
    {
        for (const int channel : {-1, Channels::count, 255}) {
            QCOMPARE(ControllerMessage::readRequest(channel), QByteArray());
            QCOMPARE(ControllerMessage::setPoint(channel, 25.0), QByteArray());
        }
    }

    void setPointFormats_data()
    {
        QTest::addColumn<double>("degC");
        QTest::addColumn<QByteArray>("written");
        QTest::newRow("zero") << 0.0 << QByteArray("0000.0");
        QTest::newRow("25") << 25.0 << QByteArray("0025.0");
        QTest::newRow("120") << 120.0 << QByteArray("0120.0");
        QTest::newRow("rounded up") << 1234.56 << QByteArray("1234.6");
        QTest::newRow("rounded down") << 1234.54 << QByteArray("1234.5");
        QTest::newRow("a half to even, down") << 101.25 << QByteArray("101.2").prepend('0');
        QTest::newRow("a half to even, up") << 101.75 << QByteArray("101.8").prepend('0');
        QTest::newRow("minus 5") << -5.0 << QByteArray("-005.0");
        QTest::newRow("minus 273.15") << -273.15 << QByteArray("-273.1");
        QTest::newRow("minus nearly nothing") << -0.04 << QByteArray("-000.0");
        QTest::newRow("9999.9") << 9999.9 << QByteArray("9999.9");
        QTest::newRow("into the next digit") << 9999.96 << QByteArray("10000.0");
        QTest::newRow("seven characters") << 12345.6 << QByteArray("12345.6");
        QTest::newRow("minus seven") << -1000.0 << QByteArray("-1000.0");
        QTest::newRow("a million") << 1e6 << QByteArray("1000000.0");
    }

    void setPointFormats()
    {
        QFETCH(double, degC);
        QFETCH(QByteArray, written);
        QCOMPARE(value(degC), written);
    }

    void setPointsAreWrittenAsPrintfDoes()
    {
        std::setlocale(LC_NUMERIC, "C");
        // Steps of a sixteenth meet every exact half; the others are what ramps of odd durations give.
        for (const double step : {1.0 / 16.0, 1.0 / 3.0, 0.1, 7.77}) {
            for (int i = -4000; i <= 30000; ++i) {
                char expected[64];
                std::snprintf(expected, sizeof(expected), "%06.1f", i * step);
                if (value(i * step) != expected) {
                    QCOMPARE(value(i * step), QByteArray(expected));
                }
            }
        }
    }

    void aCommaForADecimalPointChangesNothing()
    {
        const std::locale before = std::locale::global(std::locale(std::locale::classic(), new CommaPoint));
        for (const char* name : {"de_DE.UTF-8", "de_DE.utf8", "fr_FR.UTF-8"}) {
            std::setlocale(LC_ALL, name); // where the machine has one
        }
        QCOMPARE(value(1234.5), QByteArray("1234.5"));
        QCOMPARE(value(-5.5), QByteArray("-005.5"));
        QCOMPARE(ControllerMessage::shownValue("01M 0512.3E"), "512.3"_s);
        QCOMPARE(ControllerMessage::shownValue("01M 0512,3E"), "0"_s);
        std::locale::global(before);
        std::setlocale(LC_ALL, "C");
    }

    void theCheckCoversEveryByte()
    {
        const QByteArray message = ControllerMessage::setPoint(4, 120.0);
        char buffer[1000] = {};
        std::memcpy(buffer, message.constData(), static_cast<size_t>(message.size()));
        QVERIFY(ControllerMessage::appendBlockCheck(buffer, 1000));
        QCOMPARE(QByteArray(buffer), message + exclusiveOr(message));
        QCOMPARE(QByteArray(buffer).toHex().toUpper(), QByteArray("043035025331303132302E30037F"));
    }

    void noSetPointLosesItsCheck()
    {
        for (int channel = 0; channel < Channels::count; ++channel) {
            for (int tenths = -12000; tenths < 120000; tenths += 7) {
                const char check = exclusiveOr(ControllerMessage::setPoint(channel, tenths / 10.0));
                // A control character would be worse than odd: NUL ends the message, LF would split it.
                if (check < 0x20) {
                    QFAIL(qPrintable("channel %1, %2 tenths"_s.arg(channel).arg(tenths)));
                }
            }
        }
    }

    void aCheckOfZeroEndsTheMessage()
    {
        char buffer[16] = "abab";
        QVERIFY(ControllerMessage::appendBlockCheck(buffer, 16));
        QCOMPARE(QByteArray(buffer), QByteArray("abab"));
    }

    void theCheckNeedsRoom_data()
    {
        QTest::addColumn<int>("size");
        QTest::addColumn<bool>("fits");
        for (int size = -1; size <= 8; ++size) {
            QTest::newRow(qPrintable(QString::number(size))) << size << (size >= 5);
        }
    }

    void theCheckNeedsRoom()
    {
        QFETCH(int, size);
        QFETCH(bool, fits);
        char buffer[16] = "abc\0????";
        QCOMPARE(ControllerMessage::appendBlockCheck(buffer, size), fits);
        const QByteArray expected = fits ? QByteArray("abc`\0???", 8) : QByteArray("abc\0????", 8);
        QCOMPARE(QByteArray(buffer, 8), expected);
    }

    void aMessageWithoutAnEndGetsNoCheck()
    {
        char buffer[8];
        std::memset(buffer, 'x', sizeof(buffer));
        QVERIFY(!ControllerMessage::appendBlockCheck(buffer, 8));
        QCOMPARE(QByteArray(buffer, 8), QByteArray(8, 'x'));
    }

    void acceptedReplies_data()
    {
        QTest::addColumn<QByteArray>("line");
        QTest::addColumn<bool>("accepted");
        QTest::newRow("11 bytes") << QByteArray("01M 0512.3E") << true;
        QTest::newRow("11 bytes of anything") << QByteArray("hello world") << true;
        QTest::newRow("ER") << QByteArray("ER") << true;
        QTest::newRow("empty") << QByteArray() << false;
        QTest::newRow("another two") << QByteArray("OK") << false;
        QTest::newRow("er") << QByteArray("er") << false;
        QTest::newRow("10 bytes") << QByteArray("01M 0512.3") << false;
        QTest::newRow("12 bytes") << QByteArray("01M 00512.3E") << false;
        QTest::newRow("an acknowledgement") << QByteArray("\x06") << false;
    }

    void acceptedReplies()
    {
        QFETCH(QByteArray, line);
        QFETCH(bool, accepted);
        QCOMPARE(ControllerMessage::isReply(line.size(), line), accepted);
    }

    void theLengthThatCameWithALineCounts()
    {
        QVERIFY(ControllerMessage::isReply(11, "short"));
        QVERIFY(!ControllerMessage::isReply(10, "01M 0512.3E"));
        QVERIFY(!ControllerMessage::isReply(3, "ER"));
        QVERIFY(!ControllerMessage::isReply(2, "ERR"));
    }

    void shownValues_data()
    {
        QTest::addColumn<QByteArray>("reply");
        QTest::addColumn<QString>("shown");
        QTest::newRow("a blank first") << QByteArray("01M 0512.3E") << "512.3"_s;
        QTest::newRow("a blank last") << QByteArray("01M0512.3 E") << "512.3"_s;
        QTest::newRow("no trailing zeros") << QByteArray("01M0500.00E") << "500"_s;
        QTest::newRow("two decimals") << QByteArray("01M0023.45E") << "23.45"_s;
        QTest::newRow("negative") << QByteArray("01M-012.50E") << "-12.5"_s;
        QTest::newRow("six significant digits") << QByteArray("01M1234.56E") << "1234.56"_s;
        QTest::newRow("seven become six") << QByteArray("01M1234567E") << "1.23457e+06"_s;
        QTest::newRow("zero") << QByteArray("01M0000.00E") << "0"_s;
        QTest::newRow("not a number") << QByteArray("hello world") << "0"_s;
        QTest::newRow("junk behind the number") << QByteArray("01M12.3abcE") << "0"_s;
        QTest::newRow("not finite") << QByteArray("01M    infE") << "0"_s;
        QTest::newRow("not a number by its name") << QByteArray("01M    nanE") << "0"_s;
        QTest::newRow("beyond all numbers") << QByteArray("01M  1e999E") << "0"_s;
        QTest::newRow("ER") << QByteArray("ER") << "----.-"_s;
        QTest::newRow("nothing yet") << QByteArray() << "0"_s;
    }

    void shownValues()
    {
        QFETCH(QByteArray, reply);
        QFETCH(QString, shown);
        QCOMPARE(ControllerMessage::shownValue(reply), shown);
    }
};

NELVO_TEST_MAIN(ControllerMessageTest)
#include "controllermessage.moc"
