#include "base/platformrefusal.h"

#include <QCoreApplication>

#ifdef Q_OS_WIN
#include <windows.h>
#endif

namespace {

constexpr char context[] = "PlatformRefusal";

const char* sourceText(PlatformRefusal::Kind kind)
{
    switch (kind) {
    case PlatformRefusal::Kind::None:
        break;
    case PlatformRefusal::Kind::NoSuchCall:
        return QT_TRANSLATE_NOOP("PlatformRefusal", "this system has no such call");
    case PlatformRefusal::Kind::Error:
        return QT_TRANSLATE_NOOP("PlatformRefusal", "error %1");
    case PlatformRefusal::Kind::ErrorForTimers:
        return QT_TRANSLATE_NOOP("PlatformRefusal", "error %1 for timers, speed alone was done");
    }
    return "";
}

QString filledIn(QString text, unsigned long error)
{
    return text.replace(QLatin1String("%1"), QString::number(error));
}

} // namespace

QString PlatformRefusal::inEnglish() const
{
    return filledIn(QLatin1String(sourceText(kind)), error);
}

QString PlatformRefusal::inWords() const
{
    return filledIn(QCoreApplication::translate(context, sourceText(kind)), error);
}

PlatformRefusal platformRefusal()
{
#ifdef Q_OS_WIN
    return {PlatformRefusal::Kind::Error, GetLastError()};
#else
    return {PlatformRefusal::Kind::NoSuchCall, 0};
#endif
}
