#pragma once

#include <QString>

/// A button's colour for on, open, running or in use.
inline const QString yellow = QStringLiteral("background-color: rgb(255, 255, 15);");
/// A button's colour for off, closed, idle or not in use.
inline const QString olive = QStringLiteral("background-color: rgb(185, 185, 105);");
/// The colour of entries.
inline const QString white = QStringLiteral("background-color: rgb(255, 255, 255);");

/// The name of a channel's or a shutter's widget: cell("TDeg", 3) is "TDeg04". The forms count from 1.
inline QString cell(const char* row, int number)
{
    return QStringLiteral("%1%2").arg(QLatin1String(row)).arg(number + 1, 2, 10, QLatin1Char('0'));
}
