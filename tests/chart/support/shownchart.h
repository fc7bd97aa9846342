#pragma once

#include "chart/tshowview.h"
#include "support/paintcount.h"
#include "support/ticks.h"

/// The chart in a real window, 10000 s after the start, painted once. The plot is 870 pixels wide (300 s)
/// from x = 100, and 435 pixels high (1000 deg C) from y = 25 to y = 460.
class ShownChart
{
public:
    ShownChart()
        : clock(startMs + 10000000)
        , paints(view)
    {
        view.resize(1000, 500);
        view.setStartTime(startMs);
        view.show();
        paints.take();
    }

    const ChartView& state() const { return view.chartView(); }

    static constexpr qint64 startMs = 1700000000000;

    DrivenClock clock;
    TShowView view;
    PaintCount paints;
};
