// The link's bytes as the tests have them: whole messages out of a stream, and readings that tell whose they
// are.

#include "support/wire.h"

#include "base/channels.h"
#include "support/testmain.h"

#include <QSet>

using namespace TestText;

class WireTest : public QObject
{
    Q_OBJECT

private slots:
    void messagesComeOutWholeHoweverTheBytesComeIn()
    {
        const QList<QByteArray> sent{"++addr 3\n", Wire::shutters(0x09), "\n", Wire::readRequest(8),
            Wire::setPoint(4, "0120.0"), Wire::shutters('\n'), Wire::readRequest(0)};
        for (int portion = 1; portion < 20; ++portion) {
            QByteArray unread;
            QList<Wire::Message> messages;
            const QByteArray stream = sent.join();
            for (int at = 0; at < stream.size(); at += portion) {
                unread += stream.mid(at, portion);
                messages += Wire::takeMessages(unread);
            }
            QCOMPARE(unread, QByteArray());
            QCOMPARE(messages.size(), sent.size());
            for (int i = 0; i < sent.size(); ++i) {
                QCOMPARE(messages[i].bytes, sent[i]);
            }
        }
    }

    void everyMessageIsToldByItsKind()
    {
        for (int channel = 0; channel < Channels::count; ++channel) {
            for (const auto& sent : {qMakePair(Wire::Message::Read, Wire::readRequest(channel)),
                     qMakePair(Wire::Message::SetPoint, Wire::setPoint(channel, "-050.0"))}) {
                QByteArray bytes = sent.second;
                const QList<Wire::Message> messages = Wire::takeMessages(bytes);
                QCOMPARE(messages.size(), 1);
                QCOMPARE(messages.first().kind, sent.first);
                QCOMPARE(messages.first().value, channel);
            }
        }
        QByteArray opening = Wire::opening;
        const QList<Wire::Message> messages = Wire::takeMessages(opening);
        QCOMPARE(messages.last().kind, Wire::Message::Shutters);
        for (const Wire::Message& message : messages.mid(0, messages.size() - 1)) {
            QCOMPARE(message.kind, Wire::Message::Other);
        }
    }

    // A mask and a check character may be any byte, a line feed too.
    void noByteOfAMaskOrACheckEndsAMessage()
    {
        for (int mask = 0; mask < 256; ++mask) {
            QByteArray bytes = Wire::shutters(mask) + Wire::readRequest(3);
            const QList<Wire::Message> messages = Wire::takeMessages(bytes);
            QCOMPARE(messages.size(), 2);
            QCOMPARE(messages.first().value, mask);
        }
        bool hadLineFeed = false;
        for (int letter = 0x20; letter < 0x7F; ++letter) {
            QByteArray bytes = Wire::setPoint(0, QByteArray(1, static_cast<char>(letter)));
            hadLineFeed |= bytes.endsWith("\n\n");
            QCOMPARE(Wire::takeMessages(bytes).size(), 1);
            QCOMPARE(bytes, QByteArray());
        }
        QVERIFY(hadLineFeed);
    }

    void aReadingTellsWhoseItIs()
    {
        QSet<QByteArray> values;
        for (int channel = 0; channel < Channels::count; ++channel) {
            const QByteArray line = Wire::ownReading(channel);
            QCOMPARE(line.size(), 11);
            QVERIFY(line.startsWith("0" + QByteArray::number(channel + 1) + "M"));
            QCOMPARE(line.mid(3, 7).toDouble(), Wire::ownDegC(channel));
            values.insert(line.mid(3, 7));
        }
        QCOMPARE(values.size(), Channels::count);
    }
};

NELVO_TEST_MAIN(WireTest)
#include "wire.moc"
