#pragma once

#include <QObject>
#include <QPoint>

class QMouseEvent;

/// What the mouse did last over the chart. Positions are the events' own, rounded to the nearest pixel
/// (halves upwards), and all start at (0, 0).
class MouseC : public QObject
{
    Q_OBJECT

public:
    explicit MouseC(QObject* parent = nullptr);

    void move(const QMouseEvent& event);
    void press(const QMouseEvent& event);
    void release(const QMouseEvent& event);
    /// Records its own position only: the current position stays that of the last press, move or release.
    void doubleClick(const QMouseEvent& event);

    QPoint current() const { return currentPosition; }
    QPoint pressPosition() const { return pressedAt; }
    QPoint releasePosition() const { return releasedAt; }
    QPoint doubleClickPosition() const { return doubleClickedAt; }
    /// Whether a button went down and none came up since.
    bool isPressed() const { return pressed; }
    /// The button of the last press, release or double click.
    Qt::MouseButton button() const { return lastButton; }
    Qt::KeyboardModifiers modifiers() const { return lastModifiers; }

    /// Whether the last press, release or double click was by `which` and the last event came with no
    /// keyboard modifier.
    bool isPlain(Qt::MouseButton which) const
    {
        return lastButton == which && lastModifiers == Qt::NoModifier;
    }

private:
    QPoint currentPosition;
    QPoint pressedAt;
    QPoint releasedAt;
    QPoint doubleClickedAt;
    bool pressed = false;
    Qt::MouseButton lastButton = Qt::NoButton;
    Qt::KeyboardModifiers lastModifiers = Qt::NoModifier;
};
