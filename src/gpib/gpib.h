#pragma once

#include "gpib/linebuffer.h"
#include "gpib/linkobserver.h"

#include <QByteArray>
#include <QObject>

class QTcpSocket;

/// The one path to the instruments: a TCP connection to a GPIB-to-Ethernet adapter. A line that begins with
/// "++" is a command to the adapter itself; every other line goes to the instrument at the selected address.
///
/// Nothing here blocks, waits or reports: bytes are handed to the socket, and lines come back through
/// dataReady(). A lost or refused connection is not noticed. All calls are made on the GUI thread.
class GPIB : public QObject
{
    Q_OBJECT

public:
    /// No socket, every cached setting unknown.
    GPIB();
    ~GPIB() override;

    /// Starts connecting to `port` (its low 16 bits) of `host`, replacing any earlier socket, and queues
    /// "++eoi\n". Returns at once; the cached settings keep their values.
    void connectAdapter(const QString& host, int port);

    /// True when there is a socket, connected or not. Without one it says "gpib Null" on the debug log.
    bool isConnected();

    /// Sends the first 1000 characters of the NUL-terminated `msg` and one LF.
    void sndMsg(const char* msg);

    /// Sends exactly `len` bytes of `data`, any bytes; nothing is added. Below 1 nothing is sent.
    void sndRaw(const char* data, int len);

    /// Selects the instrument at `addr` for what follows ("++addr %d\n", only when it changes; a negative
    /// `addr` sends the adapter's query "++addr\n" and selects nothing). False, and nothing sent, when
    /// another instrument's reply is pending.
    bool setAddr(int addr);

    /// Sets the adapter's end-of-string mode ("++eos %d\n", only when it changes; a negative one is sent but
    /// not remembered).
    void setEos(int eos);

    /// Sets the adapter's EOI mode. What is sent is the mode remembered from the call before ("++eoi 0\n",
    /// "++eoi 1\n", or "++eoi\n" while none is known): the adapter follows one change behind, by intention.
    void setEoi(int eoi);

    /// Sets read-after-write: "++auto %d\n", or the query "++auto\n" for a negative `mode`. Sent every time.
    void setAuto(int mode);

    /// Bytes that have arrived and not been read, those of an unfinished line.
    qint64 bytesAvailable();

    /// The address selected last, -1 while none was.
    int address() const { return currentAddress; }

    /// The bus lock: a sender that awaits a reply sets it, any line that arrives clears it. While it is set
    /// no other address can be selected.
    bool isReplyPending() const { return replyPending; }
    void setReplyPending();

    /// Whether the connection is up, as far as has been seen. For telling people; nothing goes by it.
    bool isUp() const { return hasConnection; }

    /// Has an observer told what happens from now on; it must outlive the link.
    void setObserver(LinkObserver& newObserver) { observer = &newObserver; }

signals:
    /// One complete line arrived; `rbuf` is the line with its white space simplified, `bytes` its length.
    void dataReady(int bytes, QByteArray rbuf);

private slots:
    void rcvMsg();

private:
    void write(const QByteArray& bytes);

    QTcpSocket* socket = nullptr;
    LineBuffer incoming; // what of the socket's bytes is no complete line yet
    QByteArray rbuf;
    LinkObserver nobody;
    LinkObserver* observer = &nobody;
    bool hasConnection = false;
    bool replyPending = false;
    int currentAddress = -1;
    int currentEos = -10;
    int currentEoi = -10;
};
