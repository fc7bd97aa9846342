// The settings store where its file cannot be written: never a word, never a lost setting.

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

QStringList everythingHere()
{
    return QDir().entryList(QDir::AllEntries | QDir::Hidden);
}

} // namespace

class ConditionsFailures : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void unwritablePlaceIsSkippedSilently_data();
    void unwritablePlaceIsSkippedSilently();
    void readOnlyFileIsReadAndLeftAlone();
    void rewriteNeverTruncatesTheOldFile();
    void failedRewriteKeepsTheOldFile();
    void fileComesBackWithTheNextChange();

private:
    std::unique_ptr<MessageCapture> messages;
};

void ConditionsFailures::init()
{
    messages = std::make_unique<MessageCapture>();
    QFile::remove(fileName);
}

void ConditionsFailures::cleanup()
{
    // The store never says a word, whatever happens to its file.
    const QStringList said = MessageCapture::texts();
    messages.reset();
    QCOMPARE(said, QStringList());
}

void ConditionsFailures::unwritablePlaceIsSkippedSilently_data()
{
    QTest::addColumn<QString>("path");
    QVERIFY(QDir().mkpath(QStringLiteral("directory.dat")));
    QTest::newRow("a directory of that name") << QStringLiteral("directory.dat");
    QTest::newRow("a missing directory") << QStringLiteral("missing/") + fileName;
}

void ConditionsFailures::unwritablePlaceIsSkippedSilently()
{
    QFETCH(QString, path);
    const QStringList before = everythingHere();
    Conditions conditions;
    conditions.load(path);
    conditions.setValue(QStringLiteral("a"), QStringLiteral("1"));
    QCOMPARE(conditions.value(QStringLiteral("a")), QStringLiteral("1"));
    QCOMPARE(everythingHere(), before);
    QVERIFY(!QDir(QStringLiteral("missing")).exists());
    QCOMPARE(QDir(QStringLiteral("directory.dat")).entryList(QDir::AllEntries | QDir::NoDotAndDotDot),
        QStringList());
}

void ConditionsFailures::readOnlyFileIsReadAndLeftAlone()
{
    write("b 1\na 2\n");
    QVERIFY(QFile::setPermissions(fileName, QFileDevice::ReadOwner));
    if (QFile(fileName).open(QIODevice::WriteOnly | QIODevice::Append)) {
        QSKIP("this user may write every file");
    }
    Conditions conditions;
    conditions.load(fileName);
    conditions.setValue(QStringLiteral("b"), QStringLiteral("3"));
    const QByteArray left = content();
    QVERIFY(QFile::setPermissions(fileName, QFileDevice::ReadOwner | QFileDevice::WriteOwner));
    QCOMPARE(left, QByteArray("b 1\na 2\n"));
    QCOMPARE(conditions.value(QStringLiteral("a")), QStringLiteral("2"));
    QCOMPARE(conditions.value(QStringLiteral("b")), QStringLiteral("3"));
}

// Whoever has the old file in hand still reads all of it after the rewrite: it was never cut short, so that
// at no moment a crash could have lost the settings.
void ConditionsFailures::rewriteNeverTruncatesTheOldFile()
{
#ifdef Q_OS_WIN
    QSKIP("an open file cannot be replaced on Windows");
#endif
    write("b 1\na 2\n");
    QFile old(fileName);
    QVERIFY(old.open(QIODevice::ReadOnly));
    Conditions conditions;
    conditions.load(fileName);
    QCOMPARE(old.readAll(), QByteArray("b 1\na 2\n"));
    QCOMPARE(content(), QByteArray("a\t2\nb\t1\n"));
}

void ConditionsFailures::failedRewriteKeepsTheOldFile()
{
    if (!FullDisk::isPossible()) {
        QSKIP("needs a full disk");
    }
    write("b 1\na 2\n");
    const QStringList before = everythingHere();
    Conditions conditions;
    {
        const FullDisk full(4);
        conditions.load(fileName);
    }
    QCOMPARE(content(), QByteArray("b 1\na 2\n"));
    QCOMPARE(everythingHere(), before);
    QCOMPARE(conditions.value(QStringLiteral("a")), QStringLiteral("2"));
}

void ConditionsFailures::fileComesBackWithTheNextChange()
{
    Conditions conditions;
    conditions.load(fileName);
    conditions.setValue(QStringLiteral("a"), QStringLiteral("1"));
    QVERIFY(QFile::remove(fileName));
    conditions.setValue(QStringLiteral("b"), QStringLiteral("2"));
    QCOMPARE(content(), QByteArray("a\t1\nb\t2\n"));
}

NELVO_TEST_MAIN(ConditionsFailures)

#include "conditionsfailures.moc"
