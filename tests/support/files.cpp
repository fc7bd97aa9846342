#include "support/files.h"

#include <QFile>

#ifdef Q_OS_UNIX
#include <csignal>
#include <sys/resource.h>
#endif

void putFile(const QString& name, const QByteArray& bytes)
{
    QFile file(name);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size()) {
        qFatal("cannot write %s", qPrintable(name));
    }
}

QByteArray fileText(const QString& name)
{
    QFile file(name);
    return file.open(QIODevice::ReadOnly | QIODevice::Text) ? file.readAll() : QByteArray("(no file)");
}

#ifdef Q_OS_UNIX

struct FullDisk::Before
{
    rlimit limit{};
    void (*handler)(int) = nullptr;
};

bool FullDisk::isPossible()
{
    return true;
}

FullDisk::FullDisk(int bytes)
    : before(std::make_unique<Before>())
{
    before->handler = std::signal(SIGXFSZ, SIG_IGN);
    if (getrlimit(RLIMIT_FSIZE, &before->limit) != 0) {
        qFatal("no file size limit");
    }
    rlimit tight = before->limit;
    tight.rlim_cur = static_cast<rlim_t>(bytes);
    if (setrlimit(RLIMIT_FSIZE, &tight) != 0) {
        qFatal("cannot set the file size limit");
    }
}

FullDisk::~FullDisk()
{
    setrlimit(RLIMIT_FSIZE, &before->limit);
    std::signal(SIGXFSZ, before->handler);
}

#else

struct FullDisk::Before
{
};

bool FullDisk::isPossible()
{
    return false;
}

FullDisk::FullDisk(int) { }
FullDisk::~FullDisk() = default;

#endif
