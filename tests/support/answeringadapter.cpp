#include "support/answeringadapter.h"

#include "support/steadyclock.h"

#include <QTimer>

AnsweringAdapter::AnsweringAdapter(int delayMs, const QString& address)
    : adapter(address)
    , answerAfterMs(delayMs)
{
    connect(&adapter, &ScriptedAdapter::arrived, this, &AnsweringAdapter::take);
    connect(&adapter, &ScriptedAdapter::clientLeft, this, &AnsweringAdapter::clientLeft);
}

void AnsweringAdapter::take()
{
    const qint64 ns = steadyNowNs();
    const QList<Wire::Message> messages = adapter.takeMessages();
    for (const Wire::Message& message : messages) {
        if (message.kind == Wire::Message::Other) {
            continue;
        }
        if (message.kind == Wire::Message::Shutters) {
            note(WireEvent::Shutters, ns, message.value);
            continue;
        }
        note(WireEvent::Request, ns, message.value);
        if (answerAfterMs == 0) {
            answer(message);
        } else {
            QTimer::singleShot(answerAfterMs, Qt::PreciseTimer, this, [this, message] { answer(message); });
        }
    }
}

void AnsweringAdapter::answer(const Wire::Message& message)
{
    // Another value each time, as from a real cell: the station has a text to change.
    const double degC = 500.0 + 0.37 * (answersSent++ % 100);
    note(WireEvent::Reply, steadyNowNs(), message.value);
    adapter.post((message.kind == Wire::Message::Read ? Wire::reading(degC, message.value) : "OK") + "\r\n");
}
