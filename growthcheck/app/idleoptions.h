#pragma once

#include "growthcheck/app/options.h"

class QCommandLineParser;

namespace GrowthCheck {

/// The complaint about an option that was given and would do nothing with the others, whose values are in
/// `options`; empty when there is none. Whoever gives one expects something of it.
QString idleOption(const QCommandLineParser& parser, const Options& options);

} // namespace GrowthCheck
