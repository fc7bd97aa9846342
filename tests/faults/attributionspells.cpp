// What counts as told of readings under the wrong channel: what was said a round before or behind.

#include "faults/attribution.h"

#include "base/channels.h"
#include "support/testmain.h"

class AttributionSpellsTest : public QObject
{
    Q_OBJECT

    // So many readings, 10 ms apart.
    void readings(int count, bool areRight)
    {
        for (int i = 0; i < count; ++i) {
            nowMs += 10;
            attribution.reading(areRight, nowMs);
        }
    }

    Attribution attribution;
    qint64 nowMs = 0;

private slots:
    void init()
    {
        attribution = Attribution();
        nowMs = 0;
    }

    // A hundred right ones, then wrong ones from 1010 to 1030 ms; the round before begins at 920 ms, the one
    // behind ends at 1100 ms.
    void aSpellIsToldWithinARound_data()
    {
        QTest::addColumn<int>("toldMs");
        QTest::addColumn<int>("told");
        QTest::newRow("long before") << 0 << 0;
        QTest::newRow("just before the round before") << 919 << 0;
        QTest::newRow("a round before") << 920 << 1;
        QTest::newRow("at once") << 1010 << 1;
        QTest::newRow("a round behind") << 1100 << 1;
        QTest::newRow("later") << 1101 << 0;
    }

    void aSpellIsToldWithinARound()
    {
        QFETCH(int, toldMs);
        QFETCH(int, told);
        readings(100, true);
        readings(3, false);
        readings(100, true);
        attribution.finish(nowMs);
        QCOMPARE(attribution.spells().size(), 1);
        QCOMPARE(attribution.wrongReadings(), 3);
        QCOMPARE(attribution.toldSpells({toldMs}), told);
    }

    void eachSpellWantsItsOwn()
    {
        readings(20, true);
        readings(2, false);
        readings(Channels::count, true);
        readings(1, false);
        attribution.finish(nowMs);
        QCOMPARE(attribution.spells().size(), 2);
        QCOMPARE(attribution.toldSpells({210}), 1);
        QCOMPARE(attribution.toldSpells({210, 310}), 2);
    }

    void aSpellGoesOnUntilAWholeRoundIsRight()
    {
        readings(20, true);
        readings(1, false);
        readings(Channels::count - 1, true);
        readings(1, false);
        attribution.finish(nowMs);
        QCOMPARE(attribution.spells().size(), 1);
    }
};

NELVO_TEST_MAIN(AttributionSpellsTest)
#include "attributionspells.moc"
