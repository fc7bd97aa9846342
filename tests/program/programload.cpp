// Files that are no growth programs: whatever is chosen to be loaded, it costs little and says clearly what
// it is.

#include "program/programfile.h"

#include "support/files.h"
#include "support/testmain.h"

#include <QFile>
#include <QFileInfo>

class ProgramLoadTest : public QObject
{
    Q_OBJECT

private slots:
    void cleanup() { QFile::remove(name); }

    void aProgramIsRead();
    void aLineMayBeLong_data();
    void aLineMayBeLong();
    void theTailOfALongLineIsNoLine_data();
    void theTailOfALongLineIsNoLine();
    void aFileMayHaveSixteenMebibytes();
    void aLargerFileIsRefused();
    void nothingIsReadAfterTheLastStep();
    void whatIsNoPlainFileIsRefused_data();
    void whatIsNoPlainFileIsRefused();
    void aFileThatCannotBeReadToTheEndIsRefused();

private:
    const QString name = QStringLiteral("program.dat");
};

namespace {

constexpr int longestLine = 64 * 1024;
const QByteArray fields = "0 1 2 3 4 5 6 7 8 9 1 0 0 0 0 0 1 2.5 A 4";

} // namespace

void ProgramLoadTest::aProgramIsRead()
{
    putFile(name, fields + "\r\nremark\n" + fields);
    const auto steps = ProgramFile::load(name, 200);
    QVERIFY(steps);
    QCOMPARE(steps->size(), 2);
    QCOMPARE(steps->at(1).group, QStringLiteral("A"));
}

void ProgramLoadTest::aLineMayBeLong_data()
{
    QTest::addColumn<int>("length");
    QTest::addColumn<bool>("isRead");
    QTest::newRow("at the limit") << longestLine << true;
    QTest::newRow("beyond it") << longestLine + 1 << false;
    QTest::newRow("twice as long") << 2 * (longestLine + 1) << false;
}

void ProgramLoadTest::aLineMayBeLong()
{
    QFETCH(int, length);
    QFETCH(bool, isRead);
    putFile(name, fields.leftJustified(length, ' ') + '\n' + fields + '\n');
    const auto steps = ProgramFile::load(name, 200);
    QVERIFY(steps);
    QCOMPARE(steps->size(), isRead ? 2 : 1);
}

void ProgramLoadTest::theTailOfALongLineIsNoLine_data()
{
    QTest::addColumn<int>("before");
    for (const int before : {longestLine - 10, longestLine, longestLine + 1, 2 * longestLine + 2, 1000000}) {
        QTest::addRow("%d characters before", before) << before;
    }
}

// Such as a program whose line ends were lost.
void ProgramLoadTest::theTailOfALongLineIsNoLine()
{
    QFETCH(int, before);
    putFile(name, QByteArray(before, '\t') + fields + '\n' + fields + '\n');
    const auto steps = ProgramFile::load(name, 200);
    QVERIFY(steps);
    QCOMPARE(steps->size(), 1);
}

void ProgramLoadTest::aFileMayHaveSixteenMebibytes()
{
    const QByteArray step = fields + '\n';
    putFile(name, QByteArray(16 * 1024 * 1024 - step.size(), '\n') + step);
    const auto steps = ProgramFile::load(name, 200);
    QVERIFY(steps);
    QCOMPARE(steps->size(), 1);
}

void ProgramLoadTest::aLargerFileIsRefused()
{
    putFile(name, fields + '\n');
    QVERIFY(QFile::resize(name, 16 * 1024 * 1024 + 1));
    QVERIFY(!ProgramFile::load(name, 200));
}

void ProgramLoadTest::nothingIsReadAfterTheLastStep()
{
    QByteArray text;
    for (int k = 0; k < 300; ++k) {
        text += fields + '\n';
    }
    putFile(name, text);
    QCOMPARE(ProgramFile::load(name, 200)->size(), 200);
}

void ProgramLoadTest::whatIsNoPlainFileIsRefused_data()
{
    QTest::addColumn<QString>("place");
    QTest::newRow("nothing") << QStringLiteral("missing.dat");
    QTest::newRow("no name") << QString();
    QTest::newRow("a folder") << QStringLiteral(".");
    QTest::newRow("a device without end") << QStringLiteral("/dev/zero");
}

void ProgramLoadTest::whatIsNoPlainFileIsRefused()
{
    QFETCH(QString, place);
    QVERIFY(!ProgramFile::load(place, 200));
}

void ProgramLoadTest::aFileThatCannotBeReadToTheEndIsRefused()
{
    // A plain file, readable by its mode, whose first byte cannot be read.
    const QString unreadable = QStringLiteral("/proc/self/mem");
    if (!QFileInfo(unreadable).isFile()) {
        QSKIP("needs a file that fails to be read");
    }
    QVERIFY(!ProgramFile::load(unreadable, 200));
}

NELVO_TEST_MAIN(ProgramLoadTest)

#include "programload.moc"
