#include "base/panelstyle.h"

#include "support/testmain.h"

#include <QToolButton>

namespace {

/// Counts how often the widget it watches is styled or laid out anew.
class ChangeCounter : public QObject
{
    Q_OBJECT

public:
    explicit ChangeCounter(QWidget& widget) { widget.installEventFilter(this); }
    int styled = 0;
    int relaid = 0;

protected:
    bool eventFilter(QObject*, QEvent* event) override
    {
        styled += event->type() == QEvent::StyleChange ? 1 : 0;
        relaid += event->type() == QEvent::LayoutRequest ? 1 : 0;
        return false;
    }
};

const QString yellow = QStringLiteral("background-color: rgb(255, 255, 15);");
const QString olive = QStringLiteral("background-color: rgb(185, 185, 105);");

} // namespace

class PanelStyleTest : public QObject
{
    Q_OBJECT

private slots:
    void coloursAreTheSharedOnes();
    void showsTextAndColour();
    void styleIsSetOnlyWhenItChanges();
    void sameStateAgainChangesNothing();
    void newTextInTheSameColourIsShown();
};

void PanelStyleTest::coloursAreTheSharedOnes()
{
    QCOMPARE(stateStyle(true), yellow);
    QCOMPARE(stateStyle(false), olive);
}

void PanelStyleTest::showsTextAndColour()
{
    QToolButton button;
    showState(button, true, QStringLiteral("Open"));
    QCOMPARE(button.text(), QStringLiteral("Open"));
    QCOMPARE(button.styleSheet(), yellow);
    showState(button, false, QStringLiteral("Close"));
    QCOMPARE(button.text(), QStringLiteral("Close"));
    QCOMPARE(button.styleSheet(), olive);
}

void PanelStyleTest::styleIsSetOnlyWhenItChanges()
{
    QWidget widget;
    widget.ensurePolished();
    const ChangeCounter changes(widget);
    setStyleOf(widget, yellow);
    QCOMPARE(changes.styled, 1);
    setStyleOf(widget, yellow);
    QCOMPARE(changes.styled, 1);
    setStyleOf(widget, olive);
    QCOMPARE(changes.styled, 2);
    QCOMPARE(widget.styleSheet(), olive);
    setStyleOf(widget, QString());
    QCOMPARE(changes.styled, 3);
    QCOMPARE(widget.styleSheet(), QString());
}

void PanelStyleTest::sameStateAgainChangesNothing()
{
    QToolButton button;
    button.ensurePolished();
    showState(button, true, QStringLiteral("Open"));
    const ChangeCounter changes(button);
    for (int i = 0; i < 10; ++i) {
        showState(button, true, QStringLiteral("Open"));
    }
    QCOMPARE(changes.styled, 0);
    QCOMPARE(changes.relaid, 0);
    QCOMPARE(button.text(), QStringLiteral("Open"));
    QCOMPARE(button.styleSheet(), yellow);
}

void PanelStyleTest::newTextInTheSameColourIsShown()
{
    QToolButton button;
    button.ensurePolished();
    showState(button, true, QStringLiteral("Open"));
    const ChangeCounter changes(button);
    showState(button, true, QStringLiteral("Run"));
    QCOMPARE(button.text(), QStringLiteral("Run"));
    QCOMPARE(changes.styled, 0);
}

NELVO_TEST_MAIN(PanelStyleTest)

#include "panelstyle.moc"
