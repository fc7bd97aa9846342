// Saving and loading the table, and the files that cannot be.

#include "support/files.h"
#include "support/messagecapture.h"
#include "support/ordinaryuser.h"
#include "support/stationtest.h"
#include "support/testmain.h"

#include <QClipboard>
#include <QDir>
#include <QGuiApplication>
#include <QTextCodec>

using namespace TestText;

namespace {

QByteArray defaultLine(int k)
{
    return QByteArray::number(k) + "\t0\t0\t0\t0\t0\t0\t0\t0\t0\t0\t0\t0\t0\t0\t0\t0\t0\t---NoGroup---\t1\n";
}

} // namespace

class ProgramFilesTest : public SharedStationTest
{
    Q_OBJECT

private slots:
    void init() { program().click("Clear"); }

    void savedDefaultTableIsUnchangedWhenLoaded()
    {
        const QString fname = "default.dat"_s;
        program().saveFile(fname);
        QByteArray expected;
        for (int k = 0; k < ProgramTab::rows; ++k) {
            expected += defaultLine(k);
        }
        QCOMPARE(fileText(fname), expected);
        program().loadFile(fname);
        QCOMPARE(program().steps(), QVector<ProgramStep>(ProgramTab::rows));
    }

    void savedTableIsUnchangedWhenLoaded()
    {
        for (int k = 0; k < ProgramTab::rows; ++k) {
            program().enter(k, QString::number(k + 0.25), QString::number(k / 5), QString::number(k));
            program().setPoint(k, k % Channels::count)->setText(QString::number(k));
            program().shutter(k, k % Channels::shutterCount)->click();
        }
        const QVector<ProgramStep> before = program().steps();
        program().saveFile("full.dat"_s);
        const QByteArray saved = fileText("full.dat"_s);
        program().click("Clear");
        program().loadFile("full.dat"_s);
        QCOMPARE(program().steps(), before);
        program().saveFile("full.dat"_s);
        QCOMPARE(fileText("full.dat"_s), saved);
    }

    void aNumberPastedWithItsLineEndKeepsItsRow()
    {
        program().enter(1, "5"_s);
        QGuiApplication::clipboard()->setText("850\n"_s);
        program().setPoint(1, 2)->selectAll();
        program().setPoint(1, 2)->paste();
        const QVector<ProgramStep> before = program().steps();
        program().saveFile("pasted.dat"_s);
        program().click("Clear");
        program().loadFile("pasted.dat"_s);
        QCOMPARE(program().setPoint(1, 2)->text(), "850"_s);
        QCOMPARE(program().steps(), before);
    }

    void aGroupOutsideAsciiIsSavedAndLoaded_data()
    {
        QTest::addColumn<QByteArray>("encoding");
        QTest::addColumn<QByteArray>("saved");
        QTest::newRow("UTF-8") << QByteArray("UTF-8") << QByteArray("\t量子井戸\t3\n");
        QTest::newRow("Shift_JIS") << QByteArray("Shift_JIS")
                                   << QByteArray("\t\x97\xCA\x8E\x71\x88\xE4\x8C\xCB\t3\n");
    }

    // In the encoding of the machine.
    void aGroupOutsideAsciiIsSavedAndLoaded()
    {
        QFETCH(QByteArray, encoding);
        QFETCH(QByteArray, saved);
        QTextCodec* before = QTextCodec::codecForLocale();
        QTextCodec::setCodecForLocale(QTextCodec::codecForName(encoding));
        program().enter(0, "5"_s, "量子井戸"_s, "3"_s);
        program().saveFile("group.dat"_s);
        program().click("Clear");
        program().loadFile("group.dat"_s);
        QTextCodec::setCodecForLocale(before);
        QVERIFY2(fileText("group.dat"_s).contains(saved), fileText("group.dat"_s).left(60));
        QCOMPARE(program().group(0)->text(), "量子井戸"_s);
        QCOMPARE(program().times(0)->text(), "3"_s);
    }

    void fileMissingLeavesTheTable()
    {
        program().enter(0, "33"_s);
        MessageCapture capture;
        program().loadFile("no such file.dat"_s);
        QCOMPARE(capture.messages().size(), 1);
        const LoggedMessage message = capture.messages().constFirst();
        QCOMPARE(message.text, "\"Can not open [\" \"no such file.dat\" \"]\""_s);
        QCOMPARE(message.unit, "program"_s);
        QCOMPARE(message.category, "default"_s);
        QVERIFY(message.function.contains("APLoadProg"_s));
        QCOMPARE(program().time(0)->text(), "33"_s);
    }

    void unwritableFileSaysSo_data()
    {
        QTest::addColumn<QString>("fname");
        QTest::newRow("a directory") << "afolder"_s;
        QTest::newRow("in a missing directory") << "missing/program.dat"_s;
        QTest::newRow("no name") << QString();
    }

    void unwritableFileSaysSo()
    {
        QFETCH(QString, fname);
        QDir().mkdir("afolder"_s);
        MessageCapture capture;
        program().saveFile(fname);
        program().loadFile(fname);
        const QString expected = "\"Can not open [\" \"%1\" \"]\""_s.arg(fname);
        QCOMPARE(capture.texts().filter("Can not open"_s), QStringList({expected, expected}));
    }

    void aClosedFolderKeepsItsProgramsAndTheTable()
    {
        AS_ORDINARY_USER();
        putFile("old.dat"_s, defaultLine(3));
        QVERIFY(QFile::setPermissions("old.dat"_s, QFileDevice::ReadOwner));
        program().enter(0, "33"_s);
        QStringList said;
        {
            const ClosedFolder closed;
            MessageCapture capture;
            program().saveFile("new.dat"_s);
            program().saveFile("old.dat"_s);
            said = capture.texts();
        }
        QCOMPARE(said.filter("Can not open"_s).size(), 2);
        QVERIFY(!QFile::exists("new.dat"_s));
        QCOMPARE(fileText("old.dat"_s), defaultLine(3));
        QCOMPARE(program().time(0)->text(), "33"_s);
        program().saveFile("new.dat"_s);
        QCOMPARE(fileText("new.dat"_s).count('\n'), ProgramTab::rows);
    }

    void unfinishedSaveKeepsTheOldProgram()
    {
        if (!FullDisk::isPossible()) {
            QSKIP("needs a full disk");
        }
        const QString fname = "kept.dat"_s;
        putFile(fname, "the old program\n");
        QStringList said;
        {
            const FullDisk full(100);
            MessageCapture capture;
            program().saveFile(fname);
            said = capture.texts();
        }
        QCOMPARE(said, QStringList("\"Can not open [\" \"kept.dat\" \"]\""_s));
        QCOMPARE(fileText(fname), QByteArray("the old program\n"));
        QCOMPARE(QDir().entryList({"kept*"_s}), QStringList(fname));
    }

    void shortFileClearsTheOtherRows()
    {
        for (int k = 0; k < ProgramTab::rows; ++k) {
            program().enter(k, "9"_s);
        }
        putFile("short.dat"_s, "5 1 2 3 4 5 6 7 8 9 1 0 0 0 0 0 1 2.5 A 4\n\nremark\n" + defaultLine(0));
        program().loadFile("short.dat"_s);
        QCOMPARE(program().time(0)->text(), "2.5"_s);
        QCOMPARE(program().group(0)->text(), "A"_s);
        QCOMPARE(program().times(0)->text(), "4"_s);
        QCOMPARE(program().setPoint(0, 8)->text(), "9"_s);
        QCOMPARE(program().shutter(0, 6)->text(), "On"_s);
        QCOMPARE(program().steps().mid(1), QVector<ProgramStep>(ProgramTab::rows - 1));
    }

    void longFileStopsAtTheLastRow()
    {
        QByteArray lines;
        for (int k = 0; k < 300; ++k) {
            lines += "0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 " + QByteArray::number(k + 1) + " ---NoGroup--- 1\n";
        }
        putFile("long.dat"_s, lines);
        program().loadFile("long.dat"_s);
        QCOMPARE(program().time(0)->text(), "1"_s);
        QCOMPARE(program().time(ProgramTab::rows - 1)->text(), "200"_s);
    }

    void emptyFileClearsTheTable()
    {
        program().enter(0, "33"_s);
        putFile("empty.dat"_s, QByteArray());
        program().loadFile("empty.dat"_s);
        QCOMPARE(program().step(0), ProgramStep());
    }

    void loadingKeepsNumbersAndMarks()
    {
        program().enter(0, "33"_s);
        program().click("Run");
        program().tick();
        putFile("other.dat"_s, defaultLine(7));
        program().loadFile("other.dat"_s);
        QCOMPARE(program().marked(), QVector<int>{1});
        QCOMPARE(program().stepLabel(0)->text(), "1"_s);
        program().tick(34000);
        QVERIFY(!program().isRunning());
    }
};

NELVO_TEST_MAIN(ProgramFilesTest)
#include "programfiles.moc"
