// What the link makes of the bytes that come back.

#include "support/linktest.h"
#include "support/testmain.h"

class GpibReplyTest : public LinkTest
{
    Q_OBJECT

    QByteArrayList delivered() const
    {
        QByteArrayList lines;
        for (const QList<QVariant>& arguments : qAsConst(*spy)) {
            const QByteArray line = arguments.at(1).toByteArray();
            // The count that comes along is always the line's length.
            lines.append(
                arguments.at(0).toInt() == line.size() ? line : QByteArray("wrong count of ") + line);
        }
        return lines;
    }

    std::unique_ptr<QSignalSpy> spy;

private slots:
    void init()
    {
        LinkTest::init();
        spy = std::make_unique<QSignalSpy>(gpib.get(), SIGNAL(dataReady(int, QByteArray)));
        QVERIFY(spy->isValid());
    }

    void cleanup()
    {
        spy.reset();
        LinkTest::cleanup();
    }

    void lines_data()
    {
        QTest::addColumn<QByteArray>("wire");
        QTest::addColumn<QByteArray>("line");
        QTest::newRow("LF") << QByteArray("12.5\n") << QByteArray("12.5");
        QTest::newRow("CR LF") << QByteArray("12.5\r\n") << QByteArray("12.5");
        QTest::newRow("white space around") << QByteArray("  \t12.5 \r\n") << QByteArray("12.5");
        QTest::newRow("white space inside") << QByteArray("a  b\t\tc \t d\r\n") << QByteArray("a b c d");
        QTest::newRow("empty") << QByteArray("\n") << QByteArray();
        QTest::newRow("only spaces") << QByteArray("    \n") << QByteArray();
        QTest::newRow("CR inside") << QByteArray("a\rb\n") << QByteArray("a b");
        QTest::newRow("NUL inside") << QByteArray("a\0b\n", 4) << QByteArray("a\0b", 3);
        QTest::newRow("bytes above 127") << QByteArray("\xB0\xFF\n") << QByteArray("\xB0\xFF");
        QTest::newRow("the adapter's own answer") << QByteArray("1\r\n") << QByteArray("1");
        QTest::newRow("a controller's answer") << QByteArray("01M 0512.3E\r\n") << QByteArray("01M 0512.3E");
    }

    void lines()
    {
        QFETCH(QByteArray, wire);
        QFETCH(QByteArray, line);
        adapter->send(wire);
        QTRY_COMPARE(spy->count(), 1);
        QCOMPARE(delivered(), QByteArrayList{line});
    }

    void aPartialLineWaitsForItsEnd()
    {
        adapter->send("12.5\r\n7");
        QTRY_COMPARE(gpib->bytesAvailable(), 1);
        QCOMPARE(delivered(), QByteArrayList{"12.5"});
        adapter->send("\n");
        QTRY_COMPARE(spy->count(), 2);
        QCOMPARE(delivered().last(), QByteArray("7"));
        QCOMPARE(gpib->bytesAvailable(), 0);
    }

    void severalLinesInOneChunkComeInOrder()
    {
        adapter->send("one\r\ntwo\n\nthree\n");
        QTRY_COMPARE(spy->count(), 4);
        QCOMPARE(delivered(), (QByteArrayList{"one", "two", "", "three"}));
    }

    void aLineInPiecesIsOneLine()
    {
        for (const char* piece : {"01", "M  51", "2.30", "E\r"}) {
            adapter->send(piece);
            QCOMPARE(spy->count(), 0);
        }
        adapter->send("\n");
        QTRY_COMPARE(spy->count(), 1);
        QCOMPARE(delivered(), QByteArrayList{"01M 512.30E"});
    }

    void aLineOfSpacesClearsThePendingReply()
    {
        gpib->setReplyPending();
        adapter->send("   \n");
        QTRY_COMPARE(spy->count(), 1);
        QCOMPARE(spy->first().at(0).toInt(), 0);
        QCOMPARE(spy->first().at(1).toByteArray(), QByteArray());
        QVERIFY(!gpib->isReplyPending());
    }

    void anyLineClearsThePendingReply()
    {
        gpib->setReplyPending();
        adapter->send("nobody asked for this\n");
        QTRY_COMPARE(spy->count(), 1);
        QVERIFY(!gpib->isReplyPending());
    }

    void aPartialLineLeavesTheReplyPending()
    {
        gpib->setReplyPending();
        adapter->send("01M  512.3");
        QTRY_COMPARE(gpib->bytesAvailable(), 10);
        QVERIFY(gpib->isReplyPending());
    }

    void theReplyIsNoLongerPendingWhenItIsDelivered()
    {
        bool pendingOnDelivery = true;
        bool addressTaken = false;
        connect(gpib.get(), &GPIB::dataReady, this, [&] {
            pendingOnDelivery = gpib->isReplyPending();
            addressTaken = gpib->setAddr(3);
        });
        gpib->setReplyPending();
        adapter->send("ready\n");
        QTRY_COMPARE(spy->count(), 1);
        QVERIFY(!pendingOnDelivery);
        QVERIFY(addressTaken);
        QVERIFY(adapter->expect("++addr 3\n"));
    }

    void aLongLineComesInPortions()
    {
        adapter->send(QByteArray(200000, 'x') + "\nnext\n");
        QTRY_COMPARE(spy->count(), 3);
        QCOMPARE(delivered(),
            (QByteArrayList{QByteArray(160000, 'x'), QByteArray(40000, 'x'), QByteArray("next")}));
    }
};

NELVO_TEST_MAIN(GpibReplyTest)
#include "gpibreply.moc"
