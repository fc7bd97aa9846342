#include "growthcheck/support/checkrun.h"

#include "growthcheck/app/session.h"

CheckRun runCheck(const QStringList& words)
{
    CheckRun result;
    const GrowthCheck::Outlets outlets{[&result](const QByteArray& utf8) { result.out += utf8; },
        [&result](const QString& line) { result.complaints += line + QLatin1Char('\n'); }};
    result.status
        = GrowthCheck::runCommandLine(QStringList{QStringLiteral("growthcheck")} + words, false, outlets);
    return result;
}
