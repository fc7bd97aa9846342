#include "growthcheck/app/idleoptions.h"

#include "growthcheck/app/optionnames.h"
#include "growthcheck/check/words.h"

#include <QCommandLineParser>

#include <algorithm>

namespace GrowthCheck {

namespace {

// Of these the last one alone would count.
QString twice(const QCommandLineParser& parser)
{
    using namespace OptionNames;
    for (const QString& name : {startAll, startJournal, at, hold, reply, layers, html, run, language}) {
        if (parser.values(name).size() > 1) {
            return Words::tr("--%1 is given twice").arg(name);
        }
    }
    return {};
}

// The first of `names` that is given does nothing with `beside`.
QString idleWith(const QCommandLineParser& parser, const QStringList& names, const QString& beside)
{
    const auto given = std::find_if(
        names.begin(), names.end(), [&parser](const QString& name) { return parser.isSet(name); });
    return given == names.end() ? QString() : Words::tr("--%1 does nothing with %2").arg(*given, beside);
}

QString idleInCompare(const QCommandLineParser& parser, const Options& options)
{
    // The journal says when the run was and what the panel showed.
    const QStringList told{OptionNames::at, OptionNames::startJournal};
    if (options.page.isEmpty() && parser.isSet(OptionNames::layers)) {
        return Words::tr("--layers does nothing with compare but for --html");
    }
    return idleWith(parser, told, QStringLiteral("compare"));
}

QString idleInForm(const QCommandLineParser& parser, Options::Output output)
{
    switch (output) {
    case Options::Output::Csv:
        return idleWith(parser, {OptionNames::layers}, QStringLiteral("--csv"));
    case Options::Output::Vcd:
        return idleWith(parser, {OptionNames::at, OptionNames::layers}, QStringLiteral("--vcd"));
    case Options::Output::Wire:
        return idleWith(parser, {OptionNames::at, OptionNames::layers}, QStringLiteral("--wire"));
    case Options::Output::Text:
    case Options::Output::Json:
        break;
    }
    return {};
}

} // namespace

QString idleOption(const QCommandLineParser& parser, const Options& options)
{
    QString idle = twice(parser);
    if (idle.isEmpty() && options.isCompare) {
        return idleInCompare(parser, options);
    }
    if (idle.isEmpty() && parser.isSet(OptionNames::run)) {
        return Words::tr("--run does nothing without compare");
    }
    if (idle.isEmpty() && parser.isSet(OptionNames::startAll)) {
        idle = idleWith(parser, {OptionNames::startJournal}, QStringLiteral("--start-all"));
    }
    return idle.isEmpty() ? idleInForm(parser, options.output) : idle;
}

} // namespace GrowthCheck
