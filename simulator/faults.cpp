#include "simulator/faults.h"

#include "simulator/controllerprotocol.h"

namespace Chamber {

namespace {

constexpr const char* names[faultKindCount] = {"lost", "late", "duplicate", "garbled", "split", "merged",
    "er", "wrong-length", "silent", "cut", "half-open"};

constexpr int leastLateMs = 200;
constexpr int mostLateMs = 5000;
constexpr int leastGapMs = 10;
constexpr int mostGapMs = 200;
constexpr int mostLengthError = 4;

int between(RandomSource& source, int least, int most)
{
    return least + source.below(most - least + 1);
}

/// Never a line feed: that would be two lines, not a garbled one.
QByteArray garbled(QByteArray line, RandomSource& source)
{
    const int position = source.below(line.size());
    const char before = line[position];
    char after = before;
    while (after == before || after == '\n') {
        after = static_cast<char>(source.below(256));
    }
    line[position] = after;
    return line;
}

QByteArray withWrongLength(const QByteArray& line, RandomSource& source)
{
    const int count = between(source, 1, mostLengthError);
    const bool shorter = source.below(2) == 0 && line.size() > mostLengthError;
    return shorter ? line.left(line.size() - count) : line + QByteArray(count, '0');
}

} // namespace

QByteArray faultName(FaultKind kind)
{
    return names[static_cast<int>(kind)];
}

bool faultFromName(const QByteArray& name, FaultKind& kind)
{
    for (int i = 0; i < faultKindCount; ++i) {
        if (name == names[i]) {
            kind = static_cast<FaultKind>(i);
            return true;
        }
    }
    return false;
}

Faults::Faults(const FaultRates& faultRates, quint64 seed)
    : rates(faultRates)
{
    for (quint64 stream = 0; stream < faultKindCount; ++stream) {
        strikeSources.emplace_back(seed, stream);
        detailSources.emplace_back(seed, faultKindCount + stream);
    }
}

Delivery Faults::decide(const QByteArray& line, int unit)
{
    std::array<bool, faultKindCount> drawn = {};
    for (size_t i = 0; i < drawn.size(); ++i) {
        drawn[i] = strikeSources[i].fraction() < rates[i];
    }

    Delivery delivery;
    if (silent.at(static_cast<size_t>(unit))) {
        return delivery;
    }
    if (strikes(FaultKind::Cut, drawn, delivery)) {
        delivery.link = Delivery::Link::Cut;
        return delivery;
    }
    if (strikes(FaultKind::HalfOpen, drawn, delivery)) {
        delivery.link = Delivery::Link::HalfOpen;
        return delivery;
    }
    if (unit > 0 && strikes(FaultKind::Silent, drawn, delivery)) {
        silent.at(static_cast<size_t>(unit)) = true;
        return delivery;
    }
    if (strikes(FaultKind::Lost, drawn, delivery)) {
        return delivery;
    }

    const QByteArray bytes = spoil(line, drawn, delivery) + "\r\n";
    int delayMs = strikes(FaultKind::Late, drawn, delivery)
        ? between(details(FaultKind::Late), leastLateMs, mostLateMs)
        : 0;
    if (strikes(FaultKind::Duplicate, drawn, delivery)) {
        delivery.pieces.append({bytes, delayMs});
        delayMs += between(details(FaultKind::Duplicate), leastGapMs, mostGapMs);
    }
    if (strikes(FaultKind::Split, drawn, delivery)) {
        RandomSource& split = details(FaultKind::Split);
        const int length = between(split, 1, bytes.size() - 1);
        const int gapMs = between(split, leastGapMs, mostGapMs);
        delivery.pieces.append({bytes.left(length), delayMs});
        delivery.pieces.append({bytes.mid(length), delayMs + gapMs});
    } else {
        delivery.pieces.append({bytes, delayMs});
    }
    delivery.waitsForNext = strikes(FaultKind::Merged, drawn, delivery);
    return delivery;
}

bool Faults::strikes(FaultKind kind, const std::array<bool, faultKindCount>& drawn, Delivery& delivery)
{
    if (!drawn[static_cast<size_t>(kind)]) {
        return false;
    }
    delivery.struck.append(kind);
    return true;
}

QByteArray Faults::spoil(
    const QByteArray& line, const std::array<bool, faultKindCount>& drawn, Delivery& delivery)
{
    // One of them at the most: they would hide each other.
    if (strikes(FaultKind::Er, drawn, delivery)) {
        return ControllerProtocol::error;
    }
    if (strikes(FaultKind::WrongLength, drawn, delivery)) {
        return withWrongLength(line, details(FaultKind::WrongLength));
    }
    if (strikes(FaultKind::Garbled, drawn, delivery)) {
        return garbled(line, details(FaultKind::Garbled));
    }
    return line;
}

} // namespace Chamber
