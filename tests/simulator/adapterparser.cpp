// Lines out of the stream of bytes, with ESC before what is plain data.

#include "simulator/adapterparser.h"

#include "support/testmain.h"
#include "support/wire.h"

#include <QElapsedTimer>

using Chamber::AdapterLine;
using Chamber::AdapterParser;

namespace {

using Lines = QVector<QPair<AdapterLine::Kind, QByteArray>>;

const auto command = AdapterLine::Kind::Command;
const auto message = AdapterLine::Kind::Message;
const auto overlong = AdapterLine::Kind::Overlong;

Lines plain(const QVector<AdapterLine>& lines)
{
    Lines result;
    for (const AdapterLine& line : lines) {
        result.append({line.kind, line.bytes});
    }
    return result;
}

Lines parse(const QByteArray& stream)
{
    AdapterParser parser;
    return plain(parser.feed(stream));
}

// What a station with all channels in use sends at first, then a set point and three awkward masks.
QByteArray longStream()
{
    return Wire::opening + Wire::toTemperatures + Wire::readRequest(0) + Wire::setPoint(4, "0120.0")
        + "++addr 3\r\n" + Wire::shutters('\n') + Wire::shutters('\x1B') + Wire::shutters('+')
        + Wire::shutters('\r');
}

} // namespace

class AdapterParserTest : public QObject
{
    Q_OBJECT

private slots:
    void tellsCommandsFromMessages()
    {
        QCOMPARE(parse("++addr 3\nhello\n+one\n+\n++\n"),
            Lines({{command, "++addr 3"}, {message, "hello"}, {message, "+one"}, {message, "+"},
                {command, "++"}}));
    }

    void everyShutterMaskArrivesAsItself()
    {
        for (int mask = 0; mask < 256; ++mask) {
            QCOMPARE(parse(Wire::shutters(mask)), Lines({{message, QByteArray(1, static_cast<char>(mask))}}));
        }
    }

    void everyPairOfMasksInARowArrivesAsItself()
    {
        for (int first = 0; first < 128; ++first) {
            for (int second = 0; second < 128; ++second) {
                const Lines lines = parse(Wire::shutters(first) + Wire::shutters(second));
                QCOMPARE(lines.size(), 2);
                QCOMPARE(lines[0].second, QByteArray(1, static_cast<char>(first)));
                QCOMPARE(lines[1].second, QByteArray(1, static_cast<char>(second)));
            }
        }
    }

    void anEscapedPlusNeverBeginsACommand()
    {
        QCOMPARE(parse("\x1B++addr 3\n"), Lines({{message, "++addr 3"}}));
        QCOMPARE(parse("+\x1B+addr 3\n"), Lines({{message, "++addr 3"}}));
        QCOMPARE(parse("\x1B+\x1B+\n"), Lines({{message, "++"}}));
        QCOMPARE(parse("\x1B+\n++eoi\n"), Lines({{message, "+"}, {command, "++eoi"}}));
    }

    void aPlusFurtherOnIsPlainData() { QCOMPARE(parse("1++\n"), Lines({{message, "1++"}})); }

    void emptyLinesVanish()
    {
        QCOMPARE(parse("\n\n\r\n"), Lines());
        QCOMPARE(parse("\n\na\n"), Lines({{message, "a"}}));
    }

    void carriageReturnsAreDroppedUnlessEscaped()
    {
        QCOMPARE(parse("a\r\n"), Lines({{message, "a"}}));
        QCOMPARE(parse("a\x1B\r\r\n"), Lines({{message, "a\r"}}));
    }

    void anEscapedLineFeedDoesNotEndTheLine() { QCOMPARE(parse("a\x1B\nb\n"), Lines({{message, "a\nb"}})); }

    void nulAndHighBytesPass()
    {
        QCOMPARE(parse(QByteArray("\0\xFF\n", 3)), Lines({{message, QByteArray("\0\xFF", 2)}}));
    }

    void anUnfinishedLineWaits()
    {
        AdapterParser parser;
        QCOMPARE(plain(parser.feed("++ad")), Lines());
        QCOMPARE(plain(parser.feed("dr 3\x1B")), Lines());
        QCOMPARE(plain(parser.feed("\n")), Lines());
        QCOMPARE(plain(parser.feed("\n")), Lines({{command, "++addr 3\n"}}));
    }

    void aResetForgetsTheUnfinishedLine()
    {
        AdapterParser parser;
        parser.feed("++addr\x1B");
        parser.reset();
        QCOMPARE(plain(parser.feed("x\n")), Lines({{message, "x"}}));
    }

    void everySplitPointGivesTheSameLines()
    {
        const QByteArray stream = longStream();
        const Lines whole = parse(stream);
        QCOMPARE(whole.size(), 16);
        for (int first = 0; first <= stream.size(); ++first) {
            for (int second = first; second <= stream.size(); ++second) {
                AdapterParser parser;
                Lines lines = plain(parser.feed(stream.left(first)));
                lines += plain(parser.feed(stream.mid(first, second - first)));
                lines += plain(parser.feed(stream.mid(second)));
                QCOMPARE(lines, whole);
            }
        }
    }

    void byteByByteGivesTheSameLines()
    {
        AdapterParser parser;
        Lines lines;
        const QByteArray stream = longStream();
        for (const char byte : stream) {
            lines += plain(parser.feed(QByteArray(1, byte)));
        }
        QCOMPARE(lines, parse(stream));
    }

    void aLineOfOneMebibytePasses()
    {
        const QByteArray line(AdapterParser::longestLine, 'x');
        QCOMPARE(parse(line + '\n'), Lines({{message, line}}));
    }

    void anOverlongLineIsReportedOnceAndSkippedToItsEnd()
    {
        AdapterParser parser;
        QCOMPARE(plain(parser.feed(QByteArray(AdapterParser::longestLine, 'x'))), Lines());
        QCOMPARE(plain(parser.feed("x")), Lines({{overlong, ""}}));
        QCOMPARE(plain(parser.feed(QByteArray(3 * AdapterParser::longestLine, 'x'))), Lines());
        QCOMPARE(plain(parser.feed("++addr 3\x1B\n++addr 3\nb\n")), Lines({{message, "b"}}));
    }

    void theCostOfALongLineIsLinear()
    {
        // Bytes one by one: searching the line from its start again each time would take minutes.
        AdapterParser parser;
        QElapsedTimer timer;
        timer.start();
        for (int i = 0; i < AdapterParser::longestLine; ++i) {
            parser.feed(QByteArrayLiteral("x"));
        }
        QCOMPARE(parser.feed("\n").size(), 1);
        QVERIFY2(timer.elapsed() < 5000, qPrintable(QString::number(timer.elapsed())));
    }
};

NELVO_TEST_MAIN(AdapterParserTest)
#include "adapterparser.moc"
