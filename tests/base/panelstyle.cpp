// A state on a button: its colour and its text, and no work where nothing changes.

#include "base/panelstyle.h"

#include "support/eventcount.h"
#include "support/panel.h"
#include "support/testmain.h"

#include <QToolButton>

using namespace TestText;

class PanelStyleTest : public QObject
{
    Q_OBJECT

private slots:
    void coloursAreTheSharedOnes()
    {
        QCOMPARE(stateStyle(true), yellow);
        QCOMPARE(stateStyle(false), olive);
    }

    void showsTextAndColour()
    {
        QToolButton button;
        showState(button, true, "Open"_s);
        QCOMPARE(button.text(), "Open"_s);
        QCOMPARE(button.styleSheet(), yellow);
        showState(button, false, "Close"_s);
        QCOMPARE(button.text(), "Close"_s);
        QCOMPARE(button.styleSheet(), olive);
    }

    void styleIsSetOnlyWhenItChanges()
    {
        QWidget widget;
        widget.ensurePolished();
        const EventCount styled(widget, QEvent::StyleChange);
        setStyleOf(widget, yellow);
        QCOMPARE(styled.count, 1);
        setStyleOf(widget, yellow);
        QCOMPARE(styled.count, 1);
        setStyleOf(widget, olive);
        QCOMPARE(styled.count, 2);
        QCOMPARE(widget.styleSheet(), olive);
        setStyleOf(widget, QString());
        QCOMPARE(styled.count, 3);
        QCOMPARE(widget.styleSheet(), QString());
    }

    void aButtonHasTheRoomOfItsLongestText()
    {
        QToolButton longest;
        longest.setText("NotInUse at all"_s);
        const int needed = longest.sizeHint().width();
        for (const QStringList& texts : {QStringList{"Run"_s, longest.text()}, {longest.text(), "Run"_s}}) {
            QToolButton button;
            button.setText("Run"_s);
            keepRoomFor(button, texts);
            QCOMPARE(button.minimumWidth(), needed);
            QCOMPARE(button.text(), "Run"_s);
        }
    }

    void sameStateAgainChangesNothing()
    {
        QToolButton button;
        button.ensurePolished();
        showState(button, true, "Open"_s);
        const EventCount styled(button, QEvent::StyleChange);
        const EventCount relaid(button, QEvent::LayoutRequest);
        for (int i = 0; i < 10; ++i) {
            showState(button, true, "Open"_s);
        }
        QCOMPARE(styled.count, 0);
        QCOMPARE(relaid.count, 0);
        QCOMPARE(button.text(), "Open"_s);
        QCOMPARE(button.styleSheet(), yellow);
    }

    void newTextInTheSameColourIsShown()
    {
        QToolButton button;
        button.ensurePolished();
        showState(button, true, "Open"_s);
        const EventCount styled(button, QEvent::StyleChange);
        showState(button, true, "Run"_s);
        QCOMPARE(button.text(), "Run"_s);
        QCOMPARE(styled.count, 0);
    }
};

NELVO_TEST_MAIN(PanelStyleTest)
#include "panelstyle.moc"
