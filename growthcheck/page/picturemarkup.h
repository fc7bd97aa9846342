#pragma once

#include "growthcheck/page/picture.h"

#include <QByteArray>

namespace GrowthCheck {

/// The picture as markup: lanes of shutters, curves of temperatures, an axis of time. It is whole without the
/// page's script, which adds zoom and values.
QByteArray pictureMarkup(const Picture& picture);

} // namespace GrowthCheck
