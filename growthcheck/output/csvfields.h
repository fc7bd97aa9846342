#pragma once

#include <QString>

namespace GrowthCheck {

/// `text` as a field of a line of comma-separated values: in quotation marks where it needs them.
QString inQuotes(const QString& text);

} // namespace GrowthCheck
