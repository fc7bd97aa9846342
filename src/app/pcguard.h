#pragma once

#include "base/powerrequest.h"

#include <QObject>
#include <QTimer>

#include <functional>

class QSessionManager;
class QWidget;

/// Looks after the PC while the station works: it stays awake while a program plays or a ramp runs, and an
/// end of the session that is asked for while a program plays is held up with the reason shown, where the
/// platform shows one beside a button that goes on. Elsewhere, and without a program, the session ends when
/// it is told to.
class PcGuard : public QObject
{
    Q_OBJECT

public:
    enum class Work { None, Ramp, Program };

    /// `window` is the station's, and lives longer than this.
    PcGuard(QWidget& window, std::function<Work()> work);

    /// Switches throttling off for good and asks `work` once a second from now on.
    void start();

signals:
    /// The platform was asked for `what`, "no-throttling", "awake", "may-sleep" or "hold-session-end", and
    /// its answer is "done" or, in English, why not.
    void asked(const QString& what, const QString& answer);
    /// The session is to end; whether that is held up.
    void sessionEnds(bool isHeldUp);

private:
    void look();
    void keepAwake(Work now);
    void holdUpSessionEnd(bool isPlaying);
    void answerSessionEnd(QSessionManager& manager);

    QWidget& window;
    std::function<Work()> work;
    QTimer timer;
    Work seen = Work::None;
    PowerRequest awake;
    bool holdsUpSessionEnd = false;
};
