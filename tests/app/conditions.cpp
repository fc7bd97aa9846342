// The settings store, on real files.

#include "app/conditions.h"

#include "app/silentstore.h"
#include "support/testmain.h"

#include <QDir>

using namespace TestText;

class ConditionsTest : public SilentStore
{
    Q_OBJECT

private slots:
    void readsAndCompacts_data()
    {
        QTest::addColumn<QByteArray>("before");
        QTest::addColumn<QByteArray>("after");

        QTest::newRow("empty") << QByteArray() << QByteArray();
        QTest::newRow("compact already") << QByteArray("ActiveF0\tActive\nActiveF3\tInActive\n")
                                         << QByteArray("ActiveF0\tActive\nActiveF3\tInActive\n");
        QTest::newRow("duplicate key: the last line wins")
            << QByteArray("ActiveF2 InActive\nActiveF2 Active\n") << QByteArray("ActiveF2\tActive\n");
        QTest::newRow("third word is lost") << QByteArray("a\tb\tc\n") << QByteArray("a\tb\n");
        QTest::newRow("key alone is skipped") << QByteArray("lonely\na\tb\n") << QByteArray("a\tb\n");
        QTest::newRow("key alone does not unset an earlier line")
            << QByteArray("a\tb\na\n") << QByteArray("a\tb\n");
        QTest::newRow("key and tab without a value") << QByteArray("a\t\n") << QByteArray();
        QTest::newRow("blank lines") << QByteArray("\n\n  \t \na b\n\n") << QByteArray("a\tb\n");
        QTest::newRow("leading and trailing white space")
            << QByteArray(" \t a \t b \t\n") << QByteArray("a\tb\n");
        QTest::newRow("CR LF line ends") << QByteArray("a\tb\r\nc\td\r\n") << QByteArray("a\tb\nc\td\n");
        QTest::newRow("no end of the last line") << QByteArray("a\tb\nc\td") << QByteArray("a\tb\nc\td\n");
        QTest::newRow("unsorted") << QByteArray("z 1\nb 2\na 3\n") << QByteArray("a\t3\nb\t2\nz\t1\n");
    }

    void readsAndCompacts()
    {
        QFETCH(QByteArray, before);
        QFETCH(QByteArray, after);
        putFile(stateFile, before);
        Conditions conditions;
        conditions.load(stateFile);
        QCOMPARE(fileText(stateFile), after);
    }

    void missingFileIsCreatedEmpty()
    {
        Conditions conditions;
        conditions.load(stateFile);
        QVERIFY(QFile::exists(stateFile));
        QCOMPARE(fileText(stateFile), QByteArray());
    }

    void nothingIsKnownBeforeLoading()
    {
        Conditions conditions;
        QCOMPARE(conditions.value("ActiveF0"_s), QString());
        QCOMPARE(conditions.parent(), nullptr);
        QVERIFY(!QFile::exists(stateFile));
    }

    void valueSimplifiesItsKey()
    {
        putFile(stateFile, "ActiveF3\tInActive\n");
        Conditions conditions;
        conditions.load(stateFile);
        QCOMPARE(conditions.value(" \tActiveF3\r\n"_s), "InActive"_s);
        QCOMPARE(conditions.value("activef3"_s), QString());
    }

    void valueOfAnAbsentKeyIsDumpedEmptyAndGoneAtTheNextStart()
    {
        Conditions conditions;
        conditions.load(stateFile);
        QCOMPARE(conditions.value("asked"_s), QString());
        QCOMPARE(fileText(stateFile), QByteArray());

        conditions.setValue("set"_s, "x"_s);
        QCOMPARE(fileText(stateFile), QByteArray("asked\t\nset\tx\n"));

        Conditions next;
        next.load(stateFile);
        QCOMPARE(fileText(stateFile), QByteArray("set\tx\n"));
    }

    void everyChangeAppendsTheWholeStore()
    {
        Conditions conditions;
        conditions.load(stateFile);
        conditions.setValue("b"_s, "1"_s);
        QCOMPARE(fileText(stateFile), QByteArray("b\t1\n"));
        conditions.setValue("a"_s, "2"_s);
        QCOMPARE(fileText(stateFile), QByteArray("b\t1\na\t2\nb\t1\n"));
    }

    void secondChangeOfOneKeyAppendsASecondLine()
    {
        Conditions conditions;
        conditions.load(stateFile);
        conditions.setValue("a"_s, "1"_s);
        conditions.setValue("a"_s, "2"_s);
        QCOMPARE(fileText(stateFile), QByteArray("a\t1\na\t2\n"));
    }

    void nextStartCompactsTheDumps()
    {
        Conditions conditions;
        conditions.load(stateFile);
        conditions.setValue("b"_s, "1"_s);
        conditions.setValue("a"_s, "2"_s);
        conditions.setValue("b"_s, "3"_s);

        Conditions next;
        next.load(stateFile);
        QCOMPARE(fileText(stateFile), QByteArray("a\t2\nb\t3\n"));
        QCOMPARE(next.value("b"_s), "3"_s);
    }

    void aSecondFileAddsToTheStoreAndTakesItsPlace()
    {
        const QString second = "Second.dat"_s;
        putFile(stateFile, "a\t1\nb\t2\n");
        putFile(second, "b\t3\nc\t4\n");
        Conditions conditions;
        conditions.load(stateFile);
        conditions.load(second);
        QCOMPARE(fileText(second), QByteArray("a\t1\nb\t3\nc\t4\n"));
        QCOMPARE(conditions.value("a"_s), "1"_s);
        conditions.setValue("d"_s, "5"_s);
        QCOMPARE(fileText(second), QByteArray("a\t1\nb\t3\nc\t4\na\t1\nb\t3\nc\t4\nd\t5\n"));
        QCOMPARE(fileText(stateFile), QByteArray("a\t1\nb\t2\n"));
        QVERIFY(QFile::remove(second));
    }

    void keyAndValueAreStoredWithoutSurroundingSpace()
    {
        Conditions conditions;
        conditions.load(stateFile);
        conditions.setValue("  key\t"_s, "\nvalue "_s);
        QCOMPARE(fileText(stateFile), QByteArray("key\tvalue\n"));
        QCOMPARE(conditions.value("key"_s), "value"_s);
    }

    void valueOfTwoWordsLosesTheSecondAtTheNextStart()
    {
        Conditions conditions;
        conditions.load(stateFile);
        conditions.setValue("key"_s, "two \t words"_s);
        QCOMPARE(conditions.value("key"_s), "two words"_s);
        QCOMPARE(fileText(stateFile), QByteArray("key\ttwo words\n"));

        Conditions next;
        next.load(stateFile);
        QCOMPARE(next.value("key"_s), "two"_s);
    }

    void keysAreSortedByCodeUnits()
    {
        putFile(stateFile, "b 1\nB 2\na10 3\na2 4\n_ 5\n");
        Conditions conditions;
        conditions.load(stateFile);
        QCOMPARE(fileText(stateFile), QByteArray("B\t2\n_\t5\na10\t3\na2\t4\nb\t1\n"));
    }

    void storesAreIndependent()
    {
        Conditions one;
        one.load(stateFile);
        one.setValue("a"_s, "1"_s);
        Conditions other;
        QCOMPARE(other.value("a"_s), QString());
    }

    void relativeNameCountsFromTheWorkingDirectory()
    {
        const QString before = QDir::currentPath();
        QVERIFY(QDir().mkpath("elsewhere"_s));
        QVERIFY(QDir::setCurrent("elsewhere"_s));
        Conditions conditions;
        conditions.load(stateFile);
        conditions.setValue("a"_s, "1"_s);
        QVERIFY(QDir::setCurrent(before));

        QVERIFY(!QFile::exists(stateFile));
        QCOMPARE(fileText("elsewhere/"_s + stateFile), QByteArray("a\t1\n"));
    }
};

NELVO_TEST_MAIN(ConditionsTest)
#include "conditions.moc"
