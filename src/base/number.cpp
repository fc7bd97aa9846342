#include "base/number.h"

#include <cmath>

namespace {

template <typename Text> std::optional<double> finiteNumber(const Text& text)
{
    bool converts = false;
    const double value = text.toDouble(&converts);
    return converts && std::isfinite(value) ? std::optional<double>(value) : std::nullopt;
}

} // namespace

std::optional<double> readNumber(const QString& text)
{
    return finiteNumber(text);
}

std::optional<double> readNumber(const QByteArray& text)
{
    // Blanks alone are 0 to the toolkit, here but not for a QString.
    return text.trimmed().isEmpty() ? std::nullopt : finiteNumber(text);
}
