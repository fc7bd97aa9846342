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
