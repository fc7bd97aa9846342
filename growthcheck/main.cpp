#include "growthcheck/app/options.h"
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
    const QStringList arguments = QCoreApplication::arguments();
    const GrowthCheck::CommandLine commandLine = GrowthCheck::readCommandLine(arguments, false);
    if (!commandLine.error.isEmpty()) {
        complain(commandLine.error);
        return GrowthCheck::Usage;
    }
    if (!commandLine.text.isEmpty()) {
        writeOut(commandLine.text.toUtf8());
        return GrowthCheck::Clean;
    }
    return GrowthCheck::run(commandLine.options, {&writeOut, &complain});
}
