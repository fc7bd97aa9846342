#include "growthcheck/app/options.h"

#include "base/number.h"
#include "growthcheck/check/words.h"

#include <QCommandLineParser>
#include <QFileInfo>
#include <QLocale>

#include <algorithm>

namespace GrowthCheck {

namespace {

const QString startName = QStringLiteral("start");
const QString startAllName = QStringLiteral("start-all");
const QString startJournalName = QStringLiteral("start-from-journal");
const QString atName = QStringLiteral("at");
const QString holdName = QStringLiteral("hold");
const QString replyName = QStringLiteral("reply");
const QString layersName = QStringLiteral("layers");
const QString runName = QStringLiteral("run");
const QString htmlName = QStringLiteral("html");
const QString languageName = QStringLiteral("language");

constexpr double longestHoldSec = 1e7;
constexpr int longestReplyMs = 3000; // then the station gives it up

struct OutputName
{
    const char* name;
    Options::Output output;
};
constexpr OutputName outputNames[] = {
    {"json", Options::Output::Json},
    {"csv", Options::Output::Csv},
    {"vcd", Options::Output::Vcd},
    {"wire", Options::Output::Wire},
};

void defineOptions(QCommandLineParser& parser)
{
    parser.setApplicationDescription(
        Words::tr("Says what the station will do with a growth program, and, compared with its\n"
                  "journal, what it did."));
    parser.addOptions({
        {startName,
            Words::tr("A channel's temperature at the start, deg C, or \"none\" for one that the "
                      "panel shows none of. May be given for several channels."),
            QStringLiteral("cell=degc")},
        {startAllName, Words::tr("The temperature of all others."), QStringLiteral("degc")},
        {startJournalName, Words::tr("Takes them from the last minute that a journal tells."),
            QStringLiteral("journal")},
        {atName, Words::tr("When Run is pressed, such as 2026-11-22T08:00: clock times are told then."),
            QStringLiteral("time")},
        {holdName, Words::tr("How long the operator waits at each hold (0)."), QStringLiteral("seconds")},
        {replyName, Words::tr("How long controllers take to reply (10)."), QStringLiteral("ms")},
        {layersName, Words::tr("Adds what grows: nm/s a cell, a line each, such as \"Ga 0.28\"."),
            QStringLiteral("rates")},
        {QStringLiteral("json"), Words::tr("Writes all of it for programs.")},
        {QStringLiteral("csv"), Words::tr("Writes the timeline as a table, an event a line.")},
        {QStringLiteral("vcd"), Words::tr("Writes shutters and set points for waveform viewers.")},
        {QStringLiteral("wire"), Words::tr("Writes the bytes that the instruments get, with their times.")},
        {htmlName, Words::tr("Writes a page with a picture to this file."), QStringLiteral("file")},
        {runName, Words::tr("compare: the run of the journal, counted from 1 (the last one that fits)."),
            QStringLiteral("n")},
        {languageName, Words::tr("en or ja (the system's)."), QStringLiteral("language")},
        {QStringList({QStringLiteral("h"), QStringLiteral("help")}), Words::tr("Shows this and ends.")},
        {QStringList({QStringLiteral("v"), QStringLiteral("version")}),
            Words::tr("Shows the version and ends.")},
    });
}

QString manual(const QCommandLineParser& parser)
{
    const QString usage = QStringLiteral("growthcheck [options] PROGRAM.dat ...\n"
                                         "growthcheck compare [options] PROGRAM.dat JOURNAL\n");
    const QString statuses
        = Words::tr("Exit status:\n"
                    "  0   nothing was found, or notes only\n"
                    "  1   something was found that is a warning or an error; compare: shutters\n"
                    "      or set points were not as planned\n"
                    "  2   a file cannot be read or written\n"
                    "  64  the command line is wrong\n");
    // Without the parser's own line of usage, which knows one form only.
    return usage + parser.helpText().section(QLatin1Char('\n'), 1) + QLatin1Char('\n') + statuses;
}

QString wrongValue(const QString& option, const QString& value, const QString& wanted)
{
    return Words::tr("--%1 %2: %3 wanted").arg(option, quoted(value), wanted);
}

QString plainName(const QString& name)
{
    return name.toLower().remove(QLatin1Char(' '));
}

int channelNamed(const QString& name)
{
    for (int channel = 0; channel < Channels::count; ++channel) {
        if (plainName(QLatin1String(Channels::list[channel].name)) == plainName(name)) {
            return channel;
        }
    }
    return -1;
}

QString readStart(const QString& value, Options& options)
{
    const int channel = channelNamed(value.section(QLatin1Char('='), 0, 0));
    const QString text = value.section(QLatin1Char('='), 1);
    const std::optional<double> degC = readNumber(text);
    const bool isNone = text == QLatin1String("none");
    if (channel < 0 || (!degC && !isNone)) {
        return wrongValue(startName, value, Words::tr("CELL=DEGC, such as Ga=850 or \"Main Ch=none\","));
    }
    Assumptions::Start& start = options.assumptions.starts.at(static_cast<size_t>(channel));
    start.kind = isNone ? Assumptions::Start::Kind::None : Assumptions::Start::Kind::Known;
    start.degC = degC.value_or(0.0);
    return {};
}

QString readStartAll(const QString& value, Options& options)
{
    const std::optional<double> degC = readNumber(value);
    if (!degC) {
        return wrongValue(startAllName, value, Words::tr("a temperature"));
    }
    options.assumptions.starts.fill({Assumptions::Start::Kind::Known, *degC});
    return {};
}

QString readAt(const QString& value, Options& options)
{
    options.assumptions.runAt = QDateTime::fromString(value, Qt::ISODate);
    return options.assumptions.runAt.isValid()
        ? QString()
        : wrongValue(atName, value, Words::tr("a time such as 2026-11-22T08:00"));
}

QString readHold(const QString& value, Options& options)
{
    const double seconds = readNumber(value).value_or(-1.0);
    options.assumptions.holdMs = qRound64(1000.0 * qBound(0.0, seconds, longestHoldSec));
    return seconds >= 0.0 && seconds <= longestHoldSec
        ? QString()
        : wrongValue(holdName, value, Words::tr("seconds, not below 0,"));
}

QString readReply(const QString& value, Options& options)
{
    bool isNumber = false;
    options.assumptions.replyMs = value.toInt(&isNumber);
    const bool isPossible
        = isNumber && options.assumptions.replyMs >= 0 && options.assumptions.replyMs <= longestReplyMs;
    return isPossible ? QString() : wrongValue(replyName, value, Words::tr("a number from 0 to 3000"));
}

QString readRun(const QString& value, Options& options)
{
    bool isNumber = false;
    options.run = value.toInt(&isNumber);
    return isNumber && options.run > 0 ? QString()
                                       : wrongValue(runName, value, Words::tr("a number from 1 on"));
}

QString readLanguage(const QString& value, Options& /*options*/)
{
    return value == QLatin1String("en") || value == QLatin1String("ja")
        ? QString()
        : wrongValue(languageName, value, Words::tr("en or ja"));
}

QString readValues(const QCommandLineParser& parser, Options& options)
{
    using Reader = QString (*)(const QString&, Options&);
    // What is told of all channels comes before what is told of one.
    const QVector<QPair<QString, Reader>> readers = {
        {startAllName, &readStartAll},
        {atName, &readAt},
        {holdName, &readHold},
        {replyName, &readReply},
        {runName, &readRun},
        {languageName, &readLanguage},
        {startName, &readStart},
    };
    for (const auto& reader : readers) {
        for (const QString& value : parser.values(reader.first)) {
            QString error = reader.second(value, options);
            if (!error.isEmpty()) {
                return error;
            }
        }
    }
    options.startJournal = parser.value(startJournalName);
    options.rates = parser.value(layersName);
    options.page = parser.value(htmlName);
    return {};
}

QString readOutput(const QCommandLineParser& parser, Options& options)
{
    int outputs = 0;
    for (const OutputName& named : outputNames) {
        if (parser.isSet(QLatin1String(named.name))) {
            options.output = named.output;
            ++outputs;
        }
    }
    outputs += options.page.isEmpty() ? 0 : 1;
    return outputs > 1 ? Words::tr("only one of --json, --csv, --vcd, --wire and --html at a time")
                       : QString();
}

QString readFiles(const QStringList& arguments, Options& options)
{
    options.isCompare = !arguments.isEmpty() && arguments.first() == QLatin1String("compare");
    options.programs = arguments.mid(options.isCompare ? 1 : 0);
    if (options.isCompare) {
        if (options.programs.size() != 2) {
            return Words::tr("compare wants a program and a journal");
        }
        options.journal = options.programs.takeLast();
        if (options.output == Options::Output::Vcd || options.output == Options::Output::Wire) {
            return Words::tr("compare has no --vcd and no --wire");
        }
    } else if (options.programs.isEmpty()) {
        return Words::tr("no program is named");
    }
    const bool isForOne = options.output == Options::Output::Vcd || options.output == Options::Output::Wire
        || !options.page.isEmpty();
    return isForOne && options.programs.size() > 1 ? Words::tr("--vcd, --wire and --html want one program")
                                                   : QString();
}

// A page must not take the place of what it tells of.
QString checkPage(const Options& options)
{
    const QFileInfo page(options.page);
    const QString suffix = page.suffix().toLower();
    if (suffix == QLatin1String("dat") || suffix == QLatin1String("log")) {
        return Words::tr("--html %1: that is a program's or a journal's name").arg(quoted(options.page));
    }
    const QStringList inputs
        = options.programs + QStringList{options.journal, options.startJournal, options.rates};
    const bool isInput
        = page.exists() && std::any_of(inputs.begin(), inputs.end(), [&page](const QString& input) {
              return !input.isEmpty() && QFileInfo(input).canonicalFilePath() == page.canonicalFilePath();
          });
    return isInput ? Words::tr("--html %1: that file is read").arg(quoted(options.page)) : QString();
}

} // namespace

CommandLine readCommandLine(const QStringList& arguments, bool isFromDesktop)
{
    QCommandLineParser parser;
    defineOptions(parser);
    CommandLine result;
    if (!parser.parse(arguments)) {
        result.error = parser.errorText();
        return result;
    }
    if (parser.isSet(QStringLiteral("help"))) {
        result.text = manual(parser);
        return result;
    }
    if (parser.isSet(QStringLiteral("version"))) {
        result.text = QStringLiteral("growthcheck %1\n").arg(QStringLiteral(NELVO_VERSION));
        return result;
    }
    Options& options = result.options;
    for (const auto read : {&readValues, &readOutput}) {
        result.error = read(parser, options);
        if (!result.error.isEmpty()) {
            return result;
        }
    }
    result.error = readFiles(parser.positionalArguments(), options);
    if (result.error.isEmpty() && !options.page.isEmpty()) {
        result.error = checkPage(options);
    }
    options.isDropped = isFromDesktop && arguments.size() == 2 && options.programs.size() == 1
        && options.programs.first().endsWith(QLatin1String(".dat"), Qt::CaseInsensitive);
    if (options.isDropped) {
        const QFileInfo dropped(options.programs.first());
        options.page
            = dropped.path() + QLatin1Char('/') + dropped.completeBaseName() + QLatin1String(".html");
    }
    return result;
}

QString chosenLanguage(const QStringList& arguments)
{
    const int at = arguments.indexOf(QLatin1String("--") + languageName);
    const QString behind = at >= 0 && at + 1 < arguments.size() ? arguments[at + 1] : QString();
    const QString prefix = QLatin1String("--") + languageName + QLatin1Char('=');
    const QStringList joined = arguments.filter(prefix);
    QString asked = joined.isEmpty() ? behind : joined.last().mid(prefix.size());
    if (!asked.isEmpty()) {
        return asked;
    }
    return QLocale::system().language() == QLocale::Japanese ? QStringLiteral("ja") : QStringLiteral("en");
}

} // namespace GrowthCheck
