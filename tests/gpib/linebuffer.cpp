// Lines out of a stream of bytes, however the bytes come in.

#include "gpib/linebuffer.h"

#include "support/testmain.h"

namespace {

QByteArrayList linesOf(LineBuffer& buffer)
{
    QByteArrayList lines;
    while (const auto line = buffer.takeLine()) {
        lines.append(*line);
    }
    return lines;
}

} // namespace

class LineBufferTest : public QObject
{
    Q_OBJECT

private slots:
    void linesKeepTheirEnd()
    {
        LineBuffer buffer(100);
        buffer.append("one\r\n\ntwo\n");
        QCOMPARE(linesOf(buffer), (QByteArrayList{"one\r\n", "\n", "two\n"}));
        QCOMPARE(buffer.size(), 0);
    }

    void anIncompleteLineWaits()
    {
        LineBuffer buffer(100);
        QVERIFY(!buffer.takeLine());
        buffer.append("a\nhalf");
        QCOMPARE(linesOf(buffer), QByteArrayList{"a\n"});
        QCOMPARE(buffer.size(), 4);
        buffer.append(QByteArray());
        QVERIFY(!buffer.takeLine());
        buffer.append(" a line\nb");
        QCOMPARE(linesOf(buffer), QByteArrayList{"half a line\n"});
        QCOMPARE(buffer.size(), 1);
    }

    void everyCutGivesTheSameLines()
    {
        const QByteArray text("ab\n\ncdefgh\ni\nrest");
        LineBuffer whole(4);
        whole.append(text);
        const QByteArrayList expected = linesOf(whole);
        for (int first = 0; first <= text.size(); ++first) {
            for (int second = first; second <= text.size(); ++second) {
                LineBuffer buffer(4);
                QByteArrayList lines;
                for (const QByteArray& piece :
                    {text.left(first), text.mid(first, second - first), text.mid(second)}) {
                    buffer.append(piece);
                    lines += linesOf(buffer);
                }
                QCOMPARE(lines, expected);
                QCOMPARE(buffer.size(), 4);
            }
        }
    }

    void aLongLineComesInPortions_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<QByteArrayList>("lines");
        QTest::newRow("at the limit") << QByteArray("abc\nd\n") << QByteArrayList{"abc\n", "d\n"};
        QTest::newRow("the LF alone is left")
            << QByteArray("abcd\ne\n") << QByteArrayList{"abcd", "\n", "e\n"};
        QTest::newRow("three portions")
            << QByteArray("abcdefghij\n") << QByteArrayList{"abcd", "efgh", "ij\n"};
        QTest::newRow("without its end it waits") << QByteArray("abcdefghij") << QByteArrayList();
    }

    void aLongLineComesInPortions()
    {
        QFETCH(QByteArray, text);
        QFETCH(QByteArrayList, lines);
        LineBuffer buffer(4);
        buffer.append(text);
        QCOMPARE(linesOf(buffer), lines);
    }

    // By looking at what was looked at before, or by moving the rest for each line, these would take longer
    // than a test may.
    void everyByteIsLookedAtOnce()
    {
        constexpr int lines = 5000000;
        LineBuffer buffer(100);
        buffer.append(QByteArray(lines, '\n'));
        int taken = 0;
        while (buffer.takeLine()) {
            ++taken;
        }
        QCOMPARE(taken, lines);

        const QByteArray piece(1000, 'x');
        for (int i = 0; i < 100000; ++i) {
            buffer.append(piece);
            QVERIFY(!buffer.takeLine());
        }
        QCOMPARE(buffer.size(), 100000000);
    }

    void clearingForgetsEverything()
    {
        LineBuffer buffer(100);
        buffer.append("a\nhalf");
        QVERIFY(buffer.takeLine());
        QVERIFY(!buffer.takeLine());
        buffer.clear();
        QCOMPARE(buffer.size(), 0);
        buffer.append("b\n");
        QCOMPARE(linesOf(buffer), QByteArrayList{"b\n"});
    }
};

NELVO_TEST_MAIN(LineBufferTest)
#include "linebuffer.moc"
