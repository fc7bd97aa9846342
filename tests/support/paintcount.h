#pragma once

#include "support/eventcount.h"

#include <QCoreApplication>

#include <utility>

/// Counts the repaints of a widget that is shown.
class PaintCount
{
public:
    explicit PaintCount(QWidget& widget)
        : paints(widget, QEvent::Paint)
    {
    }

    /// The repaints since the last call; requests that wait are carried out first.
    int take()
    {
        QCoreApplication::processEvents();
        return std::exchange(paints.count, 0);
    }

private:
    EventCount paints;
};
