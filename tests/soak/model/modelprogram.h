#pragma once

#include "soak/model/modelcells.h"
#include "soak/model/modelshutters.h"

#include <QVector>

/// The program table, its files and its player, by the rules.
class ModelProgram
{
public:
    static constexpr int rowCount = 200;

    /// A row as its entries have it.
    struct Row
    {
        Row() { setPoints.fill(QStringLiteral("0")); }

        std::array<QString, ModelCells::count> setPoints;
        ModelShutters::States shutters = {};
        QString time = QStringLiteral("0");
        QString group;
        QString times = QStringLiteral("1");
    };

    ModelProgram(ModelCells& theCells, ModelShutters& theShutters);

    /// A station starts.
    void open();

    Row& at(int number) { return rows[number]; }
    const Row& at(int number) const { return rows[number]; }
    void copy(int number);
    void cut(int number);
    void pasteUp(int number);
    void pasteDown(int number);
    void clear();

    /// The table as it is saved.
    QByteArray saved() const;
    /// A file with this text is loaded.
    void load(const QByteArray& text);

    void pressRun(qint64 nowMs);
    void pressPause();
    /// A tick of the player.
    void play(qint64 nowMs);

    bool isRunning() const { return running; }
    bool isPaused() const { return paused; }
    /// The row that plays, or played last.
    int currentRow() const { return current; }
    int startedSteps() const { return steps; }

private:
    void insert(int number);
    void endStep();
    void startStep(qint64 nowMs);

    ModelCells& cells;
    ModelShutters& shutters;
    QVector<Row> rows;
    Row held; // copied or cut
    bool running = false;
    bool paused = false;
    bool isToStart = true;
    int current = 0;
    double stepSec = 0.0;
    qint64 stepStartMs = 0;
    int blockTimes = 0;
    int blockCount = 0;
    int blockStart = 0;
    int steps = 0;
};
