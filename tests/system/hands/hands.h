#pragma once

#include <QLocalSocket>
#include <QObject>
#include <QString>
#include <QStringList>

class QWidget;

/// An operator's hands and eyes inside a station that runs as a process of its own: takes requests over a
/// local socket, a line each, does to the real window what they ask for and answers in a line.
///
/// A request is a verb and its words, tabs between: "click NAME", "type NAME TEXT", "text NAME", "style
/// NAME", "where NAME" (its middle on the screen: x, a blank, y), "status", "widgets" (the style that they
/// are drawn in), "close" (the window), "dismiss" (the box that wants an answer), "clock" (what the system's
/// clock says, ms since the epoch), "load FILE", "grab FILE". The answer is "ok" and what was asked for, or
/// "error" and why.
class Hands : public QObject
{
    Q_OBJECT

public:
    /// Connects to the local server `serverName`.
    explicit Hands(const QString& serverName);

private:
    void answerRequests();
    QString answer(const QStringList& words);

    QLocalSocket socket;
};
