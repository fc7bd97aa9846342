#pragma once

#include <QList>
#include <QString>
#include <QStringList>
#include <QtGlobal>

/// A message of Qt's logging, with the context it was given.
struct LoggedMessage
{
    QtMsgType type = QtDebugMsg;
    QString text;
    QString unit; ///< the context's file
    int line = 0;
    QString function;
    QString category;
};

/// While it lives, Qt's messages are collected instead of printed. One at a time.
class MessageCapture
{
public:
    MessageCapture();
    ~MessageCapture();
    MessageCapture(const MessageCapture&) = delete;
    MessageCapture& operator=(const MessageCapture&) = delete;

    static QList<LoggedMessage> messages();
    static QStringList texts();
    /// The texts of the warnings and worse: an operator should never see one.
    static QStringList warnings();
    static void clear();

private:
    QtMessageHandler before;
};

/// While it lives, the off-screen platform keeps to itself what it cannot do (raise a window, grab the
/// keyboard, keep size hints): showing windows and menus is nothing to warn of in a test.
class QuietPlatform
{
public:
    QuietPlatform();
    ~QuietPlatform();
    QuietPlatform(const QuietPlatform&) = delete;
    QuietPlatform& operator=(const QuietPlatform&) = delete;

private:
    QtMessageHandler outer;
    QtMessageHandler before;
};
