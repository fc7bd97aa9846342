#include "base/wholefile.h"

#include <QSaveFile>

bool replaceFile(const QString& name, const QByteArray& text)
{
    QSaveFile file(name);
    file.setDirectWriteFallback(true);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Text)) {
        return false;
    }
    // Asked here, because commit() does not look at how its own last flush went: on a full disk it would
    // replace the file by the part that fitted.
    if (file.write(text) != text.size() || !file.flush()) {
        file.cancelWriting();
        file.commit();
        return false;
    }
    return file.commit();
}
