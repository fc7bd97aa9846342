// The drawing area's data and mouse handling; the painting is in tshowviewpaint.cpp.

#include "chart/tshowview.h"

#include "base/wallclock.h"

#include <QMouseEvent>
#include <QWheelEvent>

TShowView::TShowView(QWidget* parent)
    : QFrame(parent)
    , colors{QColor(0, 0, 0), QColor(255, 0, 0), QColor(0, 255, 0), QColor(0, 0, 255), QColor(230, 230, 0),
          QColor(230, 0, 230), QColor(0, 230, 230), QColor(180, 230, 0), QColor(180, 0, 230),
          QColor(0, 180, 230), QColor(230, 180, 0), QColor(230, 0, 180), QColor(0, 230, 180)}
    , unitNames{tr("sec"), tr("min"), tr("hour"), tr("day")}
{
    constexpr int usualChannels = 16; // so that no history is copied for a channel that comes later
    series.reserve(usualChannels);
}

void TShowView::addPoint(int channel, double sec, double degC)
{
    if (channel < 0) {
        return;
    }
    if (channel >= series.size()) {
        series.resize(channel + 1);
    }
    series[channel].append({sec, degC});
}

void TShowView::setShown(int channel, bool shown)
{
    if (channel < 0) {
        return;
    }
    while (channel >= shownFlags.size()) {
        shownFlags.append(true);
    }
    shownFlags[channel] = shown;
    update();
}

void TShowView::setColor(int channel, const QColor& color)
{
    if (channel < 0) {
        return;
    }
    while (channel >= colors.size()) {
        colors.append(QColor(0, 0, 0));
    }
    colors[channel] = color;
    update();
}

int TShowView::firstIndex(int channel, double sec) const
{
    return channel >= 0 && channel < series.size() ? series.at(channel).firstIndex(sec) : 0;
}

double TShowView::nowSec() const
{
    return static_cast<double>(WallClock::nowMs() - startTimeMs) / 1000.0;
}

void TShowView::mousePressEvent(QMouseEvent* ev)
{
    mouse.press(*ev);
    update();
}

void TShowView::mouseMoveEvent(QMouseEvent* ev)
{
    mouse.move(*ev);
    if (mouse.isPressed() && mouse.isPlain(Qt::LeftButton)) {
        view.dragX(coord.dataX(mouse.current().x()) - coord.dataX(mouse.pressPosition().x()));
    } else if (mouse.isPressed() && mouse.isPlain(Qt::RightButton)) {
        view.dragY(coord.dataY(mouse.current().y()) - coord.dataY(mouse.pressPosition().y()));
    }
    // Also when nothing moved: after a double click this shows the view it went back to.
    update();
}

void TShowView::mouseReleaseEvent(QMouseEvent* ev)
{
    mouse.release(*ev);
    if (mouse.isPlain(Qt::LeftButton)) {
        view.finishXDrag();
    } else if (mouse.isPlain(Qt::RightButton)) {
        view.finishYDrag();
    }
    update();
}

void TShowView::mouseDoubleClickEvent(QMouseEvent* ev)
{
    // The reset view shows with the next repaint; none is asked for here.
    view.reset();
    mouse.doubleClick(*ev);
}

void TShowView::wheelEvent(QWheelEvent* ev)
{
    // Some platforms turn the wheel sideways while Alt is held; no modifier changes what the wheel does here.
    const QPoint angle = ev->angleDelta();
    const int delta = qAbs(angle.y()) >= qAbs(angle.x()) ? angle.y() : angle.x();
    const bool closer = delta * 0.125 / 15 > 0.0;
    if (!mouse.isPressed()) {
        view.zoomX(closer);
    } else if (mouse.button() == Qt::RightButton) {
        view.zoomY(closer, coord.dataY(mouse.current().y()));
    }
    update();
}
