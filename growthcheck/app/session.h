#pragma once

#include "growthcheck/app/options.h"

#include <QByteArray>

#include <functional>

namespace GrowthCheck {

/// What the program ends with.
enum ExitStatus {
    Clean = 0,
    Found = 1, ///< a finding of warning or more; of compare, that shutters or set points differ
    CannotRead = 2, ///< a file could not be read, or the page not written
    Usage = 64,
};

/// Where texts go: pieces of the output in UTF-8, and complaints in lines.
struct Outlets
{
    std::function<void(const QByteArray& utf8)> out;
    std::function<void(const QString& line)> complain;
};

/// Does what the command line asks for, the program's name first. `isFromDesktop` says that nobody typed it.
ExitStatus runCommandLine(const QStringList& arguments, bool isFromDesktop, const Outlets& outlets);

} // namespace GrowthCheck
