#pragma once

#include "base/channels.h"
#include "simulator/randomsource.h"

#include <QByteArray>
#include <QVector>

#include <array>
#include <vector>

namespace Chamber {

/// What can go wrong with an instrument's reply.
enum class FaultKind {
    Lost, ///< never arrives
    Late, ///< arrives after 0.2 to 5 s, and so does all that is behind it
    Duplicate, ///< arrives twice, 10 to 200 ms apart
    Garbled, ///< one byte is another
    Split, ///< arrives in two pieces, 10 to 200 ms apart
    Merged, ///< waits for the next reply and arrives in one piece with it, after 1 s at the latest
    Er, ///< "ER" instead
    WrongLength, ///< up to four characters missing or too many
    Silent, ///< the controller never answers again
    Cut, ///< the connection is cut
    HalfOpen, ///< the connection stays, but nothing more is taken or answered
};
constexpr int faultKindCount = 11;

/// The name of a kind on the command line and in the log, for example "wrong-length".
QByteArray faultName(FaultKind kind);

/// The kind of that name into `kind`; false for no such name.
bool faultFromName(const QByteArray& name, FaultKind& kind);

/// How likely each kind is for each reply, 0 to 1, indexed by FaultKind.
using FaultRates = std::array<double, faultKindCount>;

/// A reply on its way.
struct Delivery
{
    struct Piece
    {
        QByteArray bytes;
        int delayMs = 0; ///< from now on
    };
    enum class Link { Stays, Cut, HalfOpen };

    Link link = Link::Stays;
    QVector<Piece> pieces; ///< line ends included; none when nothing arrives
    bool waitsForNext = false; ///< the last piece is to go out in one piece with what follows it
    QVector<FaultKind> struck; ///< for the log
};

/// Decides what happens to replies. Each kind has its own stream of the seed: which replies one kind strikes
/// does not depend on the rates of the others, unless those leave nothing to strike.
class Faults
{
public:
    Faults(const FaultRates& faultRates, quint64 seed);

    /// Decides about the reply `line` (without a line end, not empty) of the controller `unit` (1 to 9, or 0
    /// for the device before them, which never falls silent).
    Delivery decide(const QByteArray& line, int unit);

private:
    bool strikes(FaultKind kind, const std::array<bool, faultKindCount>& drawn, Delivery& delivery);
    QByteArray spoil(
        const QByteArray& line, const std::array<bool, faultKindCount>& drawn, Delivery& delivery);
    RandomSource& details(FaultKind kind) { return detailSources[static_cast<size_t>(kind)]; }

    FaultRates rates;
    std::vector<RandomSource> strikeSources; ///< whether a kind strikes
    std::vector<RandomSource> detailSources; ///< and how: which byte, how long
    std::array<bool, Channels::count + 1> silent = {}; // by unit
};

} // namespace Chamber
