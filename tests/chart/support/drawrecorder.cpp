#include "chart/support/drawrecorder.h"

#include <QPen>

DrawRecorder::DrawRecorder(const QSize& size)
    : extent(size)
{
}

int DrawRecorder::metric(PaintDeviceMetric metric) const
{
    switch (metric) {
    case PdmWidth:
        return extent.width();
    case PdmHeight:
        return extent.height();
    case PdmDpiX:
    case PdmDpiY:
    case PdmPhysicalDpiX:
    case PdmPhysicalDpiY:
        return 96;
    case PdmDepth:
        return 32;
    default:
        return QPaintDevice::metric(metric);
    }
}

DrawRecorder::Engine::Engine()
    : QPaintEngine(AllFeatures)
{
}

void DrawRecorder::Engine::updateState(const QPaintEngineState& state)
{
    if ((state.state() & DirtyPen) != 0) {
        isBlack = state.pen().color() == QColor(0, 0, 0) && state.pen().width() == 1;
    }
}

void DrawRecorder::Engine::drawLines(const QLine* lines, int count)
{
    for (int i = 0; isBlack && i < count; ++i) {
        blackLines.append(lines[i]);
    }
}

void DrawRecorder::Engine::drawTextItem(const QPointF& place, const QTextItem& item)
{
    texts.append(item.text());
    places.append(place);
}
