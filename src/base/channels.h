#pragma once

#include <QtGlobal>

#include <iterator>

/// The chamber's channels, in the order of every list, message, file and widget name: seven source cells,
/// each behind a shutter, then the substrate heaters of the main and the preparation chamber. Counts, names,
/// units and limits come from here alone; what else has to follow a change stops the build and says so.
namespace Channels {

/// Channels with a temperature controller; they are numbered 0 to count - 1.
constexpr int count = 9;
/// The first so many channels have a shutter of the same number.
constexpr int shutterCount = 7;
/// The others heat a substrate.
constexpr int substrateCount = count - shutterCount;

struct Channel
{
    const char* name; ///< English; translated in the context "MBEMain"
    double riseLimit; ///< how fast its set point may rise, deg C per minute
};

constexpr Channel list[] = {
    {QT_TRANSLATE_NOOP("MBEMain", "Be"), 50.0},
    {QT_TRANSLATE_NOOP("MBEMain", "Ga"), 50.0},
    {QT_TRANSLATE_NOOP("MBEMain", "Si"), 50.0},
    {QT_TRANSLATE_NOOP("MBEMain", "As4"), 50.0},
    {QT_TRANSLATE_NOOP("MBEMain", "Al"), 50.0},
    {QT_TRANSLATE_NOOP("MBEMain", "In"), 50.0},
    {QT_TRANSLATE_NOOP("MBEMain", "As7"), 50.0},
    {QT_TRANSLATE_NOOP("MBEMain", "Main Ch"), 50.0},
    {QT_TRANSLATE_NOOP("MBEMain", "Pre Ch"), 50.0},
};
static_assert(std::size(list) == count,
    "the list of channels is not `count` long: give each its name and its rise limit");
static_assert(shutterCount <= count, "a shutter belongs to the channel of its number");

/// Whether there is a channel of that number.
constexpr bool has(int number)
{
    return number >= 0 && number < count;
}

/// The digit behind the 0 in the address of a channel's temperature controller: '1' for channel 0.
constexpr char unitDigit(int channel)
{
    return static_cast<char>('1' + channel);
}
static_assert(
    count <= 9, "a controller's address has one digit for its number: a tenth channel needs another message");

} // namespace Channels
