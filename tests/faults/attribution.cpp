#include "faults/attribution.h"

#include "base/channels.h"

#include <algorithm>

void Attribution::reading(bool isRight, qint64 nowMs)
{
    ++count;
    if (isInSpell) {
        Spell& spell = all.last();
        ++spell.readingsSince;
        spell.rightSince = isRight ? spell.rightSince + 1 : 0;
        spell.latestMs = isRight ? spell.latestMs : nowMs;
        if (spell.readingsSince == Channels::count) {
            spell.roundMs = nowMs;
        }
        isInSpell = spell.rightSince < Channels::count;
    }
    if (!isRight) {
        ++wrong;
        begin(nowMs);
    }
    latestRound.append(nowMs);
    if (latestRound.size() > Channels::count) {
        latestRound.removeFirst();
    }
}

void Attribution::begin(qint64 nowMs)
{
    if (isInSpell) {
        return;
    }
    isInSpell = true;
    const qint64 sinceMs = latestRound.size() == Channels::count ? latestRound.first() : 0;
    all.append({sinceMs, nowMs, nowMs, 0, 0, 0});
}

void Attribution::finish(qint64 nowMs)
{
    if (isInSpell && all.last().roundMs == 0) {
        all.last().roundMs = nowMs;
    }
}

double Attribution::wrongSec() const
{
    qint64 ms = 0;
    for (const Spell& spell : all) {
        ms += spell.latestMs - spell.fromMs;
    }
    return static_cast<double>(ms) * 1e-3;
}

int Attribution::toldSpells(const QVector<qint64>& toldMs) const
{
    int told = 0;
    for (int i = 0; i < all.size(); ++i) {
        const Spell& spell = all[i];
        // What was told of the spell before is nothing said of this one.
        const qint64 since = i == 0 ? spell.sinceMs : std::max(spell.sinceMs, all[i - 1].latestMs);
        told += std::any_of(toldMs.begin(), toldMs.end(),
                    [&](qint64 ms) { return ms >= since && ms <= spell.roundMs; })
            ? 1
            : 0;
    }
    return told;
}
