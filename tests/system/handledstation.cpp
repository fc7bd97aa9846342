#include "system/handledstation.h"

#include "support/scriptedadapter.h"
#include "support/testtext.h"

#include <QElapsedTimer>
#include <QtTest>

using namespace TestText;

namespace {

constexpr int patienceMs = 20000;

} // namespace

Chamber::Chamber(const QStringList& options)
    : Process(chambersimProgram(), QStringList{"--listen"_s, ownLoopbackAddress()} + options)
{
    if (!waitForText("listening "_s)) {
        qFatal("the simulator does not listen");
    }
}

HandledStation::HandledStation(const QStringList& environment, const QStringList& arguments)
{
    const QString name = "nelvo-hands-%1"_s.arg(QCoreApplication::applicationPid());
    QLocalServer::removeServer(name);
    if (!server.listen(name)) {
        qFatal("no place for the hands: %s", qPrintable(server.errorString()));
    }
    nelvo = std::make_unique<Process>(nelvoProgram(), arguments,
        QStringList{"NELVO_ADAPTER="_s + ownLoopbackAddress(), stationPlatform(),
            "QT_QPA_GENERIC_PLUGINS=nelvohands"_s, QStringLiteral("QT_PLUGIN_PATH=" NELVO_HANDS_PLUGINS),
            "NELVO_HANDS="_s + name}
            + environment);
}

bool HandledStation::isUp()
{
    return does({"status"_s});
}

bool HandledStation::dismissesBox()
{
    return does({"dismiss"_s});
}

// Asks until it can be done.
bool HandledStation::does(const QStringList& words)
{
    if (hands == nullptr && !server.waitForNewConnection(patienceMs)) {
        return false;
    }
    hands = server.nextPendingConnection();
    QElapsedTimer timer;
    timer.start();
    QString answer;
    while (!tryToAsk(words, answer)) {
        if (timer.elapsed() > patienceMs) {
            return false;
        }
    }
    return true;
}

bool HandledStation::answers()
{
    QString answer;
    return tryToAsk({"status"_s}, answer);
}

QPoint HandledStation::where(const QString& name)
{
    const QStringList place = ask({"where"_s, name}).split(QLatin1Char(' '));
    return {place.value(0).toInt(), place.value(1).toInt()};
}

QString HandledStation::ask(const QStringList& words)
{
    QString answer;
    if (!tryToAsk(words, answer)) {
        qFatal(
            "the station did not do '%s': %s", qPrintable(words.join(QLatin1Char(' '))), qPrintable(answer));
    }
    return answer;
}

bool HandledStation::tryToAsk(const QStringList& words, QString& answer)
{
    hands->write(words.join(QLatin1Char('\t')).toUtf8() + '\n');
    QElapsedTimer timer;
    timer.start();
    while (!hands->canReadLine()) {
        if (timer.elapsed() > patienceMs || hands->state() != QLocalSocket::ConnectedState) {
            answer = "no answer"_s;
            return false;
        }
        hands->waitForReadyRead(50);
    }
    const QString line = QString::fromUtf8(hands->readLine().chopped(1));
    answer = line.section(QLatin1Char('\t'), 1);
    return line.startsWith("ok\t"_s);
}
