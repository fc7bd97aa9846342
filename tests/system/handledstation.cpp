#include "system/handledstation.h"

#include "support/scriptedadapter.h"

#include <QElapsedTimer>
#include <QtTest>

namespace {

constexpr int patienceMs = 20000;

} // namespace

HandledStation::HandledStation(const QStringList& environment, const QStringList& arguments)
{
    const QString name = QStringLiteral("nelvo-hands-%1").arg(QCoreApplication::applicationPid());
    QLocalServer::removeServer(name);
    if (!server.listen(name)) {
        qFatal("no place for the hands: %s", qPrintable(server.errorString()));
    }
    nelvo = std::make_unique<Process>(nelvoProgram(), arguments,
        QStringList{QStringLiteral("NELVO_ADAPTER=") + ownLoopbackAddress(), stationPlatform(),
            QStringLiteral("QT_QPA_GENERIC_PLUGINS=nelvohands"),
            QStringLiteral("QT_PLUGIN_PATH=" NELVO_HANDS_PLUGINS), QStringLiteral("NELVO_HANDS=") + name}
            + environment);
}

bool HandledStation::isUp()
{
    if (hands == nullptr && !server.waitForNewConnection(patienceMs)) {
        return false;
    }
    hands = server.nextPendingConnection();
    QElapsedTimer timer;
    timer.start();
    QString answer;
    while (!tryToAsk({QStringLiteral("status")}, answer)) {
        if (timer.elapsed() > patienceMs) {
            return false;
        }
    }
    return true;
}

bool HandledStation::answers()
{
    QString answer;
    return tryToAsk({QStringLiteral("status")}, answer);
}

QPoint HandledStation::where(const QString& name)
{
    const QStringList place = ask({QStringLiteral("where"), name}).split(QLatin1Char(' '));
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
            answer = QStringLiteral("no answer");
            return false;
        }
        hands->waitForReadyRead(50);
    }
    const QString line = QString::fromUtf8(hands->readLine().chopped(1));
    answer = line.section(QLatin1Char('\t'), 1);
    return line.startsWith(QLatin1String("ok\t"));
}
