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
    case PdmDevicePixelRatio:
        return 1;
    case PdmDevicePixelRatioScaled:
        return static_cast<int>(devicePixelRatioFScale());
    default:
        return QPaintDevice::metric(metric);
    }
}

DrawRecorder::Engine::Engine()
    : QPaintEngine(AllFeatures)
{
}

void DrawRecorder::Engine::updateState(const QPaintEngineState& update)
{
    if ((update.state() & DirtyPen) != 0) {
        isBlack = update.pen().color() == QColor(0, 0, 0) && update.pen().width() == 1;
    }
}

void DrawRecorder::Engine::drawLines(const QLine* lines, int count)
{
    for (int i = 0; isBlack && i < count; ++i) {
        drawn.blackLines.append(lines[i]);
    }
}

void DrawRecorder::Engine::drawTextItem(const QPointF& place, const QTextItem& item)
{
    drawn.texts.append(item.text());
    drawn.places.append(place);
}
