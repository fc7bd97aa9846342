#pragma once

#include "growthcheck/page/picture.h"

#include <QByteArray>
#include <QDateTime>

namespace GrowthCheck {

/// The picture in numbers, for the page's script: JSON that may stand within a script element. Clock times
/// are counted from `runAt`, when that is valid.
QByteArray pictureData(const Picture& picture, const QDateTime& runAt);

} // namespace GrowthCheck
