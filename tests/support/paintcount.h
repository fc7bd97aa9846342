#pragma once

#include <QCoreApplication>
#include <QEvent>
#include <QWidget>

#include <utility>

/// Counts the repaints of a widget that is shown.
class PaintCount : public QObject
{
public:
    explicit PaintCount(QWidget& widget) { widget.installEventFilter(this); }

    /// The repaints since the last call; requests that wait are carried out first.
    int take()
    {
        QCoreApplication::processEvents();
        return std::exchange(count, 0);
    }

protected:
    bool eventFilter(QObject*, QEvent* event) override
    {
        count += event->type() == QEvent::Paint ? 1 : 0;
        return false;
    }

private:
    int count = 0;
};
