// What the link sends, byte for byte.

#include "support/linktest.h"
#include "support/testmain.h"

class GpibTest : public LinkTest
{
    Q_OBJECT

private slots:
    void cleanup()
    {
        // Whatever a test did not ask for would stand here.
        const bool isQuiet = QTest::currentTestFailed() || adapter->expectNothing();
        LinkTest::cleanup();
        QVERIFY(isQuiet);
    }

    void connectingAsksForTheEoiMode()
    {
        // init() took the one line; cleanup() sees that there is no other.
        QCOMPARE(gpib->address(), -1);
        QVERIFY(!gpib->isReplyPending());
    }

    void openingOfTheStation()
    {
        GPIB second;
        second.connectAdapter(adapter->address(), adapterPort);
        second.sndMsg("\n");
        second.setAuto(1);
        QVERIFY(adapter->expect("++eoi\n\n\n++auto 1\n"));
    }

    void anAddressIsSentOnlyWhenItChanges()
    {
        QVERIFY(gpib->setAddr(3));
        QVERIFY(gpib->setAddr(3));
        QVERIFY(gpib->setAddr(1));
        QVERIFY(gpib->setAddr(0));
        QVERIFY(gpib->setAddr(3));
        QVERIFY(adapter->expect("++addr 3\n++addr 1\n++addr 0\n++addr 3\n"));
        QCOMPARE(gpib->address(), 3);
    }

    void theCurrentAddressIsTakenWhileAReplyIsPending()
    {
        gpib->setAddr(1);
        gpib->setReplyPending();
        QVERIFY(gpib->setAddr(1));
        QVERIFY(adapter->expect("++addr 1\n"));
    }

    void anotherAddressIsRefusedWhileAReplyIsPending()
    {
        gpib->setAddr(1);
        gpib->setReplyPending();
        QVERIFY(!gpib->setAddr(5));
        QCOMPARE(gpib->address(), 1);
        QVERIFY(adapter->expect("++addr 1\n"));
        QVERIFY(adapter->expectNothing());

        adapter->send("a reply\n");
        QVERIFY(gpib->setAddr(5));
        QVERIFY(adapter->expect("++addr 5\n"));
    }

    void aNegativeAddressAsksAndSelectsNothing()
    {
        gpib->setAddr(3);
        QVERIFY(gpib->setAddr(-1));
        QVERIFY(gpib->setAddr(-1));
        QCOMPARE(gpib->address(), 3);
        QVERIFY(gpib->setAddr(3));
        QVERIFY(adapter->expect("++addr 3\n++addr\n++addr\n"));
    }

    void aNegativeAddressIsRefusedWhileAReplyIsPending()
    {
        gpib->setAddr(3);
        gpib->setReplyPending();
        QVERIFY(!gpib->setAddr(-1));
        QVERIFY(adapter->expect("++addr 3\n"));
    }

    void theUnknownAddressIsTheCurrentOneOfAFreshLink()
    {
        QVERIFY(gpib->setAddr(-1));
        QVERIFY(adapter->expectNothing());
        QVERIFY(gpib->setAddr(-2));
        QVERIFY(adapter->expect("++addr\n"));
    }

    void anEosModeIsSentOnlyWhenItChanges()
    {
        gpib->setEos(3);
        gpib->setEos(3);
        gpib->setEos(0);
        gpib->setEos(0);
        gpib->setEos(3);
        QVERIFY(adapter->expect("++eos 3\n++eos 0\n++eos 3\n"));
    }

    void aNegativeEosModeIsSentAndNotRemembered()
    {
        gpib->setEos(-2);
        gpib->setEos(-2);
        QVERIFY(adapter->expect("++eos -2\n++eos -2\n"));
        gpib->setEos(3);
        gpib->setEos(-1);
        gpib->setEos(3);
        QVERIFY(adapter->expect("++eos 3\n++eos -1\n"));
    }

    void eoiFollowsOneChangeBehind()
    {
        gpib->setEoi(1);
        QVERIFY(adapter->expect("++eoi\n"));
        gpib->setEoi(0);
        QVERIFY(adapter->expect("++eoi 1\n"));
        gpib->setEoi(0);
        QVERIFY(adapter->expectNothing());
        gpib->setEoi(7);
        QVERIFY(adapter->expect("++eoi 0\n"));
        gpib->setEoi(0);
        QVERIFY(adapter->expect("++eoi 1\n"));
    }

    void eoiOfShuttersAndTemperaturesInTurn()
    {
        for (const int eoi : {1, 1, 0, 0, 1, 0, 1}) {
            gpib->setEoi(eoi);
        }
        QVERIFY(adapter->expect("++eoi\n++eoi 1\n++eoi 0\n++eoi 1\n++eoi 0\n"));
    }

    void aNegativeEoiModeIsNotRemembered()
    {
        gpib->setEoi(-1);
        gpib->setEoi(-1);
        QVERIFY(adapter->expect("++eoi\n++eoi\n"));
        gpib->setEoi(0);
        gpib->setEoi(-1);
        gpib->setEoi(0);
        QVERIFY(adapter->expect("++eoi\n++eoi 0\n"));
    }

    void autoIsSentEveryTime()
    {
        gpib->setAuto(1);
        gpib->setAuto(1);
        gpib->setAuto(0);
        gpib->setAuto(-1);
        gpib->setAuto(-1);
        QVERIFY(adapter->expect("++auto 1\n++auto 1\n++auto 0\n++auto\n++auto\n"));
    }

    void textLines_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<QByteArray>("sent");
        QTest::newRow("plain") << QByteArray("*IDN?") << QByteArray("*IDN?\n");
        QTest::newRow("empty") << QByteArray("") << QByteArray("\n");
        QTest::newRow("a line feed is one more line") << QByteArray("\n") << QByteArray("\n\n");
        QTest::newRow("bytes above 127") << QByteArray("\xC2\xB0\xFF") << QByteArray("\xC2\xB0\xFF\n");
        QTest::newRow("control bytes") << QByteArray("\x04\x1B\r+") << QByteArray("\x04\x1B\r+\n");
        QTest::newRow("ends at the first NUL") << QByteArray("ab\0cd", 5) << QByteArray("ab\n");
        QTest::newRow("999") << QByteArray(999, 'x') << QByteArray(999, 'x') + '\n';
        QTest::newRow("1000") << QByteArray(1000, 'x') << QByteArray(1000, 'x') + '\n';
        QTest::newRow("1001") << QByteArray(1001, 'x') << QByteArray(1000, 'x') + '\n';
    }

    void textLines()
    {
        QFETCH(QByteArray, text);
        QFETCH(QByteArray, sent);
        gpib->sndMsg(text.constData());
        QVERIFY(adapter->expect(sent));
    }

    void aLongTextIsCutTo1000Characters()
    {
        const QByteArray text = QByteArray(600, 'a') + QByteArray(600, 'b');
        gpib->sndMsg(text.constData());
        QVERIFY(adapter->expect(QByteArray(600, 'a') + QByteArray(400, 'b') + '\n'));
    }

    void rawBytesArriveAsTheyAre()
    {
        QByteArray every;
        for (int byte = 0; byte < 256; ++byte) {
            every.append(static_cast<char>(byte));
        }
        gpib->sndRaw(every.constData(), every.size());
        QVERIFY(adapter->expect(every));

        gpib->sndRaw("abcdef", 3);
        gpib->sndRaw("abcdef", 0);
        gpib->sndRaw("abcdef", -1);
        QVERIFY(adapter->expect("abc"));
        QVERIFY(adapter->expectNothing());
    }
};

NELVO_TEST_MAIN(GpibTest)
#include "gpib.moc"
