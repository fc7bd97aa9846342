// The end of the session is asked for while the station is idle, and while a program plays: it goes on until
// it is over, and where Windows can show why, it says no as long as the program plays.

#include "support/files.h"
#include "support/testmain.h"
#include "system/handledstation.h"

#include <QFile>

#ifdef Q_OS_WIN
#include <windows.h>
#endif

using namespace TestText;

namespace {

#ifdef Q_OS_WIN

struct Asked
{
    DWORD process;
    bool isAnswered;
    bool mayEnd;
};

// Asks each of the process's windows as Windows does; one that says no is enough.
BOOL CALLBACK askWindow(HWND window, LPARAM parameter)
{
    auto& asked = *reinterpret_cast<Asked*>(parameter);
    DWORD owner = 0;
    GetWindowThreadProcessId(window, &owner);
    DWORD_PTR answer = 0;
    if (owner == asked.process
        && SendMessageTimeoutW(window, WM_QUERYENDSESSION, 0, 0, SMTO_NORMAL, 20000, &answer) != 0) {
        asked.isAnswered = true;
        asked.mayEnd = asked.mayEnd && answer != 0;
    }
    return TRUE;
}

#endif

// Whether the station lets the session end.
bool maySessionEnd(Process& station)
{
#ifdef Q_OS_WIN
    Asked asked = {static_cast<DWORD>(station.id()), false, true};
    EnumWindows(&askWindow, reinterpret_cast<LPARAM>(&asked));
    return asked.isAnswered && asked.mayEnd;
#else
    Q_UNUSED(station)
    return false;
#endif
}

bool journalHas(const QByteArray& text)
{
    return fileText(journalFile).contains(text);
}

} // namespace

class SessionEndTest : public QObject
{
    Q_OBJECT

    std::unique_ptr<HandledStation> station;

private slots:
    void init()
    {
#ifndef Q_OS_WIN
        QSKIP("asks as Windows does");
#endif
        station = std::make_unique<HandledStation>();
        QVERIFY(station->isUp());
    }

    void cleanup()
    {
        station.reset();
        for (const QString& name : {recordFile, stateFile, journalFile}) {
            QFile::remove(name);
        }
    }

    void anIdleStationLetsItEndAndStaysUntilItDoes()
    {
        QVERIFY(maySessionEnd(station->process()));
        QVERIFY(journalHas("\tsession-end\theld-up=no"));
        QVERIFY(station->answers());
    }

    void aPlayingProgramHoldsItUpWhereWindowsShowsWhy()
    {
        putFile("hold.dat"_s, "0\t0\t0\t0\t0\t0\t0\t0\t0\t0\t0\t0\t0\t0\t0\t0\t0\t-1\t---NoGroup---\t1\n");
        station->load("hold.dat"_s);
        station->click("ProgRun"_s);
        QVERIFY(station->process().waitFor(
            [](const QString&) { return journalHas("\tpc\tasked=hold-session-end\t"); }));
        const bool isShown = journalHas("\tpc\tasked=hold-session-end\tanswer=done");
        QCOMPARE(maySessionEnd(station->process()), !isShown);
        QVERIFY(journalHas(isShown ? "\tsession-end\theld-up=yes" : "\tsession-end\theld-up=no"));
        QVERIFY(station->answers());

        station->click("ProgRun"_s); // stops it
        QVERIFY(
            station->process().waitFor([](const QString&) { return journalHas("\tpc\tasked=may-sleep\t"); }));
        QVERIFY(maySessionEnd(station->process()));
    }
};

NELVO_TEST_MAIN(SessionEndTest)
#include "sessionend.moc"
