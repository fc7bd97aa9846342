#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

/// A program file from short descriptions, a line each.
///
/// "t=12 open=Ga,As4 Ga=850 g=Well x=3" is a step of 12 s with two open shutters, a set point, a group and a
/// repeat count; what is not named is 0, "---NoGroup---" or 1. Every value is taken as a text. "n=7" numbers
/// the line so; a description that begins with "|" is the line itself.
QByteArray programText(const QStringList& descriptions);

/// Whether a program may hold `text`: programs are files in the system's encoding.
bool canBeWritten(const QString& text);
