#include "app/commandline.h"

#include <QCoreApplication>

namespace {

constexpr int usualSeconds = 60;
constexpr int mostSeconds = 3600;

class CommandLineTexts
{
    Q_DECLARE_TR_FUNCTIONS(CommandLine)
};

const QString checkPc = QStringLiteral("--check-pc");
const QString checkPcFor = QStringLiteral("--check-pc=");

} // namespace

Task taskOf(const QStringList& arguments)
{
    for (const QString& argument : arguments.mid(1)) {
        if (argument == QLatin1String("--help")) {
            return Task::Help;
        }
        if (argument == QLatin1String("--version")) {
            return Task::Version;
        }
        if (argument == checkPc || argument.startsWith(checkPcFor)) {
            return Task::CheckPc;
        }
    }
    return Task::Station;
}

int checkedSeconds(const QStringList& arguments)
{
    for (const QString& argument : arguments.mid(1)) {
        if (argument.startsWith(checkPcFor)) {
            const int seconds = argument.mid(checkPcFor.size()).toInt();
            return seconds >= 1 && seconds <= mostSeconds ? seconds : usualSeconds;
        }
    }
    return usualSeconds;
}

QString versionText()
{
    return QStringLiteral("Nelvo " NELVO_VERSION "\n");
}

QString helpText()
{
    return CommandLineTexts::tr(
        "Nelvo, the operator's control station of an MBE growth chamber\n"
        "\n"
        "Nelvo [OPTION]...\n"
        "  -j                    in Japanese, as it is unless told otherwise\n"
        "  -e                    in English; so is the program Nelvoe\n"
        "  --check-pc[=SECONDS]  tells whether this PC keeps time and stays awake, after 60 s or SECONDS;\n"
        "                        exit status 0 when it does, 1 when it does not\n"
        "  --help                shows this and ends\n"
        "  --version             shows the version and ends\n"
        "\n"
        "The adapter's host is the one that the environment variable NELVO_ADAPTER names, else the one\n"
        "in the line \"adapter=HOST\" of the file nelvo.ini beside the program, else the one compiled in.\n");
}
