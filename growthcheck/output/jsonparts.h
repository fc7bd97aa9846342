#pragma once

#include "growthcheck/check/finding.h"

#include <QJsonArray>
#include <QJsonObject>

#include <initializer_list>
#include <utility>

namespace GrowthCheck {

/// An object of the members `fields`, whose names are ASCII.
QJsonObject jsonObject(std::initializer_list<std::pair<const char*, QJsonValue>> fields);

/// A channel's name in English, as journals and programs have it.
QString cellName(int channel);

double inSeconds(qint64 ms);

QJsonArray findingArray(const Findings& findings);

QByteArray bytesOf(const QJsonObject& object);

/// An object's members without its braces, so that a long array can follow piece by piece.
QByteArray membersOf(const QJsonObject& object);

} // namespace GrowthCheck
