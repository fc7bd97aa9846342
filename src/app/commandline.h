#pragma once

#include <QString>
#include <QStringList>

/// What the program is asked for on its command line, besides the language.
enum class Task { Station, Help, Version, CheckPc };

/// The first of "--help", "--version" and "--check-pc" among `arguments`, the program's own path first,
/// decides; every other argument is none of them, and none is the station.
Task taskOf(const QStringList& arguments);

/// How many seconds "--check-pc=SECONDS" asks for, a whole number from 1 to 3600; 60 where it names none.
int checkedSeconds(const QStringList& arguments);

/// The answers to "--help" and "--version", in the language of the application.
QString helpText();
QString versionText();
