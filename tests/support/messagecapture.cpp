#include "support/messagecapture.h"

namespace {

QList<LoggedMessage> captured;

void capture(QtMsgType type, const QMessageLogContext& context, const QString& text)
{
    LoggedMessage message;
    message.type = type;
    message.text = text;
    message.unit = QString::fromUtf8(context.file);
    message.line = context.line;
    message.function = QString::fromUtf8(context.function);
    message.category = QString::fromUtf8(context.category);
    captured.append(message);
}

// What the newest QuietPlatform passes on to.
QtMessageHandler next = nullptr;

void passOn(QtMsgType type, const QMessageLogContext& context, const QString& text)
{
    if (!text.startsWith(QLatin1String("This plugin does not support"))) {
        next(type, context, text);
    }
}

} // namespace

MessageCapture::MessageCapture()
    : before(qInstallMessageHandler(&capture))
{
    captured.clear();
}

MessageCapture::~MessageCapture()
{
    qInstallMessageHandler(before);
}

QList<LoggedMessage> MessageCapture::messages()
{
    return captured;
}

QStringList MessageCapture::texts()
{
    QStringList texts;
    for (const LoggedMessage& message : qAsConst(captured)) {
        texts.append(message.text);
    }
    return texts;
}

QStringList MessageCapture::warnings()
{
    QStringList texts;
    for (const LoggedMessage& message : qAsConst(captured)) {
        if (message.type != QtDebugMsg && message.type != QtInfoMsg) {
            texts.append(message.text);
        }
    }
    return texts;
}

void MessageCapture::clear()
{
    captured.clear();
}

QuietPlatform::QuietPlatform()
    : outer(next)
    , before(qInstallMessageHandler(&passOn))
{
    next = before == &passOn ? outer : before;
}

QuietPlatform::~QuietPlatform()
{
    qInstallMessageHandler(before);
    next = outer;
}
