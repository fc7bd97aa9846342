#pragma once

#include "base/channels.h"
#include "journal/journalline.h"
#include "journal/timewatch.h"
#include "program/player.h"
#include "temperature/polling.h"
#include "temperature/ramp.h"
#include "ui_mainwindow.h"

#include <QByteArray>
#include <QList>
#include <QMainWindow>
#include <QString>
#include <QStringList>
#include <QVector>

class aLine;
class Conditions;
class GPIB;
class Journal;
class LinkJournal;
class QFileDialog;
class QTimer;

/// The station's one window. It owns everything: the form, the settings store, the link to the instruments,
/// the timers and the program table. Shutters, temperatures and the automatic program are groups of its
/// methods, in the units mbemain_….cpp of their folders (shutter/, temperature/, program/).
///
/// It is created once and never deleted: at exit nothing is sent to the instruments. Every list of a
/// channel's or a shutter's widgets and values goes by its number (base/channels.h). The signal and the slots
/// keep their order: their places in the meta-object are part of the interface.
class MBEMain : public QMainWindow, private Ui::MainWindow
{
    Q_OBJECT

public:
    /// Builds the form, loads the settings, starts connecting to the adapter (see adapterAddress()), commands
    /// all shutters closed and starts polling, in this order.
    MBEMain();
    ~MBEMain() override;

    /// Whether a program plays, paused or not.
    bool isPlaying() const { return player.progRunning; }
    /// Whether any cell's set point is being ramped.
    bool isRamping() const { return anyCellRunning(); }
    /// Have the journal tell what was asked of the PC, and that the session is to end.
    void journalPc(const QString& asked, const QString& answer);
    void journalSessionEnd(bool isHeldUp);

signals:
    /// Declared only; the chart is fed by direct calls.
    void newT(int ch, qint64 t, double T);

private slots:
    // shutter/
    void NewNextShutter();
    void NewCurrentShutter();
    void ChangeShutter();
    void ActionShutter();
    void AllClose();
    // temperature/
    void ActivateCell();
    void WatchTMP();
    void RunStopTControll();
    void newData(int bytes, QByteArray data);
    // program/
    void APStart();
    void APPause();
    void APOneTick();
    void APCopy();
    void APCut();
    void APPasteUp();
    void APPasteDown();
    void APUndo();
    void APLoad();
    void APSave();
    void APClear();
    void APCheck();
    void APLoadProg(QString fname);
    void APSaveProg(QString fname);

private:
    void setupNames();

    void setupHelp();
    void showHelp();

    // journal/
    void setupJournal();
    void journalTick();
    void journalState();
    void journalCell(const char* kind, int ch, const JournalFields& fields);
    JournalField linkField() const;

    // shutter/
    void setupShutter();
    /// Makes the states, one a shutter, true = open, the commanded ones, and has them shown and sent.
    void commandShutters(const QVector<bool>& open);
    void journalShutterWait();

    // temperature/: the controllers' messages. All are false when nothing was sent.
    bool SndTMPCtrl(char* msg, int size, bool addBcc, bool waitReply);
    bool reqTMP(unsigned char channel);
    bool setTMP(unsigned char channel, double setPointDegC);

    // temperature/: polling and ramps
    void setupTemperature();
    void findCellWidgets();
    void showCellActive(int ch);
    void requestReading();
    void showReading();
    void startStopCell(int ch);
    /// Writes the entries (deg C, minutes) into the panel and starts a ramp from them.
    void restartRamp(int ch, const QString& targetDegC, const QString& durationMin);
    void stopCell(int ch);
    QString refusalText(Ramp::Refusal refusal, int ch, double durationMin) const;
    double targetOf(int ch);
    void warn(const QString& text);
    void journalReading(int ch);
    bool anyCellRunning() const;
    bool rampStep(int ch);
    void showElapsed();
    void recordTMP();
    void journalRecord(bool isWritten);

    // program/: the table and its files
    void setupProgram();
    void setupProgramDialogs();
    void setupProgramTable();
    void setupProgramBar();
    void setupProgramHeader();
    void addProgramHeader(const QString& text, int row, int column, int columns, const QString& style);
    int senderLine() const;
    void copyLine(const aLine* src, aLine* dst);
    void pasteAt(int row);

    // program/: playing it
    void stopProgram(const char* why);
    void showPaused();
    void showStepEnded(int row, BlockCursor::Move move);
    void beginStep(const StepPlan& plan);
    void showGroupCount();
    void journalProgram();
    void journalEdits();
    void journalStep();
    QVector<ProgramStep> tableContents() const;

    QStringList cellNames;
    QStringList shutterNames;
    QVector<double> riseRateLimits; // deg C per minute
    GPIB* gpib = nullptr;
    Conditions* conditions = nullptr;
    Journal* journal = nullptr;
    Journal* wireJournal = nullptr; // with every byte of the link, where that is wanted
    LinkJournal* linkJournal = nullptr;
    TimeWatch timeWatch{10};
    qint64 nextMinuteMs = 0; // ms since the epoch: when the temperatures are written down next
    qint64 startTime = 0; // ms since the epoch: time zero of the chart and of the temperature record

    // shutter/
    QString openText;
    QString closeText;
    QList<QLabel*> shutterLabels;
    QList<QToolButton*> currentButtons;
    QList<QToolButton*> nextButtons;
    QVector<bool> nextShutterState; // wanted, true = open
    QVector<bool> currentShutterState; // commanded, true = open
    QTimer* actionTimer = nullptr;
    QString waitingShutters; // the command that waits for the bus, in letters
    qint64 shutterWaitSinceMs = 0; // ms since the epoch: a command waits for the bus; 0 when none does

    // temperature/: the cell panel
    QString runText;
    QString stopText;
    QString activeText;
    QString notInUseText;
    QList<QLabel*> cellLabels;
    QList<QToolButton*> activeButtons;
    QVector<bool> cellActive;
    QList<QLabel*> currentLabels;
    QList<QLineEdit*> targetEdits;
    QList<QLineEdit*> durationEdits;
    QList<QToolButton*> runButtons;
    QList<QLabel*> setPointLabels;
    QList<QLabel*> elapsedLabels;
    QVector<Ramp::Run> ramps; // cellRunning, rampStartMs, rampNextMs, rampRate, rampSetPoint
    QTimer* watchTimer = nullptr;
    QVector<int> failedReadings; // in a row
    int lostRecords = 0; // in a row
    Polling polling; // watchState, tickCount, sentTick, lastRampTick, pollCh, rampCh, tmpReply

    // program/: the table, 200 rows for the life of the window
    QFileDialog* loadDialog = nullptr;
    QFileDialog* saveDialog = nullptr;
    QList<aLine*> progLines;
    aLine* clipLine = nullptr; // the row held by copy and cut, never shown

    // program/: the player, at most one step a tick
    QString progRunText;
    QString progStopText;
    QString progResumeText;
    QString progPauseText;
    QTimer* progTimer = nullptr;
    Player player; // progRunning, progPaused, progStartMs, stepStartMs, stepTime, stepPhase, the walk
    QVector<ProgramStep> journaledTable; // as far as the journal has told it
};
