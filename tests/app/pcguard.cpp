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
        QSignalSpy told(&guard, &PcGuard::told);
        const auto said = [&told] {
            QStringList lines;
            while (!told.isEmpty()) {
                lines.append(told.takeFirst().value(0).toString().section(u':', 0, 0));
            }
            return lines;
        };

        guard.start();
        QCOMPARE(said(), QStringList({"no throttling under a covered window"_s}));

        work = PcGuard::Work::Ramp;
        QTRY_COMPARE(told.size(), 1);
        QCOMPARE(said(), QStringList({"keep the PC awake"_s}));

        work = PcGuard::Work::Program;
        QTRY_COMPARE(told.size(), 2);
        QCOMPARE(said(), QStringList({"keep the PC awake"_s, "hold up the end of the session"_s}));

        work = PcGuard::Work::None;
        QTRY_COMPARE(told.size(), 1);
        QCOMPARE(said(), QStringList({"the PC may sleep"_s}));
    }

    void theToolkitDoesNotCloseTheWindowWhenTheSessionIsToEnd()
    {
        const PcGuard guard(window, [this] { return work; });
        QVERIFY(!QGuiApplication::isFallbackSessionManagementEnabled());
    }
};

NELVO_TEST_MAIN(PcGuardTest)
#include "pcguard.moc"
