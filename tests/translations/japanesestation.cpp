// What the station says in Japanese, its messages filled in.

#include "app/language.h"
#include "support/stationtest.h"
#include "support/testmain.h"

#include <QTranslator>

using namespace TestText;

class JapaneseStationTest : public StationTest
{
    Q_OBJECT

    std::unique_ptr<QTranslator> translator;

private slots:
    void init()
    {
        translator = std::make_unique<QTranslator>();
        QVERIFY(speak(japanese(), *translator));
        StationTest::init();
        QVERIFY(station->open());
    }

    void cleanup()
    {
        StationTest::cleanup();
        translator.reset();
    }

    void aWrongTimeIsToldWithItsCell()
    {
        station->pressRun(7, "40"_s, "-2.5"_s);
        QCOMPARE(station->statusBar(), "セル [7:成長室] の所要時間 [-2.5] が正しくありません。"_s);
    }

    void aRiseTooFastIsToldWithTheLimitAndItsCell()
    {
        station->pressRun(3, "700"_s, "10"_s);
        QCOMPARE(station->statusBar(), "セル [3:As4] の昇温速度は毎分 50 ℃ 以下にしてください。"_s);
    }

    void aTargetThatIsNoNumberIsToldWithItsCell()
    {
        station->pressRun(5, "hot"_s, "10"_s);
        QCOMPARE(station->statusBar(), "セル [5:In] の目標値 [hot] は数値ではないため、0 とみなします。"_s);
    }

    void theShuttersAreToldOneByOne()
    {
        const MessageCapture capture;
        station->click(cell("CS", 1));
        QCOMPARE(MessageCapture::texts().last(), "\"GPIB シャッター制御 [xoxxxxx]\""_s);
        QCOMPARE(station->states("CS", "開"_s, "閉"_s), "xoxxxxx"_s);
    }

    void theButtonsSayWhatTheyDo()
    {
        station->click(cell("TCActive", 4));
        QCOMPARE(station->states("TCActive", "使用中"_s, "未使用"_s), "ooooxoooo"_s);
        station->pressRun(2, "40"_s, "10"_s);
        QCOMPARE(station->states("RunT", "停止"_s, "開始"_s), "xxoxxxxxx"_s);
        program().enter(0, "60"_s);
        program().click("Run");
        QCOMPARE(program().button("Run").text(), "停止"_s);
        program().click("Pause");
        QCOMPARE(program().button("Pause").text(), "再開"_s);
        program().click("Pause");
        QCOMPARE(program().button("Pause").text(), "一時停止"_s);
        program().click("Run");
        QCOMPARE(program().button("Run").text(), "開始"_s);
    }
};

NELVO_TEST_MAIN(JapaneseStationTest)
#include "japanesestation.moc"
