#include "growthcheck/app/desktop.h"
#include "growthcheck/app/session.h"

#include <QCoreApplication>

#include <cstdio>

namespace {

void writeOut(const QByteArray& utf8)
{
    std::fwrite(utf8.constData(), 1, static_cast<size_t>(utf8.size()), stdout);
}

void complain(const QString& line)
{
    std::fprintf(stderr, "growthcheck: %s\n", line.toLocal8Bit().constData());
}

} // namespace

int main(int argc, char* argv[])
{
    QCoreApplication application(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("growthcheck"));
    return GrowthCheck::runCommandLine(
        QCoreApplication::arguments(), GrowthCheck::isStartedByDesktop(), {&writeOut, &complain});
}
