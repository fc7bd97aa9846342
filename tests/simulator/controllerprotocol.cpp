// What a temperature controller understands.

#include "simulator/controllerprotocol.h"

#include "support/testmain.h"
#include "support/wire.h"
#include "temperature/controllermessage.h"

using namespace Chamber::ControllerProtocol;

namespace {

// EOT unit STX "S1" value ETX, without a check.
QByteArray opened(int unit, const QByteArray& value)
{
    return Wire::setPoint(unit - 1, value).chopped(2);
}

QByteArray setPointMessage(int unit, const QByteArray& value)
{
    return Wire::setPoint(unit - 1, value).chopped(1) + "\r\n";
}

QByteArray reasonOf(const QByteArray& message)
{
    const Request request = parse(message);
    return request.kind == Request::Kind::Wrong ? request.reason : QByteArray("taken");
}

} // namespace

class ControllerProtocolTest : public QObject
{
    Q_OBJECT

private slots:
    void readRequestsAreUnderstoodForEveryUnit()
    {
        for (int unit = 1; unit <= 9; ++unit) {
            const Request request = parse(ControllerMessage::readRequest(unit - 1) + "\r\n");
            QCOMPARE(request.kind, Request::Kind::Read);
            QCOMPARE(request.unit, unit);
        }
    }

    void setPointsOfTheStationAreUnderstoodForEveryUnit()
    {
        const double values[] = {0.0, 25.0, 120.0, 1234.56, 9999.9, -5.0, -0.04, -999.9};
        for (int unit = 1; unit <= 9; ++unit) {
            for (const double degC : values) {
                char buffer[64] = {};
                const QByteArray message = ControllerMessage::setPoint(unit - 1, degC);
                std::copy(message.begin(), message.end(), buffer);
                QVERIFY(ControllerMessage::appendBlockCheck(buffer, sizeof buffer));
                const Request request = parse(QByteArray(buffer) + "\r\n");
                QVERIFY2(request.kind == Request::Kind::SetPoint, QByteArray(buffer) + request.reason);
                QCOMPARE(request.unit, unit);
                QVERIFY(qAbs(request.degC - degC) <= 0.0501);
            }
        }
    }

    void theCheckCoversEveryByteFromTheFirstOn()
    {
        const QByteArray good = setPointMessage(5, "0120.0");
        QCOMPARE(good.left(13).toHex(),
            QByteArray("0430350253313031"
                       "32302e3003"));
        QCOMPARE(parse(good).kind, Request::Kind::SetPoint);
        // The check without the leading EOT, as another protocol would have it.
        QByteArray narrower = good;
        narrower[13] = static_cast<char>(good[13] ^ 0x04);
        QCOMPARE(reasonOf(narrower), QByteArray("bad check"));
    }

    void everyWrongCheckIsRefused()
    {
        const QByteArray bytes = opened(1, "0120.0");
        for (int check = 0; check < 256; ++check) {
            const Request request = parse(bytes + static_cast<char>(check) + "\r\n");
            const bool right = static_cast<char>(check) == setPointMessage(1, "0120.0").at(bytes.size());
            QCOMPARE(request.kind, right ? Request::Kind::SetPoint : Request::Kind::Wrong);
        }
    }

    void aMissingCheckIsTakenExactlyWhenItIsZero()
    {
        const QByteArray zero = opened(1, "1e2");
        QCOMPARE(setPointMessage(1, "1e2").at(zero.size()), '\0');
        QVERIFY(checkHolds(zero, zero.size() - 1));
        QVERIFY(checkHolds(zero + '\0', zero.size() - 1));
        QVERIFY(!checkHolds(zero + 'x', zero.size() - 1));
        // The check passes, so what is found wrong is the value: no plain decimal gives a check of 0.
        QCOMPARE(reasonOf(zero + "\r\n"), QByteArray("bad value"));

        const QByteArray other = opened(1, "0120.0");
        QVERIFY(!checkHolds(other, other.size() - 1));
        QCOMPARE(reasonOf(other + "\r\n"), QByteArray("bad check"));
    }

    void aCheckAndMoreIsRefused()
    {
        QByteArray message = setPointMessage(1, "0120.0");
        message.insert(message.size() - 2, 'x');
        QCOMPARE(reasonOf(message), QByteArray("bad check"));
    }

    void valuesNotPrintedWithOneDecimalInSixCharactersAreRefused_data()
    {
        QTest::addColumn<QByteArray>("value");
        const char* const values[] = {"", "120.0", "00120.0", "0120.00", "000120", " 120.0", "0120,0",
            "+120.0", "0120.0 ", "0x0012", "   inf", "   nan", "1e2", "abcdef", "-5.0"};
        for (const char* value : values) {
            QTest::newRow(*value == '\0' ? "nothing" : value) << QByteArray(value);
        }
        QTest::newRow("endless") << QByteArray(100000, '1') + ".0";
    }

    void valuesNotPrintedWithOneDecimalInSixCharactersAreRefused()
    {
        QFETCH(QByteArray, value);
        QCOMPARE(reasonOf(setPointMessage(1, value)), QByteArray("bad value"));
    }

    void valuesNoControllerCanReachAreRefused()
    {
        QCOMPARE(reasonOf(setPointMessage(1, "10000.0")), QByteArray("value out of range"));
        QCOMPARE(reasonOf(setPointMessage(1, "-1000.0")), QByteArray("value out of range"));
        QCOMPARE(reasonOf(setPointMessage(1, "9999.9")), QByteArray("taken"));
        QCOMPARE(reasonOf(setPointMessage(1, "-999.9")), QByteArray("taken"));
    }

    void malformedMessagesAreRefused_data()
    {
        QTest::addColumn<QByteArray>("message");
        QTest::addColumn<int>("unit");
        QTest::addColumn<QByteArray>("reason");
        const auto row = [](const char* name, const QByteArray& message, int unit, const char* reason) {
            QTest::newRow(name) << message << unit << QByteArray(reason);
        };
        row("empty", "\r\n", 0, "no such unit");
        row("nothing", "", 0, "no line end");
        row("no line end",
            "\x04"
            "01M1\x05",
            1, "no line end");
        row("LF only",
            "\x04"
            "01M1\x05\n",
            1, "no line end");
        row("unit 00",
            "\x04"
            "00M1\x05\r\n",
            0, "no such unit");
        row("unit 11",
            "\x04"
            "11M1\x05\r\n",
            0, "no such unit");
        row("no EOT", "01M1\x05\r\n", 0, "no such unit");
        row("no ENQ",
            "\x04"
            "01M1\r\n",
            1, "not a message");
        row("too much",
            "\x04"
            "01M1\x05x\r\n",
            1, "not a message");
        row("other parameter",
            "\x04"
            "03M2\x05\r\n",
            3, "not a message");
        row("unit only",
            "\x04"
            "09\r\n",
            9, "not a message");
        row("other set point",
            "\x04"
            "01\x02S20120.0\x03x\r\n",
            1, "not a message");
        row("no ETX",
            "\x04"
            "01\x02S10120.0\r\n",
            1, "no end of text");
    }

    void malformedMessagesAreRefused()
    {
        QFETCH(QByteArray, message);
        QFETCH(int, unit);
        QFETCH(QByteArray, reason);
        const Request request = parse(message);
        QCOMPARE(request.kind, Request::Kind::Wrong);
        QCOMPARE(request.unit, unit);
        QCOMPARE(request.reason, reason);
    }

    void everyReadingIsElevenBytesAndShowsItsValue()
    {
        for (int tenth = -9999; tenth <= 99999; ++tenth) {
            const double degC = tenth / 10.0;
            const QByteArray line = (reading(3, degC) + "\r\n").simplified();
            QVERIFY2(line.size() == 11, line.constData());
            QCOMPARE(ControllerMessage::shownValue(line), QString::number(degC, 'g', 6));
        }
    }

    void aReadingNamesItsUnit()
    {
        QCOMPARE(reading(1, 512.3), QByteArray("01M00512.3C"));
        QCOMPARE(reading(9, -12.34), QByteArray("09M-0012.3C"));
    }

    void thereIsNoNegativeZero() { QCOMPARE(reading(1, -0.04), QByteArray("01M00000.0C")); }

    void aReadingOutOfRangeIsTheNearestInRange()
    {
        QCOMPARE(reading(1, 1e9), QByteArray("01M09999.9C"));
        QCOMPARE(reading(1, -1e9), QByteArray("01M-0999.9C"));
    }

    void otherAnswersAreNeitherReadingsNorErrors()
    {
        QVERIFY(!ControllerMessage::isReply(acknowledgement.size(), acknowledgement));
        QVERIFY(ControllerMessage::isReply(error.size(), error));
    }
};

NELVO_TEST_MAIN(ControllerProtocolTest)
#include "controllerprotocol.moc"
