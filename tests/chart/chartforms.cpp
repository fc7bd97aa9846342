// The forms of the chart and of a line selector.

#include "chart/lineselect.h"
#include "chart/tshow.h"
#include "support/testmain.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QLabel>

class ChartFormsTest : public QObject
{
    Q_OBJECT

private slots:
    void theFormIsAsDrawn();
    void aSelectorsFormIsAsDrawn();
};

void ChartFormsTest::theFormIsAsDrawn()
{
    const TShow show;
    QCOMPARE(show.objectName(), QStringLiteral("TShow"));
    QCOMPARE(show.size(), QSize(914, 520));
    QCOMPARE(show.windowTitle(), QStringLiteral("Frame"));
    QCOMPARE(show.frameShape(), QFrame::StyledPanel);
    QCOMPARE(show.frameShadow(), QFrame::Raised);
    const auto* view = show.findChild<TShowView*>(QStringLiteral("TSView"));
    QVERIFY(view != nullptr);
    QCOMPARE(view->toolTip(),
        QStringLiteral(
            "<html><head/><body><p>Shift in X : Drag with Left button</p><p>Mag. in X : Wheel with no "
            "button</p><p>Shift in Y : Drag with Right button</p><p>Mag. in Y : Wheel with Right "
            "button</p></body></html>"));
    QCOMPARE(view->styleSheet(), QStringLiteral("background-color: rgb(255, 255, 255);"));
    QCOMPARE(view->frameShape(), QFrame::StyledPanel);
    QCOMPARE(view->frameShadow(), QFrame::Raised);
    QCOMPARE(view->sizePolicy().horizontalPolicy(), QSizePolicy::Preferred);
    QCOMPARE(view->sizePolicy().verticalPolicy(), QSizePolicy::Expanding);
    QCOMPARE(view->sizePolicy().hasHeightForWidth(), QFrame().sizePolicy().hasHeightForWidth());
    auto* grid = show.findChild<QGridLayout*>(QStringLiteral("gridLayout"));
    QVERIFY(grid != nullptr);
    for (int row = 0; row < 2; ++row) {
        int foundRow = -1;
        int column = -1;
        int rows = 0;
        int columns = 0;
        grid->getItemPosition(row, &foundRow, &column, &rows, &columns);
        QCOMPARE(QVector<int>({foundRow, column, rows, columns}), QVector<int>({row, 0, 1, 2}));
    }
    QCOMPARE(grid->itemAtPosition(0, 0)->layout()->objectName(), QStringLiteral("LSLine"));
    QCOMPARE(grid->itemAtPosition(1, 0)->widget()->objectName(), QStringLiteral("TSView"));
}

void ChartFormsTest::aSelectorsFormIsAsDrawn()
{
    const LineSelect selector;
    QCOMPARE(selector.objectName(), QStringLiteral("LineSelect"));
    QCOMPARE(selector.size(), QSize(99, 22));
    QCOMPARE(selector.windowTitle(), QStringLiteral("Frame"));
    QCOMPARE(selector.frameShape(), QFrame::StyledPanel);
    QCOMPARE(selector.frameShadow(), QFrame::Raised);
    QVERIFY(selector.testAttribute(Qt::WA_MouseTracking));
    QCOMPARE(selector.findChild<QCheckBox*>(QStringLiteral("LineSel"))->text(), QStringLiteral("CheckBox"));
    QCOMPARE(selector.findChild<QLabel*>(QStringLiteral("LineColor"))->text(), QString());
    auto* grid = selector.findChild<QGridLayout*>(QStringLiteral("gridLayout"));
    QCOMPARE(grid->spacing(), 1);
    QCOMPARE(grid->contentsMargins(), QMargins(1, 1, 1, 1));
    QVERIFY(grid->itemAtPosition(0, 0) == nullptr);
    QCOMPARE(grid->itemAtPosition(0, 1)->widget()->objectName(), QStringLiteral("LineSel"));
    QCOMPARE(grid->itemAtPosition(0, 2)->widget()->objectName(), QStringLiteral("LineColor"));
}

NELVO_TEST_MAIN(ChartFormsTest)
#include "chartforms.moc"
