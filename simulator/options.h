#pragma once

#include "simulator/faults.h"

#include <QHostAddress>
#include <QString>
#include <QStringList>

namespace Chamber {

/// What the program was asked to do.
struct Options
{
    QHostAddress listenAddress = QHostAddress(QHostAddress::LocalHost);
    quint16 port = 1234; ///< 0 takes a free one
    quint64 seed = 1; ///< of noise and faults
    double spreadDegC
        = 0.0; ///< how much warmer each cell rests than the one before it; for tests, which tell cells by it
    double timeScale = 1.0; ///< seconds of the thermal model in one real second; more than 0
    int latencyMs = 5; ///< how long a reply takes, give or take jitterMs, but never less than 0
    int jitterMs = 2;
    FaultRates faultRates = {};
    QString recordFile; ///< keeps the bytes that clients send; empty for none
    QString replayFile; ///< a journal whose bytes are played again; empty to play the chamber
    bool quiet = false; ///< log nothing but where it listens
    bool once = false; ///< end when the first client has left
};

/// The outcome of reading the command line. Just one of the three applies: there is an error, or there is a
/// text to print and nothing to do, or there are options.
struct CommandLine
{
    QString error; ///< one line, without the program's name
    QString text; ///< the answer to --help or --version
    Options options;
};

/// Reads `arguments`, the program's name first. `version` is what --version tells.
CommandLine readCommandLine(const QStringList& arguments, const QString& version);

} // namespace Chamber
