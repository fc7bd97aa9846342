// What the journal tells of the link.

#include "journal/linkjournal.h"

#include "base/channels.h"
#include "support/files.h"
#include "support/journalevents.h"
#include "support/testmain.h"
#include "support/testtext.h"
#include "support/ticks.h"
#include "support/wire.h"

using namespace TestText;

class LinkJournalTest : public QObject
{
    Q_OBJECT

    // A read and what comes back, as the link tells it.
    void read(int channel, const QByteArray& line)
    {
        link->replyAwaited();
        link->sent(Wire::readRequest(channel));
        link->lineArrived(line, true);
    }

    void readAllOnce()
    {
        for (int channel = 0; channel < Channels::count; ++channel) {
            read(channel, Wire::reading(25.0, channel));
        }
    }

    const DrivenClock clock;
    Journal journal;
    std::unique_ptr<LinkJournal> link;

private slots:
    void init()
    {
        journalEvents();
        link = std::make_unique<LinkJournal>(journal);
    }

    void connectionsComeAndGo()
    {
        link->notConnected(false, "nobody is there"_s);
        link->connected();
        link->notConnected(true, "gone"_s);
        QCOMPARE(journalEvents(),
            QStringList({"refused why=nobody is there"_s, "connected"_s, "lost why=gone"_s}));
    }

    void bytesAreToldWhereThereIsAJournalForThem()
    {
        link->sent("++eoi\n");
        link->received("1\r\n");
        QCOMPARE(journalEvents(), QStringList());
        Journal wire(wireFile);
        link = std::make_unique<LinkJournal>(journal, &wire);
        link->sent(Wire::shutters(0x05));
        link->sent(Wire::shutters(0x00));
        link->received("a\\b\r\n\xFF");
        QCOMPARE(journalEvents(), QStringList());
        QCOMPARE(journalEventsOf(wireFile),
            QStringList({"sent bytes=\\x1b\\x05\\x0a"_s, "sent bytes=\\x1b\\x00\\x0a"_s,
                "received bytes=a\\\\b\\x0d\\x0aÿ"_s}));
    }

    void aHeldBusIsToldOnceAndWhenItIsFree()
    {
        link->replyAwaited();
        DrivenClock::advance(1000);
        link->tick();
        QCOMPARE(journalEvents(), QStringList());
        DrivenClock::advance(1);
        link->tick();
        link->tick();
        QCOMPARE(journalEvents(), QStringList({"bus-held"_s}));
        DrivenClock::advance(4000);
        link->lineArrived("ER", true);
        QCOMPARE(journalEvents(), QStringList({"bus-free held-ms=5001"_s}));
        DrivenClock::advance(100000);
        link->tick();
        QCOMPARE(journalEvents(), QStringList());
    }

    void aSecondRequestDoesNotHideHowLongTheBusIsHeld()
    {
        link->replyAwaited();
        DrivenClock::advance(900);
        link->replyAwaited();
        DrivenClock::advance(200);
        link->tick();
        QCOMPARE(journalEvents(), QStringList({"bus-held"_s}));
    }

    void linesThatNobodyAskedForAreTold()
    {
        link->lineArrived("hello\tthere", false);
        QCOMPARE(journalEvents(), QStringList({"unasked-line line=hello\\x09there"_s}));
        // Not the adapter's own answers, and not a reply that comes after it was given up.
        link->sent("++eoi\n");
        link->sent("++eos 3\n");
        link->lineArrived("1", false);
        link->replyAwaited();
        link->lineArrived("late", false);
        QCOMPARE(journalEvents(), QStringList());
        DrivenClock::advance(1000);
        link->lineArrived("late", false);
        QCOMPARE(journalEvents(), QStringList({"unasked-line line=late"_s}));
    }

    void aFloodOfLinesIsCounted()
    {
        for (int i = 0; i < 100000; ++i) {
            link->lineArrived(QByteArray(1000, 'x'), false);
        }
        link->tick();
        QCOMPARE(journalEvents(), QStringList({"unasked-line line="_s + QString(100, u'x')}));
        DrivenClock::advance(999);
        link->tick();
        QCOMPARE(journalEvents(), QStringList());
        DrivenClock::advance(1);
        link->tick();
        link->tick();
        QCOMPARE(journalEvents(), QStringList({"unasked-lines count=99999"_s}));
    }

    void readingsUnderTheWrongChannelAreTold()
    {
        readAllOnce();
        read(0, Wire::reading(25.0, 0));
        QCOMPARE(journalEvents(), QStringList());
        read(1, Wire::reading(25.0, 0));
        QCOMPARE(journalEvents(),
            QStringList({"readings-shifted asked=02 line="_s + QString::fromLatin1(Wire::reading(25.0, 0))}));
        read(2, Wire::reading(25.0, 1));
        DrivenClock::advance(400);
        read(3, Wire::reading(25.0, 3));
        QCOMPARE(journalEvents(), QStringList({"readings-in-order strange=2 shifted-ms=400"_s}));
        read(4, Wire::reading(25.0, 4));
        QCOMPARE(journalEvents(), QStringList());
    }

    void controllersThatDoNotTellTheirUnitAreBelieved()
    {
        for (int round = 0; round < 3; ++round) {
            for (int channel = 0; channel < Channels::count; ++channel) {
                read(channel, Wire::reading(25.0, 0));
            }
        }
        QCOMPARE(journalEvents(), QStringList());
    }

    void whatIsNoReadingTellsNothingOfUnits()
    {
        readAllOnce();
        read(1, "ER");
        read(2, "02M0025.0");
        link->sent(Wire::setPoint(3, "0025.0"));
        link->replyAwaited();
        link->lineArrived("01M0025.0CE", true);
        QCOMPARE(journalEvents(), QStringList());
    }
};

NELVO_TEST_MAIN(LinkJournalTest)
#include "linkjournal.moc"
