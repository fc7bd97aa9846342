#pragma once

#include "system/process.h"

#include <QLocalServer>
#include <QLocalSocket>
#include <QPoint>

#include <memory>

/// The simulator, listening at ownLoopbackAddress().
class Chamber : public Process
{
public:
    explicit Chamber(const QStringList& options = {});
};

/// The program Nelvo as it is shipped, run for a test with an operator's hands in it (hands/): clicks, keys
/// and looks from outside of its process.
class HandledStation
{
public:
    /// Starts it at the adapter of ownLoopbackAddress(), in English unless the arguments say otherwise, in
    /// the working directory of the test.
    explicit HandledStation(
        const QStringList& environment = {}, const QStringList& arguments = {QStringLiteral("-e")});

    /// False when its window does not come up within 20 s.
    bool isUp();
    /// Dismisses the box that a start shows which fails; false when there is none within 20 s.
    bool dismissesBox();
    /// A sign of life: the window answers.
    bool answers();

    void click(const QString& name) { ask({QStringLiteral("click"), name}); }
    void type(const QString& name, const QString& text) { ask({QStringLiteral("type"), name, text}); }
    void load(const QString& fname) { ask({QStringLiteral("load"), fname}); }
    void grab(const QString& fname) { ask({QStringLiteral("grab"), fname}); }
    /// The middle of a widget on the screen.
    QPoint where(const QString& name);
    QString text(const QString& name) { return ask({QStringLiteral("text"), name}); }
    QString style(const QString& name) { return ask({QStringLiteral("style"), name}); }
    /// Closes the window, as the operator does.
    void closeWindow() { ask({QStringLiteral("close")}); }
    /// The style that the toolkit draws the window in: "fusion" and the like.
    QString widgetStyle() { return ask({QStringLiteral("widgets")}); }
    bool isMaximized() { return ask({QStringLiteral("maximized")}) == QLatin1String("true"); }
    QString status() { return ask({QStringLiteral("status")}); }
    /// What the system's clock says in the station's process, ms since the epoch.
    qint64 systemClockMs() { return ask({QStringLiteral("clock")}).toLongLong(); }
    Process& process() { return *nelvo; }

private:
    QString ask(const QStringList& words);
    bool tryToAsk(const QStringList& words, QString& answer);
    bool does(const QStringList& words);

    QLocalServer server;
    std::unique_ptr<Process> nelvo;
    QLocalSocket* hands = nullptr;
};
