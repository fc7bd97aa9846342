#pragma once

#include "soak/model/stationmodel.h"

#include "simulator/randomsource.h"

#include <QStringList>

/// An operator who does what comes to mind, by the numbers of a seed: real clicks, keys and drags on the
/// window, each told to the model as well.
class RandomOperator
{
public:
    RandomOperator(quint64 seed, DrivenChamber& theStation, StationModel& theModel);

    /// Does one thing.
    void act();
    /// How long until the next one, up to `longestMs`.
    qint64 pauseMs(int longestMs);
    /// A number in [0, number), the operator's next.
    int below(int number) { return random.below(number); }

    int actions() const { return count; }
    /// What was done last, newest at the end.
    const QStringList& latest() const { return done; }

private:
    struct Action
    {
        int weight;
        void (RandomOperator::*perform)();
    };
    static const QVector<Action>& repertoire();

    // Shutters and cells (randomoperator.cpp)
    void toggleWanted();
    void toggleCommanded();
    void changeShutters();
    void closeAll();
    void toggleInUse();
    void typeTarget();
    void typeMinutes();
    void startRamp();
    void pressRun();
    void toggleControl();
    // The program (programhands.cpp)
    void runProgram();
    void pauseProgram();
    void checkProgram();
    void clearTable();
    void editSetPoint();
    void editShutter();
    void editTime();
    void editGroup();
    void editTimes();
    void useRowMenu();
    void loadProgram();
    void loadRubbish();
    void saveProgram();
    // The window and its files (windowhands.cpp)
    void dragChart();
    void wheelChart();
    void resetChart();
    void pickLine();
    void switchTab();
    void resizeWindow();
    void removeFiles();

    qint64 nowMs() const { return DrivenClock::nowMs(); }
    int anyCell() { return below(ModelCells::count); }
    int anyShutter() { return below(ModelShutters::count); }
    int anyRow();
    template <class Choice> const Choice& oneOf(const QVector<Choice>& choices)
    {
        return choices[below(choices.size())];
    }
    QByteArray programLine(int number);
    void tell(const QString& what);

    Chamber::RandomSource random;
    DrivenChamber& station;
    StationModel& model;
    QStringList done;
    int count = 0;
};
