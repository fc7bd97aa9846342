// The demonstration: the station's real window, on a display of its own, at a simulated chamber, worked by
// real clicks and keys. Exit status 0 when everything it looked for happened, 1 and a line that says what did
// not.

#include "app/language.h"
#include "app/mbemain.h"
#include "session.h"
#include "simulatedchamber.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QTranslator>

#include <cstdio>
#include <memory>

namespace {

// Not the address of ./run, so that the demonstration can play beside it.
constexpr auto demoAddress = "127.0.0.2";

int failed(const QString& what)
{
    std::fprintf(stderr, "FAILED: %s\n", qPrintable(what));
    return 1;
}

} // namespace

int main(int argc, char* argv[])
{
    QApplication::setStyle(QStringLiteral("Fusion"));
    QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);

    QCommandLineParser parser;
    parser.addHelpOption();
    parser.addPositionalArgument(QStringLiteral("simulator"), QStringLiteral("the program chambersim"));
    parser.addPositionalArgument(QStringLiteral("pictures"), QStringLiteral("folder for the screenshots"));
    parser.addPositionalArgument(QStringLiteral("examples"), QStringLiteral("folder of the growth programs"));
    parser.process(application);
    const QStringList folders = parser.positionalArguments();
    if (folders.size() != 3) {
        parser.showHelp(2);
    }

    qputenv("NELVO_ADAPTER", demoAddress);
    SimulatedChamber chamber;
    if (!chamber.start(folders[0], QLatin1String(demoAddress))) {
        return failed(QStringLiteral("the simulated chamber did not start: ") + chamber.error());
    }

    QTranslator translator;
    if (!speak(japanese(), translator)) {
        return failed(QStringLiteral("the Japanese catalogue is missing"));
    }
    {
        const auto window = std::make_unique<MBEMain>();
        window->show();
        Session session(*window, chamber, folders[1], folders[2]);
        if (!session.play() || !session.takePictures(QStringLiteral("ja"))) {
            return failed(session.failure());
        }
    }
    QCoreApplication::removeTranslator(&translator);
    const auto window = std::make_unique<MBEMain>();
    window->show();
    Session session(*window, chamber, folders[1], folders[2]);
    if (!session.takePictures(QStringLiteral("en"))) {
        return failed(session.failure());
    }
    std::printf("== the demonstration is over; everything it looked for happened\n");
    return 0;
}
