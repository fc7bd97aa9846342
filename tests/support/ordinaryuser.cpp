#include "support/ordinaryuser.h"

#include <QDir>
#include <QFile>
#include <QtGlobal>

#ifdef Q_OS_UNIX

#include <QCoreApplication>
#include <QDebug>
#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

#include <grp.h>
#include <pwd.h>
#include <unistd.h>

namespace {

class ProcessOfNobody : public QProcess
{
protected:
    void setupChildProcess() override
    {
        const passwd* nobody = getpwnam("nobody");
        if (nobody == nullptr || setgroups(0, nullptr) != 0 || setgid(nobody->pw_gid) != 0
            || setuid(nobody->pw_uid) != 0) {
            _exit(1);
        }
    }
};

} // namespace

bool mayWriteEverything()
{
    return geteuid() == 0;
}

bool passesAsOrdinaryUser()
{
    QString test = QString::fromLatin1(QTest::currentTestFunction());
    if (QTest::currentDataTag() != nullptr) {
        test += QLatin1Char(':') + QString::fromUtf8(QTest::currentDataTag());
    }
    // A copy, since the folder of this program may be closed to others.
    const QTemporaryDir folder(QStringLiteral("/tmp/nobody-XXXXXX"));
    const QString program = folder.filePath(QStringLiteral("test"));
    QFile::setPermissions(
        folder.path(), QFile::permissions(folder.path()) | QFileDevice::ReadOther | QFileDevice::ExeOther);
    if (!QFile::copy(QCoreApplication::applicationFilePath(), program)) {
        return false;
    }
    QFile::setPermissions(
        program, QFile::permissions(program) | QFileDevice::ReadOther | QFileDevice::ExeOther);
    ProcessOfNobody process;
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.setWorkingDirectory(QStringLiteral("/"));
    process.start(program, {test});
    const bool passed = process.waitForFinished() && process.exitStatus() == QProcess::NormalExit
        && process.exitCode() == 0;
    if (!passed) {
        qInfo().noquote() << process.errorString() << process.readAll();
    }
    return passed;
}

#else

bool mayWriteEverything()
{
    return false;
}

bool passesAsOrdinaryUser()
{
    return false;
}

#endif

ClosedFolder::ClosedFolder()
{
    QFile::setPermissions(QDir::currentPath(), QFileDevice::ReadOwner | QFileDevice::ExeOwner);
}

ClosedFolder::~ClosedFolder()
{
    QFile::setPermissions(
        QDir::currentPath(), QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ExeOwner);
}
