// Programs as bytes: line ends and the encoding of names, on each system as it is there, and read from the
// others.

#include "app/conditions.h"
#include "support/files.h"
#include "support/stationtest.h"
#include "support/testmain.h"

#ifdef Q_OS_WIN
#include <windows.h>
#endif

using namespace TestText;

namespace {

const QString superlattice = "超格子"_s;
const QByteArray superlatticeUtf8("\xE8\xB6\x85\xE6\xA0\xBC\xE5\xAD\x90");
const QByteArray superlattice932("\x92\xB4\x8A\x69\x8E\x71");

#ifdef Q_OS_WIN
const QByteArray lineEnd("\r\n");
#else
const QByteArray lineEnd("\n");
#endif

bool isCodePage932()
{
#ifdef Q_OS_WIN
    return GetACP() == 932;
#else
    return false;
#endif
}

QByteArray superlatticeHere()
{
    return isCodePage932() ? superlattice932 : superlatticeUtf8;
}

QByteArray bytesOf(const QString& name)
{
    QFile file(name);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(no file)");
}

QByteArray stepLine(const QByteArray& group, const QByteArray& end)
{
    return "0\t850\t0\t0\t0\t0\t0\t0\t0\t0\t1\t0\t0\t0\t0\t0\t0\t12.5\t" + group + "\t3" + end;
}

} // namespace

class ProgramEncodingTest : public SharedStationTest
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
#ifdef Q_OS_WIN
        if (!isCodePage932()) {
            QSKIP("needs a Windows with the code page 932, a Japanese one");
        }
#endif
        SharedStationTest::initTestCase();
    }

    void init()
    {
        program().click("Clear");
    }

    void aProgramIsSavedAsThisSystemWritesText()
    {
        program().enter(0, "12.5"_s, superlattice, "3"_s);
        program().setPoint(0, 0)->setText("850"_s);
        program().shutter(0, 0)->click();
        program().saveFile("saved.dat"_s);
        const QByteArray saved = bytesOf("saved.dat"_s);
        const QByteArray first = stepLine(superlatticeHere(), lineEnd);
        QCOMPARE(saved.left(first.size()), first);
        QCOMPARE(saved.count('\n'), ProgramTab::rows);
        QCOMPARE(saved.count('\r'), lineEnd.size() == 2 ? ProgramTab::rows : 0);
        program().click("Clear");
        program().loadFile("saved.dat"_s);
        QCOMPARE(program().group(0)->text(), superlattice);
    }

    void aProgramOfAnySystemIsLoaded_data()
    {
        QTest::addColumn<QByteArray>("end");
        QTest::newRow("saved on Linux") << QByteArray("\n");
        QTest::newRow("saved on Windows") << QByteArray("\r\n");
    }

    void aProgramOfAnySystemIsLoaded()
    {
        QFETCH(QByteArray, end);
        putFile("other.dat"_s, stepLine("Well", end) + stepLine(superlatticeHere(), end));
        program().loadFile("other.dat"_s);
        QCOMPARE(program().group(0)->text(), "Well"_s);
        QCOMPARE(program().group(1)->text(), superlattice);
        for (int row : {0, 1}) {
            QCOMPARE(program().time(row)->text(), "12.5"_s);
            QCOMPARE(program().setPoint(row, 0)->text(), "850"_s);
            QCOMPARE(program().times(row)->text(), "3"_s);
        }
        // What is saved again is what this system would have written itself.
        program().saveFile("again.dat"_s);
        QVERIFY(bytesOf("again.dat"_s).startsWith(stepLine("Well", lineEnd)));
    }

    void theStateFileIsWrittenLikewise()
    {
        const QString name = "state.dat"_s;
        {
            Conditions conditions;
            conditions.load(name);
            conditions.setValue("name"_s, superlattice);
        }
        QCOMPARE(bytesOf(name), "name\t" + superlatticeHere() + lineEnd);
        Conditions conditions;
        conditions.load(name);
        QCOMPARE(conditions.value("name"_s), superlattice);
    }
};

NELVO_TEST_MAIN(ProgramEncodingTest)
#include "programencoding.moc"
