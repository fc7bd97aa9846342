#include "base/wholefile.h"

#include <QBuffer>
#include <QFile>
#include <QSaveFile>

namespace {

// Files are written as bytes, so that their lengths are known: the line ends are made here.
QByteArray withPlatformLineEnds(const QByteArray& text)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly | QIODevice::Text);
    buffer.write(text);
    return bytes;
}

bool writeAll(QFileDevice& file, const QByteArray& bytes)
{
    return file.write(bytes) == bytes.size() && file.flush();
}

bool writeOver(const QString& name, const QByteArray& bytes)
{
    QFile file(name);
    // Neither cut first nor buffered: what the old text has on the disk is room enough to put it back.
    if (!file.open(QIODevice::ReadWrite | QIODevice::Unbuffered)) {
        return false;
    }
    const QByteArray old = file.readAll();
    if (file.seek(0) && writeAll(file, bytes) && file.resize(bytes.size())) {
        return true;
    }
    if (file.seek(0)) {
        writeAll(file, old);
        file.resize(old.size());
    }
    return false;
}

bool endsInMidLine(QFile& file)
{
    char last = '\n';
    return file.size() > 0 && file.seek(file.size() - 1) && file.getChar(&last) && last != '\n';
}

} // namespace

bool replaceFile(const QString& name, const QByteArray& text)
{
    const QByteArray bytes = withPlatformLineEnds(text);
    QSaveFile file(name);
    if (!file.open(QIODevice::WriteOnly)) {
        return writeOver(name, bytes);
    }
    // Asked here, because commit() does not look at how its own last flush went: on a full disk it would
    // replace the file by the part that fitted.
    if (!writeAll(file, bytes)) {
        file.cancelWriting();
    }
    return file.commit();
}

bool appendToFile(const QString& name, const QByteArray& text)
{
    QFile file(name);
    if (!file.open(QIODevice::ReadWrite | QIODevice::Append | QIODevice::Unbuffered)) {
        return false;
    }
    const qint64 sizeBefore = file.size();
    const QByteArray lineEnd = endsInMidLine(file) ? QByteArrayLiteral("\n") : QByteArray();
    if (writeAll(file, withPlatformLineEnds(lineEnd + text))) {
        return true;
    }
    file.resize(sizeBefore);
    return false;
}
