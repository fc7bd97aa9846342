// Files that are written whole or not at all, on real disks, full ones and closed folders included.

#include "base/wholefile.h"

#include "support/files.h"
#include "support/ordinaryuser.h"
#include "support/testmain.h"

#include <QDir>
#include <QFile>

using namespace TestText;

namespace {

const QString name = "settings.dat"_s;
constexpr auto everything = QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ExeOwner;

QStringList filesHere()
{
    return QDir().entryList(QDir::Files | QDir::Hidden);
}

} // namespace

class WholeFileTest : public QObject
{
    Q_OBJECT

private slots:
    void cleanup()
    {
        for (const QString& file : filesHere()) {
            QFile::setPermissions(file, everything);
            QVERIFY(QFile::remove(file));
        }
    }

    void replacesAndCreates()
    {
        QVERIFY(replaceFile(name, "a\nb\n"));
        QCOMPARE(fileText(name), QByteArray("a\nb\n"));
        QVERIFY(replaceFile(name, "c\n"));
        QCOMPARE(fileText(name), QByteArray("c\n"));
        QVERIFY(replaceFile(name, QByteArray()));
        QCOMPARE(fileText(name), QByteArray());
        QCOMPARE(filesHere(), QStringList(name));
    }

    void appendsAndCreates()
    {
        QVERIFY(appendToFile(name, "a\n"));
        QVERIFY(appendToFile(name, "b\nc\n"));
        QCOMPARE(fileText(name), QByteArray("a\nb\nc\n"));
    }

    void aLastLineWithoutAnEndGetsOne()
    {
        putFile(name, "a\nb");
        QVERIFY(appendToFile(name, "c\n"));
        QCOMPARE(fileText(name), QByteArray("a\nb\nc\n"));
    }

    void aCutReplacementLeavesTheOldFile()
    {
        if (!FullDisk::isPossible()) {
            QSKIP("needs a full disk");
        }
        putFile(name, "old\n");
        {
            const FullDisk full(4);
            QVERIFY(!replaceFile(name, "longer\n"));
        }
        QCOMPARE(fileText(name), QByteArray("old\n"));
        QCOMPARE(filesHere(), QStringList(name));
    }

    void aCutAppendIsTakenBack()
    {
        if (!FullDisk::isPossible()) {
            QSKIP("needs a full disk");
        }
        for (const QByteArray& before : {QByteArray("a 1\n"), QByteArray("a 1")}) {
            putFile(name, before);
            {
                const FullDisk full(before.size() + 6);
                QVERIFY(!appendToFile(name, "ActiveF3\tInActive\n"));
            }
            QCOMPARE(fileText(name), before);
            QVERIFY(QFile::remove(name));
        }
    }

    void aFolderWithoutNewFilesGetsTheOldOneWrittenOver()
    {
        AS_ORDINARY_USER()
        for (const QByteArray& text : {QByteArray("new\n"), QByteArray("longer than the old text\n")}) {
            putFile(name, "the old text\n");
            const ClosedFolder closed;
            QVERIFY(replaceFile(name, text));
            QCOMPARE(fileText(name), text);
        }
    }

    void aFailureToWriteOverPutsTheOldTextBack()
    {
        AS_ORDINARY_USER()
        putFile(name, "the old text\n");
        const ClosedFolder closed;
        {
            const FullDisk full(16);
            QVERIFY(!replaceFile(name, "longer than the old text\n"));
        }
        QCOMPARE(fileText(name), QByteArray("the old text\n"));
    }

    void aFolderWithoutNewFilesGetsNoNewFile()
    {
        AS_ORDINARY_USER()
        const ClosedFolder closed;
        QVERIFY(!replaceFile(name, "new\n"));
        QVERIFY(!appendToFile(name, "new\n"));
        QCOMPARE(filesHere(), QStringList());
    }

    void aReadOnlyFileIsLeftAlone()
    {
        AS_ORDINARY_USER()
        putFile(name, "old\n");
        QVERIFY(QFile::setPermissions(name, QFileDevice::ReadOwner));
        QVERIFY(!replaceFile(name, "new\n"));
        QVERIFY(!appendToFile(name, "new\n"));
        QCOMPARE(fileText(name), QByteArray("old\n"));
    }

    void whatIsNoFileIsLeftAlone()
    {
        QVERIFY(QDir().mkdir("folder"_s));
        for (const QString& place : {"folder"_s, "missing/file"_s}) {
            QVERIFY(!replaceFile(place, "new\n"));
            QVERIFY(!appendToFile(place, "new\n"));
        }
        QVERIFY(QDir().rmdir("folder"_s));
        QVERIFY(!QDir("missing"_s).exists());
    }
};

NELVO_TEST_MAIN(WholeFileTest)
#include "wholefile.moc"
