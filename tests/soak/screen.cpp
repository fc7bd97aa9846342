#include "soak/screen.h"

namespace {

// The first thing that differs.
class Comparison
{
public:
    void hold(const QString& what, const QString& shown, const QString& wanted)
    {
        if (difference.isEmpty() && shown != wanted) {
            difference
                = QStringLiteral("%1 shows \"%2\" where the rules want \"%3\"").arg(what, shown, wanted);
        }
    }

    QString difference;
};

QString colour(bool isOn)
{
    return isOn ? yellow : olive;
}

void holdShutters(Comparison& comparison, const StationWindow& station, const ModelShutters& shutters)
{
    for (int n = 0; n < ModelShutters::count; ++n) {
        const auto at = static_cast<size_t>(n);
        const QString commanded = cell("CS", n);
        const QString wanted = cell("NS", n);
        comparison.hold(commanded, station.style(commanded), colour(shutters.shownStates().at(at)));
        comparison.hold(wanted, station.style(wanted), colour(shutters.wantedStates().at(at)));
    }
}

void holdCells(Comparison& comparison, const StationWindow& station, const ModelCells& cells)
{
    for (int n = 0; n < ModelCells::count; ++n) {
        const ModelCells::Cell& wanted = cells.at(n);
        const auto text = [&](const char* row, const QString& should) {
            comparison.hold(cell(row, n), station.text(cell(row, n)), should);
        };
        text("CDeg", wanted.current);
        text("TDeg", wanted.target);
        text("DTime", wanted.minutes);
        text("SDeg", wanted.setPoint);
        comparison.hold(cell("TCActive", n), station.style(cell("TCActive", n)), colour(wanted.isInUse));
        comparison.hold(cell("RunT", n), station.style(cell("RunT", n)), colour(wanted.isRamping));
    }
}

} // namespace

QString panelDifference(const StationWindow& station, const StationModel& model)
{
    Comparison comparison;
    holdShutters(comparison, station, model.shutters);
    holdCells(comparison, station, model.cells);
    const QString run = QStringLiteral("ProgRun");
    comparison.hold(run, station.style(run), colour(model.program.isRunning()));
    if (model.program.isRunning()) {
        const QString pause = QStringLiteral("ProgPause");
        comparison.hold(pause, station.style(pause), colour(model.program.isPaused()));
    }
    return comparison.difference;
}

QString tableDifference(StationWindow& station, const StationModel& model)
{
    Comparison comparison;
    const ProgramTab& table = station.program();
    for (int k = 0; k < ModelProgram::rowCount; ++k) {
        const ModelProgram::Row& row = model.program.at(k);
        const QString name = QStringLiteral("row %1, ").arg(k);
        for (int n = 0; n < ModelCells::count; ++n) {
            comparison.hold(name + cell("set point ", n), table.setPoint(k, n)->text(),
                row.setPoints.at(static_cast<size_t>(n)));
        }
        for (int n = 0; n < ModelShutters::count; ++n) {
            comparison.hold(name + cell("shutter ", n), table.shutter(k, n)->styleSheet(),
                colour(row.shutters.at(static_cast<size_t>(n))));
        }
        comparison.hold(name + QStringLiteral("time"), table.time(k)->text(), row.time);
        comparison.hold(name + QStringLiteral("group"), table.group(k)->text(), row.group);
        comparison.hold(name + QStringLiteral("times"), table.times(k)->text(), row.times);
    }
    return comparison.difference;
}
