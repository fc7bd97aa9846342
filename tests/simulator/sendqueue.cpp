// Replies on their way: in order, and in time.

#include "simulator/sendqueue.h"

#include "support/testmain.h"

using Chamber::SendQueue;

class SendQueueTest : public QObject
{
    Q_OBJECT

private slots:
    void whatIsDueLeavesAtOnce()
    {
        SendQueue queue;
        queue.push("a", 5);
        QCOMPARE(queue.takeDue(5), QByteArray("a"));
        QVERIFY(queue.isEmpty());
        QCOMPARE(queue.takeDue(6), QByteArray());
    }

    void whatIsLateWaits()
    {
        SendQueue queue;
        queue.push("a", 100);
        QCOMPARE(queue.takeDue(99), QByteArray());
        QCOMPARE(queue.nextDueMs(), 100);
        QCOMPARE(queue.takeDue(100), QByteArray("a"));
    }

    void nothingOvertakesWhatIsLate()
    {
        SendQueue queue;
        queue.push("late", 100);
        queue.push("prompt", 10);
        QCOMPARE(queue.takeDue(50), QByteArray());
        QCOMPARE(queue.takeDue(100), QByteArray("lateprompt"));
    }

    void whatWaitsForCompanyLeavesWithTheNext()
    {
        SendQueue queue;
        queue.pushWaiting("one,", 0);
        QCOMPARE(queue.takeDue(10), QByteArray());
        queue.push("two", 20);
        QCOMPARE(queue.takeDue(19), QByteArray());
        QCOMPARE(queue.takeDue(20), QByteArray("one,two"));
    }

    void whatWaitsForCompanyDoesNotWaitForEver()
    {
        SendQueue queue;
        queue.pushWaiting("one,", 50);
        QCOMPARE(queue.takeDue(50 + SendQueue::longestWaitMs - 1), QByteArray());
        QCOMPARE(queue.takeDue(50 + SendQueue::longestWaitMs), QByteArray("one,"));
    }

    void companyThatWaitsTooDoesNotProlongTheWait()
    {
        SendQueue queue;
        for (int i = 0; i < 100; ++i) {
            queue.pushWaiting("x", i);
        }
        QCOMPARE(queue.takeDue(SendQueue::longestWaitMs).size(), 100);
    }

    void theBytesThatWaitAreCounted()
    {
        SendQueue queue;
        queue.push("abc", 10);
        queue.pushWaiting("de", 0);
        queue.push("f", 0);
        QCOMPARE(queue.byteCount(), 6);
        queue.takeDue(10);
        QCOMPARE(queue.byteCount(), 0);
        queue.push("abc", 20);
        queue.clear();
        QCOMPARE(queue.byteCount(), 0);
        QVERIFY(queue.isEmpty());
    }
};

NELVO_TEST_MAIN(SendQueueTest)
#include "sendqueue.moc"
