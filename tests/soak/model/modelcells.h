#pragma once

#include "soak/model/modellink.h"

#include <QString>

#include <array>

/// The number that an entry or a reply says; 0 where it says none.
double modelNumber(const QString& text);

/// The nine cells with their readings and ramps, by the rules.
class ModelCells
{
public:
    static constexpr int count = 9;

    struct Cell
    {
        bool isInUse = true;
        QString current = QStringLiteral("0.0"); ///< what stands in the panel
        QString target = QStringLiteral("0.0");
        QString minutes = QStringLiteral("10.0");
        QString setPoint = QStringLiteral("0.0");
        bool isRamping = false;
        qint64 nextMs = 0;
        double rate = 0.0;
        double nextSetPoint = 0.0;
    };

    explicit ModelCells(ModelLink& theLink)
        : link(theLink)
    {
    }

    /// A station starts, with the cells in use that it remembers.
    void open();
    void toggleInUse(int number);
    /// The file that remembers is gone; the next change writes it anew.
    void forgetInUse();
    void toggleControl() { isOn = !isOn; }
    void pressRun(int number, qint64 nowMs);
    /// A program's step: both entries are set and a ramp begins, whatever ran before.
    void restart(int number, const QString& target, const QString& minutes, qint64 nowMs);
    /// A tick of the polling.
    void poll(qint64 nowMs);
    /// A line came.
    void take(const QByteArray& line);

    Cell& at(int number) { return cells.at(static_cast<size_t>(number)); }
    const Cell& at(int number) const { return cells.at(static_cast<size_t>(number)); }
    bool isControlOn() const { return isOn; }
    /// Records written since the start of the window, or since the file was removed.
    int records() const { return written; }
    void forgetRecords() { written = 0; }
    int sentSetPoints() const { return setPoints; }

private:
    enum class State { Read, Await, Show, Ramp, Next };

    void startOrStop(int number, qint64 nowMs);
    void read();
    void show();
    bool rampStep(int number, qint64 nowMs);
    void stepRamps(qint64 nowMs);
    void next();
    void sendSetPoint(int number, double degC);
    void sendMessage(const QByteArray& message);

    ModelLink& link;
    std::array<Cell, count> cells;
    std::array<bool, count> remembered = {true, true, true, true, true, true, true, true, true};
    bool isOn = true;
    State state = State::Read;
    int tick = 99;
    int sentTick = -1;
    int lastRampTick = -1;
    int polled = 0;
    int ramped = 0;
    QByteArray reply;
    int written = 0;
    int setPoints = 0;
};
