// Whatever the hand on the mouse does with a chart of any history and size: the view keeps its limits, and
// the chart paints.

#include "fuzz/fuzztarget.h"

#include "chart/support/hand.h"
#include "chart/tshowview.h"
#include "support/ticks.h"

#include <QImage>

#include <cmath>

namespace {

constexpr qint64 startMs = 1700000000000;
constexpr int channels = 3;

// Any place on the chart, some of them outside.
QPointF placeOf(FuzzInput& input)
{
    return {2.0 * input.byte() - 20.0, 2.0 * input.byte() - 20.0};
}

Qt::MouseButton buttonOf(FuzzInput& input)
{
    return input.below(2) == 0 ? Qt::LeftButton : Qt::RightButton;
}

void paint(TShowView& chart)
{
    QImage image(chart.size(), QImage::Format_RGB32);
    chart.render(&image);
}

void resize(TShowView& chart, FuzzInput& input)
{
    const int width = input.byte();
    const int height = input.byte();
    chart.resize(1 + 2 * width, 1 + height);
}

void addPoints(TShowView& chart, FuzzInput& input)
{
    const int channel = input.below(channels);
    const double nowSec = static_cast<double>(DrivenClock::nowMs() - startMs) / 1000.0;
    const int count = input.byte();
    for (int i = count; i > 0; --i) {
        chart.addPoint(channel, nowSec - i, 4.0 * input.byte());
    }
}

void playOne(TShowView& chart, FuzzInput& input)
{
    switch (input.below(10)) {
    case 0:
        resize(chart, input);
        break;
    case 1:
        chart.addPoint(input.below(channels), input.number(), input.number());
        break;
    case 2:
        addPoints(chart, input);
        break;
    case 3:
        Hand::wheel(chart, 120 * (input.byte() - 128), placeOf(input));
        break;
    case 4:
        Hand::press(chart, placeOf(input), buttonOf(input));
        break;
    case 5:
        Hand::move(chart, placeOf(input), buttonOf(input));
        break;
    case 6:
        Hand::release(chart, placeOf(input), buttonOf(input));
        break;
    case 7:
        Hand::doubleClick(chart, placeOf(input));
        break;
    case 8:
        // A day on, or the system's clock was set back.
        DrivenClock::advance((input.byte() - 128) * 675000LL);
        break;
    default:
        paint(chart);
        break;
    }
}

void checkView(const ChartView& view)
{
    require(view.xSpan >= ChartView::shortestXSpan && view.xSpan <= ChartView::longestXSpan,
        "the time shown keeps its limits");
    require(view.ySpan >= ChartView::shortestYSpan && std::isfinite(view.ySpan),
        "the temperatures shown keep their limit");
    require(std::isfinite(view.xOffset) && std::isfinite(view.xDragShift), "the view is at some time");
    require(std::isfinite(view.yOffset) && std::isfinite(view.yDragShift), "the view is at some temperature");
    require(view.xOffset >= 0.0, "the right edge does not rest later than now");
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    static const bool isPrepared = (prepareFuzzing(), true);
    Q_UNUSED(isPrepared)
    FuzzInput input(data, size);
    const DrivenClock clock(startMs + 86400000);
    TShowView chart;
    chart.setStartTime(startMs);
    chart.resize(200, 120);
    while (!input.isAtEnd()) {
        playOne(chart, input);
        checkView(chart.chartView());
    }
    paint(chart);
    return 0;
}
