// The pictures of the manual and of README.md, from the station's window at the simulated chamber. The clock
// is driven and the chamber's seed fixed, so that a picture changes only when the program does. Usage:
// nelvo-pictures DOCS EXAMPLES

#include "callouts.h"

#include "app/language.h"
#include "support/drivenchamber.h"
#include "support/testmain.h"

#include <QDir>
#include <QTabWidget>
#include <QTranslator>

using namespace TestText;

namespace {

constexpr qint64 minuteMs = 60000;
constexpr int ga = 1;
constexpr int programTab = 0;
constexpr int chartTab = 1;

using Side = Callout::Side;

/// The pictures in one language, "ja" or "en".
class Pictures
{
public:
    Pictures(DrivenChamber& atChamber, const QString& docsFolder, const QString& inLanguage)
        : station(atChamber)
        , docs(docsFolder)
        , language(inLanguage)
    {
        station.window().show();
    }

    /// A ramp and some shutters, for as long as the chart is wide.
    void workByHand()
    {
        station.run(4 * minuteMs);
        station.pressRun(ga, "100"_s, "5"_s);
        for (const char* button : {"NS02", "NS04"}) {
            station.click(QLatin1String(button));
        }
        station.click("CS04"_s);
        station.run(minuteMs + 30000);
    }

    void takeChart()
    {
        showTab(chartTab);
        saveForReadme("chart", "en"_s);
        save("manual/%1/pictures/window.png"_s,
            around("MainWindow",
                {{"frame_2"_s, Side::Left}, {"frame"_s, Side::Top}, {"qt_tabwidget_tabbar"_s, Side::Left},
                    {"statusbar"_s, Side::Left}}));
        save("manual/%1/pictures/shutters.png"_s,
            around("frame",
                {{"label_3"_s, Side::Left}, {"label_4"_s, Side::Left}, {"ChangeShutterB"_s, Side::Left},
                    {"AllCloseB"_s, Side::Left}}));
        save("manual/%1/pictures/cells.png"_s,
            around("frame_2",
                {{"TCActive01"_s, Side::Left}, {"label_21"_s, Side::Left}, {"label_22"_s, Side::Left},
                    {"label_23"_s, Side::Left}, {"RunT01"_s, Side::Left}, {"label_25"_s, Side::Left},
                    {"label_6"_s, Side::Left}, {"TMPCtrlActive"_s, Side::Right}}));
        save("manual/%1/pictures/chart.png"_s,
            around("Tshow",
                {{"LineSelect"_s, Side::Left}, {"TSView"_s, Side::Left}, {"TSView"_s, Side::Bottom}}));
    }

    /// Far enough to be in the second pass of a group.
    void playProgram(const QString& program)
    {
        showTab(programTab);
        station.program().loadFile(program);
        station.click("ProgRun"_s);
        station.run(9500);
    }

    void takeProgram()
    {
        saveForReadme("program", "ja"_s);
        save("manual/%1/pictures/program.png"_s,
            around("tab_9",
                {{"ProgRun"_s, Side::Bottom}, {"ProgPause"_s, Side::Bottom}, {"frame_4"_s, Side::Bottom},
                    {"frame_5"_s, Side::Bottom}, {"frame_6"_s, Side::Bottom}, {"ProgClear"_s, Side::Bottom},
                    {"ProgCheck"_s, Side::Bottom}, {"ProgLoad"_s, Side::Bottom}}));
    }

private:
    void showTab(int index)
    {
        station.find<QTabWidget>("tabWidget"_s).setCurrentIndex(index);
        station.settle();
    }

    void saveForReadme(const char* name, const QString& inLanguage)
    {
        if (language == inLanguage) {
            save("pictures/"_s + QLatin1String(name) + "-%1.png"_s, station.window().grab());
        }
    }

    QPixmap around(const char* part, const QVector<Callout>& callouts)
    {
        QWidget& window = station.window();
        QWidget& shown = qstrcmp(part, "MainWindow") == 0 ? window : station.widget(QLatin1String(part));
        return pictureOf(window, shown, callouts);
    }

    void save(const QString& name, const QPixmap& picture)
    {
        const QString file = docs + u'/' + name.arg(language);
        QDir().mkpath(QFileInfo(file).path());
        if (!picture.save(file)) {
            qFatal("cannot write %s", qPrintable(file));
        }
    }

    DrivenChamber& station;
    QString docs;
    QString language;
};

void takeAll(const QString& docs, const QString& examples, const Language& language, const QString& name)
{
    QTranslator translator;
    speak(language, translator);
    DrivenWatcher nobody;
    DrivenChamber station(Chamber::Options(), nobody);
    station.open();
    Pictures pictures(station, docs, name);
    pictures.workByHand();
    pictures.takeChart();
    pictures.playProgram(examples + "/superlattice.dat"_s);
    pictures.takeProgram();
}

} // namespace

int main(int argc, char* argv[])
{
    return runIsolated(argc, argv, [&] {
        if (argc != 3) {
            qFatal("usage: nelvo-pictures DOCS EXAMPLES");
        }
        const QString docs = QString::fromLocal8Bit(argv[1]);
        const QString examples = QString::fromLocal8Bit(argv[2]);
        takeAll(docs, examples, japanese(), "ja"_s);
        takeAll(docs, examples, english(), "en"_s);
        return 0;
    });
}
