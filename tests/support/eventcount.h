#pragma once

#include <QEvent>
#include <QWidget>

/// Counts the events of one kind that a widget gets.
class EventCount : public QObject
{
public:
    EventCount(QWidget& widget, QEvent::Type kind)
        : counted(kind)
    {
        widget.installEventFilter(this);
    }

    int count = 0;

protected:
    bool eventFilter(QObject*, QEvent* event) override
    {
        count += event->type() == counted ? 1 : 0;
        return false;
    }

private:
    QEvent::Type counted;
};
