#pragma once

#include <QByteArray>

namespace Chamber {

/// What an instrument sees of one message on the bus.
struct BusMessage
{
    QByteArray bytes; ///< with what the adapter appended
    bool eoi = false; ///< whether EOI came with the last byte
};

/// The adapter's settings and the commands that change them.
///
/// | command | values | at first |
/// |---|---|---|
/// | ++addr | 0 to 30, the selected instrument | 0, where nobody sits |
/// | ++eos | appended to a message: 0 CR LF, 1 CR, 2 LF, 3 nothing | 0 |
/// | ++eoi | 1: EOI comes with a message's last byte | 1 |
/// | ++auto | 1: an instrument's answer is fetched after each message | 0 |
class Adapter
{
public:
    struct CommandResult
    {
        bool understood = false;
        QByteArray answer; ///< to the client, without a line end; empty for none
    };

    /// Obeys `line`, which begins with "++". With a value it sets, without one it answers the present value.
    /// An unknown command, a value out of range and anything behind the value change nothing.
    CommandResult command(const QByteArray& line);

    /// `data` as it goes out on the bus under the present settings.
    BusMessage message(const QByteArray& data) const;

    /// The GPIB address that messages go to.
    int address() const { return selectedAddress; }

    /// Whether instruments' answers are fetched and passed on.
    bool readsAfterWrite() const { return automaticRead == 1; }

private:
    int selectedAddress = 0;
    int endOfString = 0;
    int endOrIdentify = 1;
    int automaticRead = 0;
};

} // namespace Chamber
