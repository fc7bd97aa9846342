#pragma once

#include <QString>

class MBEMain;
class QWidget;
class SimulatedChamber;

/// One sitting at the station's window. Every step says what it does and then looks, in the window and in
/// what the chamber saw, whether it happened; the first thing that did not is the session's failure.
class Session
{
public:
    /// `pictures` is the folder that the screenshots go to, `examples` that of the growth programs.
    Session(MBEMain& stationWindow, SimulatedChamber& simulatedChamber, const QString& pictures,
        const QString& examples);

    /// The whole sitting: shutters, a ramp, a growth program played to its end, the chart zoomed and dragged.
    bool play();

    /// Only a picture of each tab, their names ending in `language`.
    bool takePictures(const QString& language);

    QString failure() const { return reason; }

private:
    bool awaitLink();
    bool workShutters();
    bool rampCell();
    bool playProgram();
    bool workChart();

    bool openTab(int index);
    bool expect(bool happened, const QString& what);
    bool awaitEvent(const QString& event, int times, int limitMs);
    bool picture(const QString& name);
    template <class Widget> Widget& widget(const char* name) const;

    MBEMain& window;
    SimulatedChamber& chamber;
    QString pictureFolder;
    QString exampleFolder;
    QString reason;
};
