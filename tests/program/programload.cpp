// Files that are no growth programs: whatever is chosen to be loaded, it costs little and says clearly what
// it is.

#include "program/programfile.h"

#include "support/files.h"
#include "support/testmain.h"

#include <QFile>
#include <QFileInfo>

using namespace TestText;

namespace {

constexpr int rows = 200;
constexpr int longestLine = 64 * 1024;
const QByteArray fields = "0 1 2 3 4 5 6 7 8 9 1 0 0 0 0 0 1 2.5 A 4";

} // namespace

class ProgramLoadTest : public QObject
{
    Q_OBJECT

    const QString name = "program.dat"_s;

private slots:
    void cleanup() { QFile::remove(name); }

    void aProgramIsRead()
    {
        putFile(name, fields + "\r\nremark\n" + fields);
        const auto steps = ProgramFile::load(name, rows);
        QVERIFY(steps);
        QCOMPARE(steps->size(), 2);
        QCOMPARE(steps->at(1).group, "A"_s);
    }

    void aLineMayBeLong_data()
    {
        QTest::addColumn<int>("length");
        QTest::addColumn<bool>("isRead");
        QTest::newRow("at the limit") << longestLine << true;
        QTest::newRow("beyond it") << longestLine + 1 << false;
        QTest::newRow("twice as long") << 2 * (longestLine + 1) << false;
    }

    void aLineMayBeLong()
    {
        QFETCH(int, length);
        QFETCH(bool, isRead);
        putFile(name, fields.leftJustified(length, ' ') + '\n' + fields + '\n');
        const auto steps = ProgramFile::load(name, rows);
        QVERIFY(steps);
        QCOMPARE(steps->size(), isRead ? 2 : 1);
    }

    void theTailOfALongLineIsNoLine_data()
    {
        QTest::addColumn<int>("before");
        for (const int before :
            {longestLine - 10, longestLine, longestLine + 1, 2 * longestLine + 2, 1000000}) {
            QTest::addRow("%d characters before", before) << before;
        }
    }

    // Such as a program whose line ends were lost.
    void theTailOfALongLineIsNoLine()
    {
        QFETCH(int, before);
        putFile(name, QByteArray(before, '\t') + fields + '\n' + fields + '\n');
        const auto steps = ProgramFile::load(name, rows);
        QVERIFY(steps);
        QCOMPARE(steps->size(), 1);
    }

    void aFileMayHaveSixteenMebibytes()
    {
        const QByteArray step = fields + '\n';
        putFile(name, QByteArray(16 * 1024 * 1024 - step.size(), '\n') + step);
        const auto steps = ProgramFile::load(name, rows);
        QVERIFY(steps);
        QCOMPARE(steps->size(), 1);
    }

    void aLargerFileIsRefused()
    {
        putFile(name, fields + '\n');
        QVERIFY(QFile::resize(name, 16 * 1024 * 1024 + 1));
        QVERIFY(!ProgramFile::load(name, rows));
    }

    void nothingIsReadAfterTheLastStep()
    {
        QByteArray text;
        for (int k = 0; k < 300; ++k) {
            text += fields + '\n';
        }
        putFile(name, text);
        QCOMPARE(ProgramFile::load(name, rows)->size(), rows);
    }

    void whatIsNoPlainFileIsRefused_data()
    {
        QTest::addColumn<QString>("place");
        QTest::newRow("nothing") << "missing.dat"_s;
        QTest::newRow("no name") << QString();
        QTest::newRow("a folder") << "."_s;
        QTest::newRow("a device without end") << "/dev/zero"_s;
    }

    void whatIsNoPlainFileIsRefused()
    {
        QFETCH(QString, place);
        QVERIFY(!ProgramFile::load(place, rows));
    }

    void aFileThatCannotBeReadToTheEndIsRefused()
    {
        // A plain file, readable by its mode, whose first byte cannot be read.
        const QString unreadable = "/proc/self/mem"_s;
        if (!QFileInfo(unreadable).isFile()) {
            QSKIP("needs a file that fails to be read");
        }
        QVERIFY(!ProgramFile::load(unreadable, rows));
    }
};

NELVO_TEST_MAIN(ProgramLoadTest)
#include "programload.moc"
