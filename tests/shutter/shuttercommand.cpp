// The three bytes of the shutter command, for every combination there is.

#include "shutter/shuttercommand.h"

#include "support/testmain.h"

namespace {

QVector<bool> shutters(const char* letters)
{
    QVector<bool> open;
    for (const char letter : QByteArray(letters)) {
        open.append(letter == 'o');
    }
    return open;
}

} // namespace

class ShutterCommandTest : public QObject
{
    Q_OBJECT

private slots:
    void everyCombination()
    {
        for (int mask = 0; mask < 128; ++mask) {
            QVector<bool> open;
            QString letters;
            for (int n = 0; n < 7; ++n) {
                const bool isOpen = (mask & (1 << n)) != 0;
                open.append(isOpen);
                letters.append(QLatin1Char(isOpen ? 'o' : 'x'));
            }
            const QByteArray command = shutterCommand(open);
            QCOMPARE(command.size(), 3);
            QCOMPARE(static_cast<uchar>(command[0]), uchar(0x1B));
            QCOMPARE(static_cast<int>(static_cast<uchar>(command[1])), mask);
            QCOMPARE(static_cast<uchar>(command[2]), uchar(0x0A));
            QCOMPARE(shutterLetters(open), letters);
        }
    }

    void examples_data()
    {
        QTest::addColumn<QByteArray>("letters");
        QTest::addColumn<QByteArray>("command");
        QTest::newRow("all closed") << QByteArray("xxxxxxx") << QByteArray("\x1B\x00\n", 3);
        QTest::newRow("all open") << QByteArray("ooooooo") << QByteArray("\x1B\x7F\n", 3);
        QTest::newRow("only the third") << QByteArray("xxoxxxx") << QByteArray("\x1B\x04\n", 3);
        QTest::newRow("the first and the fourth") << QByteArray("oxxoxxx") << QByteArray("\x1B\x09\n", 3);
        QTest::newRow("the seventh") << QByteArray("xxxxxxo") << QByteArray("\x1B\x40\n", 3);
        QTest::newRow("a mask that is LF") << QByteArray("xoxoxxx") << QByteArray("\x1B\n\n", 3);
        QTest::newRow("a mask that is CR") << QByteArray("oxooxxx") << QByteArray("\x1B\r\n", 3);
        QTest::newRow("a mask that is ESC") << QByteArray("ooxooxx") << QByteArray("\x1B\x1B\n", 3);
        QTest::newRow("a mask that is +") << QByteArray("ooxoxox") << QByteArray("\x1B+\n", 3);
    }

    void examples()
    {
        QFETCH(QByteArray, letters);
        QFETCH(QByteArray, command);
        QCOMPARE(shutterCommand(shutters(letters.constData())), command);
        QCOMPARE(shutterLetters(shutters(letters.constData())), QString::fromLatin1(letters));
    }

    void missingShuttersAreClosed()
    {
        QCOMPARE(shutterCommand({}), QByteArray("\x1B\x00\n", 3));
        QCOMPARE(shutterCommand({true}), QByteArray("\x1B\x01\n", 3));
    }

    void theEighthShutterIsNone()
    {
        QCOMPARE(shutterCommand(shutters("xxxxxxxo")), QByteArray("\x1B\x00\n", 3));
        QCOMPARE(shutterCommand(shutters("oooooooo")), QByteArray("\x1B\x7F\n", 3));
    }
};

NELVO_TEST_MAIN(ShutterCommandTest)
#include "shuttercommand.moc"
