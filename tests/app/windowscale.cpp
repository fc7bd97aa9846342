// The window on large and small screens.

#include "app/windowscale.h"

#include "app/language.h"
#include "chart/tshowview.h"
#include "support/station.h"
#include "support/testmain.h"

#include <QFontDatabase>
#include <QScreen>
#include <QTranslator>

using namespace TestText;

namespace {

// Windows' own fonts are not free. This one stands in for them, with a margin for letters wider than its own.
const QString measuredFamily = "Noto Sans CJK JP"_s;
constexpr double measuredPoints = 9.0;
constexpr double measuredDpi = 96.0; // at the scale 1
constexpr double margin = 1.05;

// The labels beside the chart are fitted into a fiftieth of its height, in whole pixels of the scale: with
// this they are as high at 125 % as at 100 % in the whole window.
constexpr int readableChartHeight = 400;

} // namespace

class WindowScaleTest : public QObject
{
    Q_OBJECT

private slots:
    void theSystemsScaleHoldsWhereTheWindowHasRoom_data()
    {
        QTest::addColumn<double>("systemScale");
        QTest::addColumn<QSize>("freePixels");
        QTest::addColumn<double>("scale");
        const QSize fullHd(1920, 1040);
        QTest::newRow("full HD at 100 %") << 1.0 << fullHd << 1.0;
        QTest::newRow("full HD at 125 %") << 1.25 << fullHd << 1.25;
        QTest::newRow("full HD at 150 %") << 1.5 << fullHd << 1.5;
        QTest::newRow("full HD at 200 %: too high") << 2.0 << QSize(1920, 990) << 1.5;
        QTest::newRow("4K at 200 %") << 2.0 << QSize(3840, 2080) << 2.0;
        QTest::newRow("4K at 300 %") << 3.0 << QSize(3840, 2080) << 3.0;
        QTest::newRow("narrow and high: too wide") << 2.0 << QSize(1524, 2000) << 1.5;
        QTest::newRow("a low screen") << 1.5 << QSize(1366, 600) << 1.0;
        QTest::newRow("a small old screen") << 1.0 << QSize(762, 560) << 0.75;
    }

    void theSystemsScaleHoldsWhereTheWindowHasRoom()
    {
        QFETCH(double, systemScale);
        QFETCH(QSize, freePixels);
        QFETCH(double, scale);
        const QSize frame(16, 40);
        QCOMPARE(scaleThatFits(systemScale, freePixels, QSize(1016, 660) - frame), scale);
    }

    void theFormHasRoomInTheSizeThatIsReckonedWith_data()
    {
        QTest::addColumn<QString>("argument");
        for (const Language& language : languages()) {
            QTest::newRow(qPrintable(language.argument)) << language.argument;
        }
    }

    void theFormHasRoomInTheSizeThatIsReckonedWith()
    {
        QFETCH(QString, argument);
        if (!QFontDatabase().families().contains(measuredFamily)) {
            QSKIP("the font Noto Sans CJK JP is not installed");
        }
        QFont font(measuredFamily);
        font.setPointSizeF(
            measuredPoints * measuredDpi / QGuiApplication::primaryScreen()->logicalDotsPerInchY());
        QApplication::setFont(font);
        const Language& language = chooseLanguage({QString(), argument});
        QTranslator translator;
        QCOMPARE(speak(language, translator), !language.catalogue.isEmpty());
        Station station;
        QVERIFY(station.open());
        station.window().resize(neededFormSize(language));
        station.window().grab(); // lays it out

        const QSize needed = station.window().minimumSizeHint();
        QVERIFY2(needed.width() * margin <= neededFormSize(language).width(),
            qPrintable(QString::number(needed.width())));
        const int chartHeight = station.find<TShowView>("TSView"_s).height();
        QVERIFY2(chartHeight >= readableChartHeight, qPrintable(QString::number(chartHeight)));
    }

    void aLargeWindowIsCutToTheFreeArea()
    {
        QWidget window;
        const QSize free = window.screen()->availableGeometry().size();
        window.resize(free + QSize(300, 200));
        fitIntoFreeArea(window);
        window.show();
        QVERIFY(window.frameGeometry().width() <= free.width());
        QVERIFY(window.frameGeometry().height() <= free.height());
    }

    void aSmallWindowKeepsItsSize()
    {
        QWidget window;
        window.resize(300, 200);
        fitIntoFreeArea(window);
        QCOMPARE(window.size(), QSize(300, 200));
    }
};

NELVO_TEST_MAIN(WindowScaleTest)
#include "windowscale.moc"
