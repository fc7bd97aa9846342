// What is asked of the PC while the station works.

#include "app/pcguard.h"

#include "support/testmain.h"

#include <QSignalSpy>
#include <QWidget>

using namespace TestText;

class PcGuardTest : public QObject
{
    Q_OBJECT

    QWidget window;
    PcGuard::Work work = PcGuard::Work::None;

private slots:
    void init() { work = PcGuard::Work::None; }

    void eachChangeOfWorkIsAskedOfThePcOnce()
    {
        PcGuard guard(window, [this] { return work; });
        QSignalSpy asked(&guard, &PcGuard::asked);
        const auto taken = [&asked] {
            QStringList lines;
            while (!asked.isEmpty()) {
                lines.append(asked.takeFirst().value(0).toString());
            }
            return lines;
        };

        guard.start();
        QCOMPARE(taken(), QStringList({"no-throttling"_s}));

        work = PcGuard::Work::Ramp;
        QTRY_COMPARE(asked.size(), 1);
        QCOMPARE(taken(), QStringList({"awake"_s}));

        work = PcGuard::Work::Program;
        QTRY_COMPARE(asked.size(), 2);
        QCOMPARE(taken(), QStringList({"awake"_s, "hold-session-end"_s}));

        work = PcGuard::Work::None;
        QTRY_COMPARE(asked.size(), 1);
        QCOMPARE(taken(), QStringList({"may-sleep"_s}));
    }

    void theToolkitDoesNotCloseTheWindowWhenTheSessionIsToEnd()
    {
        const PcGuard guard(window, [this] { return work; });
        QVERIFY(!QGuiApplication::isFallbackSessionManagementEnabled());
    }
};

NELVO_TEST_MAIN(PcGuardTest)
#include "pcguard.moc"
