#pragma once

#include <QString>
#include <QStringList>

class QAbstractButton;
class QWidget;

/// The two button colours that the shutter panel, the cell panel and the program share: yellow for on, open,
/// running or in use, olive for off, closed, idle or not in use.
QString stateStyle(bool on);

/// Sets a style sheet only when it is another one. The program table holds thousands of widgets, and setting
/// the same sheet again would have each of them polished anew.
void setStyleOf(QWidget& widget, const QString& style);

/// Gives a button the room of its longest text from the start, so that the panel around it never widens.
void keepRoomFor(QAbstractButton& button, const QStringList& texts);

/// Shows an on/off state on a button: its colour and its text.
void showState(QAbstractButton& button, bool on, const QString& text);
