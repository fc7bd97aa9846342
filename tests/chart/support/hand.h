#pragma once

#include <QPointF>
#include <QWidget>

/// A hand on the mouse over one widget: events as the toolkit delivers them, in the widget's pixels.
namespace Hand {

void press(QWidget& widget, const QPointF& at, Qt::MouseButton button, Qt::KeyboardModifiers modifiers = {});
/// With `held` (Qt::NoButton for none) down.
void move(QWidget& widget, const QPointF& at, Qt::MouseButton held, Qt::KeyboardModifiers modifiers = {});
void release(
    QWidget& widget, const QPointF& at, Qt::MouseButton button, Qt::KeyboardModifiers modifiers = {});
void doubleClick(QWidget& widget, const QPointF& at, Qt::MouseButton button = Qt::LeftButton);
/// Press, move and release.
void drag(QWidget& widget, const QPointF& from, const QPointF& to, Qt::MouseButton button,
    Qt::KeyboardModifiers modifiers = {});
/// `delta` is 120 a notch, positive away from the hand.
void wheel(
    QWidget& widget, int delta, const QPointF& at = QPointF(10, 10), Qt::KeyboardModifiers modifiers = {});
/// Turns the wheel by `count` notches, closer when positive.
void notches(QWidget& widget, int count);

} // namespace Hand
