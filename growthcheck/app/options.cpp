#include "growthcheck/app/options.h"

#include "base/number.h"
#include "growthcheck/app/idleoptions.h"
#include "growthcheck/app/optionnames.h"
#include "growthcheck/check/words.h"

#include <QCommandLineParser>
#include <QFileInfo>
#include <QLocale>

#include <algorithm>

namespace GrowthCheck {

namespace {

constexpr double longestHoldSec = 1e7;
constexpr int longestReplyMs = 3000; // then the station gives it up
constexpr double lowestDegC = -999.9; // a controller knows no others
constexpr double highestDegC = 9999.9;

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
        {OptionNames::start,
            Words::tr("A channel's temperature at the start, deg C, or \"none\" for one that the "
                      "panel shows none of. May be given for several channels."),
            QStringLiteral("cell=degc")},
        {OptionNames::startAll, Words::tr("The temperature of all others."), QStringLiteral("degc")},
        {OptionNames::startJournal, Words::tr("Takes them from the last minute that a journal tells."),
            QStringLiteral("journal")},
        {OptionNames::at,
            Words::tr("When Run is pressed, such as 2026-11-22T08:00: clock times are told then."),
            QStringLiteral("time")},
        {OptionNames::hold, Words::tr("How long the operator waits at each hold (0)."),
            QStringLiteral("seconds")},
        {OptionNames::reply, Words::tr("How long controllers take to reply (10)."), QStringLiteral("ms")},
        {OptionNames::layers, Words::tr("Adds what grows: nm/s a cell, a line each, such as \"Ga 0.28\"."),
            QStringLiteral("rates")},
        {QStringLiteral("json"), Words::tr("Writes all of it for programs.")},
        {QStringLiteral("csv"), Words::tr("Writes the timeline as a table, an event a line.")},
        {QStringLiteral("vcd"), Words::tr("Writes shutters and set points for waveform viewers.")},
        {QStringLiteral("wire"), Words::tr("Writes the bytes that the instruments get, with their times.")},
        {OptionNames::html, Words::tr("Writes a page with a picture to this file."), QStringLiteral("file")},
        {OptionNames::run,
            Words::tr("compare: the run of the journal, counted from 1 (the last one that fits)."),
            QStringLiteral("n")},
        {OptionNames::language, Words::tr("en or ja (the system's)."), QStringLiteral("language")},
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

std::optional<double> readDegC(const QString& text)
{
    const std::optional<double> degC = readNumber(text);
    return degC && *degC >= lowestDegC && *degC <= highestDegC ? degC : std::nullopt;
}

QString readStart(const QString& value, Options& options)
{
    const QString name = value.section(QLatin1Char('='), 0, 0);
    const QString text = value.section(QLatin1Char('='), 1);
    if (text.isEmpty()) {
        return wrongValue(
            OptionNames::start, value, Words::tr("CELL=DEGC, such as Ga=850 or \"Main Ch=none\","));
    }
    const int channel = channelNamed(name);
    if (channel < 0) {
        return Words::tr("--%1 %2: no channel is called %3; these are: %4")
            .arg(OptionNames::start, quoted(value), quoted(name), channelNames(Channels::count));
    }
    const std::optional<double> degC = readDegC(text);
    const bool isNone = text == QLatin1String("none");
    if (!degC && !isNone) {
        return wrongValue(OptionNames::start, value,
            Words::tr("a temperature from -999.9 to 9999.9, or \"none\", behind \"=\","));
    }
    Assumptions::Start& start = options.assumptions.starts.at(static_cast<size_t>(channel));
    start.kind = isNone ? Assumptions::Start::Kind::None : Assumptions::Start::Kind::Known;
    start.degC = degC.value_or(0.0);
    return {};
}

QString readStartAll(const QString& value, Options& options)
{
    const std::optional<double> degC = readDegC(value);
    if (!degC) {
        return wrongValue(OptionNames::startAll, value, Words::tr("a temperature from -999.9 to 9999.9"));
    }
    options.assumptions.starts.fill({Assumptions::Start::Kind::Known, *degC});
    return {};
}

QString readAt(const QString& value, Options& options)
{
    options.assumptions.runAt = QDateTime::fromString(value, Qt::ISODate);
    return options.assumptions.runAt.isValid()
        ? QString()
        : wrongValue(OptionNames::at, value, Words::tr("a time such as 2026-11-22T08:00"));
}

QString readHold(const QString& value, Options& options)
{
    const double seconds = readNumber(value).value_or(-1.0);
    options.assumptions.holdMs = qRound64(1000.0 * qBound(0.0, seconds, longestHoldSec));
    return seconds >= 0.0 && seconds <= longestHoldSec
        ? QString()
        : wrongValue(OptionNames::hold, value, Words::tr("seconds, not below 0,"));
}

QString readReply(const QString& value, Options& options)
{
    bool isNumber = false;
    options.assumptions.replyMs = value.toInt(&isNumber);
    const bool isPossible
        = isNumber && options.assumptions.replyMs >= 0 && options.assumptions.replyMs <= longestReplyMs;
    return isPossible ? QString()
                      : wrongValue(OptionNames::reply, value, Words::tr("a number from 0 to 3000"));
}

QString readRun(const QString& value, Options& options)
{
    bool isNumber = false;
    options.run = value.toInt(&isNumber);
    return isNumber && options.run > 0 ? QString()
                                       : wrongValue(OptionNames::run, value, Words::tr("a number from 1 on"));
}

QString readLanguage(const QString& value, Options& /*options*/)
{
    return value == QLatin1String("en") || value == QLatin1String("ja")
        ? QString()
        : wrongValue(OptionNames::language, value, Words::tr("en or ja"));
}

QString readValues(const QCommandLineParser& parser, Options& options)
{
    using Reader = QString (*)(const QString&, Options&);
    // What is told of all channels comes before what is told of one.
    const QVector<QPair<QString, Reader>> readers = {
        {OptionNames::startAll, &readStartAll},
        {OptionNames::at, &readAt},
        {OptionNames::hold, &readHold},
        {OptionNames::reply, &readReply},
        {OptionNames::run, &readRun},
        {OptionNames::language, &readLanguage},
        {OptionNames::start, &readStart},
    };
    for (const auto& reader : readers) {
        for (const QString& value : parser.values(reader.first)) {
            QString error = reader.second(value, options);
            if (!error.isEmpty()) {
                return error;
            }
        }
    }
    options.startJournal = parser.value(OptionNames::startJournal);
    options.rates = parser.value(OptionNames::layers);
    options.page = parser.value(OptionNames::html);
    for (const QString& name : {OptionNames::startJournal, OptionNames::layers, OptionNames::html}) {
        if (parser.isSet(name) && parser.value(name).isEmpty()) {
            return wrongValue(name, QString(), Words::tr("a file's name"));
        }
    }
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
    if (result.error.isEmpty()) {
        result.error = idleOption(parser, options);
    }
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
    const int at = arguments.indexOf(QLatin1String("--") + OptionNames::language);
    const QString behind = at >= 0 && at + 1 < arguments.size() ? arguments[at + 1] : QString();
    const QString prefix = QLatin1String("--") + OptionNames::language + QLatin1Char('=');
    const QStringList joined = arguments.filter(prefix);
    QString asked = joined.isEmpty() ? behind : joined.last().mid(prefix.size());
    if (!asked.isEmpty()) {
        return asked;
    }
    return QLocale::system().language() == QLocale::Japanese ? QStringLiteral("ja") : QStringLiteral("en");
}

} // namespace GrowthCheck
