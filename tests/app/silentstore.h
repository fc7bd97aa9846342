#pragma once

#include "support/files.h"
#include "support/messagecapture.h"

#include <QFile>
#include <QtTest>

#include <memory>

/// A test of the settings store: each begins without its file, and the store never says a word, whatever
/// happens to that file.
class SilentStore : public QObject
{
    Q_OBJECT

    std::unique_ptr<MessageCapture> messages;

private slots:
    void init() { messages = std::make_unique<MessageCapture>(); }

    void cleanup()
    {
        const QStringList said = MessageCapture::texts();
        messages.reset();
        QFile::remove(stateFile);
        QCOMPARE(said, QStringList());
    }
};
