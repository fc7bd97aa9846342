#include "simulator/options.h"

#include <QCommandLineParser>

#include <cmath>

namespace Chamber {

namespace {

constexpr int longestLatencyMs = 60000;

const QString listenName = QStringLiteral("listen");
const QString portName = QStringLiteral("port");
const QString seedName = QStringLiteral("seed");
const QString timeScaleName = QStringLiteral("time-scale");
const QString latencyName = QStringLiteral("latency");
const QString faultOptionName = QStringLiteral("fault");
const QString recordName = QStringLiteral("record");
const QString replayName = QStringLiteral("replay");
const QString quietName = QStringLiteral("quiet");
const QString onceName = QStringLiteral("once");
const QString helpName = QStringLiteral("help");
const QString versionName = QStringLiteral("version");

const char* const faultHelp
    = "What befalls replies, as KIND=RATE with a rate of 0 to 1 for each reply; may be given for several "
      "kinds.\n"
      "lost: never arrives\n"
      "late: 0.2 to 5 s late\n"
      "duplicate: arrives twice, 10 to 200 ms apart\n"
      "garbled: one byte is another\n"
      "split: in two pieces\n"
      "merged: in one piece with the next reply\n"
      "er: ER instead\n"
      "wrong-length: characters missing or too many\n"
      "silent: the controller never answers again\n"
      "cut: the connection is cut\n"
      "half-open: the connection stays, nothing is taken or answered any more";

void defineOptions(QCommandLineParser& parser)
{
    parser.setApplicationDescription(QStringLiteral(
        "Plays the growth chamber: the GPIB-to-Ethernet adapter, the shutter controller behind it\n"
        "and nine temperature controllers. Logs one line an event to standard output."));
    parser.addOptions({
        {listenName, QStringLiteral("Listens on this IP address only (127.0.0.1)."),
            QStringLiteral("address")},
        {portName, QStringLiteral("Listens on this TCP port (1234); 0 takes a free one and prints it."),
            QStringLiteral("n")},
        {seedName, QStringLiteral("Determines noise and faults (1)."), QStringLiteral("n")},
        {timeScaleName, QStringLiteral("How many times faster cells warm up and cool down (1)."),
            QStringLiteral("x")},
        {latencyName,
            QStringLiteral("How long every reply takes in ms, give or take JITTER (5:2; 0 is at once)."),
            QStringLiteral("ms[:jitter]")},
        {faultOptionName, QString::fromLatin1(faultHelp), QStringLiteral("kind=rate")},
        {recordName, QStringLiteral("Keeps every byte that clients send in this file."),
            QStringLiteral("file")},
        {replayName,
            QStringLiteral("Answers as the station's NelvoWire.log FILE has it (written with "
                           "NELVO_JOURNAL=--wire), and ends\n"
                           "with the first command that differs; --time-scale makes it faster."),
            QStringLiteral("file")},
        {quietName, QStringLiteral("Logs nothing but where it listens.")},
        {onceName, QStringLiteral("Ends when the first client has left.")},
        {QStringList({QStringLiteral("h"), helpName}), QStringLiteral("Shows this and ends.")},
        {QStringList({QStringLiteral("v"), versionName}), QStringLiteral("Shows the version and ends.")},
    });
}

QString wrongValue(const QString& option, const QString& value, const QString& wanted)
{
    return QStringLiteral("--%1 '%2': %3 wanted").arg(option, value, wanted);
}

QString readListen(const QString& value, Options& options)
{
    return options.listenAddress.setAddress(value)
        ? QString()
        : wrongValue(listenName, value, QStringLiteral("an IP address"));
}

QString readPort(const QString& value, Options& options)
{
    bool isNumber = false;
    options.port = value.toUShort(&isNumber);
    return isNumber ? QString() : wrongValue(portName, value, QStringLiteral("a number from 0 to 65535"));
}

QString readSeed(const QString& value, Options& options)
{
    bool isNumber = false;
    options.seed = value.toULongLong(&isNumber);
    return isNumber ? QString() : wrongValue(seedName, value, QStringLiteral("a whole number, 0 or more"));
}

QString readTimeScale(const QString& value, Options& options)
{
    bool isNumber = false;
    options.timeScale = value.toDouble(&isNumber);
    return isNumber && std::isfinite(options.timeScale) && options.timeScale > 0.0
        ? QString()
        : wrongValue(timeScaleName, value, QStringLiteral("a number above 0"));
}

QString readLatency(const QString& value, Options& options)
{
    const QStringList parts = value.split(QLatin1Char(':'));
    bool isLatency = false;
    bool isJitter = true;
    const int latencyMs = parts[0].toInt(&isLatency);
    const int jitterMs = parts.size() > 1 ? parts[1].toInt(&isJitter) : 0;
    const auto isPossible = [](int ms) { return ms >= 0 && ms <= longestLatencyMs; };
    if (parts.size() > 2 || !isLatency || !isJitter || !isPossible(latencyMs) || !isPossible(jitterMs)) {
        return wrongValue(latencyName, value, QStringLiteral("MS or MS:JITTER, each from 0 to 60000,"));
    }
    options.latencyMs = latencyMs;
    options.jitterMs = jitterMs;
    return {};
}

QString readRecord(const QString& value, Options& options)
{
    options.recordFile = value;
    return value.isEmpty() ? wrongValue(recordName, value, QStringLiteral("a file's name")) : QString();
}

QString readReplay(const QString& value, Options& options)
{
    options.replayFile = value;
    return value.isEmpty() ? wrongValue(replayName, value, QStringLiteral("a file")) : QString();
}

QString readFaults(const QStringList& values, Options& options)
{
    std::array<bool, faultKindCount> given = {};
    for (const QString& value : values) {
        const int equals = value.indexOf(QLatin1Char('='));
        FaultKind kind = FaultKind::Lost;
        if (equals < 0 || !faultFromName(value.left(equals).toUtf8(), kind)) {
            return wrongValue(faultOptionName, value, QStringLiteral("KIND=RATE with a kind of --help"));
        }
        bool isNumber = false;
        const double rate = value.mid(equals + 1).toDouble(&isNumber);
        if (!isNumber || !(rate >= 0.0 && rate <= 1.0)) {
            return wrongValue(faultOptionName, value, QStringLiteral("a rate from 0 to 1"));
        }
        const auto index = static_cast<size_t>(kind);
        if (given[index]) {
            return QStringLiteral("--fault '%1': this kind was given before").arg(value);
        }
        given[index] = true;
        options.faultRates[index] = rate;
    }
    return {};
}

QString readValues(const QCommandLineParser& parser, Options& options)
{
    if (!parser.positionalArguments().isEmpty()) {
        return QStringLiteral("'%1' is not an option").arg(parser.positionalArguments().first());
    }
    using Reader = QString (*)(const QString&, Options&);
    const QVector<QPair<QString, Reader>> readers = {
        {listenName, &readListen},
        {portName, &readPort},
        {seedName, &readSeed},
        {timeScaleName, &readTimeScale},
        {latencyName, &readLatency},
        {recordName, &readRecord},
        {replayName, &readReplay},
    };
    for (const auto& reader : readers) {
        const QStringList values = parser.values(reader.first);
        if (values.size() > 1) {
            return QStringLiteral("--%1 is given more than once").arg(reader.first);
        }
        if (values.isEmpty()) {
            continue;
        }
        QString error = reader.second(values.first(), options);
        if (!error.isEmpty()) {
            return error;
        }
    }
    const bool hasFaults = parser.isSet(faultOptionName);
    if (hasFaults && !options.replayFile.isEmpty()) {
        return QStringLiteral("--fault with --replay: a recording has the faults that it has");
    }
    return readFaults(parser.values(faultOptionName), options);
}

} // namespace

CommandLine readCommandLine(const QStringList& arguments, const QString& version)
{
    QCommandLineParser parser;
    defineOptions(parser);
    CommandLine result;
    if (!parser.parse(arguments)) {
        result.error = parser.errorText();
        return result;
    }
    if (parser.isSet(helpName)) {
        result.text = parser.helpText();
        return result;
    }
    if (parser.isSet(versionName)) {
        result.text = QStringLiteral("chambersim %1\n").arg(version);
        return result;
    }
    result.error = readValues(parser, result.options);
    result.options.quiet = parser.isSet(quietName);
    result.options.once = parser.isSet(onceName);
    return result;
}

} // namespace Chamber
