// The adapter with all instruments behind it, byte in, byte and event out.

#include "simulator/rack.h"

#include "base/channels.h"
#include "support/testmain.h"
#include "support/wire.h"

using Chamber::AdapterLine;
using Chamber::AdapterParser;
using Chamber::Rack;

namespace {

// A rack and all that came of what it was sent.
class Bench
{
public:
    explicit Bench(quint64 seed = 1)
        : rack(seed)
    {
    }

    void send(const QByteArray& bytes, double modelSec = 0.0)
    {
        for (const AdapterLine& line : parser.feed(bytes)) {
            const Rack::Outcome outcome = rack.take(line, modelSec);
            if (!outcome.event.isEmpty()) {
                events.append(outcome.event);
            }
            if (!outcome.reply.isEmpty()) {
                replies.append(outcome.reply);
                units.append(outcome.fromInstrument ? outcome.unit : -1);
            }
        }
    }

    void clear()
    {
        events.clear();
        replies.clear();
        units.clear();
    }

    Rack rack;
    QList<QByteArray> events;
    QList<QByteArray> replies;
    QList<int> units;

private:
    AdapterParser parser;
};

const QByteArray toTemperatures = "++auto 1\n" + Wire::toTemperatures;
const QByteArray readUnit1 = Wire::readRequest(0);
const QByteArray setUnit5To120 = Wire::setPoint(4, "0120.0");

QByteArray letters(int mask)
{
    QByteArray text;
    for (int shutter = 0; shutter < Channels::shutterCount; ++shutter) {
        text += (mask & (1 << shutter)) != 0 ? 'o' : 'x';
    }
    return text;
}

double valueOf(const QByteArray& reply)
{
    return reply.mid(3, 7).toDouble();
}

} // namespace

class RackTest : public QObject
{
    Q_OBJECT

private slots:
    void theStationsOpeningBytesAreTaken()
    {
        Bench bench;
        bench.send(QByteArray("++eoi\n\n\n++auto 1\n++addr 3\n++eos 3\n++eoi\n\x1B\0\n", 43));
        bench.send("++addr 1\n++eos 0\n++eoi 1\n" + readUnit1);
        QCOMPARE(bench.events, QList<QByteArray>({"shutters xxxxxxx"}));
        QCOMPARE(bench.replies.size(), 3);
        QCOMPARE(bench.replies.mid(0, 2), QList<QByteArray>({"1", "1"}));
        QCOMPARE(bench.replies[2].size(), 11);
        QCOMPARE(bench.units, QList<int>({-1, -1, 1}));
    }

    void everyMaskMovesTheShutters()
    {
        Bench bench;
        bench.send(Wire::toShutters);
        for (int mask = 0; mask < 128; ++mask) {
            bench.clear();
            bench.send(QByteArrayLiteral("\x1B") + static_cast<char>(mask) + '\n');
            QCOMPARE(bench.events, QList<QByteArray>({"shutters " + letters(mask)}));
            QCOMPARE(bench.rack.shutters().mask(), mask);
        }
        QCOMPARE(bench.replies, QList<QByteArray>());
    }

    void bit7MovesNothing()
    {
        Bench bench;
        bench.send(Wire::toShutters + "\x1B\x09\n\x1B\x80\n\x1B\xFF\n");
        QCOMPARE(bench.events,
            QList<QByteArray>(
                {"shutters oxxoxxx", "rejected shutters bit 7 is set", "rejected shutters bit 7 is set"}));
        QCOMPARE(bench.rack.shutters().mask(), 9);
    }

    void aMaskWithALineEndMovesNothing()
    {
        Bench bench;
        for (const char* eos : {"0", "1", "2"}) {
            bench.send(Wire::toShutters + "++eos " + eos + "\n\x1B\x7F\n");
        }
        QCOMPARE(bench.events,
            QList<QByteArray>({"rejected shutters 3 bytes instead of 1",
                "rejected shutters 2 bytes instead of 1", "rejected shutters 2 bytes instead of 1"}));
        QCOMPARE(bench.rack.shutters().mask(), 0);
    }

    void theShuttersTakeAMaskWithAndWithoutEoi()
    {
        Bench bench;
        bench.send(Wire::toShutters + "\x1B\x01\n++eoi 1\n\x1B\x02\n");
        QCOMPARE(bench.events, QList<QByteArray>({"shutters oxxxxxx", "shutters xoxxxxx"}));
    }

    void aTemperatureMessageAtTheWrongAddressIsSeen()
    {
        Bench bench;
        bench.send(Wire::toShutters + readUnit1);
        QCOMPARE(bench.events, QList<QByteArray>({"rejected shutters 6 bytes instead of 1"}));
        bench.clear();
        bench.send("++addr 7\n" + readUnit1);
        QCOMPARE(bench.events, QList<QByteArray>({"rejected address 7 nobody is there"}));
        QCOMPARE(bench.replies, QList<QByteArray>());
    }

    void aSetPointIsAcknowledgedAndFollowed()
    {
        Bench bench;
        bench.send(toTemperatures + setUnit5To120);
        QCOMPARE(bench.events, QList<QByteArray>({"setpoint 05 120.0"}));
        QCOMPARE(bench.replies, QList<QByteArray>({"OK"}));
        QCOMPARE(bench.rack.temperatures().cells().setPoint(4), 120.0);
        bench.clear();
        bench.send("\x04"
                   "05M1\x05\n",
            1000.0);
        QVERIFY(qAbs(valueOf(bench.replies.value(0)) - 120.0) < 0.4);
    }

    void aWrongCheckChangesNothing()
    {
        Bench bench;
        bench.send(toTemperatures
            + "\x04"
              "01\x02S10120.0\x03x\n");
        QCOMPARE(bench.events, QList<QByteArray>({"rejected 01 bad check"}));
        QCOMPARE(bench.replies, QList<QByteArray>({"ER"}));
        QCOMPARE(bench.rack.temperatures().cells().setPoint(0), 25.0);
    }

    void aMessageToNoControllerGetsAnError()
    {
        Bench bench;
        bench.send(toTemperatures + "hello\n");
        QCOMPARE(bench.events, QList<QByteArray>({"rejected address 1 no such unit"}));
        QCOMPARE(bench.replies, QList<QByteArray>({"ER"}));
        QCOMPARE(bench.units, QList<int>({0}));
    }

    void aMessageOfOneMebibyteGetsAnErrorToo()
    {
        Bench bench;
        bench.send(toTemperatures + QByteArray(AdapterParser::longestLine, 'x') + '\n');
        QCOMPARE(bench.replies, QList<QByteArray>({"ER"}));
        bench.clear();
        bench.send(QByteArray(AdapterParser::longestLine + 1, 'x') + '\n');
        QCOMPARE(bench.events, QList<QByteArray>({"ignored a line of more than 1048576 bytes"}));
        QCOMPARE(bench.replies, QList<QByteArray>());
    }

    void withoutReadAfterWriteAnswersStayOnTheBus()
    {
        Bench bench;
        bench.send("++addr 1\n" + readUnit1 + setUnit5To120);
        QCOMPARE(bench.replies, QList<QByteArray>());
        QCOMPARE(bench.events, QList<QByteArray>({"setpoint 05 120.0"}));
    }

    void unknownCommandsAreLoggedInOnePrintableLine()
    {
        Bench bench;
        bench.send("++frob\n++\x01\x1B\n\xFF\n++" + QByteArray(500, 'y') + '\n');
        QCOMPARE(bench.events,
            QList<QByteArray>(
                {"ignored ++frob", "ignored ++<01><0A><FF>", "ignored ++" + QByteArray(58, 'y') + "..."}));
    }

    void aNewClientFindsAFreshAdapterAndTheSameInstruments()
    {
        Bench bench;
        bench.send(toTemperatures + setUnit5To120 + Wire::toShutters + "\x1B\x05\n");
        bench.clear();
        bench.rack.resetAdapter();
        bench.send("++addr\n++eos\n++eoi\n++auto\n");
        QCOMPARE(bench.replies, QList<QByteArray>({"0", "0", "1", "0"}));
        QCOMPARE(bench.rack.shutters().mask(), 5);
        QCOMPARE(bench.rack.temperatures().cells().setPoint(4), 120.0);
    }

    void theSeedDeterminesTheReadings()
    {
        QByteArray stream = toTemperatures;
        for (int i = 0; i < 100; ++i) {
            stream += readUnit1;
        }
        Bench one(3);
        Bench same(3);
        Bench other(4);
        one.send(stream);
        same.send(stream);
        other.send(stream);
        QCOMPARE(one.replies.size(), 100);
        QCOMPARE(one.replies, same.replies);
        QVERIFY(one.replies != other.replies);
    }
};

NELVO_TEST_MAIN(RackTest)
#include "rack.moc"
