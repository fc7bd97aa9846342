#include "base/number.h"

#include <cmath>

std::optional<double> readNumber(const QString& text)
{
    bool converts = false;
    const double value = text.toDouble(&converts);
    return converts && std::isfinite(value) ? std::optional<double>(value) : std::nullopt;
}
