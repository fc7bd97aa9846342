#pragma once

#include <QString>
#include <QVector>

/// Readings that stood under the wrong channel: how many, for how long, and whether the journal said so.
class Attribution
{
public:
    /// A stretch of readings with wrong ones in it, and no whole round of right ones.
    struct Spell
    {
        qint64 sinceMs; ///< a round of readings before the first; 0 when there were fewer
        qint64 fromMs;
        qint64 latestMs; ///< when the last wrong reading so far came
        qint64 roundMs; ///< when a round of readings had come since the first; 0 before that
        int readingsSince; ///< since the first wrong one
        int rightSince; ///< since the last wrong one
    };

    /// A reading came and stands under its channel, or under another one's.
    void reading(bool isRight, qint64 nowMs);
    /// Ends the watch.
    void finish(qint64 nowMs);

    int readings() const { return count; }
    int wrongReadings() const { return wrong; }
    const QVector<Spell>& spells() const { return all; }
    /// Time in spells, s.
    double wrongSec() const;
    /// How many of the spells the journal told, within a round before the first wrong reading and a round
    /// behind it; the times of what it told, in ms.
    int toldSpells(const QVector<qint64>& toldMs) const;

private:
    void begin(qint64 nowMs);

    QVector<Spell> all;
    QVector<qint64> latestRound; // when the readings of the last round came
    bool isInSpell = false;
    int count = 0;
    int wrong = 0;
};
