#pragma once

#include "growthcheck/rehearsal/assumptions.h"

#include <QString>
#include <QStringList>

#include <array>

namespace GrowthCheck {

/// What growthcheck was asked to do.
struct Options
{
    enum class Output { Text, Json, Csv, Vcd, Wire };

    bool isCompare = false;
    QStringList programs; ///< files
    QString journal; ///< to compare with
    int run = 0; ///< which run of the journal, counted from 1; 0 is the last one that fits
    Assumptions assumptions; ///< less what the journal of the start says
    QString startJournal; ///< empty for none
    QString rates; ///< empty for none
    Output output = Output::Text;
    QString page; ///< where the page goes; empty for none
    bool isDropped = false; ///< the program file came from the desktop: the page is shown there
};

/// The outcome of reading the command line. Just one of the three applies: there is an error, or there is a
/// text to print and nothing to do, or there are options.
struct CommandLine
{
    QString error; ///< one line, without the program's name
    QString text; ///< the answer to --help or --version
    Options options;
};

/// Reads `arguments`, the program's name first. `isFromDesktop` says that nobody typed them.
CommandLine readCommandLine(const QStringList& arguments, bool isFromDesktop);

/// The language that the arguments ask for, "en" or "ja"; that of the system when they do not.
QString chosenLanguage(const QStringList& arguments);

} // namespace GrowthCheck
