#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

/// What growthcheck did with a command line.
struct CheckRun
{
    int status = 0;
    QByteArray out; ///< UTF-8
    QString complaints; ///< lines

    QStringList lines() const { return QString::fromUtf8(out).split(QLatin1Char('\n')); }
};

/// Does what the words of a command line ask for, in this process; in English unless they say otherwise.
CheckRun runCheck(const QStringList& words);
