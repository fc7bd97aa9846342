// The settings store, on real files.

#include "app/conditions.h"

#include "support/files.h"
#include "support/messagecapture.h"
#include "support/testmain.h"

#include <QDir>
#include <QFile>

#include <memory>

namespace {

const QString fileName = QStringLiteral("NelvoCurrentStat.dat");

void write(const QByteArray& bytes)
{
    putFile(fileName, bytes);
}

QByteArray content()
{
    return fileText(fileName);
}

} // namespace

class ConditionsTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void readsAndCompacts_data();
    void readsAndCompacts();
    void missingFileIsCreatedEmpty();
    void nothingIsKnownBeforeLoading();
    void valueSimplifiesItsKey();
    void valueOfAnAbsentKeyIsDumpedEmptyAndGoneAtTheNextStart();
    void everyChangeAppendsTheWholeStore();
    void secondChangeOfOneKeyAppendsASecondLine();
    void nextStartCompactsTheDumps();
    void keyAndValueAreStoredWithoutSurroundingSpace();
    void valueOfTwoWordsLosesTheSecondAtTheNextStart();
    void keysAreSortedByCodeUnits();
    void storesAreIndependent();
    void relativeNameCountsFromTheWorkingDirectory();

private:
    std::unique_ptr<MessageCapture> messages;
};

void ConditionsTest::init()
{
    messages = std::make_unique<MessageCapture>();
    QFile::remove(fileName);
}

void ConditionsTest::cleanup()
{
    // This part never says a word, whatever happens to its file.
    const QStringList said = MessageCapture::texts();
    messages.reset();
    QCOMPARE(said, QStringList());
}

void ConditionsTest::readsAndCompacts_data()
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

void ConditionsTest::readsAndCompacts()
{
    QFETCH(QByteArray, before);
    QFETCH(QByteArray, after);
    write(before);
    Conditions conditions;
    conditions.load(fileName);
    QCOMPARE(content(), after);
}

void ConditionsTest::missingFileIsCreatedEmpty()
{
    Conditions conditions;
    conditions.load(fileName);
    QVERIFY(QFile::exists(fileName));
    QCOMPARE(content(), QByteArray());
}

void ConditionsTest::nothingIsKnownBeforeLoading()
{
    Conditions conditions;
    QCOMPARE(conditions.value(QStringLiteral("ActiveF0")), QString());
    QCOMPARE(conditions.parent(), nullptr);
    QVERIFY(!QFile::exists(fileName));
}

void ConditionsTest::valueSimplifiesItsKey()
{
    write("ActiveF3\tInActive\n");
    Conditions conditions;
    conditions.load(fileName);
    QCOMPARE(conditions.value(QStringLiteral(" \tActiveF3\r\n")), QStringLiteral("InActive"));
    QCOMPARE(conditions.value(QStringLiteral("activef3")), QString());
}

void ConditionsTest::valueOfAnAbsentKeyIsDumpedEmptyAndGoneAtTheNextStart()
{
    Conditions conditions;
    conditions.load(fileName);
    QCOMPARE(conditions.value(QStringLiteral("asked")), QString());
    QCOMPARE(content(), QByteArray());

    conditions.setValue(QStringLiteral("set"), QStringLiteral("x"));
    QCOMPARE(content(), QByteArray("asked\t\nset\tx\n"));

    Conditions next;
    next.load(fileName);
    QCOMPARE(content(), QByteArray("set\tx\n"));
}

void ConditionsTest::everyChangeAppendsTheWholeStore()
{
    Conditions conditions;
    conditions.load(fileName);
    conditions.setValue(QStringLiteral("b"), QStringLiteral("1"));
    QCOMPARE(content(), QByteArray("b\t1\n"));
    conditions.setValue(QStringLiteral("a"), QStringLiteral("2"));
    QCOMPARE(content(), QByteArray("b\t1\na\t2\nb\t1\n"));
}

void ConditionsTest::secondChangeOfOneKeyAppendsASecondLine()
{
    Conditions conditions;
    conditions.load(fileName);
    conditions.setValue(QStringLiteral("a"), QStringLiteral("1"));
    conditions.setValue(QStringLiteral("a"), QStringLiteral("2"));
    QCOMPARE(content(), QByteArray("a\t1\na\t2\n"));
}

void ConditionsTest::nextStartCompactsTheDumps()
{
    Conditions conditions;
    conditions.load(fileName);
    conditions.setValue(QStringLiteral("b"), QStringLiteral("1"));
    conditions.setValue(QStringLiteral("a"), QStringLiteral("2"));
    conditions.setValue(QStringLiteral("b"), QStringLiteral("3"));

    Conditions next;
    next.load(fileName);
    QCOMPARE(content(), QByteArray("a\t2\nb\t3\n"));
    QCOMPARE(next.value(QStringLiteral("b")), QStringLiteral("3"));
}

void ConditionsTest::keyAndValueAreStoredWithoutSurroundingSpace()
{
    Conditions conditions;
    conditions.load(fileName);
    conditions.setValue(QStringLiteral("  key\t"), QStringLiteral("\nvalue "));
    QCOMPARE(content(), QByteArray("key\tvalue\n"));
    QCOMPARE(conditions.value(QStringLiteral("key")), QStringLiteral("value"));
}

void ConditionsTest::valueOfTwoWordsLosesTheSecondAtTheNextStart()
{
    Conditions conditions;
    conditions.load(fileName);
    conditions.setValue(QStringLiteral("key"), QStringLiteral("two \t words"));
    QCOMPARE(conditions.value(QStringLiteral("key")), QStringLiteral("two words"));
    QCOMPARE(content(), QByteArray("key\ttwo words\n"));

    Conditions next;
    next.load(fileName);
    QCOMPARE(next.value(QStringLiteral("key")), QStringLiteral("two"));
}

void ConditionsTest::keysAreSortedByCodeUnits()
{
    write("b 1\nB 2\na10 3\na2 4\n_ 5\n");
    Conditions conditions;
    conditions.load(fileName);
    QCOMPARE(content(), QByteArray("B\t2\n_\t5\na10\t3\na2\t4\nb\t1\n"));
}

void ConditionsTest::storesAreIndependent()
{
    Conditions one;
    one.load(fileName);
    one.setValue(QStringLiteral("a"), QStringLiteral("1"));
    Conditions other;
    QCOMPARE(other.value(QStringLiteral("a")), QString());
}

void ConditionsTest::relativeNameCountsFromTheWorkingDirectory()
{
    const QString before = QDir::currentPath();
    QVERIFY(QDir().mkpath(QStringLiteral("elsewhere")));
    QVERIFY(QDir::setCurrent(QStringLiteral("elsewhere")));
    Conditions conditions;
    conditions.load(fileName);
    conditions.setValue(QStringLiteral("a"), QStringLiteral("1"));
    QVERIFY(QDir::setCurrent(before));

    QVERIFY(!QFile::exists(fileName));
    QFile file(QStringLiteral("elsewhere/") + fileName);
    QVERIFY(file.open(QIODevice::ReadOnly | QIODevice::Text));
    QCOMPARE(file.readAll(), QByteArray("a\t1\n"));
}

NELVO_TEST_MAIN(ConditionsTest)

#include "conditions.moc"
