#include "growthcheck/output/csvfields.h"

namespace GrowthCheck {

QString inQuotes(const QString& text)
{
    const bool isPlain = !text.contains(QLatin1Char(',')) && !text.contains(QLatin1Char('"'));
    QString doubled = text;
    doubled.replace(QLatin1Char('"'), QLatin1String("\"\""));
    return isPlain ? text : QLatin1Char('"') + doubled + QLatin1Char('"');
}

} // namespace GrowthCheck
