#include "growthcheck/app/desktop.h"
#include "growthcheck/app/session.h"
#include "growthcheck/app/terminal.h"

#include <QCoreApplication>

int main(int argc, char* argv[])
{
    QCoreApplication application(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("growthcheck"));
    const bool isFromDesktop = GrowthCheck::isStartedByDesktop();
    bool hasSpoken = false;
    const GrowthCheck::Outlets outlets{
        [&hasSpoken](const QByteArray& utf8) {
            hasSpoken = true;
            GrowthCheck::writeOut(utf8);
        },
        [&hasSpoken](const QString& line) {
            hasSpoken = true;
            GrowthCheck::complain(line);
        },
    };
    const GrowthCheck::ExitStatus status
        = GrowthCheck::runCommandLine(QCoreApplication::arguments(), isFromDesktop, outlets);
    if (isFromDesktop && hasSpoken) {
        GrowthCheck::waitForReader();
    }
    return status;
}
