#include "support/drivenchamber.h"

#include "app/adapteraddress.h"
#include "support/scriptedadapter.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QSocketNotifier>
#include <QTcpSocket>

namespace {

// Turns of the event loop without traffic after which nothing more comes: what one turn hands to the system,
// the next one takes.
constexpr int quietTurns = 2;
constexpr int patienceMs = 5000;

constexpr qint64 never = -1;

// Whether a shutter command waits for the bus is told on the debug log alone.
qint64 retryAtMs = never;
QtMessageHandler handlerBefore = nullptr;

void watchShutters(QtMsgType type, const QMessageLogContext& context, const QString& text)
{
    if (type != QtDebugMsg) {
        handlerBefore(type, context, text);
    } else if (text == QLatin1String("Shutter retrying")) {
        retryAtMs = DrivenClock::nowMs() + DrivenChamber::tickMs;
    }
}

Chamber::Options atOwnAddress(Chamber::Options options)
{
    options.listenAddress = QHostAddress(ownLoopbackAddress());
    options.port = adapterPort;
    return options;
}

// The station's own socket, if `notifier` is one of its parts.
bool isOfStation(const QObject& notifier)
{
    const QObject* engine = notifier.parent();
    const auto* socket = engine == nullptr ? nullptr : qobject_cast<const QTcpSocket*>(engine->parent());
    return socket != nullptr && socket->peerPort() == adapterPort;
}

} // namespace

// Notices when the station is about to take in what has arrived for it.
class DrivenChamber::Reads : public QObject
{
public:
    explicit Reads(bool& isUnread)
        : unread(isUnread)
    {
        QCoreApplication::instance()->installEventFilter(this);
    }

protected:
    bool eventFilter(QObject* receiver, QEvent* event) override
    {
        if (event->type() == QEvent::SockAct) {
            const auto* notifier = qobject_cast<QSocketNotifier*>(receiver);
            if (notifier != nullptr && notifier->type() == QSocketNotifier::Read && isOfStation(*notifier)) {
                unread = false;
            }
        }
        return false;
    }

private:
    bool& unread;
};

DrivenChamber::DrivenChamber(DrivenWatcher& watcher)
    : follower(watcher)
    , addressBefore(qgetenv("NELVO_ADAPTER"))
    , reads(std::make_unique<Reads>(isUnread))
{
    handlerBefore = qInstallMessageHandler(&watchShutters);
    retryAtMs = never;
    qputenv("NELVO_ADAPTER", ownLoopbackAddress().toLatin1());
}

DrivenChamber::DrivenChamber(const Chamber::Options& options, DrivenWatcher& watcher)
    : DrivenChamber(watcher)
{
    server = std::make_unique<Chamber::ChamberServer>(
        atOwnAddress(options), [this](const QByteArray& event) { chamberSaid(event); }, &DrivenClock::nowMs);
    listenTo(*server);
}

DrivenChamber::DrivenChamber(const Chamber::Recording& recording, DrivenWatcher& watcher)
    : DrivenChamber(watcher)
{
    replay = std::make_unique<Chamber::ReplayServer>(
        recording, atOwnAddress({}), [this](const QByteArray& event) { chamberSaid(event); },
        &DrivenClock::nowMs);
    listenTo(*replay);
}

template <class Server> void DrivenChamber::listenTo(Server& farEnd)
{
    QObject::connect(&farEnd, &Server::received, &farEnd, [this](const QByteArray& bytes) {
        ++traffic;
        follower.cameFromStation(bytes);
    });
    QObject::connect(&farEnd, &Server::sent, &farEnd, [this](const QByteArray& bytes) {
        ++traffic;
        isUnread = true;
        follower.goesToStation(bytes);
    });
    QObject::connect(&farEnd, &Server::clientLeft, &farEnd, [this] {
        isLinkUp = false;
        isUnread = false;
        follower.linkGone();
    });
    if (!farEnd.listen()) {
        qFatal("the chamber cannot listen: %s", qPrintable(farEnd.errorString()));
    }
}

void DrivenChamber::chamberSaid(const QByteArray& event)
{
    isLinkUp = isLinkUp || event == "connected";
    follower.chamberSaid(event);
}

DrivenChamber::~DrivenChamber()
{
    close();
    server.reset();
    replay.reset();
    qputenv("NELVO_ADAPTER", addressBefore);
    qInstallMessageHandler(handlerBefore);
}

void DrivenChamber::open()
{
    retryAtMs = never;
    build();
    programRun = &widget(QStringLiteral("ProgRun"));
    QElapsedTimer timer;
    timer.start();
    while (!isLinkUp && timer.elapsed() < patienceMs) {
        QCoreApplication::processEvents(QEventLoop::AllEvents);
    }
    settle();
}

void DrivenChamber::close()
{
    StationWindow::close();
    QElapsedTimer timer;
    timer.start();
    while (isLinkUp && timer.elapsed() < patienceMs) {
        QCoreApplication::processEvents(QEventLoop::AllEvents);
    }
}

void DrivenChamber::run(qint64 ms)
{
    hasCostliestTick = false;
    for (qint64 passed = 0; passed < ms; passed += tickMs) {
        DrivenClock::advance(tickMs);
        const Stopwatch time;
        tick();
        hasCostliestTick = ticks.note(time) || hasCostliestTick;
    }
}

void DrivenChamber::stand(qint64 ms)
{
    DrivenClock::advance(ms);
    tickServer();
}

void DrivenChamber::tickServer()
{
    if (server != nullptr) {
        server->tick();
    } else {
        replay->tick();
    }
}

void DrivenChamber::tick()
{
    tickServer();
    if (isUnread) {
        settle();
    }
    callSlot(&window(), "WatchTMP");
    follower.polled();
    if (programRun->styleSheet() == yellow) {
        callSlot(&window(), "APOneTick");
        follower.played();
    }
    if (retryAtMs != never && DrivenClock::nowMs() >= retryAtMs) {
        retryAtMs = never;
        callSlot(&window(), "ActionShutter");
        follower.retried();
    }
    settle();
}

void DrivenChamber::settle()
{
    QElapsedTimer timer;
    timer.start();
    for (int quiet = 0; quiet < quietTurns && timer.elapsed() < patienceMs;) {
        const qint64 before = traffic;
        QCoreApplication::processEvents(QEventLoop::AllEvents);
        quiet = traffic == before && !isOnTheWay() ? quiet + 1 : 0;
    }
}

bool DrivenChamber::isOnTheWay() const
{
    return isLinkUp && (isUnread || follower.isAwaitingBytes());
}
