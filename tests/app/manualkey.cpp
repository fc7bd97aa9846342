// F1 opens the manual at the part for the tab shown, in the window's language, and leaves the window as it
// is.

#include "app/language.h"
#include "app/manual.h"
#include "support/files.h"
#include "support/journalevents.h"
#include "support/stationtest.h"
#include "support/testmain.h"

#include <QDesktopServices>
#include <QDir>
#include <QTabWidget>
#include <QTranslator>
#include <QUrl>

using namespace TestText;

class ManualKeyTest : public OpenStationTest
{
    Q_OBJECT

    const QDir programs{QCoreApplication::applicationDirPath()};
    QList<QUrl> opened;

    QUrl page(const char* name) const
    {
        return QUrl::fromLocalFile(programs.filePath("manual/%1.html"_s.arg(QLatin1String(name))));
    }

    void writeManuals() const
    {
        programs.mkpath("manual"_s);
        for (const char* name : {"ja-program", "ja-chart", "en-program", "en-chart"}) {
            putFile(page(name).toLocalFile(), "page");
        }
    }

    void pressF1(int tab) const
    {
        station->find<QTabWidget>("tabWidget"_s).setCurrentIndex(tab);
        QTest::keyClick(&station->window(), Qt::Key_F1);
    }

private slots:
    void init()
    {
        QDesktopServices::setUrlHandler("file"_s, this, "open");
        opened.clear();
        OpenStationTest::init();
        station->window().show();
        station->window().activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&station->window()));
    }

    void cleanup()
    {
        OpenStationTest::cleanup();
        QDesktopServices::unsetUrlHandler("file"_s);
        QDir(programs.filePath("manual"_s)).removeRecursively();
    }

    void thePartIsThatOfTheTab()
    {
        writeManuals();
        pressF1(0);
        pressF1(1);
        QCOMPARE(opened, (QList<QUrl>{page("en-program"), page("en-chart")}));
    }

    void theManualIsInTheWindowsLanguage()
    {
        writeManuals();
        QTranslator translator;
        QVERIFY(speak(japanese(), translator));
        pressF1(0);
        QCOMPARE(opened, QList<QUrl>{page("ja-program")});
    }

    void itIsOpenedFromAnEntryToo()
    {
        writeManuals();
        station->widget(cell("TDeg", 0)).setFocus();
        QTest::keyClick(&station->widget(cell("TDeg", 0)), Qt::Key_F1);
        QCOMPARE(opened.size(), 1);
        QCOMPARE(station->text(cell("TDeg", 0)), "0.0"_s);
    }

    void withoutAManualTheJournalSaysSo()
    {
        journalEvents();
        pressF1(1);
        QVERIFY(opened.isEmpty());
        QCOMPARE(manualPage("en"_s, "chart"_s), QString());
        QCOMPARE(journalEvents({"shutters"_s, "connected"_s}), QStringList{"no-manual"_s});
        QCOMPARE(station->statusBar(), QString());
    }

public slots:
    void open(const QUrl& url) { opened.append(url); }
};

NELVO_TEST_MAIN(ManualKeyTest)
#include "manualkey.moc"
