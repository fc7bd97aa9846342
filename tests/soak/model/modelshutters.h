#pragma once

#include "soak/model/modellink.h"

#include <QtGlobal>

#include <array>

/// The seven shutters, by the rules.
class ModelShutters
{
public:
    static constexpr int count = 7;
    using States = std::array<bool, count>;

    explicit ModelShutters(ModelLink& theLink)
        : link(theLink)
    {
    }

    /// A station starts: all closed, and sent.
    void open(qint64 nowMs);
    void toggleWanted(int number);
    void toggleCommanded(int number, qint64 nowMs);
    void change(qint64 nowMs);
    void closeAll(qint64 nowMs);
    /// A program's step.
    void command(const States& open, qint64 nowMs);
    /// A command that waited is tried again; false when none should be.
    bool retry(qint64 nowMs);
    /// Whether a command should have been tried again by now.
    bool isOverdue(qint64 nowMs) const { return retryAtMs != never && retryAtMs < nowMs; }

    const States& wantedStates() const { return wanted; }
    /// What the commanded-state buttons show: what was sent last.
    const States& shownStates() const { return shown; }
    int sentCommands() const { return commands; }

private:
    static constexpr qint64 never = -1;

    void send(qint64 nowMs);

    ModelLink& link;
    States wanted = {};
    States commanded = {};
    States shown = {};
    qint64 retryAtMs = never;
    int commands = 0;
};
