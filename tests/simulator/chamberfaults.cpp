// What a fault makes of a reply, and how often it comes.

#include "simulator/faults.h"

#include "support/testmain.h"

using namespace Chamber;

namespace {

const QByteArray line = QByteArrayLiteral("01M00512.3C");

FaultRates only(FaultKind kind, double rate = 1.0)
{
    FaultRates rates = {};
    rates[static_cast<size_t>(kind)] = rate;
    return rates;
}

QByteArray allBytes(const Delivery& delivery)
{
    QByteArray bytes;
    for (const Delivery::Piece& piece : delivery.pieces) {
        bytes += piece.bytes;
    }
    return bytes;
}

} // namespace

class ChamberFaultsTest : public QObject
{
    Q_OBJECT

private slots:
    void everyKindHasItsName()
    {
        const char* const names[] = {"lost", "late", "duplicate", "garbled", "split", "merged", "er",
            "wrong-length", "silent", "cut", "half-open"};
        for (int i = 0; i < faultKindCount; ++i) {
            FaultKind kind = FaultKind::Lost;
            QVERIFY(faultFromName(names[i], kind));
            QCOMPARE(static_cast<int>(kind), i);
            QCOMPARE(faultName(kind), QByteArray(names[i]));
        }
        FaultKind kind = FaultKind::Lost;
        QVERIFY(!faultFromName("Lost", kind));
        QVERIFY(!faultFromName("", kind));
    }

    void withoutRatesNothingGoesWrong()
    {
        Faults faults(FaultRates(), 1);
        for (int i = 0; i < 1000; ++i) {
            const Delivery delivery = faults.decide(line, 1 + i % 9);
            QCOMPARE(delivery.link, Delivery::Link::Stays);
            QCOMPARE(delivery.pieces.size(), 1);
            QCOMPARE(delivery.pieces[0].bytes, line + "\r\n");
            QCOMPARE(delivery.pieces[0].delayMs, 0);
            QVERIFY(!delivery.waitsForNext);
            QVERIFY(delivery.struck.isEmpty());
        }
    }

    void everyKindStrikesAtItsRate()
    {
        for (int i = 0; i < faultKindCount; ++i) {
            const auto kind = static_cast<FaultKind>(i);
            if (kind == FaultKind::Silent) {
                continue; // strikes a controller once
            }
            Faults faults(only(kind, 0.2), 5);
            int struck = 0;
            for (int reply = 0; reply < 20000; ++reply) {
                struck += faults.decide(line, 1).struck.contains(kind) ? 1 : 0;
            }
            QVERIFY2(qAbs(struck - 4000) < 300, faultName(kind) + ' ' + QByteArray::number(struck));
        }
    }

    void aLostReplyDoesNotArrive()
    {
        QVERIFY(Faults(only(FaultKind::Lost), 1).decide(line, 1).pieces.isEmpty());
    }

    void aLateReplyIsWholeAndLate()
    {
        Faults faults(only(FaultKind::Late), 1);
        int least = 100000;
        int most = 0;
        for (int i = 0; i < 2000; ++i) {
            const Delivery delivery = faults.decide(line, 1);
            QCOMPARE(allBytes(delivery), line + "\r\n");
            least = qMin(least, delivery.pieces[0].delayMs);
            most = qMax(most, delivery.pieces[0].delayMs);
        }
        QVERIFY(least >= 200 && least < 300);
        QVERIFY(most <= 5000 && most > 4900); // beyond the station's patience of 3 s
    }

    void aDuplicateArrivesTwice()
    {
        Faults faults(only(FaultKind::Duplicate), 1);
        for (int i = 0; i < 1000; ++i) {
            const Delivery delivery = faults.decide(line, 1);
            QCOMPARE(allBytes(delivery), line + "\r\n" + line + "\r\n");
            const int gapMs = delivery.pieces[1].delayMs - delivery.pieces[0].delayMs;
            QVERIFY(gapMs >= 10 && gapMs <= 200);
        }
    }

    void aGarbledReplyHasOneOtherByteAndIsStillOneLine()
    {
        Faults faults(only(FaultKind::Garbled), 1);
        for (int i = 0; i < 5000; ++i) {
            const QByteArray bytes = allBytes(faults.decide(line, 1));
            QCOMPARE(bytes.size(), line.size() + 2);
            QVERIFY(bytes.endsWith("\r\n"));
            QCOMPARE(bytes.count('\n'), 1);
            int different = 0;
            for (int position = 0; position < line.size(); ++position) {
                different += bytes[position] != line[position] ? 1 : 0;
            }
            QCOMPARE(different, 1);
        }
    }

    void aSplitReplyComesInTwoPiecesAtEveryPlace()
    {
        Faults faults(only(FaultKind::Split), 1);
        QSet<int> lengths;
        for (int i = 0; i < 2000; ++i) {
            const Delivery delivery = faults.decide(line, 1);
            QCOMPARE(delivery.pieces.size(), 2);
            QCOMPARE(allBytes(delivery), line + "\r\n");
            QCOMPARE(delivery.pieces[0].delayMs, 0);
            QVERIFY(delivery.pieces[1].delayMs >= 10 && delivery.pieces[1].delayMs <= 200);
            lengths.insert(delivery.pieces[0].bytes.size());
        }
        QCOMPARE(lengths.size(), 12);
    }

    void aMergedReplyWaitsForTheNext()
    {
        const Delivery delivery = Faults(only(FaultKind::Merged), 1).decide(line, 1);
        QVERIFY(delivery.waitsForNext);
        QCOMPARE(allBytes(delivery), line + "\r\n");
    }

    void anErrorReplyIsAnError()
    {
        QCOMPARE(allBytes(Faults(only(FaultKind::Er), 1).decide(line, 1)), QByteArray("ER\r\n"));
    }

    void aWrongLengthIsWrongAndNeverEmpty()
    {
        Faults faults(only(FaultKind::WrongLength), 1);
        QSet<int> lengths;
        for (int i = 0; i < 2000; ++i) {
            lengths.insert(allBytes(faults.decide(line, 1)).size() - 2);
            QVERIFY(allBytes(faults.decide("OK", 1)).size() > 4);
        }
        QCOMPARE(lengths, QSet<int>({7, 8, 9, 10, 12, 13, 14, 15}));
    }

    void aSilentControllerAnswersNoMoreButTheOthersDo()
    {
        Faults faults(only(FaultKind::Silent, 0.01), 1);
        QVector<int> silences(10, 0);
        QVector<bool> silent(10, false);
        for (int i = 0; i < 50000; ++i) {
            const int unit = 1 + i % 9;
            const Delivery delivery = faults.decide(line, unit);
            silences[unit] += delivery.struck.size();
            silent[unit] = silent[unit] || !delivery.struck.isEmpty();
            QCOMPARE(delivery.pieces.isEmpty(), silent[unit]);
        }
        QCOMPARE(silences, QVector<int>({0, 1, 1, 1, 1, 1, 1, 1, 1, 1}));
        QVERIFY(!faults.decide("ER", 0).pieces.isEmpty());
    }

    void aBrokenConnectionCarriesNothing()
    {
        const Delivery cut = Faults(only(FaultKind::Cut), 1).decide(line, 1);
        QCOMPARE(cut.link, Delivery::Link::Cut);
        QVERIFY(cut.pieces.isEmpty());
        const Delivery halfOpen = Faults(only(FaultKind::HalfOpen), 1).decide(line, 1);
        QCOMPARE(halfOpen.link, Delivery::Link::HalfOpen);
        QVERIFY(halfOpen.pieces.isEmpty());
    }

    void severalFaultsMeet()
    {
        FaultRates rates = only(FaultKind::Late);
        rates[static_cast<size_t>(FaultKind::Duplicate)] = 1.0;
        rates[static_cast<size_t>(FaultKind::Split)] = 1.0;
        rates[static_cast<size_t>(FaultKind::Er)] = 1.0;
        rates[static_cast<size_t>(FaultKind::Garbled)] = 1.0; // hidden by "ER"
        const Delivery delivery = Faults(rates, 1).decide(line, 1);
        QCOMPARE(delivery.pieces.size(), 3);
        QCOMPARE(allBytes(delivery), QByteArray("ER\r\nER\r\n"));
        QVERIFY(delivery.pieces[0].delayMs >= 200);
        QVERIFY(delivery.pieces[1].delayMs > delivery.pieces[0].delayMs);
        QVERIFY(delivery.pieces[2].delayMs > delivery.pieces[1].delayMs);
        QCOMPARE(delivery.struck,
            QVector<FaultKind>({FaultKind::Er, FaultKind::Late, FaultKind::Duplicate, FaultKind::Split}));
    }

    void theSeedDeterminesTheFaults()
    {
        FaultRates rates;
        rates.fill(0.1);
        rates[static_cast<size_t>(FaultKind::Silent)] = 0.0;
        Faults one(rates, 9);
        Faults same(rates, 9);
        Faults other(rates, 10);
        bool differs = false;
        for (int i = 0; i < 1000; ++i) {
            const Delivery delivery = one.decide(line, 1);
            const Delivery again = same.decide(line, 1);
            QCOMPARE(again.struck, delivery.struck);
            QCOMPARE(allBytes(again), allBytes(delivery));
            differs = other.decide(line, 1).struck != delivery.struck || differs;
        }
        QVERIFY(differs);
    }

    void oneKindsVictimsDoNotDependOnTheOtherRates()
    {
        FaultRates both = only(FaultKind::Late, 0.3);
        both[static_cast<size_t>(FaultKind::Lost)] = 0.3;
        Faults alone(only(FaultKind::Late, 0.3), 2);
        Faults together(both, 2);
        int compared = 0;
        for (int i = 0; i < 1000; ++i) {
            const bool late = alone.decide(line, 1).struck.contains(FaultKind::Late);
            const Delivery delivery = together.decide(line, 1);
            if (!delivery.struck.contains(FaultKind::Lost)) {
                QCOMPARE(delivery.struck.contains(FaultKind::Late), late);
                ++compared;
            }
        }
        QVERIFY(compared > 500);
    }
};

NELVO_TEST_MAIN(ChamberFaultsTest)
#include "chamberfaults.moc"
