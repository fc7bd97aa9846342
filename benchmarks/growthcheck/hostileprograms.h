#pragma once

#include <QByteArray>
#include <QVector>

/// A program file that nobody would write.
struct HostileProgram
{
    const char* name;
    QByteArray text;
};

/// Files up to the largest that the station loads, each hard on another part of a check.
QVector<HostileProgram> hostilePrograms();

/// A program as laboratories write them: 200 rows, ramps, groups and repeats.
QByteArray ordinaryProgram();
