#include "base/panelstyle.h"

#include <QAbstractButton>

#include <algorithm>

QString stateStyle(bool on)
{
    return on ? QStringLiteral("background-color: rgb(255, 255, 15);")
              : QStringLiteral("background-color: rgb(185, 185, 105);");
}

void setStyleOf(QWidget& widget, const QString& style)
{
    if (widget.styleSheet() != style) {
        widget.setStyleSheet(style);
    }
}

void keepRoomFor(QAbstractButton& button, const QStringList& texts)
{
    const QString shown = button.text();
    int width = 0;
    for (const QString& text : texts) {
        button.setText(text);
        width = std::max(width, button.sizeHint().width());
    }
    button.setText(shown);
    button.setMinimumWidth(width);
}

void showState(QAbstractButton& button, bool on, const QString& text)
{
    if (button.text() != text) {
        button.setText(text);
    }
    setStyleOf(button, stateStyle(on));
}
