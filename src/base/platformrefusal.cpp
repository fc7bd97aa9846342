#include "base/platformrefusal.h"

#ifdef Q_OS_WIN

#include <windows.h>

QString platformRefusal()
{
    return QStringLiteral("error %1").arg(GetLastError());
}

#else

QString platformRefusal()
{
    return QStringLiteral("this system has no such call");
}

#endif
