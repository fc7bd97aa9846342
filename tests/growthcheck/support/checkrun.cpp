#include "growthcheck/support/checkrun.h"

#include "growthcheck/app/session.h"

CheckRun runCheck(const QStringList& words)
{
    CheckRun result;
    const GrowthCheck::Outlets outlets{[&result](const QByteArray& utf8) { result.out += utf8; },
        [&result](const QString& line) { result.complaints += line + QLatin1Char('\n'); }};
    const QString language = QStringLiteral("--language");
    QStringList arguments = QStringList{QStringLiteral("growthcheck")} + words;
    if (!words.contains(language)) {
        arguments += QStringList{language, QStringLiteral("en")}; // whatever the system's is
    }
    result.status = GrowthCheck::runCommandLine(arguments, false, outlets);
    return result;
}
