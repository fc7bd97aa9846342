// The journal's file: a line at a time, put aside when it is large, and never more lost than what had no
// room.

#include "journal/journal.h"

#include "support/files.h"
#include "support/ordinaryuser.h"
#include "support/testmain.h"
#include "support/testtext.h"
#include "support/ticks.h"

#include <QDir>
#include <QFile>

using namespace TestText;

namespace {

const QString name = "NelvoJournal.log"_s;

QList<JournalLine> linesOf(const QString& file = name)
{
    QList<JournalLine> lines;
    for (const QByteArray& text : fileText(file).split('\n')) {
        if (const auto line = readJournalLine(text)) {
            lines.append(*line);
        }
    }
    return lines;
}

} // namespace

class JournalFileTest : public QObject
{
    Q_OBJECT

private slots:
    void cleanup()
    {
        for (const QString& file : QDir().entryList({name + "*"_s}, QDir::Files)) {
            QVERIFY(QFile::remove(file));
        }
        QDir().rmdir(name);
    }

    void aLineSaysWhenAndHowLongSinceTheStart()
    {
        const DrivenClock clock(1795221667123);
        Journal journal;
        DrivenClock::advance(1500);
        journal.write("in-use", {{"cell", "Ga"_s}});
        QCOMPARE(linesOf().size(), 1);
        const JournalLine line = linesOf().first();
        QCOMPARE(line.systemMs, qint64(1795221668623));
        QCOMPARE(line.elapsedSec, 1.5);
        QCOMPARE(line.kind, "in-use"_s);
        QCOMPARE(line.value("cell"_s), "Ga"_s);
    }

    void runsFollowEachOtherInOneFile()
    {
        QVERIFY(!Journal().lastLine());
        Journal().write("start");
        Journal().write("exit");
        Journal second;
        QCOMPARE(second.lastLine()->kind, "exit"_s);
        second.write("start");
        QCOMPARE(second.lastLine()->kind, "start"_s);
        QCOMPARE(linesOf().size(), 3);
    }

    void aLineThatWasCutDoesNotSpoilTheNext()
    {
        Journal().write("start");
        QFile file(name);
        QVERIFY(file.open(QIODevice::Append));
        file.write("2026-11-21T09:41:07.12");
        file.close();
        Journal after;
        QCOMPARE(after.lastLine()->kind, "start"_s);
        after.write("start");
        QCOMPARE(linesOf().size(), 2);
    }

    void theFolderOfTheStartIsKept()
    {
        const QString home = QDir::currentPath();
        Journal journal;
        QVERIFY(QDir().mkdir("elsewhere"_s));
        QVERIFY(QDir::setCurrent("elsewhere"_s));
        journal.write("start");
        const bool isHere = QFile::exists(name);
        QVERIFY(QDir::setCurrent(home));
        QVERIFY(QDir().rmdir("elsewhere"_s));
        QVERIFY(!isHere);
        QCOMPARE(linesOf().size(), 1);
    }

    void aFileThatIsTakenAwayComesBack()
    {
        Journal journal;
        journal.write("start");
        QVERIFY(QFile::remove(name));
        journal.write("exit");
        QCOMPARE(linesOf().size(), 1);
    }

    void aLargeFileIsPutAside()
    {
        Journal journal;
        for (int round = 0; round < 6; ++round) {
            putFile(
                name, QByteArray::number(round).leftJustified(static_cast<int>(Journal::largestFile), '\n'));
            journal.write("minute", {{"round", QString::number(round)}});
            QCOMPARE(linesOf().size(), 1);
            QCOMPARE(linesOf().first().value("round"_s), QString::number(round));
        }
        const QStringList files = QDir().entryList({name + "*"_s}, QDir::Files, QDir::Name);
        QCOMPARE(files, QStringList({name, name + ".1"_s, name + ".2"_s, name + ".3"_s, name + ".4"_s}));
        // Four older ones are kept; the last to be put aside is the youngest.
        for (int number = 1; number <= Journal::olderFiles; ++number) {
            QCOMPARE(fileText("%1.%2"_s.arg(name).arg(number)).left(1), QByteArray::number(6 - number));
        }
    }

    void anotherJournalHasItsOwnSizeAndNumberOfFiles()
    {
        Journal journal(name, 1000, 2);
        for (int round = 0; round < 4; ++round) {
            putFile(name, QByteArray(1000, '0' + static_cast<char>(round)));
            journal.write("minute");
        }
        QCOMPARE(QDir().entryList({name + "*"_s}, QDir::Files, QDir::Name),
            QStringList({name, name + ".1"_s, name + ".2"_s}));
        QCOMPARE(fileText(name + ".1"_s), QByteArray(1000, '3'));
        QCOMPARE(fileText(name + ".2"_s), QByteArray(1000, '2'));
    }

    void aCopyHasTheSameLinesAndMore()
    {
        const DrivenClock clock;
        Journal journal;
        DrivenClock::advance(1500);
        Journal copy(name + ".copy"_s);
        journal.copyTo(copy);
        journal.write("start");
        copy.write("sent");
        {
            const JournalBatch together(journal);
            journal.write("step");
            copy.write("sent");
            QCOMPARE(linesOf(name + ".copy"_s).size(), 2); // one file is not written for each line either
            journal.write("ramp");
        }
        QStringList kinds;
        for (const JournalLine& line : linesOf(name + ".copy"_s)) {
            kinds.append(line.kind);
            QCOMPARE(line.elapsedSec, 1.5);
        }
        QCOMPARE(kinds, QStringList({"start"_s, "sent"_s, "step"_s, "sent"_s, "ramp"_s}));
        QCOMPARE(linesOf().size(), 3);
    }

    // As a file leaves it that could not be moved on because somebody had it open.
    void aGapIsFilledBeforeTheOldestGoes()
    {
        for (const int number : {1, 3, 4}) {
            putFile("%1.%2"_s.arg(name).arg(number), QByteArray::number(number));
        }
        putFile(name, QByteArray(static_cast<int>(Journal::largestFile), '\n'));
        Journal().write("minute");
        QCOMPARE(QFile(name + ".1"_s).size(), qint64(Journal::largestFile));
        QCOMPARE(fileText(name + ".2"_s), QByteArray("1"));
        QCOMPARE(fileText(name + ".3"_s), QByteArray("3"));
        QCOMPARE(fileText(name + ".4"_s), QByteArray("4"));
    }

    void whatIsWrittenTogetherIsAppendedAtOnceAndInOrder()
    {
        Journal journal;
        {
            const JournalBatch outer(journal);
            journal.write("step");
            {
                const JournalBatch inner(journal);
                journal.write("ramp");
            }
            QVERIFY(!QFile::exists(name));
        }
        journal.write("exit");
        QCOMPARE(linesOf().size(), 3);
        QCOMPARE(linesOf().first().kind, "step"_s);
        QCOMPARE(linesOf().last().kind, "exit"_s);
    }

    void theLossOfLinesWrittenTogetherIsCounted()
    {
        QVERIFY(QDir().mkdir(name));
        Journal journal;
        {
            const JournalBatch batch(journal);
            journal.write("step");
            journal.write("ramp");
        }
        QVERIFY(QDir().rmdir(name));
        journal.write("exit");
        QCOMPARE(linesOf().first().value("count"_s), "2"_s);
    }

    void aFileIsPutAsideNoEarlier()
    {
        Journal journal;
        journal.write("start");
        const qint64 length = QFile(name).size();
        putFile(name, QByteArray(static_cast<int>(Journal::largestFile - length), '\n'));
        journal.write("start");
        QCOMPARE(QFile(name).size(), qint64(Journal::largestFile));
        QVERIFY(!QFile::exists(name + ".1"_s));
    }

    void lostLinesAreToldOnceThereIsRoom()
    {
        if (!FullDisk::isPossible()) {
            QSKIP("needs a full disk");
        }
        Journal journal;
        journal.write("start");
        const QByteArray before = fileText(name);
        {
            const FullDisk full(static_cast<int>(QFile(name).size()) + 10);
            journal.write("minute");
            journal.write("minute");
            journal.write("minute");
        }
        QCOMPARE(fileText(name), before);
        journal.write("exit");
        const QList<JournalLine> lines = linesOf();
        QCOMPARE(lines.size(), 3);
        QCOMPARE(lines[1].kind, "lost-lines"_s);
        QCOMPARE(lines[1].value("count"_s), "3"_s);
        QCOMPARE(lines[2].kind, "exit"_s);
        journal.write("exit");
        QCOMPARE(linesOf().size(), 4);
    }

    void aClosedFolderCostsTheLinesUntilItIsOpened()
    {
        AS_ORDINARY_USER();
        Journal journal;
        {
            const ClosedFolder closed;
            journal.write("start");
            journal.write("minute");
        }
        QVERIFY(!QFile::exists(name));
        journal.write("exit");
        QCOMPARE(linesOf().size(), 2);
        QCOMPARE(linesOf().first().kind, "lost-lines"_s);
        QCOMPARE(linesOf().first().value("count"_s), "2"_s);
        QCOMPARE(linesOf().last().kind, "exit"_s);
    }

    // A file that is there can be written on, but not put aside: it grows, and nothing is lost.
    void aLargeFileInAClosedFolderIsWrittenOn()
    {
        AS_ORDINARY_USER();
        putFile(name, QByteArray(static_cast<int>(Journal::largestFile), '\n'));
        Journal journal;
        {
            const ClosedFolder closed;
            journal.write("start");
            journal.write("minute");
        }
        QVERIFY(!QFile::exists(name + ".1"_s));
        QCOMPARE(linesOf().size(), 2);
    }

    void aPlaceThatCannotBeWrittenCostsNothing()
    {
        QVERIFY(QDir().mkdir(name));
        Journal journal;
        QVERIFY(!journal.lastLine());
        journal.write("start");
        QVERIFY(QDir().rmdir(name));
        journal.write("exit");
        QCOMPARE(linesOf().first().value("count"_s), "1"_s);
    }
};

NELVO_TEST_MAIN(JournalFileTest)
#include "journalfile.moc"
