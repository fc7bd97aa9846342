#pragma once

#include <QPoint>
#include <QString>

/// Mouse and keyboard of the display itself: the events come to the station's window as an operator's do,
/// through the system. On Windows they are put into its input; elsewhere xdotool does the same on an X
/// display.
namespace RealHand {

/// Clicks with the left button, at a place in pixels of the screen.
void clickAt(QPoint place);

/// Replaces the text of the entry that has the keyboard.
void enter(const QString& text);

} // namespace RealHand
