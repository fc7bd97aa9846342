// The settings store where its file cannot be written: never a word, never a lost setting.

#include "app/conditions.h"

#include "app/silentstore.h"
#include "support/ordinaryuser.h"
#include "support/testmain.h"

#include <QDir>

using namespace TestText;

namespace {

QStringList everythingHere()
{
    return QDir().entryList(QDir::AllEntries | QDir::Hidden);
}

} // namespace

class ConditionsFailuresTest : public SilentStore
{
    Q_OBJECT

private slots:
    void unwritablePlaceIsSkippedSilently_data()
    {
        QTest::addColumn<QString>("path");
        QVERIFY(QDir().mkpath("directory.dat"_s));
        QTest::newRow("a directory of that name") << "directory.dat"_s;
        QTest::newRow("a missing directory") << "missing/"_s + stateFile;
    }

    void unwritablePlaceIsSkippedSilently()
    {
        QFETCH(QString, path);
        const QStringList before = everythingHere();
        Conditions conditions;
        conditions.load(path);
        conditions.setValue("a"_s, "1"_s);
        QCOMPARE(conditions.value("a"_s), "1"_s);
        QCOMPARE(everythingHere(), before);
        QVERIFY(!QDir("missing"_s).exists());
        QCOMPARE(QDir("directory.dat"_s).entryList(QDir::AllEntries | QDir::NoDotAndDotDot), QStringList());
    }

    void readOnlyFileIsReadAndLeftAlone()
    {
        AS_ORDINARY_USER();
        putFile(stateFile, "b 1\na 2\n");
        QVERIFY(QFile::setPermissions(stateFile, QFileDevice::ReadOwner));
        Conditions conditions;
        conditions.load(stateFile);
        conditions.setValue("b"_s, "3"_s);
        const QByteArray left = fileText(stateFile);
        QVERIFY(QFile::setPermissions(stateFile, QFileDevice::ReadOwner | QFileDevice::WriteOwner));
        QCOMPARE(left, QByteArray("b 1\na 2\n"));
        QCOMPARE(conditions.value("a"_s), "2"_s);
        QCOMPARE(conditions.value("b"_s), "3"_s);
    }

    // Whoever has the old file in hand still reads all of it after the rewrite: it was never cut short, so
    // that at no moment a crash could have lost the settings.
    void rewriteNeverTruncatesTheOldFile()
    {
#ifdef Q_OS_WIN
        QSKIP("an open file cannot be replaced on Windows");
#endif
        putFile(stateFile, "b 1\na 2\n");
        QFile old(stateFile);
        QVERIFY(old.open(QIODevice::ReadOnly));
        Conditions conditions;
        conditions.load(stateFile);
        QCOMPARE(old.readAll(), QByteArray("b 1\na 2\n"));
        QCOMPARE(fileText(stateFile), QByteArray("a\t2\nb\t1\n"));
    }

    void failedRewriteKeepsTheOldFile()
    {
        if (!FullDisk::isPossible()) {
            QSKIP("needs a full disk");
        }
        putFile(stateFile, "b 1\na 2\n");
        const QStringList before = everythingHere();
        Conditions conditions;
        {
            const FullDisk full(4);
            conditions.load(stateFile);
        }
        QCOMPARE(fileText(stateFile), QByteArray("b 1\na 2\n"));
        QCOMPARE(everythingHere(), before);
        QCOMPARE(conditions.value("a"_s), "2"_s);
    }

    void fileComesBackWithTheNextChange()
    {
        Conditions conditions;
        conditions.load(stateFile);
        conditions.setValue("a"_s, "1"_s);
        QVERIFY(QFile::remove(stateFile));
        conditions.setValue("b"_s, "2"_s);
        QCOMPARE(fileText(stateFile), QByteArray("a\t1\nb\t2\n"));
    }
};

NELVO_TEST_MAIN(ConditionsFailuresTest)
#include "conditionsfailures.moc"
