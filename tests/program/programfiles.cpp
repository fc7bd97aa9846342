#include "program/programwindow.h"

#include "support/files.h"
#include "support/messagecapture.h"
#include "support/testmain.h"

#include <QDir>
#include <QFile>

namespace {

QByteArray defaultLine(int k)
{
    return QByteArray::number(k) + "\t0\t0\t0\t0\t0\t0\t0\t0\t0\t0\t0\t0\t0\t0\t0\t0\t0\t---NoGroup---\t1\n";
}

void callWithFile(ProgramWindow& table, const char* slot, const QString& fname)
{
    QVERIFY(QMetaObject::invokeMethod(&table.window(), slot, Q_ARG(QString, fname)));
}

} // namespace

class TestProgramFiles : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanupTestCase();
    void init();

    void savedDefaultTableIsUnchangedWhenLoaded();
    void savedTableIsUnchangedWhenLoaded();
    void fileMissingLeavesTheTable();
    void unwritableFileSaysSo_data();
    void unwritableFileSaysSo();
    void unfinishedSaveKeepsTheOldProgram();
    void shortFileClearsTheOtherRows();
    void longFileStopsAtTheLastRow();
    void emptyFileClearsTheTable();
    void loadingKeepsNumbersAndMarks();

private:
    ProgramWindow& table() { return *shared; }
    std::unique_ptr<ProgramWindow> shared;
};

void TestProgramFiles::initTestCase()
{
    shared = std::make_unique<ProgramWindow>();
}

void TestProgramFiles::cleanupTestCase()
{
    shared.reset();
}

void TestProgramFiles::init()
{
    table().button("ProgClear")->click();
}

void TestProgramFiles::savedDefaultTableIsUnchangedWhenLoaded()
{
    const QString fname = QStringLiteral("default.dat");
    callWithFile(table(), "APSaveProg", fname);
    QByteArray expected;
    for (int k = 0; k < 200; ++k) {
        expected += defaultLine(k);
    }
    QCOMPARE(fileText(fname), expected);
    callWithFile(table(), "APLoadProg", fname);
    for (int k = 0; k < 200; ++k) {
        QCOMPARE(table().row(k), ProgramStep());
    }
}

void TestProgramFiles::savedTableIsUnchangedWhenLoaded()
{
    for (int k = 0; k < 200; ++k) {
        table().enter(k, QString::number(k + 0.25), QString::number(k / 5), QString::number(k));
        table().setPoint(k, k % 9)->setText(QString::number(k));
        table().shutter(k, k % 7)->click();
    }
    QVector<ProgramStep> before;
    for (int k = 0; k < 200; ++k) {
        before.append(table().row(k));
    }
    callWithFile(table(), "APSaveProg", QStringLiteral("full.dat"));
    const QByteArray saved = fileText(QStringLiteral("full.dat"));
    table().button("ProgClear")->click();
    callWithFile(table(), "APLoadProg", QStringLiteral("full.dat"));
    for (int k = 0; k < 200; ++k) {
        QCOMPARE(table().row(k), before[k]);
    }
    callWithFile(table(), "APSaveProg", QStringLiteral("full.dat"));
    QCOMPARE(fileText(QStringLiteral("full.dat")), saved);
}

void TestProgramFiles::fileMissingLeavesTheTable()
{
    table().enter(0, QStringLiteral("33"));
    MessageCapture capture;
    callWithFile(table(), "APLoadProg", QStringLiteral("no such file.dat"));
    QCOMPARE(capture.messages().size(), 1);
    const LoggedMessage message = capture.messages().constFirst();
    QCOMPARE(message.text, QStringLiteral("\"Can not open [\" \"no such file.dat\" \"]\""));
    QCOMPARE(message.unit, QStringLiteral("program"));
    QCOMPARE(message.category, QStringLiteral("default"));
    QVERIFY(message.function.contains(QLatin1String("APLoadProg")));
    QCOMPARE(table().time(0)->text(), QStringLiteral("33"));
}

void TestProgramFiles::unwritableFileSaysSo_data()
{
    QTest::addColumn<QString>("fname");
    QTest::newRow("a directory") << QStringLiteral("afolder");
    QTest::newRow("in a missing directory") << QStringLiteral("missing/program.dat");
    QTest::newRow("no name") << QString();
}

void TestProgramFiles::unwritableFileSaysSo()
{
    QFETCH(QString, fname);
    QDir().mkdir(QStringLiteral("afolder"));
    MessageCapture capture;
    callWithFile(table(), "APSaveProg", fname);
    callWithFile(table(), "APLoadProg", fname);
    const QString expected = QStringLiteral("\"Can not open [\" \"%1\" \"]\"").arg(fname);
    QCOMPARE(capture.texts().filter(QStringLiteral("Can not open")), QStringList({expected, expected}));
}

void TestProgramFiles::unfinishedSaveKeepsTheOldProgram()
{
    if (!FullDisk::isPossible()) {
        QSKIP("needs a full disk");
    }
    const QString fname = QStringLiteral("kept.dat");
    putFile(fname, "the old program\n");
    QStringList said;
    {
        const FullDisk full(100);
        MessageCapture capture;
        callWithFile(table(), "APSaveProg", fname);
        said = capture.texts();
    }
    QCOMPARE(said, QStringList(QStringLiteral("\"Can not open [\" \"kept.dat\" \"]\"")));
    QCOMPARE(fileText(fname), QByteArray("the old program\n"));
    QCOMPARE(QDir().entryList({QStringLiteral("kept*")}), QStringList(fname));
}

void TestProgramFiles::shortFileClearsTheOtherRows()
{
    for (int k = 0; k < 200; ++k) {
        table().enter(k, QStringLiteral("9"));
    }
    putFile(QStringLiteral("short.dat"),
        "5 1 2 3 4 5 6 7 8 9 1 0 0 0 0 0 1 2.5 A 4\n\nremark\n" + defaultLine(0));
    callWithFile(table(), "APLoadProg", QStringLiteral("short.dat"));
    QCOMPARE(table().time(0)->text(), QStringLiteral("2.5"));
    QCOMPARE(table().group(0)->text(), QStringLiteral("A"));
    QCOMPARE(table().times(0)->text(), QStringLiteral("4"));
    QCOMPARE(table().setPoint(0, 8)->text(), QStringLiteral("9"));
    QCOMPARE(table().shutter(0, 6)->text(), QStringLiteral("On"));
    for (int k = 1; k < 200; ++k) {
        QCOMPARE(table().row(k), ProgramStep());
    }
}

void TestProgramFiles::longFileStopsAtTheLastRow()
{
    QByteArray lines;
    for (int k = 0; k < 300; ++k) {
        lines += "0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 " + QByteArray::number(k + 1) + " ---NoGroup--- 1\n";
    }
    putFile(QStringLiteral("long.dat"), lines);
    callWithFile(table(), "APLoadProg", QStringLiteral("long.dat"));
    QCOMPARE(table().time(0)->text(), QStringLiteral("1"));
    QCOMPARE(table().time(199)->text(), QStringLiteral("200"));
}

void TestProgramFiles::emptyFileClearsTheTable()
{
    table().enter(0, QStringLiteral("33"));
    putFile(QStringLiteral("empty.dat"), QByteArray());
    callWithFile(table(), "APLoadProg", QStringLiteral("empty.dat"));
    QCOMPARE(table().row(0), ProgramStep());
}

void TestProgramFiles::loadingKeepsNumbersAndMarks()
{
    table().enter(0, QStringLiteral("33"));
    table().button("ProgRun")->click();
    table().tick();
    putFile(QStringLiteral("other.dat"), defaultLine(7));
    callWithFile(table(), "APLoadProg", QStringLiteral("other.dat"));
    QCOMPARE(table().marked(), QVector<int>({1}));
    QCOMPARE(table().stepLabel(0)->text(), QStringLiteral("1"));
    table().tick(34000);
    QVERIFY(!table().isRunning());
}

NELVO_TEST_MAIN(TestProgramFiles)
#include "programfiles.moc"
