// The adapter that answers by itself: every request once, in time, and all of it noted.

#include "support/answeringadapter.h"

#include "app/adapteraddress.h"
#include "gpib/gpib.h"
#include "support/testmain.h"

class AnsweringAdapterTest : public QObject
{
    Q_OBJECT

    void ask(GPIB& gpib, const QByteArray& bytes) { gpib.sndRaw(bytes.constData(), bytes.size()); }

private slots:
    void readsAndSetPointsAreAnsweredAndShutterCommandsNoted()
    {
        const AnsweringAdapter adapter(0);
        GPIB gpib;
        QSignalSpy lines(&gpib, &GPIB::dataReady);
        gpib.connectAdapter(ownLoopbackAddress(), adapterPort);
        ask(gpib, Wire::readRequest(8) + Wire::shutters('\n') + Wire::setPoint(4, "0120.0"));
        QTRY_COMPARE(lines.count(), 2);
        QVERIFY(lines.at(0).at(1).toByteArray().startsWith("09M0500.00"));
        QCOMPARE(lines.at(1).at(1).toByteArray(), QByteArray("OK"));
        QList<int> kinds;
        QList<int> values;
        for (const WireEvent& event : adapter.events()) {
            kinds.append(event.kind);
            values.append(event.value);
        }
        QCOMPARE(kinds,
            (QList<int>{WireEvent::Request, WireEvent::Reply, WireEvent::Shutters, WireEvent::Request,
                WireEvent::Reply}));
        QCOMPARE(values, (QList<int>{8, 8, '\n', 4, 4}));
    }

    void answersTakeTheirDelay()
    {
        constexpr int delayMs = 30;
        const AnsweringAdapter adapter(delayMs);
        GPIB gpib;
        gpib.connectAdapter(ownLoopbackAddress(), adapterPort);
        ask(gpib, Wire::readRequest(0));
        QTRY_COMPARE(static_cast<int>(adapter.events().size()), 2);
        QVERIFY(adapter.events()[1].ns - adapter.events()[0].ns >= (delayMs - 1) * 1000000LL);
    }

    void itTellsThatItsClientLeft()
    {
        const AnsweringAdapter adapter(0);
        QSignalSpy left(&adapter, &AnsweringAdapter::clientLeft);
        {
            GPIB gpib;
            gpib.connectAdapter(ownLoopbackAddress(), adapterPort);
            QTRY_VERIFY(adapter.hasClient());
        }
        QTRY_COMPARE(left.count(), 1);
    }
};

NELVO_TEST_MAIN(AnsweringAdapterTest)
#include "answeringadapter.moc"
