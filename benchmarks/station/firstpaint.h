#pragma once

#include <QObject>

#include <functional>

class QWidget;

/// Awaits the first paint of a window with all that is in it, says when that was ("painted", nanoseconds of
/// the steady clock) on standard output, and ends the program.
class FirstPaint : public QObject
{
    Q_OBJECT

public:
    /// `window` has not been painted yet and outlives this. `afterwards` is called before the program ends.
    explicit FirstPaint(QWidget& window, std::function<void()> afterwards = {});

protected:
    bool eventFilter(QObject* receiver, QEvent* event) override;

private:
    void report();

    std::function<void()> afterwards;
    bool isPainted = false;
};
