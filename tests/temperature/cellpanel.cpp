// The cell panel at start, and which channels are in use.

#include "support/files.h"
#include "support/stationtest.h"
#include "support/testmain.h"

#include <QClipboard>
#include <QDir>
#include <QGuiApplication>
#include <QLineEdit>

using namespace TestText;

class CellPanelTest : public StationTest
{
    Q_OBJECT

    QString inUse() const { return station->states("TCActive", "Active"_s, "NotInUse"_s); }

private slots:
    void startShowsAllInUseAndIdle()
    {
        QVERIFY(station->open());
        QCOMPARE(inUse(), "ooooooooo"_s);
        QStringList names;
        for (int channel = 0; channel < Channels::count; ++channel) {
            names += station->text(cell("CName", channel));
            QVERIFY(!station->isRamping(channel));
            QCOMPARE(station->text(cell("CDeg", channel)), "0.0"_s);
            QCOMPARE(station->text(cell("TDeg", channel)), "0.0"_s);
            QCOMPARE(station->text(cell("DTime", channel)), "10.0"_s);
            QCOMPARE(station->text(cell("SDeg", channel)), "0.0"_s);
            QCOMPARE(station->text(cell("ETime", channel)), "0.0"_s);
        }
        QCOMPARE(names.join(QLatin1Char('|')), "Be|Ga|Si|As4|Al|In|As7|Main Ch|Pre Ch"_s);
    }

    void aClickTakesAChannelOutOfUse()
    {
        QVERIFY(station->open());
        station->click(cell("TCActive", 2));
        QCOMPARE(inUse(), "ooxoooooo"_s);
        station->click(cell("TCActive", 2));
        QCOMPARE(inUse(), "ooooooooo"_s);
        QVERIFY(station->adapter.expectNothing());
    }

    void everyChannelHasItsKey()
    {
        Station::storeInUse({0, 1, 2, 3, 4, 5, 6, 7, 8});
        QVERIFY(station->open());
        for (int channel = 0; channel < Channels::count; ++channel) {
            station->click(cell("TCActive", channel));
            const QByteArray key = "ActiveF" + QByteArray::number(channel);
            // Within the newest dump, this channel is out of use and the next is not yet.
            const QByteArray dump = fileText(stateFile).mid(fileText(stateFile).lastIndexOf("ActiveF0"));
            QVERIFY(dump.contains(key + "\tInActive\n"));
            QCOMPARE(dump.count("InActive"), channel + 1);
        }
        QCOMPARE(inUse(), "xxxxxxxxx"_s);
    }

    void everyChangeAppendsToTheStateFile()
    {
        putFile(stateFile, "Other\tword\n");
        QVERIFY(station->open());
        QCOMPARE(fileText(stateFile), QByteArray("Other\tword\n"));

        // The keys asked for at start are in the store by now, without a value.
        const QByteArray empty
            = "ActiveF1\t\nActiveF2\t\nActiveF3\t\nActiveF4\t\nActiveF5\t\nActiveF6\t\nActiveF7\t\n"
              "ActiveF8\t\nOther\tword\n";
        station->click(cell("TCActive", 0));
        QCOMPARE(fileText(stateFile), "Other\tword\nActiveF0\tInActive\n" + empty);
        station->click(cell("TCActive", 0));
        QCOMPARE(
            fileText(stateFile), "Other\tword\nActiveF0\tInActive\n" + empty + "ActiveF0\tActive\n" + empty);
    }

    void inUseSurvivesTheProgram()
    {
        QVERIFY(station->open());
        for (const int channel : {1, 4, 8}) {
            station->click(cell("TCActive", channel));
        }
        station->click(cell("TCActive", 4));
        QCOMPARE(inUse(), "oxoooooox"_s);
        station->close();
        QVERIFY(station->open());
        QCOMPARE(inUse(), "oxoooooox"_s);
        QCOMPARE(
            fileText(stateFile), QByteArray("ActiveF1\tInActive\nActiveF4\tActive\nActiveF8\tInActive\n"));
    }

    void everyEntryMakesNumbersPlain()
    {
        QVERIFY(station->open());
        QGuiApplication::clipboard()->setText(" ９５０\n"_s);
        for (int channel = 0; channel < Channels::count; ++channel) {
            for (const char* row : {"TDeg", "DTime"}) {
                auto& entry = station->find<QLineEdit>(cell(row, channel));
                entry.selectAll();
                entry.paste();
                QCOMPARE(entry.text(), "950"_s);
                QVERIFY(entry.inputMethodHints() & Qt::ImhPreferLatin);
            }
        }
    }

    void storedTexts_data()
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

    void storedTexts()
    {
        QFETCH(QByteArray, line);
        QFETCH(bool, isInUse);
        putFile(stateFile, line);
        QVERIFY(station->open());
        QCOMPARE(inUse(), isInUse ? "ooooooooo"_s : "oooxooooo"_s);
    }

    void aStateFileThatCannotBeWrittenChangesNothingOnThePanel()
    {
        QVERIFY(station->open());
        QVERIFY(QFile::remove(stateFile));
        QVERIFY(QDir().mkdir(stateFile));
        station->click(cell("TCActive", 0));
        QCOMPARE(inUse(), "xoooooooo"_s);
        QVERIFY(QDir().rmdir(stateFile));
    }

    void runningRampsDoNotSurviveTheProgram()
    {
        QVERIFY(station->open());
        station->type(cell("TDeg", 0), "40"_s);
        station->click(cell("RunT", 0));
        QVERIFY(station->isRamping(0));
        station->close();
        QVERIFY(station->open());
        QVERIFY(!station->isRamping(0));
        QCOMPARE(station->text(cell("TDeg", 0)), "0.0"_s);
    }
};

NELVO_TEST_MAIN(CellPanelTest)
#include "cellpanel.moc"
