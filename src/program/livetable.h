#pragma once

#include <QList>
#include <QString>

class QLabel;
class QWidget;

/// What keeps a window quick that holds a table of 5,400 live widgets. Each of the three goes around a place
/// where the toolkit does something for every widget of the table, whether it is in sight or not.

/// Every new widget asks to be polished as soon as the event loop runs. Those of a table that is not in sight
/// can wait until it is shown, which polishes them anyhow: that halves the time to the window's first
/// picture. For the time while the table is built: what others asked for before is done first, what is asked
/// for meanwhile is taken back at the end.
class LatePolish
{
public:
    LatePolish();
    ~LatePolish();
    LatePolish(const LatePolish&) = delete;
    LatePolish& operator=(const LatePolish&) = delete;
};

/// While it lives, changes inside a widget are not taken down for painting one by one; afterwards the widget
/// is painted once. For changes of the whole table at a go, without events in between.
class HeldUpdates
{
public:
    /// `container` and its children must outlive this.
    explicit HeldUpdates(QWidget& container);
    ~HeldUpdates();
    HeldUpdates(const HeldUpdates&) = delete;
    HeldUpdates& operator=(const HeldUpdates&) = delete;

private:
    QWidget& whole;
    QList<QWidget*> held;
};

/// A label beside the table that shows a figure ten times a second must not change its size with each: the
/// tab around it would be laid out and painted anew, the table with it. It has room for ten characters, for
/// good.
void giveRoomForFigures(QLabel& label);

/// Shows a figure on a label with such room. A longer one is cut off on the right; the tool tip has the
/// whole.
void showFigure(QLabel& label, const QString& text);
