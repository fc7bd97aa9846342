#pragma once

#include <QByteArray>
#include <QList>

/// What the adapter has to receive, by the rules of the link: written out once more, without a look at how
/// the station does it. Nothing of src/ is used here, nor in the other parts of the model.
class ModelLink
{
public:
    /// A station starts: nothing is known of the adapter, and the opening bytes go out.
    void open();
    /// The connection is gone; nothing arrives any more.
    void cut();

    void selectAddress(int number);
    void setEndOfString(int mode);
    void setEndOrIdentify(int mode);
    /// A message up to its first NUL, and a line feed.
    void sendText(const QByteArray& message);
    void sendRaw(const QByteArray& bytes);

    void awaitReply() { isReplyPending = true; }
    bool isBusy() const { return isReplyPending; }
    int address() const { return selected; }

    /// The lines that `bytes` complete, their white space simplified; any of them frees the bus.
    QList<QByteArray> take(const QByteArray& bytes);

    /// What the adapter has received. False when it is not what is expected so far.
    bool compare(const QByteArray& bytes);
    /// What has still to come.
    const QByteArray& outstanding() const { return expected; }

private:
    void send(const QByteArray& bytes);

    bool isUp = false;
    bool isReplyPending = false;
    int selected = -1;
    int endOfString = -10;
    int endOrIdentify = -10;
    QByteArray unfinished;
    QByteArray expected;
};
