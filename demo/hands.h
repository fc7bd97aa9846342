#pragma once

#include <QPoint>
#include <QString>
#include <QStringList>

#include <functional>

class QWidget;

/// The demonstration's hands: mouse and keyboard of the X display, moved with xdotool. The events go through
/// the display to the window as an operator's do. Nothing here blocks the window: it goes on working while
/// the hands move.
namespace Hands {

/// Clicks on the middle of `widget` with X button 1 (left), 2 (middle) or 3 (right).
void click(const QWidget& widget, int button = 1);

/// Clicks at `fromMiddle` from the middle of `widget`.
void clickAt(const QWidget& widget, QPoint fromMiddle, int button = 1);

/// Clicks twice, fast, on the middle of `widget`.
void doubleClick(const QWidget& widget);

/// Turns the wheel over the middle of `widget` by `notches`, up when positive; with the right button held
/// when `rightHeld`.
void wheel(const QWidget& widget, int notches, bool rightHeld = false);

/// Presses `button` on the middle of `widget`, moves by `by` in a few steps and lets go.
void drag(const QWidget& widget, QPoint by, int button = 1);

/// Rests the pointer on the middle of `widget`.
void rest(const QWidget& widget);

/// Types into whatever has the keyboard.
void type(const QString& text);

/// Presses a key or a combination by its X name ("Return", "ctrl+a").
void key(const QString& name);

/// Replaces the text of an entry: click, select all, type.
void enter(const QWidget& entry, const QString& text);

/// Lets the window work until `condition` holds; false after `limitMs`.
bool waitUntil(const std::function<bool()>& condition, int limitMs);

/// Lets the window work for `ms`.
void letWork(int ms);

} // namespace Hands
