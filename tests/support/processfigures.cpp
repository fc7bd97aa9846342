#include "support/processfigures.h"

#include <QFile>
#include <QList>

#ifdef Q_OS_UNIX
#include <unistd.h>
#endif

double residentMb()
{
#ifdef Q_OS_UNIX
    QFile file(QStringLiteral("/proc/self/statm"));
    if (file.open(QIODevice::ReadOnly)) {
        const QList<QByteArray> pages = file.readAll().split(' ');
        return pages.value(1).toDouble() * static_cast<double>(sysconf(_SC_PAGESIZE)) / 1e6;
    }
#endif
    return 0.0;
}
