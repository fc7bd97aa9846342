// The journal's lines as text, and back.

#include "journal/journalline.h"

#include "support/testmain.h"
#include "support/testtext.h"

using namespace TestText;

class JournalLineTest : public QObject
{
    Q_OBJECT

private slots:
    void theFormIsFixed()
    {
        JournalLine line;
        line.systemMs = 1795221667123; // 2026-11-21T00:41:07.123Z
        line.offsetSec = 9 * 3600;
        line.elapsedSec = 12.3456;
        line.kind = "set-point"_s;
        line.fields = {{"cell", "Ga"_s}, {"deg-c", "850"_s}};
        QCOMPARE(journalText(line),
            QByteArray("2026-11-21T09:41:07.123+09:00\t12.346\tset-point\tcell=Ga\tdeg-c=850\n"));
    }

    void theOffsetIsWritten_data()
    {
        QTest::addColumn<int>("offsetSec");
        QTest::addColumn<QByteArray>("text");
        QTest::newRow("UTC") << 0 << QByteArray("+00:00");
        QTest::newRow("half an hour") << 19800 << QByteArray("+05:30");
        QTest::newRow("behind") << -12600 << QByteArray("-03:30");
    }

    void theOffsetIsWritten()
    {
        QFETCH(int, offsetSec);
        QFETCH(QByteArray, text);
        JournalLine line;
        line.offsetSec = offsetSec;
        line.kind = "exit"_s;
        QCOMPARE(journalText(line).mid(23, 6), text);
        const auto read = readJournalLine(journalText(line));
        QVERIFY(read);
        QCOMPARE(read->offsetSec, offsetSec);
        QCOMPARE(read->systemMs, qint64(0));
    }

    // Not for a program either that takes U+0085 or U+2028 for a line end.
    void noLineEndIsLeft_data()
    {
        QTest::addColumn<QString>("character");
        QTest::addColumn<QByteArray>("text");
        QTest::newRow("LF") << QString(QChar(0x0A)) << QByteArray("\\x0a");
        QTest::newRow("0x1F") << QString(QChar(0x1F)) << QByteArray("\\x1f");
        QTest::newRow("blank") << QString(QChar(0x20)) << QByteArray(" ");
        QTest::newRow("0x7E") << QString(QChar(0x7E)) << QByteArray("~");
        QTest::newRow("DEL") << QString(QChar(0x7F)) << QByteArray("\\x7f");
        QTest::newRow("0x80") << QString(QChar(0x80)) << QByteArray("\\x80");
        QTest::newRow("next line") << QString(QChar(0x85)) << QByteArray("\\x85");
        QTest::newRow("0x9F") << QString(QChar(0x9F)) << QByteArray("\\x9f");
        QTest::newRow("0xA0") << QString(QChar(0xA0)) << QByteArray("\xC2\xA0");
        QTest::newRow("0x2027") << QString(QChar(0x2027)) << QByteArray("\xE2\x80\xA7");
        QTest::newRow("line separator") << QString(QChar(0x2028)) << QByteArray("\\u2028");
        QTest::newRow("paragraph separator") << QString(QChar(0x2029)) << QByteArray("\\u2029");
        QTest::newRow("0x202A") << QString(QChar(0x202A)) << QByteArray("\xE2\x80\xAA");
    }

    void noLineEndIsLeft()
    {
        QFETCH(QString, character);
        QFETCH(QByteArray, text);
        JournalLine line;
        line.kind = "load"_s;
        line.fields = {{"file", character}};
        const QByteArray whole = journalText(line);
        QCOMPARE(whole.mid(whole.indexOf('=') + 1).chopped(1), text);
        QCOMPARE(readJournalLine(whole)->value("file"_s), character);
    }

    void everyValueComesBack_data()
    {
        QTest::addColumn<QString>("value");
        QTest::newRow("empty") << QString();
        QTest::newRow("plain") << "850"_s;
        QTest::newRow("blanks") << " two words "_s;
        QTest::newRow("an equals sign") << "a=b=c"_s;
        QTest::newRow("tabs and line ends") << "a\tb\nc\r\nd"_s;
        QTest::newRow("backslashes") << "C:\\table\\new"_s;
        QTest::newRow("a backslash at the end") << "C:\\"_s;
        QTest::newRow("Japanese") << "準備室"_s;
        QByteArray every;
        for (int byte = 0; byte < 256; ++byte) {
            every.append(static_cast<char>(byte));
        }
        QTest::newRow("every byte") << QString::fromLatin1(every);
    }

    void everyValueComesBack()
    {
        QFETCH(QString, value);
        JournalLine line;
        line.kind = "load"_s;
        line.fields = {{"file", value}, {"rows", "2"_s}};
        const QByteArray text = journalText(line);
        QCOMPARE(text.count('\n'), 1);
        const auto read = readJournalLine(text);
        QVERIFY(read);
        QCOMPARE(read->kind, "load"_s);
        QCOMPARE(read->fields.size(), 2);
        QCOMPARE(read->value("file"_s), value);
        QCOMPARE(read->value("rows"_s), "2"_s);
        QCOMPARE(read->value("missing"_s), QString());
    }

    void timesComeBack()
    {
        JournalLine line;
        line.systemMs = 1795221667123;
        line.offsetSec = 32400;
        line.elapsedSec = 86400.5;
        line.kind = "minute"_s;
        const auto read = readJournalLine(journalText(line).replace('\n', "\r\n"));
        QVERIFY(read);
        QCOMPARE(read->systemMs, line.systemMs);
        QCOMPARE(read->elapsedSec, 86400.5);
        QVERIFY(read->fields.isEmpty());
    }

    void whatIsNoLineIsRefused_data()
    {
        const QByteArray time = "2026-11-21T09:41:07.123+09:00";
        QTest::addColumn<QByteArray>("text");
        QTest::newRow("empty") << QByteArray();
        QTest::newRow("a word") << QByteArray("remark");
        QTest::newRow("no kind") << time + "\t1.000";
        QTest::newRow("an empty kind") << time + "\t1.000\t";
        QTest::newRow("no number") << time + "\tsoon\texit";
        QTest::newRow("no offset") << QByteArray("2026-11-21T09:41:07.123\t1.000\texit");
        QTest::newRow("no such day") << QByteArray("2026-11-31T09:41:07.123+09:00\t1.000\texit");
        QTest::newRow("no such offset") << QByteArray("2026-11-21T09:41:07.123+99:00\t1.000\texit");
        QTest::newRow("a field without a name") << time + "\t1.000\texit\t=1";
        QTest::newRow("an escape that is none") << time + "\t1.000\tload\tfile=a\\n";
        QTest::newRow("an escape that was cut") << time + "\t1.000\tload\tfile=a\\x0";
        QTest::newRow("a long escape that was cut") << time + "\t1.000\tload\tfile=a\\u202";
        QTest::newRow("an escape of no number") << time + "\t1.000\tload\tfile=a\\u20zz";
        QTest::newRow("an escape of a negative number") << time + "\t1.000\tload\tfile=a\\x-1";
        QTest::newRow("an escape of half a character") << time + "\t1.000\tload\tfile=a\\ud83d";
        QTest::newRow("a backslash at the end") << time + "\t1.000\tload\tfile=a\\";
        QTest::newRow("a field that was cut") << time + "\t1.000\tset-point\tcel";
    }

    void whatIsNoLineIsRefused()
    {
        QFETCH(QByteArray, text);
        QVERIFY(!readJournalLine(text));
    }
};

NELVO_TEST_MAIN(JournalLineTest)
#include "journalline.moc"
