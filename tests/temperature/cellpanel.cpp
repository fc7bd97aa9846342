// The cell panel at start, and which channels are in use.

#include "support/stationfixture.h"
#include "support/testmain.h"

#include <QFile>

class CellPanelTest : public QObject
{
    Q_OBJECT

private slots:
    void init() { station = std::make_unique<StationFixture>(); }
    void cleanup() { station.reset(); }

    void startShowsAllInUseAndIdle();
    void aClickTakesAChannelOutOfUse();
    void everyChannelHasItsKey();
    void everyChangeAppendsToTheStateFile();
    void inUseSurvivesTheProgram();
    void storedTexts_data();
    void storedTexts();
    void aStateFileThatCannotBeWrittenChangesNothingOnThePanel();
    void runningRampsDoNotSurviveTheProgram();

private:
    QString cell(const QString& row, int channel) const { return station->text(name(row, channel)); }
    static QString name(const QString& row, int channel)
    {
        return QStringLiteral("%1%2").arg(row).arg(channel + 1, 2, 10, QLatin1Char('0'));
    }
    QString inUse() const;

    std::unique_ptr<StationFixture> station;
};

namespace {

const QString yellow = QStringLiteral("background-color: rgb(255, 255, 15);");
const QString olive = QStringLiteral("background-color: rgb(185, 185, 105);");
const QString stateFile = QStringLiteral("NelvoCurrentStat.dat");

QByteArray stored()
{
    QFile file(stateFile);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("no file");
}

} // namespace

// One letter a channel: "A" in use, "-" not in use, "?" when text and colour disagree.
QString CellPanelTest::inUse() const
{
    QString letters;
    for (int channel = 0; channel < 9; ++channel) {
        const QString text = cell(QStringLiteral("TCActive"), channel);
        const QString style = station->style(name(QStringLiteral("TCActive"), channel));
        if (text == QLatin1String("Active") && style == yellow) {
            letters += QLatin1Char('A');
        } else if (text == QLatin1String("NotInUse") && style == olive) {
            letters += QLatin1Char('-');
        } else {
            letters += QLatin1Char('?');
        }
    }
    return letters;
}

void CellPanelTest::startShowsAllInUseAndIdle()
{
    QVERIFY(station->open());
    QCOMPARE(inUse(), QStringLiteral("AAAAAAAAA"));
    QStringList names;
    for (int channel = 0; channel < 9; ++channel) {
        names += cell(QStringLiteral("CName"), channel);
        QCOMPARE(cell(QStringLiteral("RunT"), channel), QStringLiteral("Run"));
        QCOMPARE(station->style(name(QStringLiteral("RunT"), channel)), olive);
        QCOMPARE(cell(QStringLiteral("CDeg"), channel), QStringLiteral("0.0"));
        QCOMPARE(cell(QStringLiteral("TDeg"), channel), QStringLiteral("0.0"));
        QCOMPARE(cell(QStringLiteral("DTime"), channel), QStringLiteral("10.0"));
        QCOMPARE(cell(QStringLiteral("SDeg"), channel), QStringLiteral("0.0"));
        QCOMPARE(cell(QStringLiteral("ETime"), channel), QStringLiteral("0.0"));
    }
    QCOMPARE(names.join(QLatin1Char('|')), QStringLiteral("Be|Ga|Si|As4|Al|In|As7|Main Ch|Pre Ch"));
}

void CellPanelTest::aClickTakesAChannelOutOfUse()
{
    QVERIFY(station->open());
    station->click(QStringLiteral("TCActive03"));
    QCOMPARE(inUse(), QStringLiteral("AA-AAAAAA"));
    station->click(QStringLiteral("TCActive03"));
    QCOMPARE(inUse(), QStringLiteral("AAAAAAAAA"));
    QVERIFY(station->adapter.expectNothing());
}

void CellPanelTest::everyChannelHasItsKey()
{
    StationFixture::storeInUse({0, 1, 2, 3, 4, 5, 6, 7, 8});
    QVERIFY(station->open());
    for (int channel = 0; channel < 9; ++channel) {
        station->click(name(QStringLiteral("TCActive"), channel));
        const QByteArray key = "ActiveF" + QByteArray::number(channel);
        // Within the newest dump, this channel is out of use and the next is not yet.
        const QByteArray dump = stored().mid(stored().lastIndexOf("ActiveF0"));
        QVERIFY(dump.contains(key + "\tInActive\n"));
        QCOMPARE(dump.count("InActive"), channel + 1);
    }
    QCOMPARE(inUse(), QStringLiteral("---------"));
}

void CellPanelTest::everyChangeAppendsToTheStateFile()
{
    QFile file(stateFile);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("Other\tword\n");
    file.close();
    QVERIFY(station->open());
    QCOMPARE(stored(), QByteArray("Other\tword\n"));

    // The keys asked for at start are in the store by now, without a value.
    const QByteArray empty
        = "ActiveF1\t\nActiveF2\t\nActiveF3\t\nActiveF4\t\nActiveF5\t\nActiveF6\t\nActiveF7\t\n"
          "ActiveF8\t\nOther\tword\n";
    station->click(QStringLiteral("TCActive01"));
    QCOMPARE(stored(), "Other\tword\nActiveF0\tInActive\n" + empty);
    station->click(QStringLiteral("TCActive01"));
    QCOMPARE(stored(), "Other\tword\nActiveF0\tInActive\n" + empty + "ActiveF0\tActive\n" + empty);
}

void CellPanelTest::inUseSurvivesTheProgram()
{
    QVERIFY(station->open());
    for (const int channel : {1, 4, 8}) {
        station->click(name(QStringLiteral("TCActive"), channel));
    }
    station->click(QStringLiteral("TCActive05"));
    QCOMPARE(inUse(), QStringLiteral("A-AAAAAA-"));
    station->close();
    QVERIFY(station->open());
    QCOMPARE(inUse(), QStringLiteral("A-AAAAAA-"));
    QCOMPARE(stored(), QByteArray("ActiveF1\tInActive\nActiveF4\tActive\nActiveF8\tInActive\n"));
}

void CellPanelTest::storedTexts_data()
{
    QTest::addColumn<QByteArray>("line");
    QTest::addColumn<bool>("isInUse");
    QTest::newRow("InActive") << QByteArray("ActiveF3\tInActive\n") << false;
    QTest::newRow("Active") << QByteArray("ActiveF3\tActive\n") << true;
    QTest::newRow("another word") << QByteArray("ActiveF3\tNo\n") << true;
    QTest::newRow("another case") << QByteArray("ActiveF3\tinactive\n") << true;
    QTest::newRow("no word") << QByteArray("ActiveF3\n") << true;
    QTest::newRow("a padded key") << QByteArray("ActiveF03\tInActive\n") << true;
    QTest::newRow("spaces") << QByteArray("  ActiveF3   InActive  \r\n") << false;
    QTest::newRow("the last one counts") << QByteArray("ActiveF3 InActive\nActiveF3 Active\n") << true;
}

void CellPanelTest::storedTexts()
{
    QFETCH(QByteArray, line);
    QFETCH(bool, isInUse);
    QFile file(stateFile);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(line);
    file.close();
    QVERIFY(station->open());
    QCOMPARE(inUse(), isInUse ? QStringLiteral("AAAAAAAAA") : QStringLiteral("AAA-AAAAA"));
}

void CellPanelTest::aStateFileThatCannotBeWrittenChangesNothingOnThePanel()
{
    QVERIFY(station->open());
    QVERIFY(QFile::remove(stateFile));
    QVERIFY(QDir().mkdir(stateFile));
    station->click(QStringLiteral("TCActive01"));
    QCOMPARE(inUse(), QStringLiteral("-AAAAAAAA"));
    QVERIFY(QDir().rmdir(stateFile));
}

void CellPanelTest::runningRampsDoNotSurviveTheProgram()
{
    QVERIFY(station->open());
    station->type(QStringLiteral("TDeg01"), QStringLiteral("40"));
    station->click(QStringLiteral("RunT01"));
    QCOMPARE(cell(QStringLiteral("RunT"), 0), QStringLiteral("Stop"));
    station->close();
    QVERIFY(station->open());
    QCOMPARE(cell(QStringLiteral("RunT"), 0), QStringLiteral("Run"));
    QCOMPARE(cell(QStringLiteral("TDeg"), 0), QStringLiteral("0.0"));
}

NELVO_TEST_MAIN(CellPanelTest)

#include "cellpanel.moc"
