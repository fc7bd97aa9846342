#include "chart/support/hand.h"

#include <QApplication>
#include <QMouseEvent>
#include <QWheelEvent>

namespace Hand {

namespace {

void sendMouse(QWidget& widget, QEvent::Type type, const QPointF& at, Qt::MouseButton button,
    Qt::MouseButtons held, Qt::KeyboardModifiers modifiers)
{
    const QPointF global = QPointF(widget.mapToGlobal(QPoint(0, 0))) + at;
    QMouseEvent event(type, at, global, button, held, modifiers);
    QApplication::sendEvent(&widget, &event);
}

} // namespace

void press(QWidget& widget, const QPointF& at, Qt::MouseButton button, Qt::KeyboardModifiers modifiers)
{
    sendMouse(widget, QEvent::MouseButtonPress, at, button, button, modifiers);
}

void move(QWidget& widget, const QPointF& at, Qt::MouseButton held, Qt::KeyboardModifiers modifiers)
{
    sendMouse(widget, QEvent::MouseMove, at, Qt::NoButton, held, modifiers);
}

void release(QWidget& widget, const QPointF& at, Qt::MouseButton button, Qt::KeyboardModifiers modifiers)
{
    sendMouse(widget, QEvent::MouseButtonRelease, at, button, Qt::NoButton, modifiers);
}

void doubleClick(QWidget& widget, const QPointF& at, Qt::MouseButton button)
{
    sendMouse(widget, QEvent::MouseButtonDblClick, at, button, button, Qt::NoModifier);
}

void drag(QWidget& widget, const QPointF& from, const QPointF& to, Qt::MouseButton button,
    Qt::KeyboardModifiers modifiers)
{
    press(widget, from, button, modifiers);
    move(widget, to, button, modifiers);
    release(widget, to, button, modifiers);
}

void wheel(QWidget& widget, int delta, const QPointF& at, Qt::KeyboardModifiers modifiers)
{
    const QPointF global = QPointF(widget.mapToGlobal(QPoint(0, 0))) + at;
    QWheelEvent event(
        at, global, QPoint(), QPoint(0, delta), Qt::NoButton, modifiers, Qt::NoScrollPhase, false);
    QApplication::sendEvent(&widget, &event);
}

void notches(QWidget& widget, int count)
{
    for (int i = 0; i < qAbs(count); ++i) {
        wheel(widget, count > 0 ? 120 : -120);
    }
}

} // namespace Hand
