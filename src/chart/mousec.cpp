#include "chart/mousec.h"

#include <QMouseEvent>

MouseC::MouseC(QObject* parent)
    : QObject(parent)
{
}

void MouseC::move(const QMouseEvent& event)
{
    currentPosition = event.localPos().toPoint();
    lastModifiers = event.modifiers();
}

void MouseC::press(const QMouseEvent& event)
{
    pressedAt = event.localPos().toPoint();
    currentPosition = pressedAt;
    pressed = true;
    lastButton = event.button();
    lastModifiers = event.modifiers();
}

void MouseC::release(const QMouseEvent& event)
{
    releasedAt = event.localPos().toPoint();
    currentPosition = releasedAt;
    pressed = false;
    lastButton = event.button();
    lastModifiers = event.modifiers();
}

void MouseC::doubleClick(const QMouseEvent& event)
{
    doubleClickedAt = event.localPos().toPoint();
    lastButton = event.button();
    lastModifiers = event.modifiers();
}
