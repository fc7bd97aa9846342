// The window on large and small screens.

#include "app/windowscale.h"

#include "support/testmain.h"

#include <QScreen>
#include <QWidget>

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
        QTest::newRow("full HD at 200 %: too wide") << 2.0 << fullHd << 1920.0 / 1074.0;
        QTest::newRow("4K at 200 %") << 2.0 << QSize(3840, 2080) << 2.0;
        QTest::newRow("4K at 300 %") << 3.0 << QSize(3840, 2080) << 3.0;
        QTest::newRow("wide and low: too high") << 2.0 << QSize(2560, 840) << 1.5;
        QTest::newRow("a small old screen") << 1.0 << QSize(1024, 728) << 1024.0 / 1074.0;
    }

    void theSystemsScaleHoldsWhereTheWindowHasRoom()
    {
        QFETCH(double, systemScale);
        QFETCH(QSize, freePixels);
        QFETCH(double, scale);
        QCOMPARE(scaleThatFits(systemScale, freePixels), scale);
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
